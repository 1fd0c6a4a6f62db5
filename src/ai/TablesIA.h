// The AI's own tables: the scheduler's cursor and budgets, what each character wants and has
// done, and the state of its resumed searches. Created when a game starts, grown with Persos
// by a summon, never saved: a loaded world starts them afresh.
#pragma once

#include <cstdint>
#include <vector>

#include "rules/Empreinte.h"

extern int32_t DernierPerso;      // last valid character index
extern int32_t PersosParTrame;    // the scheduler gives PersosParTrame + 1 thoughts a tick
extern int32_t PasDeRecherche;    // candidates one resumed search call may look at, less one
extern int32_t CurseurIA;         // the character that thought last
extern int16_t CurseurInventaire; // one inventory cursor shared by every character
extern int16_t NiveauBatimentMax;
extern std::vector<int16_t> BatimentsParNiveau;   // types of each level; one more entry, 0

// One entry per character.
extern std::vector<uint8_t> ActionFaite;          // the stay in a building has been dealt with
extern std::vector<int16_t> BatimentVoulu;        // type it wants to build, -1 for none
extern std::vector<int32_t> CurseurPerso, CurseurMaison, CurseurMaisonEnnemie, CurseurChateauEnnemi;
extern std::vector<int32_t> RayonPerso, RayonMaison, RayonMaisonEnnemie, RayonChateauEnnemi, RayonRessource;
extern std::vector<int16_t> EtapeRessource, EtapeObjet, EtapeQuantite;   // the script runner's
// One entry per fief: the ring around the castle where its builders look for room.
extern std::vector<int32_t> RayonPlacementFief;

// Before the first tick of a game: tables sized to the world, wishes and radii at their start.
void Initialiser_IA();
// Resizes every per-character table to nombre entries, keeping what they hold (new entries 0),
// and sets the budgets from the new size.
void Dimensionner_Tables_IA(int32_t nombre);
// Back to a fresh process: every table empty, every cursor and budget at its first value. A
// new game in the same process otherwise inherits the cursors of the last one.
void Reinitialiser_IA();
// Hash of the tables, for the simulator's state hash.
void Empreindre_IA(Empreinte& e);

// The world in memory: every global that the rules share. A reference from one record to
// another is always an index into these arrays. Persos, Maisons, EffetsPersos and
// EffetsMaisons have the same bounds (character i owns house slot i and effect slot i);
// Fiefs and Chateaux too (fief f owns castle f).
#pragma once

#include <cstdint>
#include <vector>

#include "characters/ClsJeuCommentaires.h"
#include "characters/ClsJeuEffet.h"
#include "characters/ClsJeuPerso.h"
#include "world/ClsJeu.h"
#include "world/ClsJeuBatiment.h"
#include "world/ClsJeuFief.h"
#include "world/ClsJeuMonde.h"
#include "world/ClsJeuRessources.h"

extern ClsJeuMonde Monde;
extern std::vector<ClsJeuFief> Fiefs;
extern std::vector<ClsJeuPerso> Persos;
extern std::vector<ClsJeuEffet> EffetsPersos;
extern std::vector<ClsJeuEffet> EffetsMaisons;
extern int32_t PersoActif;
extern std::vector<ClsJeuBatiment> Chateaux;
extern std::vector<ClsJeuBatiment> Maisons;
// House slots that Creer has rebuilt since the AI's searches last took their picture of the
// houses: a house gets a new place and kind only through Creer, so the picture catches up
// from this list.
extern std::vector<int32_t> MaisonsCreees;
extern std::vector<ClsJeuRessources> Ressources;
extern ClsJeu Jeu;
extern ClsJeuCommentaires Commentaires;   // the phrase book, read once at start
extern bool FinPartie, Victoire, Defaite;

// Erases the world arrays when a game ends.
void Vider_Monde();

// Puts every world global back as a fresh process has it.
void Reinitialiser_Monde();

// Hash of every record of the world.
void Empreindre_Monde(Empreinte& e);

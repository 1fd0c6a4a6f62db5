// What the AI looks for: an enemy, an enemy house or castle, a house to visit, a deposit, a
// place to build. The main searches are resumed slices: each character keeps a cursor and a
// radius per kind of target, one call looks at no more than PasDeRecherche + 1 candidates, and
// the radius widens each time a full pass finds nothing, so what is near is found first at a
// bounded cost per call. Every search answers true with the index found in resultat (-1 and
// false when nothing).
#pragma once

#include <cstdint>

bool Chercher_Ennemi(int32_t i, int32_t& resultat);
bool Chercher_Maison_Ennemie(int32_t i, int32_t& resultat);
bool Chercher_Chateau_Ennemi(int32_t i, int32_t& resultat);
// The one search for every errand to a house of the character's own fief: a service (service
// ≥ 1), objects to buy (besoin 5), a resource to buy (ressource ≠ 0) or food for a gauge
// (besoin 1 to 4: health, energy, magic, morale). perso is the character's record number, i
// its table entry (the same number in play).
bool Chercher_Maison(int32_t perso, int32_t i, int16_t ressource, int16_t besoin, int16_t service,
                     int32_t& resultat);
// The first deposit of the type, in index order, within a radius that grows at each call.
bool Chercher_Ressource(int32_t perso, int32_t i, int32_t type, int32_t& resultat);
// Sends i to a deposit of the type found by Chercher_Ressource; nothing if none.
void Aller_Recolter(int32_t i, int32_t type);
// The key command's form: the truly nearest deposit of the type (deposit 0 if none).
void Aller_Ressource_Proche(int32_t i, int32_t type);
// A free place for a building of the type in the ring around the character's castle.
bool Chercher_Emplacement(int32_t i, int32_t& x, int32_t& y, int16_t type);
// Full scans for the nearest enemy, enemy castle, enemy house; the first of equally near
// ones stands. With relayer the order goes to the character's followers too (a, b, c: the
// modifier keys of the command).
void Attaquer_Perso_Proche(int32_t i, bool relayer = false, bool a = false, bool b = false, bool c = false);
void Attaquer_Chateau_Proche(int32_t i, bool relayer = false, bool a = false, bool b = false, bool c = false);
void Attaquer_Maison_Proche(int32_t i, bool relayer = false, bool a = false, bool b = false, bool c = false);
// House slots of the fief's characters holding the type (standing or not); 0 for a negative type.
int32_t Compter_Maisons_Type(int32_t type, int32_t fief);
// House slots of the fief's characters, that is the number of its characters.
int32_t Compter_Maisons_Fief(int32_t fief);

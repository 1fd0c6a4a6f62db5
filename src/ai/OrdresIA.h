// The small orders and tests that every part of the AI shares.
#pragma once

#include <cstdint>

class ClsJeuPerso;

// Home (to rest, work or build), someone's house, the own castle; each clears ActionFaite.
void Rentrer_Chez_Soi(int32_t i);
void Aller_Chez(int32_t i, int32_t maison);
void Aller_Au_Chateau(int32_t i);
void Marquer_Action_Faite(int32_t i);
// Attacks what the search finds, if anything.
void Attaquer_Trouve(int32_t i, bool (*chercher)(int32_t, int32_t&), void (ClsJeuPerso::*attaquer)(int32_t));
// Money limits that scale with the epoch of the character's fief.
bool Perso_Pauvre(int32_t i);
bool Perso_Riche(int32_t i);
// A short walk at random, kept inside the world.
void Errer(int32_t i);
// What an idle character does with one draw: fight, go back, wander, or nothing.
void Occuper_Inactif(int32_t i);

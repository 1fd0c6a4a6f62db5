// The working day of a villager of the first people: what to build, putting its house up,
// working in it, carrying goods between its house, the shops and the castle market, and
// giving to its castle. It is the tail of a villager's thought.
#pragma once

#include <cstdint>

// Decides about the character's own building, then (nearly always) its day.
void Gerer_Batiment_Perso(int32_t i);
// The next errand of an idle character.
void Gerer_Journee(int32_t i);
// What happens on arrival at home and at a castle.
void Travailler_Chez_Soi(int32_t i);
void Commercer_Au_Chateau(int32_t i);
// Fetches the raw material of its house.
void Approvisionner_Maison(int32_t i);
void Recolter_Pour_Batiment(int32_t i);
void Acheter_Matieres(int32_t i);
void Acheter_Pour_Batiment(int32_t i);
// Gives the castle the share of its money that the castle has lost of its life, plus one.
void Contribuer_Chateau(int32_t i);
// A building type of the level for the character to want, or -1 (niveau -1: one without a house).
int16_t Choisir_Batiment(int32_t i, int32_t fief, int32_t niveau);

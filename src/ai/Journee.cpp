// Placeholder bodies until the villager day lands; every one is replaced.
#include "ai/Journee.h"

void Gerer_Batiment_Perso(int32_t i) {}
void Gerer_Journee(int32_t i) {}
void Travailler_Chez_Soi(int32_t i) {}
void Commercer_Au_Chateau(int32_t i) {}
void Approvisionner_Maison(int32_t i) {}
void Recolter_Pour_Batiment(int32_t i) {}
void Acheter_Matieres(int32_t i) {}
void Acheter_Pour_Batiment(int32_t i) {}
void Contribuer_Chateau(int32_t i) {}
int16_t Choisir_Batiment(int32_t i, int32_t fief, int32_t niveau) { return -1; }

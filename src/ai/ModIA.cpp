// Placeholder bodies until the thought lands; every one is replaced.
#include "ai/ModIA.h"

void Executer_IA() {}
void Penser_Perso(int32_t i) {}
void Gerer_Besoins(int32_t i) {}
void Gerer_Achats(int32_t i) {}
void Humeur_Aleatoire(int32_t i) {}
void Riposter(int32_t i) {}
void Ravitailler_Monstre(int32_t i) {}
void Foncer(int32_t i) {}
void Equiper_Auto(int32_t i) {}
void Vendre_Doublons(int32_t i) {}

// Placeholder bodies until the searches lands; every one is replaced.
#include "ai/Recherches.h"

bool Chercher_Ennemi(int32_t i, int32_t& resultat) { return false; }
bool Chercher_Maison_Ennemie(int32_t i, int32_t& resultat) { return false; }
bool Chercher_Chateau_Ennemi(int32_t i, int32_t& resultat) { return false; }
bool Chercher_Maison(int32_t perso, int32_t i, int16_t ressource, int16_t besoin, int16_t service,
                     int32_t& resultat) { return false; }
bool Chercher_Ressource(int32_t perso, int32_t i, int32_t type, int32_t& resultat) { return false; }
void Aller_Recolter(int32_t i, int32_t type) {}
void Aller_Ressource_Proche(int32_t i, int32_t type) {}
bool Chercher_Emplacement(int32_t i, int32_t& x, int32_t& y, int16_t type) { return false; }
void Attaquer_Perso_Proche(int32_t i, bool relayer, bool a, bool b, bool c) {}
void Attaquer_Chateau_Proche(int32_t i, bool relayer, bool a, bool b, bool c) {}
void Attaquer_Maison_Proche(int32_t i, bool relayer, bool a, bool b, bool c) {}
int32_t Compter_Maisons_Type(int32_t type, int32_t fief) { return 0; }
int32_t Compter_Maisons_Fief(int32_t fief) { return 0; }

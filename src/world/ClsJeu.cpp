#include "world/ClsJeu.h"

#include <algorithm>
#include <iostream>
#include <string>

#include "rules/ClsFicINI.h"
#include "rules/Conversions.h"

namespace {

ClsFicINI Fichier_Jeu() {
    ClsFicINI ini;
    ini.Fichier = "Ini_Jeu";
    ini.Section = "Vitesse";
    return ini;
}

// A rate must stay above 0: the loop divides by it. Bring a bad one within the bounds.
int16_t Rythme_Valide(int16_t valeur, int16_t min, int16_t max, const char* cle) {
    if (valeur > 0) return valeur;
    const int16_t corrige = min > 0 ? min : (max > 0 ? std::min<int16_t>(max, 1) : 1);
    std::cerr << "Ini_Jeu : la clé " << cle << " vaut " << valeur << ", ramenée à " << corrige << ".\n";
    return corrige;
}

}  // namespace

void ClsJeu::Charger() {
    ClsFicINI ini = Fichier_Jeu();
    auto lire = [&ini](const char* cle) { return Souple_En<int16_t>(ini.Parametre(cle)); };
    FPSMin = lire("FPSMin");
    FPSMax = lire("FPSMax");
    VitesseMin = lire("VitesseMin");
    VitesseMax = lire("VitesseMax");
    FPS = Rythme_Valide(lire("FPS"), FPSMin, FPSMax, "FPS");
    Vitesse = Rythme_Valide(lire("Vitesse"), VitesseMin, VitesseMax, "Vitesse");
}

void ClsJeu::Definir_Vitesse(int16_t valeur) {
    FPS = valeur;
    Vitesse = valeur;
    ClsFicINI ini = Fichier_Jeu();
    ini.Parametre("FPS", std::to_string(valeur));
    ini.Parametre("Vitesse", std::to_string(valeur));
}

#include "rules/ControleRegles.h"

#include <algorithm>

#include "rules/ClsJeuParamLecteur.h"
#include "rules/Conversions.h"

void Controler_Regles(const ClsJeuParam& p, RapportParam& rapport) {
    ControleRegles c(p, rapport);
    Controler_Persos(c);
    Controler_Ressources(c);
    Controler_Batiments(c);
    Controler_Objets(c);
    Controler_Monstres(c);
}

void ControleRegles::Signaler(std::string_view fichier, std::string_view section, std::string_view cle,
                              std::string_view quoi) {
    const std::string absent = std::string(fichier) + ": fichier absent";
    if (std::find(rapport_.Problemes.begin(), rapport_.Problemes.end(), absent) != rapport_.Problemes.end()) return;
    rapport_.Signaler(std::string(fichier) + ":" + std::string(section) + ":" + std::string(cle), quoi);
}

void ControleRegles::Signaler(std::string_view fichier, std::string_view prefixe, int n, std::string_view cle,
                              std::string_view quoi) {
    Signaler(fichier, Section_Numerotee(prefixe, n + 1), cle, quoi);
}

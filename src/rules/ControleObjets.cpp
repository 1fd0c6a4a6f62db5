// Checks of the objects file (services and objects) and of the effects that blows show.
#include <cmath>
#include <string>
#include <utility>

#include "rules/ClsJeuParam.h"
#include "rules/ControleRegles.h"
#include "rules/Conversions.h"

namespace {

constexpr int NombreEmplacements = 9;
constexpr double LimitePrix = 32768;

// Service 1 stands for "no service", 2 raises the dead in the temple (buildings with
// Service=1), 3 is the bounty of the barracks (Service=2).
void Services_Fixes(ControleRegles& c) {
    const ClsJeuParam& p = c.P;
    if (p.NombreServices < 3) {
        c.Signaler(FichierObjets, "Services", "NombreServices",
                   "vaut " + std::to_string(p.NombreServices) +
                       " : il en faut au moins 3 (« Aucun », la résurrection, la prime de la caserne)");
    }
    if (p.NombreServices > 0 && p.Service_Nom(0) != "Aucun")
        c.Signaler(FichierObjets, "Service_", 0, "Nom",
                   "« " + p.Service_Nom(0) + " » : le service 1 tient la place de l'absence de service, « Aucun »");
    if (p.NombreServices > 1) {
        const double coefficient = p.Service_Coefficient(1);
        if (!(coefficient > 0 && coefficient <= 1))
            c.Signaler(FichierObjets, "Service_", 1, "Coefficient",
                       "vaut " + Texte_Nombre(coefficient) +
                           " : le ressuscité revient avec MaxVie × ce coefficient, qui doit être dans ]0, 1]");
    }
    const char* const role[] = {"", "la résurrection (le temple)", "la prime de la caserne"};
    for (int s = 1; s <= 2 && s < p.NombreServices; ++s) {
        bool rendu = false;
        for (int b = 0; b < p.NombreTypeBatiments; ++b) rendu |= p.Batiment_Service(b) == s;
        if (!rendu)
            c.Signaler(FichierObjets, "Service_", s, "Nom",
                       std::string("aucun type de bâtiment n'a Service=") + std::to_string(s) + " : il faut " + role[s]);
    }
}

void Prix_Services(ControleRegles& c) {
    for (int s = 0; s < c.P.NombreServices; ++s)
        if (std::abs(c.P.Service_Prix(s)) >= LimitePrix)
            c.Signaler(FichierObjets, "Service_", s, "Prix",
                       Texte_Nombre(c.P.Service_Prix(s)) + " : le calcul des prix sur 16 bits exige moins de 32768");
}

void Effet_Nu(ControleRegles& c) {
    if (c.P.NombreEffets < 1)
        c.Signaler(FichierEffets, "Effets", "NombreEffets", "il en faut au moins un : l'effet 1 est le coup à mains nues");
}

// Categorie is an equipment slot (0 and 1 the hands, 6 and 7 the rings).
void Categories(ControleRegles& c) {
    for (int o = 0; o < c.P.NombreObjets; ++o) {
        const int categorie = c.P.Objet_Categorie(o);
        if (!Dans_Table(categorie, NombreEmplacements))
            c.Signaler(FichierObjets, "Objet_", o, "Categorie",
                       "vaut " + std::to_string(categorie) + " : c'est un emplacement d'équipement, de 0 à 8");
    }
}

// A blow shows the effect of the weapon in hand, and an object that acts on its user shows
// its own, with no test: -1 is left to summoning objects and to those that treat others.
// The upper bound is checked with the other indices.
void Effets_Objets(ControleRegles& c) {
    const ClsJeuParam& p = c.P;
    for (int o = 0; o < p.NombreObjets; ++o) {
        if (p.Objet_EffetAttaque(o) >= 0) continue;
        const bool arme = !p.Objet_Utilisable(o) && (p.Objet_Categorie(o) == 0 || p.Objet_Categorie(o) == 1);
        const bool surSoi = p.Objet_Utilisable(o) && p.Objet_Invocation(o) < 0 && p.Objet_BonusPorteeAttaque(o) < 1;
        if (arme)
            c.Signaler(FichierObjets, "Objet_", o, "EffetAttaque",
                       "vaut " + std::to_string(p.Objet_EffetAttaque(o)) + " : une arme montre son effet à chaque coup");
        else if (surSoi)
            c.Signaler(FichierObjets, "Objet_", o, "EffetAttaque",
                       "vaut " + std::to_string(p.Objet_EffetAttaque(o)) +
                           " : un objet qui agit sur son utilisateur montre son effet");
    }
}

// A usable object is used, never worn: what it would give while worn never applies.
void Objets_Utilisables(ControleRegles& c) {
    const ClsJeuParam& p = c.P;
    for (int o = 0; o < p.NombreObjets; ++o) {
        if (!p.Objet_Utilisable(o)) continue;
        const std::pair<const char*, int> portes[] = {
            {"BonusVie", p.Objet_BonusVie(o)},         {"BonusEnergie", p.Objet_BonusEnergie(o)},
            {"BonusMagie", p.Objet_BonusMagie(o)},     {"BonusMoral", p.Objet_BonusMoral(o)},
            {"BonusAttaque", p.Objet_BonusAttaque(o)}, {"BonusDefense", p.Objet_BonusDefense(o)},
            {"BonusDeplacement", p.Objet_BonusDeplacement(o)}, {"BonusArmure", p.Objet_BonusArmure(o)},
            {"BonusMaxRessources", p.Objet_BonusMaxRessources(o)}, {"ApparencePerso", p.Objet_ApparencePerso(o)},
        };
        const std::string quoi = "un objet utilisable ne se porte jamais : ce qu'il donnerait porté ne s'applique pas";
        for (const auto& [cle, valeur] : portes)
            if (valeur != 0) c.Signaler(FichierObjets, "Objet_", o, cle, quoi);
        const auto liste = [&](const char* prefixe, int n, auto bonus) {
            for (int k = 0; k < n; ++k)
                if (bonus(k) != 0) c.Signaler(FichierObjets, "Objet_", o, Cle_Numerotee(prefixe, k + 1), quoi);
        };
        liste("BonusCompetencesSpeciales", p.NombreCompetencesSpeciales,
              [&](int k) { return p.Objet_BonusCompetencesSpeciales(o, k); });
        liste("BonusCompetencesRessources", p.NombreRessources,
              [&](int k) { return p.Objet_BonusCompetencesRessources(o, k); });
        liste("BonusCompetencesServices", p.NombreServices - 1,
              [&](int k) { return p.Objet_BonusCompetencesServices(o, k); });
        liste("BonusCompetencesObjets", p.NombreObjets, [&](int k) { return p.Objet_BonusCompetencesObjets(o, k); });
    }
}

// Bargaining runs in 16 bits on the price after the purchase factor.
void Prix_Objets(ControleRegles& c) {
    const ClsJeuParam& p = c.P;
    for (int o = 0; o < p.NombreObjets; ++o) {
        const double prix = p.Objet_PrixVente(o) * p.CoefficientAchat;
        if (std::abs(prix) >= LimitePrix)
            c.Signaler(FichierObjets, "Objet_", o, "PrixVente",
                       std::to_string(p.Objet_PrixVente(o)) + " × CoefficientAchat = " + Texte_Nombre(prix) +
                           " : le calcul des prix sur 16 bits exige moins de 32768");
    }
}

}  // namespace

void Controler_Objets(ControleRegles& c) {
    Services_Fixes(c);
    Prix_Services(c);
    Effet_Nu(c);
    Categories(c);
    Effets_Objets(c);
    Objets_Utilisables(c);
    Prix_Objets(c);
}

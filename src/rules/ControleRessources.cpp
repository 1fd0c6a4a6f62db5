// Checks of the resources and deposits: the fixed roles that the AI relies on, how each
// resource can be had, skill names, prices.
#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <string_view>

#include "rules/ClsJeuParam.h"
#include "rules/ControleRegles.h"
#include "rules/Conversions.h"

namespace {

// Resources 0 to 7 come from deposits 0 to 7, so that a deposit number read as a resource
// number, or the reverse, gives the same answer.
constexpr int GisementsFixes = 8;
// The AI sends villagers to harvest this one too.
constexpr int RessourceRecolteeFixe = 12;

int Epoque_De(const ClsJeuParam& p, int r) { return std::max(0, static_cast<int>(p.Ressources_Epoque(r))); }

std::string Nom_Ressource(const ClsJeuParam& p, int r) {
    return "« " + p.Ressources_Nom(r) + " » (ressource " + std::to_string(r + 1) + ")";
}

// "only from epoch n on", or "at no epoch", after a verb in the negative.
std::string Seulement_Epoque(int e) {
    return e == JamaisObtenue ? "à aucune époque" : "qu'à partir de l'époque " + std::to_string(e + 1);
}

void Nombre_Ressources(ControleRegles& c) {
    if (c.P.NombreRessources >= 1 && c.P.NombreRessources <= RessourceRecolteeFixe)
        c.Signaler(FichierRessources, "Ressources", "NombreRessources",
                   "vaut " + std::to_string(c.P.NombreRessources) +
                       " : il en faut au moins 13, les ressources 1, 2, 3 et 13 ont un rôle fixe");
}

// 0 is eaten for health, 1 for energy, 2 is the building material that is harvested.
void Roles_Fixes(ControleRegles& c) {
    const ClsJeuParam& p = c.P;
    const auto ressource = [&](int r, const char* cle, const std::string& quoi) {
        c.Signaler(FichierRessources, "Ressource_", r, cle, quoi);
    };
    if (p.NombreRessources > 0) {
        if (!p.Ressources_Mangeable(0)) ressource(0, "Mangeable", "la ressource 1 se mange : elle rend la vie");
        if (p.Ressources_GainVie(0) <= 0) ressource(0, "GainVie", "doit dépasser 0 : la ressource 1 rend la vie");
    }
    if (p.NombreRessources > 1) {
        if (!p.Ressources_Mangeable(1)) ressource(1, "Mangeable", "la ressource 2 se mange : elle rend l'énergie");
        if (p.Ressources_GainEnergie(1) <= 0)
            ressource(1, "GainEnergie", "doit dépasser 0 : la ressource 2 rend l'énergie");
    }
    if (p.NombreRessources > 2 && !p.Ressources_NecessairePourConstruire(2))
        ressource(2, "NecessairePourConstruire", "la ressource 3 est le matériau de construction qu'on récolte");
    if (p.NombreRessources > RessourceRecolteeFixe && !p.Ressources_Recoltable(RessourceRecolteeFixe))
        ressource(RessourceRecolteeFixe, "Nom", "aucun gisement ne la donne : la ressource 13 doit se récolter");
}

// Deposit t gives resource t for t below 8, and no other deposit gives those resources.
void Gisements(ControleRegles& c) {
    const ClsJeuParam& p = c.P;
    if (p.NombreTerrainRessource < GisementsFixes)
        c.Signaler(FichierRessources, "Terrain_Ressources", "NombreTerrainRessource",
                   "vaut " + std::to_string(p.NombreTerrainRessource) +
                       " : il en faut au moins 8, le gisement t donnant la ressource t pour t de 1 à 8");
    for (int t = 0; t < p.NombreTerrainRessource; ++t) {
        const int r = p.TerrainRessources_TypeRessource(t);
        if (t < GisementsFixes && r != t)
            c.Signaler(FichierRessources, "TerrainRessource_", t, "TypeRessource",
                       "donne la ressource " + std::to_string(r + 1) + " : le gisement " + std::to_string(t + 1) +
                           " doit donner la ressource " + std::to_string(t + 1));
        if (t >= GisementsFixes && Dans_Table(r, GisementsFixes))
            c.Signaler(FichierRessources, "TerrainRessource_", t, "TypeRessource",
                       "donne la ressource " + std::to_string(r + 1) + ", qui a déjà son gisement " +
                           std::to_string(r + 1) + " : un seul gisement par ressource de 1 à 8");
    }
}

// While a house makes a resource, the worker's action text is the resource's skill name;
// the action is read back from that text, so it must not be one of the action texts.
void Noms_Competences(ControleRegles& c) {
    static constexpr std::array<std::string_view, 18> TextesActions = {
        "En attente",         "Se déplacer",   "Récolter ressources", "Aller à",
        "Construire",         "Aller construire", "En repos",       "Rentrer à la maison",
        "Au travail",         "Entrer dans",   "Retourner château",   "Aller château",
        "Attaquer",           "Détruire maison", "Détruire château", "Préparer resurrection",
        "Fabriquer",          "Préparer Service",
    };
    for (int r = 0; r < c.P.NombreRessources; ++r) {
        const std::string& nom = c.P.Ressources_NomCompetence(r);
        if (std::find(TextesActions.begin(), TextesActions.end(), nom) != TextesActions.end())
            c.Signaler(FichierRessources, "Ressource_", r, "NomCompetence",
                       "« " + nom + " » est un texte d'action : le travail s'y lirait comme cette action");
    }
}

// A resource that no deposit gives is made by some building type from a raw material,
// and can be had from its own epoch on. Resources that must be harvested are checked with
// the deposits.
void Ressources_Fabriquees(ControleRegles& c, const std::vector<int>& obtention) {
    const ClsJeuParam& p = c.P;
    for (int r = GisementsFixes; r < p.NombreRessources; ++r) {
        if (p.Ressources_Recoltable(r) || r == RessourceRecolteeFixe) continue;
        const int m = p.Ressources_TypeMatierePremiere(r);
        bool fabriquee = false;
        for (int b = 0; b < p.NombreTypeBatiments; ++b) fabriquee |= p.Batiment_RessourceFabrique(b) == r;
        const int epoque = Epoque_De(p, r);
        if (m < 0)
            c.Signaler(FichierRessources, "Ressource_", r, "TypeMatierePremiere",
                       "aucun gisement ne la donne, elle doit donc se fabriquer à partir d'une matière première");
        else if (!fabriquee)
            c.Signaler(FichierRessources, "Ressource_", r, "Nom",
                       "aucun gisement ne la donne et aucun type de bâtiment ne la fabrique (RessourceFabrique)");
        else if (!Dans_Table(m, p.NombreRessources))
            ;  // already reported as outside its table
        else if (obtention[m] > epoque)
            c.Signaler(FichierRessources, "Ressource_", r, "TypeMatierePremiere",
                       "sa matière première " + Nom_Ressource(p, m) + " ne s'obtient " +
                           Seulement_Epoque(obtention[m]) + ", après l'époque de cette ressource (" +
                           std::to_string(epoque + 1) + ")");
        else if (obtention[r] > epoque)
            c.Signaler(FichierRessources, "Ressource_", r, "Epoque",
                       "vaut " + std::to_string(epoque + 1) + ", mais on ne la fabrique " +
                           Seulement_Epoque(obtention[r]));
    }
}

// Buying runs in 16 bits: a unit price after the purchase factor, times the largest load
// carried, stays below 32768.
void Prix_Ressources(ControleRegles& c) {
    const ClsJeuParam& p = c.P;
    const double facteur = p.CoefficientAchat * p.PersosMaxRessources;
    for (int r = 0; r < p.NombreRessources; ++r) {
        const double total = p.Ressources_PrixVente(r) * facteur;
        if (std::abs(total) >= 32768)
            c.Signaler(FichierRessources, "Ressource_", r, "PrixVente",
                       Texte_Nombre(p.Ressources_PrixVente(r)) + " × CoefficientAchat × PersosMaxRessources = " +
                           Texte_Nombre(total) + " : le calcul des prix sur 16 bits exige moins de 32768");
    }
}

}  // namespace

std::vector<int> Epoques_Obtention(const ClsJeuParam& p) {
    const int n = p.NombreRessources;
    std::vector<int> obtention(std::max(n, 0), JamaisObtenue);
    for (int r = 0; r < n; ++r)
        if (p.Ressources_Recoltable(r)) obtention[r] = Epoque_De(p, r);
    // Each pass may make a resource available earlier; epochs only go down, so it ends.
    for (bool change = true; change;) {
        change = false;
        for (int b = 0; b < p.NombreTypeBatiments; ++b) {
            const int r = p.Batiment_RessourceFabrique(b);
            if (!Dans_Table(r, n)) continue;
            int quand = std::max({Epoque_De(p, r), p.Batiment_NoEpoque(b) - 1, 0});
            const int m = p.Ressources_TypeMatierePremiere(r);
            if (m >= 0) {
                if (!Dans_Table(m, n) || obtention[m] == JamaisObtenue) continue;
                quand = std::max(quand, obtention[m]);
            }
            if (quand < obtention[r]) {
                obtention[r] = quand;
                change = true;
            }
        }
    }
    return obtention;
}

void Controler_Ressources(ControleRegles& c) {
    Nombre_Ressources(c);
    Roles_Fixes(c);
    Gisements(c);
    Noms_Competences(c);
    Ressources_Fabriquees(c, Epoques_Obtention(c.P));
    Prix_Ressources(c);
}

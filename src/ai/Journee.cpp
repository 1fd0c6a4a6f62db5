// The next errand of an idle villager: the business of a stay that has not been dealt with
// yet (a visit, its own house, the castle), then home for the takings, the watch of a
// soldier, back to work, or off to the castle market.
#include "ai/Journee.h"

#include <cstddef>

#include "ai/JourneeAcces.h"
#include "ai/OrdresIA.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"

namespace {

// How much of its product (or of resource 0) a character must carry to have goods to sell.
// At 0 every idle craftsman would walk to the castle for nothing; one unit is the least that
// the market buys.
constexpr double SeuilMarchandises = 1;

// In someone else's house: buy its resource (all it can when it is the raw material of the
// visitor's house, a few units otherwise), one object of a workshop that the visitor has
// none of, or its service.
void Visiter(int32_t i) {
    ClsJeuPerso& p = Le_Perso(i);
    ClsJeuBatiment& g = Maisons[static_cast<std::size_t>(p.MaisonCible)];
    if (g.Magasin) {
        const bool matiere =
            Param.Batiment_RessourceFabrique(g.Type) == Param.Batiment_TypeMatierePremiere(Sa_Maison(i).Type);
        g.Acheter(matiere ? 0 : Int(static_cast<double>(Rnd()) * 10), p, Param, matiere);
    } else if (g.Fabrique) {
        const auto k = static_cast<int>(Int(static_cast<double>(Rnd()) * Param.Batiment_NombreObjetsFabriques(g.Type)));
        const int16_t o = g.Objet_De_Ligne(k, Param);
        if (o >= 0 && g.Stock_Objets(k) > 0 && !p.Objet_Posseder(o)) p.Objet_Acheter_Maison(k, g, Param);
    } else if (g.Service_Utilisable(p, Param)) {
        g.Service_Utiliser(p, Param, 0);
    }
}

// A soldier with no healing pending gets three draws at something to do; one that found
// nothing goes home to fetch its bounties.
void Veiller(int32_t i) {
    const ClsJeuPerso& p = Le_Perso(i);
    if (p.Definir_Vie() != p.Vie.Valeur) return;
    for (int fois = 0; fois < 3; ++fois) Occuper_Inactif(i);
    if (p.Inactif() && Sa_Maison(i).Argent > 0) Rentrer_Chez_Soi(i);
}

// A house that works (a resource, a service, objects) and has room calls its owner back
// while the owner carries less than one unit of its product.
bool Rappele_Au_Travail(int32_t i, int32_t r) {
    const ClsJeuBatiment& h = Sa_Maison(i);
    return (r >= 0 || h.Service > 0 || h.Fabrique) && !(h.Stock > h.MaxStock) && Le_Perso(i).Definir_Ressources(r) < 1;
}

// Goods to sell, a full shop, or, with the castle standing, poverty or a raw material that
// the market has and the character lacks.
bool Affaires_Au_Chateau(int32_t i, int32_t r) {
    const ClsJeuPerso& p = Le_Perso(i);
    const ClsJeuBatiment& h = Sa_Maison(i);
    if (p.Definir_Ressources(r > 1 ? r : 0) >= SeuilMarchandises) return true;
    if (h.Magasin && h.Stock > h.MaxStock - 1) return true;
    if (!Son_Chateau(i).Visible()) return false;
    if (Perso_Pauvre(i)) return true;
    const int16_t m = Param.Batiment_TypeMatierePremiere(h.Type);
    return m >= 0 && p.Definir_Ressources(m) <= 1 && Son_Fief(i).Definir_Ressources(m) >= 1;
}

}  // namespace

void Gerer_Journee(int32_t i) {
    const ClsJeuPerso& p = Le_Perso(i);
    if (!p.Inactif()) return;
    const bool aTraiter = !Action_Faite(i);
    if (aTraiter && p.DansMaison) {
        Visiter(i);
        Marquer_Action_Faite(i);
    } else if (aTraiter && p.DansSaMaison) {
        Travailler_Chez_Soi(i);
    } else if (aTraiter && (p.DansChateau || p.DansSonChateau)) {
        Commercer_Au_Chateau(i);
    } else if (Perso_Pauvre(i) && Sa_Maison(i).Argent >= 1) {
        Rentrer_Chez_Soi(i);   // takings wait in the house until somebody poor fetches them
    } else if (Sa_Maison(i).Service == 2) {
        Veiller(i);
    } else if (const int32_t r = Param.Batiment_RessourceFabrique(Sa_Maison(i).Type); Rappele_Au_Travail(i, r)) {
        Rentrer_Chez_Soi(i);
    } else if (Affaires_Au_Chateau(i, r)) {
        Aller_Au_Chateau(i);
    } else {
        Occuper_Inactif(i);
    }
}

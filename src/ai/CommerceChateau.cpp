// A villager at its castle: it sells what its house makes, buys what its house and its next
// building need and nobody harvests, and gives the castle money towards its repair.
#include <cstddef>

#include "ai/Journee.h"
#include "ai/JourneeAcces.h"
#include "ai/OrdresIA.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"

namespace {

bool Fait_Par(int16_t type, int16_t objet) {
    for (int k = 0; k < Param.Batiment_NombreObjetsFabriques(type); ++k)
        if (Param.Batiment_ObjetFabrique(type, k) == objet) return true;
    return false;
}

// Some object that the type makes costs resource r.
bool Ingredient(int16_t type, int r) {
    for (int k = 0; k < Param.Batiment_NombreObjetsFabriques(type); ++k)
        if (Param.Objet_PrixRessources(Param.Batiment_ObjetFabrique(type, k), r) >= 1) return true;
    return false;
}

void Acheter_Tout(int32_t i, int r) { Son_Fief(i).Acheter(r, 0, Le_Perso(i), Param, true); }

// A craftsman sells every object of its trade that it carries; anyone else all of its product.
void Vendre_Production(int32_t i) {
    ClsJeuPerso& p = Le_Perso(i);
    const ClsJeuBatiment& h = Sa_Maison(i);
    if (h.Fabrique) {
        for (std::size_t slot = 0; slot < p.ObjetsInventaire.size(); ++slot)
            if (p.ObjetsInventaire[slot].Type >= 0 && Fait_Par(h.Type, p.ObjetsInventaire[slot].Type))
                p.Objet_Vendre_Chateau(static_cast<int>(slot), Param);
        return;
    }
    const int32_t r = Param.Batiment_RessourceFabrique(h.Type);
    if (r >= 0) Son_Fief(i).Vendre(r, 0, p, Param, true);
}

}  // namespace

void Commercer_Au_Chateau(int32_t i) {
    const ClsJeuBatiment& h = Sa_Maison(i);
    if (Perso_Pauvre(i) || h.Stock >= h.MaxStock - 1 || !h.Magasin) Vendre_Production(i);
    Acheter_Matieres(i);
    if (!Perso_Pauvre(i)) Acheter_Pour_Batiment(i);
    Contribuer_Chateau(i);
    Marquer_Action_Faite(i);
}

void Acheter_Matieres(int32_t i) {
    const int16_t type = Sa_Maison(i).Type;
    if (!Sa_Maison(i).Visible()) return;
    if (Param.Batiment_Fabrique(type)) {
        for (int r = 0; r < Param.NombreRessources; ++r)
            if (!Param.Ressources_Recoltable(r) && Ingredient(type, r)) Acheter_Tout(i, r);
        return;
    }
    const int16_t m = Param.Batiment_TypeMatierePremiere(type);
    if (m >= 0 && !Param.Ressources_Recoltable(m)) Acheter_Tout(i, m);
}

// A few units (a fractional quantity, which the market rounds) of each resource of the
// wished building's price that is short and that nobody harvests.
void Acheter_Pour_Batiment(int32_t i) {
    const int16_t voulu = Son_Voulu(i);
    if (voulu < 0) return;
    ClsJeuPerso& p = Le_Perso(i);
    const int32_t produit = Param.Batiment_RessourceFabrique(Sa_Maison(i).Type);
    for (int r = 0; r < Param.NombreRessources; ++r)
        if (r != produit && !Param.Ressources_Recoltable(r) && p.Definir_Ressources(r) < Param.Batiment_Prix(voulu, r))
            Son_Fief(i).Acheter(r, static_cast<double>(Rnd()) * 10, p, Param, false);
}

// The share of its money that the castle has lost of its life, plus one.
void Contribuer_Chateau(int32_t i) {
    ClsJeuPerso& p = Le_Perso(i);
    const ClsJeuBatiment& c = Son_Chateau(i);
    if (c.Definir_Vie() >= c.MaxVie) return;
    Son_Fief(i).Restaurer_Chateau(Int(p.Argent - c.Vie * p.Argent / c.MaxVie) + 1, p, false);
}

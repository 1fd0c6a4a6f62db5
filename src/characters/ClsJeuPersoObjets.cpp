// Objects carried and worn. Categories: 0 one hand (slot 0, else 1), 1 both hands (slots 0
// and 1), 6 and 7 a pair (slot 6, else 7), any other the slot of that number.
#include <vector>

#include "characters/ClsJeuPerso.h"
#include "rules/ClsJeuParam.h"
#include "world/Globales.h"

namespace {

bool Occupe(const std::vector<ClsJeuObjet>& rangee, std::size_t slot) {
    return slot < rangee.size() && rangee[slot].Actif();
}

bool Deux_Mains(const std::vector<ClsJeuObjet>& rangee, const ClsJeuParam& param) {
    return !rangee.empty() && rangee[0].Type >= 0 && param.Objet_Categorie(rangee[0].Type) == 1;
}

// The equipment slot an object of this category goes to, once room is made.
std::size_t Slot_Cible(const std::vector<ClsJeuObjet>& rangee, int16_t categorie) {
    switch (categorie) {
        case 0: return Occupe(rangee, 0) ? 1 : 0;
        case 1: return 0;
        case 6:
        case 7: return Occupe(rangee, 6) ? 7 : 6;
        default: return static_cast<std::size_t>(categorie);
    }
}

}  // namespace

bool ClsJeuPerso::Inventaire_Plein() const {
    for (const ClsJeuObjet& o : ObjetsInventaire)
        if (!o.Actif()) return false;
    return true;
}

void ClsJeuPerso::Objet_Ajouter_Inventaire(int16_t type, const ClsJeuParam& param, bool equiper) {
    for (std::size_t slot = 0; slot < ObjetsInventaire.size(); ++slot) {
        if (ObjetsInventaire[slot].Actif()) continue;
        ObjetsInventaire[slot].Charger(type);
        if (equiper && !param.Objet_Utilisable(type) && Objet_Emplacement_Libre(type, param))
            Objet_Porter(static_cast<int>(slot), param);
        return;
    }
}

bool ClsJeuPerso::Objet_Emplacement_Libre(int16_t type, const ClsJeuParam& param) const {
    const auto& e = ObjetsEquipes;
    switch (const int16_t categorie = param.Objet_Categorie(type)) {
        case 0: return !(Deux_Mains(e, param) || (Occupe(e, 0) && Occupe(e, 1)));
        case 1: return !Occupe(e, 0) && !Occupe(e, 1);
        case 6:
        case 7: return !(Occupe(e, 6) && Occupe(e, 7));
        default: return !Occupe(e, static_cast<std::size_t>(categorie));
    }
}

void ClsJeuPerso::Objet_Porter(int slot, const ClsJeuParam& param) {
    ClsJeuObjet& source = ObjetsInventaire[static_cast<std::size_t>(slot)];
    const int16_t type = source.Type;
    const int16_t categorie = param.Objet_Categorie(type);

    // Make room, remembering what comes off, slot 0's first.
    int16_t retires[2] = {-1, -1};
    int n = 0;
    auto retirer = [&](std::size_t s) {
        if (!Occupe(ObjetsEquipes, s)) return;
        retires[n++] = ObjetsEquipes[s].Type;
        ObjetsEquipes[s].Decharger();
    };
    if (!Objet_Emplacement_Libre(type, param)) {
        if (categorie == 1) {
            retirer(0);
            retirer(1);
        } else if (categorie == 6 || categorie == 7) {
            retirer(7);
        } else {
            retirer(static_cast<std::size_t>(categorie));
        }
    }
    ObjetsEquipes[Slot_Cible(ObjetsEquipes, categorie)].Charger(type);
    source.Decharger();
    for (int i = 0; i < n; ++i)
        if (retires[i] >= 0) Objet_Ajouter_Inventaire(retires[i], param, false);
    if (Deux_Mains(ObjetsEquipes, param) && ObjetsEquipes.size() > 1) ObjetsEquipes[1].Decharger();
    Actualiser_Bonus(param);
    if (Numero >= 0 && static_cast<std::size_t>(Numero) < Maisons.size())
        Calculer_Apparence(Maisons[static_cast<std::size_t>(Numero)], param);
}

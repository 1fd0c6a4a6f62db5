// Objects between a character and a house or the castle: taken from a workshop's stock,
// bought at the bargained price, given to a house, sold to the castle.
#include <algorithm>

#include "characters/ClsJeuPerso.h"
#include "rules/ClsJeuParam.h"
#include "world/ClsJeuBatiment.h"

namespace {

// Lines of a house's object list that both the rules and its stock hold.
int Lignes(const ClsJeuBatiment& maison, const ClsJeuParam& param) {
    return std::min<int>(param.Batiment_NombreObjetsFabriques(maison.Type), maison.Definir_Nombre_Stock_Objet() + 1);
}

bool Ligne_Valide(const ClsJeuBatiment& maison, int n, const ClsJeuParam& param) {
    return n >= 0 && n < Lignes(maison, param);
}

bool Slot_Tenu(const std::vector<ClsJeuObjet>& rangee, int slot) {
    return slot >= 0 && static_cast<std::size_t>(slot) < rangee.size() && rangee[static_cast<std::size_t>(slot)].Type >= 0;
}

}  // namespace

void ClsJeuPerso::Objet_Ramasser_Maison(int n, ClsJeuBatiment& maison, const ClsJeuParam& param) {
    if (!Ligne_Valide(maison, n, param) || Inventaire_Plein() || maison.Stock_Objets(n) < 1) return;
    Objet_Ajouter_Inventaire(param.Batiment_ObjetFabrique(maison.Type, n), param, true);
    maison.Stock_Objets(n, maison.Stock_Objets(n) - 1);
}

// The money goes before anything is looked at: into a full inventory, or from an empty
// shelf, the buyer pays and gets nothing.
void ClsJeuPerso::Objet_Acheter_Maison(int n, ClsJeuBatiment& maison, const ClsJeuParam& param) {
    if (!Ligne_Valide(maison, n, param)) return;
    const int16_t o = param.Batiment_ObjetFabrique(maison.Type, n);
    const double u = Prix_Marchandee(param.Objet_PrixVente(o) * param.CoefficientAchat, param);
    if (u > Argent) return;
    Definir_Argent(Argent - u);
    maison.Argent += u;
    Objet_Ramasser_Maison(n, maison, param);
    Gestion_Niveau_Comp_Speciale(3, u, param);
}

// A house with room takes an object of its own list; anything else is dropped, and nothing
// on the ground remembers it.
void ClsJeuPerso::Objet_Deposer_Maison(int slot, ClsJeuBatiment& maison, const ClsJeuParam& param) {
    if (!Slot_Tenu(ObjetsInventaire, slot)) return;
    ClsJeuObjet& objet = ObjetsInventaire[static_cast<std::size_t>(slot)];
    if (maison.MaxStock - 1 >= maison.Stock) {
        for (int n = 0; n < Lignes(maison, param); ++n) {
            if (param.Batiment_ObjetFabrique(maison.Type, n) != objet.Type) continue;
            maison.Stock_Objets(n, maison.Stock_Objets(n) + 1);
            break;
        }
    }
    objet.Decharger();
}

void ClsJeuPerso::Objet_Vendre_Chateau(int slot, const ClsJeuParam& param) {
    if (!Slot_Tenu(ObjetsInventaire, slot)) return;
    ClsJeuObjet& objet = ObjetsInventaire[static_cast<std::size_t>(slot)];
    Definir_Argent(Argent + param.Objet_PrixVente(objet.Type));
    objet.Decharger();
}

// Objects between a character and a house or the castle: taken from a workshop's stock,
// bought at the bargained price, given to a house, sold to the castle.
#include "characters/ClsJeuPerso.h"
#include "rules/ClsJeuParam.h"
#include "world/ClsJeuBatiment.h"

void ClsJeuPerso::Objet_Ramasser_Maison(int n, ClsJeuBatiment& maison, const ClsJeuParam& param) {
    const int16_t o = maison.Objet_De_Ligne(n, param);
    if (o < 0 || Inventaire_Plein() || maison.Stock_Objets(n) < 1) return;
    Objet_Ajouter_Inventaire(o, param, true);
    maison.Stock_Objets(n, maison.Stock_Objets(n) - 1);
}

// The money goes before anything is looked at: into a full inventory, or from an empty
// shelf, the buyer pays and gets nothing.
void ClsJeuPerso::Objet_Acheter_Maison(int n, ClsJeuBatiment& maison, const ClsJeuParam& param) {
    const int16_t o = maison.Objet_De_Ligne(n, param);
    if (o < 0) return;
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
    ClsJeuObjet* objet = Objet_Tenu(ObjetsInventaire, slot);
    if (objet == nullptr) return;
    if (maison.MaxStock - 1 >= maison.Stock) {
        for (int n = 0; maison.Objet_De_Ligne(n, param) >= 0; ++n) {
            if (maison.Objet_De_Ligne(n, param) != objet->Type) continue;
            maison.Stock_Objets(n, maison.Stock_Objets(n) + 1);
            break;
        }
    }
    objet->Decharger();
}

void ClsJeuPerso::Objet_Vendre_Chateau(int slot, const ClsJeuParam& param) {
    ClsJeuObjet* objet = Objet_Tenu(ObjetsInventaire, slot);
    if (objet == nullptr) return;
    Definir_Argent(Argent + param.Objet_PrixVente(objet->Type));
    objet->Decharger();
}

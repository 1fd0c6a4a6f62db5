// A villager at home: it takes the takings, then a craftsman starts an object or, when it
// can make nothing, carries its goods to market; a shopkeeper stocks its shop.
#include <cstddef>

#include "ai/Journee.h"
#include "ai/JourneeAcces.h"
#include "ai/OrdresIA.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"

namespace {

bool Epoque_Atteinte(int16_t objet, int16_t epoque) {
    return objet >= 0 && Param.Objet_Epoque(objet) - 1 <= epoque;
}

bool Ligne_Atteinte(const ClsJeuBatiment& h, int16_t epoque) {
    for (int k = 0; h.Objet_De_Ligne(k, Param) >= 0; ++k)
        if (Epoque_Atteinte(h.Objet_De_Ligne(k, Param), epoque)) return true;
    return false;
}

// The line of the workshop to make: one of a reached epoch drawn at random, unless a line
// whose stock is empty and whose price the owner carries comes first; -1 when no line of
// the list belongs to a reached epoch. The draws are repeated until they land on a reached
// epoch, so they are made only when such a line exists: otherwise no draw at all.
int Ligne_A_Faire(int32_t i) {
    const ClsJeuBatiment& h = Sa_Maison(i);
    const int16_t epoque = Son_Fief(i).Epoque;
    if (!Ligne_Atteinte(h, epoque)) return -1;
    const int16_t lignes = Param.Batiment_NombreObjetsFabriques(h.Type);
    int k = 0;
    do {
        k = static_cast<int>(Int(static_cast<double>(Rnd()) * lignes));
    } while (!Epoque_Atteinte(h.Objet_De_Ligne(k, Param), epoque));
    for (int n = 0; h.Objet_De_Ligne(n, Param) >= 0; ++n)
        if (h.Stock_Objets(n) == 0 && Le_Perso(i).PeutConstruire_Objet(n, h, Param)) return n;
    return k;
}

// A craftsman starts an object and keeps the stay open, so that work goes on when it is
// done. With nothing to make, a poor one takes one of each object in stock, and off to
// market.
void Travailler_A_L_Atelier(int32_t i) {
    ClsJeuPerso& p = Le_Perso(i);
    ClsJeuBatiment& h = Sa_Maison(i);
    const int k = Ligne_A_Faire(i);
    if (k >= 0 && p.PeutConstruire_Objet(k, h, Param)) {
        p.Creer_Objet(k);
        return;
    }
    if (Perso_Pauvre(i))
        for (int n = 0; h.Objet_De_Ligne(n, Param) >= 0; ++n)
            if (h.Stock_Objets(n) >= 1) p.Objet_Ramasser_Maison(n, h, Param);
    Aller_Au_Chateau(i);
}

// A shopkeeper puts half of what it carries of its product on the shelves, unless it is
// poor and the shop still has some to sell.
void Garnir_La_Boutique(int32_t i) {
    ClsJeuPerso& p = Le_Perso(i);
    ClsJeuBatiment& h = Sa_Maison(i);
    if (h.Magasin && !(Perso_Pauvre(i) && h.Stock > 1))
        h.Transfert_Stock_Deposer(p.Definir_Ressources(Param.Batiment_RessourceFabrique(h.Type)) / 2, p, Param, false);
    Marquer_Action_Faite(i);
}

}  // namespace

void Travailler_Chez_Soi(int32_t i) {
    Sa_Maison(i).Transfert_Argent_Prendre(0, Le_Perso(i), true);
    if (Sa_Maison(i).Fabrique)
        Travailler_A_L_Atelier(i);
    else
        Garnir_La_Boutique(i);
}

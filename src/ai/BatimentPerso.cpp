// A villager's own building: a character without a finished house forms a wish, gathers its
// price and puts the house up; one with a finished house wishes for the next level and
// rebuilds elsewhere once it can pay, unless its fief already has its share of that type.
// Either way the thought goes on with the day.
#include <cstddef>

#include "ai/Journee.h"
#include "ai/JourneeAcces.h"
#include "ai/OrdresIA.h"
#include "ai/Recherches.h"
#include "ai/TablesIA.h"
#include "rules/ClsJeuParam.h"

namespace {

// More houses of the type in the fief than an even share among all the types.
bool Type_Trop_Courant(int16_t type, int32_t fief) {
    const double part = static_cast<double>(Compter_Maisons_Fief(fief)) / Param.NombreTypeBatiments;
    return Compter_Maisons_Type(type, fief) > part;
}

// New house of the wished type at (x, y), in place of what the slot held; the owner goes in.
void Batir(int32_t i, int32_t x, int32_t y) {
    Sa_Maison(i).Creer(x, y, Son_Voulu(i), Le_Perso(i), Param);
    Rentrer_Chez_Soi(i);
}

// A finished house: wish for the next level, then rebuild when the price is carried, the
// epoch reached and a place found; gather the price otherwise.
void Monter_De_Niveau(int32_t i) {
    const int32_t fief = Le_Perso(i).Fief;
    const int32_t niveau = Param.Batiment_Niveau(Sa_Maison(i).Type);
    if (Son_Voulu(i) == -1 && BatimentsParNiveau[static_cast<std::size_t>(niveau) + 1] >= 1 && !Perso_Pauvre(i))
        Son_Voulu(i) = Choisir_Batiment(i, fief, niveau + 1);
    const int16_t voulu = Son_Voulu(i);
    if (!Le_Perso(i).PeutConstruire_Maison(voulu, Param)) {
        Recolter_Pour_Batiment(i);
        return;
    }
    int32_t x = 0, y = 0;
    if (Param.Batiment_NoEpoque(voulu) - 1 > Son_Fief(i).Epoque || !Chercher_Emplacement(i, x, y, voulu)) return;
    if (!Type_Trop_Courant(voulu, fief)) Batir(i, x, y);
    Son_Voulu(i) = -1;
}

// No finished house: go on building the one that stands, else form a wish, gather its
// price (resource 2 first) and put the house up.
void Batir_Sa_Maison(int32_t i) {
    const int32_t fief = Le_Perso(i).Fief;
    if (Sa_Maison(i).Visible()) {
        Rentrer_Chez_Soi(i);
        return;
    }
    if (Son_Voulu(i) == -1) {
        Son_Voulu(i) = Choisir_Batiment(i, fief, -1);
        return;
    }
    if (!Le_Perso(i).PeutConstruire_Maison(Son_Voulu(i), Param)) {
        Aller_Recolter(i, 2);
        Son_Voulu(i) = Choisir_Batiment(i, fief, -1);
        return;
    }
    int32_t x = 0, y = 0;
    if (Chercher_Emplacement(i, x, y, Son_Voulu(i))) Batir(i, x, y);
}

}  // namespace

void Gerer_Batiment_Perso(int32_t i) {
    if (Sa_Maison(i).Termine)
        Monter_De_Niveau(i);
    else
        Batir_Sa_Maison(i);
    Gerer_Journee(i);
}

// Whims: about one thought in 67 a villager drops what it does for something else — a walk,
// a rest, home, the castle, a new house, a fight, or stocking up — so that even a peaceful
// village now and then rebuilds or picks a quarrel.
#include <cstddef>

#include "ai/ModIA.h"
#include "ai/OrdresIA.h"
#include "ai/Recherches.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"
#include "world/Globales.h"

namespace {

ClsJeuPerso& Perso(int32_t i) { return Persos[static_cast<std::size_t>(i)]; }

// A house of a type drawn at random, put up near the castle if the character can pay for it.
void Rebatir(int32_t i) {
    const auto type = Arrondir_En<int16_t>(static_cast<double>(Rnd()) * (Param.NombreTypeBatiments - 1));
    int32_t x = 0, y = 0;
    if (!Perso(i).PeutConstruire_Maison(type, Param) || !Chercher_Emplacement(i, x, y, type)) return;
    Maisons[static_cast<std::size_t>(i)].Creer(x, y, type, Perso(i), Param);
    Rentrer_Chez_Soi(i);
}

// The first of these resources that the bag can take more of: the rule files put the
// common goods there.
void Faire_Provisions(int32_t i) {
    const ClsJeuPerso& p = Perso(i);
    for (int r : {2, 12, 0, 1}) {
        if (r >= Param.NombreRessources || p.Definir_Ressources(r) >= p.Definir_MaxRessources(r)) continue;
        Aller_Recolter(i, r);
        return;
    }
}

}  // namespace

void Humeur_Aleatoire(int32_t i) {
    if (!(Rnd() > 0.985)) return;
    switch (static_cast<int>(Int(static_cast<double>(Rnd()) * 25))) {
        case 0: Errer(i); break;
        case 1:
        case 2: Perso(i).Arreter(); break;
        case 3: Rentrer_Chez_Soi(i); break;
        case 4: Aller_Au_Chateau(i); break;
        case 5: Rebatir(i); break;
        case 6: Attaquer_Trouve(i, &Chercher_Ennemi, &ClsJeuPerso::Attaquer_Perso); break;
        case 7: Attaquer_Trouve(i, &Chercher_Maison_Ennemie, &ClsJeuPerso::Attaquer_Maison); break;
        default: Faire_Provisions(i); break;
    }
}

// What a villager wants to build. A character without a house aims for a type it can already
// pay for, from a level drawn at random down to the one above its old house; one whose trade
// is shared in its fief fills the first lower trade nobody there has; otherwise a type of the
// level is drawn at random.
#include <cstddef>

#include "ai/Journee.h"
#include "ai/JourneeAcces.h"
#include "ai/Recherches.h"
#include "ai/TablesIA.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"

namespace {

// The k-th type of the level, in table order; -1 when the level has fewer.
int16_t Type_De_Niveau(int32_t niveau, int32_t k) {
    for (int16_t t = 0; t < Param.NombreTypeBatiments; ++t)
        if (Param.Batiment_Niveau(t) == niveau && k-- == 0) return t;
    return -1;
}

// A type of the level drawn at random; -1 when the level has none (the draw is made anyway).
int16_t Type_Au_Hasard(int32_t niveau) {
    const bool connu = niveau >= 0 && static_cast<std::size_t>(niveau) < BatimentsParNiveau.size();
    const int32_t m = connu ? BatimentsParNiveau[static_cast<std::size_t>(niveau)] : 0;
    return Type_De_Niveau(niveau, static_cast<int32_t>(Int(static_cast<double>(Rnd()) * m)));
}

// For a character without a house: the first type it can pay for, trying from a level drawn
// at random down to the level above its old house's; -1 if none.
int16_t Type_Payable(int32_t i, int32_t fief) {
    const int32_t bas = Param.Batiment_Niveau(Sa_Maison(i).Type) + 1;
    const auto haut = Arrondir_En<int32_t>(Int(static_cast<double>(Rnd()) * NiveauBatimentMax) + 1);
    int16_t c = -1;
    for (int32_t niveau = haut; niveau >= bas && c == -1; --niveau) {
        c = Choisir_Batiment(i, fief, niveau);
        if (!Le_Perso(i).PeutConstruire_Maison(c, Param)) c = -1;
    }
    return c;
}

// When others in the fief share the character's trade: the first type, in table order, of a
// lower level than its house's that nobody in the fief has; -1 otherwise.
int16_t Metier_Manquant(int32_t i, int32_t fief) {
    const int16_t type = Sa_Maison(i).Type;
    if (Compter_Maisons_Type(type, fief) <= 1) return -1;
    const int32_t niveau = Param.Batiment_Niveau(type);
    for (int16_t t = 0; t < Param.NombreTypeBatiments; ++t)
        if (Param.Batiment_Niveau(t) < niveau && Compter_Maisons_Type(t, fief) == 0) return t;
    return -1;
}

// A type of an epoch the fief has not reached, that a houseless character could pay for now.
bool Trop_Tot(int32_t i, int32_t fief, int16_t type) {
    return Fiefs[static_cast<std::size_t>(fief)].Epoque < Param.Batiment_NoEpoque(type) - 1 &&
           !Sa_Maison(i).Visible() && Le_Perso(i).PeutConstruire_Maison(type, Param);
}

}  // namespace

int16_t Choisir_Batiment(int32_t i, int32_t fief, int32_t niveau) {
    int16_t c = -1;
    if (niveau == -1) {
        c = Type_Payable(i, fief);
        niveau = 0;
    }
    if (const int16_t manquant = Metier_Manquant(i, fief); manquant >= 0) c = manquant;
    if (c == -1) return Type_Au_Hasard(niveau);
    // A houseless character does not wait for a later epoch: it takes a type of level 0.
    // Choosing again at level 0 comes down to that draw when no trade is missing; when the
    // missing trade is itself the late type, a second choice would find it again, forever.
    if (Trop_Tot(i, fief, c)) return Type_Au_Hasard(0);
    return c;
}

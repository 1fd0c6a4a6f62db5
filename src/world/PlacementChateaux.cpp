#include <algorithm>

#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"
#include "world/Globales.h"
#include "world/ModGenererMonde.h"
#include "world/RepartitionPoints.h"

AbandonsGeneration Abandons;

namespace {

// A cell's corner, moved by up to half a cell either way.
int32_t Position_Dans_Case(int32_t rang) {
    const double decalage = Int(TailleCase / 2.0 - static_cast<double>(Rnd()) * TailleCase);
    return Arrondir_En<int32_t>(decalage + static_cast<double>(TailleCase) * rang);
}

}  // namespace

int32_t Placer_Chateaux() {
    const auto n = static_cast<int32_t>(std::min(Fiefs.size(), Chateaux.size()));
    const Repartition sites = Repartir_Points(1, Monde.Hauteur - 9, 1, Monde.Largeur - 9, n);
    const CartePoints& carte = sites.Carte;
    int32_t k = 0;
    for (int32_t a = carte.AMin; a <= carte.AMax && k < n; ++a)
        for (int32_t b = carte.BMin; b <= carte.BMax && k < n; ++b) {
            if (!carte.Occupee(a, b)) continue;
            ClsJeuBatiment& c = Chateaux[static_cast<std::size_t>(k)];
            c.PositionX = Position_Dans_Case(b);
            c.PositionY = Position_Dans_Case(a);
            ++k;
        }
    for (int32_t f = 0; f < k; ++f)
        Initialiser_Chateau(Chateaux[static_cast<std::size_t>(f)], Fiefs[static_cast<std::size_t>(f)], Param);
    return n - k;
}

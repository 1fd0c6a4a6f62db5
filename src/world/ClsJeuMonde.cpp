#include "world/ClsJeuMonde.h"

#include <cmath>

#include "rules/Conversions.h"

void ClsJeuMonde::Type_Terrain(int32_t i, int32_t v) {
    const auto k = static_cast<std::size_t>(i);
    if (k >= Cases.size()) Cases.resize(k + 1, TerrainLibre);
    Cases[k] = v;
}

void ClsJeuMonde::Dimensionner(int32_t borne) {
    Cases.assign(static_cast<std::size_t>(borne < 0 ? 0 : borne) + 1, TerrainLibre);
}

int32_t ClsJeuMonde::Longueur_Diagonale() const {
    const double largeur = static_cast<double>(Largeur) * TailleCase;
    const double hauteur = static_cast<double>(Hauteur) * TailleCase;
    return Arrondir_En<int32_t>(std::sqrt(hauteur * hauteur + largeur * largeur));
}

int32_t ClsJeuMonde::Lire_Case(int32_t i) const {
    if (i < 0 || i >= NombreCases()) return TerrainAFaconner;
    return Cases[static_cast<std::size_t>(i)];
}

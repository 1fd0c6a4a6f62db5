#include "ai/GrilleIndices.h"

// The square of a coordinate, rounding down for negative ones, kept within 0 … n - 1.
int32_t GrilleIndices::Carre(int64_t v, int32_t n) const {
    const int64_t c = (v >= 0 ? v : v - (TailleCarre - 1)) / TailleCarre;
    return static_cast<int32_t>(std::clamp<int64_t>(c, 0, n - 1));
}

GrilleIndices::Zone GrilleIndices::Zone_De(int64_t x0, int64_t x1, int64_t y0, int64_t y1) const {
    if (x1 < x0 || y1 < y0) return {};
    return {Carre(x0, colonnes_), Carre(x1, colonnes_), Carre(y0, lignes_), Carre(y1, lignes_)};
}

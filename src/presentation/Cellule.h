// What every family does to draw: choose a cell of a sheet, then blit it.
#pragma once

#include <cstdint>

#include "platform/ClsAffSprite.h"

// The cell r of the sheet at (x, y); the selection keeps r as the draw has cut it.
inline void Afficher_Cellule(ClsAffSprite& s, const Rectangle& r, int32_t x, int32_t y, Surface& surface, bool transparent,
                             bool semiTransparent = false) {
    s.Selection(r.Top, r.Bottom, r.Left, r.Right);
    s.Afficher(x, y, surface, transparent, semiTransparent);
}

// Cell `indice` of a row of cells of largeur x hauteur starting at the top of the sheet.
constexpr Rectangle Cellule_En_Ligne(int32_t indice, int32_t largeur, int32_t hauteur, int32_t ligne = 0) {
    return {indice * largeur, ligne * hauteur, (indice + 1) * largeur, (ligne + 1) * hauteur};
}

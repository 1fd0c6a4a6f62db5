#include "presentation/ClsAffTerrain.h"

#include <cmath>
#include <string>

#include "presentation/Cellule.h"
#include "world/Globales.h"

void ClsAffTerrain::Charger(std::string_view nom) {
    if (!Sprite.Charger_Si_Present("terrains/" + std::string(nom))) Terrain_Introuvable(nom);
}

void ClsAffTerrain::Afficher(int32_t x, int32_t y, int32_t tuile, Surface& surface) {
    Afficher_Cellule(Sprite, Cellule_En_Ligne(tuile, LargeurCase, HauteurCase), x, y, surface, true);
}

ClsAffTerrain::Blit ClsAffTerrain::Decouper(int32_t sx, int32_t sy, int32_t tuile, int32_t largeur, int32_t hauteur) {
    Rectangle r{16 * tuile, 0, 16 * (tuile + 1), 16};
    if (sy + 16 > hauteur) r.Bottom -= sy + 16 - hauteur;
    if (sy < 0) {
        r.Top -= sy;
        sy = 0;
    }
    if (sx + 16 > largeur) r.Right -= sx + 16 - largeur;
    if (sx < 0) {
        r.Left -= sx;
        sx = 0;
    }
    return {r, sx, sy};
}

// Columns and rows are counted with both ends included, so that a window that does not start
// on a cell boundary is covered to its far edges. As in the map, a column past the right edge
// reads the start of the next row.
void ClsAffTerrain::AfficheFast(int32_t x, int32_t y, int32_t largeur, int32_t hauteur, Surface& surface) {
    const auto nc = static_cast<int32_t>(std::nearbyint(largeur / 16.0));
    const auto nr = static_cast<int32_t>(std::nearbyint(hauteur / 16.0));
    const auto colonneX = static_cast<int32_t>(std::floor(x / 16.0)), ligneY = static_cast<int32_t>(std::floor(y / 16.0));
    const int32_t cases = Monde.NombreCases();
    for (int32_t c = 0; c <= nc; ++c) {
        int32_t i = ligneY * Monde.Largeur + c + colonneX;
        const int32_t sx = 16 * c - x % 16;
        for (int32_t r = 0; r <= nr; ++r, i += Monde.Largeur) {
            if (i < 0 || i >= cases) continue;
            const Blit b = Decouper(sx, 16 * r - y % 16, Monde.Type_Terrain(i), largeur, hauteur);
            Sprite.Afficher_Rapide(b.x, b.y, b.source, surface, true);
        }
    }
}

// The ground: one row of 16 x 16 tiles, the column being the tile value of a map cell.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/ClsAffSprite.h"

class ClsAffTerrain {
public:
    int32_t LargeurCase = 16;
    int32_t HauteurCase = 16;
    ClsAffSprite Sprite;

    // Loads Images/terrains/<nom>.bmp; without it: "Texture du terrain <nom> introuvable.
    // Abandon." and the end of the program.
    void Charger(std::string_view nom);
    // One tile at (x, y), through the general sprite drawing.
    void Afficher(int32_t x, int32_t y, int32_t tuile, Surface& surface);
    // The whole map window whose top left is the world pixel (x, y), on a screen of
    // largeur x hauteur: one blit a cell of Monde, each cut here to the screen. Cells past the
    // end of the grid are not drawn.
    void AfficheFast(int32_t x, int32_t y, int32_t largeur, int32_t hauteur, Surface& surface);

    // Where a cell of the window goes and which part of tile `tuile` shows there, once cut to
    // the screen: the cell's screen corner is (sx, sy) before the cut. An empty source means
    // nothing of it is on the screen.
    struct Blit {
        Rectangle source;
        int32_t x, y;
    };
    static Blit Decouper(int32_t sx, int32_t sy, int32_t tuile, int32_t largeur, int32_t hauteur);
};

// The pointer: one row of 32 x 32 cells, one per mode of the pointer. Mode keeps the last
// one drawn, which is what the next click acts on.
#pragma once

#include <cstdint>

#include "presentation/Cellule.h"

class ClsAffSouris {
public:
    static constexpr int32_t NombreModes = 12;

    int32_t Mode = 0;
    ClsAffSprite Sprite;

    void Charger() { Sprite.Charger("Curseurs/ArrowCursor"); }
    // A mode past the row is drawn, and kept, as mode 0.
    void Afficher(int32_t x, int32_t y, int32_t mode, Surface& surface) {
        mode = Mode_Affiche(mode);
        Afficher_Cellule(Sprite, Cellule(mode), x, y, surface, true);
        Mode = mode;
    }

    static constexpr int32_t Largeur() { return 32; }
    static constexpr int32_t Hauteur() { return 32; }
    static constexpr int32_t Mode_Affiche(int32_t mode) { return mode >= NombreModes ? 0 : mode; }
    static constexpr Rectangle Cellule(int32_t mode) { return Cellule_En_Ligne(mode, Largeur(), Hauteur()); }
};

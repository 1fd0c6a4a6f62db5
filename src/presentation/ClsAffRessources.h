// The deposits on the ground: one row of 32 x 32 cells, one per deposit type (TypeTerrain).
#pragma once

#include <cstdint>

#include "presentation/Cellule.h"

class ClsAffRessources {
public:
    ClsAffSprite Sprite;

    void Charger() { Sprite.Charger("Decors/Ressources"); }
    void Afficher(int32_t x, int32_t y, int32_t cellule, Surface& surface) { Afficher_Cellule(Sprite, Cellule(cellule), x, y, surface, true); }

    static constexpr int32_t Largeur() { return 32; }
    static constexpr int32_t Hauteur() { return 32; }
    static constexpr Rectangle Cellule(int32_t cellule) { return Cellule_En_Ligne(cellule, Largeur(), Hauteur()); }
};

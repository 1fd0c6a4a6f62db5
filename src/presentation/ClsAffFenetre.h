// A window picture: one row of cells whose size the owner sets in Largeur and Hauteur.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "presentation/Cellule.h"

class ClsAffFenetre {
public:
    int32_t Largeur = 0;
    int32_t Hauteur = 0;
    ClsAffSprite Sprite;

    // Images/Fenetres/<nom>.bmp.
    void Charger(std::string_view nom) { Sprite.Charger("Fenetres/" + std::string(nom)); }
    void Afficher(int32_t x, int32_t y, Surface& surface, int32_t indice) {
        Afficher_Cellule(Sprite, Cellule_En_Ligne(indice, Largeur, Hauteur), x, y, surface, true);
    }
};

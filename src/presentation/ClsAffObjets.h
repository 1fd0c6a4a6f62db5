// The object icons: one 32 x 32 picture per object type. The selection of each is set once,
// at load, to the whole icon.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/ClsAffSprite.h"

class ClsJeuParam;

class ClsAffObjets {
public:
    std::vector<ClsAffSprite> Sprites;

    void Charger(const ClsJeuParam& param);
    // The icon of object type `objet`, mixed with what is under it when semiTransparent.
    void Afficher(int32_t x, int32_t y, int32_t objet, Surface& surface, bool semiTransparent);

    static constexpr int32_t Largeur() { return 32; }
    static constexpr int32_t Hauteur() { return 32; }
};

// Buildings: one sheet per people for the castles (family 0), one per building type for the
// houses (family 1). A sheet's rows are states (the epoch of a castle, the stage of a house)
// and its columns the steps of its animation, in cells of the building's size.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/ClsAffSprite.h"

class ClsJeuParam;

class ClsAffBatiment {
public:
    static constexpr int Chateaux = 0;
    static constexpr int Maisons = 1;

    std::vector<ClsAffSprite> Sprites;

    void Charger(int famille, const ClsJeuParam& param);
    // Cell (ligne, colonne) of sprite `sprite`, cells being largeur x hauteur.
    void Afficher(int32_t x, int32_t y, int32_t sprite, int32_t ligne, Surface& surface, int32_t largeur, int32_t hauteur,
                  int32_t colonne);

    // "Batiments/Chateaux-0001" for people 0.
    static std::string Chemin_Chateau(int i);
    // "Batiments/" and the name of building type i.
    static std::string Chemin_Maison(int i, const ClsJeuParam& param);
    static Rectangle Cellule(int32_t ligne, int32_t largeur, int32_t hauteur, int32_t colonne);
};

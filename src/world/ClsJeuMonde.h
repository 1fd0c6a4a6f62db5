// The terrain grid of the world: Largeur × Hauteur cells of 16 × 16 metres.
#pragma once

#include <cstdint>

#include "rules/Empreinte.h"

class ClsJeuMonde {
public:
    int32_t Largeur = 0;   // in cells
    int32_t Hauteur = 0;

    void Empreindre(Empreinte& e) const {
        e.Ajouter(Largeur);
        e.Ajouter(Hauteur);
    }
};

// A deposit on the ground: a forest, a quarry, a shoal of fish.
#pragma once

#include <cstdint>

#include "rules/Empreinte.h"

class ClsJeuRessources {
public:
    int16_t Type = 0;      // deposit type in the rule book
    int32_t PositionX = 0;
    int32_t PositionY = 0;
    double Quantite = 0;

    void Empreindre(Empreinte& e) const {
        e.Ajouter(Type);
        e.Ajouter(PositionX);
        e.Ajouter(PositionY);
        e.Ajouter(Quantite);
    }
};

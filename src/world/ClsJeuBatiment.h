// A house or a castle; the array that holds it (Maisons or Chateaux) tells which.
// A slot whose Vie is 0 holds no building.
#pragma once

#include <cstdint>

#include "rules/Empreinte.h"

class ClsJeuBatiment {
public:
    int32_t Numero = 0;    // owner's index: the character of a house, the fief of a castle
    int32_t PositionX = 0;
    int32_t PositionY = 0;
    double Vie = 0;
    bool Visible = false;

    void Empreindre(Empreinte& e) const {
        e.Ajouter(Numero);
        e.Ajouter(PositionX);
        e.Ajouter(PositionY);
        e.Ajouter(Vie);
        e.Ajouter(Visible);
    }
};

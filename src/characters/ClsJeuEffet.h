// One playing visual effect in a fixed slot: one slot per character and one per house.
#pragma once

#include <cstdint>

#include "rules/Empreinte.h"

class ClsJeuEffet {
public:
    int16_t Type = -1;     // effect type, -1 when the slot is idle
    int16_t Etape = 0;

    void Empreindre(Empreinte& e) const {
        e.Ajouter(Type);
        e.Ajouter(Etape);
    }
};

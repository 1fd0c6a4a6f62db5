// A slot that may hold one object. An object in a slot is a row of the object rules; since
// the rule book never changes during a game, the slot keeps only the row's number and reads
// the row through it, which keeps every character small.
#pragma once

#include <cstdint>
#include <vector>

#include "rules/Empreinte.h"

class ClsJeuObjet {
public:
    int16_t Type = -1;   // object number, -1 for an empty slot

    void Init() { Type = -1, Reserve = false; }
    void Charger(int16_t type) { Type = type, Reserve = false; }
    void Decharger() { Init(); }

    // A slot is in use when it holds an object, or when a loader has reserved it before
    // filling it.
    bool Actif() const { return Type >= 0 || Reserve; }
    void Actif(bool actif) {
        Reserve = actif;
        if (!actif) Type = -1;
    }

    void Empreindre(Empreinte& e) const {
        e.Ajouter(Type);
        e.Ajouter(Reserve);
    }

private:
    bool Reserve = false;
};

// The slot of a row that holds an object; nothing for an empty slot or a number outside the row.
inline ClsJeuObjet* Objet_Tenu(std::vector<ClsJeuObjet>& rangee, int slot) {
    if (slot < 0 || static_cast<std::size_t>(slot) >= rangee.size()) return nullptr;
    ClsJeuObjet& o = rangee[static_cast<std::size_t>(slot)];
    return o.Type >= 0 ? &o : nullptr;
}

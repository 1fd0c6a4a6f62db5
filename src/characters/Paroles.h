// What one character says to another in a fight: a phrase of the book, given at once. A
// plain comment waits behind one already showing; a comment that must be heard now clears
// the old one first.
#pragma once

#include <cstdint>

#include "world/Globales.h"

inline void Dire(ClsJeuPerso& p, int32_t code) { p.Definir_Commentaires(Commentaires.Message(code)); }

inline void Dire_Aussitot(ClsJeuPerso& p, int32_t code) {
    p.Definir_Commentaires({});
    Dire(p, code);
}

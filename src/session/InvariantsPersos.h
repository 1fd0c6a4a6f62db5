// The invariants of one character, a part of Invariant_Rompu.
#pragma once

#include <cstddef>

#include "session/Constat.h"

void Verifier_Perso(Constat& c, std::size_t i);

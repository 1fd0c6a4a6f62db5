// The one random stream of the game. PCG32 (O'Neill, XSH-RR, 64-bit state, fixed increment):
// small, fast, and the same numbers on every machine and build. Rnd() gives a float in [0, 1)
// from the top 24 bits of one output.
#pragma once

#include <cstdint>

float Rnd();
void Definir_Graine(uint64_t graine);
uint64_t Graine();          // last seed given
uint64_t Etat_Hasard();     // state, for the simulator's hash

// What a live world keeps true between two ticks, checked from outside the rules: the arrays
// that go together have one size, every slot knows its own index, every gauge lies within its
// maximum, no money or stock is negative, every index that the rules follow names something,
// and everything stands inside the world. The simulator and the whole-game tests run it after
// every tick.
#pragma once

#include <optional>
#include <string>

// The first broken invariant, as a French text naming the record and its field (for example
// "Persos[12].Vie = 130 hors de [0, 120]"); nothing while the world keeps them all. No text is
// built, and nothing allocated, while everything holds.
std::optional<std::string> Invariant_Rompu();

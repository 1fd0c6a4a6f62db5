// How characters speak to one another in a fight. A character in trouble calls its team;
// those free to come answer, each on a draw, and go for what the caller fights, or for
// whoever attacks it. A leader's orders to its followers (charge, stop, formation) will
// join this module.
#pragma once

#include <cstdint>

// The call for help of character n. Only team mates that decide for themselves, are no
// invocation, are in full form, have more than half their health and are not busy indoors
// or fighting may answer, each with a chance of 3 in (subjects of the caller's fief + 1).
// Caller and helpers say so (comments 6 to 10).
void Appeler_Aide(int32_t n);

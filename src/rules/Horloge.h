// The clock of the game: seconds since midnight as a float, wrapping at midnight.
// The source is injected: the platform installs the system clock, tests and the simulator
// drive it by hand. Until a source is installed, the clock is driven and starts at 0.
#pragma once

#include <functional>

inline constexpr float SecondesParJour = 86400.0f;

float Horloge();
void Definir_Source_Horloge(std::function<float()> source);

// Driven clock: set it, or move it on by ecart seconds (wrapping at midnight).
void Piloter_Horloge(float secondes);
void Avancer_Horloge(float ecart);

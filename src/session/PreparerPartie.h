// Turning the choices of a set-up into a running world.
#pragma once

#include "session/ChoixPartie.h"

// Builds the world of the chosen session kind around the hero already standing at
// PersoActif. False, after a message, when the world cannot be built.
bool Preparer_Partie(const ChoixPartie& choix);

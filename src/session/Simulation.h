// A headless game: the set-up the dialog would make, the real frame loop with a driven
// clock and the null screen, and the figures the simulator prints.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <optional>

#include "session/ChoixPartie.h"

// What the dialog does before a game: the active hero at index 0, a plain human of fief 0.
void Creer_Heros_Actif();

// Runs ticks ticks of a game set up from choix. Returns the ticks done, nothing when the
// world could not be built.
std::optional<int64_t> Simuler(const ChoixPartie& choix, int64_t ticks);

// Hash of the whole state: every record of the world and the random stream.
uint64_t Empreinte_Etat();

// One line per fief, and with etat one per character, one per deposit and one per castle.
void Ecrire_Fiefs(std::ostream& sortie);
void Ecrire_Etat(std::ostream& sortie);
// What the world generation dropped for want of room: "abandons=chateaux:C,gisements:G".
void Ecrire_Abandons(std::ostream& sortie);

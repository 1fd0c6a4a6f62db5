// Start-up of the program and the life cycle of the global state.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "platform/Peripheriques.h"

inline constexpr std::string_view TitreProgramme = "Korvalis";

// The game folder: the one given, else $KORVALIS_DOSSIER, else "jeu" beside the executable.
// False, after a message naming it, when that folder does not exist or cannot be read.
bool Trouver_Dossier_Jeu(const std::optional<std::filesystem::path>& donne);

// Brings the program up in its fixed order, showing on the main window's caption how far
// loading has come. The random stream is seeded from the clock.
void Demarrer_Programme(PeripheriqueFenetre& fenetre);

// Puts every global back as a fresh process has it: for tests, and before each game that the
// simulator plays in one process.
void Reinitialiser_Globales();

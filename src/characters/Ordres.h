// Orders given to a character (by the mouse, the keys, the AI and its scripts) and the
// table of actions: the code every decision reads and the text the interface shows.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

// Text of an action code; none for a code outside the table.
std::optional<std::string_view> Texte_Code_Action(int16_t code);
// Code of an action text; none for a text outside the table.
std::optional<int16_t> Code_Texte_Action(std::string_view texte);

// The coordinate at which a box of size taillePerso is centred on a thing that starts at
// position and is taille long, rounded to the metre.
int32_t Coin_Pour_Centrer(double position, double taille, double taillePerso);

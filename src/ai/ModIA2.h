// Finding the AI scripts of the folder "IAs".
#pragma once

#include <string_view>

// Folder of the AI scripts, relative to the game folder.
inline constexpr std::string_view DossierIAs = "IAs";

// Position of the script `nom` in the listing of the folder, names compared in lower case;
// -1 if it is missing or `nom` is empty.
int Numero_Script_IA(std::string_view nom);

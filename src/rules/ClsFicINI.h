// The one gateway to the game's INI files (rules, settings, layouts, character files).
//
// A reader sets Fichier and Section, then reads keys. Missing file, section or key reads as
// empty; lookups ignore ASCII and Latin-1 case (UTF-8 text, accents kept byte for byte);
// the first match wins; values are cut to 254 bytes. A write replaces the value in place,
// keeps every other line (comments and blank lines too), creates key, section or file as
// needed, and reaches the disk through a temporary file and a rename.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

class ClsFicINI {
public:
    std::string Extension = ".ini";
    std::string Fichier;                 // relative to the game folder, may hold a sub-path
    std::string Section = "Korvalis";    // the program title is the default section
    std::string DerniereLigne;           // last item read, as key=value

    std::string Parametre(std::string_view cle);
    void Parametre(std::string_view cle, std::string_view valeur);

    // Game folder / Fichier + Extension.
    std::filesystem::path Chemin() const;
    // Where a write puts the new text before renaming it over Chemin(): a hidden file beside it.
    std::filesystem::path Chemin_Temporaire() const;
};

// Longest value a read gives back.
inline constexpr std::size_t LongueurMaxValeurINI = 254;

// Case-insensitive equality over ASCII and the Latin-1 letters written in UTF-8.
bool Egal_Sans_Casse(std::string_view a, std::string_view b);

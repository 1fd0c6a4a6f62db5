// The size of a bitmap picture, read from its headers alone (no decoding, no SDL).
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

struct TailleImage {
    int32_t largeur = 0, hauteur = 0;
};

// Width and height of a Windows bitmap (any header version; a top-down picture's negative
// height is given as positive). Nothing if the file is missing or is not a bitmap.
std::optional<TailleImage> Lire_Taille_Bmp(const std::filesystem::path& chemin);

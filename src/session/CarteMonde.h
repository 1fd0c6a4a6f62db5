// A small picture of the world, one pixel per cell of 16 × 16: the terrain, then the
// deposits, the castles and the living characters on top. The simulator writes it for eyes
// and for tests.
#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

// What a pixel shows, from the ground up.
enum class Tache : uint8_t { Sol, Terrain, Gisement, Chateau, Perso };

struct PixelCarte {
    Tache Quoi = Tache::Sol;
    int32_t Teinte = 0;   // the team of a castle or a character, the type of a deposit
};

struct ImageCarte {
    int32_t Largeur = 0, Hauteur = 0;
    std::vector<PixelCarte> Pixels;   // row after row

    const PixelCarte& Pixel(int32_t x, int32_t y) const {
        return Pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(Largeur) + static_cast<std::size_t>(x)];
    }
};

// The picture of the world as it stands.
ImageCarte Dessiner_Carte();

// Writes the picture: in colour for a name ending in ".ppm", in shades of grey otherwise
// (PGM: ground lightest, then terrain, deposits, castles, and characters black). False when
// the file cannot be written.
bool Ecrire_Carte(const ImageCarte& image, const std::filesystem::path& fichier);

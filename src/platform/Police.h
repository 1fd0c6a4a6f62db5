// The game's one font: DejaVu Sans Mono at 12 points with normal hinting, 7 pixels a
// character. Each character is rasterised once, the first time it is met (the Latin-1
// letters when the font opens), into a mask of coverage; drawing text then only lays masks
// over a picture, with no allocation.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <vector>

struct Glyphe {
    int32_t decalageX = 0, decalageY = 0;   // top left of the mask from the pen, the pen on the line's top
    int32_t largeur = 0, hauteur = 0;
    std::size_t debut = 0;                  // first byte of the mask in the store
    bool present = false;
};

// Where the font is looked for: the game folder's copy first, then the system's.
std::vector<std::filesystem::path> Chemins_Police();

class Police {
public:
    // The font of the game, opened on first use; false when no font file could be opened,
    // and text then draws nothing.
    static Police& Jeu();
    bool Ouverte() const { return ouverte_; }
    int32_t Avance() const { return avance_; }
    // The mask of a character; nullptr if the font has none.
    const Glyphe* Trouver(char32_t caractere);
    const uint8_t* Couverture(const Glyphe& g) const { return couvertures_.data() + g.debut; }

    ~Police();

private:
    Police();
    Glyphe Rasteriser(char32_t caractere);

    void* police_ = nullptr;   // the TTF_Font
    bool ouverte_ = false;
    int32_t avance_ = 7, ascendant_ = 0;
    Glyphe latin_[256];
    std::vector<std::pair<char32_t, Glyphe>> autres_;
    std::vector<uint8_t> couvertures_;
};

// Next character of a UTF-8 text from position i, which moves past it. A byte that does not
// start a valid sequence is taken as the Latin-1 letter of that value.
char32_t Lire_Caractere(std::string_view texte, std::size_t& i);

// A picture in memory that the game draws on: the back buffer, a sprite sheet, a loading
// screen. Pixels are 32-bit ARGB, always opaque; the game speaks in colours 0x00BBGGRR
// (255 is red) and this class turns them into pixels and back.
//
// A picture keeps a pen and a brush: the drawing calls use the colours and styles last set
// on it.
#pragma once

#include <cstdint>
#include <string_view>

struct SDL_Surface;

// Edges of a box: Right and Bottom are the first column and row outside it.
struct Rectangle {
    int32_t Left = 0, Top = 0, Right = 0, Bottom = 0;
};

// Fill styles of Dessiner_Boite and Dessiner_Boite_Arrondie.
enum StyleRemplissage : int16_t {
    RemplissagePlein = 0,
    RemplissageTransparent = 1,
    HachuresHorizontales = 2,
    HachuresVerticales = 3,
    HachuresMontantes = 4,   // the hatching of a building being placed
    HachuresDescendantes = 5,
    HachuresCroisees = 6,
    HachuresCroiseesDiagonales = 7,
};

// Line styles: every style draws a plain line except the invisible one.
enum StyleTrait : int16_t { TraitPlein = 0, TraitInvisible = 5 };

// Game colour 0x00BBGGRR to an opaque ARGB pixel, and back.
constexpr uint32_t Pixel_De_Couleur(int32_t couleur) {
    const auto c = static_cast<uint32_t>(couleur);
    return 0xFF000000u | ((c & 0xFFu) << 16) | (c & 0xFF00u) | ((c >> 16) & 0xFFu);
}
constexpr int32_t Couleur_De_Pixel(uint32_t pixel) {
    return static_cast<int32_t>(((pixel >> 16) & 0xFFu) | (pixel & 0xFF00u) | ((pixel & 0xFFu) << 16));
}

class Surface {
public:
    Surface() = default;
    // A black picture of this size; empty if the size is not positive or memory runs out.
    Surface(int32_t largeur, int32_t hauteur);
    // Takes a picture of any format, converts it to opaque ARGB and frees the original.
    explicit Surface(SDL_Surface* image);
    ~Surface();
    Surface(Surface&& autre) noexcept;
    Surface& operator=(Surface&& autre) noexcept;
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    bool Valide() const { return image_ != nullptr; }
    int32_t Largeur() const;
    int32_t Hauteur() const;
    SDL_Surface* SDL() const { return image_; }

    // Colours of single pixels; outside the picture a read gives 0 and a write does nothing.
    int32_t Lire_Pixel(int32_t x, int32_t y) const;
    void Ecrire_Pixel(int32_t x, int32_t y, int32_t couleur);

    // The pen and the brush.
    int32_t CouleurTrait = 0;
    int32_t CouleurRemplissage = 0;
    int16_t Remplissage = RemplissageTransparent;
    int16_t Trait = TraitPlein;
    void Definir_Couleur_Trait(int32_t couleur) { CouleurTrait = couleur; }
    void Definir_Couleur_Remplissage(int32_t couleur) { CouleurRemplissage = couleur; }
    void Definir_Style_Remplissage(int16_t style) { Remplissage = style; }
    void Definir_Style_Trait(int16_t style) { Trait = style; }

    // Paints a box (the whole picture when none is given) in one colour.
    void Remplir(int32_t couleur, const Rectangle* zone = nullptr);
    // A box from corner to corner, the far corner excluded: the brush inside, a one-pixel
    // border with the pen.
    void Dessiner_Boite(int32_t x1, int32_t y1, int32_t x2, int32_t y2);
    // The same with corners rounded as quarters of an ellipse of largeurCoin x hauteurCoin.
    void Dessiner_Boite_Arrondie(int32_t x1, int32_t y1, int32_t x2, int32_t y2, int32_t largeurCoin,
                                 int32_t hauteurCoin);
    // One line of UTF-8 text in the pen's colour, its top left at (x, y), over what is there.
    void Dessiner_Texte(int32_t x, int32_t y, std::string_view texte);

private:
    SDL_Surface* image_ = nullptr;

    // Row y of a box: pixels from gauche to droite (excluded) belong to it.
    struct Travee {
        int32_t gauche, droite;
    };
    void Dessiner_Forme(int32_t x1, int32_t y1, int32_t x2, int32_t y2, int32_t rayonX, int32_t rayonY);
    Travee Travee_Arrondie(int32_t ligne, int32_t hauteur, int32_t largeur, int32_t rayonX, int32_t rayonY) const;
};

// The game's font: width of a text in pixels (every character has the same advance), and
// the height of one line.
int32_t Largeur_Texte(std::string_view texte);
int32_t Avance_Caractere();

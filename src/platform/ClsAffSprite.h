// One picture of the game folder and the part of it to draw. Every image of the game goes
// through this class: the sprite families choose a cell with Selection, then Afficher.
// Pure black (0, 0, 0) in a picture is never drawn; any other colour is, however dark.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "platform/Surface.h"

class ClsAffSprite {
public:
    Surface Image;
    int32_t EcranLargeur = 0, EcranHauteur = 0;   // the screen size when the picture was loaded

    // Loads Images/<nom>.bmp of the game folder (nom may hold a sub-folder, with '/' or '\').
    // A picture that cannot be loaded ends the program: "Le fichier image :", the path,
    // "est manquant.", then FatalEnd.
    void Charger(std::string_view nom);
    // The same without the message: false, and no picture, when it cannot be loaded.
    bool Charger_Si_Present(std::string_view nom);

    // Draws the selection with its top left at (x, y). With semiTransparent the picture is
    // mixed half and half with what lies under it, pixel by pixel (the dead are drawn so).
    // Otherwise the selection is first cut to the screen, and the cut stays in the
    // selection: a caller sets it again before the next draw.
    void Afficher(int32_t x, int32_t y, Surface& cible, bool transparent, bool semiTransparent);
    // One fast blit of the part `source` of the picture at (x, y), for callers that cut it
    // themselves (the ground): no cut to the screen, the selection is neither read nor changed.
    void Afficher_Rapide(int32_t x, int32_t y, const Rectangle& source, Surface& cible, bool transparent);

    // The part of the picture to draw. Note the order: top, bottom, left, right.
    void Selection(int32_t haut, int32_t bas, int32_t gauche, int32_t droite) { selection_ = {gauche, haut, droite, bas}; }
    const Rectangle& Selection() const { return selection_; }

    static std::string CheminImage() { return "Images/"; }
    static std::string Extension_Image() { return ".bmp"; }
    // Where the picture named nom is looked for.
    static std::filesystem::path Chemin(std::string_view nom);

private:
    Rectangle selection_;
    bool cle_ = false;   // whether the picture's colour key is on

    void Utiliser_Cle(bool transparent);
    void Melanger(int32_t x, int32_t y, Surface& cible);
};

// "Texture du terrain <nom> introuvable. Abandon.", as a critical message, then FatalEnd.
[[noreturn]] void Terrain_Introuvable(std::string_view nom);

// The 50 % mix of one pixel of the dead over one of the screen: each of the red, green and
// blue fields is (source + target) / 2, rounded to nearest with ties to even, then cut to its
// own bits (so a field above the lowest bits loses the half). The result is opaque.
uint32_t Melange_Moitie(uint32_t source, uint32_t cible);

// The screen: the list of offered resolutions ("Ini_Ecran"), the window, and the back buffer
// Tampon that every drawing of a render goes to.
//
// The chosen resolution is the size of the game image, not a display mode: the image is
// uploaded whole to one texture at each Presenter_Image and scaled to the window, keeping
// its proportions (bands of black around it). Full screen is a borderless window over the
// whole desktop; window mode is a window that can be resized.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/Peripheriques.h"
#include "platform/Surface.h"

struct SDL_Window;
struct SDL_Renderer;
struct SDL_Texture;

// The size of the game image, as the sprites copy it when they load.
extern int32_t EcranLargeur, EcranHauteur;

class ClsPerEcran final : public PeripheriqueEcran {
public:
    std::string Fichier = "Ini_Ecran";
    std::string Section = "Ecran";
    bool ModeFenetre = false;
    int16_t Resolution = 0;   // index of the chosen row, from 0

    // Reads "Ini_Ecran". A width or height that is not an integer ends the program with the
    // loading message of the rule files. A chosen row outside the list takes the first one.
    ClsPerEcran();
    ~ClsPerEcran() override;
    ClsPerEcran(const ClsPerEcran&) = delete;
    ClsPerEcran& operator=(const ClsPerEcran&) = delete;

    int32_t Width() const { return largeur_; }
    void Width(int32_t largeur) { largeur_ = largeur; }
    int32_t Height() const { return hauteur_; }
    void Height(int32_t hauteur) { hauteur_ = hauteur; }

    int16_t Nombre_Resolutions() const { return static_cast<int16_t>(resolutionsX_.size()); }
    int16_t Definir_ResolutionX(int i) const;
    int16_t Definir_ResolutionY(int i) const;
    // Stores the choice and writes i + 1 to the file at once. The size changes at the next
    // start of the program, not now.
    void Definir_Resolution(int16_t i);
    int16_t Definir_Resolution() const { return Resolution; }

    // Opens the window at the current size and makes Tampon: in window mode the picture
    // Images/Fond<width>.bmp, which gives its own size; in full screen a black image of the
    // size. Sets EcranLargeur and EcranHauteur. Errors show a message and are not raised;
    // false when there is no window at all, and then the game cannot start.
    bool Init() override;
    // Gives the display and the mouse back and closes the window.
    void Fermer_Ecran() override;

    bool Affiche() const override { return fenetre_ != nullptr; }
    void Presenter_Image() override;
    // Drains the window's events: motion and wheel for the mouse, a close request for the
    // keyboard, a lost focus frees the mouse, a new size picks the scaling.
    void Pomper_Evenements() override;
    Surface* Tampon() override { return tampon_.Valide() ? &tampon_ : nullptr; }

    // (0, 0, Width, Height).
    Rectangle Rectangle_Ecran() const { return {0, 0, largeur_, hauteur_}; }
    SDL_Window* Fenetre() const { return fenetre_; }

private:
    std::vector<int16_t> resolutionsX_, resolutionsY_;
    int32_t largeur_ = 0, hauteur_ = 0;
    Surface tampon_;
    SDL_Window* fenetre_ = nullptr;
    SDL_Renderer* rendu_ = nullptr;
    SDL_Texture* texture_ = nullptr;
    bool video_ = false;   // this screen started SDL's video

    void Adapter_Echelle();
};

// Leaves the program from any depth after a fatal error: the open screen is closed (display
// and mouse given back), nothing is saved, the exit status is 1.
[[noreturn]] void FatalEnd();

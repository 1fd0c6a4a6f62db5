// A screen without a window: the back buffer alone, for pictures of the game taken without
// a display (a capture for a bug report, the tests of drawing). It stays dark, like the null
// screen, until it is switched on at a size.
#pragma once

#include <cstdint>
#include <filesystem>

#include "platform/Peripheriques.h"
#include "platform/Surface.h"

class EcranHorsEcran final : public PeripheriqueEcran {
public:
    int32_t ImagesPresentees = 0;

    // A black back buffer of this size, which becomes the size of the game image
    // (EcranLargeur, EcranHauteur) for the pictures loaded afterwards. False if it cannot be made.
    bool Allumer(int32_t largeur, int32_t hauteur);
    // Back to dark: no back buffer.
    void Eteindre() { image_ = Surface(); }

    bool Affiche() const override { return image_.Valide(); }
    void Presenter_Image() override { ++ImagesPresentees; }
    void Pomper_Evenements() override {}
    Surface* Tampon() override { return image_.Valide() ? &image_ : nullptr; }

    // The back buffer as it stands, to a 24-bit BMP file. False if there is none or it cannot be written.
    bool Enregistrer_BMP(const std::filesystem::path& fichier) const;

private:
    Surface image_;
};

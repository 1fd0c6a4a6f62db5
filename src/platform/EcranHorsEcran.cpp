#include "platform/EcranHorsEcran.h"

#include <SDL.h>

#include "platform/ClsPerEcran.h"

bool EcranHorsEcran::Allumer(int32_t largeur, int32_t hauteur) {
    image_ = Surface(largeur, hauteur);
    if (!image_.Valide()) return false;
    EcranLargeur = largeur;
    EcranHauteur = hauteur;
    return true;
}

bool EcranHorsEcran::Enregistrer_BMP(const std::filesystem::path& fichier) const {
    if (!image_.Valide()) return false;
    SDL_Surface* rgb = SDL_ConvertSurfaceFormat(image_.SDL(), SDL_PIXELFORMAT_BGR24, 0);
    if (!rgb) return false;
    const bool ecrit = SDL_SaveBMP(rgb, fichier.c_str()) == 0;
    SDL_FreeSurface(rgb);
    return ecrit;
}

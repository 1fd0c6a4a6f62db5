#include "platform/Surface.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <SDL.h>

#include "platform/Police.h"

namespace {

uint32_t* Ligne(SDL_Surface* s, int32_t y) {
    return reinterpret_cast<uint32_t*>(static_cast<uint8_t*>(s->pixels) + static_cast<std::ptrdiff_t>(y) * s->pitch);
}

// The hatchings repeat every 8 pixels of the picture, so that two boxes side by side join.
bool Hachure(int16_t style, int32_t x, int32_t y) {
    const auto modulo = [](int32_t v) { return ((v % 8) + 8) % 8 == 0; };
    switch (style) {
    case HachuresHorizontales: return modulo(y);
    case HachuresVerticales: return modulo(x);
    case HachuresMontantes: return modulo(x + y);
    case HachuresDescendantes: return modulo(x - y);
    case HachuresCroisees: return modulo(x) || modulo(y);
    case HachuresCroiseesDiagonales: return modulo(x + y) || modulo(x - y);
    default: return false;
    }
}

uint32_t Canal(uint32_t source, uint32_t cible, uint32_t couverture) {
    return (source * couverture + cible * (255 - couverture) + 127) / 255;
}

}  // namespace

Surface::Surface(int32_t largeur, int32_t hauteur) {
    if (largeur <= 0 || hauteur <= 0) return;
    image_ = SDL_CreateRGBSurfaceWithFormat(0, largeur, hauteur, 32, SDL_PIXELFORMAT_ARGB8888);
    if (!image_) return;
    SDL_SetSurfaceBlendMode(image_, SDL_BLENDMODE_NONE);
    SDL_FillRect(image_, nullptr, Pixel_De_Couleur(0));
}

Surface::Surface(SDL_Surface* image) {
    if (!image) return;
    // Pictures without an alpha channel come out opaque; blits copy, they never mix.
    image_ = image->format->format == SDL_PIXELFORMAT_ARGB8888 ? image
                                                                : SDL_ConvertSurfaceFormat(image, SDL_PIXELFORMAT_ARGB8888, 0);
    if (image_ != image) SDL_FreeSurface(image);
    if (image_) SDL_SetSurfaceBlendMode(image_, SDL_BLENDMODE_NONE);
}

Surface::~Surface() { SDL_FreeSurface(image_); }

Surface::Surface(Surface&& autre) noexcept { *this = std::move(autre); }

Surface& Surface::operator=(Surface&& autre) noexcept {
    if (this != &autre) {
        SDL_FreeSurface(image_);
        image_ = std::exchange(autre.image_, nullptr);
        CouleurTrait = autre.CouleurTrait;
        CouleurRemplissage = autre.CouleurRemplissage;
        Remplissage = autre.Remplissage;
        Trait = autre.Trait;
    }
    return *this;
}

int32_t Surface::Largeur() const { return image_ ? image_->w : 0; }
int32_t Surface::Hauteur() const { return image_ ? image_->h : 0; }

int32_t Surface::Lire_Pixel(int32_t x, int32_t y) const {
    if (!image_ || x < 0 || y < 0 || x >= image_->w || y >= image_->h) return 0;
    return Couleur_De_Pixel(Ligne(image_, y)[x]);
}

void Surface::Ecrire_Pixel(int32_t x, int32_t y, int32_t couleur) {
    if (!image_ || x < 0 || y < 0 || x >= image_->w || y >= image_->h) return;
    Ligne(image_, y)[x] = Pixel_De_Couleur(couleur);
}

void Surface::Remplir(int32_t couleur, const Rectangle* zone) {
    if (!image_) return;
    if (!zone) {
        SDL_FillRect(image_, nullptr, Pixel_De_Couleur(couleur));
        return;
    }
    if (zone->Right <= zone->Left || zone->Bottom <= zone->Top) return;
    const SDL_Rect r{zone->Left, zone->Top, zone->Right - zone->Left, zone->Bottom - zone->Top};
    SDL_FillRect(image_, &r, Pixel_De_Couleur(couleur));
}

void Surface::Dessiner_Boite(int32_t x1, int32_t y1, int32_t x2, int32_t y2) { Dessiner_Forme(x1, y1, x2, y2, 0, 0); }

void Surface::Dessiner_Boite_Arrondie(int32_t x1, int32_t y1, int32_t x2, int32_t y2, int32_t largeurCoin,
                                      int32_t hauteurCoin) {
    Dessiner_Forme(x1, y1, x2, y2, largeurCoin, hauteurCoin);
}

// A row outside the box is empty. In the band of a corner the row is shortened on both sides
// by how far the quarter ellipse stands from the box's edge at the middle of that row.
Surface::Travee Surface::Travee_Arrondie(int32_t ligne, int32_t hauteur, int32_t largeur, int32_t coinX,
                                         int32_t coinY) const {
    if (ligne < 0 || ligne >= hauteur) return {0, 0};
    if (coinX <= 0 || coinY <= 0) return {0, largeur};
    const double a = std::min(coinX, largeur) / 2.0, b = std::min(coinY, hauteur) / 2.0;
    const double milieu = ligne + 0.5;
    const double dy = milieu < b ? b - milieu : milieu > hauteur - b ? milieu - (hauteur - b) : 0.0;
    const double retrait = a - a * std::sqrt(std::max(0.0, 1.0 - (dy / b) * (dy / b)));
    const auto gauche = static_cast<int32_t>(std::lround(retrait));
    return {gauche, largeur - gauche};
}

void Surface::Dessiner_Forme(int32_t x1, int32_t y1, int32_t x2, int32_t y2, int32_t coinX, int32_t coinY) {
    if (!image_) return;
    const int32_t gauche = std::min(x1, x2), haut = std::min(y1, y2);
    const int32_t largeur = std::max(x1, x2) - gauche, hauteur = std::max(y1, y2) - haut;
    if (largeur <= 0 || hauteur <= 0) return;
    SDL_Rect clip;
    SDL_GetClipRect(image_, &clip);
    const uint32_t stylo = Pixel_De_Couleur(CouleurTrait), pinceau = Pixel_De_Couleur(CouleurRemplissage);
    const bool bord = Trait != TraitInvisible;
    const int32_t yDebut = std::max(haut, clip.y), yFin = std::min(haut + hauteur, clip.y + clip.h);
    for (int32_t y = yDebut; y < yFin; ++y) {
        const int32_t ligne = y - haut;
        const Travee ici = Travee_Arrondie(ligne, hauteur, largeur, coinX, coinY);
        const Travee dessus = Travee_Arrondie(ligne - 1, hauteur, largeur, coinX, coinY);
        const Travee dessous = Travee_Arrondie(ligne + 1, hauteur, largeur, coinX, coinY);
        uint32_t* pixels = Ligne(image_, y);
        const int32_t xDebut = std::max(gauche + ici.gauche, clip.x);
        const int32_t xFin = std::min(gauche + ici.droite, clip.x + clip.w);
        for (int32_t x = xDebut; x < xFin; ++x) {
            const int32_t c = x - gauche;
            const bool surLeBord = c == ici.gauche || c == ici.droite - 1 || c < dessus.gauche || c >= dessus.droite ||
                                   c < dessous.gauche || c >= dessous.droite;
            if (bord && surLeBord) pixels[x] = stylo;
            else if (Remplissage == RemplissagePlein || Hachure(Remplissage, x, y)) pixels[x] = pinceau;
        }
    }
}

void Surface::Dessiner_Texte(int32_t x, int32_t y, std::string_view texte) {
    Police& police = Police::Jeu();
    if (!image_ || !police.Ouverte()) return;
    SDL_Rect clip;
    SDL_GetClipRect(image_, &clip);
    const uint32_t couleur = Pixel_De_Couleur(CouleurTrait);
    const uint32_t r = (couleur >> 16) & 0xFF, v = (couleur >> 8) & 0xFF, b = couleur & 0xFF;
    int32_t plume = x;
    for (std::size_t i = 0; i < texte.size();) {
        const Glyphe* g = police.Trouver(Lire_Caractere(texte, i));
        if (g) {
            const uint8_t* masque = police.Couverture(*g);
            const int32_t gx = plume + g->decalageX, gy = y + g->decalageY;
            const int32_t yDebut = std::max(gy, clip.y), yFin = std::min(gy + g->hauteur, clip.y + clip.h);
            const int32_t xDebut = std::max(gx, clip.x), xFin = std::min(gx + g->largeur, clip.x + clip.w);
            for (int32_t py = yDebut; py < yFin; ++py) {
                uint32_t* pixels = Ligne(image_, py);
                const uint8_t* couverture = masque + static_cast<std::ptrdiff_t>(py - gy) * g->largeur;
                for (int32_t px = xDebut; px < xFin; ++px) {
                    const uint32_t a = couverture[px - gx];
                    if (a == 0) continue;
                    const uint32_t d = pixels[px];
                    pixels[px] = 0xFF000000u | Canal(r, (d >> 16) & 0xFF, a) << 16 | Canal(v, (d >> 8) & 0xFF, a) << 8 |
                                 Canal(b, d & 0xFF, a);
                }
            }
        }
        plume += police.Avance();
    }
}

int32_t Avance_Caractere() { return Police::Jeu().Avance(); }

int32_t Largeur_Texte(std::string_view texte) {
    int32_t n = 0;
    for (std::size_t i = 0; i < texte.size(); ++n) Lire_Caractere(texte, i);
    return n * Avance_Caractere();
}

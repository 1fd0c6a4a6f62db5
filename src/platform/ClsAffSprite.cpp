#include "platform/ClsAffSprite.h"

#include <algorithm>

#include <SDL.h>

#include "platform/ClsPerEcran.h"
#include "rules/BoiteMessage.h"
#include "rules/Chemins.h"

namespace fs = std::filesystem;

namespace {

constexpr uint32_t MasquesCouleur[] = {0x00FF0000u, 0x0000FF00u, 0x000000FFu};
constexpr uint32_t MasqueAlpha = 0xFF000000u;

uint32_t* Ligne(SDL_Surface* s, int32_t y) {
    return reinterpret_cast<uint32_t*>(static_cast<uint8_t*>(s->pixels) + static_cast<std::ptrdiff_t>(y) * s->pitch);
}

}  // namespace

uint32_t Melange_Moitie(uint32_t source, uint32_t cible) {
    uint32_t resultat = MasqueAlpha;
    for (const uint32_t masque : MasquesCouleur) {
        const uint64_t somme = static_cast<uint64_t>(source & masque) + (cible & masque);
        uint64_t moitie = somme >> 1;
        if ((somme & 1) && (moitie & 1)) ++moitie;   // a half rounds to the even neighbour
        resultat |= static_cast<uint32_t>(moitie) & masque;
    }
    return resultat;
}

fs::path ClsAffSprite::Chemin(std::string_view nom) {
    return Chemin_Jeu(CheminImage() + std::string(nom) + Extension_Image());
}

bool ClsAffSprite::Charger_Si_Present(std::string_view nom) {
    EcranLargeur = ::EcranLargeur;
    EcranHauteur = ::EcranHauteur;
    Image = Surface(SDL_LoadBMP(Chemin(nom).c_str()));
    cle_ = false;
    if (!Image.Valide()) return false;
    Utiliser_Cle(true);
    return true;
}

void ClsAffSprite::Charger(std::string_view nom) {
    if (Charger_Si_Present(nom)) return;
    Boite_Message("Korvalis", "Le fichier image :\n" + Chemin(nom).string() + "\nest manquant.", GenreMessage::Critique);
    FatalEnd();
}

// The key is a setting of the picture: it changes only when a draw asks for the other one.
void ClsAffSprite::Utiliser_Cle(bool transparent) {
    if (transparent == cle_ || !Image.Valide()) return;
    SDL_SetColorKey(Image.SDL(), transparent ? SDL_TRUE : SDL_FALSE, Pixel_De_Couleur(0));
    cle_ = transparent;
}

void ClsAffSprite::Afficher(int32_t x, int32_t y, Surface& cible, bool transparent, bool semiTransparent) {
    if (!Image.Valide() || !cible.Valide()) return;
    if (semiTransparent) {
        Melanger(x, y, cible);
        return;
    }
    Rectangle& s = selection_;
    if (x < 0) {
        s.Left -= x;
        x = 0;
    }
    if (x - s.Left + s.Right > EcranLargeur) s.Right = EcranLargeur - x + s.Left;
    if (y < 0) {
        s.Top -= y;
        y = 0;
    }
    if (y - s.Top + s.Bottom > EcranHauteur) s.Bottom = EcranHauteur - y + s.Top;
    if (s.Right <= s.Left || s.Bottom <= s.Top) return;
    Utiliser_Cle(transparent);
    SDL_Rect source{s.Left, s.Top, s.Right - s.Left, s.Bottom - s.Top};
    SDL_Rect destination{x, y, 0, 0};
    SDL_BlitSurface(Image.SDL(), &source, cible.SDL(), &destination);
}

void ClsAffSprite::Afficher_Rapide(int32_t x, int32_t y, const Rectangle& source, Surface& cible, bool transparent) {
    if (!Image.Valide() || !cible.Valide() || source.Right <= source.Left || source.Bottom <= source.Top) return;
    Utiliser_Cle(transparent);
    SDL_Rect zone{source.Left, source.Top, source.Right - source.Left, source.Bottom - source.Top};
    SDL_Rect destination{x, y, 0, 0};
    SDL_BlitSurface(Image.SDL(), &zone, cible.SDL(), &destination);
}

// No cut of the selection: each pixel is tested, black ones are skipped, and only those that
// land on the screen (and on the target) are mixed.
void ClsAffSprite::Melanger(int32_t x, int32_t y, Surface& cible) {
    SDL_Surface* src = Image.SDL();
    SDL_Surface* dst = cible.SDL();
    SDL_Rect clip;
    SDL_GetClipRect(dst, &clip);
    const int32_t dxMin = std::max(0, clip.x), dxMax = std::min(EcranLargeur, clip.x + clip.w);
    const int32_t dyMin = std::max(0, clip.y), dyMax = std::min(EcranHauteur, clip.y + clip.h);
    const Rectangle& s = selection_;
    const int32_t colDebut = std::max({s.Left, 0, dxMin - x + s.Left});
    const int32_t colFin = std::min({s.Right, src->w, dxMax - x + s.Left});
    const int32_t ligDebut = std::max({s.Top, 0, dyMin - y + s.Top});
    const int32_t ligFin = std::min({s.Bottom, src->h, dyMax - y + s.Top});
    if (colDebut >= colFin || ligDebut >= ligFin) return;
    SDL_LockSurface(src);
    if (dst != src) SDL_LockSurface(dst);
    for (int32_t j = ligDebut; j < ligFin; ++j) {
        const uint32_t* source = Ligne(src, j);
        uint32_t* cibleLigne = Ligne(dst, y + j - s.Top);
        for (int32_t i = colDebut; i < colFin; ++i) {
            const uint32_t p = source[i];
            if ((p & ~MasqueAlpha) == 0) continue;
            uint32_t& t = cibleLigne[x + i - s.Left];
            t = Melange_Moitie(p, t);
        }
    }
    if (dst != src) SDL_UnlockSurface(dst);
    SDL_UnlockSurface(src);
}

void Terrain_Introuvable(std::string_view nom) {
    Boite_Message("Korvalis", "Texture du terrain " + std::string(nom) + " introuvable. Abandon.", GenreMessage::Critique);
    FatalEnd();
}

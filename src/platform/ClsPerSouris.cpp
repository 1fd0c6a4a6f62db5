#include "platform/ClsPerSouris.h"

#include <algorithm>
#include <utility>

#include <SDL.h>

#include "platform/ClsPerEcran.h"
#include "platform/Evenements.h"
#include "rules/Conversions.h"

ClsPerSouris::~ClsPerSouris() { Relacher(); }

void ClsPerSouris::Init() {
    active_ = false;
    SDL_Window* fenetre = ecran_.Fenetre();
    if (!fenetre || SDL_GetKeyboardFocus() != fenetre) return;
    if (SDL_SetRelativeMouseMode(SDL_TRUE) != 0) return;
    // What the mouse did before it was taken does not move the pointer.
    Evenements().DeplacementX = Evenements().DeplacementY = 0;
    active_ = true;
}

void ClsPerSouris::Relacher() {
    if (active_ && SDL_WasInit(SDL_INIT_VIDEO)) SDL_SetRelativeMouseMode(SDL_FALSE);
    active_ = false;
}

void ClsPerSouris::Centrer_curseur(int32_t& x, int32_t& y) {
    x = Arrondir_En<int32_t>(ecran_.Width() / 2.0);
    y = Arrondir_En<int32_t>(ecran_.Height() / 2.0);
}

// The mouse is lost when the window lost the focus, or when it was let go on the way.
bool ClsPerSouris::Lire_Peripherique() {
    SDL_Window* fenetre = ecran_.Fenetre();
    if (!active_ || !fenetre || SDL_GetKeyboardFocus() != fenetre || !SDL_GetRelativeMouseMode()) return false;
    EvenementsEnAttente& evenements = Evenements();
    Etat.lX = std::exchange(evenements.DeplacementX, 0);
    Etat.lY = std::exchange(evenements.DeplacementY, 0);
    Etat.lZ = std::exchange(evenements.Molette, 0);
    const Uint32 boutons = SDL_GetMouseState(nullptr, nullptr) | std::exchange(evenements.BoutonsAppuyes, 0);
    constexpr Uint32 masques[4] = {SDL_BUTTON_LMASK, SDL_BUTTON_RMASK, SDL_BUTTON_MMASK, SDL_BUTTON_X1MASK};
    for (std::size_t b = 0; b < Etat.Boutons.size(); ++b) Etat.Boutons[b] = (boutons & masques[b]) ? 0x80 : 0;
    return true;
}

void ClsPerSouris::Positions(int32_t& x, int32_t& y, int32_t& z) {
    if (!Lire_Peripherique()) {
        Init();
        return;
    }
    Appliquer(x, y, z);
}

void ClsPerSouris::Appliquer(int32_t& x, int32_t& y, int32_t& z) const {
    x = std::clamp(x + Etat.lX, 0, std::max(0, ecran_.Width()));
    y = std::clamp(y + Etat.lY, 0, std::max(0, ecran_.Height()));
    z += Etat.lZ;
}

bool ClsPerSouris::Clique(int bouton) {
    if (bouton < 0 || bouton > 2) return false;
    const auto b = static_cast<std::size_t>(bouton);
    const bool enfonce = Etat.Boutons[b] != 0;
    precedent_[b] = actuel_[b];
    actuel_[b] = !enfonce;
    return precedent_[b] && enfonce;
}

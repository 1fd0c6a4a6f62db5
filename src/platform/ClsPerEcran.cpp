#include "platform/ClsPerEcran.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

#include <SDL.h>

#include "platform/Evenements.h"
#include "rules/BoiteMessage.h"
#include "rules/Chemins.h"
#include "rules/ClsFicINI.h"
#include "rules/Conversions.h"

int32_t EcranLargeur = 0, EcranHauteur = 0;

namespace {

constexpr const char* Titre = "Korvalis";
constexpr const char* ErreurOuverture = "Une erreur a eu lieu durant l'initalisation de DirectDraw";
constexpr const char* EchecFenetre = "Echec de la création de la surface DirectDraw";

// The screen that is open, for FatalEnd.
ClsPerEcran*& Ecran_Ouvert() {
    static ClsPerEcran* ecran = nullptr;
    return ecran;
}

int16_t Dimension_Stricte(ClsFicINI& ini, const char* cle) {
    const auto valeur = Convertir_Strict_Entier(ini.Parametre(cle));
    if (!valeur || *valeur < std::numeric_limits<int16_t>::min() || *valeur > std::numeric_limits<int16_t>::max()) {
        Boite_Message("Erreur", "Une erreur s'est produit pendant le chargement de :" + ini.DerniereLigne + "(" + ini.Fichier + ").",
                      GenreMessage::Critique);
        std::exit(1);
    }
    return static_cast<int16_t>(*valeur);
}

// A window no larger than the desktop's free area, with the proportions of the game image.
void Taille_Fenetre(int32_t largeur, int32_t hauteur, int& l, int& h) {
    l = largeur;
    h = hauteur;
    SDL_Rect libre;
    if (SDL_GetDisplayUsableBounds(0, &libre) != 0 || libre.w <= 0 || libre.h <= 0) return;
    const double echelle = std::min({1.0, static_cast<double>(libre.w) / largeur, static_cast<double>(libre.h) / hauteur});
    l = std::max(1, static_cast<int>(largeur * echelle));
    h = std::max(1, static_cast<int>(hauteur * echelle));
}

}  // namespace

EvenementsEnAttente& Evenements() {
    static EvenementsEnAttente evenements;
    return evenements;
}

ClsPerEcran::ClsPerEcran() {
    ClsFicINI ini;
    ini.Fichier = Fichier;
    ini.Section = Section;
    ModeFenetre = Souple_Booleen(ini.Parametre("ModeFenetre"));
    const int32_t nombre = Souple_En<int32_t>(ini.Parametre("NombreResolution"));
    Resolution = Arrondir_En<int16_t>(Convertir_Souple(ini.Parametre("Resolution")) - 1);
    for (int32_t n = 1; n <= nombre; ++n) {
        ini.Section = Section_Numerotee("Resolution_", n);
        resolutionsX_.push_back(Dimension_Stricte(ini, "Largeur"));
        resolutionsY_.push_back(Dimension_Stricte(ini, "Hauteur"));
    }
    if (resolutionsX_.empty()) return;
    const std::size_t ligne = Resolution >= 0 && Resolution < Nombre_Resolutions() ? static_cast<std::size_t>(Resolution) : 0;
    largeur_ = resolutionsX_[ligne];
    hauteur_ = resolutionsY_[ligne];
}

ClsPerEcran::~ClsPerEcran() { Fermer_Ecran(); }

int16_t ClsPerEcran::Definir_ResolutionX(int i) const {
    return i >= 0 && i < Nombre_Resolutions() ? resolutionsX_[static_cast<std::size_t>(i)] : int16_t{0};
}

int16_t ClsPerEcran::Definir_ResolutionY(int i) const {
    return i >= 0 && i < Nombre_Resolutions() ? resolutionsY_[static_cast<std::size_t>(i)] : int16_t{0};
}

void ClsPerEcran::Definir_Resolution(int16_t i) {
    Resolution = i;
    ClsFicINI ini;
    ini.Fichier = Fichier;
    ini.Section = Section;
    ini.Parametre("Resolution", std::to_string(i + 1));
}

bool ClsPerEcran::Init() {
    Fermer_Ecran();
    EcranLargeur = largeur_;
    EcranHauteur = hauteur_;
    bool erreur = largeur_ <= 0 || hauteur_ <= 0;
    if (!erreur && SDL_InitSubSystem(SDL_INIT_VIDEO) == 0) {
        video_ = true;
        int l = largeur_, h = hauteur_;
        Uint32 drapeaux = SDL_WINDOW_FULLSCREEN_DESKTOP;
        if (ModeFenetre) {
            Taille_Fenetre(largeur_, hauteur_, l, h);
            drapeaux = SDL_WINDOW_RESIZABLE;
        }
        fenetre_ = SDL_CreateWindow(Titre, SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, l, h, drapeaux);
        if (fenetre_) {
            rendu_ = SDL_CreateRenderer(fenetre_, -1, SDL_RENDERER_ACCELERATED);
            if (!rendu_) rendu_ = SDL_CreateRenderer(fenetre_, -1, SDL_RENDERER_SOFTWARE);
        }
    }
    if (!rendu_) {
        Fermer_Ecran();
        Boite_Message(Titre, ErreurOuverture, GenreMessage::Critique);
        Boite_Message(Titre, EchecFenetre, GenreMessage::Critique);
        return false;
    }
    if (ModeFenetre) {
        tampon_ = Surface(SDL_LoadBMP(Chemin_Jeu("Images/Fond" + std::to_string(largeur_) + ".bmp").c_str()));
        // Without its picture the game still gets a buffer of the right size.
        if (!tampon_.Valide()) {
            erreur = true;
            tampon_ = Surface(largeur_, hauteur_);
        }
    } else {
        tampon_ = Surface(largeur_, hauteur_);
    }
    if (tampon_.Valide()) {
        texture_ = SDL_CreateTexture(rendu_, SDL_PIXELFORMAT_ARGB8888, SDL_TEXTUREACCESS_STREAMING, tampon_.Largeur(),
                                     tampon_.Hauteur());
    }
    if (texture_) {
        SDL_SetTextureBlendMode(texture_, SDL_BLENDMODE_NONE);
        SDL_RenderSetLogicalSize(rendu_, tampon_.Largeur(), tampon_.Hauteur());
        SDL_SetRenderDrawColor(rendu_, 0, 0, 0, 255);
        Adapter_Echelle();
    } else {
        erreur = true;
    }
    Ecran_Ouvert() = this;
    Evenements() = {};
    if (erreur) Boite_Message(Titre, ErreurOuverture, GenreMessage::Critique);
    return true;
}

void ClsPerEcran::Fermer_Ecran() {
    if (Ecran_Ouvert() == this) Ecran_Ouvert() = nullptr;
    if (fenetre_) SDL_SetRelativeMouseMode(SDL_FALSE);
    if (texture_) SDL_DestroyTexture(texture_);
    if (rendu_) SDL_DestroyRenderer(rendu_);
    if (fenetre_) SDL_DestroyWindow(fenetre_);
    texture_ = nullptr;
    rendu_ = nullptr;
    fenetre_ = nullptr;
    tampon_ = Surface();
    if (video_) SDL_QuitSubSystem(SDL_INIT_VIDEO);
    video_ = false;
}

// Whole multiples of the game image stay sharp; any other scale is smoothed.
void ClsPerEcran::Adapter_Echelle() {
    int l = 0, h = 0;
    if (!texture_ || SDL_GetRendererOutputSize(rendu_, &l, &h) != 0) return;
    const double echelle = std::min(static_cast<double>(l) / tampon_.Largeur(), static_cast<double>(h) / tampon_.Hauteur());
    SDL_SetTextureScaleMode(texture_, echelle == std::floor(echelle) ? SDL_ScaleModeNearest : SDL_ScaleModeLinear);
}

void ClsPerEcran::Presenter_Image() {
    if (!texture_) return;
    SDL_Surface* image = tampon_.SDL();
    SDL_UpdateTexture(texture_, nullptr, image->pixels, image->pitch);
    SDL_RenderClear(rendu_);
    SDL_RenderCopy(rendu_, texture_, nullptr, nullptr);
    SDL_RenderPresent(rendu_);
}

void ClsPerEcran::Pomper_Evenements() {
    if (!fenetre_) return;
    EvenementsEnAttente& en_attente = Evenements();
    SDL_Event e;
    while (SDL_PollEvent(&e)) {
        switch (e.type) {
        case SDL_QUIT: en_attente.Fermeture = true; break;
        case SDL_WINDOWEVENT:
            if (e.window.event == SDL_WINDOWEVENT_SIZE_CHANGED) Adapter_Echelle();
            else if (e.window.event == SDL_WINDOWEVENT_FOCUS_LOST) SDL_SetRelativeMouseMode(SDL_FALSE);
            else if (e.window.event == SDL_WINDOWEVENT_CLOSE) en_attente.Fermeture = true;
            break;
        case SDL_MOUSEMOTION:
            if (SDL_GetRelativeMouseMode()) {
                en_attente.DeplacementX += e.motion.xrel;
                en_attente.DeplacementY += e.motion.yrel;
            }
            break;
        case SDL_MOUSEBUTTONDOWN:
            if (SDL_GetRelativeMouseMode()) en_attente.BoutonsAppuyes |= SDL_BUTTON(e.button.button);
            break;
        case SDL_KEYDOWN:
            if (e.key.keysym.scancode >= 0 && static_cast<std::size_t>(e.key.keysym.scancode) < en_attente.ToucheAppuyee.size())
                en_attente.ToucheAppuyee[static_cast<std::size_t>(e.key.keysym.scancode)] = true;
            break;
        case SDL_MOUSEWHEEL:
            en_attente.Molette += e.wheel.direction == SDL_MOUSEWHEEL_FLIPPED ? -e.wheel.y : e.wheel.y;
            break;
        default: break;
        }
    }
}

void FatalEnd() {
    if (ClsPerEcran* ecran = Ecran_Ouvert()) ecran->Fermer_Ecran();
    std::exit(1);
}

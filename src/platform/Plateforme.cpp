#include "platform/Plateforme.h"

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <string>
#include <string_view>

#include <SDL.h>

#include "rules/BoiteMessage.h"
#include "rules/Horloge.h"

namespace {

bool Pilote_Sans_Ecran(std::string_view pilote) { return pilote == "dummy" || pilote == "offscreen"; }

bool Variable_Definie(const char* nom) {
    const char* valeur = std::getenv(nom);
    return valeur && *valeur;
}

Uint32 Icone(GenreMessage genre) {
    switch (genre) {
    case GenreMessage::Critique: return SDL_MESSAGEBOX_ERROR;
    case GenreMessage::Exclamation: return SDL_MESSAGEBOX_WARNING;
    default: return SDL_MESSAGEBOX_INFORMATION;   // SDL has no question icon
    }
}

ReponseMessage Message_SDL(std::string_view titre, std::string_view texte, GenreMessage genre,
                           BoutonsMessage boutons) {
    constexpr Uint32 Entree = SDL_MESSAGEBOX_BUTTON_RETURNKEY_DEFAULT;
    constexpr Uint32 Echap = SDL_MESSAGEBOX_BUTTON_ESCAPEKEY_DEFAULT;
    const auto bouton = [](Uint32 drapeaux, ReponseMessage r, const char* nom) {
        return SDL_MessageBoxButtonData{drapeaux, static_cast<int>(r), nom};
    };
    SDL_MessageBoxButtonData liste[2] = {};
    int nombre = 2;
    switch (boutons) {
    case BoutonsMessage::OK:
        liste[0] = bouton(Entree | Echap, ReponseMessage::OK, "OK");
        nombre = 1;
        break;
    case BoutonsMessage::OKAnnuler:
        liste[0] = bouton(Entree, ReponseMessage::OK, "OK");
        liste[1] = bouton(Echap, ReponseMessage::Annuler, "Annuler");
        break;
    case BoutonsMessage::OuiNon:
        liste[0] = bouton(Entree, ReponseMessage::Oui, "Oui");
        liste[1] = bouton(Echap, ReponseMessage::Non, "Non");
        break;
    }
    const std::string t(titre), m(texte);
    const SDL_MessageBoxData boite{Icone(genre) | SDL_MESSAGEBOX_BUTTONS_LEFT_TO_RIGHT, nullptr, t.c_str(),
                                   m.c_str(), nombre, liste, nullptr};
    int choix = -1;
    if (SDL_ShowMessageBox(&boite, &choix) != 0) return Message_Sur_Erreur_Standard(titre, texte, genre, boutons);
    // Closed without a button: the answer of Escape.
    return choix < 0 ? static_cast<ReponseMessage>(liste[nombre - 1].buttonid) : static_cast<ReponseMessage>(choix);
}

}  // namespace

bool Affichage_Disponible() {
    const char* demande = std::getenv("SDL_VIDEODRIVER");
    if (demande && Pilote_Sans_Ecran(demande)) return false;
    if (SDL_WasInit(SDL_INIT_VIDEO)) {
        const char* pilote = SDL_GetCurrentVideoDriver();
        return pilote && !Pilote_Sans_Ecran(pilote);
    }
    return Variable_Definie("DISPLAY") || Variable_Definie("WAYLAND_DISPLAY");
}

float Horloge_Systeme() {
    using namespace std::chrono;
    const auto maintenant = system_clock::now();
    const std::time_t t = system_clock::to_time_t(maintenant);
    std::tm local{};
    localtime_r(&t, &local);
    const duration<double> fraction = maintenant - system_clock::from_time_t(t);
    return static_cast<float>(local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec + fraction.count());
}

void Installer_Plateforme() {
    Definir_Source_Horloge(Horloge_Systeme);
    if (Affichage_Disponible()) Definir_Afficheur_Message(Message_SDL);
}

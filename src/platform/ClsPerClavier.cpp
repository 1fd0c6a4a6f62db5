#include "platform/ClsPerClavier.h"

#include <SDL.h>

#include "platform/CodesTouches.h"
#include "platform/Evenements.h"

namespace {

constexpr int CodeCtrl = 29, CodeMaj = 42, CodeAlt = 56, CodeF4 = 62;

}  // namespace

int16_t ClsPerClavier::Pression_Clavier(bool& ctrl, bool& maj, bool& alt) {
    EvenementsEnAttente& evenements = Evenements();
    if (evenements.Fermeture) {
        evenements.Fermeture = false;
        ctrl = maj = false;
        alt = true;
        return CodeF4;
    }
    Lire_Etat();
    return Interpreter(ctrl, maj, alt);
}

// A key is down if it still is, or if it went down since the last reading.
void ClsPerClavier::Lire_Etat() {
    int nombre = 0;
    const Uint8* touches = SDL_GetKeyboardState(&nombre);
    auto& appuis = Evenements().ToucheAppuyee;
    for (const PaireTouche& p : Table_Touches()) {
        const auto s = static_cast<std::size_t>(p.scancode);
        const bool appui = s < appuis.size() && appuis[s];
        Etat[p.code] = (p.scancode < nombre && touches[p.scancode]) || appui ? 0x80 : 0;
    }
    appuis.fill(false);
}

int16_t ClsPerClavier::Interpreter(bool& ctrl, bool& maj, bool& alt) {
    int16_t touche = 0;
    for (int code = 0; code < 256; ++code) {
        const bool enfoncee = Etat[static_cast<std::size_t>(code)] != 0;
        if (code == CodeCtrl) ctrl = enfoncee;
        else if (code == CodeMaj) maj = enfoncee;
        else if (code == CodeAlt) alt = enfoncee;
        else if (enfoncee) {
            touche = static_cast<int16_t>(code);
            break;
        }
    }
    const bool rienAvant = AucuneTouche;
    AucuneTouche = touche == 0;
    return rienAvant ? touche : int16_t{0};
}

// What the window's events leave for the mouse and the keyboard between two reads. The
// screen drains the event queue once per render; the devices take what piled up.
#pragma once

#include <cstdint>

struct EvenementsEnAttente {
    int32_t DeplacementX = 0, DeplacementY = 0;   // motion of the grabbed mouse, in pixels of the game image
    int32_t Molette = 0;                          // wheel notches, away from the player positive
    bool Fermeture = false;                       // the window was asked to close
};

EvenementsEnAttente& Evenements();

// What the window's events leave for the mouse and the keyboard between two reads. The
// screen drains the event queue once per render; the devices take what piled up.
#pragma once

#include <array>
#include <cstdint>

struct EvenementsEnAttente {
    int32_t DeplacementX = 0, DeplacementY = 0;   // motion of the grabbed mouse, in pixels of the game image
    int32_t Molette = 0;                          // wheel notches, away from the player positive
    bool Fermeture = false;                       // the window was asked to close
    // Presses seen since the last read, so that a key or button let go again before the
    // next read still counts once: SDL scancodes, and mouse buttons by SDL's bit masks.
    std::array<bool, 512> ToucheAppuyee{};
    uint32_t BoutonsAppuyes = 0;
};

EvenementsEnAttente& Evenements();

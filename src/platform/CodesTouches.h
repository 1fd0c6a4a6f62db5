// The one translation between the keys as SDL names them (scancodes: a place on the
// keyboard, whatever its layout) and the scan codes that "Ini_Touches" stores: 1 Escape,
// 2 to 11 the digit row, 30 the key right of Caps Lock, 57 Space, 59 F1, 29 left Control,
// 42 left Shift, 56 left Alt; a key of the extended set is 0x80 plus the code of the key it
// doubles (157 right Control, 200 the up arrow). Both are places, so a player with an AZERTY
// keyboard and one with a QWERTY keyboard press the same key for the same code.
#pragma once

#include <cstdint>
#include <span>

struct PaireTouche {
    int scancode;       // SDL_Scancode
    uint8_t code;       // scan code of "Ini_Touches"
};

// Every key the game knows; no scancode and no code appears twice.
std::span<const PaireTouche> Table_Touches();

// The code of an SDL scancode, 0 for a key outside the table.
uint8_t Code_Touche(int scancode);
// The SDL scancode of a code, 0 (SDL's unknown key) for a code outside the table.
int Scancode_Touche(uint8_t code);

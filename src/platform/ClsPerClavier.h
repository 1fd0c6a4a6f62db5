// The keyboard of play: which keys are down, by the scan codes of "Ini_Touches", turned into
// one key per press. The keyboard is never held: the game only looks at it.
#pragma once

#include <array>
#include <cstdint>

#include "platform/Peripheriques.h"

class ClsPerClavier final : public PeripheriqueClavier {
public:
    // One byte per scan code, non-zero while the key is down.
    std::array<uint8_t, 256> Etat{};

    // Reads the keys, then Interpreter. A request to close the window answers Alt and F4,
    // the one combination that always ends a game.
    int16_t Pression_Clavier(bool& ctrl, bool& maj, bool& alt) override;

    // Fills Etat from the keys that SDL sees down.
    void Lire_Etat();
    // Walks the codes upward. Left Control (29), left Shift (42) and left Alt (56) set ctrl,
    // maj and alt and are never the key; the first other key down is the key and ends the
    // walk, so a modifier above it keeps its former value. The key is answered only if the
    // previous reading had no key down: one answer per press, and a second key held with the
    // first is not seen before all keys are up.
    int16_t Interpreter(bool& ctrl, bool& maj, bool& alt);

private:
    bool AucuneTouche = false;      // no key was down at the last reading
};

// The mouse of play. The pointer is the game's own, two numbers moved by the mouse's
// relative motion and kept on the game image; the system pointer is hidden and the mouse is
// held by the window only while the game is being played and the window has the focus.
// Clicks are press edges: one click per press, however long the button stays down.
#pragma once

#include <array>
#include <cstdint>

#include "platform/Peripheriques.h"

class ClsPerEcran;

class ClsPerSouris final : public PeripheriqueSouris {
public:
    // The last reading: motion since the one before, in pixels of the game image, the wheel
    // in notches, and the buttons left, right, middle and fourth (non-zero while down).
    struct EtatSouris {
        int32_t lX = 0, lY = 0, lZ = 0;
        std::array<uint8_t, 4> Boutons{};
    };
    EtatSouris Etat;

    explicit ClsPerSouris(const ClsPerEcran& ecran) : ecran_(ecran) {}
    ~ClsPerSouris() override;
    ClsPerSouris(const ClsPerSouris&) = delete;
    ClsPerSouris& operator=(const ClsPerSouris&) = delete;

    // Takes the mouse, if the game window has the focus; Active says whether it did.
    void Init() override;
    bool Active() const override { return active_; }
    // x = half the width, y = half the height, rounded to nearest with ties to even.
    void Centrer_curseur(int32_t& x, int32_t& y) override;
    // Reads the mouse and moves the pointer. When the mouse is not held (the window lost it),
    // Init is tried again and the pointer stays where it is for this pass.
    void Positions(int32_t& x, int32_t& y, int32_t& z) override;
    // True on the one pass on which button 0 (left), 1 (right) or 2 (middle) goes down, by
    // the buttons of the last Positions.
    bool Clique(int bouton) override;

    // Etat's motion onto the pointer: x within 0 and the width, y within 0 and the height,
    // both ends included; z adds up with no limit.
    void Appliquer(int32_t& x, int32_t& y, int32_t& z) const;
    // Lets the mouse go.
    void Relacher();

private:
    const ClsPerEcran& ecran_;
    bool active_ = false;
    std::array<bool, 3> precedent_{}, actuel_{};

    bool Lire_Peripherique();
};

// The devices of play as the frame loop sees them: main window, screen, mouse, keyboard.
// Each has a real implementation over SDL and a headless one used by the simulator and the
// tests; nothing in the game logic calls SDL.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Surface.h"

class PeripheriqueFenetre {
public:
    virtual ~PeripheriqueFenetre() = default;
    virtual void Definir_Titre(std::string_view titre) = 0;
    virtual void Sablier(bool actif) = 0;   // the hourglass pointer while loading
    virtual void Pomper_Evenements() = 0;  // let pending window events run
};

class PeripheriqueEcran {
public:
    virtual ~PeripheriqueEcran() = default;
    // False when there is nothing to draw on: the drawing passes then keep only their
    // state half.
    virtual bool Affiche() const = 0;
    virtual void Presenter_Image() = 0;
    virtual void Pomper_Evenements() = 0;
    // Opens the display at the start of a game; false when the game cannot be shown at all.
    virtual bool Init() { return true; }
    virtual void Fermer_Ecran() {}
    // The back buffer that a render draws on; none without a display.
    virtual Surface* Tampon() { return nullptr; }
};

class PeripheriqueSouris {
public:
    virtual ~PeripheriqueSouris() = default;
    virtual bool Active() const = 0;
    // Moves the pointer by the motion since the last call; z is the wheel delta.
    virtual void Positions(int32_t& x, int32_t& y, int32_t& z) = 0;
    virtual bool Clique(int bouton) = 0;
    // Takes the mouse for the game, at its start.
    virtual void Init() {}
    // The pointer to the middle of the game image.
    virtual void Centrer_curseur(int32_t& /*x*/, int32_t& /*y*/) {}
};

class PeripheriqueClavier {
public:
    virtual ~PeripheriqueClavier() = default;
    // The key pressed on this pass as a scan code (0 for none) and the held modifiers.
    virtual int16_t Pression_Clavier(bool& ctrl, bool& maj, bool& alt) = 0;
    virtual void Init() {}
};

// Headless stand-ins: a window that keeps its captions, a screen that shows nothing,
// a mouse that never moves, a keyboard that is never pressed.
class FenetreMuette final : public PeripheriqueFenetre {
public:
    std::vector<std::string> Titres;   // every caption given, in order
    bool SablierActif = false;
    void Definir_Titre(std::string_view titre) override { Titres.emplace_back(titre); }
    void Sablier(bool actif) override { SablierActif = actif; }
    void Pomper_Evenements() override {}
};

class EcranNul final : public PeripheriqueEcran {
public:
    int32_t ImagesPresentees = 0;
    bool Affiche() const override { return false; }
    void Presenter_Image() override { ++ImagesPresentees; }
    void Pomper_Evenements() override {}
};

class SourisMuette final : public PeripheriqueSouris {
public:
    bool Active() const override { return true; }
    void Positions(int32_t&, int32_t&, int32_t& z) override { z = 0; }
    bool Clique(int) override { return false; }
};

class ClavierMuet final : public PeripheriqueClavier {
public:
    int16_t Pression_Clavier(bool& ctrl, bool& maj, bool& alt) override {
        ctrl = maj = alt = false;
        return 0;
    }
};

// The devices of one run of the program.
struct Peripheriques {
    PeripheriqueFenetre& Fenetre;
    PeripheriqueEcran& Ecran;
    PeripheriqueSouris& Souris;
    PeripheriqueClavier& Clavier;
};

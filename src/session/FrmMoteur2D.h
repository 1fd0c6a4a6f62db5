// The frame loop: the whole game from the player's point of view. Every pass reads the
// clock and the devices; a tick advances the world at Vitesse ticks a second (not while
// paused); a render draws at FPS images a second. The loop never sleeps.
#pragma once

#include <cstdint>

#include "platform/Peripheriques.h"
#include "session/ChoixPartie.h"

class FrmMoteur2D {
public:
    explicit FrmMoteur2D(Peripheriques peripheriques) : P(peripheriques) {}

    float DernierTemps = 0;      // clock at the last render
    float TempsCourant = 0;      // clock of this pass
    float Ecart = 0;             // TempsCourant - DernierTemps
    int32_t NombreImages = 0;    // renders since the start
    float DebutSeconde = 0;      // start of the current measuring second
    int32_t ImagesSeconde = 0;   // renders in the current measuring second
    int32_t FPSMesure = 0;       // renders counted in the last finished second
    int32_t CameraX = 0, CameraY = 0;
    int16_t Touche = 0;
    bool ToucheCtrl = false, ToucheMaj = false, ToucheAlt = false;

    // What lives across passes.
    int32_t SourisX = 0, SourisY = 0, SourisZ = 0;
    bool CliqueGauche = false, CliqueDroit = false;
    int32_t CodeBouton = 0;

    int64_t NombreTours = 0;     // ticks since the start

    // Opens the game and loops until FinPartie.
    void MoteurJeu(const ChoixPartie& choix);

    // The stages of MoteurJeu, for those who drive the loop themselves. Ouvrir is false
    // when the world could not be built.
    bool Ouvrir(const ChoixPartie& choix);
    void Passe();

private:
    Peripheriques P;

    void Lire_Peripheriques();
    void Tour();
    void Rendu();
    void Mesurer_FPS();
    void Verifier_Fin();
};

// One tick of all characters.
void Deplacer_Persos();

// True when the time since the last render has passed one period of the rate; the negative
// limb catches the clock wrapping at midnight.
bool Periode_Ecoulee(float ecart, int16_t rythme);

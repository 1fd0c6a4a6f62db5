// The frame loop: the whole game from the player's point of view. Every pass reads the
// clock and the devices; a tick advances the world at Vitesse ticks a second (not while
// paused); a render draws at FPS images a second. The loop never sleeps.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "interface/ClsIntMonde.h"
#include "platform/ClsAffSprite.h"
#include "platform/Peripheriques.h"
#include "session/ChoixPartie.h"

class ClsJeuPerso;
class ClsJeuEffet;

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
    int32_t CameraX = 0, CameraY = 0;   // world pixel at the top left of the screen
    int16_t Touche = 0;
    bool ToucheCtrl = false, ToucheMaj = false, ToucheAlt = false;

    // What lives across passes.
    int32_t SourisX = 0, SourisY = 0, SourisZ = 0;
    bool CliqueGauche = false, CliqueDroit = false;
    int32_t CodeBouton = 0;

    int64_t NombreTours = 0;     // ticks since the start

    // What the world view borrows from the interface: status bars, bubbles, frame rate.
    ClsIntMonde Interface;
    ClsAffSprite ImageFin;       // "Victoire" above, "Défaite" below
    int32_t SpritesDessines = 0; // pictures the last render put on the screen

    // Opens the game and loops until FinPartie.
    void MoteurJeu(const ChoixPartie& choix);

    // The stages of MoteurJeu, for those who drive the loop themselves. Ouvrir is false
    // when the world could not be built.
    bool Ouvrir(const ChoixPartie& choix);
    void Passe();

    // The view follows the active hero, kept inside the map: at the start of a game and on
    // every tick, so that it stands still while the game is paused.
    void Centrer_Camera();

    // One render: the world, the pointer and the frame rate onto the back buffer, then
    // shown. Without a screen only the state that drawing moves on changes: effects advance,
    // hurt houses catch fire, houses step their animation, comments expire, the pointer
    // takes the mode of what lies under it.
    void Rendu();

    // Loads the pictures of play and the interface's settings for the screen's size: the
    // opening does it when there is a screen, a capture once it has switched one on.
    void Charger_Images();

private:
    Peripheriques P;
    Surface* Tampon = nullptr;   // the back buffer of the render under way, none without a screen
    std::string TexteBulle;      // the pointer's bubble, rebuilt in place at each render

    void Lire_Peripheriques();
    void Tour();
    void Mesurer_FPS();
    void Verifier_Fin();

    // Clicks on the world (CliquesMonde.cpp).
    void Cliquer();
    void Clic_Gauche_Monde();

    // The world drawing passes (AffichageMonde.cpp), in the order of a render.
    void Afficher_Terrain();
    void Afficher_Ressources();
    void Afficher_Batiments();
    void Afficher_Chateau(std::size_t f);
    void Afficher_Maison(std::size_t i);
    void Afficher_Cadre_Actif();
    void Afficher_Progression();
    void Afficher_Progression_Maison();
    void Afficher_Persos();
    void Afficher_Barres_Perso(const ClsJeuPerso& p, int32_t x, int32_t y);
    void Afficher_Effets();
    void Jouer_Effet(ClsJeuEffet& effet);
    void Afficher_Commentaires();
    void Afficher_Souris();
    int32_t Curseur_Batiment();
    void Afficher_Emprise_Batiment(int32_t x, int32_t y, int16_t type, bool bon);
    void Afficher_Info_Terrain(int32_t x, int32_t y);
    void Afficher_Fin();
    // Whether a picture of this size at this place of the screen shows at all; counts it if so.
    bool Montrer(int32_t x, int32_t y, int32_t largeur, int32_t hauteur);
};

// Whether Afficher_Persos draws character i: in the world (not inside a building), and
// for the dead only the active hero and those of its fief, never a summoned creature.
bool Perso_Affiche(std::size_t i);

// One tick of all characters.
void Deplacer_Persos();

// True when the time since the last render has passed one period of the rate; the negative
// limb catches the clock wrapping at midnight.
bool Periode_Ecoulee(float ecart, int16_t rythme);

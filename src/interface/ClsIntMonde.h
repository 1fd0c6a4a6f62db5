// The pieces of the play interface that the drawing of the world uses: a status bar, the
// bubble of the thing under the pointer, the frame rate, and the switch of those bubbles.
// They carry the names and behaviour that the whole interface will have, so that it can
// take them over as they are.
//
// The bubble's look comes from "Ini_Boutons" (section Boutons); the frame rate and the
// switch from the layout "Ini_Interface<width>" when the game folder has it, otherwise they
// keep the values below.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

class Surface;

class ClsIntMonde {
public:
    // The frame rate: drawn or not, its colour, the label before the number, where.
    bool AfficherFPS = true;
    int32_t FPSCouleur = 0xFFFFFF;
    std::string FPSMessage = "FPS : ";
    int16_t FPSPositionX = 8, FPSPositionY = 4;

    // The bubble of a button, from "Ini_Boutons".
    bool AfficherInfoBulle = true;
    int16_t InfoBulleDecalageX = 20, InfoBulleDecalageY = 20;
    int32_t CouleurInfoBulle = 0;
    int32_t CouleurRectangleFond = 0xBEE4F0;
    int16_t BordureRectangleFond = 3;

    // Reads "Ini_Boutons" and, if present, the layout of a screen of this width; without a
    // layout the frame rate goes to the top right corner.
    void Charger(int32_t largeurEcran);

    // Bubbles for the things of the world under the pointer; a write is kept in the layout
    // file at once when the game folder has one.
    bool Definir_AfficherInfoBulleTerrain() const { return AfficherInfoBulleTerrain; }
    void Definir_AfficherInfoBulleTerrain(bool afficher);

    // One gauge. A black box one pixel larger than the bar; then, if potentiel is above 0, a
    // white part for potentiel / maximum; then a part for valeur / maximum in couleur, or,
    // when couleur is 0, dark red below a tenth, red below a quarter, orange below a half and
    // green above. A part grows from the left, or with vertical from the bottom up.
    void Afficher_Barre_Statut(double valeur, double potentiel, double maximum, int32_t x, int32_t y, Surface& ecran,
                               int32_t largeur, int32_t hauteur, int32_t couleur, bool vertical) const;

    // texte as a bubble near the pointer (x, y), kept on the screen.
    void Afficher_Info_Bulles_Terrain(int32_t x, int32_t y, std::string_view texte, Surface& surface) const;

    // The measured frame rate, at least two digits.
    void Afficher_FPS(int32_t fps, Surface& ecran) const;

private:
    bool AfficherInfoBulleTerrain = true;
    std::string fichierInterface_;   // the layout file read, empty when there is none
    mutable std::string texteFPS_;   // the rate's text, rebuilt in place at each render

    void Afficher_Info_Bulle(int32_t x, int32_t y, std::string_view texte, Surface& ecran, bool forcer) const;
};

// Width in characters and count of lines of a bubble's text. Lines end at '#' or a carriage
// return; a line that ends with one counts that character in its width.
void Mesurer_Bulle(std::string_view texte, int32_t& largeur, int32_t& lignes);

// The colour of a gauge's value when the bar has no colour of its own.
int32_t Couleur_Jauge(double ratio);

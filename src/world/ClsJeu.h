// Pace and pause of the game, read from "Ini_Jeu".
#pragma once

#include <cstdint>

class ClsJeu {
public:
    int16_t VitesseMin = 0, VitesseMax = 0;
    bool Pause = false;

    // Reads "Ini_Jeu". A rate of 0 or less would stop the loop's arithmetic: it is brought
    // back within the file's bounds with a warning naming the key.
    void Charger();

    int16_t Definir_FPS() const { return FPS; }
    int16_t Definir_Vitesse() const { return Vitesse; }
    // Sets both rates and writes both keys to the file at once.
    void Definir_Vitesse(int16_t valeur);

private:
    int16_t FPS = 0, FPSMin = 0, FPSMax = 0, Vitesse = 0;
};

// The visual effects: one picture per effect, a row of cells of the effect's size, one cell
// per step. The figures of each effect are copied from the rules at load.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/ClsAffSprite.h"

class ClsJeuParam;

class ClsAffEffet {
public:
    struct Effet {
        ClsAffSprite sprite;
        int32_t largeur = 0, hauteur = 0, nombreEtapes = 0;
        double dureeEtape = 0;
        std::string son;
    };
    std::vector<Effet> Effets;

    void Charger(const ClsJeuParam& param);
    // Step `etape` of effect `effet`, its top left at (x, y).
    void Afficher(int32_t effet, int32_t etape, int32_t x, int32_t y, Surface& surface);

    int32_t Largeur(int32_t e) const { return Effets[static_cast<std::size_t>(e)].largeur; }
    int32_t Hauteur(int32_t e) const { return Effets[static_cast<std::size_t>(e)].hauteur; }
    int32_t NombreEtapes(int32_t e) const { return Effets[static_cast<std::size_t>(e)].nombreEtapes; }
    double DureeEtape(int32_t e) const { return Effets[static_cast<std::size_t>(e)].dureeEtape; }
    const std::string& Son(int32_t e) const { return Effets[static_cast<std::size_t>(e)].son; }

    static Rectangle Cellule(int32_t etape, int32_t largeur, int32_t hauteur);
};

// The button sheets of the interface: rows are the states of a button, columns the buttons
// of the group. Each of the seven families has its file and its cell size.
#pragma once

#include <cstdint>
#include <string>

#include "presentation/Cellule.h"

class ClsAffBouton {
public:
    static constexpr int NombreFamilles = 7;
    struct Famille {
        const char* fichier;   // under Images/Boutons/
        int32_t largeur, hauteur;
    };
    // 0 Construire, 1 Infos, 2 Action, 3 Deplacement, 4 Commerce, 5 Transfert, 6 Defilement.
    static constexpr Famille Familles[NombreFamilles] = {
        {"Construire", 28, 28}, {"Infos", 28, 16},    {"Action", 24, 24},    {"Deplacement", 28, 28},
        {"Commerce", 24, 24},   {"Transfert", 24, 24}, {"Defilement", 64, 16},
    };

    int32_t Largeur = 0;
    int32_t Hauteur = 0;
    ClsAffSprite Sprite;

    // Loads the sheet of family `famille` (0 to 6) and takes its cell size; any other number
    // loads nothing.
    void Charger(int famille) {
        if (famille < 0 || famille >= NombreFamilles) return;
        const Famille& f = Familles[famille];
        Largeur = f.largeur;
        Hauteur = f.hauteur;
        Sprite.Charger(std::string("Boutons/") + f.fichier);
    }
    // Button `indice` in state `etat`; black is see-through only when transparent.
    void Afficher(int32_t x, int32_t y, int32_t indice, int32_t etat, Surface& surface, bool transparent) {
        Afficher_Cellule(Sprite, Cellule_En_Ligne(indice, Largeur, Hauteur, etat), x, y, surface, transparent);
    }
};

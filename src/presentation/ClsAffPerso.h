// The character sheets: hero pictures, the humans' sheet of people 0, one sheet per monster.
//
// A look is a block of 3 columns of 24 pixels (the walking steps 0, 1, 2) by 4 rows of 32
// (north, east, south, west). Sprites holds, in order: every file of Persos/HerosF/, then
// of Persos/HerosM/ (a block each), the humans' sheet at NombreHeros, then monster type m's
// sheet at NombreHeros + 1 + m.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ClsAffSprite.h"

class ClsJeuParam;

class ClsAffPerso {
public:
    std::vector<ClsAffSprite> Sprites;
    int32_t NombreHeros = 0;

    // What the game does when it creates the family: counts the files of the two hero folders.
    void Initialiser();

    // Loads every sheet in the order above; a missing picture ends the program.
    void Charger(const ClsJeuParam& param);
    // The sprite of the hero picture `nom` (a file name of the folder of the sex): its rank
    // among the files of HerosF/ then HerosM/. An empty or unknown name gives 0.
    void Charger_Hero(std::string_view nom, bool feminin, int32_t& indice) const;

    // Draws one character, the top left of its cell at (x, y). A direction below 1 is the
    // rest: the middle step looking south. Step 3 shows the middle column, so a walk cycles
    // 0, 1, 2, 1. The dead (semiTransparent) are mixed half and half with the ground.
    void Afficher(int32_t x, int32_t y, int32_t etape, int32_t direction, int32_t apparence, int32_t monstre, bool feminin,
                  Surface& surface, bool fichierPropre, bool semiTransparent);

    static constexpr int32_t Largeur() { return 24; }
    static constexpr int32_t Hauteur() { return 32; }

    // The hero folder of a sex, as a sprite name under Images/ ("Persos/HerosF/"), and as a
    // folder of the disk.
    static std::string CheminHeros(bool feminin) { return feminin ? "Persos/HerosF/" : "Persos/HerosM/"; }
    static std::filesystem::path Dossier_Heros(bool feminin);
    // The sprite name loaded for a file of a hero folder: the file name cut at its first '.'.
    static std::string Nom_Heros(bool feminin, std::string_view fichier);

    // Which sprite and which block of it show a character.
    struct Choix {
        int32_t sprite, bloc;
    };
    static Choix Choisir(int32_t apparence, int32_t monstre, bool feminin, bool fichierPropre, int32_t nombreHeros);
    // The cell of a step and a direction in block `bloc`.
    static Rectangle Cellule(int32_t etape, int32_t direction, int32_t bloc);
};

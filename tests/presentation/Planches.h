// Sheets written by the tests: every cell one flat colour that tells which sheet, column and
// row it is, except its pixel (1, 1), pure black, to show whether the colour key was on.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Images.h"
#include "platform/ClsAffSprite.h"
#include "platform/Surface.h"

constexpr int32_t Fond = 0x5A3C1E;

// Red the sheet (1 to 255), green and blue the column and the row.
constexpr int32_t Couleur_Cellule(int id, int colonne, int ligne) { return id | (0x10 + colonne) << 8 | (0x10 + ligne) << 16; }

inline std::string Planche(int id, int colonnes, int lignes, int largeur, int hauteur) {
    const int l = colonnes * largeur;
    std::vector<int32_t> pixels(static_cast<std::size_t>(l * lignes * hauteur));
    for (int y = 0; y < lignes * hauteur; ++y)
        for (int x = 0; x < l; ++x)
            pixels[static_cast<std::size_t>(y * l + x)] =
                x % largeur == 1 && y % hauteur == 1 ? 0 : Couleur_Cellule(id, x / largeur, y / hauteur);
    return Bmp_24(l, pixels);
}

// What a draw at (x, y) must have left on a screen filled with Fond: the cell's colour in two
// opposite corners, Fond just past them, and at (1, 1) black or Fond as the key was off or on.
// The dead are mixed with Fond, their black pixels skipped.
struct Cellule_Vue {
    int id, colonne, ligne, largeur, hauteur;
    bool cle = true, melange = false;
};

inline std::string Ecarts(const Surface& ecran, int x, int y, const Cellule_Vue& v) {
    const int32_t couleur = Couleur_Cellule(v.id, v.colonne, v.ligne);
    const int32_t vue = v.melange ? Couleur_De_Pixel(Melange_Moitie(Pixel_De_Couleur(couleur), Pixel_De_Couleur(Fond))) : couleur;
    const struct {
        int x, y;
        int32_t attendu;
    } points[] = {
        {x, y, vue},
        {x + v.largeur - 1, y + v.hauteur - 1, vue},
        {x + v.largeur, y, Fond},
        {x, y + v.hauteur, Fond},
        {x + 1, y + 1, v.cle || v.melange ? Fond : 0},
    };
    std::string ecarts;
    for (const auto& p : points)
        if (ecran.Lire_Pixel(p.x, p.y) != p.attendu) ecarts += " (" + std::to_string(p.x - x) + ", " + std::to_string(p.y - y) + ")";
    return ecarts;
}

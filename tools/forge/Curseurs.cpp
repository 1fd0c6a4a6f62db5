// The pointer: Curseurs/ArrowCursor.bmp, one row of twelve 32 x 32 cells, one per pointer
// mode. The tip of the arrow is the top left pixel of the cell (the point the game tests);
// the mode shows as a sign at the arrow's foot.
#include <optional>

#include "Forge.h"
#include "Pictos.h"

namespace {

constexpr int Case = 32;
constexpr int NombreModes = 12;

// What is under the pointer, by mode: nothing, a deposit, a building in hand (good place,
// bad place), the own house (to finish, whole), the own castle, a house of the team, a
// castle of the team, a character, a house and a castle to attack.
std::optional<Insigne> Insigne_Du_Mode(int mode) {
    switch (mode) {
        case 1: return Insigne::Sac;
        case 2: return Insigne::Coche;
        case 3: return Insigne::Croix;
        case 4: return Insigne::Marteau;
        case 5: return Insigne::Maison;
        case 6: return Insigne::Chateau;
        case 7: return Insigne::Piece;
        case 8: return Insigne::Drapeau;
        case 9: return Insigne::Epee;
        case 10: return Insigne::Torche;
        case 11: return Insigne::Bouclier;
        default: return std::nullopt;
    }
}

Toile Fleche(bool attaque) {
    Toile t(Case, Case);
    const std::vector<Point2> contour = {{0, 0}, {0, 17}, {4.5, 13}, {8, 20.5}, {11, 19}, {7.5, 12}, {13, 12}};
    t.Polygone(contour, attaque ? Pal::DrapRouge[3] : Pal::Parchemin[3]);
    // A shade down the right side of the arrow for a little depth.
    t.Transformer([&](int x, int y, Couleur c) {
        const bool bord = !t.Opaque(x + 1, y) || !t.Opaque(x, y + 1);
        return bord ? (attaque ? Pal::DrapRouge[1] : Pal::Parchemin[1]) : (x <= 1 || y <= x ? Melanger(c, Pal::Blanc, 0.35) : c);
    });
    // The outline goes inside the cell's edge, since the tip must stay at (0, 0).
    t.Contourner(Pal::Encre, false);
    for (int y = 0; y < 18; ++y) t.Point(0, y, Pal::Encre);
    for (int x = 0; x < 13; ++x)
        if (t.Opaque(x, 0)) t.Point(x, 0, Pal::Encre);
    return t;
}

}  // namespace

void Forger_Curseurs(Atelier& a) {
    Toile rangee(NombreModes * Case, Case);
    for (int mode = 0; mode < NombreModes; ++mode) {
        Toile cellule = Fleche(mode >= 9);
        if (const auto insigne = Insigne_Du_Mode(mode)) cellule.Coller(Picto_Insigne(*insigne), Case - TaillePicto - 2, Case - TaillePicto - 2);
        rangee.Coller(cellule, mode * Case, 0);
    }
    a.Ecrire("Curseurs/ArrowCursor.bmp", rangee);
}

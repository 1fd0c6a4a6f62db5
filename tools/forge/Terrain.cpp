// The ground: one row of 17 tiles of 16 x 16. Tile 0 is open grass, tile 1 is never used
// (grass too), tiles 2-16 are the shaped tiles of the bare-earth patches the world generator
// grows. A shaped tile knows only which of its four side neighbours belong to the patch: on
// those sides the earth runs to the edge, on the others it stops short behind a wavy grass
// bank. Every texture here is periodic over 16 pixels, so any two tiles join without a seam.
#include <algorithm>
#include <cmath>

#include "Bruit.h"
#include "Forge.h"

namespace {

constexpr int Case = 16;
constexpr uint32_t GraineHerbe = 0x4E52;
constexpr uint32_t GraineTerre = 0x7E22;

// Which side neighbours count, by tile value (the generator's shaping table).
struct Voisins {
    bool n, s, w, e;
};

constexpr Voisins VoisinsDeTuile[17] = {
    {false, false, false, false}, {false, false, false, false},
    {true, true, true, true},     // 2
    {false, true, false, false},  // 3: south only
    {true, false, false, false},  // 4: north only
    {false, false, false, true},  // 5: east only
    {false, false, true, false},  // 6: west only
    {true, true, false, false},   // 7
    {false, false, true, true},   // 8
    {false, true, true, true},    // 9
    {true, false, true, true},    // 10
    {true, true, false, true},    // 11
    {true, true, true, false},    // 12
    {false, true, false, true},   // 13
    {false, true, true, false},   // 14
    {true, false, false, true},   // 15
    {true, false, true, false},   // 16
};

int Periodique(int v) { return ((v % Case) + Case) % Case; }

// A shade of the ramp from smooth noise, dithered so that shades meet softly.
Couleur Nuance(const Couleur* teintes, int nombre, double n, int x, int y) {
    const int i = std::clamp(static_cast<int>(n * nombre + Seuil_Bayer(x, y) - 0.5), 0, nombre - 1);
    return teintes[i];
}

Couleur Herbe(int x, int y) {
    x = Periodique(x);
    y = Periodique(y);
    static const Couleur teintes[] = {Melanger(Pal::Herbe[1], Pal::Herbe[2], 0.4), Pal::Herbe[2],
                                      Melanger(Pal::Herbe[2], Pal::Herbe[3], 0.3)};
    const double n = Bruit_Lisse(x, y, 4, Case, GraineHerbe) * 0.5 + Bruit(x, y, GraineHerbe + 1) * 0.5;
    Couleur c = Nuance(teintes, 3, n, x, y);
    // Short blades: a light tip over a dark root, a few per tile.
    const uint32_t h = Hacher(x, y, GraineHerbe + 2) % 100;
    if (h < 4) c = Pal::Herbe[3];
    if (Hacher(x, y - 1, GraineHerbe + 2) % 100 < 4) c = Pal::Herbe[0];
    return c;
}

Couleur Terre(int x, int y) {
    x = Periodique(x);
    y = Periodique(y);
    static const Couleur teintes[] = {Melanger(Pal::Terre[1], Pal::Terre[2], 0.3), Melanger(Pal::Terre[1], Pal::Terre[2], 0.7),
                                      Melanger(Pal::Terre[2], Pal::Terre[3], 0.3)};
    const double n = Bruit_Lisse(x, y, 8, Case, GraineTerre) * 0.6 + Bruit_Lisse(x, y, 4, Case, GraineTerre + 3) * 0.4;
    Couleur c = Nuance(teintes, 3, n, x, y);
    // One pebble per tile: a light stone with its shadow under it.
    constexpr int px = 11, py = 5;
    if ((x == px || x == px + 1) && y == py) c = Melanger(Pal::Terre[3], Pal::Sable[2], 0.5);
    if ((x == px || x == px + 1) && y == py + 1) c = Pal::Terre[1];
    if (x == 3 && y == 12) c = Pal::Terre[3];
    if (x == 3 && y == 13) c = Pal::Terre[1];
    return c;
}

// Depth of the grass bank on a side without patch neighbour, along that side.
int Marge(int t, int phase) {
    return 2 + static_cast<int>(std::lround(1.0 + 0.9 * std::sin(2 * M_PI * (t + phase) / Case)));
}

// Is the pixel earth? Outside the tile, a side that joins the patch repeats the edge pixel,
// a side that does not is grass.
bool Terre_En(const Voisins& v, int x, int y) {
    if (x < 0) {
        if (!v.w) return false;
        x = 0;
    }
    if (x >= Case) {
        if (!v.e) return false;
        x = Case - 1;
    }
    if (y < 0) {
        if (!v.n) return false;
        y = 0;
    }
    if (y >= Case) {
        if (!v.s) return false;
        y = Case - 1;
    }
    const int mn = v.n ? -1 : Marge(x, 0), ms = v.s ? -1 : Marge(x, 5);
    const int mw = v.w ? -1 : Marge(y, 3), me = v.e ? -1 : Marge(y, 11);
    if (y < mn || y > Case - 1 - ms || x < mw || x > Case - 1 - me) return false;
    // Rounded corners where two banks meet.
    constexpr double r = 4.5;
    auto hors_coin = [&](bool a, bool b, double cx, double cy) {
        if (!a || !b) return false;
        const double dx = x + 0.5 - cx, dy = y + 0.5 - cy;
        const bool dansCarre = (cx < Case / 2 ? x + 0.5 < cx : x + 0.5 > cx) && (cy < Case / 2 ? y + 0.5 < cy : y + 0.5 > cy);
        return dansCarre && dx * dx + dy * dy > r * r;
    };
    const double bas = 3 + r, haut = Case - 3 - r;
    return !(hors_coin(!v.n, !v.w, bas, bas) || hors_coin(!v.n, !v.e, haut, bas) ||
             hors_coin(!v.s, !v.w, bas, haut) || hors_coin(!v.s, !v.e, haut, haut));
}

Couleur Pixel_Tuile(const Voisins& v, int x, int y) {
    const bool ici = Terre_En(v, x, y);
    const bool nord = Terre_En(v, x, y - 1), sud = Terre_En(v, x, y + 1);
    const bool ouest = Terre_En(v, x - 1, y), est = Terre_En(v, x + 1, y);
    if (ici) {
        // The grass bank shades the earth below it and to its right; the far rim catches light.
        if (!nord || !ouest) return Bruit(Periodique(x), Periodique(y), 91) < 0.25 ? Pal::Herbe[1] : Pal::Terre[0];
        if (!Terre_En(v, x, y - 2) || !Terre_En(v, x - 2, y)) return Melanger(Pal::Terre[0], Pal::Terre[1], 0.6);
        if (!sud || !est) return Pal::Terre[3];
        return Terre(x, y);
    }
    // The lip of the bank: a darker line of grass with blades leaning over the earth.
    if (sud || est) return Bruit(Periodique(x), Periodique(y), 92) < 0.3 ? Pal::Herbe[3] : Pal::Herbe[0];
    if (nord || ouest) return Pal::Herbe[1];
    return Herbe(x, y);
}

}  // namespace

void Forger_Terrain(Atelier& a) {
    Toile t(17 * Case, Case);
    for (int tuile = 0; tuile < 17; ++tuile)
        for (int y = 0; y < Case; ++y)
            for (int x = 0; x < Case; ++x)
                t.Point(tuile * Case + x, y, tuile < 2 ? Herbe(x, y) : Pixel_Tuile(VoisinsDeTuile[tuile], x, y));
    a.Ecrire("terrains/Plaine.bmp", t);
}

// The canvas and its drawing primitives. A canvas starts transparent (pure black); every
// primitive clips to it, and every drawn pixel is kept at least CanalMinimum on each channel,
// so that nothing visible can ever turn into the colour key.
#pragma once

#include <functional>
#include <vector>

#include "Palette.h"

struct Point2 {
    double x = 0, y = 0;
};

class Toile {
public:
    Toile() = default;
    Toile(int largeur, int hauteur);

    int Largeur() const { return largeur_; }
    int Hauteur() const { return hauteur_; }
    bool Dedans(int x, int y) const { return x >= 0 && y >= 0 && x < largeur_ && y < hauteur_; }

    // Outside the canvas reads transparent.
    Couleur Lire(int x, int y) const { return Dedans(x, y) ? pixels_[Indice(x, y)] : Transparent; }
    bool Opaque(int x, int y) const { return !(Lire(x, y) == Transparent); }
    const std::vector<Couleur>& Pixels() const { return pixels_; }

    void Point(int x, int y, Couleur c) {
        if (Dedans(x, y)) pixels_[Indice(x, y)] = Visible(c);
    }
    // As it is, even below CanalMinimum: for pictures read back from disk.
    void Point_Brut(int x, int y, Couleur c) {
        if (Dedans(x, y)) pixels_[Indice(x, y)] = c;
    }
    void Effacer(int x, int y);
    // Only where the canvas is already opaque (shading inside a shape).
    void Point_Sur(int x, int y, Couleur c);

    void Rectangle(int x, int y, int largeur, int hauteur, Couleur c);
    void Cadre(int x, int y, int largeur, int hauteur, Couleur c);
    void Ligne(int x0, int y0, int x1, int y1, Couleur c);
    // Filled ellipse over the pixel centres; the centre may fall between pixels (x.5).
    void Ellipse(double cx, double cy, double rx, double ry, Couleur c);
    // Ring of the ellipse, one pixel thick.
    void Anneau(double cx, double cy, double rx, double ry, Couleur c);
    // Filled polygon over the pixel centres (even-odd rule).
    void Polygone(const std::vector<Point2>& sommets, Couleur c);
    // A thick segment with round ends.
    void Trait(double x0, double y0, double x1, double y1, double epaisseur, Couleur c);
    // Filled rectangle in a two-colour checker (the usual dithering of two shades).
    void Trame(int x, int y, int largeur, int hauteur, Couleur a, Couleur b);

    // A one-pixel outline round every opaque shape: transparent pixels that touch an opaque
    // one by a side take the colour. With `diagonales`, corners too.
    void Contourner(Couleur c, bool diagonales = false);
    // Opaque pixels at the edge of a shape darkened toward the ink (an inner rim).
    void Border_Interieur(double force);

    // Opaque pixels of `source` drawn at (x, y).
    void Coller(const Toile& source, int x, int y);
    // A rectangle of `source` drawn at (x, y), opaque pixels only.
    void Coller_Zone(const Toile& source, int sx, int sy, int largeur, int hauteur, int x, int y);
    Toile Extraire(int x, int y, int largeur, int hauteur) const;
    // Mirror image left-right.
    Toile Miroir() const;
    // Shrunk to the given size: each target pixel takes the mean of the opaque source
    // pixels it covers, and stays transparent when most of them are transparent.
    Toile Reduire(int largeur, int hauteur) const;

    // Every opaque pixel through f.
    void Transformer(const std::function<Couleur(int x, int y, Couleur)>& f);
    // A dithered shadow of the shapes, moved by (dx, dy), where the canvas is transparent.
    void Ombre_Portee(int dx, int dy, Couleur c);

private:
    int largeur_ = 0, hauteur_ = 0;
    std::vector<Couleur> pixels_;
    int Indice(int x, int y) const { return y * largeur_ + x; }
};

// The checker of dithering: true on one colour of the two.
inline bool Case_Paire(int x, int y) { return ((x + y) & 1) == 0; }
// An ordered 4 x 4 dither threshold in [0, 1).
double Seuil_Bayer(int x, int y);

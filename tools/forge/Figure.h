// A figure is painted as parts of flat material (a ramp each), then shaded all at once: the
// light comes from the upper left, so a part is lit on its left and upper edges and shaded
// on its right and lower edges; then the whole shape gets an ink outline. Painting in flat
// materials first keeps the code of each drawing short and every sprite shaded alike.
#pragma once

#include <vector>

#include "Pinceau.h"

class Figure {
public:
    Figure(int largeur, int hauteur);

    int Largeur() const { return largeur_; }
    int Hauteur() const { return hauteur_; }

    // A material to paint with. `relief` false paints it flat in its shade 2.
    int Matiere(const Rampe& rampe, bool relief = true);

    void Pixel(int x, int y, int m);
    void Rectangle(int x, int y, int largeur, int hauteur, int m);
    void Ellipse(double cx, double cy, double rx, double ry, int m);
    void Polygone(const std::vector<Point2>& sommets, int m);
    void Trait(double x0, double y0, double x1, double y1, double epaisseur, int m);
    void Ligne(int x0, int y0, int x1, int y1, int m);
    // Paints only where another part already is (a pattern on a garment).
    void Sur(int x, int y, int m);
    // Removes a pixel (a hole in the shape).
    void Effacer(int x, int y);
    int Matiere_En(int x, int y) const;

    // Shaded picture: shade 3 on lit edges, 1 on shaded edges and 2 inside; with `contour`,
    // an ink outline round the whole shape; with `separer`, a line of shade 0 where two parts
    // of different materials meet below or to the right (so an arm reads over a body).
    Toile Rendre(bool contour = true, bool separer = true) const;

private:
    int largeur_, hauteur_;
    std::vector<int> ids_;
    std::vector<Rampe> rampes_;
    std::vector<bool> reliefs_;
    bool Dedans(int x, int y) const { return x >= 0 && y >= 0 && x < largeur_ && y < hauteur_; }
};

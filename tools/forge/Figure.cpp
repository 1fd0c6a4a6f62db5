#include "Figure.h"

Figure::Figure(int largeur, int hauteur)
    : largeur_(largeur), hauteur_(hauteur), ids_(static_cast<size_t>(largeur) * hauteur, -1) {}

int Figure::Matiere(const Rampe& rampe, bool relief) {
    rampes_.push_back(rampe);
    reliefs_.push_back(relief);
    return static_cast<int>(rampes_.size()) - 1;
}

void Figure::Pixel(int x, int y, int m) {
    if (Dedans(x, y)) ids_[y * largeur_ + x] = m;
}

void Figure::Sur(int x, int y, int m) {
    if (Matiere_En(x, y) >= 0) Pixel(x, y, m);
}

void Figure::Effacer(int x, int y) { Pixel(x, y, -1); }

int Figure::Matiere_En(int x, int y) const { return Dedans(x, y) ? ids_[y * largeur_ + x] : -1; }

// The shapes are drawn once on a scratch canvas and read back as a mask.
namespace {

template <class F>
void Par_Masque(int largeur, int hauteur, F&& dessiner, Figure& f, int m) {
    Toile masque(largeur, hauteur);
    dessiner(masque);
    for (int y = 0; y < hauteur; ++y)
        for (int x = 0; x < largeur; ++x)
            if (masque.Opaque(x, y)) f.Pixel(x, y, m);
}

}  // namespace

void Figure::Rectangle(int x, int y, int largeur, int hauteur, int m) {
    for (int j = y; j < y + hauteur; ++j)
        for (int i = x; i < x + largeur; ++i) Pixel(i, j, m);
}

void Figure::Ellipse(double cx, double cy, double rx, double ry, int m) {
    Par_Masque(largeur_, hauteur_, [&](Toile& t) { t.Ellipse(cx, cy, rx, ry, Pal::Blanc); }, *this, m);
}

void Figure::Polygone(const std::vector<Point2>& sommets, int m) {
    Par_Masque(largeur_, hauteur_, [&](Toile& t) { t.Polygone(sommets, Pal::Blanc); }, *this, m);
}

void Figure::Trait(double x0, double y0, double x1, double y1, double epaisseur, int m) {
    Par_Masque(largeur_, hauteur_, [&](Toile& t) { t.Trait(x0, y0, x1, y1, epaisseur, Pal::Blanc); }, *this, m);
}

void Figure::Ligne(int x0, int y0, int x1, int y1, int m) {
    Par_Masque(largeur_, hauteur_, [&](Toile& t) { t.Ligne(x0, y0, x1, y1, Pal::Blanc); }, *this, m);
}

Toile Figure::Rendre(bool contour, bool separer) const {
    Toile t(largeur_, hauteur_);
    for (int y = 0; y < hauteur_; ++y)
        for (int x = 0; x < largeur_; ++x) {
            const int m = Matiere_En(x, y);
            if (m < 0) continue;
            const Rampe& r = rampes_[m];
            if (!reliefs_[m]) {
                t.Point(x, y, r[2]);
                continue;
            }
            const int droite = Matiere_En(x + 1, y), bas = Matiere_En(x, y + 1);
            const int gauche = Matiere_En(x - 1, y), haut = Matiere_En(x, y - 1);
            const bool autreDroite = droite >= 0 && droite != m, autreBas = bas >= 0 && bas != m;
            int nuance = 2;
            if (droite != m || bas != m) nuance = 1;
            else if (gauche != m || haut < 0) nuance = 3;
            if (separer && (autreDroite || autreBas)) nuance = 0;
            t.Point(x, y, r[nuance]);
        }
    if (contour) t.Contourner(Pal::Encre);
    return t;
}

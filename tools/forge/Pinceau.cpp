#include "Pinceau.h"

#include <algorithm>
#include <cmath>

Toile::Toile(int largeur, int hauteur)
    : largeur_(largeur), hauteur_(hauteur), pixels_(static_cast<size_t>(largeur) * hauteur, Transparent) {}

void Toile::Effacer(int x, int y) {
    if (Dedans(x, y)) pixels_[Indice(x, y)] = Transparent;
}

void Toile::Point_Sur(int x, int y, Couleur c) {
    if (Opaque(x, y)) Point(x, y, c);
}

void Toile::Rectangle(int x, int y, int largeur, int hauteur, Couleur c) {
    for (int j = std::max(y, 0); j < std::min(y + hauteur, hauteur_); ++j)
        for (int i = std::max(x, 0); i < std::min(x + largeur, largeur_); ++i) Point(i, j, c);
}

void Toile::Cadre(int x, int y, int largeur, int hauteur, Couleur c) {
    if (largeur <= 0 || hauteur <= 0) return;
    Ligne(x, y, x + largeur - 1, y, c);
    Ligne(x, y + hauteur - 1, x + largeur - 1, y + hauteur - 1, c);
    Ligne(x, y, x, y + hauteur - 1, c);
    Ligne(x + largeur - 1, y, x + largeur - 1, y + hauteur - 1, c);
}

void Toile::Ligne(int x0, int y0, int x1, int y1, Couleur c) {
    const int dx = std::abs(x1 - x0), dy = -std::abs(y1 - y0);
    const int sx = x0 < x1 ? 1 : -1, sy = y0 < y1 ? 1 : -1;
    int erreur = dx + dy;
    for (;;) {
        Point(x0, y0, c);
        if (x0 == x1 && y0 == y1) return;
        const int e2 = 2 * erreur;
        if (e2 >= dy) {
            erreur += dy;
            x0 += sx;
        }
        if (e2 <= dx) {
            erreur += dx;
            y0 += sy;
        }
    }
}

void Toile::Ellipse(double cx, double cy, double rx, double ry, Couleur c) {
    if (rx <= 0 || ry <= 0) return;
    const int x0 = static_cast<int>(std::floor(cx - rx)), x1 = static_cast<int>(std::ceil(cx + rx));
    const int y0 = static_cast<int>(std::floor(cy - ry)), y1 = static_cast<int>(std::ceil(cy + ry));
    for (int y = y0; y <= y1; ++y)
        for (int x = x0; x <= x1; ++x) {
            const double u = (x + 0.5 - cx) / rx, v = (y + 0.5 - cy) / ry;
            if (u * u + v * v <= 1.0) Point(x, y, c);
        }
}

void Toile::Anneau(double cx, double cy, double rx, double ry, Couleur c) {
    if (rx <= 0 || ry <= 0) return;
    auto dedans = [&](int x, int y) {
        const double u = (x + 0.5 - cx) / rx, v = (y + 0.5 - cy) / ry;
        return u * u + v * v <= 1.0;
    };
    const int x0 = static_cast<int>(std::floor(cx - rx)) - 1, x1 = static_cast<int>(std::ceil(cx + rx)) + 1;
    const int y0 = static_cast<int>(std::floor(cy - ry)) - 1, y1 = static_cast<int>(std::ceil(cy + ry)) + 1;
    for (int y = y0; y <= y1; ++y)
        for (int x = x0; x <= x1; ++x)
            if (dedans(x, y) && (!dedans(x - 1, y) || !dedans(x + 1, y) || !dedans(x, y - 1) || !dedans(x, y + 1)))
                Point(x, y, c);
}

void Toile::Polygone(const std::vector<Point2>& sommets, Couleur c) {
    if (sommets.size() < 3) return;
    double ymin = sommets[0].y, ymax = sommets[0].y;
    for (const Point2& p : sommets) {
        ymin = std::min(ymin, p.y);
        ymax = std::max(ymax, p.y);
    }
    std::vector<double> croisements;
    for (int y = static_cast<int>(std::floor(ymin)); y <= static_cast<int>(std::ceil(ymax)); ++y) {
        const double yc = y + 0.5;
        croisements.clear();
        for (size_t i = 0; i < sommets.size(); ++i) {
            const Point2 a = sommets[i], b = sommets[(i + 1) % sommets.size()];
            if ((a.y <= yc && b.y > yc) || (b.y <= yc && a.y > yc))
                croisements.push_back(a.x + (yc - a.y) / (b.y - a.y) * (b.x - a.x));
        }
        std::sort(croisements.begin(), croisements.end());
        for (size_t i = 0; i + 1 < croisements.size(); i += 2)
            for (int x = static_cast<int>(std::ceil(croisements[i] - 0.5)); x + 0.5 <= croisements[i + 1]; ++x)
                Point(x, y, c);
    }
}

void Toile::Trait(double x0, double y0, double x1, double y1, double epaisseur, Couleur c) {
    const double r = epaisseur / 2.0;
    const int minx = static_cast<int>(std::floor(std::min(x0, x1) - r)) - 1;
    const int maxx = static_cast<int>(std::ceil(std::max(x0, x1) + r)) + 1;
    const int miny = static_cast<int>(std::floor(std::min(y0, y1) - r)) - 1;
    const int maxy = static_cast<int>(std::ceil(std::max(y0, y1) + r)) + 1;
    const double dx = x1 - x0, dy = y1 - y0, l2 = dx * dx + dy * dy;
    for (int y = miny; y <= maxy; ++y)
        for (int x = minx; x <= maxx; ++x) {
            const double px = x + 0.5, py = y + 0.5;
            double t = l2 > 0 ? ((px - x0) * dx + (py - y0) * dy) / l2 : 0;
            t = std::clamp(t, 0.0, 1.0);
            const double ex = x0 + t * dx - px, ey = y0 + t * dy - py;
            if (ex * ex + ey * ey <= r * r) Point(x, y, c);
        }
}

void Toile::Trame(int x, int y, int largeur, int hauteur, Couleur a, Couleur b) {
    for (int j = y; j < y + hauteur; ++j)
        for (int i = x; i < x + largeur; ++i) Point(i, j, Case_Paire(i, j) ? a : b);
}

void Toile::Contourner(Couleur c, bool diagonales) {
    std::vector<char> bord(pixels_.size(), 0);
    for (int y = 0; y < hauteur_; ++y)
        for (int x = 0; x < largeur_; ++x) {
            if (Opaque(x, y)) continue;
            bool touche = Opaque(x - 1, y) || Opaque(x + 1, y) || Opaque(x, y - 1) || Opaque(x, y + 1);
            if (diagonales)
                touche = touche || Opaque(x - 1, y - 1) || Opaque(x + 1, y - 1) || Opaque(x - 1, y + 1) ||
                         Opaque(x + 1, y + 1);
            bord[Indice(x, y)] = touche;
        }
    for (int y = 0; y < hauteur_; ++y)
        for (int x = 0; x < largeur_; ++x)
            if (bord[Indice(x, y)]) Point(x, y, c);
}

void Toile::Border_Interieur(double force) {
    std::vector<Couleur> copie = pixels_;
    for (int y = 0; y < hauteur_; ++y)
        for (int x = 0; x < largeur_; ++x) {
            if (!Opaque(x, y)) continue;
            if (Opaque(x - 1, y) && Opaque(x + 1, y) && Opaque(x, y - 1) && Opaque(x, y + 1)) continue;
            copie[Indice(x, y)] = Visible(Melanger(pixels_[Indice(x, y)], Pal::Encre, force));
        }
    pixels_ = std::move(copie);
}

void Toile::Coller(const Toile& source, int x, int y) {
    Coller_Zone(source, 0, 0, source.Largeur(), source.Hauteur(), x, y);
}

void Toile::Coller_Zone(const Toile& source, int sx, int sy, int largeur, int hauteur, int x, int y) {
    for (int j = 0; j < hauteur; ++j)
        for (int i = 0; i < largeur; ++i)
            if (source.Opaque(sx + i, sy + j)) Point(x + i, y + j, source.Lire(sx + i, sy + j));
}

Toile Toile::Extraire(int x, int y, int largeur, int hauteur) const {
    Toile t(largeur, hauteur);
    t.Coller_Zone(*this, x, y, largeur, hauteur, 0, 0);
    return t;
}

Toile Toile::Miroir() const {
    Toile t(largeur_, hauteur_);
    for (int y = 0; y < hauteur_; ++y)
        for (int x = 0; x < largeur_; ++x)
            if (Opaque(x, y)) t.Point(largeur_ - 1 - x, y, Lire(x, y));
    return t;
}

Toile Toile::Reduire(int largeur, int hauteur) const {
    Toile t(largeur, hauteur);
    const double fx = static_cast<double>(largeur_) / largeur, fy = static_cast<double>(hauteur_) / hauteur;
    for (int y = 0; y < hauteur; ++y)
        for (int x = 0; x < largeur; ++x) {
            double r = 0, g = 0, b = 0;
            int opaques = 0, total = 0;
            for (int j = static_cast<int>(y * fy); j < static_cast<int>(std::ceil((y + 1) * fy)); ++j)
                for (int i = static_cast<int>(x * fx); i < static_cast<int>(std::ceil((x + 1) * fx)); ++i) {
                    ++total;
                    if (!Opaque(i, j)) continue;
                    const Couleur c = Lire(i, j);
                    r += c.r;
                    g += c.g;
                    b += c.b;
                    ++opaques;
                }
            if (opaques * 2 > total)
                t.Point(x, y, Couleur{static_cast<uint8_t>(r / opaques), static_cast<uint8_t>(g / opaques),
                                      static_cast<uint8_t>(b / opaques)});
        }
    return t;
}

void Toile::Transformer(const std::function<Couleur(int x, int y, Couleur)>& f) {
    for (int y = 0; y < hauteur_; ++y)
        for (int x = 0; x < largeur_; ++x)
            if (Opaque(x, y)) pixels_[Indice(x, y)] = Visible(f(x, y, pixels_[Indice(x, y)]));
}

void Toile::Ombre_Portee(int dx, int dy, Couleur c) {
    const Toile avant = *this;
    for (int y = 0; y < hauteur_; ++y)
        for (int x = 0; x < largeur_; ++x)
            if (!avant.Opaque(x, y) && avant.Opaque(x - dx, y - dy) && Case_Paire(x, y)) Point(x, y, c);
}

double Seuil_Bayer(int x, int y) {
    static constexpr int matrice[4][4] = {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}};
    return (matrice[y & 3][x & 3] + 0.5) / 16.0;
}

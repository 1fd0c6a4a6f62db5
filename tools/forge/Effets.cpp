// Effect sheets, Effets/<Effet_Fichier>.bmp: one row of NombreEtapes cells of Effet_Largeur x
// Effet_Hauteur. The kind of effect (a blow, a slash, an arrow, fire, lightning, healing…)
// is read from its file name and its name; each step is drawn at its own moment t from 0 to 1.
#include <algorithm>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "Bruit.h"
#include "Forge.h"
#include "Mots.h"
#include "rules/ClsJeuParam.h"

namespace {

struct Cadre {
    int W, H;
    double t;      // 0 at the first step, 1 at the last
    int etape, etapes;
    uint32_t graine;
    double cx() const { return W / 2.0; }
    double cy() const { return H / 2.0; }
    double r() const { return std::min(W, H) / 2.0; }
};

using Dessin = std::function<void(Toile&, const Cadre&)>;

void Etincelle(Toile& t, double x, double y, int taille, const Rampe& r) {
    const int cx = static_cast<int>(x), cy = static_cast<int>(y);
    for (int i = -taille; i <= taille; ++i) {
        const Couleur c = std::abs(i) == taille ? r[1] : r[2];
        t.Point(cx + i, cy, c);
        t.Point(cx, cy + i, c);
    }
    t.Point(cx, cy, r[3]);
}

void Nuage(Toile& t, double cx, double cy, double r, const Rampe& teinte, uint32_t graine) {
    Tirage tirage(graine);
    t.Ellipse(cx, cy, r, r * 0.8, teinte[1]);
    for (int i = 0; i < 5; ++i) {
        const double a = tirage.Entre(0.0, 6.283), d = tirage.Entre(0.2, 0.6) * r;
        t.Ellipse(cx + std::cos(a) * d, cy + std::sin(a) * d * 0.8, r * 0.55, r * 0.45, teinte[2]);
    }
    t.Ellipse(cx - r * 0.3, cy - r * 0.3, r * 0.35, r * 0.3, teinte[3]);
}

void Flamme(Toile& t, double cx, double bas, double l, double h, double ondule) {
    auto langue = [&](double k, Couleur c) {
        const double w = l * k / 2, hh = h * k;
        t.Polygone({{cx - w, bas}, {cx - w * 0.9, bas - hh * 0.45}, {cx + ondule * k, bas - hh}, {cx + w * 0.9, bas - hh * 0.5}, {cx + w, bas},
                    {cx, bas + w * 0.4}},
                   c);
    };
    langue(1.0, Pal::Feu[0]);
    langue(0.8, Pal::Feu[1]);
    langue(0.55, Pal::Feu[2]);
    langue(0.3, Pal::Feu[3]);
}

// ---- the kinds ----

void Impact(Toile& t, const Cadre& c, const Rampe& r, int rayons) {
    const double grand = c.r() * (0.35 + 0.6 * std::sin(std::min(c.t, 1.0) * 3.1416 * 0.85));
    for (int i = 0; i < rayons; ++i) {
        const double a = i * 6.283 / rayons + c.graine % 7 * 0.1;
        const double l = grand * (i % 2 ? 0.6 : 1.0);
        t.Trait(c.cx() + std::cos(a) * l * 0.3, c.cy() + std::sin(a) * l * 0.3, c.cx() + std::cos(a) * l, c.cy() + std::sin(a) * l,
                c.t < 0.6 ? 2.0 : 1.2, r[c.t < 0.5 ? 2 : 1]);
    }
    if (c.t < 0.7) t.Ellipse(c.cx(), c.cy(), grand * 0.35, grand * 0.35, r[3]);
}

void Entaille(Toile& t, const Cadre& c, const Rampe& r) {
    // An arc swept from the upper right to the lower left, its tail fading.
    const double debut = -0.6, fin = debut + 2.6 * std::min(1.0, 0.3 + c.t * 1.4);
    const double queue = std::max(debut, fin - 1.4);
    for (double a = queue; a < fin; a += 0.05) {
        const double u = (a - queue) / std::max(fin - queue, 0.01);
        const double rr = c.r() * 0.85;
        const Couleur couleur = u > 0.8 ? Pal::Blanc : u > 0.4 ? r[3] : r[2];
        if (c.t > 0.75 && u < (c.t - 0.75) * 2.4) continue;
        t.Trait(c.cx() + std::cos(a) * rr, c.cy() + std::sin(a) * rr * 0.8, c.cx() + std::cos(a + 0.05) * rr,
                c.cy() + std::sin(a + 0.05) * rr * 0.8, 1.5 + u * 2.5, couleur);
    }
}

void Onde(Toile& t, const Cadre& c, const Rampe& r) {
    const double rr = c.r() * (0.35 + 0.6 * c.t);
    if (c.t < 0.3) t.Ellipse(c.cx(), c.cy(), rr * 0.5, rr * 0.4, r[3]);
    t.Anneau(c.cx(), c.cy(), rr, rr * 0.75, r[c.t < 0.5 ? 3 : 2]);
    if (c.t < 0.8) t.Anneau(c.cx(), c.cy(), rr - 1.5, rr * 0.75 - 1.2, r[1]);
    Tirage tirage(c.graine);
    for (int i = 0; i < 4; ++i) {
        const double a = tirage.Entre(0.0, 6.283);
        Etincelle(t, c.cx() + std::cos(a) * rr * 0.6, c.cy() + std::sin(a) * rr * 0.45 - c.t * 3, 1, Pal::Or);
    }
}

void Fleche(Toile& t, const Cadre& c) {
    const double x = 16 + c.W * std::min(1.0, c.t * 1.25), y = c.cy();
    const double fin = std::min(x, c.W * 0.7);
    t.Trait(fin - 12, y, fin, y, 1.3, Pal::Bois[2]);
    t.Polygone({{fin, y - 2.5}, {fin + 4, y + 0.5}, {fin, y + 3.5}}, Pal::Metal[2]);
    t.Polygone({{fin - 13, y - 3}, {fin - 9, y}, {fin - 13, y + 3}, {fin - 11, y}}, Pal::DrapBlanc[3]);
    if (c.t >= 0.8) Etincelle(t, fin + 4, y, 2, Pal::Or);
    else t.Ligne(static_cast<int>(fin - 20), static_cast<int>(y), static_cast<int>(fin - 15), static_cast<int>(y), Pal::DrapBlanc[1]);
}

void Boule_De_Feu(Toile& t, const Cadre& c) {
    const double rr = c.r() * (0.25 + 0.65 * std::min(1.0, c.t * 1.5));
    if (c.t < 0.7) {
        t.Ellipse(c.cx(), c.cy(), rr, rr, Pal::Feu[0]);
        t.Ellipse(c.cx(), c.cy(), rr * 0.8, rr * 0.8, Pal::Feu[1]);
        t.Ellipse(c.cx() - rr * 0.15, c.cy() - rr * 0.15, rr * 0.55, rr * 0.55, Pal::Feu[2]);
        t.Ellipse(c.cx() - rr * 0.2, c.cy() - rr * 0.2, rr * 0.3, rr * 0.3, Pal::Feu[3]);
        Tirage tirage(c.graine + c.etape);
        for (int i = 0; i < 6; ++i) {
            const double a = tirage.Entre(0.0, 6.283);
            t.Point(static_cast<int>(c.cx() + std::cos(a) * rr * 1.15), static_cast<int>(c.cy() + std::sin(a) * rr * 1.15), Pal::Feu[2]);
        }
    } else {
        Nuage(t, c.cx(), c.cy() - (c.t - 0.7) * 10, rr * (1.0 - (c.t - 0.7)), Pal::DrapGris, c.graine);
    }
}

void Eclair(Toile& t, const Cadre& c) {
    Tirage tirage(c.graine + c.etape / 2);
    if (c.etape % 2 == 1 && c.t > 0.2 && c.t < 0.9) {   // the flicker: only the glow between two bolts
        t.Ellipse(c.cx(), c.H - 5, 6, 2.5, Pal::Magie[2]);
        Etincelle(t, c.cx() + 3, c.H - 8, 1, Pal::Glace);
        return;
    }
    double x = c.cx() + tirage.Entre(-4.0, 4.0), y = 0;
    const double bas = c.H - 6;
    while (y < bas) {
        const double nx = std::clamp(x + tirage.Entre(-6.0, 6.0), 3.0, c.W - 3.0), ny = std::min(bas, y + tirage.Entre(5.0, 10.0));
        t.Trait(x, y, nx, ny, 3.0, Pal::Magie[2]);
        t.Trait(x, y, nx, ny, 1.2, Pal::Blanc);
        x = nx;
        y = ny;
    }
    t.Ellipse(x, bas + 1, 7 - c.t * 3, 3, Pal::Magie[3]);
    Etincelle(t, x, bas, 2, Pal::Glace);
}

void Morsure(Toile& t, const Cadre& c) {
    const double ferme = std::min(1.0, c.t * 2.0);
    const double ecart = (1 - ferme) * c.H * 0.3;
    for (int i = 0; i < 4; ++i) {
        const double x = c.cx() - 9 + i * 6;
        t.Polygone({{x - 2.5, c.cy() - 3 - ecart}, {x + 2.5, c.cy() - 3 - ecart}, {x, c.cy() + 2 - ecart}}, Pal::Os[3]);
        t.Polygone({{x + 0.5, c.cy() + 3 + ecart}, {x + 5.5, c.cy() + 3 + ecart}, {x + 3, c.cy() - 2 + ecart}}, Pal::Os[3]);
    }
    if (c.t > 0.5)
        for (int i = 0; i < 5; ++i) t.Ellipse(c.cx() - 8 + i * 4, c.cy() + 5 + (c.t - 0.5) * 12 + (i % 2) * 2, 1.2, 1.6, Pal::Sang[2]);
}

void Griffes(Toile& t, const Cadre& c) {
    for (int i = 0; i < 3; ++i) {
        const double debut = i * 0.18 - 0.3, p = std::clamp((c.t - debut) / 0.5, 0.0, 1.0);
        if (p <= 0) continue;
        const double x0 = c.cx() - 10 + i * 7, y0 = 4, x1 = x0 + 8, y1 = c.H - 4;
        const double xe = x0 + (x1 - x0) * p, ye = y0 + (y1 - y0) * p;
        t.Trait(x0, y0, xe, ye, c.t > 0.8 ? 1.2 : 2.2, Pal::Sang[2]);
        t.Trait(x0, y0, xe, ye, 0.8, Pal::Blanc);
    }
}

void Bulles(Toile& t, const Cadre& c, const Rampe& r, bool plus) {
    Tirage tirage(c.graine);
    for (int i = 0; i < 8; ++i) {
        const double x = tirage.Entre(4.0, c.W - 4.0), depart = tirage.Entre(-0.3, 0.7);
        const double vie = (c.t - depart) / 0.6;
        const double taille = tirage.Entre(1.2, 2.6);
        if (vie < 0 || vie > 1) continue;
        const double y = c.H - 4 - vie * (c.H - 8);
        if (plus) {
            Etincelle(t, x, y, vie < 0.5 ? 2 : 1, r);
        } else {
            t.Anneau(x, y, taille, taille, r[2]);
            t.Point(static_cast<int>(x - taille * 0.4), static_cast<int>(y - taille * 0.4), r[3]);
        }
    }
    t.Ellipse(c.cx(), c.H - 4, c.W * 0.35 * (1 - c.t * 0.5), 2.5, r[plus ? 2 : 1]);
}

void Colonne_De_Lumiere(Toile& t, const Cadre& c) {
    const double monte = std::min(1.0, c.t * 2.0), largeur = c.W * 0.22 * (c.t < 0.8 ? 1.0 : (1 - c.t) * 5);
    const double haut = c.H - 6 - (c.H - 8) * monte;
    t.Ellipse(c.cx(), c.H - 6, c.W * 0.4, 4, Pal::Or[2]);
    t.Rectangle(static_cast<int>(c.cx() - largeur), static_cast<int>(haut), static_cast<int>(largeur * 2), static_cast<int>(c.H - 6 - haut), Pal::Or[3]);
    t.Rectangle(static_cast<int>(c.cx() - largeur / 2), static_cast<int>(haut), static_cast<int>(largeur), static_cast<int>(c.H - 6 - haut), Pal::Blanc);
    Bulles(t, c, Pal::Or, true);
}

void Cercle_Magique(Toile& t, const Cadre& c) {
    const double ouvre = std::min(1.0, 0.4 + c.t * 2.0);
    const double rx = c.W * 0.42 * ouvre, ry = rx * 0.45, cy = c.H - c.H * 0.28;
    t.Anneau(c.cx(), cy, rx, ry, Pal::Magie[2]);
    t.Anneau(c.cx(), cy, rx * 0.7, ry * 0.7, Pal::DrapViolet[3]);
    for (int i = 0; i < 6; ++i) {   // runes turning on the ring
        const double a = i * 1.047 + c.t * 3.0;
        t.Rectangle(static_cast<int>(c.cx() + std::cos(a) * rx * 0.85), static_cast<int>(cy + std::sin(a) * ry * 0.85) - 1, 2, 2, Pal::Magie[3]);
    }
    if (c.t > 0.4) Nuage(t, c.cx(), cy - (c.t - 0.4) * c.H * 0.7, c.r() * 0.5 * (1.2 - c.t * 0.5), Pal::DrapViolet, c.graine);
}

void Incendie(Toile& t, const Cadre& c) {
    // Loops: the flames sway with the step, the smoke goes up.
    Tirage tirage(c.graine);
    const double phase = c.etape * 6.283 / std::max(c.etapes, 1);
    Nuage(t, c.cx() + std::sin(phase) * 3, c.H * 0.22, c.r() * 0.35, Pal::DrapGris, c.graine + c.etape % 2);
    for (int i = 0; i < 6; ++i) {
        const double x = c.W * (0.15 + 0.14 * i) + tirage.Entre(-3.0, 3.0), h = tirage.Entre(c.H * 0.3, c.H * 0.5), d = tirage.Entre(0.0, 6.283);
        Flamme(t, x, c.H * 0.85 - (i % 2) * c.H * 0.2, h * 0.55, h * (0.85 + 0.2 * std::sin(phase + d)), std::sin(phase * 2 + d) * 3);
    }
}

void Effondrement(Toile& t, const Cadre& c, double ampleur) {
    Tirage tirage(c.graine);
    const double rr = c.r() * (0.3 + 0.6 * std::sqrt(c.t)) * ampleur;
    for (int i = 0; i < 6; ++i) {
        const double a = tirage.Entre(3.3, 6.1), d = tirage.Entre(0.4, 1.0);
        Nuage(t, c.cx() + std::cos(a) * rr * d, c.H * 0.7 + std::sin(a) * rr * d * 0.5, rr * 0.45 * (1.1 - c.t * 0.5), Pal::Sable, c.graine + i);
    }
    for (int i = 0; i < 8; ++i) {   // stones and planks falling
        const double x = tirage.Entre(c.W * 0.15, c.W * 0.85), y0 = tirage.Entre(0.0, c.H * 0.4);
        const double y = std::min(c.H - 6.0, y0 + c.t * c.H * 0.8);
        if (i % 2) t.Rectangle(static_cast<int>(x), static_cast<int>(y), 3, 2, Pal::Pierre[2]);
        else t.Trait(x, y, x + 4, y + 1 + i % 3, 1.4, Pal::Bois[2]);
    }
}

void Souffle(Toile& t, const Cadre& c) {
    const double portee = c.W * std::min(1.0, 0.3 + c.t * 1.2);
    Tirage tirage(c.graine + c.etape);
    for (int i = 0; i < 14; ++i) {
        const double u = tirage.Reel();
        const double x = 4 + u * portee, ecart = u * c.H * 0.35;
        const double y = c.cy() + tirage.Entre(-ecart, ecart);
        const double rr = 1.5 + u * 4;
        t.Ellipse(x, y, rr, rr * 0.8, u < 0.3 ? Pal::Feu[3] : u < 0.7 ? Pal::Feu[2] : Pal::Feu[1]);
    }
    if (c.t > 0.7) Nuage(t, portee * 0.8, c.cy() - 6, 6, Pal::DrapGris, c.graine);
}

void Explosion(Toile& t, const Cadre& c) {
    if (c.t < 0.15) {
        t.Ellipse(c.cx(), c.cy(), c.r() * 0.4, c.r() * 0.4, Pal::Blanc);
        Impact(t, c, Pal::Feu, 12);
        return;
    }
    Boule_De_Feu(t, c);
    Tirage tirage(c.graine);
    for (int i = 0; i < 8; ++i) {
        const double a = tirage.Entre(0.0, 6.283), d = c.r() * (0.3 + c.t * 0.8);
        t.Rectangle(static_cast<int>(c.cx() + std::cos(a) * d), static_cast<int>(c.cy() + std::sin(a) * d), 2, 2, Pal::Feu[1]);
    }
}

void Pieces(Toile& t, const Cadre& c) {
    for (int i = 0; i < 3; ++i) {
        const double debut = i * 0.2, p = (c.t - debut) / 0.7;
        if (p < 0 || p > 1) continue;
        const double x = c.cx() - 8 + i * 8, y = c.H - 6 - std::sin(p * 3.1416) * c.H * 0.6;
        const double tourne = std::abs(std::cos(p * 9 + i));
        t.Ellipse(x, y, 1 + 2.5 * tourne, 3, Pal::Or[2]);
        t.Ellipse(x - 0.5, y - 0.5, 0.5 + 1.2 * tourne, 1.6, Pal::Or[3]);
    }
    if (c.t > 0.6) Etincelle(t, c.cx(), c.H * 0.25, 2, Pal::Or);
}

void Givre(Toile& t, const Cadre& c) {
    const double p = std::min(1.0, 0.35 + c.t * 1.2);
    Tirage tirage(c.graine);
    for (int i = 0; i < 5; ++i) {
        const double x = tirage.Entre(6.0, c.W - 6.0), y = tirage.Entre(6.0, c.H - 6.0), rr = tirage.Entre(2.0, 4.5) * p;
        for (int k = 0; k < 3; ++k) {
            const double a = k * 1.047;
            t.Ligne(static_cast<int>(x - std::cos(a) * rr), static_cast<int>(y - std::sin(a) * rr), static_cast<int>(x + std::cos(a) * rr),
                    static_cast<int>(y + std::sin(a) * rr), c.t > 0.8 ? Pal::Glace[2] : Pal::Glace[3]);
        }
        t.Point(static_cast<int>(x), static_cast<int>(y), Pal::Blanc);
    }
    t.Anneau(c.cx(), c.cy(), c.r() * 0.8 * p, c.r() * 0.5 * p, Pal::Glace[2]);
}

struct Genre {
    std::vector<std::string_view> mots;
    Dessin dessin;
};

const std::vector<Genre>& Genres() {
    static const std::vector<Genre> g = {
        {{"entaille", "epee", "tranch"}, [](Toile& t, const Cadre& c) { Entaille(t, c, Pal::Metal); }},
        {{"choc", "masse", "onde"}, [](Toile& t, const Cadre& c) { Onde(t, c, Pal::Sable); }},
        {{"fleche", "carreau", "tir"}, Fleche},
        {{"boule", "fireball"}, Boule_De_Feu},
        {{"eclair", "foudre"}, Eclair},
        {{"morsure", "croc"}, Morsure},
        {{"griffe"}, Griffes},
        {{"poison", "venin"}, [](Toile& t, const Cadre& c) { Bulles(t, c, Pal::Poison, false); }},
        {{"resurrection"}, Colonne_De_Lumiere},
        {{"soin", "guerison"}, [](Toile& t, const Cadre& c) { Bulles(t, c, Pal::Poison, true); }},
        {{"invocation"}, Cercle_Magique},
        {{"incendie", "en feu"}, Incendie},
        {{"effondrement", "detruit"}, [](Toile& t, const Cadre& c) { Effondrement(t, c, 1.0); }},
        {{"ruine"}, [](Toile& t, const Cadre& c) { Effondrement(t, c, 1.2); }},
        {{"souffle"}, Souffle},
        {{"explosion"}, Explosion},
        {{"prime", "piece", "or"}, Pieces},
        {{"givre", "glace"}, Givre},
        {{"coup", "frappe"}, [](Toile& t, const Cadre& c) { Impact(t, c, Pal::Or, 8); }},
    };
    return g;
}

Dessin Dessin_Effet(const std::string& fichier, const std::string& nom) {
    for (const std::string* texte : {&fichier, &nom})
        for (const Genre& g : Genres())
            if (Contient_Mot(*texte, g.mots)) return g.dessin;
    return [](Toile& t, const Cadre& c) { Impact(t, c, Pal::Magie, 6); };
}

}  // namespace

void Forger_Effets(Atelier& a) {
    for (int e = 0; e < Param.NombreEffets; ++e) {
        const int W = std::max<int>(Param.Effet_Largeur(e), 1), H = std::max<int>(Param.Effet_Hauteur(e), 1);
        const int n = std::max<int>(Param.Effet_NombreEtapes(e), 1);
        const Dessin dessin = Dessin_Effet(Plier(Param.Effet_Fichier(e)), Plier(Param.Effet_Nom(e)));
        Toile rangee(n * W, H);
        for (int k = 0; k < n; ++k) {
            Toile cellule(W, H);
            dessin(cellule, Cadre{W, H, n > 1 ? static_cast<double>(k) / (n - 1) : 0.5, k, n, Graine_De(Param.Effet_Fichier(e).c_str())});
            rangee.Coller(cellule, k * W, 0);
        }
        a.Ecrire("Effets/" + Param.Effet_Fichier(e) + ".bmp", rangee);
    }
}

#include "Architecture.h"

#include <algorithm>
#include <cmath>

#include "Bruit.h"

namespace {

Couleur Ombre(Couleur c, double t) { return Melanger(c, Pal::Encre, t); }

// Rows of stones of uneven length, with mortar between them.
Couleur Appareil(int u, int v, int hauteurRang, int longueurMin, int longueurMax, const Rampe& r, Couleur joint, uint32_t graine) {
    const int rang = v / hauteurRang;
    if (v % hauteurRang == hauteurRang - 1) return joint;
    // Walk the stones of the row from its left end.
    int debut = -static_cast<int>(Hacher(rang, 0, graine) % longueurMax);
    int k = 0;
    while (true) {
        const int l = longueurMin + static_cast<int>(Hacher(rang, k, graine + 1) % (longueurMax - longueurMin + 1));
        if (u < debut + l) {
            if (u == debut + l - 1) return joint;
            const int nuance = 1 + static_cast<int>(Hacher(rang, k, graine + 2) % 3);
            const bool haut = v % hauteurRang == 0;
            return haut ? r[std::min(nuance + 1, 3)] : r[nuance];
        }
        debut += l;
        ++k;
    }
}

}  // namespace

Couleur Texture_Mur(Mur m, int u, int v, int largeur, int hauteur, uint32_t graine) {
    switch (m) {
        case Mur::Rondins: {
            const int rang = v % 3;
            if (u == 0 || u == largeur - 1) return rang == 1 ? Pal::BoisClair[2] : Pal::Bois[1];
            const Couleur c = rang == 0 ? Pal::Bois[3] : rang == 1 ? Pal::Bois[2] : Pal::Bois[1];
            return Bruit(u, v, graine) < 0.12 ? Pal::Bois[1] : c;
        }
        case Mur::Planches: {
            if (u % 4 == 3) return Pal::Bois[0];
            return Bruit(u / 4, v / 3, graine) < 0.5 ? Pal::Bois[2] : Melanger(Pal::Bois[2], Pal::Bois[3], 0.5);
        }
        case Mur::Torchis:
        case Mur::Colombage: {
            const bool poutre = u <= 1 || u >= largeur - 2 || v >= hauteur - 2 ||
                                (m == Mur::Colombage && (v == hauteur / 2 || u % 8 == 0 ||
                                                         ((u % 8 == (v * 8 / std::max(hauteur / 2, 1)) % 8) && v < hauteur / 2)));
            if (poutre) return v >= hauteur - 2 ? Pal::Bois[1] : Pal::Bois[1];
            const double n = Bruit(u, v, graine);
            return n < 0.15 ? Pal::Torchis[1] : n < 0.9 ? Pal::Torchis[2] : Pal::Torchis[3];
        }
        case Mur::Pierre: return Appareil(u, v, 4, 3, 7, Pal::Pierre, Pal::Pierre[0], graine);
        case Mur::Roche: return Appareil(u, v, 5, 4, 9, Pal::Pierre, Ombre(Pal::Pierre[0], 0.3), graine);
        case Mur::Brique: {
            const int rang = v / 3;
            if (v % 3 == 2) return Pal::Torchis[0];
            if ((u + (rang % 2) * 3) % 6 == 5) return Pal::Torchis[0];
            return Bruit((u + (rang % 2) * 3) / 6, rang, graine) < 0.3 ? Pal::Brique[1] : Pal::Brique[2];
        }
        case Mur::Taille: return Appareil(u, v, 5, 8, 8, Pal::PierreClaire, Pal::PierreClaire[0], graine);
    }
    return Pal::Torchis[2];
}

Couleur Texture_Toit(Toit m, int u, int v, bool arriere, uint32_t graine, const Rampe& teinte) {
    const int base = arriere ? 0 : 1;
    switch (m) {
        case Toit::Chaume: {
            const bool bande = v % 4 == 3;
            const double n = Bruit(u, v / 2, graine);
            int i = base + (n < 0.3 ? 0 : n < 0.8 ? 1 : 2);
            if (bande) i = base;
            return Pal::Chaume[std::min(i, 3)];
        }
        case Toit::Bardeaux: {
            const int rang = v / 3, decale = (u + (rang % 2) * 2) % 4;
            if (v % 3 == 2 || decale == 3) return Pal::Bois[base];
            return Pal::Bois[base + 1 + (Bruit((u + (rang % 2) * 2) / 4, rang, graine) < 0.4 ? 0 : 1)];
        }
        case Toit::Tuiles: {
            if (v % 4 == 3) return Pal::Tuile[base];
            const int colonne = u % 3;
            return Pal::Tuile[base + (colonne == 0 ? 2 : colonne == 1 ? 1 : 0)];
        }
        case Toit::Ardoise: {
            const int rang = v / 3;
            if (v % 3 == 2 || (u + rang * 2) % 5 == 4) return Pal::Ardoise[base];
            return Pal::Ardoise[base + 1 + (Bruit(u / 5, rang, graine) < 0.35 ? 1 : 0)];
        }
        case Toit::Cuivre: return (u % 4 == 0) ? Pal::Cuivre[base] : Pal::Cuivre[base + 1];
        case Toit::Dore: return (u % 4 == 0) ? Pal::Or[base] : Pal::Or[base + 1 + (v % 5 == 0 ? 1 : 0)];
        case Toit::Toile: return (u % 6 < 3) ? teinte[base + 1] : teinte[base + 2 - (arriere ? 1 : 0)];
        case Toit::Aucun: break;
    }
    return Pal::Chaume[2];
}

void Peindre(Toile& t, const std::vector<Point2>& sommets, const std::function<Couleur(int x, int y)>& couleur) {
    Toile masque(t.Largeur(), t.Hauteur());
    masque.Polygone(sommets, Pal::Blanc);
    for (int y = 0; y < t.Hauteur(); ++y)
        for (int x = 0; x < t.Largeur(); ++x)
            if (masque.Opaque(x, y)) t.Point(x, y, couleur(x, y));
}

// ---------------------------------------------------------------- a volume

Point2 Volume::Sommet_Cheminee() const {
    const double cx = x + w * 0.75;
    return {cx, static_cast<double>(Faite()) - 3};
}

int Volume::Faite() const {
    switch (forme) {
        case Forme::Pignon: return Haut_Mur() - w / 2 - dp / 2;
        case Forme::Tour: return Haut_Mur() - std::max(w * 3 / 4, 6);
        case Forme::Fleche: return Haut_Mur() - w * 2;
        case Forme::Dome: return Haut_Mur() - w / 2;
        case Forme::Plat: return Haut_Mur() - dp;
        default: return Haut_Mur() - dp;
    }
}

namespace {

void Mur_Avant(Toile& t, const Volume& v, int haut) {
    const int hauteur = v.yb - haut;
    Peindre(t, {{v.x + 0.0, haut + 0.0}, {v.x + v.w + 0.0, haut + 0.0}, {v.x + v.w + 0.0, v.yb + 0.0}, {v.x + 0.0, v.yb + 0.0}},
            [&](int x, int y) { return Texture_Mur(v.mur, x - v.x, y - haut, v.w, hauteur, v.graine); });
}

// The roof throws a shadow on the top of the wall under its eave.
void Ombre_Sous_Avant_Toit(Toile& t, const Volume& v, int y0, int rangs) {
    for (int y = y0; y < y0 + rangs; ++y)
        for (int x = v.x; x < v.x + v.w; ++x)
            if (t.Opaque(x, y)) t.Point(x, y, Ombre(t.Lire(x, y), y == y0 ? 0.45 : 0.25));
}

void Toit_Long(Toile& t, const Volume& v) {
    const int eave = v.Haut_Mur() + 1, faite = v.Haut_Mur() - v.dp * 2 / 3, dos = v.Haut_Mur() - v.dp;
    const double g = v.x - 2, d = v.x + v.w + 2;
    Peindre(t, {{g + 1, dos + 0.0}, {d - 1, dos + 0.0}, {d, faite + 0.0}, {g, faite + 0.0}},
            [&](int x, int y) { return Texture_Toit(v.toit, x - v.x, y - dos, true, v.graine, v.teinteToit); });
    Peindre(t, {{g, faite + 0.0}, {d, faite + 0.0}, {d, eave + 0.0}, {g, eave + 0.0}},
            [&](int x, int y) { return Texture_Toit(v.toit, x - v.x, y - faite, false, v.graine, v.teinteToit); });
    // The ridge and the lip of the eave.
    for (int x = static_cast<int>(g); x < d; ++x) {
        t.Point(x, faite, Melanger(Texture_Toit(v.toit, x, 1, false, v.graine, v.teinteToit), Pal::Blanc, 0.25));
        t.Point(x, eave - 1, Ombre(Texture_Toit(v.toit, x, 2, false, v.graine, v.teinteToit), 0.35));
    }
}

void Toit_Pignon(Toile& t, const Volume& v) {
    const double cx = v.x + v.w / 2.0, haut = v.Haut_Mur(), pointe = haut - v.w / 2.0;
    const double g = v.x - 2, d = v.x + v.w + 2, recul = v.dp / 2.0;
    Peindre(t, {{g, haut + 1}, {cx, pointe}, {cx, pointe - recul}, {g, haut + 1 - recul}},
            [&](int x, int y) { return Texture_Toit(v.toit, x - v.x, y - static_cast<int>(pointe), false, v.graine, v.teinteToit); });
    Peindre(t, {{cx, pointe}, {d, haut + 1}, {d, haut + 1 - recul}, {cx, pointe - recul}},
            [&](int x, int y) { return Texture_Toit(v.toit, x - v.x, y - static_cast<int>(pointe), true, v.graine, v.teinteToit); });
    // The gable: the wall goes up into a triangle, edged with boards.
    Peindre(t, {{v.x + 0.0, haut + 0.5}, {cx, pointe + 1.5}, {v.x + v.w + 0.0, haut + 0.5}},
            [&](int x, int y) { return Texture_Mur(v.mur, x - v.x, y - static_cast<int>(pointe), v.w, v.hw, v.graine + 5); });
    t.Trait(g + 0.5, haut + 1.5, cx, pointe + 0.5, 1.6, Pal::Bois[1]);
    t.Trait(cx, pointe + 0.5, d - 0.5, haut + 1.5, 1.6, Pal::Bois[0]);
    // A small round window high in the gable.
    if (v.w >= 18) t.Ellipse(cx, (haut + pointe) / 2.0 + 1.5, 1.6, 1.6, Pal::Ardoise[0]);
}

void Toit_Rond(Toile& t, const Volume& v) {
    const double cx = v.x + v.w / 2.0, haut = v.Haut_Mur();
    const double g = v.x - 1.5, d = v.x + v.w + 1.5, sommet = v.Faite();
    auto ombre_ronde = [&](int x, int y, bool cone) {
        const double u = (x + 0.5 - cx) / ((d - g) / 2.0);   // -1 left, 1 right
        const Couleur c = Texture_Toit(v.toit, x - v.x, y - static_cast<int>(sommet), u > 0.35, v.graine, v.teinteToit);
        return u < -0.45 ? Melanger(c, Pal::Blanc, cone ? 0.15 : 0.2) : c;
    };
    if (v.forme == Forme::Dome) {
        Toile masque(t.Largeur(), t.Hauteur());
        masque.Ellipse(cx, haut + 1, (d - g) / 2.0, haut + 1 - sommet, Pal::Blanc);
        for (int y = static_cast<int>(sommet); y <= haut + 1; ++y)
            for (int x = static_cast<int>(g); x <= d; ++x)
                if (masque.Opaque(x, y)) t.Point(x, y, ombre_ronde(x, y, false));
        t.Rectangle(static_cast<int>(cx) - 1, static_cast<int>(sommet) - 3, 2, 3, Pal::Or[2]);
    } else {
        Peindre(t, {{g, haut + 1.5}, {cx - 0.5, sommet}, {cx + 0.5, sommet}, {d, haut + 1.5}},
                [&](int x, int y) { return ombre_ronde(x, y, true); });
        t.Ellipse(cx, haut + 1.5, (d - g) / 2.0, 1.5, Ombre(Texture_Toit(v.toit, 1, 1, false, v.graine, v.teinteToit), 0.2));
        t.Point(static_cast<int>(cx), static_cast<int>(sommet) - 1, Pal::Or[2]);
    }
}

void Toit_Appentis(Toile& t, const Volume& v) {
    const int eave = v.Haut_Mur() + 1, dos = v.Haut_Mur() - v.dp;
    Peindre(t, {{v.x - 1.0, dos + 0.0}, {v.x + v.w + 1.0, dos + 0.0}, {v.x + v.w + 1.0, eave + 0.0}, {v.x - 1.0, eave + 0.0}},
            [&](int x, int y) { return Texture_Toit(v.toit, x - v.x, y - dos, false, v.graine, v.teinteToit); });
}

void Dessus_Plat(Toile& t, const Volume& v) {
    const int haut = v.Haut_Mur(), dos = haut - v.dp;
    // The walk behind the battlements, paved, then the parapet.
    t.Rectangle(v.x, dos, v.w, v.dp, Pal::Pierre[1]);
    for (int y = dos; y < haut; y += 3) t.Ligne(v.x, y, v.x + v.w - 1, y, Pal::Pierre[0]);
    t.Rectangle(v.x, dos, v.w, 2, Pal::Pierre[2]);
}

void Creneaux(Toile& t, const Volume& v) {
    const int haut = v.Haut_Mur();
    for (int x = v.x; x < v.x + v.w; ++x) {
        t.Point(x, haut, Texture_Mur(v.mur, x - v.x, 0, v.w, v.hw, v.graine));
        if ((x - v.x) % 4 < 2) {
            t.Point(x, haut - 1, Texture_Mur(v.mur, x - v.x, 1, v.w, v.hw, v.graine));
            t.Point(x, haut - 2, Melanger(Texture_Mur(v.mur, x - v.x, 2, v.w, v.hw, v.graine), Pal::Blanc, 0.2));
        }
    }
}

void Porte(Toile& t, const Volume& v) {
    if (v.porte < 0) return;
    const int l = v.w >= 30 ? 8 : 6, h = std::min(v.hw - 1, v.w >= 30 ? 12 : 9);
    const int x0 = v.porte - l / 2, y0 = v.yb - h;
    const bool pierre = v.mur == Mur::Pierre || v.mur == Mur::Taille || v.mur == Mur::Brique || v.mur == Mur::Roche;
    if (v.ouverture) {
        t.Rectangle(x0 - 1, y0 - 2, l + 2, h + 2, Pal::Encre);
        t.Rectangle(x0, y0 + 1, l, 2, Pal::EncreDouce);
        t.Rectangle(x0 - 2, y0 - 1, 2, h + 1, Pal::Bois[1]);
        t.Rectangle(x0 + l, y0 - 1, 2, h + 1, Pal::Bois[1]);
        t.Rectangle(x0 - 3, y0 - 3, l + 6, 2, Pal::Bois[2]);
        t.Ligne(x0 - 3, y0 - 3, x0 + l + 2, y0 - 3, Pal::BoisClair[3]);
        return;
    }
    t.Rectangle(x0 - 1, y0 - 1, l + 2, h + 1, pierre ? Pal::PierreClaire[1] : Pal::Bois[0]);
    t.Rectangle(x0, y0, l, h, Pal::Bois[1]);
    for (int x = x0 + 1; x < x0 + l; x += 2) t.Ligne(x, y0, x, v.yb - 1, Pal::Bois[2]);
    t.Ligne(x0, y0 + h / 3, x0 + l - 1, y0 + h / 3, Pal::Bois[0]);
    t.Point(x0 + l - 2, y0 + h / 2 + 1, Pal::Or[3]);
    if (pierre) {   // an arch
        t.Effacer(x0 - 1, y0 - 1);
        t.Effacer(x0 + l, y0 - 1);
        t.Point(x0, y0, Pal::PierreClaire[1]);
        t.Point(x0 + l - 1, y0, Pal::PierreClaire[1]);
    }
}

void Fenetres(Toile& t, const Volume& v) {
    if (v.fenetres <= 0) return;
    const int l = 4, h = v.hw >= 14 ? 5 : 4;
    const int y0 = v.Haut_Mur() + std::max(3, (v.hw - h) / 2 - 1);
    for (int i = 0; i < v.fenetres; ++i) {
        int cx = v.x + (i + 1) * v.w / (v.fenetres + 1);
        if (v.porte >= 0 && std::abs(cx - v.porte) < 8) cx += cx < v.porte ? -5 : 5;
        const int x0 = cx - l / 2;
        t.Rectangle(x0 - 1, y0 - 1, l + 2, h + 2, Pal::Bois[0]);
        const Rampe& verre = v.fenetresEclairees ? Pal::Feu : Pal::Ardoise;
        t.Rectangle(x0, y0, l, h, verre[v.fenetresEclairees ? 3 : 0]);
        t.Point(x0, y0, v.fenetresEclairees ? Pal::Blanc : verre[2]);
        t.Ligne(x0 + l / 2, y0, x0 + l / 2, y0 + h - 1, Pal::Bois[1]);
        t.Ligne(x0 - 1, y0 + h, x0 + l, y0 + h, Pal::PierreClaire[2]);
    }
}

void Cheminee(Toile& t, const Volume& v) {
    if (!v.cheminee) return;
    const Point2 s = v.Sommet_Cheminee();
    const int x0 = static_cast<int>(s.x) - 2, y0 = static_cast<int>(s.y);
    for (int y = y0; y < y0 + 7; ++y)
        for (int x = x0; x < x0 + 4; ++x) t.Point(x, y, Texture_Mur(Mur::Pierre, x - x0, y - y0, 4, 7, 77));
    t.Rectangle(x0 - 1, y0, 6, 1, Pal::Pierre[3]);
    t.Rectangle(x0, y0 + 1, 4, 1, Pal::Encre);
}

void Baniere(Toile& t, const Volume& v) {
    if (v.baniere < 0) return;
    static const Rampe draps[] = {Pal::DrapRouge, Pal::DrapBleu, Pal::DrapVert, Pal::DrapViolet, Pal::DrapOcre};
    const Rampe& r = draps[v.baniere % 5];
    const int l = std::max(4, v.w / 6), h = std::max(6, v.hw * 2 / 3);
    const int x0 = v.Centre() - l / 2, y0 = v.Haut_Mur() + 1;
    t.Rectangle(x0, y0, l, h, r[2]);
    t.Rectangle(x0, y0, 1, h, r[3]);
    t.Rectangle(x0 + l - 1, y0, 1, h, r[1]);
    t.Point(x0 + l / 2, y0 + h, r[1]);
    t.Rectangle(x0 + l / 2 - 1, y0 + h / 2 - 1, 2, 2, Pal::Or[3]);
}

}  // namespace

void Batir(Toile& t, const Volume& v) {
    if (v.toit != Toit::Aucun) switch (v.forme) {
        case Forme::Long: Toit_Long(t, v); break;
        case Forme::Pignon: Toit_Pignon(t, v); break;
        case Forme::Tour:
        case Forme::Dome:
        case Forme::Fleche: Toit_Rond(t, v); break;
        case Forme::Appentis: Toit_Appentis(t, v); break;
        case Forme::Plat: Dessus_Plat(t, v); break;
    }
    Mur_Avant(t, v, v.Haut_Mur());
    if (v.forme == Forme::Tour || v.forme == Forme::Dome || v.forme == Forme::Fleche) {
        // Round walls: lit on the left, in shade on the right, the foot curved.
        for (int y = v.Haut_Mur(); y < v.yb; ++y)
            for (int x = v.x; x < v.x + v.w; ++x) {
                const double u = (x + 0.5 - v.x) / v.w;
                if (u < 0.25) t.Point(x, y, Melanger(t.Lire(x, y), Pal::Blanc, 0.12));
                else if (u > 0.7) t.Point(x, y, Ombre(t.Lire(x, y), u > 0.88 ? 0.35 : 0.18));
            }
        for (int x = v.x; x < v.x + v.w; ++x) {
            const double u = (x + 0.5 - v.x) / v.w * 2 - 1;
            const int creux = static_cast<int>(std::round(1.5 * (1 - u * u)));
            for (int k = 0; k < creux; ++k) t.Point(x, v.yb + k, t.Lire(x, v.yb - 1));
        }
    }
    if (v.forme != Forme::Plat && v.toit != Toit::Aucun) Ombre_Sous_Avant_Toit(t, v, v.Haut_Mur() + (v.forme == Forme::Long || v.forme == Forme::Appentis ? 2 : 0), 2);
    if (v.creneaux) Creneaux(t, v);
    Fenetres(t, v);
    Porte(t, v);
    Baniere(t, v);
    Cheminee(t, v);
}

// ---------------------------------------------------------------- small things

void Tas_De_Bois(Toile& t, int x, int y) {
    const int pos[][2] = {{0, 2}, {4, 2}, {8, 2}, {2, -1}, {6, -1}, {4, -4}};
    for (const auto& p : pos) {
        t.Ellipse(x + p[0] + 2, y + p[1] + 2, 2.2, 2.2, Pal::Bois[1]);
        t.Ellipse(x + p[0] + 2, y + p[1] + 2, 1.3, 1.3, Pal::BoisClair[2]);
        t.Point(x + p[0] + 2, y + p[1] + 2, Pal::Bois[2]);
    }
}

void Blocs_De_Pierre(Toile& t, int x, int y, const Rampe& r) {
    const int pos[][3] = {{0, 3, 5}, {5, 3, 5}, {2, -1, 5}};
    for (const auto& p : pos) {
        t.Rectangle(x + p[0], y + p[1], p[2], 4, r[1]);
        t.Rectangle(x + p[0], y + p[1], p[2], 2, r[3]);
        t.Rectangle(x + p[0] + p[2] - 1, y + p[1], 1, 4, r[0]);
    }
}

void Tonneau(Toile& t, int x, int y) {
    t.Rectangle(x, y + 1, 6, 6, Pal::Bois[2]);
    t.Rectangle(x + 1, y, 4, 8, Pal::Bois[2]);
    t.Rectangle(x + 4, y + 1, 1, 6, Pal::Bois[1]);
    t.Ligne(x, y + 2, x + 5, y + 2, Pal::Metal[1]);
    t.Ligne(x, y + 5, x + 5, y + 5, Pal::Metal[1]);
    t.Ellipse(x + 3, y + 1, 2.5, 1.2, Pal::BoisClair[2]);
}

void Caisse(Toile& t, int x, int y) {
    t.Rectangle(x, y, 7, 6, Pal::BoisClair[2]);
    t.Rectangle(x, y, 7, 2, Pal::BoisClair[3]);
    t.Cadre(x, y + 2, 7, 4, Pal::Bois[1]);
    t.Ligne(x, y + 2, x + 6, y + 5, Pal::Bois[1]);
}

void Sac(Toile& t, int x, int y, const Rampe& r) {
    t.Ellipse(x + 3, y + 4, 3, 3.2, r[2]);
    t.Ellipse(x + 2.5, y + 3.5, 1.5, 1.5, r[3]);
    t.Rectangle(x + 2, y, 2, 2, r[1]);
}

void Botte_De_Foin(Toile& t, int x, int y) {
    t.Rectangle(x, y, 8, 5, Pal::Chaume[2]);
    t.Rectangle(x, y, 8, 2, Pal::Chaume[3]);
    t.Ligne(x + 2, y, x + 2, y + 4, Pal::Chaume[0]);
    t.Ligne(x + 5, y, x + 5, y + 4, Pal::Chaume[0]);
}

void Cloture(Toile& t, int x0, int x1, int y) {
    for (int x = x0; x <= x1; x += 5) {
        t.Rectangle(x, y - 5, 2, 6, Pal::Bois[1]);
        t.Point(x, y - 5, Pal::Bois[3]);
    }
    t.Ligne(x0, y - 4, x1 + 1, y - 4, Pal::BoisClair[2]);
    t.Ligne(x0, y - 2, x1 + 1, y - 2, Pal::Bois[2]);
}

void Buisson(Toile& t, double cx, double cy, double r, const Rampe& f, uint32_t graine) {
    t.Ellipse(cx, cy, r, r * 0.85, f[1]);
    Tirage tirage(graine);
    for (int i = 0; i < static_cast<int>(r * 3); ++i) {
        const double a = tirage.Entre(0.0, 6.283), d = tirage.Entre(0.0, r * 0.7);
        t.Ellipse(cx + std::cos(a) * d - 0.5, cy + std::sin(a) * d * 0.8 - 0.8, 1.3, 1.1, f[2]);
    }
    for (int i = 0; i < static_cast<int>(r); ++i) {
        const double a = tirage.Entre(3.4, 5.2), d = tirage.Entre(0.0, r * 0.6);
        t.Point(static_cast<int>(cx + std::cos(a) * d), static_cast<int>(cy + std::sin(a) * d * 0.8), f[3]);
    }
}

void Arbre(Toile& t, double cx, double cy, double r, uint32_t graine) {
    t.Rectangle(static_cast<int>(cx) - 1, static_cast<int>(cy), 3, static_cast<int>(r * 0.9), Pal::Bois[1]);
    t.Point(static_cast<int>(cx) - 1, static_cast<int>(cy) + 1, Pal::Bois[2]);
    Buisson(t, cx, cy - r * 0.3, r, Pal::Feuillage, graine);
}

void Enseigne(Toile& t, int x, int y, const Rampe& fond, const std::function<void(Toile&, int, int)>& motif) {
    t.Ligne(x - 1, y - 2, x + 9, y - 2, Pal::Bois[0]);
    t.Point(x + 1, y - 1, Pal::Metal[1]);
    t.Point(x + 7, y - 1, Pal::Metal[1]);
    t.Rectangle(x, y, 9, 8, Pal::Bois[1]);
    t.Rectangle(x + 1, y + 1, 7, 6, fond[3]);
    motif(t, x + 1, y + 1);
}

void Fanion(Toile& t, int x, int y, int hauteur, const Rampe& drap, int phase) {
    t.Ligne(x, y, x, y + hauteur, Pal::Bois[0]);
    t.Point(x, y - 1, Pal::Or[3]);
    for (int i = 0; i < 7; ++i) {
        const int ondule = static_cast<int>(std::round(std::sin((i + phase * 1.7) * 0.9) * 1.0));
        const int l = i < 5 ? 4 : (i == 5 ? 3 : 2);
        for (int j = 0; j < l; ++j) t.Point(x + 1 + i, y + j + ondule, j == 0 ? drap[3] : drap[2]);
    }
}

void Fumee(Toile& t, Point2 depart, int phase, const Rampe& teinte) {
    for (int i = 0; i < 3; ++i) {
        const double age = i + (phase % 4) / 4.0;
        const double y = depart.y - 2 - age * 4, x = depart.x + std::sin(age * 1.3) * 1.5 + age * 0.7;
        const double r = 1.2 + age * 0.6;
        if (y - r < 0) continue;
        t.Ellipse(x, y, r, r * 0.9, teinte[std::max(1, 3 - i)]);
        t.Point(static_cast<int>(x - r * 0.4), static_cast<int>(y - r * 0.4), teinte[3]);
    }
}

#include "Humanoide.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "Figure.h"

namespace {

constexpr double CX = 12.0;   // the figure's axis, between columns 11 and 12
constexpr int YPieds = 28;    // top row of the feet; the shadow lies under them

enum Direction { Nord = 0, Est = 1, Sud = 2 };

struct Mesures {
    double rx, ry;
    int torseL, torseH, jambesH;
};

Mesures Mesures_De(Gabarit g) {
    switch (g) {
        case Gabarit::Petit: return {5.0, 4.5, 8, 6, 2};
        case Gabarit::Grand: return {5.5, 4.5, 10, 10, 5};
        default: return {5.0, 4.5, 8, 8, 5};
    }
}

struct Detail {
    int x, y;
    Couleur c;
};

// One cell being drawn: the measures, the materials and the pose.
struct Corps {
    const Apparence& a;
    int d;      // Nord, Est or Sud (west is the mirror of east)
    int p;      // step: -1, 0, 1
    Mesures m;
    int yJ, yT, xT0;
    double yTete;
    Figure f{LargeurPerso, HauteurPerso};
    std::vector<Detail> details;
    int peau, cheveux, haut, manches, bas, chaussures, ceinture, tablier, cape, coiffe, metal, or_, bois, os, sombre;

    Corps(const Apparence& ap, int dir, int pas) : a(ap), d(dir), p(pas), m(Mesures_De(ap.gabarit)) {
        yJ = YPieds - m.jambesH;
        yT = yJ - m.torseH;
        yTete = yT + 1 - m.ry;
        xT0 = static_cast<int>(CX) - m.torseL / 2;
        peau = f.Matiere(a.tete == Tete::Crane || a.armure == Armure::Os ? Pal::Os : a.peau);
        cheveux = f.Matiere(a.cheveux);
        const Rampe vetement = a.armure == Armure::Mailles || a.armure == Armure::Plaques ? Pal::Metal
                               : a.armure == Armure::Cuir                                ? Pal::Cuir
                                                                                         : a.haut;
        haut = f.Matiere(vetement);
        manches = a.manchesNues ? peau : f.Matiere(vetement);
        bas = f.Matiere(a.armure == Armure::Plaques ? Pal::Metal : a.bas);
        chaussures = f.Matiere(a.chaussures);
        ceinture = f.Matiere(a.ceintureCouleur);
        tablier = f.Matiere(a.tablierCouleur);
        cape = f.Matiere(a.capeCouleur);
        coiffe = f.Matiere(a.coiffeCouleur);
        metal = f.Matiere(Pal::Metal);
        or_ = f.Matiere(Pal::Or);
        bois = f.Matiere(Pal::Bois);
        os = f.Matiere(Pal::Os);
        sombre = f.Matiere(Rampe_Entre(Pal::Encre, Pal::EncreDouce), false);
    }

    int CoteG() const { return xT0; }
    int CoteD() const { return xT0 + m.torseL; }   // first column right of the torso
    int Taille() const { return yT + m.torseH - 2; }   // the belt
    void Detail_(int x, int y, Couleur c) { details.push_back({x, y, c}); }
};

// ---- the cape, behind the body or over its back ----

void Cape(Corps& c, bool dessus) {
    if (!c.a.cape) return;
    const double g = c.CoteG(), dr = c.CoteD(), bas = YPieds - 1;
    if (c.d == Nord && dessus) {
        c.f.Polygone({{g - 1, c.yT + 0.0}, {dr + 1, c.yT + 0.0}, {dr + 2, bas}, {g - 2, bas}}, c.cape);
        for (int x = static_cast<int>(g) - 1; x <= dr; x += 3) c.f.Pixel(x, static_cast<int>(bas), -1);
    } else if (c.d == Sud && !dessus) {
        c.f.Polygone({{g - 2, c.yT + 1.0}, {dr + 2, c.yT + 1.0}, {dr + 3, bas - 1}, {g - 3, bas - 1}}, c.cape);
    } else if (c.d == Est && !dessus) {
        c.f.Polygone({{CX - 3, c.yT + 0.0}, {CX, c.yT + 0.0}, {CX - 3 - c.p * 0.5, bas}, {CX - 7 - c.p * 0.5, bas}}, c.cape);
    }
}

// ---- what is carried on the back ----

void Arc_Au_Dos(Corps& c, bool dessus) {
    if (c.d == Nord && dessus) {
        c.f.Trait(c.CoteD() + 1, c.yT - 1, c.CoteG() - 1, c.yJ + 1, 1.2, c.bois);
        c.f.Rectangle(c.CoteD() - 3, c.yT - 3, 2, 7, c.f.Matiere(Pal::Cuir));
        c.Detail_(c.CoteD() - 3, c.yT - 4, Pal::Blanc);
        c.Detail_(c.CoteD() - 2, c.yT - 4, Pal::DrapRouge[2]);
    } else if (c.d != Nord && !dessus) {
        if (c.d == Sud) c.f.Trait(c.CoteG() - 2, c.yT - 2, c.CoteD() + 2, c.yJ, 1.2, c.bois);
        else c.f.Trait(CX - 4, c.yT - 2, CX - 5, c.yJ + 1, 1.2, c.bois);
    }
}

void Dos(Corps& c, bool dessus) {
    if (c.a.dos == Tenu::Arc) Arc_Au_Dos(c, dessus);
    if (c.a.dos == Tenu::Epee && ((c.d == Nord) == dessus)) {
        const double x = c.d == Est ? CX - 4 : CX + 2;
        c.f.Trait(x + 3, c.yT - 4, x - 2, c.yJ, 1.2, c.metal);
        c.f.Trait(x + 1, c.yT - 1, x + 4, c.yT, 1.0, c.or_);
    }
}

// ---- legs and feet ----

void Jambes(Corps& c) {
    if (c.a.jupe) {
        // Only the feet show under a dress.
        if (c.d == Est) {
            c.f.Rectangle(static_cast<int>(CX) - 2 - c.p, YPieds, 3, 2, c.chaussures);
            c.f.Rectangle(static_cast<int>(CX) - 1 + c.p * 2, YPieds, 3, 2, c.chaussures);
        } else {
            const int o = c.p;
            c.f.Rectangle(c.CoteG() + 1, YPieds + std::max(0, -o), 3, 2 - std::max(0, o), c.chaussures);
            c.f.Rectangle(c.CoteD() - 4, YPieds + std::max(0, o), 3, 2 - std::max(0, -o), c.chaussures);
        }
        return;
    }
    const int jambe = c.a.armure == Armure::Os ? c.os : c.bas;
    const double epaisseur = c.a.armure == Armure::Os ? 1.6 : 3.0;
    if (c.d == Est) {
        for (int cote : {-1, 1}) {   // the far leg first
            const double pied = CX - 0.5 + 2.0 * c.p * cote;
            c.f.Trait(CX - 0.5, c.yJ, pied, YPieds - 0.5, epaisseur, jambe);
            c.f.Rectangle(static_cast<int>(std::round(pied)) - 1, YPieds, 4, 2, c.chaussures);
        }
        return;
    }
    const int oG = c.p < 0 ? 1 : (c.p > 0 ? -1 : 0), oD = -oG;
    const int largeur = c.a.armure == Armure::Os ? 2 : 3;
    c.f.Rectangle(c.CoteG() + (c.a.armure == Armure::Os ? 1 : 0), c.yJ, largeur, c.m.jambesH + oG, jambe);
    c.f.Rectangle(c.CoteD() - 3, c.yJ, largeur, c.m.jambesH + oD, jambe);
    c.f.Rectangle(c.CoteG(), YPieds + oG, 3, 2, c.chaussures);
    c.f.Rectangle(c.CoteD() - 3, YPieds + oD, 3, 2, c.chaussures);
}

// ---- the body and what is worn on it ----

void Motif_Armure(Corps& c, int x0, int y0, int l, int h) {
    if (c.a.armure == Armure::Mailles) {
        const int maille = c.f.Matiere(Pal::Metal, false);
        for (int y = y0; y < y0 + h; ++y)
            for (int x = x0; x < x0 + l; ++x)
                if ((x + 2 * y) % 4 == 0 && c.f.Matiere_En(x, y) == c.haut) c.f.Pixel(x, y, maille);
    } else if (c.a.armure == Armure::Os) {
        for (int y = y0 + 1; y < y0 + h - 2; y += 2) c.f.Rectangle(x0 + 1, y, l - 2, 1, c.sombre);
        c.f.Rectangle(static_cast<int>(CX) - 1, y0, 2, h, c.os);
    } else if (c.a.armure == Armure::Cuir && c.d != Est) {
        c.f.Trait(x0, y0, x0 + l - 1, y0 + h - 2, 1.0, c.ceinture);
    }
}

void Jupe(Corps& c) {
    const double haut = c.Taille(), bas = YPieds;
    const double balance = c.p * 0.8;
    if (c.d == Est)
        c.f.Polygone({{CX - 3, haut}, {CX + 3, haut}, {CX + 4.5 + balance, bas}, {CX - 4.5 + balance, bas}}, c.haut);
    else
        c.f.Polygone({{c.CoteG() + 0.0, haut}, {c.CoteD() + 0.0, haut}, {c.CoteD() + 2.0 + balance, bas},
                      {c.CoteG() - 2.0 + balance, bas}},
                     c.haut);
}

void Torse(Corps& c) {
    const int x0 = c.d == Est ? static_cast<int>(CX) - 3 : c.CoteG();
    const int l = c.d == Est ? 6 : c.m.torseL;
    if (c.a.armure == Armure::Os) {
        c.f.Ellipse(x0 + l / 2.0, c.yT + c.m.torseH / 2.0 - 1, l / 2.0 - 0.5, c.m.torseH / 2.0 - 0.5, c.os);
        Motif_Armure(c, x0 + 1, c.yT + 1, l - 2, c.m.torseH - 2);
        c.f.Rectangle(x0 + 1, c.yJ - 2, l - 2, 2, c.os);   // the pelvis
        return;
    }
    c.f.Rectangle(x0, c.yT, l, c.m.torseH, c.haut);
    c.f.Pixel(x0, c.yT, -1);
    c.f.Pixel(x0 + l - 1, c.yT, -1);
    if (c.a.jupe) Jupe(c);
    Motif_Armure(c, x0, c.yT, l, c.m.torseH);
    if (c.a.tablier && c.d != Nord) {
        const int tx = c.d == Est ? x0 + 3 : x0 + 1;
        const int tl = c.d == Est ? 3 : l - 2;
        c.f.Rectangle(tx, c.yT + 2, tl, YPieds - 2 - (c.yT + 2), c.tablier);
    }
    if (c.a.ceinture) c.f.Rectangle(x0, c.Taille(), l, 1, c.ceinture);
    if (c.a.ceinture && c.d == Sud) c.Detail_(static_cast<int>(CX) - 1, c.Taille(), Pal::Or[2]);
    if (c.a.galons) {
        if (c.d == Sud) c.f.Rectangle(static_cast<int>(CX) - 1, c.yT + 1, 2, YPieds - c.yT - 1 - (c.a.jupe ? 0 : c.m.jambesH), c.or_);
        c.f.Rectangle(x0, c.yT, l, 1, c.or_);
    }
    if (c.a.armure == Armure::Plaques && c.d != Est) {
        c.f.Ellipse(c.CoteG() - 0.5, c.yT + 1.5, 2.5, 2.0, c.metal);
        c.f.Ellipse(c.CoteD() + 0.5, c.yT + 1.5, 2.5, 2.0, c.metal);
    }
}

// ---- arms, hands and what they hold ----

void Main_Et_Objet(Corps& c, double x, double y, bool devant);

void Bras(Corps& c) {
    const int matiere = c.a.armure == Armure::Os ? c.os : c.manches;
    const double ep = c.a.armure == Armure::Os ? 1.5 : 2.5;
    if (c.d == Est) {
        double mx = CX - 0.5 - 1.5 * c.p, my = c.yT + c.m.torseH - 1.0;
        if (c.a.brasTendus) {
            mx = CX + 6;
            my = c.yT + 2.5;
        }
        c.f.Trait(CX - 0.5, c.yT + 1.5, mx, my, ep, matiere);
        Main_Et_Objet(c, mx, my, true);
        return;
    }
    // Facing or turning away: both arms, each swinging against its leg.
    for (int cote : {-1, 1}) {
        const double x = cote < 0 ? c.CoteG() - 1.0 : c.CoteD() + 1.0;
        double bout = c.yT + c.m.torseH - 1.0 + (cote < 0 ? c.p : -c.p) * (c.d == Sud ? -1 : 1);
        double xm = x;
        if (c.a.brasTendus && c.d == Sud) {
            bout = c.yT + 3.0;
            xm = x + cote * -1.0;
        }
        if (c.a.brasTendus && c.d == Nord) bout = c.yT + 2.0;
        c.f.Trait(x, c.yT + 1.0, xm, bout, ep, matiere);
        const bool tient = (c.d == Sud) == (cote < 0);   // the right hand: left of the picture from the front
        Main_Et_Objet(c, xm, bout, tient);
    }
}

// The object is drawn only in the holding hand; a hand is a small skin blob (claws for beasts).
void Main_Et_Objet(Corps& c, double x, double y, bool tient) {
    const int main = c.a.armure == Armure::Plaques ? c.metal : c.peau;
    c.f.Ellipse(x, y + 0.5, 1.2, 1.2, main);
    if (c.a.griffes && c.d != Nord) {
        c.Detail_(static_cast<int>(x) - 1, static_cast<int>(y) + 2, Pal::Os[3]);
        c.Detail_(static_cast<int>(x) + 1, static_cast<int>(y) + 2, Pal::Os[3]);
    }
    if (!tient || (c.d == Nord && c.a.main != Tenu::Baton && c.a.main != Tenu::Lance)) return;
    const double sens = c.d == Est ? 1.0 : 0.0;
    if (c.d == Est && (c.a.main == Tenu::Baton || c.a.main == Tenu::Lance)) x += 2;   // a pole clear of the face
    switch (c.a.main) {
        case Tenu::Epee:
        case Tenu::Dague: {
            const double l = c.a.main == Tenu::Epee ? 9 : 5;
            c.f.Trait(x + sens, y - 1, x + sens * 3, y - l, 1.3, c.metal);
            c.f.Trait(x - 1.5, y - 0.5, x + 1.5, y - 0.5, 1.0, c.or_);
            break;
        }
        case Tenu::Hache:
            c.f.Trait(x, y + 1, x + sens * 2, y - 8, 1.2, c.bois);
            c.f.Polygone({{x + sens * 2 - 0.5, y - 8}, {x + sens * 2 + 3.5, y - 9}, {x + sens * 2 + 3.5, y - 4}, {x + sens * 2 - 0.5, y - 5}}, c.metal);
            break;
        case Tenu::Baton:
        case Tenu::Lance: {
            const double haut = c.yTete - 7;
            c.f.Trait(x, y + 3, x + sens, haut, 1.3, c.bois);
            if (c.a.main == Tenu::Lance) c.f.Polygone({{x + sens - 1.5, haut}, {x + sens + 1.5, haut}, {x + sens, haut - 4}}, c.metal);
            else c.f.Ellipse(x + sens, haut - 0.5, 1.6, 1.6, c.f.Matiere(Pal::Magie));
            break;
        }
        case Tenu::Arc:
            c.f.Trait(x, y - 6, x + sens * 2 - 1, y, 1.2, c.bois);
            c.f.Trait(x + sens * 2 - 1, y, x, y + 5, 1.2, c.bois);
            break;
        case Tenu::Bombe:
            c.f.Ellipse(x + sens, y - 1.5, 2.2, 2.2, c.f.Matiere(Rampe_Entre({40, 40, 52}, {120, 120, 140})));
            c.Detail_(static_cast<int>(x + sens) + 1, static_cast<int>(y) - 5, Pal::Feu[3]);
            c.Detail_(static_cast<int>(x + sens) + 1, static_cast<int>(y) - 4, Pal::Feu[1]);
            break;
        default: break;
    }
}

// ---- the head ----

void Oreilles(Corps& c) {
    const double y = c.yTete;
    if (c.a.tete == Tete::Gobeline) {
        if (c.d != Est) {
            c.f.Polygone({{CX - c.m.rx + 1, y - 1}, {CX - c.m.rx - 3, y - 3}, {CX - c.m.rx + 1, y + 1.5}}, c.peau);
            c.f.Polygone({{CX + c.m.rx - 1, y - 1}, {CX + c.m.rx + 3, y - 3}, {CX + c.m.rx - 1, y + 1.5}}, c.peau);
        } else {
            c.f.Polygone({{CX - 1, y - 1}, {CX - 5, y - 4}, {CX - 1, y + 1.5}}, c.peau);
        }
    } else if (c.a.tete == Tete::Loup) {
        for (int cote : {-1, 1}) {
            if (c.d == Est && cote > 0) continue;
            const double x = c.d == Est ? CX - 1 : CX + cote * 3.0;
            c.f.Polygone({{x - 2, y - 2}, {x + 2, y - 2}, {x + cote * 0.5, y - c.m.ry - 3}}, c.cheveux);
        }
    }
}

void Tete_Forme(Corps& c) {
    const double y = c.yTete;
    const int matiere = c.a.tete == Tete::Loup ? c.cheveux : c.peau;
    if (c.d == Est) {
        c.f.Ellipse(CX + 0.5, y, c.m.rx - 0.5, c.m.ry, matiere);
        if (c.a.tete == Tete::Loup) c.f.Ellipse(CX + 5, y + 1.5, 3, 2, c.peau);
        if (c.a.tete == Tete::Gobeline) c.f.Ellipse(CX + 5, y + 1, 1.5, 1.3, c.peau);
    } else {
        c.f.Ellipse(CX, y, c.m.rx, c.m.ry, matiere);
        if (c.a.tete == Tete::Loup && c.d == Sud) c.f.Ellipse(CX, y + 2, 2.5, 2.2, c.peau);
    }
    Oreilles(c);
}

void Visage(Corps& c) {
    if (c.d == Nord) return;
    const int ye = static_cast<int>(std::floor(c.yTete)) + (c.a.tete == Tete::Loup ? 0 : 1);
    const Couleur oeil = c.a.yeuxLuisants ? c.a.yeux : Pal::Encre;
    const int crane = c.a.tete == Tete::Crane;
    if (c.d == Sud) {
        c.Detail_(static_cast<int>(CX) - 3, ye, oeil);
        c.Detail_(static_cast<int>(CX) + 2, ye, oeil);
        if (crane) {
            c.Detail_(static_cast<int>(CX) - 3, ye - 1, Pal::Encre);
            c.Detail_(static_cast<int>(CX) + 2, ye - 1, Pal::Encre);
            c.Detail_(static_cast<int>(CX) - 1, ye + 2, Pal::Encre);
            c.Detail_(static_cast<int>(CX), ye + 2, Pal::Encre);
        }
        if (c.a.tete == Tete::Loup) c.Detail_(static_cast<int>(CX) - 1, ye + 3, Pal::Encre), c.Detail_(static_cast<int>(CX), ye + 3, Pal::Encre);
    } else {
        c.Detail_(static_cast<int>(CX) + 3, ye, oeil);
        if (crane) c.Detail_(static_cast<int>(CX) + 3, ye - 1, Pal::Encre);
        if (c.a.tete == Tete::Loup) c.Detail_(static_cast<int>(CX) + 7, ye + 1, Pal::Encre);
    }
}

void Cheveux(Corps& c) {
    if (c.a.chauve || c.a.tete != Tete::Humaine) return;
    const double y = c.yTete, rx = c.m.rx, ry = c.m.ry;
    const int h = c.cheveux;
    const bool longs = c.a.cheveuxLongs && c.a.coiffe != Coiffe::Capuche && c.a.coiffe != Coiffe::Voile;
    if (c.d == Nord) {
        c.f.Ellipse(CX, y - 0.5, rx + 0.3, ry + 0.3, h);
        if (longs) c.f.Polygone({{CX - rx, y}, {CX + rx, y}, {CX + rx - 1, c.yT + 5.0}, {CX - rx + 1, c.yT + 5.0}}, h);
    } else if (c.d == Sud) {
        c.f.Ellipse(CX, y - 3, rx + 0.3, ry - 2, h);
        c.f.Rectangle(static_cast<int>(CX - rx), static_cast<int>(y) - 3, 2, 4, h);
        c.f.Rectangle(static_cast<int>(CX + rx) - 2, static_cast<int>(y) - 3, 2, 4, h);
        if (longs) {
            c.f.Rectangle(static_cast<int>(CX - rx), static_cast<int>(y), 2, c.yT + 4 - static_cast<int>(y), h);
            c.f.Rectangle(static_cast<int>(CX + rx) - 2, static_cast<int>(y), 2, c.yT + 4 - static_cast<int>(y), h);
        }
    } else {
        c.f.Ellipse(CX, y - 2.5, rx, ry - 1.5, h);
        c.f.Rectangle(static_cast<int>(CX - rx) + 1, static_cast<int>(y) - 3, 5, 5, h);
        if (longs) c.f.Polygone({{CX - rx + 0.5, y}, {CX - 0.5, y}, {CX - 1.5, c.yT + 5.0}, {CX - rx + 0.5, c.yT + 4.0}}, h);
    }
    if (c.a.barbe && c.d != Nord) {
        if (c.d == Sud) c.f.Polygone({{CX - 3, y + 1.5}, {CX + 3, y + 1.5}, {CX + 1, y + ry + 2}, {CX - 1, y + ry + 2}}, h);
        else c.f.Polygone({{CX + 1, y + 1.5}, {CX + 5, y + 1.5}, {CX + 3, y + ry + 2}}, h);
    }
}

// ---- headwear ----

void Coiffe_(Corps& c) {
    const double top = c.yTete - c.m.ry, rx = c.m.rx;
    const double avant = c.d == Est ? 1.5 : 0.0;
    switch (c.a.coiffe) {
        case Coiffe::Bonnet:
        case Coiffe::Foulard:
            c.f.Ellipse(CX + avant * 0.3, top + 2.2, rx + 0.6, 3.0, c.coiffe);
            if (c.a.coiffe == Coiffe::Foulard && c.d != Sud) c.f.Ellipse(c.d == Nord ? CX : CX - 4, top + 6, 1.5, 1.5, c.coiffe);
            break;
        case Coiffe::Paille:
            c.f.Ellipse(CX + avant, top + 3.5, rx + 3.5, 2.5, c.coiffe);
            c.f.Ellipse(CX + avant * 0.5, top + 1.5, rx - 1.5, 2.5, c.coiffe);
            c.f.Rectangle(static_cast<int>(CX - rx + 2), static_cast<int>(top + 3), static_cast<int>(2 * rx - 4), 1,
                          c.f.Matiere(Pal::DrapRouge));
            break;
        case Coiffe::Capuche:
        case Coiffe::Voile: {
            c.f.Ellipse(CX, c.yTete - 0.5, rx + 1, c.m.ry + 1, c.coiffe);
            if (c.d == Nord) c.f.Polygone({{CX - 3, c.yTete + 2}, {CX + 3, c.yTete + 2}, {CX, c.yT + 5.0}}, c.coiffe);
            if (c.a.coiffe == Coiffe::Voile && c.d != Est)
                c.f.Polygone({{CX - rx - 1, c.yTete}, {CX + rx + 1, c.yTete}, {CX + rx + 2, c.yT + 3.0}, {CX - rx - 2, c.yT + 3.0}}, c.coiffe);
            // The opening of the face.
            if (c.d == Sud) c.f.Ellipse(CX, c.yTete + 1.2, rx - 1.8, c.m.ry - 1.4, c.peau);
            if (c.d == Est) c.f.Ellipse(CX + 2.5, c.yTete + 1.2, rx - 2.8, c.m.ry - 1.6, c.peau);
            break;
        }
        case Coiffe::Casque:
        case Coiffe::Cornes:
            c.f.Ellipse(CX + avant * 0.3, top + 2.5, rx + 0.5, 3.2, c.coiffe);
            c.f.Rectangle(static_cast<int>(CX - rx - 1), static_cast<int>(top + 4), static_cast<int>(2 * rx + 2), 1, c.coiffe);
            if (c.a.coiffe == Coiffe::Cornes)
                for (int cote : {-1, 1}) {
                    if (c.d == Est && cote > 0) continue;
                    const double x = c.d == Est ? CX - 1 : CX + cote * (rx - 0.5);
                    c.f.Polygone({{x - 1, top + 2}, {x + 1, top + 2}, {x + cote * 3.0, top - 3}}, c.os);
                }
            break;
        case Coiffe::Heaume:
            c.f.Ellipse(CX + avant * 0.3, c.yTete - 0.5, rx + 0.6, c.m.ry + 0.5, c.coiffe);
            if (c.d == Sud) c.f.Rectangle(static_cast<int>(CX) - 3, static_cast<int>(c.yTete) + 1, 6, 1, c.sombre);
            if (c.d == Est) c.f.Rectangle(static_cast<int>(CX) + 2, static_cast<int>(c.yTete) + 1, 4, 1, c.sombre);
            break;
        case Coiffe::Pointu: {
            c.f.Ellipse(CX + avant, top + 3, rx + 2.5, 2.0, c.coiffe);
            const double pointe = c.d == Est ? CX - 3.5 : CX + 2.5;
            c.f.Polygone({{CX - rx + 0.5, top + 3}, {CX + rx - 0.5, top + 3}, {pointe + 1, top - 3}, {pointe, top - 6}}, c.coiffe);
            break;
        }
        case Coiffe::Chaperon:
            c.f.Ellipse(CX + avant, top + 2, rx + 1.5, 2.8, c.coiffe);
            if (c.d != Sud) c.f.Polygone({{CX - 2, top + 3}, {CX + 1, top + 3}, {CX - 3, c.yT + 4.0}}, c.coiffe);
            break;
        case Coiffe::Couronne: {
            const int y = static_cast<int>(top) + 1;
            c.f.Rectangle(static_cast<int>(CX - rx + 1), y, static_cast<int>(2 * rx - 2), 2, c.or_);
            for (int x = static_cast<int>(CX - rx + 1); x < CX + rx - 1; x += 2) c.f.Pixel(x, y - 1, c.or_);
            if (c.d == Sud) c.Detail_(static_cast<int>(CX), y + 1, Pal::DrapRouge[2]);
            break;
        }
        default: break;
    }
    if (c.a.plumet) c.f.Ellipse(c.d == Est ? CX - 2 : CX + 0.5, top - 1.5, 1.4, 2.6, c.f.Matiere(Pal::DrapRouge));
}

}  // namespace

void Ombre_Au_Sol(Toile& t, double cx, double cy, double rx, double ry) {
    for (int y = static_cast<int>(cy - ry); y <= static_cast<int>(cy + ry); ++y)
        for (int x = static_cast<int>(cx - rx); x <= static_cast<int>(cx + rx); ++x) {
            const double u = (x + 0.5 - cx) / rx, v = (y + 0.5 - cy) / ry;
            if (u * u + v * v <= 1.0 && !t.Opaque(x, y) && Case_Paire(x, y)) t.Point(x, y, Pal::Encre);
        }
}

Toile Dessiner_Humanoide(const Apparence& a, int direction, int pas) {
    const bool ouest = direction == 3;
    Corps c(a, ouest ? Est : (direction == 0 ? Nord : (direction == 1 ? Est : Sud)), pas);
    Cape(c, false);
    Dos(c, false);
    Jambes(c);
    Torse(c);
    Bras(c);
    Tete_Forme(c);
    Cheveux(c);
    Coiffe_(c);
    Visage(c);
    Cape(c, true);
    Dos(c, true);
    Toile t = c.f.Rendre();
    for (const Detail& dt : c.details) t.Point(dt.x, dt.y, dt.c);
    Ombre_Au_Sol(t, CX, YPieds + 2.5, c.m.torseL / 2.0 + 2, 1.6);
    return ouest ? t.Miroir() : t;
}

Toile Bloc_Perso(const Apparence& a) {
    return Bloc_De([&](int d, int p) { return Dessiner_Humanoide(a, d, p); });
}

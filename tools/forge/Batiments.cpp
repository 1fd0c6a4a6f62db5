// One sheet per building type, Batiments/<Batiment_Nom>.bmp: cells of the building's size,
// NombreEtapeAnimation columns and NombreEtapeFabrication + 1 rows. Row r < n - 1 is the
// building site at that stage (a staked-out plot, then walls rising in scaffolding, then the
// bare frame of the roof), row n - 1 the finished house with nothing on show (the empty
// shop), row n the house at work with its goods out. The columns are the idle animation:
// smoke, a flag, a turning wheel, a glowing hearth.
//
// What a house looks like comes from its name (a mill, a forge, a temple…) and its epoch:
// wattle and thatch first, then timber frames and shingles, stone and tiles, slate, and at
// last dressed stone with copper and gold.
#include <algorithm>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "Architecture.h"
#include "Bruit.h"
#include "Forge.h"
#include "Mots.h"
#include "Pictos.h"
#include "rules/ClsJeuParam.h"

namespace {

struct Contexte {
    int W = 48, H = 48;
    int epoque = 1;       // 1 to 5
    int porteX = 24;      // centre of the door
    int yb = 43;          // ground line of the front walls
    std::string nom;      // folded name
    std::string produit;  // folded name of what it makes or sells, if anything
    uint32_t graine = 1;
};

struct Plan {
    std::vector<Volume> volumes;
    std::function<void(Toile&)> decor;                    // part of the finished house
    std::function<void(Toile&)> marchandises;             // the stock on show
    std::function<void(Toile&, double)> animation;        // phase in [0, 1)
    bool pierre = false;                                  // stones on the site, not logs
};

struct Style {
    Mur mur;
    Toit toit;
};

Style Style_Epoque(int e) {
    static const Style styles[] = {{Mur::Torchis, Toit::Chaume}, {Mur::Colombage, Toit::Bardeaux},
                                   {Mur::Pierre, Toit::Tuiles},  {Mur::Pierre, Toit::Ardoise},
                                   {Mur::Taille, Toit::Ardoise}};
    return styles[std::clamp(e, 1, 5) - 1];
}

// The main house of a plan: centred on the door, in the style of its epoch.
Volume Maison(const Contexte& c, int w, Forme forme, int hw = -1, int dp = -1) {
    Volume v;
    const Style s = Style_Epoque(c.epoque);
    v.mur = s.mur;
    v.toit = s.toit;
    v.forme = forme;
    v.w = w;
    v.x = std::clamp(c.porteX - w / 2, 1, c.W - w - 1);
    v.yb = c.yb;
    v.hw = hw > 0 ? hw : std::clamp(c.H * 28 / 100, 10, 24);
    const int place = v.yb - v.hw - 2;
    v.dp = dp > 0 ? dp : std::min(place, forme == Forme::Pignon ? w / 2 : w * 3 / 5);
    v.porte = c.porteX;
    v.fenetres = w >= 30 ? 2 : 0;
    v.cheminee = c.epoque >= 2 && forme == Forme::Long;
    v.graine = c.graine;
    return v;
}

// A plank lean-to beside the main house: w wide at x, standing recul above the ground line,
// its door in the middle.
Volume Appentis_De_Planches(const Contexte& c, int w, int x, int recul) {
    Volume v = Maison(c, w, Forme::Appentis, 10, 8);
    v.x = x;
    v.yb = c.yb - recul;
    v.porte = v.Centre();
    v.mur = Mur::Planches;
    return v;
}

// ---------------------------------------------------------------- animations

std::function<void(Toile&, double)> Fumee_De(const Volume& v, Rampe teinte = Pal::DrapGris) {
    const Point2 s = v.Sommet_Cheminee();
    return [s, teinte](Toile& t, double phase) { Fumee(t, s, static_cast<int>(phase * 4), teinte); };
}

std::function<void(Toile&, double)> Drapeau_De(int x, int y, const Rampe& drap) {
    return [x, y, drap](Toile& t, double phase) { Fanion(t, x, y, 9, drap, static_cast<int>(phase * 4)); };
}

void Foyer(Toile& t, int x, int y, double phase) {
    const double vif = 0.5 + 0.5 * std::sin(phase * 6.283);
    t.Ellipse(x, y, 2.5, 1.6, Pal::Feu[1]);
    t.Ellipse(x, y - 0.5, 1.6, 1.2 + vif * 0.6, Pal::Feu[2]);
    t.Point(x, y - 1 - static_cast<int>(vif * 1.5), Pal::Feu[3]);
}

void Etincelles(Toile& t, int x, int y, double phase) {
    Tirage tirage(static_cast<uint64_t>(phase * 100) + 7);
    for (int i = 0; i < 3; ++i) t.Point(x + tirage.Entre(-3, 3), y - tirage.Entre(1, 5), i == 0 ? Pal::Blanc : Pal::Feu[3]);
}

// ---------------------------------------------------------------- the plans

using Concepteur = std::function<void(Plan&, const Contexte&)>;

void Sur_Etal(Toile& t, int x, int y, const std::string& produit) {
    t.Rectangle(x, y + 6, 12, 2, Pal::Bois[1]);
    t.Rectangle(x + 1, y + 8, 1, 2, Pal::Bois[0]);
    t.Rectangle(x + 10, y + 8, 1, 2, Pal::Bois[0]);
    t.Coller(Picto_Ressource(produit), x, y - 4);
}

void Hutte(Plan& p, const Contexte& c) {
    Volume v = Maison(c, 26, Forme::Tour, 10);
    v.mur = Mur::Torchis;
    v.toit = Toit::Chaume;
    p.volumes.push_back(v);
    const int W = c.W, yb = c.yb;
    const uint32_t g = c.graine;
    p.decor = [W, yb, g](Toile& t) {
        Buisson(t, 5, yb - 6, 4.5, Pal::Feuillage, g);
        Buisson(t, W - 6, yb - 10, 4, Pal::Feuillage, g + 1);
        for (const auto& b : std::vector<std::pair<int, int>>{{4, yb - 8}, {6, yb - 5}, {W - 7, yb - 12}, {W - 5, yb - 9}})
            t.Point(b.first, b.second, Pal::DrapRouge[3]);
    };
    const std::string produit = c.produit;
    p.marchandises = [W, yb, produit](Toile& t) {
        t.Ellipse(W - 8, yb, 4, 2.5, Pal::Chaume[1]);
        t.Coller(Picto_Ressource(produit), W - 14, yb - 8);
    };
}

void Pecheur(Plan& p, const Contexte& c) {
    Volume v = Maison(c, 30, Forme::Long);
    v.mur = Mur::Planches;
    p.volumes.push_back(v);
    const int W = c.W, yb = c.yb;
    p.decor = [W, yb](Toile& t) {   // a rack of drying fish and a net
        t.Ligne(W - 6, yb - 14, W - 6, yb, Pal::Bois[1]);
        t.Ligne(W - 2, yb - 14, W - 2, yb, Pal::Bois[1]);
        t.Ligne(W - 7, yb - 13, W - 1, yb - 13, Pal::Bois[2]);
        for (int x = W - 6; x <= W - 2; x += 2) t.Rectangle(x, yb - 12, 1, 4, Pal::Eau[2]);
        for (int y = yb - 8; y < yb; y += 2)
            for (int x = 1; x < 8; x += 2) t.Point(x + (y / 2) % 2, y, Pal::DrapBrun[3]);
    };
    const std::string produit = c.produit;
    p.marchandises = [yb, produit](Toile& t) {
        Tonneau(t, 1, yb - 7);
        t.Coller(Picto_Ressource(produit), 6, yb - 6);
    };
}

void Bucheron(Plan& p, const Contexte& c) {
    Volume v = Maison(c, 32, Forme::Long);
    v.mur = Mur::Rondins;
    p.volumes.push_back(v);
    const int W = c.W, yb = c.yb;
    p.decor = [W, yb](Toile& t) {   // a chopping block with its axe
        t.Ellipse(W - 5, yb - 1, 3, 1.6, Pal::BoisClair[2]);
        t.Rectangle(W - 8, yb - 1, 6, 3, Pal::Bois[1]);
        t.Ligne(W - 5, yb - 2, W - 3, yb - 8, Pal::Bois[2]);
        t.Rectangle(W - 4, yb - 9, 3, 2, Pal::Metal[2]);
    };
    p.marchandises = [yb](Toile& t) { Tas_De_Bois(t, 0, yb - 6); };
}

void Tailleur(Plan& p, const Contexte& c) {
    Volume v = Maison(c, 32, Forme::Long);
    v.mur = Mur::Pierre;
    p.volumes.push_back(v);
    p.pierre = true;
    const int W = c.W, yb = c.yb;
    p.decor = [W, yb](Toile& t) {
        t.Rectangle(W - 9, yb - 4, 8, 2, Pal::Bois[2]);
        t.Rectangle(W - 8, yb - 2, 1, 3, Pal::Bois[0]);
        t.Rectangle(W - 3, yb - 2, 1, 3, Pal::Bois[0]);
        t.Rectangle(W - 7, yb - 7, 4, 3, Pal::PierreClaire[2]);
    };
    p.marchandises = [yb](Toile& t) { Blocs_De_Pierre(t, 0, yb - 6, Pal::PierreClaire); };
}

void Ferme(Plan& p, const Contexte& c) {
    Volume v = Maison(c, 28, Forme::Pignon);
    v.x = c.W - v.w - 2;
    v.porte = v.x + v.w / 2;
    p.volumes.push_back(v);
    const int yb = c.yb, x1 = v.x - 3;
    p.decor = [yb, x1](Toile& t) {   // a small field of wheat
        for (int y = yb - 16; y < yb; y += 3) {
            t.Ligne(1, y + 1, x1, y + 1, Pal::Terre[1]);
            for (int x = 1; x <= x1; ++x) t.Point(x, y, (x + y) % 3 ? Pal::Chaume[2] : Pal::Chaume[3]);
        }
    };
    p.marchandises = [yb](Toile& t) { Botte_De_Foin(t, 2, yb - 4); };
}

void Bergerie(Plan& p, const Contexte& c) {
    Volume v = Maison(c, 36, Forme::Long, 9, 12);
    v.yb = c.yb - 14;
    v.porte = v.Centre();
    v.mur = Mur::Planches;
    v.fenetres = 0;
    p.volumes.push_back(v);
    const int W = c.W, yb = c.yb;
    p.decor = [W, yb](Toile& t) {
        Cloture(t, 1, W - 3, yb + 1);
        t.Ligne(1, yb - 13, 1, yb, Pal::Bois[1]);
        t.Ligne(W - 2, yb - 13, W - 2, yb, Pal::Bois[1]);
        for (const auto& m : std::vector<std::pair<int, int>>{{10, yb - 9}, {26, yb - 8}}) {   // sheep
            t.Ellipse(m.first, m.second, 4, 2.8, Pal::DrapBlanc[2]);
            t.Ellipse(m.first - 1, m.second - 1, 2.5, 1.5, Pal::DrapBlanc[3]);
            t.Ellipse(m.first + 4, m.second - 1, 1.5, 1.5, Pal::CheveuxNoirs[2]);
            t.Rectangle(m.first - 2, m.second + 2, 1, 2, Pal::CheveuxNoirs[1]);
            t.Rectangle(m.first + 2, m.second + 2, 1, 2, Pal::CheveuxNoirs[1]);
        }
    };
    p.marchandises = [W, yb](Toile& t) { Sac(t, W - 12, yb - 10, Pal::DrapBlanc); };
}

void Jardin(Plan& p, const Contexte& c) {
    p.volumes.push_back(Appentis_De_Planches(c, 20, c.W - 20 - 2, 12));
    const int W = c.W, yb = c.yb;
    p.decor = [W, yb](Toile& t) {
        for (int rang = 0; rang < 3; ++rang) {
            const int y = yb - 22 + rang * 8;
            t.Rectangle(2, y, W / 2 - 2, 5, Pal::Terre[1]);
            t.Ligne(2, y, W / 2 - 1, y, Pal::Terre[2]);
            for (int x = 4; x < W / 2 - 1; x += 3) {
                t.Ellipse(x, y + 1, 1.5, 1.5, Pal::Feuillage[2 + (x / 3) % 2]);
                if ((x + rang) % 4 == 0) t.Point(x, y, rang == 1 ? Pal::DrapViolet[3] : Pal::Or[3]);
            }
        }
        t.Rectangle(W / 2 + 4, yb - 6, 14, 4, Pal::Terre[1]);
        for (int x = W / 2 + 5; x < W / 2 + 18; x += 3) t.Ellipse(x, yb - 5, 1.4, 1.4, Pal::Feuillage[3]);
    };
    const std::string produit = c.produit;
    p.marchandises = [W, yb, produit](Toile& t) { Sur_Etal(t, W - 15, yb - 8, produit); };
}

void Roue_A_Eau(Toile& t, int cx, int cy, double phase) {
    t.Rectangle(cx - 3, cy + 4, 8, 4, Pal::Eau[1]);
    t.Ellipse(cx, cy, 6, 6, Pal::Bois[1]);
    t.Ellipse(cx, cy, 4.5, 4.5, Pal::Bois[2]);
    t.Ellipse(cx, cy, 3.5, 3.5, Pal::Bois[1]);
    for (int i = 0; i < 4; ++i) {
        const double a = phase * 1.571 + i * 0.785;
        t.Ligne(cx + static_cast<int>(std::round(std::cos(a) * 5.5)), cy + static_cast<int>(std::round(std::sin(a) * 5.5)),
                cx - static_cast<int>(std::round(std::cos(a) * 5.5)), cy - static_cast<int>(std::round(std::sin(a) * 5.5)), Pal::BoisClair[3]);
    }
    t.Ellipse(cx, cy, 1.2, 1.2, Pal::Metal[2]);
    t.Point(cx + 4, cy + 5, Pal::Eau[3]);
    t.Point(cx + 1 + static_cast<int>(phase * 4) % 3, cy + 6, Pal::Glace[3]);
}

void Scierie(Plan& p, const Contexte& c) {
    Volume v = Maison(c, c.W - 18, Forme::Long);
    v.x = 2;
    v.mur = Mur::Planches;
    p.volumes.push_back(v);
    const int W = c.W, yb = c.yb;
    p.decor = [W, yb](Toile& t) { t.Rectangle(W - 17, yb - 8, 4, 8, Pal::Pierre[1]); };
    p.animation = [W, yb](Toile& t, double phase) { Roue_A_Eau(t, W - 8, yb - 8, phase); };
    p.marchandises = [yb, W](Toile& t) {
        for (int i = 0; i < 3; ++i) t.Rectangle(W - 30, yb - 1 - i * 2, 12, 2, i % 2 ? Pal::BoisClair[2] : Pal::BoisClair[3]);
    };
}

void Boulangerie(Plan& p, const Contexte& c) {
    Volume v = Maison(c, c.W - 22, Forme::Pignon);
    v.x = 2;
    v.porte = v.Centre();
    p.volumes.push_back(v);
    Volume four = v;   // the bread oven: a small stone dome at the side
    four.forme = Forme::Dome;
    four.mur = Mur::Pierre;
    four.toit = Toit::Tuiles;
    four.w = 16;
    four.hw = 7;
    four.x = c.W - 18;
    four.porte = -1;
    four.fenetres = 0;
    p.volumes.push_back(four);
    const int fx = four.Centre(), fy = c.yb - 2;
    p.animation = [fx, fy, four](Toile& t, double phase) {
        t.Rectangle(fx - 3, fy - 3, 6, 3, Pal::Encre);
        Foyer(t, fx, fy - 1, phase);
        Fumee(t, {static_cast<double>(fx), static_cast<double>(four.Faite())}, static_cast<int>(phase * 4), Pal::DrapGris);
    };
    const std::string produit = c.produit;
    const int x = v.x + v.w / 2 + 6, y = v.Haut_Mur() + 2;
    p.marchandises = [x, y, produit](Toile& t) {
        Enseigne(t, x, y, Pal::Parchemin, [produit](Toile& s, int sx, int sy) { s.Coller(Picto_Ressource(produit).Reduire(7, 6), sx, sy); });
    };
}

// A hill of rock, grass on its top, with specks of the ore in it.
void Colline(Toile& t, int W, int yb, const Rampe& filon, uint32_t graine) {
    Toile masque(W, yb + 2);
    masque.Ellipse(W / 2.0, yb, W / 2.0 - 1, yb * 0.62, Pal::Blanc);
    masque.Ellipse(W / 3.0, yb - 2, W / 4.0, yb * 0.72, Pal::Blanc);
    masque.Ellipse(W * 0.7, yb - 1, W / 4.0, yb * 0.55, Pal::Blanc);
    for (int y = 0; y <= yb; ++y)
        for (int x = 0; x < W; ++x) {
            if (!masque.Opaque(x, y)) continue;
            // Depth under the top of the hill in this column.
            int dessus = y;
            while (dessus > 0 && masque.Opaque(x, dessus - 1)) --dessus;
            const int profondeur = y - dessus;
            const double n = Bruit_Lisse(x, y, 5, 40, graine) * 0.7 + Bruit(x, y, graine + 3) * 0.3;
            const Couleur roches[] = {Melanger(Pal::Pierre[0], Pal::Terre[0], 0.3), Melanger(Pal::Pierre[1], Pal::Terre[1], 0.3),
                                      Melanger(Pal::Pierre[2], Pal::Terre[2], 0.25), Pal::Pierre[3]};
            Couleur c = roches[std::clamp(static_cast<int>(n * 4 + Seuil_Bayer(x, y) - 0.5), 0, 3)];
            if (profondeur < 4 || (profondeur < 7 && Seuil_Bayer(x, y) < (7 - profondeur) / 4.0))
                c = Bruit(x, y, graine) < 0.3 ? Pal::Herbe[1] : (profondeur < 1 ? Pal::Herbe[3] : Pal::Herbe[2]);
            else if (Bruit(x, y, graine + 9) < 0.03) c = filon[3];
            if (x > W / 2 + 4 && profondeur >= 3) c = Melanger(c, Pal::Encre, 0.18);
            t.Point(x, y, c);
        }
}

void Mine(Plan& p, const Contexte& c, const Rampe& filon) {
    Volume v = Maison(c, 18, Forme::Appentis, 12, 3);
    v.mur = Mur::Roche;
    v.toit = Toit::Aucun;
    v.ouverture = true;
    v.fenetres = 0;
    p.volumes.push_back(v);
    p.pierre = true;
    const int W = c.W, yb = c.yb;
    const uint32_t g = c.graine;
    p.decor = [W, yb, filon, g](Toile& t) { Colline(t, W, yb, filon, g); };
    p.marchandises = [W, yb, filon](Toile& t) {   // a cart of ore on its rails
        t.Ligne(W / 2 - 3, yb + 1, W - 4, yb + 1, Pal::Metal[1]);
        t.Rectangle(W - 16, yb - 6, 11, 5, Pal::Bois[1]);
        t.Rectangle(W - 16, yb - 6, 11, 1, Pal::Bois[2]);
        t.Ellipse(W - 10.5, yb - 7, 5, 2, filon[2]);
        t.Point(W - 12, yb - 8, filon[3]);
        t.Point(W - 9, yb - 7, filon[3]);
        t.Ellipse(W - 14, yb, 1.5, 1.5, Pal::Metal[0]);
        t.Ellipse(W - 7, yb, 1.5, 1.5, Pal::Metal[0]);
    };
}

void Fosse(Plan& p, const Contexte& c) {
    p.volumes.push_back(Appentis_De_Planches(c, 22, c.W - 22 - 2, 10));
    const int W = c.W, yb = c.yb;
    p.decor = [W, yb](Toile& t) {
        t.Ellipse(W / 3.0, yb - 8, W / 3.0 - 2, 8, Pal::Brique[1]);
        t.Ellipse(W / 3.0, yb - 7, W / 3.0 - 5, 6, Pal::Brique[0]);
        t.Ellipse(W / 3.0 + 2, yb - 5, W / 3.0 - 9, 3, Pal::Eau[1]);
        t.Ligne(4, yb - 14, 8, yb - 4, Pal::Bois[2]);
    };
    p.marchandises = [W, yb](Toile& t) {
        for (int i = 0; i < 3; ++i) t.Ellipse(W - 20 + i * 6, yb - 2, 2.5, 3, Pal::Brique[2 + i % 2]);
    };
}

void Atelier_Generique(Plan& p, const Contexte& c, Forme forme, const std::function<void(Toile&)>& decor) {
    Volume v = Maison(c, std::min(c.W - 16, 44), forme);
    p.volumes.push_back(v);
    p.decor = decor;
    if (v.cheminee) p.animation = Fumee_De(v);
    const std::string produit = c.produit;
    const int x = v.x + v.w - 8, y = v.Haut_Mur() + 2;
    if (!produit.empty())
        p.marchandises = [x, y, produit](Toile& t) {
            Enseigne(t, x, y, Pal::Parchemin, [produit](Toile& s, int sx, int sy) { s.Coller(Picto_Ressource(produit).Reduire(7, 6), sx, sy); });
        };
}

void Temple(Plan& p, const Contexte& c) {
    Volume v = Maison(c, c.W - 10, Forme::Pignon, std::clamp(c.H / 3, 12, 30));
    v.mur = c.epoque >= 4 ? Mur::Taille : Mur::Pierre;
    v.fenetres = 0;
    p.volumes.push_back(v);
    p.pierre = true;
    const int x0 = v.x, w = v.w, yb = v.yb, haut = v.Haut_Mur();
    p.decor = [x0, w, yb, haut](Toile& t) {   // columns before the wall
        for (int i = 0; i < 4; ++i) {
            const int x = x0 + 2 + i * (w - 6) / 3;
            if (i == 1 || i == 2) continue;
            t.Rectangle(x, haut + 1, 3, yb - haut - 1, Pal::PierreClaire[2]);
            t.Rectangle(x, haut + 1, 1, yb - haut - 1, Pal::PierreClaire[3]);
            t.Rectangle(x - 1, haut, 5, 2, Pal::PierreClaire[3]);
        }
        t.Rectangle(x0 - 1, yb - 1, w + 2, 2, Pal::PierreClaire[1]);
    };
    const int px = v.porte;
    p.animation = [px, yb](Toile& t, double phase) {   // two braziers at the door
        for (int cote : {-1, 1}) {
            const int x = px + cote * 8;
            t.Rectangle(x - 1, yb - 3, 3, 4, Pal::Metal[1]);
            Foyer(t, x, yb - 4, phase + (cote > 0 ? 0.5 : 0.0));
        }
    };
}

void Fonderie(Plan& p, const Contexte& c) {
    Volume v = Maison(c, c.W - 20, Forme::Long);
    v.x = 2;
    v.cheminee = false;
    p.volumes.push_back(v);
    Volume cheminee = v;   // a tall brick stack
    cheminee.forme = Forme::Plat;
    cheminee.mur = Mur::Brique;
    cheminee.w = 9;
    cheminee.hw = c.H - 14;
    cheminee.dp = 3;
    cheminee.x = c.W - 14;
    cheminee.porte = -1;
    cheminee.fenetres = 0;
    p.volumes.push_back(cheminee);
    p.pierre = true;
    const int px = v.porte, yb = c.yb;
    const Point2 sommet{cheminee.x + 4.5, static_cast<double>(cheminee.Faite())};
    p.animation = [px, yb, sommet](Toile& t, double phase) {
        t.Rectangle(px - 3, yb - 5, 6, 5, Pal::Feu[1]);
        Foyer(t, px, yb - 2, phase);
        Fumee(t, sommet, static_cast<int>(phase * 4), Pal::DrapGris);
    };
    p.marchandises = [yb](Toile& t) {
        for (int i = 0; i < 3; ++i) t.Rectangle(1 + i * 2, yb - 2 - i * 2, 7, 2, Pal::Metal[2 + i % 2]);
    };
}

void Briqueterie(Plan& p, const Contexte& c) {
    Volume four = Maison(c, 26, Forme::Dome, 12);
    four.mur = Mur::Brique;
    four.toit = Toit::Tuiles;
    four.x = c.W - 28;
    four.porte = four.Centre();
    four.fenetres = 0;
    Volume hangar = Appentis_De_Planches(c, 22, 2, 12);
    hangar.ouverture = true;
    p.volumes.push_back(hangar);
    p.volumes.push_back(four);
    p.pierre = true;
    const Point2 sommet{four.Centre() + 0.0, static_cast<double>(four.Faite())};
    p.animation = [sommet](Toile& t, double phase) { Fumee(t, sommet, static_cast<int>(phase * 4), Pal::DrapGris); };
    const int yb = c.yb;
    p.marchandises = [yb](Toile& t) {
        for (int i = 0; i < 3; ++i)
            for (int j = 0; j < 3 - i; ++j) t.Rectangle(4 + j * 5 + i * 2, yb - 3 - i * 3, 5, 3, Pal::Brique[2 + (i + j) % 2]);
    };
}

void Taverne(Plan& p, const Contexte& c) {
    Volume v = Maison(c, c.W - 8, Forme::Long, std::clamp(c.H * 36 / 100, 12, 26));
    v.fenetres = 2;
    p.volumes.push_back(v);
    const int yb = c.yb, W = c.W, x = v.x + 4, y = v.Haut_Mur() + 3;
    p.decor = [x, y](Toile& t) {
        Enseigne(t, x, y, Pal::Parchemin, [](Toile& s, int sx, int sy) {
            s.Rectangle(sx + 1, sy + 1, 4, 5, Pal::Or[2]);
            s.Rectangle(sx + 1, sy, 4, 1, Pal::Blanc);
            s.Ligne(sx + 5, sy + 2, sx + 5, sy + 4, Pal::Or[1]);
        });
    };
    p.animation = Fumee_De(v);
    p.marchandises = [yb, W](Toile& t) {
        Tonneau(t, 1, yb - 7);
        Tonneau(t, W - 8, yb - 7);
    };
}

void Forge(Plan& p, const Contexte& c) {
    Volume v = Maison(c, c.W - 24, Forme::Long);
    v.x = 2;
    v.porte = v.Centre();
    p.volumes.push_back(v);
    Volume auvent = v;   // an open lean-to over the anvil
    auvent.forme = Forme::Appentis;
    auvent.mur = Mur::Planches;
    auvent.x = v.x + v.w;
    auvent.w = 20;
    auvent.hw = 9;
    auvent.dp = 6;
    auvent.porte = -1;
    auvent.fenetres = 0;
    auvent.cheminee = false;
    p.volumes.push_back(auvent);
    p.pierre = true;
    const int ax = auvent.x, yb = c.yb;
    p.decor = [ax, yb](Toile& t) {   // the open side: dark inside, the anvil before it
        t.Rectangle(ax + 1, yb - 8, 18, 8, Pal::EncreDouce);
        t.Rectangle(ax + 4, yb - 6, 7, 2, Pal::Metal[2]);
        t.Rectangle(ax + 6, yb - 4, 3, 4, Pal::Metal[1]);
        t.Rectangle(ax + 13, yb - 7, 5, 7, Pal::Pierre[2]);
    };
    p.animation = [ax, yb, v](Toile& t, double phase) {
        Foyer(t, ax + 15, yb - 7, phase);
        Etincelles(t, ax + 7, yb - 7, phase);
        Fumee(t, v.Sommet_Cheminee(), static_cast<int>(phase * 4), Pal::DrapGris);
    };
    p.marchandises = [ax, yb](Toile& t) {
        t.Ligne(ax + 1, yb - 10, ax + 1, yb - 1, Pal::Metal[3]);
        t.Ligne(ax - 1, yb - 9, ax + 3, yb - 9, Pal::Or[2]);
    };
}

void Caserne(Plan& p, const Contexte& c) {
    Volume v = Maison(c, c.W - 10, Forme::Long);
    v.creneaux = false;
    v.fenetres = 3;
    v.baniere = 0;
    p.volumes.push_back(v);
    p.pierre = true;
    const int x = v.x + v.w - 4, y = v.Faite() - 10, yb = c.yb;
    p.animation = Drapeau_De(x, y, Pal::DrapRouge);
    p.decor = [yb](Toile& t) {   // a rack of spears
        t.Rectangle(1, yb - 6, 7, 1, Pal::Bois[1]);
        for (int i = 0; i < 3; ++i) {
            t.Ligne(2 + i * 2, yb - 12, 2 + i * 2, yb, Pal::Bois[2]);
            t.Point(2 + i * 2, yb - 13, Pal::Metal[3]);
        }
    };
}

void Tour_Et_Maison(Plan& p, const Contexte& c, const Rampe& fumee, bool magie) {
    Volume v = Maison(c, c.W - 28, Forme::Pignon);
    v.x = 2;
    v.porte = v.Centre();
    p.volumes.push_back(v);
    Volume tour = v;
    tour.forme = magie ? Forme::Fleche : Forme::Tour;
    tour.w = 20;
    tour.x = c.W - 22;
    tour.hw = std::min(c.H - 26, 40);
    tour.porte = -1;
    tour.fenetres = 1;
    tour.fenetresEclairees = magie;
    if (magie) tour.toit = Toit::Ardoise;
    p.volumes.push_back(tour);
    const Point2 sommet{tour.Centre() + 0.0, static_cast<double>(tour.Faite())};
    p.animation = [sommet, fumee, magie](Toile& t, double phase) {
        if (magie) {
            for (int i = 0; i < 4; ++i) {
                const double a = phase * 6.283 + i * 1.571;
                t.Point(static_cast<int>(sommet.x + std::cos(a) * 8), static_cast<int>(sommet.y + 10 + std::sin(a) * 3), i % 2 ? Pal::Magie[3] : Pal::Blanc);
            }
        } else {
            Fumee(t, {sommet.x, sommet.y + 4}, static_cast<int>(phase * 4), fumee);
        }
    };
}

void Cathedrale(Plan& p, const Contexte& c) {
    Volume nef = Maison(c, c.W - 32, Forme::Pignon, std::clamp(c.H / 3, 12, 34));
    nef.mur = Mur::Taille;
    nef.fenetres = 0;
    p.volumes.push_back(nef);
    for (int cote : {-1, 1}) {
        Volume tour = nef;
        tour.forme = Forme::Fleche;
        tour.w = 14;
        tour.hw = nef.hw + 16;
        tour.x = cote < 0 ? nef.x - 14 : nef.x + nef.w;
        tour.porte = -1;
        tour.fenetres = 1;
        p.volumes.push_back(tour);
    }
    p.pierre = true;
    const int cx = nef.Centre(), y = nef.Haut_Mur() - nef.w / 4;
    p.decor = [cx, y](Toile& t) {   // the rose window
        t.Ellipse(cx, y, 4, 4, Pal::PierreClaire[1]);
        t.Ellipse(cx, y, 3, 3, Pal::Magie[1]);
        t.Ligne(cx - 2, y, cx + 2, y, Pal::Or[2]);
        t.Ligne(cx, y - 2, cx, y + 2, Pal::Or[2]);
        t.Point(cx - 1, y - 1, Pal::DrapRouge[3]);
        t.Point(cx + 1, y + 1, Pal::Feu[3]);
    };
    const int x = nef.x - 7, yf = p.volumes[1].Faite() - 9;
    p.animation = Drapeau_De(x, yf, Pal::DrapBleu);
}

void Orfevrerie(Plan& p, const Contexte& c) {
    Volume v = Maison(c, c.W - 12, Forme::Dome, std::clamp(c.H / 3, 12, 28));
    v.toit = Toit::Dore;
    v.mur = Mur::Taille;
    v.fenetres = 2;
    v.dp = v.w / 2;
    p.volumes.push_back(v);
    p.pierre = true;
    const int x0 = v.x, w = v.w, yb = v.yb, haut = v.Haut_Mur();
    p.decor = [x0, w, yb, haut](Toile& t) {
        for (int x : {x0 + 2, x0 + w - 5}) {
            t.Rectangle(x, haut, 3, yb - haut, Pal::PierreClaire[2]);
            t.Rectangle(x, haut, 1, yb - haut, Pal::PierreClaire[3]);
        }
    };
    const int fx = v.Centre(), fy = v.Faite() - 12;
    p.animation = Drapeau_De(fx, fy, Pal::DrapViolet);
    p.marchandises = [x0, yb](Toile& t) {
        Caisse(t, x0 - 1, yb - 5);
        t.Rectangle(x0, yb - 6, 5, 1, Pal::Or[3]);
    };
}

void Echoppe(Plan& p, const Contexte& c, const std::function<void(Toile&, int, int)>& motif, const std::function<void(Toile&)>& etal) {
    Volume v = Maison(c, std::min(c.W - 14, 48), Forme::Pignon);
    p.volumes.push_back(v);
    const int x = v.x + v.w - 10, y = v.Haut_Mur() + 2;
    p.decor = [x, y, motif](Toile& t) { Enseigne(t, x, y, Pal::Parchemin, motif); };
    p.marchandises = etal;
}

struct Modele {
    std::vector<std::string_view> mots;
    Concepteur concepteur;
};

const std::vector<Modele>& Modeles() {
    static const std::vector<Modele> m = {
        {{"cueill", "hutte"}, Hutte},
        {{"pech"}, Pecheur},
        {{"bucheron"}, Bucheron},
        {{"tailleur", "carrier"}, Tailleur},
        {{"paysan", "chaumiere", "ferme"}, Ferme},
        {{"bergerie", "berger"}, Bergerie},
        {{"jardin", "simples"}, Jardin},
        {{"scierie", "moulin"}, Scierie},
        {{"boulang"}, Boulangerie},
        {{"mine d'or", "mine d or"}, [](Plan& p, const Contexte& c) { Mine(p, c, Pal::Or); }},
        {{"mine", "carriere"}, [](Plan& p, const Contexte& c) { Mine(p, c, Pal::Brique); }},
        {{"glaise", "argile", "fosse"}, Fosse},
        {{"flechier", "archer"}, [](Plan& p, const Contexte& c) {
             Atelier_Generique(p, c, Forme::Long, [c](Toile& t) {
                 const int x = c.W - 5, y = c.yb - 8;
                 t.Ellipse(x, y, 4, 4, Pal::DrapBlanc[3]);
                 t.Ellipse(x, y, 2.6, 2.6, Pal::DrapRouge[2]);
                 t.Ellipse(x, y, 1.2, 1.2, Pal::Or[3]);
                 t.Ligne(x - 2, y + 4, x - 3, y + 8, Pal::Bois[1]);
             });
         }},
        {{"menuisier", "charpentier"}, [](Plan& p, const Contexte& c) {
             Atelier_Generique(p, c, Forme::Long, [c](Toile& t) {
                 for (int i = 0; i < 3; ++i) t.Rectangle(1, c.yb - 2 - i * 2, 10, 2, i % 2 ? Pal::BoisClair[2] : Pal::BoisClair[3]);
                 t.Rectangle(c.W - 9, c.yb - 5, 7, 2, Pal::Bois[2]);
                 t.Rectangle(c.W - 8, c.yb - 3, 1, 3, Pal::Bois[0]);
                 t.Rectangle(c.W - 4, c.yb - 3, 1, 3, Pal::Bois[0]);
             });
         }},
        {{"tisserand", "drapier", "tailleur d'habits"}, [](Plan& p, const Contexte& c) {
             Atelier_Generique(p, c, Forme::Pignon, [c](Toile& t) {
                 t.Ligne(1, c.yb - 14, 1, c.yb, Pal::Bois[1]);
                 t.Ligne(1, c.yb - 13, 9, c.yb - 13, Pal::Bois[2]);
                 const Rampe draps[] = {Pal::DrapRouge, Pal::DrapBleu, Pal::DrapOcre};
                 for (int i = 0; i < 3; ++i) t.Rectangle(2 + i * 3, c.yb - 12, 2, 6 + i, draps[i][2]);
             });
         }},
        {{"temple", "chapelle", "eglise"}, Temple},
        {{"cathedrale", "abbaye"}, Cathedrale},
        {{"fonderie", "haut fourneau"}, Fonderie},
        {{"briqueterie", "four"}, Briqueterie},
        {{"taverne", "auberge", "brasserie"}, Taverne},
        {{"apothicaire", "officine", "herboriste"}, [](Plan& p, const Contexte& c) {
             Echoppe(p, c, [](Toile& s, int x, int y) { s.Coller(Picto_Ressource("potion").Reduire(7, 6), x, y); },
                     [c](Toile& t) {
                         for (int i = 0; i < 3; ++i) t.Ellipse(3 + i * 4, c.yb - 2, 1.6, 2, i == 1 ? Pal::Poison[2] : Pal::DrapRouge[2]);
                     });
         }},
        {{"forge", "maréchal"}, Forge},
        {{"caserne", "garnison", "camp"}, Caserne},
        {{"armurerie", "armurier"}, [](Plan& p, const Contexte& c) {
             Echoppe(p, c, [](Toile& s, int x, int y) {
                 s.Polygone({{x + 0.5, y + 0.0}, {x + 6.5, y + 0.0}, {x + 6.5, y + 3.0}, {x + 3.5, y + 6.0}, {x + 0.5, y + 3.0}}, Pal::DrapBleu[2]);
                 s.Ligne(x + 3, y, x + 3, y + 5, Pal::Or[3]);
             }, [c](Toile& t) {   // a suit of armour on its stand
                 t.Rectangle(c.W - 7, c.yb - 9, 5, 6, Pal::Metal[2]);
                 t.Ellipse(c.W - 4.5, c.yb - 11, 2, 2, Pal::Metal[3]);
                 t.Ligne(c.W - 5, c.yb - 3, c.W - 5, c.yb, Pal::Bois[1]);
             });
         }},
        {{"joaill", "bijout", "orfevre"}, [](Plan& p, const Contexte& c) {
             if (c.epoque >= 5) return Orfevrerie(p, c);
             Echoppe(p, c, [](Toile& s, int x, int y) {
                 s.Anneau(x + 3, y + 3.5, 2.5, 2.5, Pal::Or[2]);
                 s.Point(x + 3, y + 1, Pal::Magie[3]);
             }, [c](Toile& t) { Caisse(t, 1, c.yb - 6); t.Point(3, c.yb - 7, Pal::Or[3]); t.Point(5, c.yb - 7, Pal::Magie[3]); });
         }},
        {{"alchimi", "laboratoire"}, [](Plan& p, const Contexte& c) { Tour_Et_Maison(p, c, Pal::Poison, false); }},
        {{"academie", "mage", "magie"}, [](Plan& p, const Contexte& c) { Tour_Et_Maison(p, c, Pal::Magie, true); }},
        {{"royal"}, Orfevrerie},
    };
    return m;
}

// ---------------------------------------------------------------- drawing the sheet

// The finished house without its animation, goods or not.
Toile Fini(const Plan& p, const Contexte& c, bool marchandises, double phase) {
    Toile t(c.W, c.H);
    if (p.decor) p.decor(t);
    for (const Volume& v : p.volumes) Batir(t, v);
    if (marchandises && p.marchandises) p.marchandises(t);
    if (p.animation) p.animation(t, phase);
    else if (!p.volumes.empty() && p.volumes.front().cheminee) Fumee(t, p.volumes.front().Sommet_Cheminee(), static_cast<int>(phase * 4), Pal::DrapGris);
    t.Contourner(Pal::Encre);
    return t;
}

void Echafaudage(Toile& t, const Volume& v, int haut) {
    const int gauche = v.x - 2, droite = v.x + v.w + 1;
    for (int x = gauche; x <= droite; x += std::max(6, (droite - gauche) / 4)) t.Ligne(x, haut - 3, x, v.yb + 1, Pal::Bois[1]);
    t.Ligne(droite, haut - 3, droite, v.yb + 1, Pal::Bois[1]);
    for (int y = haut - 1; y < v.yb; y += 7) {
        t.Rectangle(gauche - 1, y, droite - gauche + 3, 1, Pal::BoisClair[2]);
        t.Rectangle(gauche - 1, y + 1, droite - gauche + 3, 1, Pal::Bois[1]);
    }
    t.Ligne(gauche, v.yb, gauche + 5, haut, Pal::Bois[2]);   // a brace
}

void Chevrons(Toile& t, const Volume& v) {
    const int faite = v.Faite(), haut = v.Haut_Mur();
    const int cx = v.Centre();
    t.Ligne(v.x - 1, haut, v.x + v.w, haut, Pal::Bois[1]);
    if (v.forme == Forme::Pignon || v.forme == Forme::Tour || v.forme == Forme::Fleche || v.forme == Forme::Dome) {
        t.Ligne(v.x - 1, haut, cx, faite, Pal::Bois[2]);
        t.Ligne(v.x + v.w, haut, cx, faite, Pal::Bois[1]);
        t.Ligne(cx, faite, cx, haut, Pal::Bois[1]);
        t.Ligne((v.x + cx) / 2, (haut + faite) / 2, (cx + v.x + v.w) / 2, (haut + faite) / 2, Pal::Bois[1]);
    } else {
        // The ridge beam, a purlin half way, and the rafters between them.
        const int milieu = (haut + faite) / 2;
        t.Ligne(v.x - 1, faite, v.x + v.w, faite, Pal::Bois[2]);
        t.Ligne(v.x - 1, milieu, v.x + v.w, milieu, Pal::Bois[1]);
        for (int x = v.x; x <= v.x + v.w; x += 7) t.Ligne(x, haut, x, faite, Pal::Bois[1]);
        t.Ligne(v.x + v.w, haut, v.x + v.w, faite, Pal::Bois[1]);
    }
}

void Materiaux(Toile& t, const Contexte& c, bool pierre) {
    if (pierre) Blocs_De_Pierre(t, c.W - 13, c.H - 9, Pal::PierreClaire);
    else Tas_De_Bois(t, c.W - 14, c.H - 9);
}

// A building site: each volume's walls up to `hauteur` (0 to 1) of their height.
Toile Chantier(const Plan& p, const Contexte& c, double hauteur, bool charpente, int colonne) {
    Toile t(c.W, c.H);
    for (const Volume& v : p.volumes) {
        Toile seul(c.W, c.H);
        Batir(seul, v);
        const int coupe = v.yb - static_cast<int>(std::round(v.hw * hauteur));
        if (hauteur <= 0) {   // the plot staked out with a sill of beams
            t.Rectangle(v.x, v.yb - 3, v.w, 3, Pal::Terre[1]);
            t.Rectangle(v.x, v.yb - 1, v.w, 1, Pal::Bois[2]);
            t.Rectangle(v.x, v.yb - 3, 1, 3, Pal::Bois[1]);
            t.Rectangle(v.x + v.w - 1, v.yb - 3, 1, 3, Pal::Bois[1]);
            for (int x = v.x; x < v.x + v.w; x += 6) t.Rectangle(x, v.yb - 5, 1, 4, Pal::BoisClair[2]);
            continue;
        }
        t.Coller_Zone(seul, 0, coupe, c.W, v.yb + 3 - coupe, 0, coupe);
        // The top of the wall being laid, seen from above.
        t.Rectangle(v.x, coupe - 1, v.w, 2, Melanger(Texture_Mur(v.mur, 1, 1, v.w, v.hw, v.graine), Pal::Blanc, 0.25));
        if (charpente) Chevrons(t, v);
        Echafaudage(t, v, coupe);
    }
    Materiaux(t, c, p.pierre);
    // Dust of the work, a puff on every other step.
    if (colonne % 2 == 1 && hauteur > 0) {
        const Volume& v = p.volumes.front();
        t.Ellipse(v.x + 3, v.yb - 1, 2, 1.3, Pal::Sable[3]);
        t.Point(v.x + 1, v.yb - 3, Pal::Sable[3]);
    }
    t.Contourner(Pal::Encre);
    return t;
}

Contexte Contexte_De(int b) {
    Contexte c;
    c.W = std::max<int>(Param.Batiment_Largeur(b), 16);
    c.H = std::max<int>(Param.Batiment_Hauteur(b), 16);
    c.epoque = Param.Batiment_NoEpoque(b);
    c.porteX = std::clamp(c.W / 2 + Param.Batiment_EntreePositionX(b), 4, c.W - 4);
    c.yb = c.H - 5;
    c.nom = Plier(Param.Batiment_Nom(b));
    const int r = Param.Batiment_RessourceFabrique(b);
    if (r >= 0 && r < Param.NombreRessources) c.produit = Plier(Param.Ressources_Nom(r));
    c.graine = Graine_De(Param.Batiment_Nom(b).c_str());
    return c;
}

Plan Plan_De(const Contexte& c) {
    Plan p;
    for (const Modele& m : Modeles())
        if (Contient(c.nom, m.mots)) {
            m.concepteur(p, c);
            return p;
        }
    // A house of its epoch, with a sign of what it makes.
    Atelier_Generique(p, c, c.graine % 2 ? Forme::Long : Forme::Pignon, nullptr);
    return p;
}

}  // namespace

// The finished house of type b, goods out, first step of its animation (for the buttons).
Toile Image_Batiment(int b) {
    const Contexte c = Contexte_De(b);
    return Fini(Plan_De(c), c, true, 0.0);
}

void Forger_Batiments(Atelier& a) {
    for (int b = 0; b < Param.NombreTypeBatiments; ++b) {
        const Contexte c = Contexte_De(b);
        const Plan p = Plan_De(c);
        const int n = std::max<int>(Param.Batiment_NombreEtapeFabrication(b), 1);
        const int colonnes = std::max<int>(Param.Batiment_NombreEtapeAnimation(b), 1);
        Toile planche(colonnes * c.W, (n + 1) * c.H);
        for (int ligne = 0; ligne <= n; ++ligne)
            for (int col = 0; col < colonnes; ++col) {
                const double phase = static_cast<double>(col) / colonnes;
                Toile cellule;
                if (ligne >= n - 1) cellule = Fini(p, c, ligne == n, phase);
                else {
                    const double avance = n > 2 ? static_cast<double>(ligne) / (n - 2) : 1.0;
                    cellule = Chantier(p, c, avance, avance >= 0.99, col);
                }
                planche.Coller(cellule, col * c.W, ligne * c.H);
            }
        a.Ecrire("Batiments/" + Param.Batiment_Nom(b) + ".bmp", planche);
    }
}

// Object icons, Objets/<Objet_Nom>.bmp, 32 x 32: what the object is, read from its name (a
// sword, a bow, boots, a ring, a potion, a scroll…) and, when the name says nothing, from its
// category (the equipment slot). The material and colour come from the name too: "de fer",
// "d'or", "royal", "de laine", "spectrale", "de dragon", or the gauge a potion restores.
#include <algorithm>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "Figure.h"
#include "Forge.h"
#include "Mots.h"
#include "rules/ClsJeuParam.h"

namespace {

constexpr int Case = 32;

// The colours of one object: its main material and a second one (hilt, seal, gem…).
struct Teintes {
    Rampe matiere = Pal::Metal;
    Rampe second = Pal::Cuir;
    Rampe gemme = Pal::DrapRouge;
    bool precieux = false;
};

Teintes Teintes_De(const std::string& nom, int categorie) {
    Teintes t;
    if (Contient(nom, {"de bois", "gourdin", "baton", "canne", "hotte", "arc "}) || nom == "arc") t.matiere = Pal::Bois;
    if (Contient(nom, {"laine", "tunique", "bonnet", "echarpe"})) t.matiere = Pal::DrapOcre;
    if (Contient(nom, {"feutre"})) t.matiere = Pal::DrapBrun;
    if (Contient(nom, {"bure"})) t.matiere = Pal::DrapBrun;
    if (Contient(nom, {"mage", "liche", "mana"})) t.matiere = Pal::DrapViolet;
    if (Contient(nom, {"spectral"})) t.matiere = Pal::Glace;
    if (Contient(nom, {"dragon"})) t.matiere = Pal::DrapRouge;
    if (Contient(nom, {"royal", "d'or", "couronne", "parade", "marchand"})) t.matiere = Pal::Or, t.precieux = true;
    if (Contient(nom, {"royal", "parade"})) t.second = Pal::DrapBleu;
    if (Contient(nom, {"force", "vie", "soins", "sang"})) t.gemme = Pal::DrapRouge;
    if (Contient(nom, {"vigueur", "guerison", "simples"})) t.gemme = Pal::Poison;
    if (Contient(nom, {"mana", "sage", "liche"})) t.gemme = Pal::Magie;
    if (Contient(nom, {"courage", "marchand"})) t.gemme = Pal::Or;
    if (Contient(nom, {"feu"})) t.gemme = Pal::Feu;
    if (Contient(nom, {"foudre"})) t.gemme = Pal::Glace;
    if (Contient(nom, {"resurrection"})) t.gemme = Pal::Or;
    if (Contient(nom, {"invocation"})) t.gemme = Pal::Magie;
    if (categorie == 8 && t.matiere[2] == Pal::Metal[2]) t.matiere = Pal::DrapVert;
    if (categorie == 8 && t.precieux) t.matiere = Pal::DrapBordeaux;   // royal velvet, trimmed in white
    return t;
}

using Dessin = std::function<void(Figure&, const Teintes&, std::vector<std::pair<Point2, Couleur>>&)>;

// ---- weapons and tools, lying from bottom left to top right ----

void Lame(Figure& f, const Teintes& t, double longueur, std::vector<std::pair<Point2, Couleur>>& d) {
    const int lame = f.Matiere(t.matiere == Pal::Bois || t.matiere == Pal::DrapOcre ? Pal::Metal : t.matiere);
    const int garde = f.Matiere(t.precieux ? Pal::Or : Pal::Metal), poignee = f.Matiere(t.precieux ? t.second : Pal::Cuir);
    const double x0 = 8, y0 = 24, x1 = x0 + longueur * 0.7, y1 = y0 - longueur * 0.7;
    f.Trait(x0 + 2, y0 - 2, x1, y1, 3.2, lame);
    f.Polygone({{x1 - 1.5, y1 - 0.5}, {x1 + 2.5, y1 - 2.5}, {x1 + 0.5, y1 + 1.5}}, lame);
    f.Trait(x0 - 2, y0 - 5, x0 + 5, y0 + 2, 2.2, garde);
    f.Trait(x0 - 3, y0 + 3, x0 + 1, y0 - 1, 2.2, poignee);
    f.Ellipse(x0 - 3.5, y0 + 3.5, 1.6, 1.6, garde);
    d.push_back({{x0 + 4, y0 - 6}, Pal::Blanc});
    if (t.precieux) d.push_back({{x0 + 1, y0 - 1}, t.gemme[3]});
}

void Hampe(Figure& f, double x0, double y0, double x1, double y1, const Rampe& r) {
    f.Trait(x0, y0, x1, y1, 2.2, f.Matiere(r));
}

void Hache(Figure& f, const Teintes&, bool double_, std::vector<std::pair<Point2, Couleur>>& d) {
    Hampe(f, 7, 27, 21, 7, Pal::Bois);
    const int fer = f.Matiere(Pal::Metal);
    // Blades across the haft near its head: one, or one on each side.
    const double ax = 0.57, ay = -0.82, px = 0.82, py = 0.57, cx = 19, cy = 10;
    for (int cote : {1, -1}) {
        if (cote < 0 && !double_) break;
        f.Polygone({{cx + cote * px * 1.0 + ax * 2.5, cy + cote * py * 1.0 + ay * 2.5},
                    {cx + cote * px * 7.5 + ax * 6.0, cy + cote * py * 7.5 + ay * 6.0},
                    {cx + cote * px * 9.0, cy + cote * py * 9.0},
                    {cx + cote * px * 7.5 - ax * 6.0, cy + cote * py * 7.5 - ay * 6.0},
                    {cx + cote * px * 1.0 - ax * 2.5, cy + cote * py * 1.0 - ay * 2.5}},
                   fer);
    }
    d.push_back({{cx + px * 7 + ax * 4, cy + py * 7 + ay * 4}, Pal::Blanc});
}

void Pioche(Figure& f, std::vector<std::pair<Point2, Couleur>>& d) {
    Hampe(f, 8, 27, 20, 8, Pal::Bois);
    f.Trait(9, 6, 28, 12, 2.4, f.Matiere(Pal::Metal));
    d.push_back({{12, 6}, Pal::Blanc});
}

void Marteau(Figure& f, std::vector<std::pair<Point2, Couleur>>& d) {
    Hampe(f, 8, 27, 19, 10, Pal::Bois);
    f.Polygone({{14, 6}, {20, 2}, {27, 11}, {21, 15}}, f.Matiere(Pal::Metal));
    d.push_back({{18, 5}, Pal::Blanc});
}

void Gourdin(Figure& f, const Teintes&, std::vector<std::pair<Point2, Couleur>>& d) {
    const int bois = f.Matiere(Pal::Bois);
    f.Trait(7, 26, 20, 11, 3.0, bois);
    f.Trait(17, 14, 24, 7, 7.0, bois);
    f.Pixel(22, 6, f.Matiere(Pal::Bois));
    d.push_back({{19, 9}, Pal::BoisClair[3]});
    d.push_back({{23, 12}, Pal::Bois[0]});
}

void Baton(Figure& f, const Teintes& t, int bout, std::vector<std::pair<Point2, Couleur>>& d) {
    Hampe(f, 6, 28, 23, 8, t.matiere == Pal::DrapViolet ? Pal::Bois : Pal::Bois);
    if (bout == 1) {   // a flame
        f.Ellipse(24.5, 6.5, 4, 4.5, f.Matiere(Pal::Feu));
        d.push_back({{24, 6}, Pal::Feu[3]});
        d.push_back({{25, 3}, Pal::Feu[3]});
    } else if (bout == 2) {   // an orb in a gold claw
        f.Ellipse(24.5, 6.5, 3.6, 3.6, f.Matiere(t.gemme));
        f.Trait(21, 9, 22.5, 11, 1.6, f.Matiere(Pal::Or));
        d.push_back({{23, 5}, Pal::Blanc});
    } else if (bout == 3) {   // a star
        f.Polygone({{24.5, 2}, {26, 6}, {30, 6.5}, {27, 9}, {28, 13}, {24.5, 10.5}, {21, 13}, {22, 9}, {19, 6.5}, {23, 6}}, f.Matiere(Pal::Or));
    } else {
        f.Ellipse(23.5, 7.5, 2.2, 2.2, f.Matiere(Pal::Bois));
    }
}

void Lance(Figure& f, std::vector<std::pair<Point2, Couleur>>& d) {
    Hampe(f, 4, 29, 22, 9, Pal::Bois);
    f.Polygone({{20, 9}, {27, 3}, {25, 11}}, f.Matiere(Pal::Metal));
    f.Trait(19, 13, 22, 9, 2.6, f.Matiere(Pal::DrapRouge));
    d.push_back({{24, 6}, Pal::Blanc});
}

void Arc(Figure& f, std::vector<std::pair<Point2, Couleur>>& d) {
    const int bois = f.Matiere(Pal::Bois);
    Toile masque(Case, Case);
    for (int i = 0; i <= 20; ++i) {
        const double a = -1.2 + i * 0.12;
        f.Trait(6 + std::cos(a) * 16, 16 + std::sin(a) * 13, 6 + std::cos(a + 0.12) * 16, 16 + std::sin(a + 0.12) * 13, 2.4, bois);
    }
    f.Ligne(static_cast<int>(6 + std::cos(-1.2) * 16), static_cast<int>(16 + std::sin(-1.2) * 13), static_cast<int>(6 + std::cos(1.2) * 16),
            static_cast<int>(16 + std::sin(1.2) * 13), f.Matiere(Pal::DrapBlanc, false));
    f.Rectangle(20, 14, 3, 4, f.Matiere(Pal::Cuir));
    (void)d;
}

void Arbalete(Figure& f, std::vector<std::pair<Point2, Couleur>>& d) {
    f.Trait(8, 26, 22, 10, 3.2, f.Matiere(Pal::Bois));
    f.Trait(12, 6, 27, 21, 2.2, f.Matiere(Pal::Metal));
    f.Ligne(12, 6, 13, 15, f.Matiere(Pal::DrapBlanc, false));
    f.Ligne(27, 21, 18, 19, f.Matiere(Pal::DrapBlanc, false));
    d.push_back({{21, 11}, Pal::Metal[3]});
}

void Canne(Figure& f, std::vector<std::pair<Point2, Couleur>>& d) {
    f.Trait(4, 29, 25, 4, 1.6, f.Matiere(Pal::Bois));
    f.Ligne(25, 4, 27, 20, f.Matiere(Pal::DrapBlanc, false));
    f.Trait(26, 20, 27, 23, 1.2, f.Matiere(Pal::Metal));
    f.Ellipse(8, 25, 2.5, 2.5, f.Matiere(Pal::Bois));
    d.push_back({{26, 24}, Pal::Metal[3]});
}

void Bouclier(Figure& f, const Teintes& t, std::vector<std::pair<Point2, Couleur>>& d) {
    if (t.matiere == Pal::Bois) {
        f.Ellipse(16, 16, 12, 12, f.Matiere(Pal::Bois));
        const int joint = f.Matiere(Rampe_Entre(Pal::Bois[0], Pal::Bois[1]), false);
        for (int x = 8; x < 26; x += 5)
            for (int y = 4; y < 29; ++y) f.Sur(x, y, joint);
        f.Ellipse(16, 16, 3, 3, f.Matiere(Pal::Metal));
    } else {
        f.Polygone({{5, 4}, {27, 4}, {27, 15}, {16, 29}, {5, 15}}, f.Matiere(Pal::Metal));
        f.Polygone({{8, 7}, {24, 7}, {24, 15}, {16, 25}, {8, 15}}, f.Matiere(t.precieux ? Pal::DrapBleu : Pal::DrapRouge));
        f.Rectangle(15, 8, 2, 15, f.Matiere(Pal::Or));
        f.Rectangle(10, 12, 12, 2, f.Matiere(Pal::Or));
    }
    d.push_back({{9, 8}, Pal::Blanc});
}

// ---- what is worn ----

void Tunique(Figure& f, const Teintes& t, bool longue, std::vector<std::pair<Point2, Couleur>>& d) {
    const int drap = f.Matiere(t.matiere);
    const double bas = longue ? 30 : 27;
    f.Polygone({{10, 4}, {22, 4}, {30, 11}, {27, 15}, {23, 12}, {24, bas}, {8, bas}, {9, 12}, {5, 15}, {2, 11}}, drap);
    f.Ellipse(16, 4, 3.5, 2, f.Matiere(Rampe_Entre(Pal::Encre, Pal::EncreDouce), false));
    f.Rectangle(9, 18, 15, 2, f.Matiere(longue ? Pal::Chaume : Pal::Cuir));
    if (t.matiere == Pal::DrapViolet) {
        d.push_back({{12, 23}, Pal::Or[3]});
        d.push_back({{19, 26}, Pal::Or[3]});
        d.push_back({{15, 10}, Pal::Or[3]});
    }
}

void Mailles(Figure& f, std::vector<std::pair<Point2, Couleur>>&) {
    const int m = f.Matiere(Pal::Metal);
    f.Polygone({{10, 4}, {22, 4}, {29, 10}, {27, 17}, {23, 13}, {24, 28}, {8, 28}, {9, 13}, {5, 17}, {3, 10}}, m);
    const int sombre = f.Matiere(Pal::Metal, false);
    for (int y = 5; y < 28; ++y)
        for (int x = 3; x < 30; ++x)
            if ((x + 2 * y) % 4 == 0 && f.Matiere_En(x, y) == m) f.Pixel(x, y, sombre);
    f.Ellipse(16, 4, 3.5, 2, f.Matiere(Rampe_Entre(Pal::Encre, Pal::EncreDouce), false));
}

void Cuirasse(Figure& f, const Teintes& t, std::vector<std::pair<Point2, Couleur>>& d) {
    const Rampe r = t.matiere == Pal::DrapRouge ? Pal::DrapRouge : (t.precieux ? Pal::Or : Pal::Metal);
    const int m = f.Matiere(r);
    f.Polygone({{9, 5}, {23, 5}, {26, 9}, {25, 22}, {16, 28}, {7, 22}, {6, 9}}, m);
    f.Ellipse(6, 8, 4, 3.5, m);
    f.Ellipse(26, 8, 4, 3.5, m);
    f.Ellipse(16, 5, 3.5, 2, f.Matiere(Rampe_Entre(Pal::Encre, Pal::EncreDouce), false));
    f.Ligne(16, 8, 16, 25, f.Matiere(Rampe_Entre(r[1], r[1]), false));
    if (t.matiere == Pal::DrapRouge)   // scales
        for (int y = 9; y < 25; y += 3)
            for (int x = 8 + (y / 3) % 2 * 2; x < 25; x += 4) d.push_back({{static_cast<double>(x), static_cast<double>(y)}, Pal::DrapRouge[3]});
    d.push_back({{10, 9}, Pal::Blanc});
}

void Casque(Figure& f, const Teintes& t, std::vector<std::pair<Point2, Couleur>>& d) {
    const int m = f.Matiere(t.precieux ? Pal::Or : Pal::Metal);
    f.Ellipse(16, 15, 11, 11, m);
    f.Rectangle(5, 15, 23, 11, m);
    f.Rectangle(9, 17, 14, 3, f.Matiere(Rampe_Entre(Pal::Encre, Pal::EncreDouce), false));
    f.Rectangle(15, 20, 2, 6, f.Matiere(Rampe_Entre(Pal::Encre, Pal::EncreDouce), false));
    f.Ellipse(16, 4, 2.5, 3, f.Matiere(Pal::DrapRouge));
    d.push_back({{10, 9}, Pal::Blanc});
}

void Couronne(Figure& f, const Teintes&, std::vector<std::pair<Point2, Couleur>>& d) {
    const int o = f.Matiere(Pal::Or);
    f.Rectangle(5, 16, 22, 9, o);
    for (int i = 0; i < 5; ++i) {
        const double x = 5.5 + i * 5.25;
        f.Polygone({{x - 2.5, 17}, {x + 2.5, 17}, {x, 8}}, o);
        f.Ellipse(x, 8, 1.4, 1.4, o);
    }
    d.push_back({{15, 20}, Pal::DrapRouge[3]});
    d.push_back({{16, 20}, Pal::DrapRouge[2]});
    d.push_back({{9, 20}, Pal::Magie[3]});
    d.push_back({{22, 20}, Pal::Poison[3]});
}

void Bonnet(Figure& f, const Teintes& t, std::vector<std::pair<Point2, Couleur>>&) {
    const int m = f.Matiere(t.matiere);
    f.Ellipse(16, 19, 11, 10, m);
    f.Rectangle(4, 19, 25, 5, f.Matiere(t.matiere == Pal::DrapOcre ? Pal::DrapBrun : Pal::DrapBlanc));
    f.Ellipse(16, 8, 3, 3, f.Matiere(Pal::DrapBlanc));
}

void Bottes(Figure& f, const Teintes& t, bool ailees, std::vector<std::pair<Point2, Couleur>>& d) {
    const Rampe r = t.matiere == Pal::Metal ? Pal::Cuir : t.matiere;
    for (int i = 0; i < 2; ++i) {
        const double x = 5 + i * 12;
        const int m = f.Matiere(r);
        f.Rectangle(static_cast<int>(x), 6 + i * 2, 7, 17, m);
        f.Polygone({{x, 21.0 + i * 2}, {x + 7, 21.0 + i * 2}, {x + 12, 25.0 + i * 2}, {x + 12, 28.0 + i * 2}, {x, 28.0 + i * 2}}, m);
        f.Rectangle(static_cast<int>(x), 6 + i * 2, 7, 2, f.Matiere(Rampe_Entre(r[0], r[1])));
        if (ailees) f.Polygone({{x - 1, 12.0 + i * 2}, {x - 4, 7.0 + i * 2}, {x - 1, 8.0 + i * 2}}, f.Matiere(Pal::DrapBlanc));
    }
    d.push_back({{6, 10}, r[3]});
}

void Cape(Figure& f, const Teintes& t, std::vector<std::pair<Point2, Couleur>>& d) {
    f.Ellipse(16, 7, 7, 5, f.Matiere(Rampe_Entre(t.matiere[0], t.matiere[2])));   // the hood, lying back
    const int m = f.Matiere(t.matiere);
    f.Polygone({{11, 7}, {21, 7}, {28, 27}, {22, 29}, {16, 27}, {10, 29}, {4, 27}}, m);
    const int pli = f.Matiere(Rampe_Entre(t.matiere[1], t.matiere[1]), false);
    f.Ligne(14, 11, 11, 27, pli);
    f.Ligne(18, 11, 21, 27, pli);
    f.Rectangle(11, 7, 10, 2, f.Matiere(t.precieux ? Pal::DrapBlanc : Rampe_Entre(t.matiere[0], t.matiere[1])));
    f.Ellipse(16, 8, 2, 2, f.Matiere(Pal::Or));
    if (t.precieux)
        for (int y = 13; y < 26; y += 4) d.push_back({{static_cast<double>(9 + (y % 3) * 6), static_cast<double>(y)}, Pal::Blanc});
}

void Echarpe(Figure& f, const Teintes& t, std::vector<std::pair<Point2, Couleur>>& d) {
    const int m = f.Matiere(t.matiere);
    for (int i = 0; i < 24; ++i) {   // the loop round the neck
        const double a0 = 6.283 * i / 24, a1 = 6.283 * (i + 1) / 24;
        f.Trait(16 + std::cos(a0) * 9, 11 + std::sin(a0) * 5, 16 + std::cos(a1) * 9, 11 + std::sin(a1) * 5, 4.0, m);
    }
    f.Ellipse(16, 11, 6, 2.5, -1);
    f.Trait(19, 15, 22, 28, 4.5, f.Matiere(t.matiere));
    f.Trait(15, 15, 13, 27, 4.5, f.Matiere(t.matiere));
    const int raie = f.Matiere(Pal::DrapRouge, false);
    for (int y = 19; y < 28; y += 4)
        for (int x = 10; x < 25; ++x) f.Sur(x, y, raie);
    for (int x = 11; x <= 24; x += 2) d.push_back({{static_cast<double>(x), 29}, t.matiere[1]});
}

void Hotte(Figure& f, std::vector<std::pair<Point2, Couleur>>& d) {
    const int osier = f.Matiere(Pal::Chaume);
    f.Polygone({{5, 7}, {27, 7}, {24, 28}, {8, 28}}, osier);
    const int brin = f.Matiere(Rampe_Entre(Pal::Chaume[0], Pal::Chaume[1]), false);
    for (int y = 10; y < 28; y += 3) f.Ligne(6, y, 26, y, brin);
    f.Ellipse(16, 7, 11, 2.5, f.Matiere(Pal::Chaume));
    f.Trait(9, 9, 9, 24, 1.6, f.Matiere(Pal::Cuir));
    f.Trait(23, 9, 23, 24, 1.6, f.Matiere(Pal::Cuir));
    d.push_back({{12, 6}, Pal::Feuillage[2]});
}

// ---- jewels ----

void Anneau(Figure& f, const Teintes& t, bool chevaliere, std::vector<std::pair<Point2, Couleur>>& d) {
    const int o = f.Matiere(t.matiere == Pal::DrapViolet ? Pal::Metal : Pal::Or);
    f.Ellipse(16, 19, 10, 8, o);
    f.Ellipse(16, 19.5, 6.5, 5, -1);
    if (chevaliere) {
        f.Rectangle(11, 7, 10, 7, o);
        d.push_back({{15, 10}, Pal::Or[0]});
        d.push_back({{16, 10}, Pal::Or[0]});
        d.push_back({{16, 9}, Pal::Or[0]});
    } else {
        f.Ellipse(16, 10, 4.5, 4, f.Matiere(t.gemme));
        d.push_back({{14, 8}, Pal::Blanc});
    }
    d.push_back({{9, 16}, Pal::Or[3]});
}

void Pendentif(Figure& f, const Teintes& t, int genre, std::vector<std::pair<Point2, Couleur>>& d) {
    const int chaine = f.Matiere(genre >= 2 ? Pal::Cuir : Pal::Or, false);
    for (int i = 0; i <= 16; ++i) {
        const double a = 3.14 * i / 16;
        f.Pixel(static_cast<int>(16 + std::cos(a) * 11), static_cast<int>(14 - std::sin(a) * 10), chaine);
    }
    switch (genre) {
        case 0:   // amulet: a gem in gold
            f.Ellipse(16, 20, 7, 8, f.Matiere(Pal::Or));
            f.Ellipse(16, 20, 4.5, 5.5, f.Matiere(t.gemme));
            d.push_back({{14, 17}, Pal::Blanc});
            break;
        case 1:   // medallion: a coin
            f.Ellipse(16, 21, 7.5, 7.5, f.Matiere(Pal::Or));
            f.Ellipse(16, 21, 4.5, 4.5, f.Matiere(Rampe_Entre(Pal::Or[1], Pal::Or[2])));
            d.push_back({{16, 21}, Pal::Or[3]});
            break;
        case 2:   // a string of claws
            for (int i = 0; i < 5; ++i) {
                const double x = 8 + i * 4;
                f.Polygone({{x - 1.5, 16}, {x + 1.5, 16}, {x + 0.5, 24.0 + (i % 2) * 2}}, f.Matiere(Pal::Os));
            }
            break;
        case 3:   // a single fang
            f.Polygone({{12, 15}, {20, 15}, {17, 29}}, f.Matiere(Pal::Os));
            d.push_back({{14, 17}, Pal::Blanc});
            break;
        default:   // a carved idol
            f.Rectangle(11, 15, 10, 14, f.Matiere(Pal::Bois));
            f.Rectangle(10, 15, 12, 3, f.Matiere(Pal::DrapRouge));
            d.push_back({{13, 20}, Pal::Encre});
            d.push_back({{18, 20}, Pal::Encre});
            d.push_back({{15, 24}, Pal::Encre});
            d.push_back({{16, 24}, Pal::Encre});
            break;
    }
}

// ---- things that are used ----

void Fiole(Figure& f, const Teintes& t, int forme, std::vector<std::pair<Point2, Couleur>>& d) {
    const int verre = f.Matiere(Pal::Glace), liquide = f.Matiere(t.gemme);
    if (forme == 2) {   // an ointment pot
        f.Rectangle(7, 12, 18, 16, f.Matiere(Pal::Brique));
        f.Ellipse(16, 12, 9, 3, f.Matiere(t.gemme));
        f.Rectangle(6, 9, 20, 3, f.Matiere(Pal::Cuir));
        return;
    }
    const double large = forme == 1 ? 6.0 : 9.0;
    f.Rectangle(13, 3, 6, 8, verre);
    f.Ellipse(16, 20, large, forme == 1 ? 9.5 : 8.5, verre);
    f.Ellipse(16, 21.5, large - 1.5, forme == 1 ? 7.5 : 6.5, liquide);
    f.Rectangle(12, 2, 8, 3, f.Matiere(Pal::Bois));
    d.push_back({{12, 16}, Pal::Blanc});
    d.push_back({{12, 17}, Pal::Glace[3]});
    d.push_back({{18, 24}, t.gemme[3]});
}

void Parchemin(Figure& f, const Teintes& t, std::vector<std::pair<Point2, Couleur>>& d) {
    const int papier = f.Matiere(Pal::Parchemin);
    f.Rectangle(6, 8, 20, 16, papier);
    f.Ellipse(6, 16, 3, 9, f.Matiere(Pal::Parchemin));
    f.Ellipse(26, 16, 3, 9, f.Matiere(Pal::Parchemin));
    const int encre = f.Matiere(Rampe_Entre(Pal::Parchemin[0], Pal::Parchemin[1]), false);
    for (int y = 11; y < 22; y += 3) f.Ligne(10, y, 22, y, encre);
    f.Ellipse(19, 22, 3.5, 3.5, f.Matiere(t.gemme == Pal::DrapRouge ? Pal::DrapRouge : t.gemme));
    d.push_back({{18, 21}, Pal::Blanc});
}

void Grimoire(Figure& f, const Teintes& t, std::vector<std::pair<Point2, Couleur>>& d) {
    f.Rectangle(6, 5, 20, 23, f.Matiere(t.matiere));
    f.Rectangle(7, 25, 19, 3, f.Matiere(Pal::Parchemin, false));
    f.Rectangle(6, 5, 3, 23, f.Matiere(Rampe_Entre(t.matiere[0], t.matiere[1])));
    f.Ellipse(17, 15, 4.5, 4.5, f.Matiere(Pal::Os));
    d.push_back({{15, 14}, Pal::Encre});
    d.push_back({{18, 14}, Pal::Encre});
    d.push_back({{16, 17}, Pal::Encre});
    d.push_back({{11, 7}, Pal::Or[3]});
    d.push_back({{23, 7}, Pal::Or[3]});
}

void Galette(Figure& f, std::vector<std::pair<Point2, Couleur>>& d) {
    f.Ellipse(16, 17, 12, 10, f.Matiere(Pal::DrapOcre));
    for (const auto& p : std::vector<std::pair<int, int>>{{11, 14}, {18, 12}, {14, 20}, {21, 19}}) {
        d.push_back({{static_cast<double>(p.first), static_cast<double>(p.second)}, Pal::Feuillage[2]});
        d.push_back({{static_cast<double>(p.first + 1), static_cast<double>(p.second)}, Pal::Feuillage[3]});
    }
}

void Sifflet(Figure& f, std::vector<std::pair<Point2, Couleur>>& d) {
    f.Trait(6, 24, 24, 10, 6, f.Matiere(Pal::Os));
    f.Ellipse(25, 9, 4, 4, f.Matiere(Pal::Os));
    f.Trait(4, 26, 8, 22, 2, f.Matiere(Pal::Cuir));
    d.push_back({{14, 17}, Pal::Encre});
    d.push_back({{18, 14}, Pal::Encre});
}

void Coeur(Figure& f, const Teintes&, std::vector<std::pair<Point2, Couleur>>& d) {
    const int m = f.Matiere(Pal::Sang);
    f.Ellipse(11, 12, 7, 7, m);
    f.Ellipse(21, 12, 7, 7, m);
    f.Polygone({{4.5, 14}, {27.5, 14}, {16, 29}}, m);
    f.Trait(16, 4, 18, 9, 2.4, f.Matiere(Pal::Sang));
    d.push_back({{9, 9}, Pal::Blanc});
    d.push_back({{10, 10}, Pal::DrapRouge[3]});
    d.push_back({{20, 16}, Pal::Feu[3]});
}

struct Icone {
    std::vector<std::string_view> mots;
    Dessin dessin;
};

const std::vector<Icone>& Icones() {
    using D = std::vector<std::pair<Point2, Couleur>>;
    static const std::vector<Icone> icones = {
        {{"baton de feu"}, [](Figure& f, const Teintes& t, D& d) { Baton(f, t, 1, d); }},
        {{"sceptre"}, [](Figure& f, const Teintes& t, D& d) { Baton(f, t, 2, d); }},
        {{"baguette"}, [](Figure& f, const Teintes& t, D& d) { Baton(f, t, 3, d); }},
        {{"arbalete"}, [](Figure& f, const Teintes&, D& d) { Arbalete(f, d); }},
        {{"bouclier", "ecu", "pavois"}, Bouclier},
        {{"canne"}, [](Figure& f, const Teintes&, D& d) { Canne(f, d); }},
        {{"hache d'armes", "hache de guerre"}, [](Figure& f, const Teintes& t, D& d) { Hache(f, t, true, d); }},
        {{"hache"}, [](Figure& f, const Teintes& t, D& d) { Hache(f, t, false, d); }},
        {{"pioche", "pic "}, [](Figure& f, const Teintes&, D& d) { Pioche(f, d); }},
        {{"marteau", "masse"}, [](Figure& f, const Teintes&, D& d) { Marteau(f, d); }},
        {{"gourdin", "massue"}, Gourdin},
        {{"epee courte", "dague", "couteau"}, [](Figure& f, const Teintes& t, D& d) { Lame(f, t, 13, d); }},
        {{"epee", "lame", "glaive"}, [](Figure& f, const Teintes& t, D& d) { Lame(f, t, 19, d); }},
        {{"lance", "pique"}, [](Figure& f, const Teintes&, D& d) { Lance(f, d); }},
        {{"arc"}, [](Figure& f, const Teintes&, D& d) { Arc(f, d); }},
        {{"baton"}, [](Figure& f, const Teintes& t, D& d) { Baton(f, t, 0, d); }},
        {{"hotte", "panier", "sac a dos"}, [](Figure& f, const Teintes&, D& d) { Hotte(f, d); }},
        {{"cotte", "maille"}, [](Figure& f, const Teintes&, D& d) { Mailles(f, d); }},
        {{"armure", "cuirasse", "plastron"}, Cuirasse},
        {{"heaume", "casque"}, Casque},
        {{"couronne", "diademe"}, Couronne},
        {{"bonnet", "chapeau", "capuche"}, Bonnet},
        {{"robe"}, [](Figure& f, const Teintes& t, D& d) { Tunique(f, t, true, d); }},
        {{"tunique", "chemise", "pourpoint"}, [](Figure& f, const Teintes& t, D& d) { Tunique(f, t, false, d); }},
        {{"cape", "manteau", "pelerine"}, Cape},
        {{"echarpe"}, Echarpe},
        {{"bottes de sept", "ailee"}, [](Figure& f, const Teintes& t, D& d) { Bottes(f, t, true, d); }},
        {{"botte", "chausse", "souliers"}, [](Figure& f, const Teintes& t, D& d) { Bottes(f, t, false, d); }},
        {{"chevaliere", "sceau"}, [](Figure& f, const Teintes& t, D& d) { Anneau(f, t, true, d); }},
        {{"anneau", "bague"}, [](Figure& f, const Teintes& t, D& d) { Anneau(f, t, false, d); }},
        {{"medaillon"}, [](Figure& f, const Teintes& t, D& d) { Pendentif(f, t, 1, d); }},
        {{"collier", "griffe"}, [](Figure& f, const Teintes& t, D& d) { Pendentif(f, t, 2, d); }},
        {{"croc", "dent"}, [](Figure& f, const Teintes& t, D& d) { Pendentif(f, t, 3, d); }},
        {{"totem", "idole"}, [](Figure& f, const Teintes& t, D& d) { Pendentif(f, t, 4, d); }},
        {{"amulette", "talisman", "pendentif"}, [](Figure& f, const Teintes& t, D& d) { Pendentif(f, t, 0, d); }},
        {{"onguent", "baume"}, [](Figure& f, const Teintes& t, D& d) { Fiole(f, t, 2, d); }},
        {{"philtre"}, [](Figure& f, const Teintes& t, D& d) { Fiole(f, t, 1, d); }},
        {{"fiole", "elixir", "potion"}, [](Figure& f, const Teintes& t, D& d) { Fiole(f, t, 0, d); }},
        {{"parchemin", "rouleau"}, Parchemin},
        {{"grimoire", "livre", "tome"}, Grimoire},
        {{"galette", "pain", "gateau"}, [](Figure& f, const Teintes&, D& d) { Galette(f, d); }},
        {{"sifflet", "cor"}, [](Figure& f, const Teintes&, D& d) { Sifflet(f, d); }},
        {{"coeur"}, Coeur},
    };
    return icones;
}

// When the name says nothing: by the slot, or a flask for what is used.
Dessin Par_Categorie(int categorie, bool utilisable) {
    using D = std::vector<std::pair<Point2, Couleur>>;
    if (utilisable) return [](Figure& f, const Teintes& t, D& d) { Fiole(f, t, 0, d); };
    switch (categorie) {
        case 1: return [](Figure& f, const Teintes& t, D& d) { Baton(f, t, 0, d); };
        case 2: return [](Figure& f, const Teintes& t, D& d) { Tunique(f, t, false, d); };
        case 3: return Casque;
        case 4: return [](Figure& f, const Teintes& t, D& d) { Bottes(f, t, false, d); };
        case 5: return [](Figure& f, const Teintes& t, D& d) { Pendentif(f, t, 0, d); };
        case 6:
        case 7: return [](Figure& f, const Teintes& t, D& d) { Anneau(f, t, false, d); };
        case 8: return Cape;
        default: return [](Figure& f, const Teintes& t, D& d) { Lame(f, t, 19, d); };
    }
}

// A spectral blade is pale and cold: every colour of it drawn toward ice.
void Spectral(Toile& t) {
    t.Transformer([](int, int, Couleur c) { return Melanger(c, Pal::Glace[2], 0.5); });
}

}  // namespace

Toile Icone_Objet(int o) {
    const std::string nom = Plier(Param.Objet_Nom(o));
    const int categorie = Param.Objet_Categorie(o);
    Dessin dessin = Par_Categorie(categorie, Param.Objet_Utilisable(o));
    for (const Icone& i : Icones())
        if (Contient_Mot(nom, i.mots)) {
            dessin = i.dessin;
            break;
        }
    Figure f(Case, Case);
    std::vector<std::pair<Point2, Couleur>> details;
    dessin(f, Teintes_De(nom, categorie), details);
    Toile t = f.Rendre(true, false);
    for (const auto& [p, c] : details)
        if (t.Opaque(static_cast<int>(p.x), static_cast<int>(p.y))) t.Point(static_cast<int>(p.x), static_cast<int>(p.y), c);
    if (Contient(nom, {"spectral"})) Spectral(t);
    return t;
}

void Forger_Objets(Atelier& a) {
    for (int o = 0; o < Param.NombreObjets; ++o) a.Ecrire("Objets/" + Param.Objet_Nom(o) + ".bmp", Icone_Objet(o));
}

// One sheet per monster, Persos/Monstres/<Monstre_Nom>.bmp, with one block per look up to
// the monster's Apparence. The drawing comes from the monster's name, and failing that from
// its people's: two-legged creatures go through the humanoid figure, four-legged beasts and
// winged ones have their own bodies below.
#include <algorithm>
#include <cmath>
#include <functional>
#include <string>

#include "Bruit.h"
#include "Figure.h"
#include "Forge.h"
#include "Humanoide.h"
#include "Mots.h"
#include "rules/ClsJeuParam.h"

namespace {

constexpr double CX = 12.0;

// ---------------------------------------------------------------- four legs

struct Bete {
    Rampe pelage, ventre;
    double taille = 1.0;        // 1 for a wolf, more for a bear
    double museau = 1.0;        // length of the snout
    bool oreillesPointues = true;
    bool queueLongue = true;
    Couleur yeux = Pal::Encre;
};

void Pattes_Profil(Figure& f, const Bete& b, double cx, double cy, double rx, int pas, int m, int ongle) {
    const double ecart[4] = {-rx + 2, -rx + 4, rx - 4, rx - 2};
    for (int i = 0; i < 4; ++i) {
        const int sens = (i % 2 == 0) ? 1 : -1;
        const double x = cx + ecart[i], pied = x + sens * pas * 1.5;
        f.Trait(x, cy + 1, pied, 28.5, 2.2 * std::min(b.taille, 1.3), m);
        f.Rectangle(static_cast<int>(pied) - 1, 28, 3, 1, ongle);
    }
}

Toile Bete_Profil(const Bete& b, int pas) {
    Figure f(LargeurPerso, HauteurPerso);
    const int pelage = f.Matiere(b.pelage), ventre = f.Matiere(b.ventre), ongle = f.Matiere(Pal::Os);
    const double rx = 6.5 * b.taille, ry = 3.8 * b.taille, cx = CX - 1.5, cy = 28 - 4 - ry;
    const double balance = pas * 0.6;
    if (b.queueLongue) f.Trait(cx - rx + 1, cy - 1, cx - rx - 3, cy + 2 + balance, 2.0, pelage);
    else f.Ellipse(cx - rx, cy - 1, 1.6, 1.6, pelage);
    Pattes_Profil(f, b, cx, cy, rx, pas, pelage, ongle);
    f.Ellipse(cx, cy, rx, ry, pelage);
    f.Ellipse(cx + 0.5, cy + ry * 0.45, rx * 0.7, ry * 0.45, ventre);
    // Head forward and a little up, the snout beyond it.
    const double hx = cx + rx - 0.5, hy = cy - ry + 0.5, hr = 2.8 * std::min(b.taille, 1.25);
    f.Ellipse(hx, hy, hr + 0.3, hr, pelage);
    f.Ellipse(hx + hr + 0.5 * b.museau, hy + 1, 1.5 + b.museau, 1.5, ventre);
    if (b.oreillesPointues) f.Polygone({{hx - 2, hy - 1}, {hx + 0.5, hy - 1}, {hx - 1.2, hy - hr - 3}}, pelage);
    else f.Ellipse(hx - 1, hy - hr + 0.2, 1.5, 1.5, pelage);
    Toile t = f.Rendre();
    t.Point(static_cast<int>(hx + 1), static_cast<int>(hy), b.yeux);
    t.Point(static_cast<int>(hx + hr + 1.5 * b.museau + 1), static_cast<int>(hy + 1), Pal::Encre);
    Ombre_Au_Sol(t, cx, 30.0, rx + 1, 1.5);
    return t;
}

void Oreilles_Bete(Figure& f, const Bete& b, double cx, double hy, double hr, int m) {
    for (int cote : {-1, 1}) {
        const double x = cx + cote * (hr - 1.0);
        if (b.oreillesPointues) f.Polygone({{x - 1.6, hy - hr + 1.8}, {x + 1.6, hy - hr + 1.8}, {x + cote * 0.6, hy - hr - 2.6}}, m);
        else f.Ellipse(x, hy - hr + 0.6, 1.6, 1.6, m);
    }
}

// From the front (south): the head before the shoulders. From the back (north): the back,
// the tail, and the ears of the head beyond.
Toile Bete_Face(const Bete& b, bool deFace, int pas) {
    Figure f(LargeurPerso, HauteurPerso);
    const int pelage = f.Matiere(b.pelage), ventre = f.Matiere(b.ventre), ongle = f.Matiere(Pal::Os);
    const double t = b.taille, rx = 4.2 * t;
    Toile sortie;
    if (deFace) {
        const double hr = 3.4 * std::min(t, 1.3), hy = 28 - 3 - hr - 2;
        for (int cote : {-1, 1}) {   // hind legs at the sides, front legs under the chest
            f.Rectangle(static_cast<int>(CX + cote * (rx - 0.5)) - 1, static_cast<int>(hy) + 1 - pas * cote, 2, 7, pelage);
            f.Rectangle(static_cast<int>(CX + cote * 2.2) - 1, static_cast<int>(hy) + 2 + pas * cote, 3, 26 - static_cast<int>(hy) - pas * cote, pelage);
            f.Rectangle(static_cast<int>(CX + cote * 2.2) - 1, 28 + (cote * pas > 0 ? 0 : 0), 3, 1, ongle);
        }
        f.Ellipse(CX, hy - 2.5, rx, 3.6 * std::min(t, 1.2), pelage);   // the shoulders behind the head
        Oreilles_Bete(f, b, CX, hy, hr, pelage);
        f.Ellipse(CX, hy, hr + 0.4, hr, pelage);
        f.Ellipse(CX, hy + hr * 0.55, 1.4 + b.museau * 0.5, 1.5, ventre);
        sortie = f.Rendre();
        const int ye = static_cast<int>(hy) - 1;
        sortie.Point(static_cast<int>(CX) - 2, ye, b.yeux);
        sortie.Point(static_cast<int>(CX) + 1, ye, b.yeux);
        sortie.Point(static_cast<int>(CX) - 1, static_cast<int>(hy + hr * 0.55) - 1, Pal::Encre);
        sortie.Point(static_cast<int>(CX), static_cast<int>(hy + hr * 0.55) - 1, Pal::Encre);
    } else {
        // Seen from behind and above: the head beyond the back, half hidden by the shoulders.
        const double ry = 5.5 * std::min(t, 1.2), cy = 28 - ry - 1.5, hr = 3.0 * std::min(t, 1.3), hy = cy - ry + 0.5;
        for (int cote : {-1, 1}) {
            f.Rectangle(static_cast<int>(CX + cote * (rx - 0.5)) - 1, static_cast<int>(cy - ry * 0.5) + pas * cote, 2, 4, pelage);
            f.Rectangle(static_cast<int>(CX + cote * (rx - 0.5)) - 1, static_cast<int>(cy + ry * 0.4) - pas * cote, 2, 5, pelage);
        }
        Oreilles_Bete(f, b, CX, hy - 1, hr, pelage);
        f.Ellipse(CX, hy - 1, hr, hr, pelage);
        if (b.queueLongue) f.Trait(CX, cy + ry - 2, CX + pas, cy + ry + 2.5, 2.2, pelage);
        f.Ellipse(CX, cy, rx + 0.5, ry, pelage);
        f.Rectangle(static_cast<int>(CX) - 1, static_cast<int>(cy - ry + 2), 2, static_cast<int>(ry * 1.2), f.Matiere(Rampe_Entre(b.pelage[0], b.pelage[1]), false));
        if (!b.queueLongue) f.Ellipse(CX, cy + ry - 1, 1.5, 1.5, pelage);
        sortie = f.Rendre();
    }
    Ombre_Au_Sol(sortie, CX, 30.0, rx + 1, 1.5);
    return sortie;
}

Toile Bete_Cellule(const Bete& b, int d, int pas) {
    if (d == 1) return Bete_Profil(b, pas);
    if (d == 3) return Bete_Profil(b, pas).Miroir();
    return Bete_Face(b, d == 2, pas);
}

// ---------------------------------------------------------------- wings

struct Dragon {
    Rampe ecailles, ventre, ailes;
    double taille = 1.0;
    bool pattesAvant = true;   // a wyvern stands on its hind legs and its wings
    Couleur yeux = Pal::Feu[3];
};

void Aile(Figure& f, double ex, double ey, double bout, double haut, double bas, int m) {
    f.Polygone({{ex, ey}, {bout, haut}, {bout + (bout > ex ? -1.5 : 1.5), bas}, {ex, ey + 4}}, m);
}

Toile Dragon_Cellule(const Dragon& d, int dir, int pas) {
    const bool miroir = dir == 3;
    if (dir == 3) dir = 1;
    Figure f(LargeurPerso, HauteurPerso);
    const int ec = f.Matiere(d.ecailles), ve = f.Matiere(d.ventre), ai = f.Matiere(d.ailes), co = f.Matiere(Pal::Os);
    const double battement[3] = {-4, 0, 3};   // the wing tip: up, level, down
    const double b = battement[pas + 1];
    const double t = d.taille;
    Toile sortie;
    if (dir == 1) {
        const double cx = CX - 2, cy = 21, rx = 5.0 * t, ry = 3.2 * t;
        f.Trait(cx - rx + 1, cy, cx - rx - 5, cy + 3, 2.2, ec);   // the tail
        f.Polygone({{cx - rx - 5, cy + 1}, {cx - rx - 7, cy + 3}, {cx - rx - 4, cy + 4.5}}, ec);
        Aile(f, cx, cy - ry + 1, cx - 4 - 2 * t, cy - 10 + b, cy - 4 + b, ai);   // the far wing
        for (int i = 0; i < (d.pattesAvant ? 2 : 1); ++i) {
            const double x = cx + (i == 0 ? -rx + 2.5 : rx - 2.5);
            f.Trait(x, cy + 1, x + (i == 0 ? pas : -pas) * 1.5, 28.5, 2.2, ec);
        }
        f.Ellipse(cx, cy, rx, ry, ec);
        f.Ellipse(cx + 0.5, cy + ry * 0.45, rx * 0.7, ry * 0.45, ve);
        f.Trait(cx + rx - 1.5, cy - 1, cx + rx + 2, cy - 6 - t, 2.4, ec);   // the neck
        const double hx = cx + rx + 3, hy = cy - 7 - t;
        f.Ellipse(hx, hy, 2.6, 2.0, ec);
        f.Ellipse(hx + 2.5, hy + 0.8, 2.0, 1.3, ec);
        f.Polygone({{hx - 2, hy - 1}, {hx - 0.5, hy - 1.5}, {hx - 3.5, hy - 4}}, co);
        Aile(f, cx + 1, cy - ry + 1, cx + 6 + 2 * t, cy - 11 + b, cy - 5 + b, ai);   // the near wing
        sortie = f.Rendre();
        sortie.Point(static_cast<int>(hx) + 1, static_cast<int>(hy) - 1, d.yeux);
        Ombre_Au_Sol(sortie, cx, 30.0, rx + 2, 1.5);
    } else {
        const bool face = dir == 2;
        const double cy = 19, rx = 4.0 * t, ry = 5.5 * std::min(t, 1.2);
        for (int cote : {-1, 1}) Aile(f, CX + cote * 2.0, cy - 3, CX + cote * 11.5, cy - 9 + b, cy - 1 + b, ai);
        if (!face) f.Trait(CX, cy + ry - 1, CX + pas * 2, 30, 2.4, ec);
        for (int cote : {-1, 1}) f.Rectangle(static_cast<int>(CX + cote * (rx - 1.5)) - 1, static_cast<int>(cy + ry - 2) + pas * cote, 3, 4, ec);
        f.Ellipse(CX, cy, rx, ry, ec);
        if (face) f.Ellipse(CX, cy + 1, rx * 0.55, ry * 0.75, ve);
        const double hy = face ? cy - ry + 1 : cy - ry - 1;
        f.Trait(CX, cy - 2, CX, hy, 2.6, ec);
        f.Ellipse(CX, hy - 1.5, 2.6, 2.6, ec);
        for (int cote : {-1, 1}) f.Polygone({{CX + cote * 1.0, hy - 3}, {CX + cote * 2.5, hy - 3}, {CX + cote * 3.5, hy - 7}}, co);
        sortie = f.Rendre();
        if (face) {
            sortie.Point(static_cast<int>(CX) - 2, static_cast<int>(hy) - 2, d.yeux);
            sortie.Point(static_cast<int>(CX) + 1, static_cast<int>(hy) - 2, d.yeux);
        }
        Ombre_Au_Sol(sortie, CX, 30.5, rx + 4, 1.4);
    }
    return miroir ? sortie.Miroir() : sortie;
}

// ---------------------------------------------------------------- the bestiary

const Rampe PeauGobeline{{{54, 84, 34}, {82, 118, 46}, {114, 150, 62}, {150, 180, 92}}};
const Rampe PeauMorte{{{84, 94, 80}, {118, 130, 108}, {150, 162, 136}, {184, 192, 166}}};
const Rampe FourrureLoup{{{70, 62, 58}, {104, 94, 86}, {138, 126, 112}, {170, 160, 142}}};
const Rampe FourrureGrise{{{88, 90, 96}, {122, 124, 128}, {158, 160, 160}, {196, 196, 192}}};
const Rampe FourrureNoire{{{40, 34, 38}, {62, 54, 56}, {88, 78, 76}, {118, 106, 100}}};
const Rampe FourrureOurs{{{72, 42, 24}, {104, 64, 36}, {138, 90, 52}, {170, 120, 76}}};
const Rampe FourrureCaverne{{{66, 58, 50}, {96, 86, 74}, {128, 116, 98}, {160, 148, 124}}};
const Rampe EcaillesVertes{{{34, 72, 50}, {50, 104, 66}, {78, 138, 84}, {120, 174, 112}}};
const Rampe AilesVertes{{{60, 90, 56}, {90, 124, 70}, {122, 156, 92}, {160, 190, 124}}};

using Cellule = std::function<Toile(int d, int pas)>;

Cellule Humanoide(const Apparence& a) {
    return [a](int d, int p) { return Dessiner_Humanoide(a, d, p); };
}

Cellule Gobelin(int genre) {
    Apparence a;
    a.gabarit = Gabarit::Petit;
    a.tete = Tete::Gobeline;
    a.peau = PeauGobeline;
    a.haut = Pal::DrapBrun;
    a.bas = Pal::Cuir;
    a.yeuxLuisants = true;
    a.yeux = Pal::Feu[2];
    a.main = Tenu::Dague;
    if (genre == 1) {   // archer
        a.coiffe = Coiffe::Capuche;
        a.coiffeCouleur = Pal::DrapVert;
        a.main = Tenu::Arc;
        a.dos = Tenu::Arc;
    } else if (genre == 2) {   // fire-raiser
        a.haut = Pal::DrapOcre;
        a.tablier = true;
        a.main = Tenu::Bombe;
        a.coiffe = Coiffe::Bonnet;
        a.coiffeCouleur = Pal::DrapRouge;
    } else if (genre == 3) {   // chief
        a.gabarit = Gabarit::Normal;
        a.coiffe = Coiffe::Cornes;
        a.coiffeCouleur = Pal::Metal;
        a.armure = Armure::Cuir;
        a.cape = true;
        a.capeCouleur = Pal::DrapRouge;
        a.main = Tenu::Hache;
    }
    return Humanoide(a);
}

Cellule Mort_Vivant(int genre) {
    Apparence a;
    a.tete = Tete::Crane;
    a.yeuxLuisants = true;
    if (genre == 0) {   // skeleton
        a.armure = Armure::Os;
        a.ceinture = false;
        a.chaussures = Pal::Os;
        a.yeux = Pal::Feu[2];
        a.main = Tenu::Epee;
    } else if (genre == 1) {   // the walking dead
        a.tete = Tete::Humaine;
        a.peau = PeauMorte;
        a.cheveux = Pal::CheveuxGris;
        a.cheveuxLongs = true;
        a.haut = Pal::DrapGris;
        a.bas = Pal::DrapBrun;
        a.brasTendus = true;
        a.yeux = Pal::Glace[3];
    } else {   // lich
        a.haut = Pal::DrapViolet;
        a.jupe = true;
        a.galons = true;
        a.coiffe = Coiffe::Couronne;
        a.cape = true;
        a.capeCouleur = Pal::DrapBordeaux;
        a.main = Tenu::Baton;
        a.yeux = Pal::Poison[3];
        a.ceintureCouleur = Pal::Or;
    }
    return Humanoide(a);
}

Cellule Loup_Garou() {
    Apparence a;
    a.gabarit = Gabarit::Grand;
    a.tete = Tete::Loup;
    a.cheveux = FourrureNoire;
    a.peau = FourrureGrise;
    a.haut = FourrureNoire;
    a.manchesNues = false;
    a.bas = Pal::DrapBrun;
    a.ceinture = false;
    a.chaussures = FourrureNoire;
    a.griffes = true;
    a.yeuxLuisants = true;
    a.yeux = Pal::Or[3];
    return Humanoide(a);
}

Cellule Quadrupede(const Bete& b) {
    return [b](int d, int p) { return Bete_Cellule(b, d, p); };
}

Cellule Volant(const Dragon& d) {
    return [d](int dir, int p) { return Dragon_Cellule(d, dir, p); };
}

// The drawing of a monster from its name, or from its people's when the name says nothing.
Cellule Dessin_Monstre(const std::string& nom, const std::string& peuple, int grade) {
    if (Contient(nom, {"garou"})) return Loup_Garou();
    if (Contient(nom, {"loup"})) {
        Bete b{Contient(nom, {"gris"}) ? FourrureGrise : FourrureLoup, Pal::Os};
        b.taille = Contient(nom, {"gris"}) ? 1.1 : 1.0;
        b.museau = 1.4;
        b.yeux = Pal::Or[3];
        return Quadrupede(b);
    }
    if (Contient(nom, {"ours"})) {
        const bool caverne = Contient(nom, {"caverne"});
        Bete b{caverne ? FourrureCaverne : FourrureOurs, caverne ? Pal::PierreClaire : Pal::Terre};
        b.taille = caverne ? 1.45 : 1.3;
        b.museau = 0.8;
        b.oreillesPointues = false;
        b.queueLongue = false;
        return Quadrupede(b);
    }
    if (Contient(nom, {"gobelin"}))
        return Gobelin(Contient(nom, {"chef"}) ? 3 : Contient(nom, {"artificier"}) ? 2 : Contient(nom, {"archer"}) ? 1 : 0);
    if (Contient(nom, {"squelette"})) return Mort_Vivant(0);
    if (Contient(nom, {"revenant", "zombie", "goule"})) return Mort_Vivant(1);
    if (Contient(nom, {"liche"})) return Mort_Vivant(2);
    if (Contient(nom, {"wyverne"})) return Volant({EcaillesVertes, Pal::Sable, AilesVertes, 1.0, false, Pal::Or[3]});
    if (Contient(nom, {"dragonnet"})) return Volant({Pal::DrapRouge, Pal::Or, Pal::Tuile, 0.8});
    if (Contient(nom, {"dragon"})) return Volant({Pal::DrapBordeaux, Pal::Or, Pal::DrapRouge, 1.2});
    // Nothing in the name: the people's kind, one grade a little stronger than the last.
    if (peuple != nom) {
        if (Contient(peuple, {"loup"})) return Dessin_Monstre(grade > 0 ? "loup gris" : "loup", peuple, grade);
        if (Contient(peuple, {"gobelin"})) return Gobelin(std::min(grade, 3));
        if (Contient(peuple, {"mort"})) return Mort_Vivant(std::min(grade, 2));
        if (Contient(peuple, {"ours"})) return Dessin_Monstre(grade > 0 ? "ours des cavernes" : "ours", peuple, grade);
        if (Contient(peuple, {"dragon"})) return Dessin_Monstre(grade > 0 ? "dragon" : "dragonnet", peuple, grade);
    }
    Apparence a;   // a stranger: a hooded figure in a colour of its own
    const Rampe teintes[] = {Pal::DrapBordeaux, Pal::DrapSarcelle, Pal::DrapViolet, Pal::DrapGris};
    a.haut = teintes[Graine_De(nom.c_str()) % 4];
    a.jupe = true;
    a.coiffe = Coiffe::Capuche;
    a.coiffeCouleur = a.haut;
    a.main = Tenu::Baton;
    return Humanoide(a);
}

}  // namespace

void Forger_Monstres(Atelier& a) {
    for (int m = 0; m < Param.NombreTotalMonstres; ++m) {
        const int peuple = std::stoi(Param.Monstre_Peuple(m));
        const std::string nomPeuple = peuple >= 0 && peuple < Param.NombrePeuples ? Param.Peuples_Nom(peuple) : "";
        const Cellule dessin = Dessin_Monstre(Plier(Param.Monstre_Nom(m)), Plier(nomPeuple), std::stoi(Param.Monstre_Grade(m)));
        const Toile bloc = Bloc_De(dessin);
        // Every block up to the monster's look; the later ones are the same creature.
        const int blocs = std::max<int>(1, Param.Monstre_Apparence(m) + 1);
        Toile planche(blocs * bloc.Largeur(), bloc.Hauteur());
        for (int i = 0; i < blocs; ++i) planche.Coller(bloc, i * bloc.Largeur(), 0);
        a.Ecrire("Persos/Monstres/" + Param.Monstre_Nom(m) + ".bmp", planche);
    }
}

// Castle sheets, Batiments/Chateaux-0001.bmp and on, one per people, cells of ChateauxLargeur
// x ChateauxHauteur. The humans' sheet has one row per epoch, from a palisaded hall to a royal
// castle; every other people has one row: its lair (a den, a camp, a crypt, a volcano…).
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <string>

#include "Architecture.h"
#include "Bruit.h"
#include "Forge.h"
#include "Humanoide.h"
#include "Mots.h"
#include "rules/ClsJeuParam.h"

namespace {

struct Site {
    int W, H;
};

Volume Mur_Plat(int x, int yb, int w, int hw, int dp, Mur mur, bool creneaux = true) {
    Volume v;
    v.x = x;
    v.yb = yb;
    v.w = w;
    v.hw = hw;
    v.dp = dp;
    v.mur = mur;
    v.forme = Forme::Plat;
    v.toit = Toit::Ardoise;
    v.creneaux = creneaux;
    return v;
}

Volume Tourelle(int cx, int yb, int w, int hw, Mur mur, Toit toit, Forme forme = Forme::Tour) {
    Volume v;
    v.x = cx - w / 2;
    v.yb = yb;
    v.w = w;
    v.hw = hw;
    v.mur = mur;
    v.toit = toit;
    v.forme = forme;
    v.fenetres = hw >= 16 ? 1 : 0;
    return v;
}

// A palisade of sharpened logs from x0 to x1, standing on the line yb.
void Palissade(Toile& t, int x0, int x1, int yb, int hauteur) {
    for (int x = x0; x <= x1; x += 3) {
        const int h = hauteur + static_cast<int>(Hacher(x, yb, 3) % 3);
        t.Rectangle(x, yb - h, 3, h, Pal::Bois[2]);
        t.Rectangle(x, yb - h, 1, h, Pal::Bois[3]);
        t.Rectangle(x + 2, yb - h, 1, h, Pal::Bois[1]);
        t.Point(x + 1, yb - h - 1, Pal::Bois[2]);
        t.Ligne(x, yb - h / 3, x + 2, yb - h / 3, Pal::Bois[0]);
    }
}

// A side run of palisade going back, seen from above: the tips of the stakes in a strip.
void Palissade_Cote(Toile& t, int x, int y0, int y1) {
    for (int y = y0; y <= y1; y += 2) {
        t.Rectangle(x, y, 4, 2, Pal::Bois[2]);
        t.Point(x + 1, y, Pal::Bois[3]);
        t.Point(x + 3, y + 1, Pal::Bois[0]);
    }
}

void Porte_Fortifiee(Toile& t, int cx, int yb, int l, int h, bool herse) {
    t.Rectangle(cx - l / 2 - 1, yb - h - 1, l + 2, h + 1, Pal::PierreClaire[1]);
    t.Rectangle(cx - l / 2, yb - h, l, h, Pal::Encre);
    t.Effacer(cx - l / 2 - 1, yb - h - 1);
    t.Effacer(cx + l / 2, yb - h - 1);
    if (herse)
        for (int x = cx - l / 2 + 1; x < cx + l / 2; x += 2) t.Ligne(x, yb - h, x, yb - 3, Pal::Metal[1]);
    else
        for (int x = cx - l / 2; x < cx + l / 2; x += 2) t.Ligne(x, yb - h + 1, x, yb - 1, Pal::Bois[1]);
}

// ---- the humans, by epoch ----

Toile Chateau_Humain(const Site& s, int epoque) {
    Toile t(s.W, s.H);
    const int cx = s.W / 2, avant = s.H - 6, arriere = s.H * 40 / 100;
    const int e = std::clamp(epoque, 0, 4);
    const Mur pierre = e >= 4 ? Mur::Taille : Mur::Pierre;
    const Toit toit = e >= 4 ? Toit::Ardoise : (e >= 3 ? Toit::Tuiles : Toit::Bardeaux);
    if (e <= 1) {
        // A palisaded enclosure round a hall (and two watchtowers once the village grows).
        Palissade(t, 6, s.W - 9, arriere, 9);
        Volume hall;
        hall.x = cx - 24;
        hall.yb = avant - 16;
        hall.w = 48;
        hall.hw = 14;
        hall.dp = 22;
        hall.mur = e == 0 ? Mur::Rondins : Mur::Colombage;
        hall.toit = e == 0 ? Toit::Chaume : Toit::Bardeaux;
        hall.porte = cx;
        hall.fenetres = 2;
        hall.cheminee = e == 1;
        Batir(t, hall);
        Palissade_Cote(t, 4, arriere - 8, avant - 8);
        Palissade_Cote(t, s.W - 8, arriere - 8, avant - 8);
        Palissade(t, 4, cx - 10, avant, 10);
        Palissade(t, cx + 8, s.W - 6, avant, 10);
        Porte_Fortifiee(t, cx, avant, 14, 10, false);
        if (e == 1)
            for (int x : {12, s.W - 12}) Batir(t, Tourelle(x, avant + 1, 14, 20, Mur::Rondins, Toit::Bardeaux));
        else
            Fanion(t, cx + 18, hall.Faite() - 8, 10, Pal::DrapRouge, 0);
        return t;
    }
    // Stone: walls all round, the keep within, towers at the corners.
    Batir(t, Mur_Plat(10, arriere, s.W - 20, 10, 6, pierre));
    Volume donjon = Tourelle(cx, avant - 18, e >= 3 ? 40 : 36, e >= 4 ? 40 : 30, pierre, toit, Forme::Long);
    donjon.dp = e >= 3 ? 18 : 14;
    donjon.fenetres = 2;
    donjon.baniere = e >= 3 ? (e >= 4 ? 1 : 0) : -1;
    if (e == 2) {
        donjon.forme = Forme::Plat;
        donjon.creneaux = true;
        donjon.dp = 10;
    }
    Batir(t, donjon);
    if (e >= 4) Batir(t, Tourelle(donjon.x + donjon.w - 6, donjon.Haut_Mur() + 2, 12, 14, pierre, Toit::Ardoise, Forme::Fleche));
    Batir(t, Mur_Plat(4, avant - 4, 10, 14, avant - arriere - 8, pierre));
    Batir(t, Mur_Plat(s.W - 14, avant - 4, 10, 14, avant - arriere - 8, pierre));
    Batir(t, Mur_Plat(10, avant, s.W - 20, e >= 4 ? 18 : 14, 4, pierre));
    Porte_Fortifiee(t, cx, avant, 14, e >= 4 ? 14 : 12, true);
    if (e >= 3) {
        for (int x : {10, s.W - 10}) Batir(t, Tourelle(x, arriere + 2, 14, 16, pierre, toit));
        for (int x : {9, s.W - 9}) Batir(t, Tourelle(x, avant + 2, 16, e >= 4 ? 28 : 22, pierre, toit, e >= 4 ? Forme::Fleche : Forme::Tour));
    } else {
        for (int x : {10, s.W - 10}) Batir(t, Tourelle(x, avant + 2, 14, 18, pierre, Toit::Aucun, Forme::Plat));
        Fanion(t, cx, donjon.Faite() - 10, 10, Pal::DrapRouge, 1);
    }
    if (e >= 4) {
        Fanion(t, 9, avant - 44, 9, Pal::DrapBleu, 0);
        Fanion(t, s.W - 9, avant - 44, 9, Pal::DrapBleu, 2);
    }
    return t;
}

// ---- the lairs ----

void Os_Epars(Toile& t, int x, int y) {
    t.Ligne(x, y, x + 4, y + 1, Pal::Os[3]);
    t.Point(x - 1, y - 1, Pal::Os[3]);
    t.Point(x + 5, y + 2, Pal::Os[3]);
    t.Ellipse(x + 8, y - 1, 1.6, 1.4, Pal::Os[2]);
    t.Point(x + 8, y - 1, Pal::Encre);
}

// A heap of rock with a cave; the mouth is as wide as `bouche`.
void Antre(Toile& t, const Site& s, int bouche, const Rampe& roche, uint32_t graine) {
    const int W = s.W, bas = s.H - 8;
    Toile masque(W, s.H);
    masque.Ellipse(W / 2.0, bas, W / 2.0 - 4, bas * 0.55, Pal::Blanc);
    masque.Ellipse(W * 0.35, bas - 2, W * 0.27, bas * 0.68, Pal::Blanc);
    masque.Ellipse(W * 0.68, bas, W * 0.25, bas * 0.5, Pal::Blanc);
    for (int y = 0; y < s.H; ++y)
        for (int x = 0; x < W; ++x) {
            if (!masque.Opaque(x, y)) continue;
            int dessus = y;
            while (dessus > 0 && masque.Opaque(x, dessus - 1)) --dessus;
            const double n = Bruit_Lisse(x, y, 7, 112, graine) * 0.7 + Bruit(x, y, graine) * 0.3;
            Couleur c = roche[std::clamp(static_cast<int>(n * 4 + Seuil_Bayer(x, y) - 0.5), 0, 3)];
            if (y - dessus < 3) c = Bruit(x, y, graine + 1) < 0.5 ? Pal::Herbe[2] : Pal::Herbe[1];
            if (x > W * 0.6) c = Melanger(c, Pal::Encre, 0.15);
            t.Point(x, y, c);
        }
    t.Ellipse(W / 2.0, bas - 1, bouche / 2.0, bouche * 0.55, Pal::Encre);
    t.Ellipse(W / 2.0, bas - 3, bouche / 2.0 - 2, bouche * 0.4, Pal::EncreDouce);
    t.Rectangle(W / 2 - bouche / 2, bas - 1, bouche, 3, Pal::Encre);
}

Toile Taniere(const Site& s, bool ours) {
    Toile t(s.W, s.H);
    const Rampe roche = Rampe_Entre(Melanger(Pal::Pierre[0], Pal::Terre[0], 0.3), Pal::PierreClaire[2]);
    Antre(t, s, ours ? 34 : 26, roche, ours ? 21 : 12);
    Arbre(t, 12, s.H - 30, 9, 5);
    Os_Epars(t, s.W / 2 - 20, s.H - 6);
    Os_Epars(t, s.W / 2 + 10, s.H - 4);
    if (ours) Buisson(t, s.W - 14, s.H - 12, 7, Pal::Feuillage, 8);
    return t;
}

void Tente(Toile& t, int cx, int yb, int w, const Rampe& drap) {
    Volume v = Tourelle(cx, yb, w, 4, Mur::Planches, Toit::Toile);
    v.teinteToit = drap;
    v.dp = w;
    Batir(t, v);
    t.Polygone({{cx - 2.0, yb + 0.0}, {cx + 2.0, yb + 0.0}, {cx + 0.0, yb - w * 0.6}}, Pal::Encre);
}

Toile Camp(const Site& s) {
    Toile t(s.W, s.H);
    const int avant = s.H - 6;
    Palissade(t, 8, s.W - 10, s.H * 35 / 100, 10);
    Tente(t, s.W / 2 - 22, s.H / 2 + 8, 26, Pal::DrapRouge);
    Tente(t, s.W / 2 + 24, s.H / 2 + 4, 22, Pal::DrapOcre);
    Tente(t, s.W / 2 + 2, s.H / 2 + 22, 30, Pal::DrapBrun);
    // A totem crowned with a skull, a fire.
    t.Rectangle(s.W / 2 - 34, avant - 40, 3, 30, Pal::Bois[1]);
    t.Ellipse(s.W / 2 - 32.5, avant - 42, 3, 2.6, Pal::Os[3]);
    t.Point(s.W / 2 - 34, avant - 42, Pal::Encre);
    t.Point(s.W / 2 - 31, avant - 42, Pal::Encre);
    t.Ellipse(s.W / 2 + 30, avant - 10, 4, 2, Pal::Pierre[1]);
    t.Ellipse(s.W / 2 + 30, avant - 12, 2, 2.4, Pal::Feu[2]);
    t.Point(s.W / 2 + 30, avant - 14, Pal::Feu[3]);
    Palissade_Cote(t, 4, s.H * 35 / 100 - 8, avant - 8);
    Palissade_Cote(t, s.W - 8, s.H * 35 / 100 - 8, avant - 8);
    Palissade(t, 4, s.W / 2 - 12, avant, 10);
    Palissade(t, s.W / 2 + 10, s.W - 6, avant, 10);
    return t;
}

void Tombe(Toile& t, int x, int y) {
    t.Rectangle(x, y - 7, 6, 7, Pal::Pierre[2]);
    t.Ellipse(x + 3, y - 7, 3, 2, Pal::Pierre[2]);
    t.Rectangle(x, y - 7, 1, 7, Pal::Pierre[3]);
    t.Ligne(x + 3, y - 7, x + 3, y - 3, Pal::Pierre[0]);
    t.Ligne(x + 2, y - 6, x + 4, y - 6, Pal::Pierre[0]);
    t.Rectangle(x - 1, y, 8, 2, Pal::Terre[1]);
}

void Arbre_Mort(Toile& t, int x, int y) {
    t.Trait(x, y, x, y - 16, 2.2, Pal::Bois[0]);
    t.Trait(x, y - 9, x - 6, y - 15, 1.2, Pal::Bois[0]);
    t.Trait(x, y - 12, x + 5, y - 19, 1.2, Pal::Bois[0]);
    t.Trait(x - 4, y - 13, x - 5, y - 18, 1.0, Pal::Bois[0]);
}

Toile Crypte(const Site& s) {
    Toile t(s.W, s.H);
    Volume crypte;
    crypte.x = s.W / 2 - 22;
    crypte.yb = s.H / 2 + 16;
    crypte.w = 44;
    crypte.hw = 18;
    crypte.dp = 22;
    crypte.mur = Mur::Pierre;
    crypte.toit = Toit::Ardoise;
    crypte.forme = Forme::Pignon;
    crypte.porte = s.W / 2;
    crypte.ouverture = true;
    Batir(t, crypte);
    t.Transformer([](int, int, Couleur c) { return Melanger(Desaturer(c, 0.5), Pal::DrapViolet[0], 0.2); });
    for (int i = 0; i < 4; ++i) Tombe(t, 10 + i * 26 + (i % 2) * 6, s.H - 6 - (i % 2) * 8);
    Arbre_Mort(t, 12, s.H / 2 + 6);
    Arbre_Mort(t, s.W - 12, s.H / 2);
    for (int x = 4; x < s.W - 4; x += 4) t.Ligne(x, s.H - 2, x, s.H - 8, Pal::Metal[0]);
    t.Ligne(4, s.H - 6, s.W - 5, s.H - 6, Pal::Metal[0]);
    return t;
}

Toile Volcan(const Site& s) {
    Toile t(s.W, s.H);
    const Rampe basalte = Rampe_Entre(Couleur{44, 34, 38}, Couleur{120, 100, 96});
    Antre(t, s, 30, basalte, 33);
    t.Transformer([&](int x, int y, Couleur c) {   // no grass: scorched rock
        return c.g > c.r + 10 ? basalte[1 + static_cast<int>(Hacher(x, y, 2) % 2)] : c;
    });
    // Streams of lava down the slopes, a glow at the mouth, a heap of gold.
    for (const auto& coulee : {std::pair<double, double>{0.3, -0.12}, std::pair<double, double>{0.72, 0.1}}) {
        double x = s.W * coulee.first, y = s.H * 0.28;
        for (int i = 0; i < 8; ++i) {
            const double nx = x + coulee.second * 9 + std::sin(i * 1.7) * 2.5, ny = y + s.H * 0.045;
            t.Trait(x, y, nx, ny, 2.4 - i * 0.15, Pal::Feu[1]);
            t.Trait(x, y, nx, ny, 1.0, i < 3 ? Pal::Feu[3] : Pal::Feu[2]);
            x = nx;
            y = ny;
        }
    }
    t.Ellipse(s.W / 2.0, s.H - 11, 10, 3, Pal::Feu[0]);
    t.Ellipse(s.W / 2.0 + 26, s.H - 7, 9, 4, Pal::Or[2]);
    for (int i = 0; i < 6; ++i) t.Point(s.W / 2 + 20 + i * 2, s.H - 9 + (i % 2), Pal::Or[3]);
    Os_Epars(t, s.W / 2 - 30, s.H - 5);
    return t;
}

Toile Tour_Sombre(const Site& s, const Rampe& drap) {
    Toile t(s.W, s.H);
    Volume tour = Tourelle(s.W / 2, s.H - 8, 40, 56, Mur::Roche, Toit::Ardoise, Forme::Fleche);
    tour.porte = s.W / 2;
    tour.baniere = 3;
    Batir(t, tour);
    Fanion(t, s.W / 2, tour.Faite() - 10, 9, drap, 0);
    return t;
}

Toile Repaire(const Site& s, const std::string& peuple) {
    if (Contient(peuple, {"loup", "chien"})) return Taniere(s, false);
    if (Contient(peuple, {"ours", "troll"})) return Taniere(s, true);
    if (Contient(peuple, {"gobelin", "orc", "kobold"})) return Camp(s);
    if (Contient(peuple, {"mort", "squelette", "spectre"})) return Crypte(s);
    if (Contient(peuple, {"dragon", "wyverne", "demon"})) return Volcan(s);
    return Tour_Sombre(s, Pal::DrapViolet);
}

}  // namespace

void Forger_Chateaux(Atelier& a) {
    const Site s{std::max<int>(Param.ChateauxLargeur, 32), std::max<int>(Param.ChateauxHauteur, 32)};
    for (int p = 0; p < Param.NombrePeuples; ++p) {
        const int lignes = p == 0 ? std::max<int>(Param.NombreEpoques, 1) : 1;
        Toile planche(s.W, lignes * s.H);
        for (int l = 0; l < lignes; ++l) {
            // Five looks of castle: more epochs share them, fewer pick among them.
            const int look = lignes == 5 ? l : (lignes < 5 ? l * 4 / std::max(lignes - 1, 1) : l * 5 / lignes);
            Toile cellule = p == 0 ? Chateau_Humain(s, look) : Repaire(s, Plier(Param.Peuples_Nom(p)));
            cellule.Contourner(Pal::Encre);
            planche.Coller(cellule, 0, l * s.H);
        }
        char nom[32];
        std::snprintf(nom, sizeof nom, "Batiments/Chateaux-%04d.bmp", p + 1);
        a.Ecrire(nom, planche);
    }
}

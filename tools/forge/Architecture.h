// Walls, roofs and the volumes they make, seen from above and the south (three-quarter
// view): a volume shows its front wall and, above it, its roof. Houses, castles and lairs
// are built of these.
#pragma once

#include <functional>
#include <vector>

#include "Pinceau.h"

enum class Mur { Rondins, Torchis, Colombage, Pierre, Brique, Taille, Planches, Roche };
enum class Toit { Chaume, Bardeaux, Tuiles, Ardoise, Cuivre, Dore, Toile, Aucun };
enum class Forme {
    Long,       // ridge left to right: the front slope and a strip of the back one
    Pignon,     // gable to the front: a triangle of wall and the two slopes going back
    Tour,       // round, with a cone
    Dome,       // round, with a dome
    Fleche,     // round, with a tall spire
    Plat,       // flat top behind battlements
    Appentis,   // a single slope leaning on the back
};

struct Volume {
    int x = 0, yb = 0;        // left edge, ground line of the front wall
    int w = 20, hw = 10;      // width, height of the front wall
    int dp = 12;              // how far the roof reaches back (its height on the picture)
    Mur mur = Mur::Torchis;
    Toit toit = Toit::Chaume;
    Forme forme = Forme::Long;
    Rampe teinteToit{};       // used for Toit::Toile (a tent's cloth)
    int porte = -1;           // centre of the door, from the left edge of the picture; -1 none
    bool ouverture = false;   // the door is a dark opening under timbers (a mine, a barn)
    int fenetres = 0;         // windows along the front wall
    bool fenetresEclairees = false;
    bool cheminee = false;
    bool creneaux = false;    // battlements on top of the wall
    int baniere = -1;         // a banner hanging from the wall's centre (index into Pal cloths), -1 none
    uint32_t graine = 1;

    int Haut_Mur() const { return yb - hw; }
    int Centre() const { return x + w / 2; }
    // Top of the chimney, when there is one (for the smoke).
    Point2 Sommet_Cheminee() const;
    // The highest point of the roof.
    int Faite() const;
};

// Paints the volume on the canvas: roof, wall, door, windows, chimney.
void Batir(Toile& t, const Volume& v);

// Colour of a wall or roof material at a point of its face (u across, v down).
Couleur Texture_Mur(Mur m, int u, int v, int largeur, int hauteur, uint32_t graine);
Couleur Texture_Toit(Toit m, int u, int v, bool arriere, uint32_t graine, const Rampe& teinte);

// A polygon painted pixel by pixel with a colour function of the picture's coordinates.
void Peindre(Toile& t, const std::vector<Point2>& sommets, const std::function<Couleur(int x, int y)>& couleur);

// Small things around houses.
void Tas_De_Bois(Toile& t, int x, int y);            // three logs, ends to the front
void Blocs_De_Pierre(Toile& t, int x, int y, const Rampe& r);
void Tonneau(Toile& t, int x, int y);
void Caisse(Toile& t, int x, int y);
void Sac(Toile& t, int x, int y, const Rampe& r);
void Botte_De_Foin(Toile& t, int x, int y);
void Cloture(Toile& t, int x0, int x1, int y);       // a rail fence left to right
void Buisson(Toile& t, double cx, double cy, double r, const Rampe& feuilles, uint32_t graine);
void Arbre(Toile& t, double cx, double cy, double r, uint32_t graine);
void Enseigne(Toile& t, int x, int y, const Rampe& fond, const std::function<void(Toile&, int, int)>& motif);
void Fanion(Toile& t, int x, int y, int hauteur, const Rampe& drap, int phase);
void Fumee(Toile& t, Point2 depart, int phase, const Rampe& teinte);

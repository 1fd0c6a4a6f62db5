// What lies at a spot of the world, as one character sees it: the test shared by the mouse
// pointer, the placing of buildings and the placing of deposits. With a size it tests a box,
// and 0 then means the place is free.
//
// Things are tried by group, in this order: enemy characters, castles, houses, deposits.
// Inside a group the first hit in index order decides; the first group with a hit gives the
// answer. Every box is given by its top left corner and its size, edges included.
#pragma once

#include <cstdint>

// Index of the thing found by the last Tester_Point asked to remember it.
extern int32_t CibleSousPoint;

// Answers of Tester_Point, also the pointer's mode.
inline constexpr int32_t PointRien = 0;
inline constexpr int32_t PointGisement = 1;
inline constexpr int32_t PointMaisonAReparer = 4;        // own house, unfinished or damaged
inline constexpr int32_t PointMaisonEntiere = 5;         // own house, finished and whole
inline constexpr int32_t PointChateauPropre = 6;
inline constexpr int32_t PointMaisonAmieCommerce = 7;    // a team house that trades or serves
inline constexpr int32_t PointChateauAmi = 8;
inline constexpr int32_t PointEnnemi = 9;
inline constexpr int32_t PointMaisonEnnemie = 10;
inline constexpr int32_t PointChateauEnnemi = 11;
inline constexpr int32_t PointMaisonAmieService1 = 12;
inline constexpr int32_t PointMaisonAmieVide = 999;      // a team house with nothing to offer

inline constexpr int32_t LargeurGisement = 32;
inline constexpr int32_t HauteurGisement = 32;

// Whether two boxes overlap, edges included; a box of size 0 × 0 is a point.
bool Rectangles_Touchent(int32_t x1, int32_t y1, int32_t x2, int32_t y2, int32_t l1, int32_t h1, int32_t l2, int32_t h2);

// What lies in the box (x, y, largeur, hauteur) for character i; with memoriser, the index
// of the thing found goes to CibleSousPoint (left alone when nothing is found).
int32_t Tester_Point(int32_t i, int32_t x, int32_t y, int32_t largeur, int32_t hauteur, bool memoriser);

// The pieces of the test, shared with IndexTestPoint so that both answer alike.
enum class GroupePoint : int32_t { Persos = 0, Chateaux = 1, Maisons = 2, Gisements = 3 };
inline constexpr GroupePoint GroupesPoint[] = {GroupePoint::Persos, GroupePoint::Chateaux, GroupePoint::Maisons,
                                               GroupePoint::Gisements};

// The one who looks: index, team and fief; -1 for a character that does not exist.
struct Observateur {
    int32_t Numero = -1;
    int32_t Equipe = -1;
    int32_t Fief = -1;
};
Observateur Observateur_De(int32_t i);

struct BoitePoint {
    int32_t X = 0, Y = 0, Largeur = 0, Hauteur = 0;
};

// Things in a group, and the box of thing k.
int32_t Nombre_Dans(GroupePoint g);
BoitePoint Boite_De(GroupePoint g, int32_t k);
// Whether thing k can be found at all: an enemy that can be struck, a building that stands,
// any deposit.
bool Compte_Pour(GroupePoint g, int32_t k, const Observateur& o);
// The answer when thing k is found.
int32_t Code_De(GroupePoint g, int32_t k, const Observateur& o);
// Whether thing k counts and its box touches the given one.
bool Trouve_Dans(GroupePoint g, int32_t k, const Observateur& o, const BoitePoint& boite);

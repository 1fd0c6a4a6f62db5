// While the thoughts of a tick run, the searches, the charges and the house counts read an
// index instead of walking every candidate. Opening it takes a picture (PhotoRecherches.h)
// of what no thought changes: where every character and house stands, the teams and fiefs,
// what kind each house is. The rest (alive, in the open, standing, finished, stocked) is
// read from the record of each candidate the index proposes, so what a thought changes there
// is seen by the next search at once; and a house that Creer rebuilds meanwhile
// (MaisonsCreees) is looked at directly until the next picture.
//
// Every answer, cursor and radius is thus the one of the plain walk: the index only leaves
// out what cannot qualify. Characters move, arrays grow and teams change between the ticks'
// thoughts only, and a new picture is taken at the next opening; an array that grows while
// the index is open closes it. Outside an open index (key commands, scenarios, tests) the
// searches walk the arrays one by one.
#pragma once

#include <cstdint>

class ClsJeuPerso;
struct Course;

// Opens the index for the thoughts of one tick, closes it at the end of its scope.
class TourDeRecherches {
public:
    TourDeRecherches();
    ~TourDeRecherches();
    TourDeRecherches(const TourDeRecherches&) = delete;
    TourDeRecherches& operator=(const TourDeRecherches&) = delete;
};

// Open, and on arrays of the size it pictured.
bool Index_Ouvert();

// The first index of [debut, fin) that qualifies within rayon, as the searches of the same
// names define it; -1 when none.
int32_t Index_Premier_Ennemi(const ClsJeuPerso& p, int32_t debut, int32_t fin, int32_t rayon);
int32_t Index_Premier_Maison_Ennemie(const ClsJeuPerso& p, int32_t debut, int32_t fin, int32_t rayon);
// For an errand of a character of fief `fief` standing at (x, y).
int32_t Index_Premier_Maison(const Course& c, int32_t fief, int32_t x, int32_t y, int32_t debut, int32_t fin,
                             int32_t rayon);
// Tester_Point(i, x, y, largeur, hauteur) gives 0.
bool Index_Place_Libre(int32_t i, int32_t x, int32_t y, int32_t largeur, int32_t hauteur);
// The targets of Attaquer_Perso_Proche and Attaquer_Maison_Proche; -1 when none.
// The first deposit in index order giving resource type (0 or more) whose place lies within
// rayon of (x, y); -1 when none.
int32_t Index_Premier_Gisement(int32_t type, int32_t x, int32_t y, int32_t rayon);
int32_t Index_Ennemi_Le_Plus_Proche(const ClsJeuPerso& p);
int32_t Index_Maison_Ennemie_La_Plus_Proche(const ClsJeuPerso& p);
// Compter_Maisons_Type (for a type of 0 or more) and Compter_Maisons_Fief.
int32_t Index_Compter_Maisons_Type(int32_t type, int32_t fief);
int32_t Index_Compter_Maisons_Fief(int32_t fief);

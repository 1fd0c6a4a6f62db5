// What makes a candidate of each search: one definition read both by the plain walks and by
// the index of the searches, so that the two can only ever agree.
#pragma once

#include <cstdint>

class ClsJeuBatiment;
class ClsJeuPerso;

// Straight-line distance between two points of the world, in metres.
double Distance(int32_t x1, int32_t y1, int32_t x2, int32_t y2);

// Character k, castle k, house k as a target for p, whatever the distance: of another team
// and standing (a character that can be struck, a building that stands).
bool Perso_Ennemi(const ClsJeuPerso& p, int32_t k);
bool Chateau_Ennemi(const ClsJeuPerso& p, int32_t k);
bool Maison_Ennemie(const ClsJeuPerso& p, int32_t k);
// The same, nearer to p than rayon (to the corner of a building).
bool Perso_Ennemi_A_Portee(const ClsJeuPerso& p, int32_t k, int32_t rayon);
bool Chateau_Ennemi_A_Portee(const ClsJeuPerso& p, int32_t k, int32_t rayon);
bool Maison_Ennemie_A_Portee(const ClsJeuPerso& p, int32_t k, int32_t rayon);

// The errand of Chercher_Maison, and the row of its table that decides: the first that
// applies among a service, objects (besoin 5), a resource, food for gauge 1 to 4.
struct Course {
    enum class Ligne : int8_t { Service, Objets, Ressource, Nourriture, Aucune };

    int16_t Ressource = 0, Besoin = 0, Service = 0;

    Ligne Ligne_Decisive() const;
};

// The part of the errand that depends on the kind of house alone: its type and what it
// does, as stored in the house.
bool Genre_Convient(const Course& c, int16_t type, bool magasin, bool fabrique, int16_t service);
// House b, seen from (x, y) by a character of fief `fief` with rayon as RayonMaison:
// everything the errand asks of it. proprietaire is the fief of its owner.
bool Maison_Convient(const Course& c, const ClsJeuBatiment& b, int32_t proprietaire, int32_t fief, int32_t x,
                     int32_t y, int32_t rayon);

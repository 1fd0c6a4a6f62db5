// Tester_Point without walking every array: a grid of 64 × 64 buckets over the map, each
// listing the things whose box reaches it. Things beyond the map fall in the edge buckets.
//
// It answers exactly as Tester_Point does for the world as it was when built. After a thing
// moves or changes size, Actualiser lists it at its new place; the entry left at the old
// place is harmless, since every candidate is checked against its record at query time.
#pragma once

#include <cstdint>
#include <vector>

#include "ai/TestPoint.h"

class IndexTestPoint {
public:
    static constexpr int32_t TailleSeau = 64;

    // Lists every character, castle, house and deposit of the world.
    void Construire();
    void Actualiser(GroupePoint g, int32_t k);
    int32_t Tester_Point(int32_t i, int32_t x, int32_t y, int32_t largeur, int32_t hauteur, bool memoriser) const;

private:
    struct Entree {
        GroupePoint Groupe;
        int32_t Numero;
    };
    struct Plage {
        int32_t colonne0, colonne1, ligne0, ligne1;
    };
    Plage Seaux_De(const BoitePoint& b) const;

    int32_t colonnes_ = 1, lignes_ = 1;
    std::vector<std::vector<Entree>> seaux_;
};

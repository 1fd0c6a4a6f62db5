// Peopling a new world once its terrain is drawn (ClsJeuMonde::Generer_Monde): castles spread
// across the map, deposits thrown on free ground, everyone put at their castle. A new world
// runs the three in that order; a battle only places deposits.
//
// On a map too small for what was asked, what does not fit is dropped and counted in
// Abandons, and every loop still ends.
#pragma once

#include <cstdint>

struct AbandonsGeneration {
    int32_t Chateaux = 0;    // fiefs left without a castle
    int32_t Gisements = 0;   // deposits taken out of Ressources
};
// What the last set-up dropped.
extern AbandonsGeneration Abandons;

// Castle f of every fief at a site of Repartir_Points, topmost site first, nine cells clear of
// the bottom and right edges, at full health. Returns the castles that found no site; their
// slots stay empty.
int32_t Placer_Chateaux();
// Every deposit on a 32 × 32 box that touches nothing already standing, of a type drawn at
// random. A deposit that finds no such place after many draws is removed; returns how many.
int32_t Placer_Ressources();
// Every character at the centre of its fief's castle, inside it; half the human villagers
// are women.
void Placer_Persos();

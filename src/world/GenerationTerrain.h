// The terrain of a new world: scattered patches grown from seeds, then shaped into tiles by
// their neighbours. Each step walks the grid in index order and updates it in place.
// Neighbours are read through Lire_Case, so whatever lies outside the grid counts as patch:
// patches grow inward from the top and bottom of the map. Left and right have no such edge,
// since the neighbour of a row's last cell is the next row's first.
#pragma once

#include <cstdint>

class ClsJeuMonde;

inline constexpr int32_t ToursCroissance = 14;

// About one cell in a thousand becomes a seed (1); the last cell stays open ground.
void Semer_Terrain(ClsJeuMonde& monde);
// One round of growth: an open cell next to a patch by a side may join it, with a chance
// of 15 per side neighbour and 10 per diagonal one, out of 100.
void Pousser_Terrain(ClsJeuMonde& monde);
// Every cell still to shape takes the tile of its side neighbours; an isolated one vanishes.
void Faconner_Terrain(ClsJeuMonde& monde);

// Tile of a patch cell by which side neighbours are patch too.
int32_t Tuile_Faconnee(bool nord, bool sud, bool ouest, bool est);

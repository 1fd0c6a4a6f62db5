// The terrain grid: the look of the ground, in cells of 16 × 16 metres. No rule of movement,
// building or combat reads it; it is scenery, and the world is open ground everywhere.
//
// Cell (x, y) has index y × Largeur + x, with no border: the cell left of column 0 is the
// last of the row before. Cases holds more than Largeur × Hauteur cells (a generated world
// has (Hauteur + 1) × (Largeur + 1)); the spare cells are saved but never drawn.
// Tile values: 0 open ground, 1 a patch not yet shaped (only while generating), 2 to 16 a
// patch cell shaped by its neighbours.
#pragma once

#include <cstdint>
#include <vector>

#include "rules/Empreinte.h"

// Side of a cell in metres, whatever the size of the tile pictures.
inline constexpr int32_t TailleCase = 16;

class ClsJeuMonde {
public:
    int32_t Largeur = 0;   // in cells
    int32_t Hauteur = 0;

    static constexpr int32_t TerrainLibre = 0;
    static constexpr int32_t TerrainAFaconner = 1;

    // Draws a new terrain: seeds, growth and shaping (GenerationTerrain.cpp).
    void Generer_Monde();
    // Cells 0 to borne, all open ground.
    void Dimensionner(int32_t borne);

    // Index of the cell at column x, row y.
    int32_t Indice_Case(int32_t x, int32_t y) const { return y * Largeur + x; }

    // Value of cell i, without a bounds check.
    int32_t Type_Terrain(int32_t i) const { return Cases[static_cast<std::size_t>(i)]; }
    // Stores v in cell i (i at least 0); past the end the grid first grows to i, keeping its
    // cells. World files rebuild the grid this way, cell by cell.
    void Type_Terrain(int32_t i, int32_t v);

    // The map's diagonal in metres, rounded.
    int32_t Longueur_Diagonale() const;
    int32_t NombreCases() const { return static_cast<int32_t>(Cases.size()); }

    // For the generator's neighbour tests: as Type_Terrain, but a cell outside the grid reads
    // as a patch still to shape, so the edges of the map count as patch.
    int32_t Lire_Case(int32_t i) const;

    void Empreindre(Empreinte& e) const {
        e.Ajouter(Largeur);
        e.Ajouter(Hauteur);
        e.Ajouter(Cases);
    }

private:
    std::vector<int32_t> Cases = std::vector<int32_t>(1, TerrainLibre);
};

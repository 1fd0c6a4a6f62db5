// The castle sites of a new world: points drawn at random on distinct cells of a grid, then
// pushed apart until no two lie closer than a wanted spacing, measured as the sum of the row
// and the column distance, or until 5000 rounds have passed.
//
// Every loop here ends: a point that finds no free cell is dropped and counted, and a draw
// that keeps missing the last free cells falls back on the first free one in reading order.
#pragma once

#include <cstdint>
#include <vector>

struct PointCarte {
    int32_t a = 0;   // row
    int32_t b = 0;   // column
    bool operator==(const PointCarte&) const = default;
};

// A boolean grid with rows AMin to AMax and columns BMin to BMax, edges included. Outside it,
// every cell reads as free and a write does nothing.
class CartePoints {
public:
    CartePoints(int32_t aMin, int32_t aMax, int32_t bMin, int32_t bMax);

    int32_t AMin, AMax, BMin, BMax;

    bool Dedans(int32_t a, int32_t b) const { return a >= AMin && a <= AMax && b >= BMin && b <= BMax; }
    bool Occupee(int32_t a, int32_t b) const { return Dedans(a, b) && cases_[Indice(a, b)] != 0; }
    void Marquer(int32_t a, int32_t b, bool occupee);

    // A draw reaches rows AMin to AMax - 1 (AMin alone when both are equal), and columns
    // likewise; this counts those cells.
    int64_t Cases_Tirables() const;

private:
    std::size_t Indice(int32_t a, int32_t b) const {
        return static_cast<std::size_t>(a - AMin) * static_cast<std::size_t>(BMax - BMin + 1) +
               static_cast<std::size_t>(b - BMin);
    }
    std::vector<uint8_t> cases_;
};

inline constexpr int32_t ToursEcartementMax = 5000;

struct Repartition {
    CartePoints Carte;
    std::vector<PointCarte> Points;   // in the order they were drawn
    int32_t Tours = 0;                // rounds of spreading done
    int32_t Abandonnes = 0;           // points that found no free cell
};

// Draws nombre points on free cells and marks them; stops early, with fewer points, when the
// cells a draw can reach are all taken.
std::vector<PointCarte> Tirer_Points(CartePoints& carte, int32_t nombre);
// Spreads the points, moving them on the map; returns the rounds done. One point or none
// needs no spreading (the spacing divides by the number of points less one).
int32_t Ecarter_Points(CartePoints& carte, std::vector<PointCarte>& points);
// The grid of n well spread points.
Repartition Repartir_Points(int32_t aMin, int32_t aMax, int32_t bMin, int32_t bMax, int32_t nombre);

// Wanted spacing between n points (n at least 2): the grid's row and column spans shared
// out, plus 5.
int32_t Ecart_Voulu(const CartePoints& carte, int32_t n);
// How many points other than point i lie at a distance below ecart from cell (a, b). The
// count walks the points, or the cells around (a, b) when they are fewer.
int32_t Compter_Voisins(const CartePoints& carte, const std::vector<PointCarte>& points, int32_t i, int32_t a,
                        int32_t b, int32_t ecart);
// The same count, by the points only.
int32_t Compter_Voisins_Par_Points(const std::vector<PointCarte>& points, int32_t i, int32_t a, int32_t b,
                                   int32_t ecart);

#include "world/RepartitionPoints.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "rules/Conversions.h"
#include "rules/Hasard.h"

namespace {

// After this many missed draws the last free cells are found by a walk instead.
constexpr int32_t EssaisTirage = 1'000'000;

double Tirage() { return static_cast<double>(Rnd()); }

// How many values a draw Int(Rnd × (max - min) + min) can give inside min … max.
int64_t Valeurs_Tirables(int32_t min, int32_t max) {
    if (max < min) return 0;
    return std::max<int64_t>(static_cast<int64_t>(max) - min, 1);
}

int32_t Tirer_Entre(int32_t min, int32_t max) {
    return static_cast<int32_t>(Int(Tirage() * (static_cast<double>(max) - min) + min));
}

// The first free cell a draw could have reached, in reading order.
std::optional<PointCarte> Premiere_Case_Libre(const CartePoints& carte) {
    const int64_t lignes = Valeurs_Tirables(carte.AMin, carte.AMax);
    const int64_t colonnes = Valeurs_Tirables(carte.BMin, carte.BMax);
    for (int64_t da = 0; da < lignes; ++da)
        for (int64_t db = 0; db < colonnes; ++db) {
            const PointCarte p{static_cast<int32_t>(carte.AMin + da), static_cast<int32_t>(carte.BMin + db)};
            if (!carte.Occupee(p.a, p.b)) return p;
        }
    return std::nullopt;
}

// A free cell at random: a row, then a column, drawn again while the cell is taken.
std::optional<PointCarte> Tirer_Case_Libre(const CartePoints& carte) {
    if (carte.Cases_Tirables() == 0) return std::nullopt;
    for (int32_t essai = 0; essai < EssaisTirage; ++essai) {
        const int32_t a = Tirer_Entre(carte.AMin, carte.AMax);
        const int32_t b = Tirer_Entre(carte.BMin, carte.BMax);
        if (!carte.Occupee(a, b)) return PointCarte{a, b};
    }
    return Premiere_Case_Libre(carte);
}

int32_t Distance(int32_t a1, int32_t b1, int32_t a2, int32_t b2) { return std::abs(a1 - a2) + std::abs(b1 - b2); }

// The count by the cells: the marked cells of the diamond of radius ecart - 1 around
// (a, b), less point i's own cell. Points always stand on distinct marked cells.
int32_t Compter_Voisins_Par_Cases(const CartePoints& carte, const PointCarte& soi, int32_t a, int32_t b,
                                  int32_t ecart) {
    const int32_t r = ecart - 1;
    int32_t n = 0;
    for (int32_t la = std::max(a - r, carte.AMin); la <= std::min(a + r, carte.AMax); ++la) {
        const int32_t reste = r - std::abs(la - a);
        for (int32_t lb = std::max(b - reste, carte.BMin); lb <= std::min(b + reste, carte.BMax); ++lb)
            if (carte.Occupee(la, lb)) ++n;
    }
    if (Distance(soi.a, soi.b, a, b) < ecart) --n;
    return n;
}

// One point's turn in a round of spreading. False when it had no neighbour.
bool Ecarter_Point(CartePoints& carte, std::vector<PointCarte>& points, std::vector<PointCarte>& anciens,
                   std::size_t i, int32_t ecart) {
    const PointCarte p = points[i];
    const auto n = static_cast<int32_t>(points.size());
    const auto numero = static_cast<int32_t>(i);
    if (Compter_Voisins(carte, points, numero, p.a, p.b, ecart) == 0) return false;

    // The least crowded free cell around, ties broken by a draw; the borders of the map
    // (row AMin, column BMin) are never chosen.
    std::optional<PointCarte> candidat;
    int32_t meilleur = n;
    for (int32_t da = -1; da <= 1; ++da)
        for (int32_t db = -1; db <= 1; ++db) {
            const int32_t a = p.a + da, b = p.b + db;
            const int32_t voisins = Compter_Voisins(carte, points, numero, a, b, ecart);
            if (voisins > meilleur || a <= carte.AMin || a > carte.AMax || b <= carte.BMin || b > carte.BMax)
                continue;
            const double tirage = Tirage();
            if (!carte.Occupee(a, b) && (voisins < meilleur || (voisins == meilleur && tirage < 0.5))) {
                candidat = PointCarte{a, b};
                meilleur = voisins;
            }
        }
    if (!candidat) return true;

    // The step to the candidate is taken only when the former position lies exactly two rows
    // down and one column right; otherwise the point jumps anywhere free.
    carte.Marquer(p.a, p.b, false);
    PointCarte nouveau = p;
    if (anciens[i] == PointCarte{p.a + 2, p.b + 1})
        nouveau = *candidat;
    else
        nouveau = Tirer_Case_Libre(carte).value_or(p);
    anciens[i] = p;
    points[i] = nouveau;
    carte.Marquer(nouveau.a, nouveau.b, true);
    return true;
}

}  // namespace

CartePoints::CartePoints(int32_t aMin, int32_t aMax, int32_t bMin, int32_t bMax)
    : AMin(aMin), AMax(aMax), BMin(bMin), BMax(bMax) {
    if (aMax >= aMin && bMax >= bMin)
        cases_.assign(static_cast<std::size_t>(aMax - aMin + 1) * static_cast<std::size_t>(bMax - bMin + 1), 0);
}

void CartePoints::Marquer(int32_t a, int32_t b, bool occupee) {
    if (Dedans(a, b)) cases_[Indice(a, b)] = occupee ? 1 : 0;
}

int64_t CartePoints::Cases_Tirables() const { return Valeurs_Tirables(AMin, AMax) * Valeurs_Tirables(BMin, BMax); }

std::vector<PointCarte> Tirer_Points(CartePoints& carte, int32_t nombre) {
    std::vector<PointCarte> points;
    for (int32_t i = 0; i < nombre; ++i) {
        const std::optional<PointCarte> p = Tirer_Case_Libre(carte);
        if (!p) break;
        carte.Marquer(p->a, p->b, true);
        points.push_back(*p);
    }
    return points;
}

int32_t Ecart_Voulu(const CartePoints& carte, int32_t n) {
    const double etendue = (static_cast<double>(carte.AMax) - carte.AMin) + (static_cast<double>(carte.BMax) - carte.BMin);
    return static_cast<int32_t>(Arrondir(Int(etendue / (n - 1)) + 5));
}

int32_t Compter_Voisins_Par_Points(const std::vector<PointCarte>& points, int32_t i, int32_t a, int32_t b,
                                   int32_t ecart) {
    int32_t n = 0;
    for (std::size_t j = 0; j < points.size(); ++j)
        if (static_cast<int32_t>(j) != i && Distance(a, b, points[j].a, points[j].b) < ecart) ++n;
    return n;
}

int32_t Compter_Voisins(const CartePoints& carte, const std::vector<PointCarte>& points, int32_t i, int32_t a,
                        int32_t b, int32_t ecart) {
    const int64_t r = ecart - 1;
    const int64_t cases = 2 * r * r + 2 * r + 1;
    if (r < 0 || cases >= static_cast<int64_t>(points.size())) return Compter_Voisins_Par_Points(points, i, a, b, ecart);
    return Compter_Voisins_Par_Cases(carte, points[static_cast<std::size_t>(i)], a, b, ecart);
}

int32_t Ecarter_Points(CartePoints& carte, std::vector<PointCarte>& points) {
    const auto n = static_cast<int32_t>(points.size());
    if (n < 2) return 0;
    const int32_t ecart = Ecart_Voulu(carte, n);
    std::vector<PointCarte> anciens(points.size());
    for (int32_t tour = 1; tour <= ToursEcartementMax; ++tour) {
        bool change = false;
        for (std::size_t i = 0; i < points.size(); ++i)
            if (Ecarter_Point(carte, points, anciens, i, ecart)) change = true;
        if (!change) return tour;
    }
    return ToursEcartementMax;
}

Repartition Repartir_Points(int32_t aMin, int32_t aMax, int32_t bMin, int32_t bMax, int32_t nombre) {
    Repartition r{CartePoints(aMin, aMax, bMin, bMax), {}, 0, 0};
    r.Points = Tirer_Points(r.Carte, nombre);
    r.Abandonnes = std::max(nombre, 0) - static_cast<int32_t>(r.Points.size());
    r.Tours = Ecarter_Points(r.Carte, r.Points);
    return r;
}

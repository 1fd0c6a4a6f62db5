#include "world/GenerationTerrain.h"

#include "rules/Hasard.h"
#include "world/ClsJeuMonde.h"

namespace {

double Tirage() { return static_cast<double>(Rnd()); }

bool Est_A_Faconner(const ClsJeuMonde& monde, int32_t k) {
    return monde.Lire_Case(k) == ClsJeuMonde::TerrainAFaconner;
}

// Chance out of 100 that open cell k joins a patch: 15 per side neighbour still to shape,
// then, only if there is one, 10 per diagonal neighbour.
int32_t Score_Croissance(const ClsJeuMonde& monde, int32_t k) {
    const int32_t l = monde.Largeur;
    int32_t s = 0;
    for (int32_t voisin : {k - l, k + l, k - 1, k + 1})
        if (Est_A_Faconner(monde, voisin)) s += 15;
    if (s == 0) return 0;
    for (int32_t voisin : {k - l - 1, k - l + 1, k + l - 1, k + l + 1})
        if (Est_A_Faconner(monde, voisin)) s += 10;
    return s;
}

}  // namespace

void Semer_Terrain(ClsJeuMonde& monde) {
    const int32_t derniere = monde.NombreCases() - 1;
    for (int32_t k = 0; k < derniere; ++k)
        monde.Type_Terrain(k, Tirage() * 1000 >= 999 ? ClsJeuMonde::TerrainAFaconner : ClsJeuMonde::TerrainLibre);
}

void Pousser_Terrain(ClsJeuMonde& monde) {
    const int32_t n = monde.NombreCases();
    for (int32_t k = 0; k < n; ++k) {
        if (monde.Type_Terrain(k) != ClsJeuMonde::TerrainLibre) continue;
        const int32_t s = Score_Croissance(monde, k);
        if (s > Tirage() * 100) monde.Type_Terrain(k, ClsJeuMonde::TerrainAFaconner);
    }
}

int32_t Tuile_Faconnee(bool nord, bool sud, bool ouest, bool est) {
    // Indexed by N + 2 S + 4 W + 8 E.
    static constexpr int32_t Tuiles[16] = {0, 4, 3, 7, 6, 16, 14, 12, 5, 15, 13, 11, 8, 10, 9, 2};
    return Tuiles[(nord ? 1 : 0) + (sud ? 2 : 0) + (ouest ? 4 : 0) + (est ? 8 : 0)];
}

void Faconner_Terrain(ClsJeuMonde& monde) {
    const int32_t n = monde.NombreCases();
    const int32_t l = monde.Largeur;
    auto compte = [&](int32_t k) { return monde.Lire_Case(k) != ClsJeuMonde::TerrainLibre; };
    for (int32_t k = 0; k < n; ++k) {
        if (monde.Type_Terrain(k) != ClsJeuMonde::TerrainAFaconner) continue;
        monde.Type_Terrain(k, Tuile_Faconnee(compte(k - l), compte(k + l), compte(k - 1), compte(k + 1)));
    }
}

void ClsJeuMonde::Generer_Monde() {
    auto rangs = [](int32_t n) { return n < 0 ? int64_t{0} : static_cast<int64_t>(n) + 1; };
    Dimensionner(static_cast<int32_t>(rangs(Hauteur) * rangs(Largeur)));
    Semer_Terrain(*this);
    for (int32_t tour = 0; tour < ToursCroissance; ++tour) Pousser_Terrain(*this);
    Faconner_Terrain(*this);
}

#include <optional>

#include "ai/IndexTestPoint.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"
#include "world/Globales.h"
#include "world/ModGenererMonde.h"

namespace {

// Draws before a deposit is given up: far beyond what a map with room left needs.
constexpr int32_t EssaisGisement = 10'000;

struct Place {
    int32_t x, y;
};

// A free 32 × 32 box at random on the map, as character 0 sees it.
std::optional<Place> Chercher_Place(const IndexTestPoint& index, int32_t etendueX, int32_t etendueY) {
    for (int32_t essai = 0; essai < EssaisGisement; ++essai) {
        const auto x = Arrondir_En<int32_t>(static_cast<double>(Rnd()) * etendueX);
        const auto y = Arrondir_En<int32_t>(static_cast<double>(Rnd()) * etendueY);
        if (index.Tester_Point(0, x, y, LargeurGisement, HauteurGisement, false) == PointRien) return Place{x, y};
    }
    return std::nullopt;
}

// A deposit type at random; the rounding gives the first and the last a half share, and the
// value past the last goes to type 0.
int32_t Tirer_Type_Gisement() {
    const int32_t n = Param.NombreTerrainRessource;
    const auto t = Arrondir_En<int32_t>(static_cast<double>(Rnd()) * n);
    return t >= n ? 0 : t;
}

void Poser_Gisement(ClsJeuRessources& r, const Place& p, int32_t t) {
    r.PositionX = p.x;
    r.PositionY = p.y;
    r.Nom = Param.TerrainRessources_Nom(t);
    r.TypeTerrain = t;
    r.TypeRessource = Param.TerrainRessources_TypeRessource(t);
    r.QuantiteDepart = Param.TerrainRessources_Quantite(t);
    r.Quantite = r.QuantiteDepart;
}

}  // namespace

int32_t Placer_Ressources() {
    const int32_t etendueX = Monde.Largeur * TailleCase - LargeurGisement;
    const int32_t etendueY = Monde.Hauteur * TailleCase - HauteurGisement;
    const bool possible = etendueX >= 0 && etendueY >= 0 && Param.NombreTerrainRessource > 0;
    IndexTestPoint index;
    index.Construire();
    std::vector<bool> pose(Ressources.size(), false);
    for (std::size_t i = 0; i < Ressources.size() && possible; ++i) {
        const std::optional<Place> p = Chercher_Place(index, etendueX, etendueY);
        if (!p) continue;
        Poser_Gisement(Ressources[i], *p, Tirer_Type_Gisement());
        index.Actualiser(GroupePoint::Gisements, static_cast<int32_t>(i));
        pose[i] = true;
    }
    std::vector<ClsJeuRessources> gardes;
    for (std::size_t i = 0; i < Ressources.size(); ++i)
        if (pose[i]) gardes.push_back(std::move(Ressources[i]));
    const auto abandons = static_cast<int32_t>(Ressources.size() - gardes.size());
    Ressources = std::move(gardes);
    return abandons;
}

// A place to build around the castle. Each fief's builders share one ring: it grows by a
// tile at every try and stays grown until something is placed, then falls back to the
// castle's width.
#include "ai/Recherches.h"
#include "ai/TablesIA.h"
#include "ai/TestPoint.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"
#include "world/Globales.h"

namespace {

constexpr int32_t EssaisEmplacement = 11;

double Tirage() { return static_cast<double>(Rnd()); }

// One coordinate drawn in the ring on one axis: the castle starts at debut and measures
// taille, the world has `cases` tiles and the building measures `batiment`. A draw beyond
// an edge falls back within a tile of that edge.
int32_t Coordonnee(int32_t debut, int32_t taille, int32_t cases, int32_t batiment, int32_t anneau) {
    int32_t v = Arrondir_En<int32_t>(Tirage() * (taille + 2.0 * anneau) + debut - anneau);
    if (v < 0) v = Arrondir_En<int32_t>(Tirage() * TailleCase);
    const int32_t limite = cases * TailleCase - batiment;
    if (v > limite) v = Arrondir_En<int32_t>(limite - Tirage() * TailleCase);
    return v;
}

}  // namespace

bool Chercher_Emplacement(int32_t i, int32_t& x, int32_t& y, int16_t type) {
    const int32_t f = Persos[static_cast<std::size_t>(i)].Fief;
    const ClsJeuBatiment& c = Chateaux[static_cast<std::size_t>(f)];
    const int32_t largeur = Param.Batiment_Largeur(type), hauteur = Param.Batiment_Hauteur(type);
    int32_t& anneau = RayonPlacementFief[static_cast<std::size_t>(f)];
    for (int32_t essai = 0; essai < EssaisEmplacement; ++essai) {
        anneau += TailleCase;
        x = Coordonnee(c.PositionX, Param.ChateauxLargeur, Monde.Largeur, largeur, anneau);
        y = Coordonnee(c.PositionY, Param.ChateauxHauteur, Monde.Hauteur, hauteur, anneau);
        if (Tester_Point(i, x, y, largeur, hauteur, false) == PointRien) {
            anneau = Param.ChateauxLargeur;
            return true;
        }
    }
    return false;
}

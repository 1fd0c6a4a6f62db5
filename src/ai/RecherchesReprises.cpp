// The searches resumed from one thought to the next: an enemy, an enemy house, an enemy
// castle, a house of the own fief for an errand.
#include <algorithm>
#include <limits>
#include <vector>

#include "ai/CriteresRecherche.h"
#include "ai/Recherches.h"
#include "ai/TablesIA.h"
#include "ai/TrancheRecherche.h"
#include "rules/ClsJeuParam.h"
#include "world/Globales.h"

namespace {

std::size_t U(int32_t k) { return static_cast<std::size_t>(k); }
int32_t Taille(const auto& tableau) { return static_cast<int32_t>(tableau.size()); }

// The first k of [debut, fin) for which qualifie(k) holds, or -1.
template <class Qualifie>
int32_t Premier_Un_A_Un(int32_t debut, int32_t fin, Qualifie&& qualifie) {
    for (int32_t k = debut; k < fin; ++k)
        if (qualifie(k)) return k;
    return -1;
}

using APortee = bool (*)(const ClsJeuPerso&, int32_t, int32_t);

// The first target of [debut, fin) within rayon of p, looked at one by one.
auto Un_A_Un(const ClsJeuPerso& p, APortee aPortee) {
    return [&p, aPortee](int32_t debut, int32_t fin, int32_t rayon) {
        return Premier_Un_A_Un(debut, fin, [&](int32_t k) { return aPortee(p, k, rayon); });
    };
}

// The search of an enemy target for i over n candidates, with its cursor and radius: the
// radius widens by `pas` after each full pass, and goes back to 64 above 640.
template <class Premier>
bool Chercher_Cible(int32_t i, int32_t n, std::vector<int32_t>& curseurs, std::vector<int32_t>& rayons, int32_t pas,
                    Premier&& premier, int32_t& resultat) {
    return Parcourir_Tranche(n, curseurs[U(i)], rayons[U(i)], premier,
                             [pas](int32_t r) { return Elargir_Borne(r, pas); }, resultat);
}

// Castles are few, so a call may go round them many times: a pass is skipped at once when
// the radius does not reach the nearest enemy castle.
double Chateau_Ennemi_Le_Plus_Proche(const ClsJeuPerso& p) {
    double plusProche = std::numeric_limits<double>::infinity();
    for (int32_t k = 0; k < Taille(Chateaux); ++k) {
        const ClsJeuBatiment& c = Chateaux[U(k)];
        if (!Chateau_Ennemi(p, k)) continue;
        plusProche = std::min(plusProche, Distance(c.PositionX, c.PositionY, p.PositionX, p.PositionY));
    }
    return plusProche;
}

}  // namespace

bool Chercher_Ennemi(int32_t i, int32_t& resultat) {
    const ClsJeuPerso& p = Persos[U(i)];
    return Chercher_Cible(i, Taille(Persos), CurseurPerso, RayonPerso, 48, Un_A_Un(p, Perso_Ennemi_A_Portee), resultat);
}

bool Chercher_Maison_Ennemie(int32_t i, int32_t& resultat) {
    const ClsJeuPerso& p = Persos[U(i)];
    return Chercher_Cible(i, Taille(Maisons), CurseurMaisonEnnemie, RayonMaisonEnnemie, 96,
                          Un_A_Un(p, Maison_Ennemie_A_Portee), resultat);
}

bool Chercher_Chateau_Ennemi(int32_t i, int32_t& resultat) {
    const ClsJeuPerso& p = Persos[U(i)];
    const double plusProche = Chateau_Ennemi_Le_Plus_Proche(p);
    auto chacun = Un_A_Un(p, Chateau_Ennemi_A_Portee);
    auto premier = [plusProche, chacun](int32_t debut, int32_t fin, int32_t rayon) {
        return plusProche < rayon ? chacun(debut, fin, rayon) : -1;
    };
    return Chercher_Cible(i, Taille(Chateaux), CurseurChateauEnnemi, RayonChateauEnnemi, 2 * Param.ChateauxLargeur,
                          premier, resultat);
}

bool Chercher_Maison(int32_t perso, int32_t i, int16_t ressource, int16_t besoin, int16_t service,
                     int32_t& resultat) {
    const Course course{ressource, besoin, service};
    const ClsJeuPerso& p = Persos[U(perso)];
    const int32_t fief = Persos[U(i)].Fief;
    auto premier = [&](int32_t debut, int32_t fin, int32_t rayon) {
        return Premier_Un_A_Un(debut, fin, [&](int32_t k) {
            return Maison_Convient(course, Maisons[U(k)], Persos[U(k)].Fief, fief, p.PositionX, p.PositionY, rayon);
        });
    };
    const bool trouve = Parcourir_Tranche(Taille(Maisons), CurseurMaison[U(i)], RayonMaison[U(i)], premier,
                                          [](int32_t r) { return r + 96; }, resultat);
    if (trouve) RayonMaison[U(i)] = 96;
    return trouve;
}

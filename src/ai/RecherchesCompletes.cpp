// The searches that look at a whole array in one call: the nearest target of a charge, a
// deposit, the key command's nearest deposit, and the counts of houses.
#include "ai/CriteresRecherche.h"
#include "ai/IndexRecherches.h"
#include "ai/Recherches.h"
#include "ai/TablesIA.h"
#include "ai/TestPoint.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"
#include "world/Globales.h"

namespace {

std::size_t U(int32_t k) { return static_cast<std::size_t>(k); }
int32_t Taille(const auto& tableau) { return static_cast<int32_t>(tableau.size()); }

// The index of the nearest thing of the array for which candidat(k) holds, from the point
// (x, y), to the thing's corner. Since each new best distance is kept rounded, a later thing
// has to be nearer than that rounded distance: the first of equally near things stands. -1
// when none is nearer than the map's width plus its height.
template <class Tableau, class Candidat>
int32_t Le_Plus_Proche(const Tableau& tableau, int32_t x, int32_t y, Candidat&& candidat) {
    int32_t meilleure = (Monde.Largeur + Monde.Hauteur) * TailleCase;
    int32_t indice = -1;
    for (int32_t k = 0; k < Taille(tableau); ++k) {
        if (!candidat(k)) continue;
        const double d = Distance(tableau[U(k)].PositionX, tableau[U(k)].PositionY, x, y);
        if (d < meilleure) {
            meilleure = Arrondir_En<int32_t>(d);
            indice = k;
        }
    }
    return indice;
}

using Indexe = int32_t (*)(const ClsJeuPerso&);

// The charge of character i at the nearest enemy target of the array, if there is one; the
// index finds it while it is open, if it knows the array.
template <class Tableau>
void Charger_Au_Plus_Proche(int32_t i, const Tableau& tableau, bool (*ennemi)(const ClsJeuPerso&, int32_t),
                            Indexe indexe, void (ClsJeuPerso::*ordre)(int32_t)) {
    ClsJeuPerso& p = Persos[U(i)];
    const int32_t cible =
        indexe != nullptr && Index_Ouvert()
            ? indexe(p)
            : Le_Plus_Proche(tableau, p.PositionX, p.PositionY, [&p, ennemi](int32_t k) { return ennemi(p, k); });
    if (cible >= 0) (p.*ordre)(cible);
}

// Counts the house slots k whose owner is of the fief and for which compte(k) holds.
template <class Compte>
int32_t Compter_Maisons(int32_t fief, Compte&& compte) {
    int32_t n = 0;
    for (int32_t k = 0; k < Taille(Maisons); ++k)
        if (Persos[U(k)].Fief == fief && compte(k)) ++n;
    return n;
}

}  // namespace

// With relayer the charge is meant for the followers too; they join it once leaders give orders.
void Attaquer_Perso_Proche(int32_t i, bool, bool, bool, bool) {
    Charger_Au_Plus_Proche(i, Persos, Perso_Ennemi, Index_Ennemi_Le_Plus_Proche, &ClsJeuPerso::Attaquer_Perso);
}

void Attaquer_Chateau_Proche(int32_t i, bool, bool, bool, bool) {
    Charger_Au_Plus_Proche(i, Chateaux, Chateau_Ennemi, nullptr, &ClsJeuPerso::Attaquer_Chateau);
}

void Attaquer_Maison_Proche(int32_t i, bool, bool, bool, bool) {
    Charger_Au_Plus_Proche(i, Maisons, Maison_Ennemie, Index_Maison_Ennemie_La_Plus_Proche,
                           &ClsJeuPerso::Attaquer_Maison);
}

namespace {

int32_t Premier_Gisement(int32_t type, int32_t x, int32_t y, int32_t rayon) {
    for (int32_t k = 0; k < Taille(Ressources); ++k) {
        const ClsJeuRessources& r = Ressources[U(k)];
        if (r.TypeRessource == type && rayon >= Distance(r.PositionX, r.PositionY, x, y)) return k;
    }
    return -1;
}

}  // namespace

bool Chercher_Ressource(int32_t perso, int32_t i, int32_t type, int32_t& resultat) {
    const ClsJeuPerso& p = Persos[U(perso)];
    int32_t& rayon = RayonRessource[U(i)];
    rayon = Arrondir_En<int32_t>(rayon + static_cast<double>(Rnd()) * LargeurGisement * 10);
    resultat = Index_Ouvert() && type >= 0 ? Index_Premier_Gisement(type, p.PositionX, p.PositionY, rayon)
                                           : Premier_Gisement(type, p.PositionX, p.PositionY, rayon);
    if (resultat < 0) return false;
    rayon = 0;
    return true;
}

void Aller_Recolter(int32_t i, int32_t type) {
    int32_t k = -1;
    if (Chercher_Ressource(i, i, type, k))
        Persos[U(i)].Aller_Ressource(Ressources[U(k)], k, LargeurGisement, HauteurGisement);
}

// Deposit 0 when none of the type lies within the map; no order at all in a world without
// deposits.
void Aller_Ressource_Proche(int32_t i, int32_t type) {
    if (Ressources.empty()) return;
    ClsJeuPerso& p = Persos[U(i)];
    auto duTerrain = [type](int32_t g) { return Ressources[U(g)].TypeTerrain == type; };
    const int32_t k = Le_Plus_Proche(Ressources, p.PositionX, p.PositionY, duTerrain);
    const int32_t gisement = k < 0 ? 0 : k;
    p.Aller_Ressource(Ressources[U(gisement)], gisement, LargeurGisement, HauteurGisement);
}

int32_t Compter_Maisons_Type(int32_t type, int32_t fief) {
    if (type < 0) return 0;
    if (Index_Ouvert()) return Index_Compter_Maisons_Type(type, fief);
    return Compter_Maisons(fief, [type](int32_t k) { return Maisons[U(k)].Type == type; });
}

int32_t Compter_Maisons_Fief(int32_t fief) {
    if (Index_Ouvert()) return Index_Compter_Maisons_Fief(fief);
    return Compter_Maisons(fief, [](int32_t) { return true; });
}

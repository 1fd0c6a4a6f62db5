#include "ai/CriteresRecherche.h"

#include <cmath>
#include <cstdlib>

#include "rules/ClsJeuParam.h"
#include "world/Globales.h"

namespace {

std::size_t U(int32_t k) { return static_cast<std::size_t>(k); }

// What a meal of resource r gives to gauge `besoin` (1 health, 2 energy, 3 magic, 4 morale).
double Gain(int32_t r, int16_t besoin) {
    switch (besoin) {
        case 1: return Param.Ressources_GainVie(r);
        case 2: return Param.Ressources_GainEnergie(r);
        case 3: return Param.Ressources_GainMagie(r);
        default: return Param.Ressources_GainMoral(r);
    }
}

bool Vend_Nourriture(int16_t type, int16_t besoin) {
    const int32_t r = Param.Batiment_RessourceFabrique(type);
    return r >= 0 && Gain(r, besoin) > 0;
}

template <class Chose>
bool A_Portee(const ClsJeuPerso& p, const Chose& chose, int32_t rayon) {
    return Distance(chose.PositionX, chose.PositionY, p.PositionX, p.PositionY) < rayon;
}

}  // namespace

double Distance(int32_t x1, int32_t y1, int32_t x2, int32_t y2) {
    const double dx = static_cast<double>(x1) - x2, dy = static_cast<double>(y1) - y2;
    return std::sqrt(dx * dx + dy * dy);
}

bool Perso_Ennemi(const ClsJeuPerso& p, int32_t k) {
    const ClsJeuPerso& cible = Persos[U(k)];
    return cible.Equipe != p.Equipe && cible.Attaquable();
}

bool Chateau_Ennemi(const ClsJeuPerso& p, int32_t k) {
    return Fiefs[U(k)].Equipe != p.Equipe && Chateaux[U(k)].Visible();
}

bool Maison_Ennemie(const ClsJeuPerso& p, int32_t k) {
    return Persos[U(k)].Equipe != p.Equipe && Maisons[U(k)].Visible();
}

bool Perso_Ennemi_A_Portee(const ClsJeuPerso& p, int32_t k, int32_t rayon) {
    return Perso_Ennemi(p, k) && A_Portee(p, Persos[U(k)], rayon);
}

bool Chateau_Ennemi_A_Portee(const ClsJeuPerso& p, int32_t k, int32_t rayon) {
    return Chateau_Ennemi(p, k) && A_Portee(p, Chateaux[U(k)], rayon);
}

bool Maison_Ennemie_A_Portee(const ClsJeuPerso& p, int32_t k, int32_t rayon) {
    return Maison_Ennemie(p, k) && A_Portee(p, Maisons[U(k)], rayon);
}

Course::Ligne Course::Ligne_Decisive() const {
    if (Service >= 1) return Ligne::Service;
    if (Besoin == 5) return Ligne::Objets;
    if (Ressource != 0) return Ligne::Ressource;
    if (Besoin >= 1 && Besoin <= 4) return Ligne::Nourriture;
    return Ligne::Aucune;
}

bool Genre_Convient(const Course& c, int16_t type, bool magasin, bool fabrique, int16_t service) {
    switch (c.Ligne_Decisive()) {
        case Course::Ligne::Service: return service == c.Service;
        case Course::Ligne::Objets: return fabrique;
        case Course::Ligne::Ressource:
            return (magasin || fabrique) && Param.Batiment_RessourceFabrique(type) == c.Ressource;
        case Course::Ligne::Nourriture: return (magasin || fabrique) && Vend_Nourriture(type, c.Besoin);
        case Course::Ligne::Aucune: break;
    }
    return false;
}

// A square zone around the character; a resource is sought within the round one too.
bool Maison_Convient(const Course& c, const ClsJeuBatiment& b, int32_t proprietaire, int32_t fief, int32_t x,
                     int32_t y, int32_t rayon) {
    const int64_t dx = static_cast<int64_t>(x) - b.PositionX, dy = static_cast<int64_t>(y) - b.PositionY;
    const bool proche = std::llabs(dx) < rayon && std::llabs(dy) < rayon;
    if (!proche || proprietaire != fief || !b.Termine || b.Definir_Stock() < 1) return false;
    if (!Genre_Convient(c, b.Type, b.Magasin, b.Fabrique, b.Service)) return false;
    return c.Ligne_Decisive() != Course::Ligne::Ressource || Distance(x, y, b.PositionX, b.PositionY) <= rayon;
}

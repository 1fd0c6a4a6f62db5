// The searches run with their index, held against the searches as the rules tell them, walked
// one candidate a step (written here, apart from the game's code), on worlds drawn at random
// and changed between the calls as a tick changes them: after every call the answer, the
// cursor and the radius must be the same.
#include "ai/IndexRecherches.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>

#include "MondeRecherches.h"
#include "ai/Recherches.h"
#include "ai/TablesIA.h"
#include "ai/TestPoint.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"
#include "world/Globales.h"

namespace {

namespace regle {

double Dist(int32_t x1, int32_t y1, int32_t x2, int32_t y2) {
    return std::sqrt(std::pow(static_cast<double>(x1) - x2, 2) + std::pow(static_cast<double>(y1) - y2, 2));
}

struct Etat {
    int32_t Curseur, Rayon;
    bool operator==(const Etat&) const = default;
};

// One step-by-step walk: `qualifie(k, rayon)` says whether candidate k is taken.
template <class Qualifie, class Elargir>
bool Marcher(int32_t dernier, Etat& e, int32_t& resultat, Qualifie qualifie, Elargir elargir) {
    resultat = -1;
    for (int32_t pas = 0; pas <= PasDeRecherche; ++pas) {
        if (e.Curseur > dernier) {
            e.Curseur = 0;
            e.Rayon = elargir(e.Rayon);
        }
        const bool trouve = qualifie(e.Curseur, e.Rayon);
        if (trouve) resultat = e.Curseur;
        ++e.Curseur;
        if (trouve) return true;
    }
    return false;
}

auto Plus(int32_t pas) {
    return [pas](int32_t r) { return r + pas > 640 ? 64 : r + pas; };
}

bool Ennemi(int32_t i, Etat& e, int32_t& resultat) {
    const ClsJeuPerso& p = Persos[static_cast<std::size_t>(i)];
    return Marcher(static_cast<int32_t>(Persos.size()) - 1, e, resultat, [&](int32_t k, int32_t rayon) {
        const ClsJeuPerso& c = Persos[static_cast<std::size_t>(k)];
        return c.Equipe != p.Equipe && Dist(c.PositionX, c.PositionY, p.PositionX, p.PositionY) < rayon &&
               c.Vivant() && c.Visible();
    }, Plus(48));
}

bool Maison_Ennemie(int32_t i, Etat& e, int32_t& resultat) {
    const ClsJeuPerso& p = Persos[static_cast<std::size_t>(i)];
    return Marcher(static_cast<int32_t>(Maisons.size()) - 1, e, resultat, [&](int32_t k, int32_t rayon) {
        const ClsJeuBatiment& m = Maisons[static_cast<std::size_t>(k)];
        return Persos[static_cast<std::size_t>(k)].Equipe != p.Equipe &&
               rayon > Dist(m.PositionX, m.PositionY, p.PositionX, p.PositionY) && m.Vie > 0;
    }, Plus(96));
}

bool Chateau_Ennemi(int32_t i, Etat& e, int32_t& resultat) {
    const ClsJeuPerso& p = Persos[static_cast<std::size_t>(i)];
    return Marcher(static_cast<int32_t>(Chateaux.size()) - 1, e, resultat, [&](int32_t k, int32_t rayon) {
        const ClsJeuBatiment& c = Chateaux[static_cast<std::size_t>(k)];
        return Fiefs[static_cast<std::size_t>(k)].Equipe != p.Equipe &&
               Dist(c.PositionX, c.PositionY, p.PositionX, p.PositionY) < rayon && c.Vie > 0;
    }, Plus(2 * Param.ChateauxLargeur));
}

double Gain(int32_t r, int16_t besoin) {
    if (besoin == 1) return Param.Ressources_GainVie(r);
    if (besoin == 2) return Param.Ressources_GainEnergie(r);
    if (besoin == 3) return Param.Ressources_GainMagie(r);
    return Param.Ressources_GainMoral(r);
}

bool Maison(int32_t i, int16_t ressource, int16_t besoin, int16_t service, Etat& e, int32_t& resultat) {
    const ClsJeuPerso& p = Persos[static_cast<std::size_t>(i)];
    const bool trouve = Marcher(static_cast<int32_t>(Maisons.size()) - 1, e, resultat, [&](int32_t k, int32_t rayon) {
        const ClsJeuBatiment& b = Maisons[static_cast<std::size_t>(k)];
        const double dx = static_cast<double>(p.PositionX) - b.PositionX;
        const double dy = static_cast<double>(p.PositionY) - b.PositionY;
        const bool proche = std::abs(dx) < rayon && std::abs(dy) < rayon;
        const bool memeFief = Persos[static_cast<std::size_t>(k)].Fief == p.Fief;
        const bool garni = b.Stock >= 1;
        const int32_t r = Param.Batiment_RessourceFabrique(b.Type);
        if (service >= 1) return b.Service == service && memeFief && proche && garni && b.Termine;
        if (besoin == 5) return b.Fabrique && b.Termine && garni && memeFief && proche;
        if (ressource != 0)
            return (b.Magasin || b.Fabrique) && r == ressource && std::sqrt(dx * dx + dy * dy) <= rayon && proche &&
                   memeFief && garni && b.Termine;
        if (besoin >= 1 && besoin <= 4)
            return (b.Magasin || b.Fabrique) && r >= 0 && b.Termine && garni && memeFief && proche &&
                   Gain(r, besoin) > 0;
        return false;
    }, [](int32_t r) { return r + 96; });
    if (trouve) e.Rayon = 96;
    return trouve;
}

// The charge's full scan: each new best distance kept rounded.
template <class Tableau, class Candidat>
int32_t Plus_Proche(const Tableau& tableau, const ClsJeuPerso& p, Candidat candidat) {
    int32_t meilleure = (Monde.Largeur + Monde.Hauteur) * 16, indice = -1;
    for (int32_t k = 0; k < static_cast<int32_t>(tableau.size()); ++k) {
        const auto& c = tableau[static_cast<std::size_t>(k)];
        const double d = Dist(c.PositionX, c.PositionY, p.PositionX, p.PositionY);
        if (candidat(k) && d < meilleure) {
            meilleure = Arrondir_En<int32_t>(d);
            indice = k;
        }
    }
    return indice;
}

int32_t Tirer(int32_t debut, int32_t taille, int32_t cases, int32_t batiment, int32_t anneau) {
    int32_t v = Arrondir_En<int32_t>(Rnd() * (taille + 2.0 * anneau) + debut - anneau);
    if (v < 0) v = Arrondir_En<int32_t>(Rnd() * 16.0);
    if (v > cases * 16 - batiment) v = Arrondir_En<int32_t>(cases * 16 - batiment - Rnd() * 16.0);
    return v;
}

bool Emplacement(int32_t i, int32_t& anneau, int32_t& x, int32_t& y, int16_t type) {
    const ClsJeuBatiment& c = Chateaux[static_cast<std::size_t>(Persos[static_cast<std::size_t>(i)].Fief)];
    const int32_t l = Param.Batiment_Largeur(type), h = Param.Batiment_Hauteur(type);
    for (int essai = 0; essai < 11; ++essai) {
        anneau += 16;
        x = Tirer(c.PositionX, Param.ChateauxLargeur, Monde.Largeur, l, anneau);
        y = Tirer(c.PositionY, Param.ChateauxHauteur, Monde.Hauteur, h, anneau);
        if (Tester_Point(i, x, y, l, h, false) == 0) {
            anneau = Param.ChateauxLargeur;
            return true;
        }
    }
    return false;
}

}  // namespace regle

// Worlds of 60 × 60 tiles, four fiefs of three teams, a few hundred characters in and around
// the map, houses of every type in every state, some deposits.
class IndexRecherches : public MondeRecherches {
protected:
    std::mt19937 hasard{2024};

    int32_t Entre(int32_t a, int32_t b) { return std::uniform_int_distribution<int32_t>(a, b)(hasard); }
    bool Parfois(double p) { return std::bernoulli_distribution(p)(hasard); }
    int32_t Place() { return Entre(-60, 60 * TailleCase + 60); }
    int32_t Au_Hasard(std::size_t n) { return Entre(0, static_cast<int32_t>(n) - 1); }

    void Tirer_Monde() {
        Creer_Monde(Entre(150, 500), {0, 1, 0, 2});
        Monde.Largeur = Monde.Hauteur = 60;
        for (ClsJeuBatiment& c : Chateaux) {
            c.PositionX = Place();
            c.PositionY = Place();
            c.Vie = Parfois(0.8) ? 100 : 0;
        }
        for (int32_t k = 0; k < static_cast<int32_t>(Persos.size()); ++k) Tirer_Perso(k);
        for (int32_t k = 0; k < static_cast<int32_t>(Maisons.size()); ++k)
            if (Parfois(0.6)) Tirer_Maison(k);
        Ressources.assign(30, ClsJeuRessources{});
        for (ClsJeuRessources& r : Ressources) {
            r.PositionX = Place();
            r.PositionY = Place();
            r.TypeRessource = Entre(-1, 3);
        }
        for (std::size_t k = 0; k < Persos.size(); ++k) Tirer_Etat_Recherche(k);
    }
    void Tirer_Perso(int32_t k) {
        Placer(k, Place(), Place(), Au_Hasard(Fiefs.size()));
        P(k).Visible(!Parfois(0.15));
        if (Parfois(0.1)) P(k).Vivant(false);
    }
    void Tirer_Maison(int32_t k) {
        const auto type = static_cast<int16_t>(Au_Hasard(static_cast<std::size_t>(Param.NombreTypeBatiments)));
        Batir(k, type, Place(), Place(), std::array{0.0, 0.5, 1.0, 7.0}[static_cast<std::size_t>(Entre(0, 3))]);
        if (Parfois(0.3)) M(k).Definir_Vie(M(k).MaxVie / 2.0 + (Parfois(0.5) ? 0 : -M(k).MaxVie));
    }
    void Tirer_Etat_Recherche(std::size_t k) {
        const auto n = static_cast<int32_t>(Persos.size());
        CurseurPerso[k] = Entre(0, n + 1);
        CurseurMaison[k] = Entre(0, n + 1);
        CurseurMaisonEnnemie[k] = Entre(0, n + 1);
        RayonPerso[k] = Entre(0, 13) * 48;
        RayonMaisonEnnemie[k] = Entre(0, 6) * 96;
        RayonMaison[k] = 96 * Entre(1, 12);
    }

    // What changes during the thoughts of a tick: a house built, fallen, finished or sold
    // out; a character who goes in or out, dies or comes back.
    void Changer_Pendant_Le_Tour() {
        const int32_t k = Au_Hasard(Persos.size());
        switch (Entre(0, 5)) {
            case 0:
                Tirer_Maison(k);
                Viser_Maison(k);
                break;
            case 1: M(k).Definir_Vie(0); break;
            case 2: M(k).Definir_Stock(Entre(0, 3)); break;
            case 3: P(k).Visible(!P(k).Visible()); break;
            case 4: P(k).Vivant(!P(k).Vivant()); break;
            default: M(k).Definir_Vie(M(k).MaxVie); break;
        }
    }
    // Searches aimed at house k just rebuilt, each starting its slice a little before it: a
    // character of its fief on an errand it may answer, an enemy, a builder's box over it.
    void Viser_Maison(int32_t k) {
        const ClsJeuBatiment& m = M(k);
        const int32_t voisin = Au_Hasard(Persos.size()), autre = Au_Hasard(Persos.size());
        const auto v = static_cast<std::size_t>(voisin);
        if (P(voisin).Fief == P(k).Fief) {
            CurseurMaison[v] = std::max(0, k - Entre(0, 3));
            RayonMaison[v] = 96 * Entre(1, 20);
            const int32_t r = Param.Batiment_RessourceFabrique(m.Type);
            int32_t attendu = -2, obtenu = -2;
            Comparer_Course(voisin, attendu, obtenu, m.Service >= 1 ? m.Service : 0, m.Fabrique ? 5 : Entre(1, 4),
                            static_cast<int16_t>(Parfois(0.5) ? r : 0));
            EXPECT_EQ(attendu, obtenu) << "course vers la maison " << k;
        }
        CurseurMaisonEnnemie[static_cast<std::size_t>(autre)] = std::max(0, k - Entre(0, 3));
        RayonMaisonEnnemie[static_cast<std::size_t>(autre)] = 640;
        Comparer_Maison_Ennemie(autre);
        Comparer_Place(autre, m.PositionX + Entre(-60, 60), m.PositionY + Entre(-60, 60));
    }

    // What changes between the ticks: everyone may have walked, a few changed side, a fief
    // joined another team, a house was read from an odd file, a summon added characters.
    void Changer_Entre_Les_Tours() {
        if (Parfois(0.1)) Changer_D_Equipe(Au_Hasard(Fiefs.size()), Entre(0, 5));
        if (Parfois(0.1)) M(Au_Hasard(Maisons.size())).Magasin ^= true;
        for (int32_t k = 0; k < static_cast<int32_t>(Persos.size()); ++k)
            if (Parfois(0.5)) Placer(k, P(k).PositionX + Entre(-40, 40), P(k).PositionY + Entre(-40, 40), P(k).Fief);
        if (Parfois(0.3)) Tirer_Perso(Au_Hasard(Persos.size()));
        if (Parfois(0.1)) Invoquer();
    }
    static void Changer_D_Equipe(int32_t f, int32_t equipe) {
        Fiefs[static_cast<std::size_t>(f)].Equipe = equipe;
        for (ClsJeuPerso& p : Persos)
            if (p.Fief == f) p.Equipe = equipe;
    }
    void Invoquer() {
        const auto k = static_cast<int32_t>(Persos.size());
        Persos.emplace_back();
        Persos.back().Init(k, Param);
        Maisons.emplace_back();
        Maisons.back().Numero = k;
        Dimensionner_Tables_IA(k + 1);
        Tirer_Perso(k);
        Tirer_Etat_Recherche(static_cast<std::size_t>(k));
    }

    // One search by a character drawn at random, by the game and by the rules' walk.
    void Comparer_Une_Recherche() {
        const int32_t i = Au_Hasard(Persos.size());
        const auto u = static_cast<std::size_t>(i);
        int32_t attendu = -2, obtenu = -2;
        switch (Entre(0, 8)) {
            case 0: {
                regle::Etat e{CurseurPerso[u], RayonPerso[u]};
                EXPECT_EQ(regle::Ennemi(i, e, attendu), Chercher_Ennemi(i, obtenu));
                EXPECT_EQ(e, (regle::Etat{CurseurPerso[u], RayonPerso[u]})) << "ennemi de " << i;
                break;
            }
            case 1: Comparer_Maison_Ennemie(i); return;
            case 2: {
                regle::Etat e{CurseurChateauEnnemi[u], RayonChateauEnnemi[u]};
                EXPECT_EQ(regle::Chateau_Ennemi(i, e, attendu), Chercher_Chateau_Ennemi(i, obtenu));
                EXPECT_EQ(e, (regle::Etat{CurseurChateauEnnemi[u], RayonChateauEnnemi[u]})) << "château de " << i;
                break;
            }
            case 3:
                Comparer_Course(i, attendu, obtenu, static_cast<int16_t>(Parfois(0.2) ? Entre(1, 3) : 0),
                                static_cast<int16_t>(Entre(0, 6)),
                                static_cast<int16_t>(Parfois(0.3) ? Entre(-1, Param.NombreRessources) : 0));
                break;
            case 4: Comparer_Place(i, Place(), Place()); return;
            case 5: Comparer_Comptes(); return;
            case 6: Comparer_Charges(i); return;
            case 7: Comparer_Gisement(); return;
            default: Comparer_Emplacement(i, attendu, obtenu); break;
        }
        EXPECT_EQ(attendu, obtenu) << "recherche de " << i;
    }
    void Comparer_Maison_Ennemie(int32_t i) {
        const auto u = static_cast<std::size_t>(i);
        int32_t attendu = -2, obtenu = -2;
        regle::Etat e{CurseurMaisonEnnemie[u], RayonMaisonEnnemie[u]};
        EXPECT_EQ(regle::Maison_Ennemie(i, e, attendu), Chercher_Maison_Ennemie(i, obtenu));
        EXPECT_EQ(e, (regle::Etat{CurseurMaisonEnnemie[u], RayonMaisonEnnemie[u]})) << "maison de " << i;
        EXPECT_EQ(attendu, obtenu) << "maison ennemie de " << i;
    }
    void Comparer_Course(int32_t i, int32_t& attendu, int32_t& obtenu, int16_t service, int16_t besoin,
                         int16_t ressource) {
        const auto u = static_cast<std::size_t>(i);
        regle::Etat e{CurseurMaison[u], RayonMaison[u]};
        EXPECT_EQ(regle::Maison(i, ressource, besoin, service, e, attendu),
                  Chercher_Maison(i, i, ressource, besoin, service, obtenu));
        EXPECT_EQ(e, (regle::Etat{CurseurMaison[u], RayonMaison[u]}))
            << "course de " << i << " : " << ressource << ' ' << besoin << ' ' << service;
    }
    // The charges at the nearest enemy and the nearest enemy house.
    void Comparer_Charges(int32_t i) {
        ClsJeuPerso& p = P(i);
        const int32_t ennemi = regle::Plus_Proche(Persos, p, [&p](int32_t k) {
            return P(k).Equipe != p.Equipe && P(k).Vivant() && P(k).Visible();
        });
        const int32_t maison = regle::Plus_Proche(Maisons, p, [&p](int32_t k) {
            return P(k).Equipe != p.Equipe && M(k).Vie > 0;
        });
        p.PersoCible = p.MaisonCible = -7;
        Attaquer_Perso_Proche(i);
        EXPECT_EQ(p.PersoCible, ennemi < 0 ? -7 : ennemi) << "charge de " << i;
        Attaquer_Maison_Proche(i);
        EXPECT_EQ(p.MaisonCible, maison < 0 ? -7 : maison) << "charge de " << i;
    }
    // The first deposit of a type within a radius, against a walk of every deposit.
    void Comparer_Gisement() {
        if (!Index_Ouvert()) return;
        const int32_t type = Entre(0, 4), x = Place(), y = Place(), rayon = Entre(0, 900);
        int32_t attendu = -1;
        for (int32_t k = 0; k < static_cast<int32_t>(Ressources.size()) && attendu < 0; ++k) {
            const ClsJeuRessources& r = Ressources[static_cast<std::size_t>(k)];
            if (r.TypeRessource == type && std::hypot(r.PositionX - x, r.PositionY - y) <= rayon) attendu = k;
        }
        EXPECT_EQ(Index_Premier_Gisement(type, x, y, rayon), attendu) << type << ' ' << x << ' ' << y << ' ' << rayon;
    }
    // The counts of a fief's houses, of one type and of all.
    void Comparer_Comptes() {
        const auto f = Au_Hasard(Fiefs.size());
        const auto type = static_cast<int16_t>(Entre(-1, Param.NombreTypeBatiments - 1));
        int32_t duType = 0, duFief = 0;
        for (std::size_t k = 0; k < Maisons.size(); ++k) {
            duFief += Persos[k].Fief == f;
            duType += Persos[k].Fief == f && Maisons[k].Type == type;
        }
        EXPECT_EQ(Compter_Maisons_Type(type, f), type < 0 ? 0 : duType) << "type " << type << " fief " << f;
        EXPECT_EQ(Compter_Maisons_Fief(f), duFief) << "fief " << f;
    }
    // The test of a free place, for a box of a building's size or a point, about (x, y).
    void Comparer_Place(int32_t i, int32_t x, int32_t y) {
        if (!Index_Ouvert()) return;
        const int32_t l = Parfois(0.2) ? 0 : Entre(16, 96), h = l == 0 ? 0 : Entre(16, 96);
        EXPECT_EQ(Index_Place_Libre(i, x, y, l, h), Tester_Point(i, x, y, l, h, false) == PointRien)
            << "place " << x << ',' << y << ' ' << l << 'x' << h << " pour " << i;
    }
    void Comparer_Emplacement(int32_t i, int32_t& attendu, int32_t& obtenu) {
        const auto type = static_cast<int16_t>(Au_Hasard(static_cast<std::size_t>(Param.NombreTypeBatiments)));
        const auto f = static_cast<std::size_t>(P(i).Fief);
        const auto graine = static_cast<uint64_t>(Entre(1, 1'000'000));
        int32_t anneau = RayonPlacementFief[f], x = 0, y = 0, gx = 0, gy = 0;
        Definir_Graine(graine);
        attendu = regle::Emplacement(i, anneau, x, y, type) ? x * 100'000 + y : -1;
        Definir_Graine(graine);
        obtenu = Chercher_Emplacement(i, gx, gy, type) ? gx * 100'000 + gy : -1;
        EXPECT_EQ(anneau, RayonPlacementFief[f]);
    }
};

TEST_F(IndexRecherches, LIndexTrouveCeQueLaMarcheUnAUnTrouve) {
    int recherchesIndexees = 0;
    for (int monde = 0; monde < 6; ++monde) {
        Tirer_Monde();
        for (int tour = 0; tour < 25; ++tour) {
            {
                const TourDeRecherches ouvert;
                for (int pas = 0; pas < 60; ++pas) {
                    if (Parfois(0.25)) {
                        Changer_Pendant_Le_Tour();
                        continue;
                    }
                    recherchesIndexees += Index_Ouvert();
                    Comparer_Une_Recherche();
                    if (HasFailure()) return;
                }
            }
            Changer_Entre_Les_Tours();
        }
    }
    EXPECT_GT(recherchesIndexees, 6000);
}

TEST_F(IndexRecherches, UnTableauQuiGranditPendantLeTourFaitRevenirALaMarcheUnAUn) {
    Tirer_Monde();
    const TourDeRecherches ouvert;
    EXPECT_TRUE(Index_Ouvert());
    Invoquer();
    EXPECT_FALSE(Index_Ouvert());
    for (int pas = 0; pas < 200; ++pas) Comparer_Une_Recherche();
}

TEST_F(IndexRecherches, UneMaisonRebatieDeuxFoisPendantLeTourCompteUneFois) {
    Creer_Monde(6);
    const TourDeRecherches ouvert;
    Batir(2, 1, 100, 100);
    Batir(2, 2, 300, 100);
    Batir(3, 2, 500, 100);
    EXPECT_EQ(Compter_Maisons_Type(1, 0), 0);
    EXPECT_EQ(Compter_Maisons_Type(2, 0), 2);
    EXPECT_EQ(Compter_Maisons_Type(0, 0), 4);   // the empty slots keep type 0
    EXPECT_EQ(Compter_Maisons_Fief(0), 6);
}

TEST_F(IndexRecherches, LIndexSeFermeALaFinDuTour) {
    Tirer_Monde();
    { const TourDeRecherches ouvert; }
    EXPECT_FALSE(Index_Ouvert());
}

}  // namespace

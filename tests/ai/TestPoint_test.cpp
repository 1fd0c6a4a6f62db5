#include "ai/TestPoint.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <tuple>

#include "../characters/ReglesParDefaut.h"
#include "ai/IndexTestPoint.h"
#include "rules/ClsJeuParam.h"
#include "world/Globales.h"

namespace {

TEST(RectanglesTouchent, LesBordsComptentUnMetreDePlusNon) {
    // Two boxes (x, y, width, height), the first a point when its size is 0 × 0.
    using Boite = std::array<int32_t, 4>;
    for (const auto& [a, b, touchent] : {
             std::tuple{Boite{0, 0, 32, 32}, Boite{32, 0, 32, 32}, true},         // side by side
             std::tuple{Boite{32, 32, 32, 32}, Boite{0, 0, 32, 32}, true},        // corner to corner
             std::tuple{Boite{0, 0, 32, 32}, Boite{33, 0, 32, 32}, false},        // one metre apart
             std::tuple{Boite{0, 33, 32, 32}, Boite{0, 0, 32, 32}, false},        //
             std::tuple{Boite{10, 10, 32, 32}, Boite{20, 25, 24, 32}, true},      // overlapping
             std::tuple{Boite{0, 0, 100, 100}, Boite{10, 10, 5, 5}, true},        // one inside the other
             std::tuple{Boite{10, 10, 5, 5}, Boite{0, 0, 100, 100}, true},        //
             std::tuple{Boite{124, 232, 0, 0}, Boite{100, 200, 24, 32}, true},    // a point on the far corner
             std::tuple{Boite{99, 210, 0, 0}, Boite{100, 200, 24, 32}, false},    // a point just beyond an edge
             std::tuple{Boite{110, 233, 0, 0}, Boite{100, 200, 24, 32}, false}})  //
        EXPECT_EQ(Rectangles_Touchent(a[0], a[1], b[0], b[1], a[2], a[3], b[2], b[3]), touchent) << a[0] << ',' << a[1];
}

// Three fiefs: 0 and 1 of team 0, 2 of team 1. Characters 0 (who looks, fief 0), 1 (a
// friend of fief 1), 2 and 3 (enemies of fief 2). Nothing stands near anything yet.
class TestPoint : public ReglesParDefaut {
protected:
    void SetUp() override {
        ReglesParDefaut::SetUp();
        Monde.Largeur = 100;
        Monde.Hauteur = 80;
        Fiefs.assign(3, ClsJeuFief(Fiefs[0]));
        Fiefs[2].Equipe = 1;
        Chateaux.assign(3, ClsJeuBatiment{});
        Peupler(4);
        for (int32_t i = 0; i < 4; ++i) {
            Poser(P(i), 5000, 5000).Fief = std::min(i, 2);
            P(i).Equipe = i / 2;
        }
        Ressources.assign(2, ClsJeuRessources{});
        for (ClsJeuRessources& r : Ressources) Poser(r, 6000, 6000);
    }

    // What character i sees at a point; the index found is remembered.
    static int32_t Voir(int32_t x, int32_t y, int32_t i = 0) { return Tester_Point(i, x, y, 0, 0, true); }
    // What character 0 sees at a point, and the index of it.
    static std::pair<int32_t, int32_t> Trouve(int32_t x, int32_t y) {
        const int32_t quoi = Voir(x, y);
        return {quoi, CibleSousPoint};
    }
    static ClsJeuPerso& P(int32_t i) { return Persos[static_cast<std::size_t>(i)]; }
    template <class Chose>
    static Chose& Poser(Chose& chose, int32_t x, int32_t y) {
        chose.PositionX = x;
        chose.PositionY = y;
        return chose;
    }
    static void Batir_Chateau(std::size_t f, int32_t x, int32_t y) {
        Initialiser_Chateau(Poser(Chateaux[f], x, y), Fiefs[f], Param);
    }
    // House k standing at (x, y), 64 × 64, finished and whole.
    static ClsJeuBatiment& Batir_Maison(std::size_t k, int32_t x, int32_t y) {
        ClsJeuBatiment& m = Poser(Maisons[k], x, y);
        m.Largeur = m.Hauteur = 64;
        m.MaxVie = 100;
        m.Definir_Vie(100);
        return m;
    }
};

TEST_F(TestPoint, LesChateauxSontPropresAmisOuEnnemisSelonQuiRegarde) {
    Batir_Chateau(0, 100, 100);
    Batir_Chateau(1, 400, 100);
    Batir_Chateau(2, 700, 100);
    EXPECT_EQ(std::pair(Voir(150, 150), Voir(450, 150)), std::pair(PointChateauPropre, PointChateauAmi));
    EXPECT_EQ(Trouve(750, 150), std::pair(PointChateauEnnemi, 2));
    EXPECT_EQ(std::pair(Voir(150, 150, 2), Voir(750, 150, 3)), std::pair(PointChateauEnnemi, PointChateauPropre));
    // The box of a castle is the rule book's castle size, edges included.
    EXPECT_EQ(Voir(100 + Param.ChateauxLargeur, 100 + Param.ChateauxHauteur), PointChateauPropre);
    EXPECT_EQ(Voir(101 + Param.ChateauxLargeur, 150), PointRien);
    Chateaux[1].Definir_Vie(0);   // a fallen castle is not there
    EXPECT_EQ(Voir(450, 150), PointRien);
}

TEST_F(TestPoint, UneMaisonDitAQuiElleEstEtCeQuElleOffre) {
    ClsJeuBatiment& propre = Batir_Maison(0, 100, 100);
    EXPECT_EQ(Voir(120, 120), PointMaisonEntiere);
    propre.Definir_Vie(60);   // finished, then damaged
    EXPECT_EQ(Voir(120, 120), PointMaisonAReparer);
    propre.Definir_Vie(0);
    propre.Vie = 30;   // unfinished, going up
    EXPECT_EQ(Voir(120, 120), PointMaisonAReparer);

    ClsJeuBatiment& amie = Batir_Maison(1, 300, 100);
    for (const auto& [magasin, fabrique, service, termine, point] :
         {std::tuple{false, false, 0, true, PointMaisonAmieVide}, std::tuple{true, false, 0, true, PointMaisonAmieCommerce},
          std::tuple{false, true, 0, true, PointMaisonAmieCommerce},
          std::tuple{false, false, 1, true, PointMaisonAmieService1},
          std::tuple{false, false, 2, true, PointMaisonAmieCommerce},
          std::tuple{true, false, 1, false, PointMaisonAmieVide}}) {
        amie.Magasin = magasin;
        amie.Fabrique = fabrique;
        amie.Service = static_cast<int16_t>(service);
        amie.Termine = termine;   // unfinished: nothing to offer yet
        EXPECT_EQ(Voir(320, 120), point) << magasin << fabrique << service << termine;
    }

    Batir_Maison(2, 500, 100).Service = 1;   // an enemy's, whatever it offers
    EXPECT_EQ(Trouve(520, 120), std::pair(PointMaisonEnnemie, 2));
    Maisons[2].Definir_Vie(0);
    EXPECT_EQ(Voir(520, 120), PointRien);
}

TEST_F(TestPoint, SeulUnEnnemiQuOnPeutFrapperCompte) {
    Poser(P(1), 100, 100);   // a friend, but an unknown observer sees everyone as an enemy
    EXPECT_EQ(std::tuple(Voir(110, 110), Voir(110, 110, -1), Voir(110, 110, 99)),
              std::tuple(PointRien, PointEnnemi, PointEnnemi));
    Poser(P(2), 100, 100);
    Poser(P(3), 100, 100);   // two enemies: the first in index order decides
    EXPECT_EQ(Trouve(110, 110), std::pair(PointEnnemi, 2));
    Persos[2].DansChateau = true;   // out of sight
    EXPECT_EQ(Trouve(110, 110), std::pair(PointEnnemi, 3));
    Persos[3].Vie.Valeur = 0;   // dead; nothing found leaves the last target
    EXPECT_EQ(Trouve(110, 110), std::pair(PointRien, 3));
    Persos[2].DansChateau = false;   // the box of a character is 24 × 32
    EXPECT_EQ(std::pair(Voir(124, 132), Voir(125, 132)), std::pair(PointEnnemi, PointRien));
}

TEST_F(TestPoint, LesGroupesSontTentesDansLOrdreEnnemiChateauMaisonGisement) {
    EXPECT_EQ(Voir(110, 110), PointRien);
    Poser(Ressources[1], 100, 100);
    EXPECT_EQ(Trouve(110, 110), std::pair(PointGisement, 1));
    Batir_Maison(2, 90, 90);
    EXPECT_EQ(Voir(110, 110), PointMaisonEnnemie);
    Batir_Chateau(1, 80, 80);
    EXPECT_EQ(Voir(110, 110), PointChateauAmi);
    Poser(P(1), 100, 100);   // a friend in front of the castle: the castle still answers
    EXPECT_EQ(Voir(110, 110), PointChateauAmi);
    Poser(P(3), 100, 100);   // an enemy in front of it answers first
    EXPECT_EQ(Trouve(110, 110), std::pair(PointEnnemi, 3));

    // A box sees only what it touches; a friend does not stop a building.
    Poser(P(3), 5000, 5000);
    Poser(P(1), 1200, 1200);
    EXPECT_EQ(Tester_Point(0, 1180, 1180, 64, 64, false), PointRien);
    Poser(Ressources[0], 1244, 1200);   // the box reaches 1244: edge to edge
    EXPECT_EQ(Tester_Point(0, 1180, 1180, 64, 64, false), PointGisement);
    Poser(Ressources[0], 1245, 1200);
    EXPECT_EQ(Tester_Point(0, 1180, 1180, 64, 64, false), PointRien);
}

// A crowded random world: characters of both teams, some dead or indoors, castles standing
// or fallen, houses of every state and deposits, all around the map and beyond its edges.
// The index, built and then brought up to date after some moves, answers as the plain test.
TEST_F(TestPoint, LIndexDonneLesMemesReponsesQueLeParcoursComplet) {
    auto hasard = [](int32_t min, int32_t max) {
        return min + static_cast<int32_t>(Rnd() * static_cast<float>(max - min + 1));
    };
    const std::size_t persos = 200, gisements = 150;
    Peupler(persos);
    for (std::size_t i = 0; i < persos; ++i) {
        ClsJeuPerso& p = Poser(Persos[i], hasard(-100, 1700), hasard(-100, 1400));
        p.Fief = hasard(0, 2);
        p.Equipe = Fiefs[static_cast<std::size_t>(p.Fief)].Equipe;
        if (Rnd() < 0.1f) p.Vie.Valeur = 0;
        if (Rnd() < 0.1f) p.DansMaison = true;
        if (Rnd() < 0.3f) {
            ClsJeuBatiment& m = Batir_Maison(i, hasard(-50, 1600), hasard(-50, 1300));
            m.Largeur = static_cast<int16_t>(hasard(32, 128));
            m.Magasin = Rnd() < 0.3f;
            m.Service = static_cast<int16_t>(hasard(0, 2));
            if (Rnd() < 0.3f) m.Definir_Vie(50);
        }
    }
    for (std::size_t f = 0; f < 3; ++f) Batir_Chateau(f, hasard(0, 1500), hasard(0, 1200));
    Chateaux[1].Definir_Vie(0);
    Ressources.assign(gisements, ClsJeuRessources{});
    for (ClsJeuRessources& r : Ressources) Poser(r, hasard(-40, 1650), hasard(-40, 1300));

    IndexTestPoint index;   // built, then brought up to date after some moves
    index.Construire();
    for (std::size_t k = 0; k < gisements; k += 2) {
        Poser(Ressources[k], hasard(-40, 1650), hasard(-40, 1300));
        index.Actualiser(GroupePoint::Gisements, static_cast<int32_t>(k));
    }
    for (std::size_t i = 0; i < persos; i += 3) {
        Poser(Persos[i], hasard(-100, 1700), hasard(-100, 1400));
        index.Actualiser(GroupePoint::Persos, static_cast<int32_t>(i));
    }
    for (int32_t q = 0; q < 20000; ++q) {
        const int32_t i = hasard(-1, static_cast<int32_t>(persos));
        const int32_t x = hasard(-200, 1800), y = hasard(-200, 1500);
        const bool point = Rnd() < 0.5f;
        const int32_t l = point ? 0 : hasard(1, 120), h = point ? 0 : hasard(1, 120);
        CibleSousPoint = -1;
        const int32_t attendu = Tester_Point(i, x, y, l, h, true);
        const int32_t cibleAttendue = CibleSousPoint;
        CibleSousPoint = -1;
        ASSERT_EQ(index.Tester_Point(i, x, y, l, h, true), attendu) << i << ' ' << x << ' ' << y << ' ' << l;
        ASSERT_EQ(CibleSousPoint, cibleAttendue);
    }
}

}  // namespace

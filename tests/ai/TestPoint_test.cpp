#include "ai/TestPoint.h"

#include <gtest/gtest.h>

#include "../characters/ReglesParDefaut.h"
#include "ai/IndexTestPoint.h"
#include "rules/ClsJeuParam.h"
#include "world/Globales.h"

namespace {

TEST(RectanglesTouchent, DesBoitesQuiSeTouchentParUnBordSeTouchent) {
    EXPECT_TRUE(Rectangles_Touchent(0, 0, 32, 0, 32, 32, 32, 32));    // side by side
    EXPECT_TRUE(Rectangles_Touchent(0, 0, 32, 32, 32, 32, 32, 32));   // corner to corner
    EXPECT_TRUE(Rectangles_Touchent(32, 0, 0, 0, 32, 32, 32, 32));
    EXPECT_FALSE(Rectangles_Touchent(0, 0, 33, 0, 32, 32, 32, 32));   // one metre apart
    EXPECT_FALSE(Rectangles_Touchent(0, 0, 0, 33, 32, 32, 32, 32));
    EXPECT_FALSE(Rectangles_Touchent(0, 33, 0, 0, 32, 32, 32, 32));
}

TEST(RectanglesTouchent, DesBoitesQuiSeChevauchentOuSEmboitentSeTouchent) {
    EXPECT_TRUE(Rectangles_Touchent(10, 10, 20, 25, 32, 32, 24, 32));
    EXPECT_TRUE(Rectangles_Touchent(0, 0, 10, 10, 100, 100, 5, 5));   // the second inside the first
    EXPECT_TRUE(Rectangles_Touchent(10, 10, 0, 0, 5, 5, 100, 100));   // the first inside the second
    EXPECT_FALSE(Rectangles_Touchent(-50, -50, 0, 0, 40, 40, 10, 10));
}

TEST(RectanglesTouchent, UnPointEstDansLeRectangleBordsCompris) {
    EXPECT_TRUE(Rectangles_Touchent(100, 200, 100, 200, 0, 0, 24, 32));
    EXPECT_TRUE(Rectangles_Touchent(124, 232, 100, 200, 0, 0, 24, 32));
    EXPECT_TRUE(Rectangles_Touchent(110, 210, 100, 200, 0, 0, 24, 32));
    EXPECT_FALSE(Rectangles_Touchent(125, 210, 100, 200, 0, 0, 24, 32));
    EXPECT_FALSE(Rectangles_Touchent(99, 210, 100, 200, 0, 0, 24, 32));
    EXPECT_FALSE(Rectangles_Touchent(110, 233, 100, 200, 0, 0, 24, 32));
}

// Three fiefs: 0 and 1 of team 0, 2 of team 1. Characters 0 (who looks, fief 0), 1 (a
// friend of fief 1), 2 and 3 (enemies of fief 2). Nothing stands anywhere yet.
class TestPoint : public ReglesParDefaut {
protected:
    void SetUp() override {
        ReglesParDefaut::SetUp();
        Monde.Largeur = 100;
        Monde.Hauteur = 80;
        Fiefs.assign(3, ClsJeuFief{});
        Chateaux.assign(3, ClsJeuBatiment{});
        const int32_t equipes[] = {0, 0, 1};
        for (std::size_t f = 0; f < 3; ++f) {
            Fiefs[f].Init(Param);
            Fiefs[f].Equipe = equipes[f];
        }
        Peupler(4);
        const int32_t fiefs[] = {0, 1, 2, 2};
        for (std::size_t i = 0; i < 4; ++i) {
            Persos[i].Fief = fiefs[i];
            Persos[i].Equipe = equipes[fiefs[i]];
            Poser_Perso(static_cast<int32_t>(i), 5000, 5000);   // far from everything
        }
        Ressources.assign(2, ClsJeuRessources{});
        for (ClsJeuRessources& r : Ressources) r.PositionX = r.PositionY = 6000;
    }

    static void Poser_Perso(int32_t i, int32_t x, int32_t y) {
        Persos[static_cast<std::size_t>(i)].PositionX = x;
        Persos[static_cast<std::size_t>(i)].PositionY = y;
    }
    static void Batir_Chateau(int32_t f, int32_t x, int32_t y) {
        ClsJeuBatiment& c = Chateaux[static_cast<std::size_t>(f)];
        c.PositionX = x;
        c.PositionY = y;
        Initialiser_Chateau(c, Fiefs[static_cast<std::size_t>(f)], Param);
    }
    // House k standing at (x, y), 64 × 64, finished and whole unless told otherwise.
    static ClsJeuBatiment& Batir_Maison(int32_t k, int32_t x, int32_t y) {
        ClsJeuBatiment& m = Maisons[static_cast<std::size_t>(k)];
        m.PositionX = x;
        m.PositionY = y;
        m.Largeur = 64;
        m.Hauteur = 64;
        m.MaxVie = 100;
        m.Definir_Vie(100);
        return m;
    }
    static void Poser_Gisement(int32_t k, int32_t x, int32_t y) {
        Ressources[static_cast<std::size_t>(k)].PositionX = x;
        Ressources[static_cast<std::size_t>(k)].PositionY = y;
    }
};

TEST_F(TestPoint, RienDonne0EtUnGisementDonne1) {
    EXPECT_EQ(Tester_Point(0, 300, 300, 0, 0, false), PointRien);
    Poser_Gisement(1, 290, 290);
    CibleSousPoint = -7;
    EXPECT_EQ(Tester_Point(0, 300, 300, 0, 0, true), PointGisement);
    EXPECT_EQ(CibleSousPoint, 1);
    EXPECT_EQ(Tester_Point(0, 323, 300, 0, 0, true), PointRien);
    EXPECT_EQ(CibleSousPoint, 1);   // nothing found leaves the last target
}

TEST_F(TestPoint, LesChateauxSeDistinguentEntrePropreAmiEtEnnemi) {
    Batir_Chateau(0, 100, 100);
    Batir_Chateau(1, 400, 100);
    Batir_Chateau(2, 700, 100);
    EXPECT_EQ(Tester_Point(0, 150, 150, 0, 0, false), PointChateauPropre);
    EXPECT_EQ(Tester_Point(0, 450, 150, 0, 0, false), PointChateauAmi);
    EXPECT_EQ(Tester_Point(0, 750, 150, 0, 0, true), PointChateauEnnemi);
    EXPECT_EQ(CibleSousPoint, 2);
    // Seen by the enemy, the same castles turn round.
    EXPECT_EQ(Tester_Point(2, 150, 150, 0, 0, false), PointChateauEnnemi);
    EXPECT_EQ(Tester_Point(2, 750, 150, 0, 0, false), PointChateauPropre);
    EXPECT_EQ(Tester_Point(3, 750, 150, 0, 0, false), PointChateauPropre);
    // The box of a castle is the rule book's castle size, edges included.
    EXPECT_EQ(Tester_Point(0, 100 + Param.ChateauxLargeur, 100 + Param.ChateauxHauteur, 0, 0, false), PointChateauPropre);
    EXPECT_EQ(Tester_Point(0, 101 + Param.ChateauxLargeur, 150, 0, 0, false), PointRien);
    // A fallen castle is not there.
    Chateaux[1].Definir_Vie(0);
    EXPECT_EQ(Tester_Point(0, 450, 150, 0, 0, false), PointRien);
}

TEST_F(TestPoint, LaPropreMaisonEstAReparerTantQuElleNEstPasEntiere) {
    ClsJeuBatiment& m = Batir_Maison(0, 100, 100);
    EXPECT_EQ(Tester_Point(0, 120, 120, 0, 0, false), PointMaisonEntiere);
    m.Definir_Vie(60);   // finished, then damaged
    EXPECT_EQ(Tester_Point(0, 120, 120, 0, 0, false), PointMaisonAReparer);
    m = ClsJeuBatiment{};
    m.PositionX = m.PositionY = 100;
    m.Largeur = m.Hauteur = 64;
    m.MaxVie = 100;
    m.Vie = 30;   // still going up
    EXPECT_EQ(Tester_Point(0, 120, 120, 0, 0, false), PointMaisonAReparer);
}

TEST_F(TestPoint, LaMaisonDUnAmiDitCeQuElleOffre) {
    ClsJeuBatiment& m = Batir_Maison(1, 100, 100);
    EXPECT_EQ(Tester_Point(0, 120, 120, 0, 0, false), PointMaisonAmieVide);
    m.Magasin = true;
    EXPECT_EQ(Tester_Point(0, 120, 120, 0, 0, false), PointMaisonAmieCommerce);
    m.Magasin = false;
    m.Fabrique = true;
    EXPECT_EQ(Tester_Point(0, 120, 120, 0, 0, false), PointMaisonAmieCommerce);
    m.Fabrique = false;
    m.Service = 1;
    EXPECT_EQ(Tester_Point(0, 120, 120, 0, 0, false), PointMaisonAmieService1);
    m.Service = 2;
    EXPECT_EQ(Tester_Point(0, 120, 120, 0, 0, false), PointMaisonAmieCommerce);
    m.Termine = false;   // unfinished: nothing to offer yet
    EXPECT_EQ(Tester_Point(0, 120, 120, 0, 0, false), PointMaisonAmieVide);
    // The house of an enemy, whatever it offers.
    Batir_Maison(2, 400, 100).Service = 1;
    EXPECT_EQ(Tester_Point(0, 420, 120, 0, 0, true), PointMaisonEnnemie);
    EXPECT_EQ(CibleSousPoint, 2);
    Maisons[2].Definir_Vie(0);
    EXPECT_EQ(Tester_Point(0, 420, 120, 0, 0, false), PointRien);
}

TEST_F(TestPoint, SeulUnEnnemiQuOnPeutFrapperCompte) {
    Poser_Perso(1, 100, 100);   // a friend
    EXPECT_EQ(Tester_Point(0, 110, 110, 0, 0, false), PointRien);
    Poser_Perso(2, 100, 100);
    EXPECT_EQ(Tester_Point(0, 110, 110, 0, 0, true), PointEnnemi);
    EXPECT_EQ(CibleSousPoint, 2);
    Poser_Perso(3, 100, 100);   // two enemies: the first in index order decides
    EXPECT_EQ(Tester_Point(0, 110, 110, 0, 0, true), PointEnnemi);
    EXPECT_EQ(CibleSousPoint, 2);
    Persos[2].DansChateau = true;   // out of sight
    EXPECT_EQ(Tester_Point(0, 110, 110, 0, 0, true), PointEnnemi);
    EXPECT_EQ(CibleSousPoint, 3);
    Persos[3].Vie.Valeur = 0;   // dead
    EXPECT_EQ(Tester_Point(0, 110, 110, 0, 0, false), PointRien);
    // The box of a character is 24 × 32.
    Persos[2].DansChateau = false;
    EXPECT_EQ(Tester_Point(0, 124, 132, 0, 0, false), PointEnnemi);
    EXPECT_EQ(Tester_Point(0, 125, 132, 0, 0, false), PointRien);
}

TEST_F(TestPoint, LesGroupesSontTentesDansLOrdreEnnemiChateauMaisonGisement) {
    Poser_Gisement(0, 100, 100);
    EXPECT_EQ(Tester_Point(0, 110, 110, 0, 0, false), PointGisement);
    Batir_Maison(2, 90, 90);
    EXPECT_EQ(Tester_Point(0, 110, 110, 0, 0, false), PointMaisonEnnemie);
    Batir_Chateau(1, 80, 80);
    EXPECT_EQ(Tester_Point(0, 110, 110, 0, 0, false), PointChateauAmi);
    Poser_Perso(1, 100, 100);   // a friend in front of the castle: the castle still answers
    EXPECT_EQ(Tester_Point(0, 110, 110, 0, 0, false), PointChateauAmi);
    Poser_Perso(3, 100, 100);   // an enemy in front of it answers first
    EXPECT_EQ(Tester_Point(0, 110, 110, 0, 0, true), PointEnnemi);
    EXPECT_EQ(CibleSousPoint, 3);
}

TEST_F(TestPoint, UneBoiteNeVoitQueCeQuElleTouche) {
    Poser_Perso(1, 200, 200);   // only a friend there: a building may go over friends
    EXPECT_EQ(Tester_Point(0, 180, 180, 64, 64, false), PointRien);
    Poser_Gisement(0, 244, 200);   // the box reaches 244: edge to edge
    EXPECT_EQ(Tester_Point(0, 180, 180, 64, 64, false), PointGisement);
    Poser_Gisement(0, 245, 200);
    EXPECT_EQ(Tester_Point(0, 180, 180, 64, 64, false), PointRien);
}

TEST_F(TestPoint, UnObservateurInconnuVoitChacunEnEnnemi) {
    Poser_Perso(1, 100, 100);
    EXPECT_EQ(Tester_Point(-1, 110, 110, 0, 0, false), PointEnnemi);
    EXPECT_EQ(Tester_Point(99, 110, 110, 0, 0, false), PointEnnemi);
}

// A crowded random world: characters of both teams, some dead or indoors, castles standing
// or fallen, houses of every state and deposits, all around the map and beyond its edges.
class IndexPoint : public TestPoint {
protected:
    static int32_t Au_Hasard(int32_t min, int32_t max) {
        return min + static_cast<int32_t>(Rnd() * static_cast<float>(max - min + 1));
    }
    void Remplir(int32_t persos, int32_t gisements) {
        Peupler(persos);
        for (int32_t i = 0; i < persos; ++i) {
            ClsJeuPerso& p = Persos[static_cast<std::size_t>(i)];
            p.Fief = Au_Hasard(0, 2);
            p.Equipe = Fiefs[static_cast<std::size_t>(p.Fief)].Equipe;
            Poser_Perso(i, Au_Hasard(-100, 1700), Au_Hasard(-100, 1400));
            if (Rnd() < 0.1f) p.Vie.Valeur = 0;
            if (Rnd() < 0.1f) p.DansMaison = true;
            if (Rnd() < 0.3f) {
                ClsJeuBatiment& m = Batir_Maison(i, Au_Hasard(-50, 1600), Au_Hasard(-50, 1300));
                m.Largeur = static_cast<int16_t>(Au_Hasard(32, 128));
                m.Magasin = Rnd() < 0.3f;
                m.Service = static_cast<int16_t>(Au_Hasard(0, 2));
                if (Rnd() < 0.3f) m.Definir_Vie(50);
            }
        }
        for (int32_t f = 0; f < 3; ++f) Batir_Chateau(f, Au_Hasard(0, 1500), Au_Hasard(0, 1200));
        Chateaux[1].Definir_Vie(0);
        Ressources.assign(static_cast<std::size_t>(gisements), ClsJeuRessources{});
        for (int32_t k = 0; k < gisements; ++k) Poser_Gisement(k, Au_Hasard(-40, 1650), Au_Hasard(-40, 1300));
    }

    static void Comparer(const IndexTestPoint& index, int32_t requetes) {
        for (int32_t q = 0; q < requetes; ++q) {
            const int32_t i = Au_Hasard(-1, static_cast<int32_t>(Persos.size()));
            const int32_t x = Au_Hasard(-200, 1800), y = Au_Hasard(-200, 1500);
            const bool point = Rnd() < 0.5f;
            const int32_t l = point ? 0 : Au_Hasard(1, 120), h = point ? 0 : Au_Hasard(1, 120);
            CibleSousPoint = -1;
            const int32_t attendu = Tester_Point(i, x, y, l, h, true);
            const int32_t cibleAttendue = CibleSousPoint;
            CibleSousPoint = -1;
            ASSERT_EQ(index.Tester_Point(i, x, y, l, h, true), attendu) << i << ' ' << x << ' ' << y << ' ' << l;
            ASSERT_EQ(CibleSousPoint, cibleAttendue);
        }
    }
};

TEST_F(IndexPoint, LIndexDonneLesMemesReponsesQueLeParcoursComplet) {
    Remplir(300, 200);
    IndexTestPoint index;
    index.Construire();
    Comparer(index, 20000);
}

TEST_F(IndexPoint, ApresUnDeplacementActualiserSuffit) {
    Remplir(100, 150);
    IndexTestPoint index;
    index.Construire();
    for (int32_t k = 0; k < 150; k += 2) {
        Poser_Gisement(k, Au_Hasard(-40, 1650), Au_Hasard(-40, 1300));
        index.Actualiser(GroupePoint::Gisements, k);
    }
    for (int32_t i = 0; i < 100; i += 3) {
        Poser_Perso(i, Au_Hasard(-100, 1700), Au_Hasard(-100, 1400));
        index.Actualiser(GroupePoint::Persos, i);
    }
    Comparer(index, 20000);
}

}  // namespace

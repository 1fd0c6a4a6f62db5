#include "world/ModGenererMonde.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <utility>

#include "../characters/ReglesParDefaut.h"
#include "ai/TestPoint.h"
#include "rules/ClsJeuParam.h"
#include "rules/Hasard.h"
#include "world/Globales.h"
#include "world/RepartitionPoints.h"

namespace {

// A new world of n fiefs (fief f of team f, humans unless told) on an l × h map, with its
// terrain drawn, villagers per fief, and a deposit count.
class Placement : public ReglesParDefaut {
protected:
    void Preparer(int32_t l, int32_t h, int32_t fiefs, int32_t villageois, int32_t gisements) {
        Monde.Largeur = l;
        Monde.Hauteur = h;
        Fiefs.assign(static_cast<std::size_t>(fiefs), ClsJeuFief{});
        Chateaux.assign(static_cast<std::size_t>(fiefs), ClsJeuBatiment{});
        for (int32_t f = 0; f < fiefs; ++f) {
            Fiefs[static_cast<std::size_t>(f)].Init(Param);
            Fiefs[static_cast<std::size_t>(f)].Equipe = f;
            Chateaux[static_cast<std::size_t>(f)].Numero = f;
        }
        Peupler(fiefs * villageois);
        for (std::size_t i = 0; i < Persos.size(); ++i)
            Persos[i].Fief = Persos[i].Equipe = static_cast<int32_t>(i) / villageois;
        Ressources.assign(static_cast<std::size_t>(gisements), ClsJeuRessources{});
        Monde.Generer_Monde();
    }

    static const ClsJeuBatiment& Chateau(int32_t f) { return Chateaux[static_cast<std::size_t>(f)]; }

    static bool Se_Touchent(const ClsJeuRessources& r, int32_t x, int32_t y, int32_t l, int32_t h) {
        return Rectangles_Touchent(r.PositionX, r.PositionY, x, y, LargeurGisement, HauteurGisement, l, h);
    }
};

TEST_F(Placement, LesChateauxSontEntiersDansLesMargesEtEcartesDuHautVersLeBas) {
    // Sites at least Int(260 / 5) + 5 = 57 cells apart, row and column added.
    const int32_t ecart = Ecart_Voulu(CartePoints(1, 111, 1, 151), 6);
    auto bonus = [](int e) { return std::stod(Param.Epoque_BonusVieChateau(e)); };
    for (uint64_t graine = 1; graine <= 10; ++graine) {
        Definir_Graine(graine);
        Preparer(160, 120, 6, 2, 0);
        Fiefs[1].Epoque = Fiefs[2].Epoque = 2;
        Fiefs[2].Peuple = 3;
        ASSERT_EQ(Placer_Chateaux(), 0);
        EXPECT_EQ(Chateau(0).MaxVie, Param.ChateauxMaxVie + bonus(0));   // epoch 0 still has its bonus
        EXPECT_EQ(Chateau(1).MaxVie, Param.ChateauxMaxVie + bonus(0) + bonus(1) + bonus(2));
        EXPECT_EQ(Chateau(2).MaxVie, Param.ChateauxMaxVie);   // only humans have the bonus
        for (int32_t f = 0; f < 6; ++f) {
            const ClsJeuBatiment& c = Chateau(f);
            EXPECT_TRUE(c.Termine && c.Definir_Vie() == c.MaxVie);
            EXPECT_EQ(std::pair(c.Largeur, c.Hauteur), std::pair(Param.ChateauxLargeur, Param.ChateauxHauteur));
            // A site (a, b) gives 16 b and 16 a, moved by at most 8 either way.
            EXPECT_TRUE(c.PositionX >= 8 && c.PositionX <= 16 * 151 + 8 && c.PositionY >= 8 && c.PositionY <= 16 * 111 + 8);
            EXPECT_TRUE(f == 0 || Chateau(f - 1).PositionY <= c.PositionY + 16) << graine;   // topmost first
            for (int32_t g = f + 1; g < 6; ++g)   // less 16 metres of jitter per castle
                EXPECT_GE(std::abs(c.PositionX - Chateau(g).PositionX) + std::abs(c.PositionY - Chateau(g).PositionY),
                          16 * ecart - 32)
                    << graine << ' ' << f << ' ' << g;
        }
    }
}

TEST_F(Placement, LesGisementsTombentSurLeSolLibreEtLesVillageoisDansLeurChateau) {
    Definir_Graine(5);
    Preparer(100, 75, 4, 3, 120);
    ASSERT_EQ(Placer_Chateaux(), 0);
    ASSERT_EQ(Placer_Ressources(), 0);
    ASSERT_EQ(Ressources.size(), 120u);
    for (std::size_t k = 0; k < Ressources.size(); ++k) {
        const ClsJeuRessources& r = Ressources[k];
        EXPECT_TRUE(r.PositionX >= 0 && r.PositionX <= 100 * 16 - 32 && r.PositionY >= 0 && r.PositionY <= 75 * 16 - 32);
        for (int32_t f = 0; f < 4; ++f)
            EXPECT_FALSE(
                Se_Touchent(r, Chateau(f).PositionX, Chateau(f).PositionY, Param.ChateauxLargeur, Param.ChateauxHauteur));
        for (std::size_t j = 0; j < k; ++j)
            EXPECT_FALSE(Se_Touchent(r, Ressources[j].PositionX, Ressources[j].PositionY, 32, 32)) << k << ' ' << j;
        ASSERT_TRUE(r.TypeTerrain >= 0 && r.TypeTerrain < Param.NombreTerrainRessource);
        EXPECT_EQ(r.TypeRessource, Param.TerrainRessources_TypeRessource(r.TypeTerrain));
        EXPECT_EQ(r.Quantite, Param.TerrainRessources_Quantite(r.TypeTerrain));
    }

    Placer_Persos();
    for (std::size_t i = 0; i < Persos.size(); ++i) {
        const ClsJeuPerso& p = Persos[i];
        const ClsJeuBatiment& c = Chateau(p.Fief);
        EXPECT_EQ(std::pair(p.PositionX, p.PositionY),
                  std::pair(c.PositionX + Param.ChateauxLargeur / 2 - 12, c.PositionY + Param.ChateauxHauteur / 2 - 16))
            << i;
        EXPECT_TRUE(p.DansSonChateau && p.DestinationY == p.PositionY) << i;
    }
}

TEST_F(Placement, CeQuiNeTientPasSurLaCarteEstLaisseEtCompte) {
    Definir_Graine(8);
    Preparer(12, 12, 6, 1, 0);   // sites in rows 1 … 2 and columns 1 … 2: four of them
    EXPECT_EQ(Placer_Chateaux(), 2);
    for (int32_t f = 0; f < 6; ++f) EXPECT_EQ(Chateau(f).Visible(), f < 4) << f;
    Placer_Persos();   // the villagers of a fief with no castle stand where its slot says
    Preparer(9, 5, 3, 1, 0);   // no site at all
    EXPECT_EQ(Placer_Chateaux(), 3);
    Preparer(1, 40, 1, 1, 5);   // narrower than a deposit
    EXPECT_EQ(Placer_Ressources(), 5);
    EXPECT_TRUE(Ressources.empty());
}

}  // namespace

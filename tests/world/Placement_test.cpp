#include "world/ModGenererMonde.h"

#include <gtest/gtest.h>

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
        for (std::size_t i = 0; i < Persos.size(); ++i) {
            Persos[i].Fief = static_cast<int32_t>(i) / villageois;
            Persos[i].Equipe = Persos[i].Fief;
        }
        Ressources.assign(static_cast<std::size_t>(gisements), ClsJeuRessources{});
        Monde.Generer_Monde();
    }

    static const ClsJeuBatiment& Chateau(int32_t f) { return Chateaux[static_cast<std::size_t>(f)]; }

    static bool Se_Touchent(const ClsJeuRessources& r, int32_t x, int32_t y, int32_t l, int32_t h) {
        return Rectangles_Touchent(r.PositionX, r.PositionY, x, y, LargeurGisement, HauteurGisement, l, h);
    }
};

TEST_F(Placement, LesChateauxRestentDansLesMargesEtVontDuHautVersLeBas) {
    for (uint64_t graine = 1; graine <= 10; ++graine) {
        Definir_Graine(graine);
        Preparer(160, 120, 6, 2, 0);
        ASSERT_EQ(Placer_Chateaux(), 0);
        for (int32_t f = 0; f < 6; ++f) {
            const ClsJeuBatiment& c = Chateau(f);
            // A site (a, b) gives 16 b and 16 a, moved by at most 8 either way.
            EXPECT_GE(c.PositionX, 16 * 1 - 8);
            EXPECT_LE(c.PositionX, 16 * (160 - 9) + 8);
            EXPECT_GE(c.PositionY, 16 * 1 - 8);
            EXPECT_LE(c.PositionY, 16 * (120 - 9) + 8);
            if (f > 0) EXPECT_LE(Chateau(f - 1).PositionY, c.PositionY + 16) << graine;   // topmost first
        }
    }
}

TEST_F(Placement, LesChateauxSontEcartesCommeLeursSites) {
    for (uint64_t graine = 1; graine <= 10; ++graine) {
        Definir_Graine(graine);
        Preparer(160, 120, 6, 2, 0);
        ASSERT_EQ(Placer_Chateaux(), 0);
        // Sites at least Int(260 / 5) + 5 = 57 cells apart, row and column added, less
        // 16 metres of jitter per castle.
        const int32_t ecart = Ecart_Voulu(CartePoints(1, 111, 1, 151), 6);
        for (int32_t f = 0; f < 6; ++f)
            for (int32_t g = f + 1; g < 6; ++g) {
                const int32_t d = std::abs(Chateau(f).PositionX - Chateau(g).PositionX) +
                                  std::abs(Chateau(f).PositionY - Chateau(g).PositionY);
                EXPECT_GE(d, 16 * ecart - 32) << graine << ' ' << f << ' ' << g;
            }
    }
}

TEST_F(Placement, ChaqueChateauEstEntierAvecLeBonusDesEpoquesDesHumainsSeuls) {
    Definir_Graine(3);
    Preparer(160, 120, 3, 1, 0);
    Fiefs[0].Epoque = 0;
    Fiefs[1].Epoque = 2;
    Fiefs[2].Epoque = 2;
    Fiefs[2].Peuple = 3;
    ASSERT_EQ(Placer_Chateaux(), 0);
    auto bonus = [](int e) { return std::stod(Param.Epoque_BonusVieChateau(e)); };
    EXPECT_EQ(Chateau(0).MaxVie, Param.ChateauxMaxVie + bonus(0));   // epoch 0 still has its bonus
    EXPECT_EQ(Chateau(1).MaxVie, Param.ChateauxMaxVie + bonus(0) + bonus(1) + bonus(2));
    EXPECT_EQ(Chateau(2).MaxVie, Param.ChateauxMaxVie);
    for (int32_t f = 0; f < 3; ++f) {
        EXPECT_EQ(Chateau(f).Definir_Vie(), Chateau(f).MaxVie);
        EXPECT_TRUE(Chateau(f).Termine);
        EXPECT_EQ(Chateau(f).Largeur, Param.ChateauxLargeur);
        EXPECT_EQ(Chateau(f).Hauteur, Param.ChateauxHauteur);
    }
}

TEST_F(Placement, LesGisementsNeTouchentNiChateauNiAutreGisement) {
    Definir_Graine(5);
    Preparer(100, 75, 4, 3, 120);
    ASSERT_EQ(Placer_Chateaux(), 0);
    ASSERT_EQ(Placer_Ressources(), 0);
    ASSERT_EQ(Ressources.size(), 120u);
    for (std::size_t k = 0; k < Ressources.size(); ++k) {
        const ClsJeuRessources& r = Ressources[k];
        EXPECT_GE(r.PositionX, 0);
        EXPECT_LE(r.PositionX, 100 * 16 - 32);
        EXPECT_GE(r.PositionY, 0);
        EXPECT_LE(r.PositionY, 75 * 16 - 32);
        for (int32_t f = 0; f < 4; ++f)
            EXPECT_FALSE(Se_Touchent(r, Chateau(f).PositionX, Chateau(f).PositionY, Param.ChateauxLargeur,
                                     Param.ChateauxHauteur))
                << k;
        for (std::size_t j = 0; j < k; ++j)
            EXPECT_FALSE(Se_Touchent(r, Ressources[j].PositionX, Ressources[j].PositionY, 32, 32)) << k << ' ' << j;
        ASSERT_GE(r.TypeTerrain, 0);
        ASSERT_LT(r.TypeTerrain, Param.NombreTerrainRessource);
        EXPECT_EQ(r.Nom, Param.TerrainRessources_Nom(r.TypeTerrain));
        EXPECT_EQ(r.TypeRessource, Param.TerrainRessources_TypeRessource(r.TypeTerrain));
        EXPECT_EQ(r.QuantiteDepart, Param.TerrainRessources_Quantite(r.TypeTerrain));
        EXPECT_EQ(r.Quantite, r.QuantiteDepart);
    }
}

TEST_F(Placement, LeTypeArrondiAuDelaDuDernierRevientAuPremierEtLesPartsSontEgales) {
    Definir_Graine(6);
    Preparer(300, 300, 2, 1, 4000);
    ASSERT_EQ(Placer_Ressources(), 0);
    const int32_t n = Param.NombreTerrainRessource;
    std::vector<int32_t> compte(static_cast<std::size_t>(n), 0);
    for (const ClsJeuRessources& r : Ressources) ++compte[static_cast<std::size_t>(r.TypeTerrain)];
    // Rounding gives 0 and n a half share each; n goes to 0, so every type has one share.
    const double part = 4000.0 / n;
    for (int32_t t = 0; t < n; ++t) EXPECT_NEAR(compte[static_cast<std::size_t>(t)], part, part * 0.25) << t;
}

TEST_F(Placement, LesVillageoisSontAuCentreDeLeurChateauEtLaMoitieDesHumainesSontDesFemmes) {
    Definir_Graine(7);
    Preparer(160, 120, 3, 200, 10);
    Fiefs[2].Peuple = 2;
    for (ClsJeuPerso& p : Persos)
        if (p.Fief == 2) p.Peuple = 2;
    ASSERT_EQ(Placer_Chateaux(), 0);
    ASSERT_EQ(Placer_Ressources(), 0);
    Placer_Persos();
    int32_t femmes = 0;
    for (std::size_t i = 0; i < Persos.size(); ++i) {
        const ClsJeuPerso& p = Persos[i];
        const ClsJeuBatiment& c = Chateau(p.Fief);
        EXPECT_EQ(p.PositionX, c.PositionX + Param.ChateauxLargeur / 2 - 12) << i;
        EXPECT_EQ(p.PositionY, c.PositionY + Param.ChateauxHauteur / 2 - 16) << i;
        EXPECT_EQ(p.DestinationX, p.PositionX);
        EXPECT_EQ(p.DestinationY, p.PositionY);
        EXPECT_TRUE(p.DansSonChateau);
        EXPECT_EQ(p.EstActif, static_cast<int32_t>(i) == PersoActif);
        if (p.Peuple != 0) EXPECT_FALSE(p.Feminin) << i;
        femmes += p.Feminin;
    }
    EXPECT_GT(femmes, 160);   // about 200 of the 399 humans other than the hero
    EXPECT_LT(femmes, 240);
}

TEST_F(Placement, UneCarteTropPetiteGardeLesChateauxQuiTiennentEtLaisseLesAutresVides) {
    Definir_Graine(8);
    Preparer(12, 12, 6, 1, 0);   // sites in rows 1 … 2 and columns 1 … 2: four of them
    EXPECT_EQ(Placer_Chateaux(), 2);
    for (int32_t f = 0; f < 4; ++f) EXPECT_TRUE(Chateau(f).Visible()) << f;
    for (int32_t f = 4; f < 6; ++f) EXPECT_FALSE(Chateau(f).Visible()) << f;
    Placer_Persos();   // the villagers of a fief with no castle stand where its slot says

    Preparer(9, 5, 3, 1, 0);   // no site at all
    EXPECT_EQ(Placer_Chateaux(), 3);
    for (int32_t f = 0; f < 3; ++f) EXPECT_FALSE(Chateau(f).Visible());
}

TEST_F(Placement, TropDeGisementsPourLeSolLibreSontRetiresApresAvoirPlaceCeQuiTient) {
    Definir_Graine(9);
    Preparer(8, 6, 1, 1, 60);   // 128 × 96 metres
    const int32_t abandons = Placer_Ressources();
    EXPECT_GT(abandons, 40);
    EXPECT_EQ(static_cast<std::size_t>(abandons) + Ressources.size(), 60u);
    EXPECT_GE(Ressources.size(), 2u);
    for (std::size_t k = 0; k < Ressources.size(); ++k)
        for (std::size_t j = 0; j < k; ++j)
            EXPECT_FALSE(Se_Touchent(Ressources[k], Ressources[j].PositionX, Ressources[j].PositionY, 32, 32));

    Preparer(1, 40, 1, 1, 5);   // narrower than a deposit
    EXPECT_EQ(Placer_Ressources(), 5);
    EXPECT_TRUE(Ressources.empty());
}

TEST_F(Placement, LaMemeGraineDonneLeMemePeuplement) {
    auto peupler = [this](uint64_t graine) {
        Definir_Graine(graine);
        Preparer(120, 90, 4, 5, 40);
        Placer_Chateaux();
        Placer_Ressources();
        Placer_Persos();
        Empreinte e;
        Empreindre_Monde(e);
        return e.Valeur();
    };
    EXPECT_EQ(peupler(10), peupler(10));
    EXPECT_NE(peupler(10), peupler(11));
}

}  // namespace

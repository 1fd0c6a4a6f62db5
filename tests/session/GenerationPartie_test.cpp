#include <gtest/gtest.h>

#include <sstream>

#include "MondeDeTest.h"
#include "ai/TestPoint.h"
#include "rules/Hasard.h"
#include "session/PreparerPartie.h"
#include "world/ModGenererMonde.h"

namespace {

class GenerationPartie : public MondeDeTest {
protected:
    static bool Gisement_Touche_Perso(const ClsJeuRessources& r, const ClsJeuPerso& p) {
        return Rectangles_Touchent(r.PositionX, r.PositionY, p.PositionX, p.PositionY, LargeurGisement,
                                   HauteurGisement, LargeurPerso, HauteurPerso);
    }
};

TEST_F(GenerationPartie, UnNouveauMondeSortCompletDePreparerPartie) {
    Definir_Graine(1);
    ASSERT_TRUE(Preparer_Partie(Nouveau_Monde({{0, 0, 5}, {1, 0, 5}, {2, 3, 5}}, 30)));
    EXPECT_EQ(Monde.NombreCases(), 81 * 101 + 1);
    for (int32_t k = 0; k < Monde.NombreCases(); ++k) ASSERT_NE(Monde.Type_Terrain(k), 1);
    for (const ClsJeuBatiment& c : Chateaux) {
        EXPECT_TRUE(c.Visible());
        EXPECT_GT(c.PositionX, 0);
    }
    EXPECT_EQ(Ressources.size(), 31u);
    for (const ClsJeuRessources& r : Ressources) EXPECT_GT(r.Quantite, 0);
    for (const ClsJeuPerso& p : Persos) {
        const ClsJeuBatiment& c = Chateaux[static_cast<std::size_t>(p.Fief)];
        EXPECT_EQ(p.PositionX, c.PositionX + Param.ChateauxLargeur / 2 - 12);
        EXPECT_TRUE(p.DansSonChateau);
    }
    EXPECT_TRUE(Persos[0].EstActif);
    EXPECT_EQ(Abandons.Chateaux, 0);
    EXPECT_EQ(Abandons.Gisements, 0);
}

TEST_F(GenerationPartie, UneBatailleAUnTerrainEtDesGisementsMaisAucunChateau) {
    Definir_Graine(2);
    ChoixPartie choix = Bataille(60, 60);
    choix.Gisements = 80;
    ASSERT_TRUE(Preparer_Partie(choix));
    EXPECT_EQ(Monde.NombreCases(), 121 * 161 + 1);
    for (const ClsJeuBatiment& c : Chateaux) EXPECT_FALSE(c.Visible());
    ASSERT_EQ(Ressources.size(), 81u);
    // Deposits keep clear of the enemy soldiers, as the hero of army 0 sees them.
    for (const ClsJeuRessources& r : Ressources)
        for (const ClsJeuPerso& p : Persos)
            if (p.Equipe != Persos[0].Equipe) EXPECT_FALSE(Gisement_Touche_Perso(r, p));
    for (const ClsJeuPerso& p : Persos) EXPECT_FALSE(p.DansSonChateau);   // soldiers stay in their blocks
}

TEST_F(GenerationPartie, LaMemeGraineDonneLeMemeMondeEntier) {
    auto monde = [this](uint64_t graine, const char* page) {
        Definir_Graine(graine);
        Creer_Heros_Actif();
        ChoixPartie choix = page == std::string(PageNouveauMonde) ? Nouveau_Monde({{0, 0, 20}, {1, 1, 20}}, 50)
                                                                    : Bataille(40, 30);
        EXPECT_TRUE(Preparer_Partie(choix));
        return Empreinte_Etat();
    };
    for (const char* page : {PageNouveauMonde, PageNouvelleBataille}) {
        const uint64_t a = monde(17, page);
        EXPECT_EQ(monde(17, page), a) << page;
        EXPECT_NE(monde(18, page), a) << page;
    }
}

TEST_F(GenerationPartie, UneCarteTropPetiteDonneUnMondeQuiDitCeQuIlALaisse) {
    Definir_Graine(3);
    ChoixPartie choix = Nouveau_Monde({{0, 0, 2}, {1, 0, 2}, {2, 0, 2}, {3, 0, 2}, {4, 0, 2}}, 60);
    choix.Largeur = 12;
    choix.Hauteur = 12;
    ASSERT_TRUE(Preparer_Partie(choix));
    EXPECT_EQ(Abandons.Chateaux, 1);   // four sites for five fiefs
    EXPECT_GT(Abandons.Gisements, 30);
    EXPECT_EQ(Ressources.size() + static_cast<std::size_t>(Abandons.Gisements), 61u);
    std::ostringstream sortie;
    Ecrire_Abandons(sortie);
    EXPECT_EQ(sortie.str(), "abandons=chateaux:1,gisements:" + std::to_string(Abandons.Gisements) + "\n");

    // The next set-up starts its count afresh.
    Creer_Heros_Actif();
    ASSERT_TRUE(Preparer_Partie(Nouveau_Monde({{0, 0, 2}, {1, 0, 2}}, 5)));
    EXPECT_EQ(Abandons.Chateaux, 0);
    EXPECT_EQ(Abandons.Gisements, 0);
}

TEST_F(GenerationPartie, LEtatDitOuSontLesChateaux) {
    Definir_Graine(4);
    ASSERT_TRUE(Preparer_Partie(Nouveau_Monde({{0, 0, 1}, {1, 0, 1}}, 0)));
    std::ostringstream sortie;
    Ecrire_Etat(sortie);
    const std::string texte = sortie.str();
    EXPECT_NE(texte.find("perso=0 fief=0"), std::string::npos);
    EXPECT_NE(texte.find("chateau=1 x=" + std::to_string(Chateaux[1].PositionX) +
                         " y=" + std::to_string(Chateaux[1].PositionY) + " vie="),
              std::string::npos);
}

}  // namespace

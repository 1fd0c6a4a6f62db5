#include <gtest/gtest.h>

#include <sstream>

#include "MondeDeTest.h"
#include "ai/TestPoint.h"
#include "rules/Hasard.h"
#include "session/PreparerPartie.h"
#include "world/ModGenererMonde.h"

namespace {

using GenerationPartie = MondeDeTest;

TEST_F(GenerationPartie, UneBatailleAUnTerrainEtDesGisementsMaisAucunChateau) {
    Definir_Graine(2);
    ChoixPartie choix = Bataille(60, 60);
    choix.Gisements = 80;
    ASSERT_TRUE(Preparer_Partie(choix));
    EXPECT_EQ(Monde.NombreCases(), 121 * 161 + 1);
    for (int32_t k = 0; k < Monde.NombreCases(); ++k) ASSERT_NE(Monde.Type_Terrain(k), 1) << k;   // all shaped
    for (const ClsJeuBatiment& c : Chateaux) EXPECT_FALSE(c.Visible());
    ASSERT_EQ(Ressources.size(), 81u);
    // Deposits keep clear of the enemy soldiers, as the hero of army 0 sees them.
    for (const ClsJeuRessources& r : Ressources)
        for (const ClsJeuPerso& p : Persos)
            EXPECT_FALSE(p.Equipe != Persos[0].Equipe &&
                         Rectangles_Touchent(r.PositionX, r.PositionY, p.PositionX, p.PositionY, LargeurGisement,
                                             HauteurGisement, LargeurPerso, HauteurPerso));
    for (const ClsJeuPerso& p : Persos) EXPECT_FALSE(p.DansSonChateau);   // soldiers stay in their blocks
}

TEST_F(GenerationPartie, LaMemeGraineDonneLeMemeMondeEntier) {
    for (const char* page : {PageNouveauMonde, PageNouvelleBataille}) {
        auto monde = [page](uint64_t graine) {
            Definir_Graine(graine);
            Creer_Heros_Actif();
            const bool nouveau = page == std::string(PageNouveauMonde);
            EXPECT_TRUE(Preparer_Partie(nouveau ? Nouveau_Monde({{0, 0, 20}, {1, 1, 20}}, 50) : Bataille(40, 30)));
            return Empreinte_Etat();
        };
        const uint64_t a = monde(17);
        EXPECT_EQ(monde(17), a) << page;
        EXPECT_NE(monde(18), a) << page;
    }
}

TEST_F(GenerationPartie, UneCarteTropPetiteDonneUnMondeQuiDitCeQuIlALaisse) {
    Definir_Graine(3);
    ChoixPartie choix = Nouveau_Monde({{0, 0, 2}, {1, 0, 2}, {2, 0, 2}, {3, 0, 2}, {4, 0, 2}}, 60);
    choix.Largeur = choix.Hauteur = 12;
    ASSERT_TRUE(Preparer_Partie(choix));
    EXPECT_EQ(Abandons.Chateaux, 1);   // four sites for five fiefs
    EXPECT_GT(Abandons.Gisements, 30);
    EXPECT_EQ(Ressources.size() + static_cast<std::size_t>(Abandons.Gisements), 61u);
    std::ostringstream sortie;
    Ecrire_Abandons(sortie);
    EXPECT_EQ(sortie.str(), "abandons=chateaux:1,gisements:" + std::to_string(Abandons.Gisements) + "\n");

    Creer_Heros_Actif();   // the next set-up, a battle without castles, starts its count afresh
    ASSERT_TRUE(Preparer_Partie(Bataille(5, 5)));
    EXPECT_EQ(Abandons.Chateaux + Abandons.Gisements, 0);
}

}  // namespace

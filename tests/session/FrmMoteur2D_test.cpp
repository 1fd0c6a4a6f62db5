#include "session/FrmMoteur2D.h"

#include <utility>

#include "MondeDeTest.h"

namespace {

class BoucleDeJeu : public MondeDeTest {
protected:
    FenetreMuette fenetre;
    EcranNul ecran;
    SourisMuette souris;
    ClavierMuet clavier;
    FrmMoteur2D moteur{Peripheriques{fenetre, ecran, souris, clavier}};

    void Ouvrir() { ASSERT_TRUE(moteur.Ouvrir(Nouveau_Monde({{0, 0, 2}, {1, 0, 2}}))); }

    // n passes of the loop, the clock moving on by pas before each; then the ticks and renders
    // since the opening.
    std::pair<int64_t, int32_t> Passes(int n, float pas) {
        for (int i = 0; i < n; ++i) {
            Avancer_Horloge(pas);
            moteur.Passe();
        }
        return {moteur.NombreTours, moteur.NombreImages};
    }
};

TEST_F(BoucleDeJeu, AQuaranteEtQuaranteChaqueImageSuitUnTourSaufEnPause) {
    Ouvrir();
    EXPECT_EQ(Passes(30, 0.01f), std::pair(10L, 10));   // every third pass, when 0.03 s have gone by
    EXPECT_EQ(ecran.ImagesPresentees, 10);
    EXPECT_EQ(Passes(7, 1.5f / 40), std::pair(17L, 17));
    Jeu.Pause = true;
    EXPECT_EQ(Passes(12, 0.05f), std::pair(17L, 29));
    Jeu.Pause = false;
    EXPECT_EQ(Passes(3, 0.05f), std::pair(20L, 32));
}

TEST_F(BoucleDeJeu, AMinuitLHorlogeRetombeEtLaPasseTourneEtDessine) {
    Piloter_Horloge(SecondesParJour - 0.01f);
    Ouvrir();
    EXPECT_EQ(Passes(1, 0.02f), std::pair(1L, 1));
    EXPECT_LT(moteur.Ecart, 0.0f);
    EXPECT_EQ(Passes(1, 0.005f), std::pair(1L, 1));   // back to normal: too soon for another tick
    EXPECT_FALSE(Periode_Ecoulee(0.025f, 40));   // the limit is strict
    EXPECT_TRUE(Periode_Ecoulee(0.0251f, 40));
    EXPECT_FALSE(Periode_Ecoulee(-0.02f, 40));
    EXPECT_TRUE(Periode_Ecoulee(-86399.0f, 40));
}

TEST_F(BoucleDeJeu, FinPartieArreteLaBoucle) {
    int lectures = 0;
    float t = 0;
    Definir_Source_Horloge([&] {
        if (++lectures == 200) FinPartie = true;
        return t += 0.04f;
    });
    moteur.MoteurJeu(Nouveau_Monde({{0, 0, 1}, {1, 0, 1}}));
    EXPECT_EQ(lectures, 200);
    EXPECT_EQ(moteur.NombreTours, 199);   // the opening reads the clock once
}

TEST_F(BoucleDeJeu, FPSMesureCompteLesImagesDeLaDerniereSeconde) {
    Ouvrir();
    Passes(16, 0.0625f);   // exactly 1.0 s: the second is not yet over
    EXPECT_EQ(moteur.FPSMesure, 0);
    Passes(1, 0.0625f);
    EXPECT_EQ(moteur.FPSMesure, 17);
    EXPECT_EQ(moteur.ImagesSeconde, 0);
}

TEST_F(BoucleDeJeu, VictoireEtDefaiteSuiventLesChateauxEtLesMorts) {
    Ouvrir();
    Passes(1, 0.05f);
    EXPECT_FALSE(Victoire || Defaite);
    Chateaux[0].Vie = 0;   // the hero's fief falls while the enemy castle stands: lost
    Fiefs[0].NombreMorts = Fiefs[0].NombreSujets;
    Passes(1, 0.05f);
    EXPECT_EQ(std::pair(Victoire, Defaite), std::pair(false, true));

    // The enemy fief has lost its castle and all its subjects too: won, since the win is
    // tested first; and sticky, with the world running on under the picture.
    Defaite = false;
    Chateaux[1].Vie = 0;
    Fiefs[1].NombreMorts = Fiefs[1].NombreSujets;
    Passes(1, 0.05f);
    EXPECT_EQ(std::pair(Victoire, Defaite), std::pair(true, false));
    Fiefs[1].NombreMorts = 0;
    EXPECT_EQ(Passes(3, 0.05f).first, 6);
    EXPECT_TRUE(Victoire);

    // With no enemy fief at all the game is won at once, on a pass with no tick and no render.
    ASSERT_TRUE(moteur.Ouvrir(Nouveau_Monde({{0, 0, 2}, {0, 0, 2}})));
    Passes(1, 0.001f);
    EXPECT_TRUE(Victoire);
}

}  // namespace

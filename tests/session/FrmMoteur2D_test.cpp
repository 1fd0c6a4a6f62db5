#include "session/FrmMoteur2D.h"

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

    void Passes(int n, float pas) {
        for (int i = 0; i < n; ++i) {
            Avancer_Horloge(pas);
            moteur.Passe();
        }
    }
};

TEST_F(BoucleDeJeu, AQuaranteEtQuaranteChaqueImageSuitUnTour) {
    Ouvrir();
    Passes(30, 0.01f);   // a tick and a render every third pass, when 0.03 s have gone by
    EXPECT_EQ(moteur.NombreTours, 10);
    EXPECT_EQ(moteur.NombreImages, 10);
    EXPECT_EQ(ecran.ImagesPresentees, 10);
    Passes(7, 1.5f / 40);
    EXPECT_EQ(moteur.NombreTours, 17);
    EXPECT_EQ(moteur.NombreImages, 17);
}

TEST_F(BoucleDeJeu, EnPauseLesImagesContinuentSansTour) {
    Ouvrir();
    Jeu.Pause = true;
    Passes(12, 0.05f);
    EXPECT_EQ(moteur.NombreTours, 0);
    EXPECT_EQ(moteur.NombreImages, 12);
    Jeu.Pause = false;
    Passes(3, 0.05f);
    EXPECT_EQ(moteur.NombreTours, 3);
}

TEST_F(BoucleDeJeu, AMinuitLHorlogeRetombeEtLaPasseTourneEtDessine) {
    Piloter_Horloge(SecondesParJour - 0.01f);
    Ouvrir();
    Passes(1, 0.02f);
    EXPECT_LT(moteur.Ecart, 0.0f);
    EXPECT_EQ(moteur.NombreTours, 1);
    EXPECT_EQ(moteur.NombreImages, 1);
    Passes(1, 0.005f);   // back to normal: too soon for another tick
    EXPECT_EQ(moteur.NombreTours, 1);
}

TEST_F(BoucleDeJeu, FinPartieArreteLaBoucle) {
    int lectures = 0;
    float t = 0;
    Definir_Source_Horloge([&] {
        if (++lectures == 200) FinPartie = true;
        return t += 0.04f;
    });
    moteur.MoteurJeu(Nouveau_Monde({{0, 0, 1}, {1, 0, 1}}));
    EXPECT_TRUE(FinPartie);
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
    EXPECT_FALSE(Victoire);
    EXPECT_FALSE(Defaite);

    // The enemy fief has lost its castle and all its subjects: won, even with the hero's
    // own fief fallen too, since the win is tested first.
    Chateaux[1].Vie = 0;
    Chateaux[0].Vie = 0;
    Fiefs[1].NombreMorts = Fiefs[1].NombreSujets;
    Fiefs[0].NombreMorts = Fiefs[0].NombreSujets;
    Passes(1, 0.05f);
    EXPECT_TRUE(Victoire);
    EXPECT_FALSE(Defaite);

    // Sticky: the world keeps running under the picture.
    Fiefs[1].NombreMorts = 0;
    Passes(3, 0.05f);
    EXPECT_TRUE(Victoire);
    EXPECT_EQ(moteur.NombreTours, 5);
}

TEST_F(BoucleDeJeu, LeFiefDuHerosTombeEtLaPartieEstPerdue) {
    Ouvrir();
    Chateaux[1].Vie = 1;   // the enemy castle stands
    Chateaux[0].Vie = 0;
    Fiefs[0].NombreMorts = Fiefs[0].NombreSujets;
    Passes(1, 0.05f);
    EXPECT_FALSE(Victoire);
    EXPECT_TRUE(Defaite);
}

TEST_F(BoucleDeJeu, SansFiefEnnemiLaPartieEstGagneeAussitot) {
    ASSERT_TRUE(moteur.Ouvrir(Nouveau_Monde({{0, 0, 2}, {0, 0, 2}})));
    Passes(1, 0.001f);   // no tick, no render: the end check runs on every pass
    EXPECT_EQ(moteur.NombreImages, 0);
    EXPECT_TRUE(Victoire);
}

TEST(Periode, LaLimiteEstStricteEtLaBrancheNegativeCouvreMinuit) {
    EXPECT_FALSE(Periode_Ecoulee(0.025f, 40));
    EXPECT_TRUE(Periode_Ecoulee(0.0251f, 40));
    EXPECT_FALSE(Periode_Ecoulee(-0.02f, 40));
    EXPECT_TRUE(Periode_Ecoulee(-86399.0f, 40));
}

}  // namespace

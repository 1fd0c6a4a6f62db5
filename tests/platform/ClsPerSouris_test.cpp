// The mouse of play: the pointer kept on the game image, the wheel, one click per press.
#include <gtest/gtest.h>

#include "Environnement.h"
#include "Images.h"
#include "Support.h"
#include "platform/ClsPerEcran.h"
#include "platform/ClsPerSouris.h"

namespace {

class Souris : public ::testing::Test {
protected:
    void SetUp() override { Ecrire_Ini_Ecran(jeu, true, {{800, 600}}, 1); }
    DossierTemporaire jeu;
};

TEST_F(Souris, LePointeurResteSurLImageBordsCompris) {
    struct Cas {
        int32_t x, y, dx, dy, x2, y2;
    } const cas[] = {
        {10, 10, 5, -3, 15, 7},       {10, 10, -20, 0, 0, 10},     {10, 10, 0, -11, 10, 0},
        {790, 590, 20, 20, 800, 600}, {800, 600, 1, 1, 800, 600},  {0, 0, -1, -1, 0, 0},
        {400, 300, 0, 0, 400, 300},   {799, 0, 1, 600, 800, 600},
    };
    const ClsPerEcran ecran;
    ClsPerSouris s(ecran);
    for (const Cas& c : cas) {
        int32_t x = c.x, y = c.y, z = 0;
        s.Etat.lX = c.dx;
        s.Etat.lY = c.dy;
        s.Appliquer(x, y, z);
        EXPECT_EQ(x, c.x2) << c.x << "+" << c.dx;
        EXPECT_EQ(y, c.y2) << c.y << "+" << c.dy;
    }
}

TEST_F(Souris, LaMoletteSAdditionneSansLimite) {
    const ClsPerEcran ecran;
    ClsPerSouris s(ecran);
    int32_t x = 0, y = 0, z = 0;
    for (const auto& [cran, total] : {std::pair{1, 1}, std::pair{1, 2}, std::pair{-3, -1}, std::pair{100000, 99999}}) {
        s.Etat.lZ = cran;
        s.Appliquer(x, y, z);
        EXPECT_EQ(z, total);
    }
}

// Button states pass after pass; a click only on the pass where the button goes down, and
// not for a button already down at the first reading.
TEST_F(Souris, UnCliqueParPression) {
    struct Passe {
        uint8_t gauche, droit;
        bool cliqueGauche, cliqueDroit;
    } const passes[] = {
        {0x80, 0, false, false}, {0x80, 0, false, false}, {0, 0, false, false},      {0x80, 0, true, false},
        {0x80, 0x80, false, true}, {0x80, 0x80, false, false}, {0, 0x80, false, false}, {0x80, 0, true, false},
        {0, 0x80, false, true},  {0x80, 0x80, true, false},
    };
    const ClsPerEcran ecran;
    ClsPerSouris s(ecran);
    int n = 0;
    for (const Passe& p : passes) {
        s.Etat.Boutons = {p.gauche, p.droit, 0, 0};
        EXPECT_EQ(s.Clique(0), p.cliqueGauche) << "passe " << n;
        EXPECT_EQ(s.Clique(1), p.cliqueDroit) << "passe " << n;
        ++n;
    }
    EXPECT_FALSE(s.Clique(3));
}

TEST(SourisCentre, MoitieArrondieALaPaire) {
    struct Cas {
        int largeur, hauteur, x, y;
    } const cas[] = {{800, 600, 400, 300}, {1025, 769, 512, 384}, {1027, 771, 514, 386}};
    for (const Cas& c : cas) {
        DossierTemporaire jeu;
        Ecrire_Ini_Ecran(jeu, true, {{c.largeur, c.hauteur}}, 1);
        const ClsPerEcran ecran;
        ClsPerSouris s(ecran);
        int32_t x = -1, y = -1;
        s.Centrer_curseur(x, y);
        EXPECT_EQ(x, c.x) << c.largeur;
        EXPECT_EQ(y, c.y) << c.hauteur;
    }
}

// Without a focused game window the mouse is not taken: Active is false, the pointer stays,
// and every pass tries again.
TEST_F(Souris, SansFenetreEnAvantLaSourisNEstPasPrise) {
    VariableTemporaire pilote("SDL_VIDEODRIVER", "dummy");
    const ClsPerEcran sansEcran;
    ClsPerSouris s(sansEcran);
    s.Init();
    EXPECT_FALSE(s.Active());

    ClsPerEcran ecran;
    jeu.Ecrire("Images/Fond800.bmp", Bmp_24(1, {0x101010}));
    ASSERT_TRUE(ecran.Init());
    ClsPerSouris t(ecran);
    t.Init();
    EXPECT_FALSE(t.Active());   // the dummy window never has the keyboard focus
    int32_t x = 12, y = 34, z = 5;
    t.Etat.lX = 50;
    t.Positions(x, y, z);
    EXPECT_EQ(x, 12);
    EXPECT_EQ(y, 34);
    EXPECT_EQ(z, 5);
    EXPECT_FALSE(t.Active());
}

}  // namespace

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "Support.h"
#include "characters/ClsJeuEffet.h"
#include "rules/ClsJeuParam.h"

namespace {

// Effect 0: 32 × 32, four steps of two drawings. Effect 1: 63 × 45, one step of one drawing.
// Effect 2: 20 × 20, three steps of three drawings.
constexpr std::string_view Effets = R"([Effets]
NombreEffets=3
EffetMaisonEnFeu=1
EffetMaisonDetruite=2
EffetChateauDetruit=3
[Effet_1]
Nom=Coup
Fichier=Coup
Largeur=32
Hauteur=32
NombreEtapes=4
DureeEtape=2
[Effet_2]
Nom=Eclair
Fichier=Eclair
Largeur=63
Hauteur=45
NombreEtapes=1
DureeEtape=1
[Effet_3]
Nom=Fumee
Fichier=Fumee
Largeur=20
Hauteur=20
NombreEtapes=3
DureeEtape=3
)";

class Effet_Test : public ::testing::Test {
protected:
    DossierTemporaire jeu;
    ClsJeuParam param;
    ClsJeuEffet effet;
    void SetUp() override {
        jeu.Ecrire("Ini_Parametres_Effets.ini", Effets);
        param.Init(6);
    }
    // Steps drawn until the slot goes idle, with a bound so that a slot that never ends fails.
    std::vector<int16_t> Jouer() {
        std::vector<int16_t> etapes;
        while (effet.Actif && etapes.size() < 100) etapes.push_back(effet.Etape_Effet());
        return etapes;
    }
};

}  // namespace

TEST_F(Effet_Test, UnEmplacementNeufEstInactif) {
    EXPECT_FALSE(ClsJeuEffet{}.Actif);
    EXPECT_EQ(ClsJeuEffet{}.EtapeCourante, 0);
}

TEST_F(Effet_Test, ActiverCentreLAnimationSurLaBoite) {
    effet.Activer_Effet(0, 100, 200, 24, 32, param, false);
    EXPECT_TRUE(effet.Actif);
    EXPECT_EQ(effet.Type, 0);
    EXPECT_EQ(effet.PositionX, 96);
    EXPECT_EQ(effet.PositionY, 200);
    EXPECT_EQ(effet.DureeEtape, 2);
    EXPECT_EQ(effet.NombreEtapes, 4);
    EXPECT_EQ(effet.EtapeCourante, 0);

    // Larger than its box: the top left lies outside it, by half the difference rounded to
    // nearest, ties to even (80.5 -> 80, 193.5 -> 194).
    ClsJeuEffet grand;
    grand.Activer_Effet(1, 100, 200, 24, 32, param, false);
    EXPECT_EQ(grand.PositionX, 80);
    EXPECT_EQ(grand.PositionY, 194);
}

TEST_F(Effet_Test, LesEtapesSuiventLaDureeEtFinissent) {
    effet.Activer_Effet(0, 0, 0, 32, 32, param, false);
    // 0, 0.5, 1, ... 3.5 rounded ties to even; 3.5 gives 4, a step with no picture.
    EXPECT_EQ(Jouer(), (std::vector<int16_t>{0, 0, 1, 2, 2, 2, 3, 4}));
    EXPECT_FALSE(effet.Actif);

    effet.Activer_Effet(2, 0, 0, 32, 32, param, false);
    EXPECT_EQ(Jouer(), (std::vector<int16_t>{0, 0, 1, 1, 1, 2, 2, 2, 3}));

    // One step of one drawing: step 0 once, then idle.
    effet.Activer_Effet(1, 0, 0, 32, 32, param, false);
    EXPECT_EQ(effet.Etape_Effet(), 0);
    EXPECT_FALSE(effet.Actif);
}

TEST_F(Effet_Test, UnEffetNonForceNInterromptPasCeluiQuiJoue) {
    effet.Activer_Effet(0, 100, 200, 24, 32, param, false);
    for (int i = 0; i < 3; ++i) effet.Etape_Effet();
    effet.Activer_Effet(2, 0, 0, 10, 10, param, false);
    EXPECT_EQ(effet.Type, 0);
    EXPECT_EQ(effet.PositionX, 96);
    EXPECT_EQ(effet.EtapeCourante, 1.5);
    EXPECT_EQ(Jouer(), (std::vector<int16_t>{2, 2, 2, 3, 4}));

    // Once idle, the slot takes a new effect without forcing.
    effet.Activer_Effet(2, 0, 0, 10, 10, param, false);
    EXPECT_TRUE(effet.Actif);
    EXPECT_EQ(effet.Type, 2);
}

TEST_F(Effet_Test, UnEffetForceRedemarreLEmplacement) {
    effet.Activer_Effet(0, 100, 200, 24, 32, param, false);
    for (int i = 0; i < 3; ++i) effet.Etape_Effet();
    effet.Activer_Effet(2, 0, 0, 10, 10, param, true);
    EXPECT_TRUE(effet.Actif);
    EXPECT_EQ(effet.Type, 2);
    EXPECT_EQ(effet.PositionX, -5);
    EXPECT_EQ(effet.PositionY, -5);
    EXPECT_EQ(effet.EtapeCourante, 0);
    EXPECT_EQ(effet.DureeEtape, 3);
    EXPECT_EQ(effet.NombreEtapes, 3);
    EXPECT_EQ(Jouer().size(), 9u);
}

TEST_F(Effet_Test, LEmpreinteCouvreChaqueChamp) {
    const auto empreinte = [](const ClsJeuEffet& x) {
        Empreinte e;
        x.Empreindre(e);
        return e.Valeur();
    };
    const std::vector<std::function<void(ClsJeuEffet&)>> changements = {
        [](ClsJeuEffet& x) { x.Type = 3; },          [](ClsJeuEffet& x) { x.PositionX = 1; },
        [](ClsJeuEffet& x) { x.PositionY = 1; },     [](ClsJeuEffet& x) { x.DureeEtape = 2; },
        [](ClsJeuEffet& x) { x.NombreEtapes = 4; },  [](ClsJeuEffet& x) { x.EtapeCourante = 0.5; },
        [](ClsJeuEffet& x) { x.Actif = true; },
    };
    const uint64_t neuf = empreinte(ClsJeuEffet{});
    for (std::size_t i = 0; i < changements.size(); ++i) {
        ClsJeuEffet x;
        changements[i](x);
        EXPECT_NE(empreinte(x), neuf) << "champ " << i;
    }
}

#include <gtest/gtest.h>

#include <functional>
#include <tuple>
#include <vector>

#include "characters/ClsJeuEffet.h"
#include "rules/Chemins.h"
#include "rules/ClsJeuParam.h"

namespace {

// The effects of the default rules: 0 is 32 × 32, four steps of two drawings; 4 is 48 × 48,
// six steps of two drawings; 10 is 48 × 64.
class Effet_Test : public ::testing::Test {
protected:
    ClsJeuParam param;
    ClsJeuEffet effet;
    void SetUp() override {
        Definir_Dossier_Jeu(KORVALIS_DATA);
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

TEST_F(Effet_Test, ActiverCentreLAnimationQuiSuitSesEtapesEtNInterromptQueSiForce) {
    EXPECT_FALSE(effet.Actif);
    effet.Activer_Effet(0, 100, 200, 24, 32, param, false);
    EXPECT_TRUE(effet.Actif);
    EXPECT_EQ(effet.PositionX, 96);
    EXPECT_EQ(effet.PositionY, 200);
    // 0, 0.5, 1, ... 3.5 rounded ties to even; 3.5 gives 4, a step with no picture.
    EXPECT_EQ(Jouer(), (std::vector<int16_t>{0, 0, 1, 2, 2, 2, 3, 4}));
    EXPECT_FALSE(effet.Actif);

    // Larger than its box: the top left lies outside it, by half the difference rounded to
    // nearest, ties to even (89.5 -> 90, 184.5 -> 184).
    effet.Activer_Effet(10, 101, 200, 25, 33, param, false);
    EXPECT_EQ(effet.PositionX, 90);
    EXPECT_EQ(effet.PositionY, 184);

    // Unless forced, an effect does not interrupt the one playing.
    effet.Activer_Effet(0, 100, 200, 24, 32, param, true);
    for (int i = 0; i < 3; ++i) effet.Etape_Effet();
    effet.Activer_Effet(4, 0, 0, 10, 10, param, false);
    EXPECT_EQ(effet.Type, 0);
    EXPECT_EQ(effet.PositionX, 96);
    EXPECT_EQ(effet.EtapeCourante, 1.5);

    effet.Activer_Effet(4, 0, 0, 10, 10, param, true);
    EXPECT_EQ(effet.Type, 4);
    EXPECT_EQ(effet.PositionX, -19);
    EXPECT_EQ(effet.EtapeCourante, 0);
    EXPECT_EQ(Jouer().size(), 12u);
    effet.Activer_Effet(0, 0, 0, 10, 10, param, false);   // once idle, no need to force
    EXPECT_EQ(effet.Type, 0);

    // No effect (a negative type) or a type past the table, even forced: the slot plays on.
    for (int16_t type : {int16_t{-1}, param.NombreEffets}) {
        effet.Activer_Effet(type, 50, 50, 10, 10, param, true);
        EXPECT_EQ(std::tuple(effet.Type, effet.PositionX, effet.Actif), std::tuple(0, -11, true)) << type;
    }
}

TEST_F(Effet_Test, LEmpreinteCouvreChaqueChamp) {
    const auto empreinte = [](const ClsJeuEffet& x) {
        Empreinte e;
        x.Empreindre(e);
        return e.Valeur();
    };
    using E = ClsJeuEffet;
    const std::vector<std::function<void(E&)>> changements = {
        [](E& x) { x.Type = 3; },        [](E& x) { x.PositionX = 1; },   [](E& x) { x.PositionY = 1; },
        [](E& x) { x.DureeEtape = 2; },  [](E& x) { x.NombreEtapes = 4; }, [](E& x) { x.EtapeCourante = 0.5; },
        [](E& x) { x.Actif = true; },
    };
    for (std::size_t i = 0; i < changements.size(); ++i) {
        E x;
        changements[i](x);
        EXPECT_NE(empreinte(x), empreinte(E{})) << "champ " << i;
    }
}

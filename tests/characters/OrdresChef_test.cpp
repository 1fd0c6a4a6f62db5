// A leader's orders: the places of each formation, how many obey a charge and what the
// leader says, and a stop.
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "ReglesParDefaut.h"
#include "characters/ModDialogue.h"

namespace {

// Leader 0 at (1000, 1000) and n followers; everyone decides for itself.
class OrdresChef : public ReglesParDefaut {
protected:
    void SetUp() override {
        ReglesParDefaut::SetUp();
        Commentaires.Charger();
    }
    void Troupe(int n) {
        Peupler(n + 1);
        Monde.Largeur = Monde.Hauteur = 200;
        for (ClsJeuPerso& p : Persos) {
            p.PositionX = p.PositionY = p.DestinationX = p.DestinationY = 1000;
            p.ModeAuto = true;
            p.Chef = p.Numero == 0 ? -1 : 0;
        }
        Persos[0].NombreInvocations = n;
    }
    static bool Dit(const ClsJeuPerso& p, int type) {
        for (int k = 0; k < Commentaires.Nombre_Messages(type); ++k)
            if (p.Commentaire == Commentaires.Phrase(type, k)) return true;
        return false;
    }
    static std::vector<std::pair<int32_t, int32_t>> Places() {
        std::vector<std::pair<int32_t, int32_t>> places;
        for (std::size_t k = 1; k < Persos.size(); ++k)
            places.emplace_back(Persos[k].DecalageChefX, Persos[k].DecalageChefY);
        return places;
    }
};

TEST_F(OrdresChef, ChaqueFormationPlaceSesSuivantsEnRangsCentresSurLeChef) {
    Troupe(9);
    Persos[0].Formation = 1;   // rows of 4 going north, the first one place north of the leader
    Placer_Formation(0, false, false);
    EXPECT_EQ(Places(), (std::vector<std::pair<int32_t, int32_t>>{{-36, -24}, {-12, -24}, {12, -24}, {36, -24},
                                                                 {-36, -48}, {-12, -48}, {12, -48}, {36, -48},
                                                                 {-36, -72}}));
    EXPECT_TRUE(Dit(Persos[0], 22));
    Placer_Formation(0, true, true);   // 2: the same rows going south, said nothing
    EXPECT_EQ(Persos[0].Formation, 2);
    EXPECT_EQ(std::pair(Persos[9].DecalageChefX, Persos[9].DecalageChefY), std::pair(-36, 72));
    Persos[0].Formation = 3;   // columns going west
    Placer_Formation(0, false, true);
    EXPECT_EQ(std::pair(Persos[1].DecalageChefX, Persos[1].DecalageChefY), std::pair(-24, -36));
    EXPECT_EQ(std::pair(Persos[5].DecalageChefX, Persos[5].DecalageChefY), std::pair(-48, -36));
    Persos[0].Formation = 0;   // a block of 3 × 3 centred on the leader; 9 gives k = 4 (4.5 to even)
    Placer_Formation(0, false, true);
    EXPECT_EQ(std::pair(Persos[1].DecalageChefX, Persos[1].DecalageChefY), std::pair(-24, 24));
    EXPECT_EQ(std::pair(Persos[9].DecalageChefX, Persos[9].DecalageChefY), std::pair(24, -24));
    // Without followers only the formation changes.
    Troupe(0);
    Placer_Formation(0, true, true);
    EXPECT_EQ(Persos[0].Formation, 1);
}

TEST_F(OrdresChef, UneChargeCompteCeuxQuiObeissentEtLeChefLeDit) {
    Troupe(14);
    Persos[3].Attaquer_Perso(0);   // already fighting: passed over, not counted
    Persos[3].Chef = 0;
    Ordonner_Charge(0, 0, 2, true, true, false);   // ctrl and shift: 10
    int32_t obeissants = 0, dernier = 0;
    for (int32_t k = 1; k <= 14; ++k)
        if (k != 3 && Persos[static_cast<std::size_t>(k)].Definir_Action() == 300) ++obeissants, dernier = k;
    EXPECT_EQ(std::pair(obeissants, dernier), std::pair(10, 11));
    EXPECT_TRUE(Dit(Persos[0], 26));
    // A charge with no target at its attacker: 3 fights the leader.
    Persos[5].Arreter();
    Ordonner_Charge(0, -1, -1, true, false, false);   // ctrl: 1
    EXPECT_EQ(std::pair(Persos[5].PersoCible, Persos[5].Definir_Action()), std::pair(3, int16_t{300}));
    EXPECT_TRUE(Dit(Persos[0], 24));
    // Nobody to obey: the formation's word, then 32 replaces it.
    Troupe(0);
    Ordonner_Charge(0, -1, -1, false, false, false);
    EXPECT_TRUE(Dit(Persos[0], 32));
}

TEST_F(OrdresChef, UnArretNArreteQueLesVivantsEtNeSeDitQuAvecEux) {
    Troupe(2);
    for (int k : {1, 2}) Persos[static_cast<std::size_t>(k)].Aller_A(0, 0);
    Persos[2].Vie.Valeur = 0;
    Ordonner_Arret(0);
    EXPECT_EQ(std::pair(Persos[1].Definir_Action(), Persos[2].Definir_Action()), std::pair(int16_t{0}, int16_t{1}));
    EXPECT_TRUE(Dit(Persos[0], 21));
    Persos[0].Commentaire.clear();
    Persos[1].Vie.Valeur = 0;
    Ordonner_Arret(0);
    EXPECT_TRUE(Persos[0].Commentaire.empty());
}

}  // namespace

#include <gtest/gtest.h>

#include <tuple>

#include "Pensee.h"
#include "ai/ModIA.h"
#include "ai/TablesIA.h"
#include "rules/ClsJeuParam.h"
#include "world/Globales.h"

namespace {

class Equipement : public Pensee {
protected:
    void SetUp() override {
        Pensee::SetUp();
        ASSERT_EQ(Param.Objet_Categorie(Gourdin), 0);
        ASSERT_EQ(Param.Objet_PrixVente(Gourdin), 40);
        ASSERT_EQ(Param.Objet_PrixVente(BouclierBois), 75);
        ASSERT_EQ(Param.Objet_PrixVente(CanneAPeche), 25);
        ASSERT_EQ(Param.Objet_PrixVente(HacheBucheron), Param.Objet_PrixVente(Pioche));
        ASSERT_EQ(Param.Objet_Categorie(Baton), 1);
        ASSERT_EQ(Param.Objet_PrixVente(ArcCourt), 80);
        ASSERT_EQ(Param.Objet_Categorie(Tunique), 2);
        ASSERT_TRUE(Param.Objet_UtilisationUnique(FioleDeSoins));
        ASSERT_TRUE(Param.Objet_Utilisable(BaguetteDeSoins));
        ASSERT_FALSE(Param.Objet_UtilisationUnique(BaguetteDeSoins));
    }

    // Character 0 wearing what is given in equipment slots 0, 1 and 2 (-1 for nothing), the
    // newcomer in inventory slot 0, where the shared cursor stands.
    static ClsJeuPerso& Porter(int16_t main0, int16_t main1, int16_t corps, int16_t nouveau) {
        ClsJeuPerso& p = P(0);
        p.Objet_Equipes_Vider_Tout();
        p.Objet_Inventaire_Vider_Tout();
        for (int slot = 0; slot < 3; ++slot) {
            const int16_t o = slot == 0 ? main0 : slot == 1 ? main1 : corps;
            if (o >= 0) p.Objet_Equipe_Charger(slot, o);
        }
        p.Objet_Inventaire_Charger(0, nouveau);
        CurseurInventaire = 0;
        return p;
    }
};

TEST_F(Equipement, IlPorteCeQuiVautAuMoinsCeQuIlRemplace) {
    constexpr int16_t rien = -1;
    // (slot 0, slot 1, body, newcomer, worn after the thought)
    for (const auto& [main0, main1, corps, nouveau, porte] : {
             std::tuple{Gourdin, CanneAPeche, rien, BouclierBois, true},   // both hands full, dearer than slot 0
             std::tuple{Gourdin, CanneAPeche, rien, CanneAPeche, false},   // cheaper than slot 0
             std::tuple{HacheBucheron, CanneAPeche, rien, Pioche, true},   // a tie takes the newcomer
             std::tuple{Gourdin, rien, rien, CanneAPeche, true},           // a free hand
             std::tuple{rien, rien, rien, Baton, true},                    // both hands free
             std::tuple{Gourdin, rien, rien, Baton, false},                // against slot 0
             std::tuple{Gourdin, rien, rien, ArcCourt, true},              //
             std::tuple{rien, rien, RobeDeBure, Tunique, false},           // against the slot of the category
             std::tuple{rien, rien, RobeDeBure, CotteDeMailles, true}}) {  //
        ClsJeuPerso& p = Porter(main0, main1, corps, nouveau);
        Equiper_Auto(0);
        EXPECT_EQ(p.ObjetsInventaire[0].Type != nouveau, porte) << nouveau << " sur " << main0 << ',' << main1;
    }
}

// Without IA_Equiper nothing moves; what is used once is kept for combat.
TEST_F(Equipement, SansIAEquiperRienNeBougeCeQuiSeConsommeServiUneFoisGardePourLeCombat) {
    ClsJeuPerso& p = Porter(-1, -1, -1, Gourdin);
    p.IA_Equiper = false;
    Equiper_Auto(0);
    EXPECT_EQ(std::pair(p.ObjetsInventaire[0].Type, CurseurInventaire), std::pair(Gourdin, int16_t{0}));
    p.IA_Equiper = true;
    Porter(-1, -1, -1, FioleDeSoins);
    Equiper_Auto(0);
    EXPECT_EQ(std::pair(p.ObjetsInventaire[0].Type, p.ObjetUtilise), std::pair(FioleDeSoins, int16_t{-1}));

    CurseurInventaire = 0;
    p.Attaquer_Perso(2);
    Equiper_Auto(0);
    EXPECT_EQ(std::pair(p.ObjetUtilise, p.ObjetsInventaire[0].Type), std::pair(FioleDeSoins, int16_t{-1}));

    Porter(-1, -1, -1, BaguetteDeSoins).ObjetUtilise = -1;
    p.Arreter();
    Equiper_Auto(0);
    EXPECT_EQ(std::pair(p.ObjetUtilise, p.ObjetsInventaire[0].Type), std::pair(BaguetteDeSoins, BaguetteDeSoins));
}

TEST_F(Equipement, LeCurseurPartageRevientAZeroPourQuiADeMoinsDeSlots) {
    // Character 0 has three inventory slots, each with something to wear on a free slot.
    ClsJeuPerso& p = P(0);
    p.ObjetsInventaire.resize(3);
    p.Objet_Inventaire_Charger(0, Gourdin);
    p.Objet_Inventaire_Charger(1, Tunique);
    p.Objet_Inventaire_Charger(2, Bonnet);
    CurseurInventaire = 7;
    Equiper_Auto(0);   // slots 0 and 1, none skipped
    EXPECT_EQ(std::tuple(CurseurInventaire, p.ObjetsEquipes[0].Type, p.ObjetsEquipes[2].Type, p.ObjetsInventaire[2].Type),
              std::tuple(int16_t{2}, Gourdin, Tunique, Bonnet));

    Equiper_Auto(0);   // slot 2, then slot 0 again
    EXPECT_EQ(std::pair(CurseurInventaire, p.ObjetsEquipes[3].Type), std::pair(int16_t{1}, Bonnet));

    // In combat six slots a thought: twice round three slots.
    p.Attaquer_Perso(2);
    Equiper_Auto(0);
    EXPECT_EQ(CurseurInventaire, 1);

    // No slot at all: nothing, no fault, and the cursor is left for the others.
    P(1).ObjetsInventaire.clear();
    CurseurInventaire = 5;
    Equiper_Auto(1);
    EXPECT_EQ(CurseurInventaire, 5);
}

TEST_F(Equipement, AuChateauIlVendCeQuIlADeTrop) {
    // It keeps two clubs, a tunic, both phials and the worn robe.
    ClsJeuPerso& p = P(0);
    const int16_t sac[] = {Gourdin, Gourdin, Gourdin, Tunique, Tunique, FioleDeSoins, FioleDeSoins, RobeDeBure};
    for (int slot = 0; slot < 8; ++slot) p.Objet_Inventaire_Charger(slot, sac[slot]);
    p.Objet_Equipe_Charger(2, RobeDeBure);

    Vendre_Doublons(0);   // not at a castle
    EXPECT_EQ(p.Definir_Argent(), 0);

    p.DansSonChateau = true;
    Vendre_Doublons(0);
    const int16_t reste[] = {Gourdin, Gourdin, -1, Tunique, -1, FioleDeSoins, FioleDeSoins, -1};
    for (int slot = 0; slot < 8; ++slot) EXPECT_EQ(p.ObjetsInventaire[slot].Type, reste[slot]) << slot;
    EXPECT_EQ(p.ObjetsEquipes[2].Type, RobeDeBure);
    EXPECT_EQ(p.Definir_Argent(), 40 + 40 + 50);

    p.DansSonChateau = false;
    p.DansChateau = true;
    p.Objet_Inventaire_Charger(2, Tunique);
    Vendre_Doublons(0);
    EXPECT_EQ(p.Objet_NombreType(Tunique), 1);
}

}  // namespace

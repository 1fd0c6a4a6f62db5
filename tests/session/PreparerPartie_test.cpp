#include "session/PreparerPartie.h"

#include <set>
#include <tuple>
#include <utility>

#include "MondeDeTest.h"
#include "rules/ClsJeuParam.h"

namespace {

using PreparerPartie = MondeDeTest;

TEST_F(PreparerPartie, LesVillageoisAppartiennentAuxFiefsDansLOrdreDesLignes) {
    Persos[0].Nom = "Aldebert";
    ASSERT_TRUE(Preparer_Partie(Nouveau_Monde({{2, 0, 3}, {0, 0, 2}, {1, 0, 4}})));
    ASSERT_EQ(Persos.size(), 9u);
    EXPECT_EQ(std::tuple(Maisons.size(), EffetsPersos.size(), EffetsMaisons.size()), std::tuple(9u, 9u, 9u));
    const int32_t attendus[] = {0, 0, 0, 1, 1, 2, 2, 2, 2};
    for (int32_t i = 0; i < 9; ++i) {
        const ClsJeuPerso& p = Persos[static_cast<std::size_t>(i)];
        EXPECT_EQ(std::tuple(p.Fief, p.Numero, Maisons[static_cast<std::size_t>(i)].Numero, p.ModeAuto),
                  std::tuple(attendus[i], i, i, i != PersoActif));
        EXPECT_EQ(p.Equipe, Fiefs[static_cast<std::size_t>(p.Fief)].Equipe);
    }
    // The hero in row 0 keeps its own record.
    EXPECT_EQ(std::tuple(Persos[0].Nom, Persos[0].Joueur), std::tuple("Aldebert", 1));
    ASSERT_EQ(std::pair(Fiefs.size(), Chateaux.size()), std::pair(3ul, 3ul));
    EXPECT_EQ(std::pair(Fiefs[0].Equipe, Fiefs[2].NombreSujets), std::pair(2, 4));
}

TEST_F(PreparerPartie, UnNombreDeGisementsDeZeroDonneUnGisement) {
    for (auto [demandes, gisements] : {std::pair{0, 1u}, std::pair{25, 26u}}) {
        ASSERT_TRUE(Preparer_Partie(Nouveau_Monde({{0, 0, 1}, {1, 0, 1}}, demandes)));
        EXPECT_EQ(Ressources.size(), gisements) << demandes;
    }
}

TEST_F(PreparerPartie, LeChoixAleatoireDuPeupleCouvreTousLesPeuplesDontLesHumains) {
    ASSERT_EQ(Param.NombrePeuples, 6);
    std::set<int16_t> vus;
    for (int essai = 0; essai < 100; ++essai) {
        Creer_Heros_Actif();
        ASSERT_TRUE(Preparer_Partie(Nouveau_Monde({{0, 6, 1}, {1, 3, 1}})));
        vus.insert(Fiefs[0].Peuple);
        EXPECT_EQ(Fiefs[1].Peuple, 3);   // a people chosen by hand stays
    }
    EXPECT_EQ(vus, (std::set<int16_t>{0, 1, 2, 3, 4, 5}));
}

TEST_F(PreparerPartie, LaMoitieDesVillageoisHumainsDUnNouveauMondeTireUnScriptIA) {
    ChoixPartie choix = Nouveau_Monde({{0, 0, 300}, {1, 0, 300}});
    choix.FichiersIA = {"Bucheron.ia", "Marchand.ia"};
    ASSERT_TRUE(Preparer_Partie(choix));
    int avecIA = 0;
    for (const ClsJeuPerso& p : Persos) {
        if (!p.IA) continue;
        ++avecIA;
        EXPECT_TRUE(p.FichierIA == "Bucheron.ia" || p.FichierIA == "Marchand.ia");
    }
    EXPECT_FALSE(Persos[0].IA);   // the hero is a player
    EXPECT_TRUE(avecIA > 240 && avecIA < 360) << avecIA;

    Creer_Heros_Actif();
    ASSERT_TRUE(Preparer_Partie(Bataille(10, 10)));
    for (const ClsJeuPerso& p : Persos) EXPECT_FALSE(p.IA);
}

class Bataille : public MondeDeTest {
protected:
    const ClsJeuPerso& P(int i) { return Persos[static_cast<std::size_t>(i)]; }
    std::pair<int32_t, int32_t> Place(int i) { return {P(i).PositionX, P(i).PositionY}; }
};

TEST_F(Bataille, LesSoldatsSeRangentEnColonnesDeVingtEtLeHerosPrendLaPlaceDuSoldatDuMilieu) {
    ASSERT_TRUE(Preparer_Partie(MondeDeTest::Bataille(45, 30)));
    ASSERT_EQ(Persos.size(), 75u);
    ASSERT_EQ(Fiefs.size(), 2u);
    EXPECT_EQ(std::tuple(Fiefs[0].NombreSujets, Fiefs[1].NombreSujets, Fiefs[1].Equipe), std::tuple(45, 30, 1));
    // Columns of twenty from (640, 640); army 1 goes on where army 0 ended, 1000 metres to the
    // right: its first soldier stands in row 5 of column 2.
    for (int i = 0; i < 75; ++i) {
        if (i == 0 || i == 22) continue;
        const int ligne = i % 20, colonne = i / 20, armee = i < 45 ? 0 : 1;
        EXPECT_EQ(Place(i), std::pair(24 * colonne + 640 + 1000 * armee, 32 * ligne + 640)) << i;
        EXPECT_EQ(P(i).DestinationX, P(i).PositionX);
        EXPECT_EQ(std::tuple(P(i).Fief, P(i).Equipe, P(i).Definir_Action()), std::tuple(armee, armee, 300));
    }
    // m = 45 / 2 = 22.5, rounded to the even 22 (row 2, column 1), swaps places and targets
    // with the hero; destinations stay, and who aimed at one now aims at the other.
    EXPECT_EQ(Place(0), std::pair(24 * 1 + 640, 32 * 2 + 640));
    EXPECT_EQ(Place(22), std::pair(640, 640));
    EXPECT_EQ(std::pair(P(0).PersoCible, P(22).PersoCible), std::pair(22 + 45, 45));
    EXPECT_EQ(std::pair(P(0).DestinationX, P(22).DestinationX), std::pair(640, 24 * 1 + 640));
    EXPECT_EQ(std::pair(P(45).PersoCible, P(67).PersoCible), std::pair(22, 0));
    EXPECT_EQ(P(0).Joueur, 1);
}

TEST_F(Bataille, LesCiblesVisentLAutreArmeeEtBouclentQuandElleEstPetite) {
    ASSERT_TRUE(Preparer_Partie(MondeDeTest::Bataille(40, 3)));
    // Army 0: i + 40, less 3 while at 43 or more, so several soldiers share a target.
    for (int i = 1; i < 40; ++i) EXPECT_EQ(P(i).PersoCible, i == 20 ? 40 : 40 + i % 3) << i;   // 20 is m
    Creer_Heros_Actif();
    ASSERT_TRUE(Preparer_Partie(MondeDeTest::Bataille(3, 10)));
    // Army 1: i - 3, less 3 while at 3 or more.
    for (int i = 3; i < 13; ++i) {
        const int cible = (i - 3) % 3;
        const int attendu = cible == 0 ? 2 : (cible == 2 ? 0 : cible);   // 0 and m = 2 swapped
        EXPECT_EQ(P(i).PersoCible, attendu) << i;
    }
}

}  // namespace

#include "session/PreparerPartie.h"

#include <set>

#include "MondeDeTest.h"
#include "rules/ClsJeuParam.h"

namespace {

using PreparerPartie = MondeDeTest;

TEST_F(PreparerPartie, LesVillageoisAppartiennentAuxFiefsDansLOrdreDesLignes) {
    Persos[0].Nom = "Aldebert";
    ASSERT_TRUE(Preparer_Partie(Nouveau_Monde({{2, 0, 3}, {0, 0, 2}, {1, 0, 4}})));

    ASSERT_EQ(Persos.size(), 9u);
    EXPECT_EQ(Maisons.size(), 9u);
    EXPECT_EQ(EffetsPersos.size(), 9u);
    EXPECT_EQ(EffetsMaisons.size(), 9u);
    const int32_t attendus[] = {0, 0, 0, 1, 1, 2, 2, 2, 2};
    for (int32_t i = 0; i < 9; ++i) {
        const ClsJeuPerso& p = Persos[static_cast<std::size_t>(i)];
        EXPECT_EQ(p.Fief, attendus[i]) << i;
        EXPECT_EQ(p.Numero, i);
        EXPECT_EQ(p.Equipe, Fiefs[static_cast<std::size_t>(p.Fief)].Equipe);
        EXPECT_EQ(Maisons[static_cast<std::size_t>(i)].Numero, i);
        EXPECT_EQ(p.ModeAuto, i != PersoActif);
    }
    // The hero in row 0 keeps its own record.
    EXPECT_EQ(Persos[0].Nom, "Aldebert");
    EXPECT_EQ(Persos[0].Joueur, 1);
    ASSERT_EQ(Fiefs.size(), 3u);
    ASSERT_EQ(Chateaux.size(), 3u);
    EXPECT_EQ(Fiefs[0].Equipe, 2);
    EXPECT_EQ(Fiefs[2].NombreSujets, 4);
}

TEST_F(PreparerPartie, UnNombreDeGisementsDeZeroDonneUnGisement) {
    ASSERT_TRUE(Preparer_Partie(Nouveau_Monde({{0, 0, 1}, {1, 0, 1}}, 0)));
    EXPECT_EQ(Ressources.size(), 1u);
    ASSERT_TRUE(Preparer_Partie(Nouveau_Monde({{0, 0, 1}, {1, 0, 1}}, 25)));
    EXPECT_EQ(Ressources.size(), 26u);
    EXPECT_EQ(Monde.Largeur, 100);
    EXPECT_EQ(Monde.Hauteur, 80);
}

TEST_F(PreparerPartie, LeChoixAleatoireDuPeupleCouvreTousLesPeuplesDontLesHumains) {
    ASSERT_EQ(Param.NombrePeuples, 6);
    std::set<int16_t> vus;
    for (int essai = 0; essai < 200; ++essai) {
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
    EXPECT_GT(avecIA, 240);
    EXPECT_LT(avecIA, 360);

    Creer_Heros_Actif();
    ASSERT_TRUE(Preparer_Partie(Bataille(10, 10)));
    for (const ClsJeuPerso& p : Persos) EXPECT_FALSE(p.IA);
}

class Bataille : public MondeDeTest {
protected:
    const ClsJeuPerso& P(int i) { return Persos[static_cast<std::size_t>(i)]; }
};

TEST_F(Bataille, LesSoldatsSeRangentEnColonnesDeVingtQuiContinuentDUneArmeeALAutre) {
    ASSERT_TRUE(Preparer_Partie(MondeDeTest::Bataille(45, 30)));
    ASSERT_EQ(Persos.size(), 75u);
    ASSERT_EQ(Fiefs.size(), 2u);
    EXPECT_EQ(Fiefs[0].NombreSujets, 45);
    EXPECT_EQ(Fiefs[1].NombreSujets, 30);
    EXPECT_EQ(Fiefs[1].Equipe, 1);
    for (int i = 0; i < 75; ++i) {
        if (i == 0 || i == 22) continue;   // the hero and the soldier it swapped with
        const int ligne = i % 20, colonne = i / 20;
        const int x0 = i < 45 ? 640 : 1640;
        EXPECT_EQ(P(i).PositionX, 24 * colonne + x0) << i;
        EXPECT_EQ(P(i).PositionY, 32 * ligne + 640) << i;
        EXPECT_EQ(P(i).DestinationX, P(i).PositionX);
        EXPECT_EQ(P(i).Fief, i < 45 ? 0 : 1);
        EXPECT_EQ(P(i).Equipe, P(i).Fief);
        EXPECT_EQ(P(i).Definir_Action(), 300);
    }
    // Army 1 begins where army 0 ended: row 5 of column 2, 1000 metres to the right.
    EXPECT_EQ(P(45).PositionX, 24 * 2 + 1640);
    EXPECT_EQ(P(45).PositionY, 32 * 5 + 640);
}

TEST_F(Bataille, LesCiblesVisentLAutreArmeeEtBouclentQuandElleEstPetite) {
    ASSERT_TRUE(Preparer_Partie(MondeDeTest::Bataille(40, 3)));
    // Army 0: i + 40, less 3 while at 43 or more, so several soldiers share a target.
    for (int i = 1; i < 40; ++i) {
        if (i == 20) continue;
        EXPECT_EQ(P(i).PersoCible, 40 + i % 3) << i;
    }
    Creer_Heros_Actif();
    ASSERT_TRUE(Preparer_Partie(MondeDeTest::Bataille(3, 10)));
    // Army 1: i - 3, less 3 while at 3 or more.
    for (int i = 3; i < 13; ++i) {
        const int cible = (i - 3) % 3;
        const int attendu = cible == 0 ? 2 : (cible == 2 ? 0 : cible);   // 0 and m = 2 swapped
        EXPECT_EQ(P(i).PersoCible, attendu) << i;
    }
}

TEST_F(Bataille, LeHerosPrendLaPlaceDuSoldatDuMilieuDeLArmeeAlliee) {
    ASSERT_TRUE(Preparer_Partie(MondeDeTest::Bataille(45, 30)));
    // m = 45 / 2 = 22.5, rounded to the even 22: row 2, column 1.
    EXPECT_EQ(P(0).PositionX, 24 * 1 + 640);
    EXPECT_EQ(P(0).PositionY, 32 * 2 + 640);
    EXPECT_EQ(P(22).PositionX, 640);
    EXPECT_EQ(P(22).PositionY, 640);
    EXPECT_EQ(P(0).PersoCible, 22 + 45);
    EXPECT_EQ(P(22).PersoCible, 45);
    // Destinations stay where they were.
    EXPECT_EQ(P(0).DestinationX, 640);
    EXPECT_EQ(P(22).DestinationX, 24 * 1 + 640);
    // Who aimed at the hero now aims at m, and the other way round.
    EXPECT_EQ(P(45).PersoCible, 22);
    EXPECT_EQ(P(67).PersoCible, 0);
    EXPECT_EQ(P(0).Joueur, 1);
}

}  // namespace

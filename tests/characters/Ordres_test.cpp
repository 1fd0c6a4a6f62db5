#include "characters/Ordres.h"

#include "ReglesParDefaut.h"
#include "characters/ClsJeuPerso.h"

namespace {

class Ordres : public ReglesParDefaut {
protected:
    void SetUp() override {
        ReglesParDefaut::SetUp();
        Peupler(3);
    }

    ClsJeuPerso& P(int i) { return Persos[static_cast<std::size_t>(i)]; }

    // A house of character i: 48 × 48 at (200, 300), door 8 metres below the centre.
    ClsJeuBatiment& Maison(int i, bool finie) {
        ClsJeuBatiment& m = Maisons[static_cast<std::size_t>(i)];
        m.Numero = i;
        m.PositionX = 200;
        m.PositionY = 300;
        m.Largeur = m.Hauteur = 48;
        m.EntreePositionX = 0;
        m.EntreePositionY = 8;
        m.MaxVie = 500;
        m.Definir_Vie(finie ? 500 : 45);
        return m;
    }
};

TEST_F(Ordres, ChaqueCodeDeLaTableSEcritEtSeRelitParSonTexte) {
    ClsJeuPerso& p = P(0);
    for (int16_t code : {0, 1, 2, 3, 6, 7, 100, 101, 102, 201, 202, 203, 300, 301, 302, 400, 500, 600}) {
        p.Definir_Action(code);
        EXPECT_EQ(p.Definir_Action(), code);
        const std::string texte(p.Texte_Action(Param));
        p.Definir_Action(0);
        p.Definir_Action_Texte(texte, Param);
        EXPECT_EQ(p.Definir_Action(), code) << texte;
    }
    p.Definir_Action(0);
    EXPECT_EQ(p.Texte_Action(Param), "En attente");
    p.Definir_Action(202);
    EXPECT_EQ(p.Texte_Action(Param), "Retourner château");
    p.Definir_Action(400);
    EXPECT_EQ(p.Texte_Action(Param), "Préparer resurrection");
}

TEST_F(Ordres, UnCodeOuUnTexteHorsTableSeLitAuTravail) {
    ClsJeuPerso& p = P(0);
    for (int16_t code : {103, 5, -1, 999, 4}) {
        p.Definir_Action(code);
        EXPECT_EQ(p.Definir_Action(), 102) << code;
        EXPECT_EQ(p.Texte_Action(Param), "Au travail");
    }
    p.Definir_Action_Texte("N'importe quoi", Param);
    EXPECT_EQ(p.Definir_Action(), 102);
    EXPECT_EQ(p.Texte_Action(Param), "Au travail");
    p.Definir_Action_Texte("en attente", Param);   // the texts compare exactly
    EXPECT_EQ(p.Definir_Action(), 102);
}

TEST_F(Ordres, UnNomDeMetierSAfficheSeLit102EtSEffaceALaProchaineAction) {
    ClsJeuPerso& p = P(0);
    const std::string& metier = Param.Ressources_NomCompetence(3);
    ASSERT_FALSE(metier.empty());
    p.Definir_Action_Metier(3);
    EXPECT_EQ(p.Definir_Action(), 102);
    EXPECT_EQ(p.Texte_Action(Param), metier);
    EXPECT_FALSE(p.Inactif());

    p.Definir_Action(103);   // what a walker at 102 writes
    EXPECT_EQ(p.Texte_Action(Param), "Au travail");

    p.Definir_Action_Texte(metier, Param);   // a trade name read back shows again
    EXPECT_EQ(p.Definir_Action(), 102);
    EXPECT_EQ(p.Texte_Action(Param), metier);
    p.Arreter();
    EXPECT_EQ(p.Texte_Action(Param), "En attente");
}

TEST_F(Ordres, AllerAEtArreter) {
    ClsJeuPerso& p = P(0);
    p.PositionX = 40;
    p.PositionY = 50;
    p.RessourceRecoltee = 2;
    p.Aller_A(400, 500);
    EXPECT_EQ(p.DestinationX, 400);
    EXPECT_EQ(p.DestinationY, 500);
    EXPECT_EQ(p.Definir_Action(), 1);
    EXPECT_EQ(p.RessourceRecoltee, 2);   // nothing else changes

    p.Arreter();
    EXPECT_EQ(p.DestinationX, 40);
    EXPECT_EQ(p.DestinationY, 50);
    EXPECT_EQ(p.Definir_Action(), 0);
    EXPECT_EQ(p.RessourceRecoltee, -1);
    EXPECT_TRUE(p.Inactif());

    p.DansSaMaison = true;
    p.Arreter();
    EXPECT_EQ(p.Definir_Action(), 100);
    EXPECT_TRUE(p.Inactif());
}

TEST_F(Ordres, AllerRessourceViseLeCentreDuGisementArrondiAuPair) {
    ClsJeuPerso& p = P(0);
    ClsJeuRessources gisement;
    gisement.PositionX = 101;
    gisement.PositionY = 50;
    gisement.Quantite = 0;   // an empty deposit is aimed at all the same
    p.Aller_Ressource(gisement, 7, 33, 32);
    EXPECT_EQ(p.DestinationX, 106);   // 16.5 + 101 - 12 = 105.5
    EXPECT_EQ(p.DestinationY, 50);
    EXPECT_EQ(p.RessourceCible, 7);
    EXPECT_EQ(p.Definir_Action(), 3);
    gisement.PositionX = 100;
    p.Aller_Ressource(gisement, 7, 33, 32);
    EXPECT_EQ(p.DestinationX, 104);   // 104.5
}

TEST_F(Ordres, RentrerMaisonVaALaPorteEtChoisitEntreRentrerEtConstruire) {
    ClsJeuPerso& p = P(1);
    ClsJeuBatiment& m = Maison(1, true);
    p.DansSaMaison = true;
    p.Rentrer_Maison(m);
    EXPECT_EQ(p.DestinationX, 212);   // 24 + 200 - 12
    EXPECT_EQ(p.DestinationY, 316);   // 24 + 300 - 16 + 8
    EXPECT_EQ(p.MaisonCible, 1);
    EXPECT_EQ(p.Definir_Action(), 101);
    EXPECT_TRUE(p.DansSaMaison);

    m.Definir_Vie(499);   // finished but hurt: to be repaired
    p.Rentrer_Maison(m);
    EXPECT_EQ(p.Definir_Action(), 7);
    EXPECT_FALSE(p.DansSaMaison);

    ClsJeuBatiment& chantier = Maison(2, false);
    P(2).Rentrer_Maison(chantier);
    EXPECT_EQ(P(2).Definir_Action(), 7);
    P(2).Definir_Vie(0);   // the dead go home whatever the state of the house
    P(2).Rentrer_Maison(chantier);
    EXPECT_EQ(P(2).Definir_Action(), 101);
}

TEST_F(Ordres, AllerMaisonEntreParLaPorte) {
    ClsJeuPerso& p = P(0);
    ClsJeuBatiment& m = Maison(2, false);
    m.EntreePositionX = -5;   // 24 + 200 - 12 - 5
    p.Aller_Maison(m, 23, 31);
    EXPECT_EQ(p.DestinationX, 208);   // 207.5, ties to even
    EXPECT_EQ(p.DestinationY, 316);   // 24 + 300 - 15.5 + 8 = 316.5
    EXPECT_EQ(p.MaisonCible, 2);
    EXPECT_EQ(p.Definir_Action(), 201);
}

TEST_F(Ordres, UnOrdreVersUnBatimentTombeNeFaitRien) {
    ClsJeuPerso& p = P(0);
    ClsJeuBatiment& m = Maison(1, true);
    m.Definir_Vie(0);
    p.Aller_A(10, 20);
    p.Rentrer_Maison(m);
    p.Aller_Maison(m);
    p.Rentrer_Chateau(m, 112, 112);
    p.Aller_Chateau(m, 1, 112, 112);
    EXPECT_EQ(p.Definir_Action(), 1);
    EXPECT_EQ(p.DestinationX, 10);
    EXPECT_EQ(p.DestinationY, 20);
    EXPECT_EQ(p.MaisonCible, 0);
    EXPECT_EQ(p.ChateauCible, 0);
}

TEST_F(Ordres, LeChateauSeViseEnSonCentre) {
    ClsJeuPerso& p = P(0);
    ClsJeuBatiment chateau;
    chateau.PositionX = 1000;
    chateau.PositionY = 2000;
    chateau.MaxVie = 4000;
    chateau.Definir_Vie(4000);
    p.Rentrer_Chateau(chateau, Param.ChateauxLargeur, Param.ChateauxHauteur);
    EXPECT_EQ(p.DestinationX, Coin_Pour_Centrer(1000, Param.ChateauxLargeur, 24));
    EXPECT_EQ(p.DestinationX, 1000 + Param.ChateauxLargeur / 2 - 12);
    EXPECT_EQ(p.DestinationY, 2000 + Param.ChateauxHauteur / 2 - 16);
    EXPECT_EQ(p.Definir_Action(), 202);
    EXPECT_EQ(p.ChateauCible, 0);   // only Aller_Chateau names the castle
    p.Aller_Chateau(chateau, 4, Param.ChateauxLargeur, Param.ChateauxHauteur);
    EXPECT_EQ(p.Definir_Action(), 203);
    EXPECT_EQ(p.ChateauCible, 4);
}

TEST_F(Ordres, AttaquerFaitSortirDesBatimentsEtFrapperAussitot) {
    ClsJeuPerso& p = P(0);
    p.Visible(false);
    p.AttaqueImmediate = false;
    p.Attaquer_Perso(2);
    EXPECT_EQ(p.Definir_Action(), 300);
    EXPECT_EQ(p.PersoCible, 2);
    EXPECT_TRUE(p.Visible());
    EXPECT_TRUE(p.AttaqueImmediate);
    EXPECT_TRUE(p.EnCombat());

    p.DansChateau = true;
    p.AttaqueImmediate = false;
    p.Attaquer_Maison(1);
    EXPECT_EQ(p.Definir_Action(), 301);
    EXPECT_EQ(p.MaisonCible, 1);
    EXPECT_TRUE(p.Visible());
    EXPECT_TRUE(p.AttaqueImmediate);

    p.Attaquer_Chateau(3);
    EXPECT_EQ(p.Definir_Action(), 302);
    EXPECT_EQ(p.ChateauCible, 3);
    EXPECT_EQ(p.PersoCible, 2);   // the other targets stay
    EXPECT_EQ(p.MaisonCible, 1);
}

TEST_F(Ordres, LePasSuitLaVitesseEtLaFormeSansJamaisTomberAZero) {
    ClsJeuPerso& p = P(0);
    p.Vitesse = 5;
    p.CoefForme = 0.875;
    p.Calculer_Longueur_Pas();
    EXPECT_EQ(p.LongueurPas, 4);   // Int(4.375)
    p.Vitesse = 3;
    p.CoefForme = 0.1;
    p.Calculer_Longueur_Pas();
    EXPECT_EQ(p.LongueurPas, 1);   // Int(0.3) is 0: a step of 1 all the same
    p.Vitesse = 0;
    p.Calculer_Longueur_Pas();
    EXPECT_EQ(p.LongueurPas, 1);
    p.Vitesse = 40;
    p.Definir_Vie(0);
    p.Calculer_Longueur_Pas();
    EXPECT_EQ(p.LongueurPas, 6);
}

}  // namespace

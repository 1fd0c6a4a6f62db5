// A house from its building to its fall: the price and the refund, health and the finished
// state, the drawing stage, the stock, the till and the shop, and the services.
#include <gtest/gtest.h>

#include "MondeRegles.h"
#include "world/ClsJeuBatiment.h"

namespace {

using Construction = MondeRegles;

TEST_F(Construction, CreerPrendExactementLePrixEtLaReserveSuitLeBatisseur) {
    ClsJeuPerso& p = Perso(0, 20, 20, 20);
    p.DansMaison = true;
    ClsJeuBatiment& m = Maisons[0];
    m.Creer(100, 200, Boulangerie, p, Param);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Bois), 4);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Pierre), 2);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Pain), 20);
    EXPECT_TRUE(p.Visible());

    EXPECT_EQ(m.PositionX, 100);
    EXPECT_EQ(m.PositionY, 200);
    EXPECT_EQ(m.Largeur, 64);
    EXPECT_EQ(m.EntreePositionY, 8);
    EXPECT_DOUBLE_EQ(m.Vie, 360);   // 9 % of MaxVie
    EXPECT_FALSE(m.Termine);
    EXPECT_TRUE(m.Magasin);
    EXPECT_EQ(m.StockObjets.size(), 1u);
    EXPECT_EQ(Maison(1, Menuisier).StockObjets.size(), 6u);   // one line per object made
    EXPECT_EQ(Maison(2, Temple).Service, 1);

    // The store: 40 for a builder of the starting level 10, twice as much at level 20.
    EXPECT_DOUBLE_EQ(m.MaxStock, 40);
    Niveau_Special(p, 0, 20);
    m.Creer(0, 0, Boulangerie, Perso(0, 20, 20), Param);
    EXPECT_DOUBLE_EQ(m.MaxStock, 80);
}

TEST_F(Construction, CreerSurUneMaisonTermineeLaDemolitDAbord) {
    ClsJeuBatiment& m = Maison(0, Boulangerie, true);
    m.Definir_Vie(2000);   // damaged to half: still finished
    ASSERT_TRUE(m.Termine);
    m.Argent = 30;
    m.Stock = 5;
    ClsJeuPerso& p = Perso(0, 12, 10);
    m.Creer(8, 9, Hutte, p, Param);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Bois), 12 + 16 * 0.5 * 0.5 - 14);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Pierre), 10 + 18 * 0.5 * 0.5);
    EXPECT_EQ(m.Type, Hutte);
    EXPECT_DOUBLE_EQ(m.Vie, 3000 * 0.09);
    EXPECT_DOUBLE_EQ(m.Argent, 0);
    EXPECT_DOUBLE_EQ(m.Stock, 0);

    // A house still under construction is replaced without a refund.
    ClsJeuPerso& q = Persos[1];
    q.Definir_MaxRessources(Bois, 40);
    Perso(1, 40);
    Maisons[1].Creer(0, 0, Hutte, q, Param);
    Maisons[1].Creer(0, 0, Hutte, q, Param);
    EXPECT_DOUBLE_EQ(q.Definir_Ressources(Bois), 12);
}

TEST_F(Construction, DefinirVieTermineALaSanteCompleteEtEffaceA0) {
    ClsJeuBatiment& m = Maison(0, Boulangerie);
    m.Definir_Vie(3999);
    EXPECT_FALSE(m.Termine);
    EXPECT_TRUE(m.EnConstruction);
    m.Definir_Vie(5000);
    EXPECT_DOUBLE_EQ(m.Vie, 4000);
    EXPECT_TRUE(m.Termine);
    EXPECT_FALSE(m.EnConstruction);
    m.Definir_Vie(20);   // later damage leaves it finished
    EXPECT_TRUE(m.Termine);
    EXPECT_TRUE(m.EnConstruction);

    m.ReserveVie = 5000;
    EXPECT_DOUBLE_EQ(m.Definir_Vie(), 4000);   // health and reserve, within MaxVie
    m.ReserveVie = 30;
    EXPECT_DOUBLE_EQ(m.Definir_Vie(), 50);

    m.Definir_Vie(-3);
    EXPECT_DOUBLE_EQ(m.Vie, -3);   // stays as written
    EXPECT_FALSE(m.Visible());
    EXPECT_FALSE(m.Termine);
    EXPECT_DOUBLE_EQ(m.ReserveVie, 0);
}

TEST_F(Construction, DemolirRendLaMoitieDuPrixSelonLaSante) {
    ClsJeuPerso& p = Perso(0, 20, 20);
    p.ApparenceBase = 3;
    ClsJeuBatiment& m = Maisons[0];
    m.Creer(0, 0, Boulangerie, p, Param);   // at 9 % health
    m.Demolir(p, Param);
    EXPECT_NEAR(p.Definir_Ressources(Bois), 4 + 16 * 0.045, 1e-12);   // 4.5 % of the price
    EXPECT_NEAR(p.Definir_Ressources(Pierre), 2 + 18 * 0.045, 1e-12);
    EXPECT_DOUBLE_EQ(m.Vie, 0);
    EXPECT_FALSE(m.Visible());

    // At full health, half; the owner inside leaves and loses the trade's look.
    m.Creer(0, 0, Boulangerie, Perso(0, 20, 20), Param);
    m.Definir_Vie(4000);
    p.Calculer_Apparence(m, Param);
    ASSERT_EQ(p.Apparence, 6);
    p.DansSaMaison = true;
    p.Definir_Action(100);
    m.Demolir(p, Param);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Bois), 4 + 8);
    EXPECT_FALSE(p.DansSaMaison);
    EXPECT_EQ(p.Definir_Action(), 0);
    EXPECT_EQ(p.Apparence, 3);
}

TEST_F(Construction, RestaurationDeplaceUnDixiemeParTourEtPlafonneAMaxVie) {
    ClsJeuBatiment& c = Chateaux[0];
    c.MaxVie = 100;
    c.Vie = 99.75;
    c.ReserveVie = 0.35;
    c.Restauration();
    EXPECT_DOUBLE_EQ(c.Vie, 99.85);
    EXPECT_NEAR(c.ReserveVie, 0.25, 1e-12);
    EXPECT_FALSE(c.Termine);
    c.Restauration();
    c.Restauration();
    EXPECT_DOUBLE_EQ(c.Vie, 100);
    EXPECT_TRUE(c.Termine);
    EXPECT_NEAR(c.ReserveVie, 0.05, 1e-12);
    c.Restauration();   // under 0.1 the rest is dropped
    EXPECT_DOUBLE_EQ(c.ReserveVie, 0);
    EXPECT_DOUBLE_EQ(c.Vie, 100);
}

TEST_F(Construction, EtatMontreLaConstructionPuisLaBoutiqueVideOuPleine) {
    ClsJeuBatiment& m = Maison(0, Boulangerie);   // 4 stages
    EXPECT_EQ(m.Etat(Param), 0);
    m.Definir_Vie(2900);
    EXPECT_EQ(m.Etat(Param), 2);
    m.Definir_Vie(4000);
    m.Stock = 0.9;
    EXPECT_EQ(m.Etat(Param), 3);   // finished, nothing to sell
    m.Stock = 1;
    EXPECT_EQ(m.Etat(Param), 4);
    m.Definir_Vie(10);
    EXPECT_EQ(m.Etat(Param), 4);   // still finished
    EXPECT_EQ(Maison(1, Menuisier, true).Etat(Param), 3);   // an empty workshop too
    EXPECT_EQ(Maison(2, Temple, true).Etat(Param), 4);      // a service has no stock to show
    for (const int16_t image : {1, 2, 3, 0, 1}) EXPECT_EQ(m.Definir_NumeroAnimation(Param), image);
}

TEST_F(Construction, LeStockResteLaSommeDesLignesDObjetsSousSonPlafond) {
    ClsJeuBatiment& m = Maison(0, Menuisier);
    EXPECT_EQ(m.Definir_Nombre_Stock_Objet(), 5);   // the last index
    m.Stock_Objets(0, 3);
    m.Stock_Objets(1, 2);
    EXPECT_DOUBLE_EQ(m.Definir_Stock(), 5);
    m.Stock_Objets(0, 1);
    EXPECT_DOUBLE_EQ(m.Stock_Objets(0), 1);
    EXPECT_DOUBLE_EQ(m.Definir_Stock(), 3);
    m.Definir_Stock(80);
    EXPECT_DOUBLE_EQ(m.Definir_Stock(), m.MaxStock);
}

using Commerce = MondeRegles;

TEST_F(Commerce, LArgentPasseEntreCaisseEtPersonnageDansLaLimiteDeCeQuIlY_A) {
    ClsJeuBatiment& m = Maison(0, Boulangerie, true);
    ClsJeuPerso& p = Persos[0];
    m.Argent = 30;
    p.Argent = 25;
    m.Transfert_Argent_Prendre(50, p, false);
    EXPECT_DOUBLE_EQ(p.Argent, 55);
    EXPECT_DOUBLE_EQ(m.Argent, 0);
    m.Transfert_Argent_Deposer(10, p, false);
    EXPECT_DOUBLE_EQ(p.Argent, 45);
    EXPECT_DOUBLE_EQ(m.Argent, 10);
    m.Transfert_Argent_Deposer(100, p, false);
    EXPECT_DOUBLE_EQ(p.Argent, 0);
    EXPECT_DOUBLE_EQ(m.Argent, 55);
    m.Transfert_Argent_Prendre(1, p, true);
    EXPECT_DOUBLE_EQ(p.Argent, 55);
}

TEST_F(Commerce, LeStockPasseParUnitesEntieresDansLaPlaceQuiReste) {
    ClsJeuBatiment& m = Maison(0, Boulangerie, true);
    ClsJeuPerso& p = Perso(0, 0, 0, 15);
    m.Stock = 30;
    m.Transfert_Stock_Prendre(10, p, Param, false);   // room 5
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Pain), 20);
    EXPECT_DOUBLE_EQ(m.Stock, 25);

    Perso(0, 0, 0, 12.5);
    m.Transfert_Stock_Prendre(2.9, p, Param, false);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Pain), 14.5);
    m.Transfert_Stock_Prendre(0, p, Param, true);   // all: 23 in stock, room 5.5
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Pain), 19.5);
    EXPECT_DOUBLE_EQ(m.Stock, 18);

    m.Stock = 35.5;
    m.Transfert_Stock_Deposer(0, p, Param, true);   // room 4.5 in the store of 40
    EXPECT_DOUBLE_EQ(m.Stock, 39.5);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Pain), 15.5);
    m.Stock = 0;
    m.Transfert_Stock_Deposer(30, p, Param, false);   // no more than carried, whole units
    EXPECT_DOUBLE_EQ(m.Stock, 15);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Pain), 0.5);
}

TEST_F(Commerce, AcheterPaieLePrixMarchandeDansLaLimiteDeLArgent) {
    ClsJeuBatiment& m = Maison(0, Boulangerie, true);
    m.Stock = 30;
    ClsJeuPerso& p = Perso(1);
    p.Argent = 40;
    m.Acheter(5, p, Param, false);   // 12 a unit (8 × 1.5): 40 buys 3
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Pain), 3);
    EXPECT_DOUBLE_EQ(p.Argent, 4);
    EXPECT_DOUBLE_EQ(m.Argent, 36);
    EXPECT_DOUBLE_EQ(m.Stock, 27);
    EXPECT_NEAR(p.CompetencesSpeciales[3].Exp, 0.001 * 36 * 20, 1e-12);   // bargaining grows

    Niveau_Special(p, 3, 20);   // a good bargainer: (10 / 20 + 1) × 12 / 2 = 9 a unit
    p.Argent = 100;
    m.Stock = 4;
    m.Acheter(0, p, Param, true);   // all the money would buy 11: the stock has 4
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Pain), 7);
    EXPECT_DOUBLE_EQ(m.Stock, 0);
    EXPECT_DOUBLE_EQ(p.Argent, 64);

    m.Stock = 30;
    for (const double argent : {0.0, 8.9}) {   // not even one unit: all buys nothing
        p.Argent = argent;
        m.Acheter(5, p, Param, true);
        EXPECT_DOUBLE_EQ(p.Definir_Ressources(Pain), 7);
        EXPECT_DOUBLE_EQ(p.Argent, argent);
        EXPECT_DOUBLE_EQ(m.Stock, 30);
    }
}

TEST_F(Commerce, LaPlaceSeMesureSurLaPartieEntiereEtLePrixTientSur16Bits) {
    ClsJeuBatiment& m = Maison(0, Boulangerie, true);
    m.Stock = 30;
    ClsJeuPerso& p = Persos[1];
    p.Definir_MaxRessources(Pain, 5);
    Perso(1, 0, 0, 3.7);
    p.Argent = 100;
    m.Acheter(10, p, Param, false);
    EXPECT_DOUBLE_EQ(p.Argent, 76);   // pays for 2
    EXPECT_DOUBLE_EQ(m.Stock, 28);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Pain), 5);   // and stops at the capacity

    m.Stock = 20000;
    m.Argent = 0;
    p.Definir_MaxRessources(Pain, 20000);
    Perso(1);
    p.Argent = 1e6;
    m.Acheter(20000, p, Param, false);   // 240 000 does not fit: the nearest value that does
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Pain), 20000);
    EXPECT_DOUBLE_EQ(m.Argent, 32767);
    EXPECT_DOUBLE_EQ(p.Argent, 1e6 - 32767);
}

using Services = MondeRegles;

TEST_F(Services, LaResurrectionEstPourLesMortsEtLeProprietaireNePaiePas) {
    ClsJeuBatiment& temple = Maison(0, Temple, true);
    temple.Stock = 1;
    ClsJeuPerso& client = Persos[1];
    client.Argent = 40;   // the price, at the starting level
    EXPECT_FALSE(temple.Service_Utilisable(client, Param));   // alive
    client.Vivant(false);
    EXPECT_TRUE(temple.Service_Utilisable(client, Param));
    client.Argent = 39.5;
    EXPECT_FALSE(temple.Service_Utilisable(client, Param));   // cannot pay
    client.Argent = 40;
    temple.Stock = 0.9;
    EXPECT_FALSE(temple.Service_Utilisable(client, Param));   // nothing in stock
    temple.Stock = 3;
    ClsJeuPerso& proprietaire = Persos[0];
    proprietaire.Argent = 0;
    proprietaire.Vivant(false);
    EXPECT_TRUE(temple.Service_Utilisable(proprietaire, Param));
    ASSERT_EQ(Fiefs[0].NombreMorts, 2);

    temple.Service_Utiliser(client, Param, 0);
    EXPECT_TRUE(client.Vivant());
    EXPECT_DOUBLE_EQ(client.Vie.Valeur, client.Definir_MaxVie() * Param.Service_Coefficient(1));
    EXPECT_EQ(Fiefs[0].NombreMorts, 1);
    EXPECT_DOUBLE_EQ(temple.Stock, 2);
    EXPECT_DOUBLE_EQ(client.Argent, 0);
    EXPECT_DOUBLE_EQ(temple.Argent, 40);
    temple.Service_Utiliser(proprietaire, Param, 0);
    EXPECT_TRUE(proprietaire.Vivant());
    EXPECT_DOUBLE_EQ(temple.Argent, 40);
    EXPECT_DOUBLE_EQ(temple.Stock, 1);
}

TEST_F(Services, LaPrimeVaDansLaCaisseEtLEffetNInterromptPasCeluiQuiJoue) {
    ClsJeuBatiment& caserne = Maison(1, Caserne, true);
    caserne.Stock = 1;
    ClsJeuPerso& tueur = Persos[1];
    tueur.Argent = 0;
    EXPECT_TRUE(caserne.Service_Utilisable(tueur, Param));   // alive is fine for this service
    caserne.Service_Utiliser(tueur, Param, 25);
    EXPECT_DOUBLE_EQ(caserne.Argent, 25);
    EXPECT_DOUBLE_EQ(tueur.Argent, 0);
    EXPECT_DOUBLE_EQ(caserne.Stock, 1);   // only a resurrection uses up the stock

    EXPECT_TRUE(EffetsMaisons[1].Actif);   // the house plays its service's effect
    EXPECT_EQ(EffetsMaisons[1].Type, 17);
    EXPECT_FALSE(EffetsMaisons[0].Actif);
    EffetsMaisons[1].Type = 3;
    caserne.Service_Utiliser(tueur, Param, 5);
    EXPECT_EQ(EffetsMaisons[1].Type, 3);
    EXPECT_DOUBLE_EQ(caserne.Argent, 30);
}

}  // namespace

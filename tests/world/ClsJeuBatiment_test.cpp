// A house from its building to its fall: the price and the refund, health and the finished
// state, the drawing stage, the stock, the till and the shop, the services, and the hash.
#include <gtest/gtest.h>

#include "MondeRegles.h"
#include "world/ClsJeuBatiment.h"

namespace {

using Construction = MondeRegles;

TEST_F(Construction, CreerPrendExactementLePrixAuBatisseurEtLitLesRegles) {
    ClsJeuPerso& p = Perso(0, 20, 20, 20);
    p.DansMaison = true;
    ClsJeuBatiment& m = Maisons[0];
    m.Creer(100, 200, Ferme, p, Param);

    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Ble), 20);   // price 0
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Bois), 10);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Planches), 16);
    EXPECT_TRUE(p.Visible());

    EXPECT_EQ(m.PositionX, 100);
    EXPECT_EQ(m.PositionY, 200);
    EXPECT_EQ(m.Largeur, 64);
    EXPECT_EQ(m.Hauteur, 48);
    EXPECT_EQ(m.EntreePositionX, 30);
    EXPECT_EQ(m.EntreePositionY, 40);
    EXPECT_EQ(m.MaxVie, 200);
    EXPECT_DOUBLE_EQ(m.Vie, 18);   // 9 % of MaxVie
    EXPECT_TRUE(m.Visible());
    EXPECT_FALSE(m.Termine);
    EXPECT_EQ(m.Type, Ferme);
    EXPECT_TRUE(m.Magasin);
    EXPECT_FALSE(m.Fabrique);
    EXPECT_EQ(m.Service, 0);
    EXPECT_DOUBLE_EQ(m.MaxStock, 50);
    EXPECT_EQ(m.StockObjets.size(), 1u);

    ClsJeuBatiment& atelier = Maison(1, Atelier);
    EXPECT_TRUE(atelier.Fabrique);
    EXPECT_EQ(atelier.StockObjets.size(), 2u);   // one line per object made
    EXPECT_EQ(Maison(2, Temple).Service, 1);
}

TEST_F(Construction, LaCapaciteDuStockSuitLeNiveauDeConstructionDuBatisseur) {
    const std::pair<int32_t, double> cas[] = {{20, 50}, {40, 100}, {13, 32}};   // Int(13 × 50 / 20)
    for (const auto& [niveau, capacite] : cas) {
        ClsJeuPerso& p = Perso(0, 20, 20, 20);
        Niveau_Special(p, 0, niveau);
        Maisons[0] = ClsJeuBatiment{};
        Maisons[0].Creer(0, 0, Ferme, p, Param);
        EXPECT_DOUBLE_EQ(Maisons[0].MaxStock, capacite) << "level " << niveau;
    }
}

TEST_F(Construction, UneMaisonTermineeEstDemolieAvantLaNouvelleEtRepartDeZero) {
    ClsJeuBatiment& m = Maison(0, Ferme, 200);
    ASSERT_TRUE(m.Termine);
    m.Definir_Vie(100);   // damaged to half: still finished
    ASSERT_TRUE(m.Termine);
    m.Argent = 30;
    m.Stock = 5;
    ClsJeuPerso& p = Perso(0, 0, 10, 10);
    m.Creer(8, 9, Scierie, p, Param);   // the sawmill costs nothing

    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Bois), 10 + 10 * 0.5 * 0.5);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Planches), 10 + 4 * 0.5 * 0.5);
    EXPECT_EQ(m.Type, Scierie);
    EXPECT_DOUBLE_EQ(m.Vie, 180 * 0.09);
    EXPECT_DOUBLE_EQ(m.Argent, 0);
    EXPECT_DOUBLE_EQ(m.Stock, 0);

    // A house still under construction is replaced without a refund.
    ClsJeuPerso& q = Perso(1, 20, 20, 20);
    Maisons[1].Creer(0, 0, Ferme, q, Param);
    Maisons[1].Creer(0, 0, Ferme, q, Param);
    EXPECT_DOUBLE_EQ(q.Definir_Ressources(Bois), 0);
    EXPECT_DOUBLE_EQ(q.Definir_Ressources(Planches), 12);
}

TEST_F(Construction, DefinirVieTermineALaSanteCompleteEtEffaceA0) {
    ClsJeuBatiment& m = Maison(0, Ferme);
    m.Definir_Vie(199);
    EXPECT_FALSE(m.Termine);
    EXPECT_TRUE(m.EnConstruction);

    m.Definir_Vie(250);
    EXPECT_DOUBLE_EQ(m.Vie, 200);
    EXPECT_TRUE(m.Termine);
    EXPECT_FALSE(m.EnConstruction);

    m.Definir_Vie(20);   // later damage leaves it finished
    EXPECT_TRUE(m.Termine);
    EXPECT_TRUE(m.EnConstruction);

    m.ReserveVie = 500;
    EXPECT_DOUBLE_EQ(m.Definir_Vie(), 200);   // health and reserve, within MaxVie
    m.ReserveVie = 30;
    EXPECT_DOUBLE_EQ(m.Definir_Vie(), 50);

    m.Definir_Vie(-3);
    EXPECT_DOUBLE_EQ(m.Vie, -3);   // stays as written
    EXPECT_FALSE(m.Visible());
    EXPECT_FALSE(m.Termine);
    EXPECT_FALSE(m.EnConstruction);
    EXPECT_DOUBLE_EQ(m.ReserveVie, 0);
}

TEST_F(Construction, DemolirRembourseLaMoitieDuPrixSelonLaSante) {
    ClsJeuPerso& p = Perso(0, 20, 20, 20);
    p.ApparenceBase = 3;
    ClsJeuBatiment& m = Maisons[0];
    m.Creer(0, 0, Ferme, p, Param);   // 10 Bois, 4 Planches, at 9 % health
    m.Demolir(p, Param);
    EXPECT_NEAR(p.Definir_Ressources(Bois), 10 + 10 * 0.045, 1e-12);   // 4.5 % of the price
    EXPECT_NEAR(p.Definir_Ressources(Planches), 16 + 4 * 0.045, 1e-12);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Ble), 20);
    EXPECT_DOUBLE_EQ(m.Vie, 0);
    EXPECT_FALSE(m.Visible());

    // At full health, half; the owner inside leaves and loses the trade's look.
    m.Creer(0, 0, Ferme, p, Param);
    m.Definir_Vie(200);
    p.Calculer_Apparence(m, Param);
    ASSERT_EQ(p.Apparence, 1);
    p.DansSaMaison = true;
    p.Definir_Action(100);
    const double bois = p.Definir_Ressources(Bois);
    m.Demolir(p, Param);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Bois), bois + 5);
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
    ClsJeuBatiment& m = Maison(0, Ferme);   // 4 stages of construction
    EXPECT_EQ(m.Etat(Param), 0);
    m.Definir_Vie(150);
    EXPECT_EQ(m.Etat(Param), 3);
    m.Definir_Vie(200);
    EXPECT_EQ(m.Etat(Param), 3);   // finished shop, empty
    m.Stock = 0.9;
    EXPECT_EQ(m.Etat(Param), 3);
    m.Stock = 1;
    EXPECT_EQ(m.Etat(Param), 4);
    m.Definir_Vie(10);
    EXPECT_EQ(m.Etat(Param), 4);   // still finished

    // A workshop without objects shows the empty shop too; a temple, the full picture. Both
    // types have 0 stages in these rules.
    ClsJeuBatiment& atelier = Maison(1, Atelier, 300);
    EXPECT_EQ(atelier.Etat(Param), -1);
    ClsJeuBatiment& temple = Maison(2, Temple, 150);
    EXPECT_EQ(temple.Etat(Param), 0);
}

TEST_F(Construction, LAnimationTourneSurSesEtapes) {
    ClsJeuBatiment& m = Maison(0, Ferme);   // 2 frames
    EXPECT_EQ(m.Definir_NumeroAnimation(Param), 1);
    EXPECT_EQ(m.Definir_NumeroAnimation(Param), 0);
    EXPECT_EQ(m.Definir_NumeroAnimation(Param), 1);
    EXPECT_EQ(m.NumeroAnimation, 1);
}

TEST_F(Construction, LeStockEstPlafonneEtResteLaSommeDesLignesDObjets) {
    ClsJeuBatiment& m = Maison(0, Atelier);
    EXPECT_EQ(m.Definir_Nombre_Stock_Objet(), 1);   // the last index
    m.Stock_Objets(0, 3);
    m.Stock_Objets(1, 2);
    EXPECT_DOUBLE_EQ(m.Definir_Stock(), 5);
    m.Stock_Objets(0, 1);
    EXPECT_DOUBLE_EQ(m.Stock_Objets(0), 1);
    EXPECT_DOUBLE_EQ(m.Definir_Stock(), 3);

    m.Definir_Nombre_Stock_Objet(4);
    EXPECT_EQ(m.StockObjets.size(), 4u);
    EXPECT_EQ(m.Definir_Nombre_Stock_Objet(), 3);

    m.MaxStock = 50;
    m.Definir_Stock(80);
    EXPECT_DOUBLE_EQ(m.Definir_Stock(), 50);
    m.Definir_Stock(12.5);
    EXPECT_DOUBLE_EQ(m.Definir_Stock(), 12.5);
}

using Commerce = MondeRegles;

TEST_F(Commerce, LArgentPasseEntreCaisseEtPersonnageDansLaLimiteDeCeQuIlY_A) {
    ClsJeuBatiment& m = Maison(0, Ferme, 200);
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
    m.Transfert_Argent_Deposer(1, p, true);
    EXPECT_DOUBLE_EQ(m.Argent, 55);
}

TEST_F(Commerce, LeStockPasseParUnitesEntieresDansLaPlaceQuiReste) {
    ClsJeuBatiment& m = Maison(0, Ferme, 200);   // makes Blé, capacity 50
    ClsJeuPerso& p = Perso(0, 15);
    m.Stock = 30;
    m.Transfert_Stock_Prendre(10, p, Param, false);   // room 5
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Ble), 20);
    EXPECT_DOUBLE_EQ(m.Stock, 25);

    Perso(0, 12.5);
    m.Transfert_Stock_Prendre(2.9, p, Param, false);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Ble), 14.5);
    m.Transfert_Stock_Prendre(0, p, Param, true);   // all: 23 in stock, room 5.5
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Ble), 19.5);
    EXPECT_DOUBLE_EQ(m.Stock, 18);

    m.Stock = 45.5;
    m.Transfert_Stock_Deposer(0, p, Param, true);   // room 4.5 in the store
    EXPECT_DOUBLE_EQ(m.Stock, 49.5);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Ble), 15.5);
    m.Stock = 0;
    m.Transfert_Stock_Deposer(30, p, Param, false);   // no more than carried, whole units
    EXPECT_DOUBLE_EQ(m.Stock, 15);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Ble), 0.5);
}

TEST_F(Commerce, AcheterPaieLePrixMarchandeDansLaLimiteDeLArgent) {
    ClsJeuBatiment& m = Maison(0, Ferme, 200);
    m.Stock = 30;
    ClsJeuPerso& p = Perso(1);
    p.Argent = 10;
    m.Acheter(5, p, Param, false);   // 3 a unit (2 × 1.5): 10 buys 3
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Ble), 3);
    EXPECT_DOUBLE_EQ(p.Argent, 1);
    EXPECT_DOUBLE_EQ(m.Argent, 9);
    EXPECT_DOUBLE_EQ(m.Stock, 27);
    EXPECT_NEAR(p.CompetencesSpeciales[3].Exp, 0.001 * 9 * 20, 1e-12);   // bargaining grows

    Niveau_Special(p, 3, 40);   // a good bargainer: Round(1.5 × 3 / 2) = 2 a unit
    p.Argent = 100;
    m.Acheter(3, p, Param, false);
    EXPECT_DOUBLE_EQ(p.Argent, 94);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Ble), 6);

    p.Argent = 100;
    m.Stock = 4;
    m.Acheter(0, p, Param, true);   // all the money would buy 50: the stock has 4
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Ble), 10);
    EXPECT_DOUBLE_EQ(m.Stock, 0);
    EXPECT_DOUBLE_EQ(p.Argent, 92);
}

TEST_F(Commerce, SansArgentToutNAcheteRien) {
    ClsJeuBatiment& m = Maison(0, Ferme, 200);
    m.Stock = 30;
    ClsJeuPerso& p = Perso(1);
    p.Argent = 0;
    m.Acheter(5, p, Param, true);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Ble), 0);
    EXPECT_DOUBLE_EQ(m.Stock, 30);
    EXPECT_DOUBLE_EQ(m.Argent, 0);
    p.Argent = 2.9;   // less than one unit
    m.Acheter(5, p, Param, true);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Ble), 0);
    EXPECT_DOUBLE_EQ(p.Argent, 2.9);
}

TEST_F(Commerce, LaPlaceSeMesureSurLaPartieEntiereDeCeQuiEstPorte) {
    ClsJeuBatiment& m = Maison(0, Ferme, 200);
    m.Stock = 30;
    ClsJeuPerso& p = Persos[1];
    p.Definir_MaxRessources(Ble, 5);
    Perso(1, 3.7);
    p.Argent = 100;
    m.Acheter(10, p, Param, false);
    EXPECT_DOUBLE_EQ(p.Argent, 94);   // pays for 2
    EXPECT_DOUBLE_EQ(m.Stock, 28);
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Ble), 5);   // and stops at the capacity
}

TEST_F(Commerce, LePrixTotalEstUnEntierDe16Bits) {
    ClsJeuBatiment& m = Maison(0, Ferme, 200);
    m.Stock = 20000;
    ClsJeuPerso& p = Persos[1];
    p.Definir_MaxRessources(Ble, 20000);
    p.Argent = 1e6;
    m.Acheter(20000, p, Param, false);   // 60000 does not fit: the nearest value that does
    EXPECT_DOUBLE_EQ(p.Definir_Ressources(Ble), 20000);
    EXPECT_DOUBLE_EQ(m.Argent, 32767);
    EXPECT_DOUBLE_EQ(p.Argent, 1e6 - 32767);
}

using Services = MondeRegles;

TEST_F(Services, LaResurrectionEstPourLesMortsEtLeProprietaireNePaiePas) {
    ClsJeuBatiment& temple = Maison(0, Temple, 150);
    temple.Stock = 1;
    ClsJeuPerso& client = Persos[1];
    client.Argent = 10;   // the price, at the starting level
    EXPECT_FALSE(temple.Service_Utilisable(client, Param));   // alive
    client.Vivant(false);
    EXPECT_TRUE(temple.Service_Utilisable(client, Param));
    client.Argent = 9.5;
    EXPECT_FALSE(temple.Service_Utilisable(client, Param));   // cannot pay
    client.Argent = 10;
    temple.Stock = 0.9;
    EXPECT_FALSE(temple.Service_Utilisable(client, Param));   // nothing in stock

    temple.Stock = 1;
    ClsJeuPerso& proprietaire = Persos[0];
    proprietaire.Argent = 0;
    proprietaire.Vivant(false);
    EXPECT_TRUE(temple.Service_Utilisable(proprietaire, Param));
}

TEST_F(Services, LaResurrectionRendLaMoitieDeLaVieEtSePaie) {
    ClsJeuBatiment& temple = Maison(0, Temple, 150);
    temple.Stock = 3;
    ClsJeuPerso& client = Persos[1];
    client.Argent = 50;
    client.Vivant(false);
    ASSERT_EQ(Fiefs[0].NombreMorts, 1);
    temple.Service_Utiliser(client, Param, 0);
    EXPECT_TRUE(client.Vivant());
    EXPECT_DOUBLE_EQ(client.Vie.Valeur, client.Definir_MaxVie() * 0.5);
    EXPECT_EQ(Fiefs[0].NombreMorts, 0);
    EXPECT_DOUBLE_EQ(temple.Stock, 2);
    EXPECT_DOUBLE_EQ(client.Argent, 40);
    EXPECT_DOUBLE_EQ(temple.Argent, 10);
    EXPECT_NEAR(client.CompetencesSpeciales[3].Exp, 0.001 * 10 * 20, 1e-12);

    ClsJeuPerso& proprietaire = Persos[0];
    proprietaire.Argent = 5;
    proprietaire.Vivant(false);
    temple.Service_Utiliser(proprietaire, Param, 0);
    EXPECT_TRUE(proprietaire.Vivant());
    EXPECT_DOUBLE_EQ(proprietaire.Argent, 5);
    EXPECT_DOUBLE_EQ(temple.Argent, 10);
    EXPECT_DOUBLE_EQ(temple.Stock, 1);
}

TEST_F(Services, LaPrimeVaDansLaCaisseDuTueurEtLesAutresPaient) {
    ClsJeuBatiment& maison = Maison(0, Temple, 150);
    maison.Service = 2;
    maison.Stock = 1;
    ClsJeuPerso& tueur = Persos[0];
    tueur.Argent = 0;
    EXPECT_TRUE(maison.Service_Utilisable(tueur, Param));   // alive is fine for this service
    maison.Service_Utiliser(tueur, Param, 25);
    EXPECT_DOUBLE_EQ(maison.Argent, 25);
    EXPECT_DOUBLE_EQ(tueur.Argent, 0);
    EXPECT_DOUBLE_EQ(maison.Stock, 1);   // only a resurrection uses up the stock

    ClsJeuPerso& client = Persos[1];
    client.Argent = 3;
    EXPECT_FALSE(maison.Service_Utilisable(client, Param));   // costs 4
    client.Argent = 4;
    EXPECT_TRUE(maison.Service_Utilisable(client, Param));
    maison.Service_Utiliser(client, Param, 0);
    EXPECT_DOUBLE_EQ(client.Argent, 0);
    EXPECT_DOUBLE_EQ(maison.Argent, 29);
}

TEST_F(Services, LeServiceJoueSonEffetSurLaMaisonSansInterrompreCeluiEnCours) {
    ClsJeuBatiment& temple = Maison(1, Temple, 150);
    temple.Stock = 5;
    ClsJeuPerso& client = Persos[0];
    client.Argent = 100;
    client.Vivant(false);
    temple.Service_Utiliser(client, Param, 0);
    const ClsJeuEffet& effet = EffetsMaisons[1];
    EXPECT_TRUE(effet.Actif);
    EXPECT_EQ(effet.Type, 1);
    EXPECT_FALSE(EffetsMaisons[0].Actif);

    EffetsMaisons[1].Type = 0;   // a playing effect is not displaced
    client.Vivant(false);
    temple.Service_Utiliser(client, Param, 0);
    EXPECT_EQ(EffetsMaisons[1].Type, 0);

    ClsJeuBatiment& prime = Maison(2, Temple, 150);
    prime.Service = 2;   // no effect
    prime.Service_Utiliser(Persos[2], Param, 10);
    EXPECT_FALSE(EffetsMaisons[2].Actif);
}

TEST(EmpreinteBatiment, ChaqueChampChangeLEmpreinte) {
    const auto empreinte = [](const ClsJeuBatiment& b) {
        Empreinte e;
        b.Empreindre(e);
        return e.Valeur();
    };
    const ClsJeuBatiment base;
    const uint64_t h = empreinte(base);
    const std::vector<void (*)(ClsJeuBatiment&)> changements = {
        [](ClsJeuBatiment& b) { b.Numero = 1; },
        [](ClsJeuBatiment& b) { b.PositionX = 1; },
        [](ClsJeuBatiment& b) { b.PositionY = 1; },
        [](ClsJeuBatiment& b) { b.Largeur = 1; },
        [](ClsJeuBatiment& b) { b.Hauteur = 1; },
        [](ClsJeuBatiment& b) { b.EntreePositionX = 1; },
        [](ClsJeuBatiment& b) { b.EntreePositionY = 1; },
        [](ClsJeuBatiment& b) { b.Termine = true; },
        [](ClsJeuBatiment& b) { b.EnConstruction = true; },
        [](ClsJeuBatiment& b) { b.Vie = 1; },
        [](ClsJeuBatiment& b) { b.ReserveVie = 1; },
        [](ClsJeuBatiment& b) { b.MaxVie = 1; },
        [](ClsJeuBatiment& b) { b.Argent = 1; },
        [](ClsJeuBatiment& b) { b.MaxStock = 1; },
        [](ClsJeuBatiment& b) { b.Magasin = true; },
        [](ClsJeuBatiment& b) { b.Fabrique = true; },
        [](ClsJeuBatiment& b) { b.Service = 1; },
        [](ClsJeuBatiment& b) { b.Type = 1; },
        [](ClsJeuBatiment& b) { b.Stock = 1; },
        [](ClsJeuBatiment& b) { b.StockObjets.push_back(0); },
        [](ClsJeuBatiment& b) { b.NumeroAnimation = 1; },
    };
    for (std::size_t i = 0; i < changements.size(); ++i) {
        ClsJeuBatiment b;
        changements[i](b);
        EXPECT_NE(empreinte(b), h) << "change " << i;
    }
}

}  // namespace

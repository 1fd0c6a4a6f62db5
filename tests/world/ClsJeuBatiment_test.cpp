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

    EXPECT_EQ(m.Largeur, 64);
    EXPECT_DOUBLE_EQ(m.Vie, 360);   // 9 % of MaxVie
    EXPECT_FALSE(m.Termine);
    EXPECT_EQ(m.StockObjets.size(), 1u);
    EXPECT_EQ(Maison(1, Menuisier).StockObjets.size(), 6u);   // one line per object made

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

TEST_F(Construction, LaSanteTermineAuMaximumSeVerseParDixiemesEtEffaceA0) {
    ClsJeuBatiment& m = Maison(0, Boulangerie);
    m.Definir_Vie(3999.75);
    EXPECT_FALSE(m.Termine);
    EXPECT_TRUE(m.EnConstruction);
    m.ReserveVie = 0.35;   // poured in a tenth a tick, up to MaxVie
    m.Restauration();
    EXPECT_DOUBLE_EQ(m.Vie, 3999.85);
    m.Restauration();
    m.Restauration();
    EXPECT_DOUBLE_EQ(m.Vie, 4000);
    EXPECT_TRUE(m.Termine);
    EXPECT_FALSE(m.EnConstruction);
    EXPECT_NEAR(m.ReserveVie, 0.05, 1e-12);
    m.Restauration();   // under 0.1 the rest is dropped
    EXPECT_DOUBLE_EQ(m.ReserveVie, 0);

    m.Definir_Vie(5000);
    EXPECT_DOUBLE_EQ(m.Vie, 4000);
    m.Definir_Vie(20);   // later damage leaves it finished
    EXPECT_TRUE(m.Termine);
    EXPECT_TRUE(m.EnConstruction);
    m.ReserveVie = 30;
    EXPECT_DOUBLE_EQ(m.Definir_Vie(), 50);   // health and reserve, within MaxVie
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

// Pain from the store to the bag or back: its stock and what is carried, before and after.
struct Transfert {
    bool prendre;
    double stock, porte, q;
    bool tout;
    double stock_apres, porte_apres;
};

const Transfert Transferts[] = {
    {true, 30, 15, 10, false, 25, 20},          // room for 5 in the bag
    {true, 25, 14.5, 0, true, 20, 19.5},        // all: room for 5.5, whole units
    {false, 35.5, 19.5, 0, true, 39.5, 15.5},   // room for 4.5 in the store of 40
    {false, 0, 15.5, 30, false, 15, 0.5},       // no more than carried
};

TEST_F(Commerce, LesTransfertsRestentDansCeQuIlYAEtParUnitesEntieres) {
    ClsJeuBatiment& m = Maison(0, Boulangerie, true);
    ClsJeuPerso& p = Persos[0];
    m.Argent = 30;
    p.Argent = 25;
    m.Transfert_Argent_Prendre(50, p, false);
    EXPECT_DOUBLE_EQ(p.Argent, 55);
    EXPECT_DOUBLE_EQ(m.Argent, 0);
    m.Transfert_Argent_Deposer(10, p, false);
    EXPECT_DOUBLE_EQ(m.Argent, 10);
    m.Transfert_Argent_Deposer(100, p, false);
    EXPECT_DOUBLE_EQ(p.Argent, 0);
    EXPECT_DOUBLE_EQ(m.Argent, 55);

    for (const Transfert& t : Transferts) {
        SCOPED_TRACE(&t - Transferts);
        m.Stock = t.stock;
        Perso(0, 0, 0, t.porte);
        if (t.prendre)
            m.Transfert_Stock_Prendre(t.q, p, Param, t.tout);
        else
            m.Transfert_Stock_Deposer(t.q, p, Param, t.tout);
        EXPECT_DOUBLE_EQ(m.Stock, t.stock_apres);
        EXPECT_DOUBLE_EQ(p.Definir_Ressources(Pain), t.porte_apres);
    }
}

// A purchase of Pain: the buyer's bargaining level and capacity, Pain carried, money and
// the stock before; the order; Pain, money and stock after. The till gains what is paid.
struct Achat {
    int32_t niveau, capacite;
    double porte, argent, stock, q;
    bool tout;
    double porte_apres, argent_apres, stock_apres;
};

const Achat Achats[] = {
    {10, 20, 0, 40, 30, 5, false, 3, 4, 27},       // 12 a unit (8 × 1.5): 40 buys 3
    {20, 20, 3, 100, 4, 0, true, 7, 64, 0},        // (10 / 20 + 1) × 12 / 2 = 9 a unit; 4 in stock
    {20, 20, 7, 30, 30, 0, true, 10, 3, 27},       // all the money buys 3
    {20, 20, 7, 0, 30, 5, true, 7, 0, 30},         // all, without money: nothing
    {20, 20, 7, 8.9, 30, 5, true, 7, 8.9, 30},     // nor with less than a unit's price
    {10, 5, 3.7, 100, 30, 10, false, 5, 76, 28},   // room for 5 - 3: both paid, one cut
    {10, 20000, 0, 1e6, 20000, 20000, false, 20000, 1e6 - 32767, 0},   // a total of 16 bits
};

TEST_F(Commerce, AcheterPaieLePrixMarchandeDansLaLimiteDeLArgentDuStockEtDeLaPlace) {
    ClsJeuBatiment& m = Maison(0, Boulangerie, true);
    ClsJeuPerso& p = Persos[1];
    for (const Achat& a : Achats) {
        SCOPED_TRACE(&a - Achats);
        Niveau_Special(p, 3, a.niveau);
        p.Definir_MaxRessources(Pain, a.capacite);
        Perso(1, 0, 0, a.porte);
        p.Argent = a.argent;
        m.Stock = a.stock;
        const double caisse = m.Argent;
        m.Acheter(a.q, p, Param, a.tout);
        EXPECT_DOUBLE_EQ(p.Definir_Ressources(Pain), a.porte_apres);
        EXPECT_DOUBLE_EQ(p.Argent, a.argent_apres);
        EXPECT_DOUBLE_EQ(m.Stock, a.stock_apres);
        EXPECT_DOUBLE_EQ(m.Argent - caisse, a.argent - a.argent_apres);
        if (&a == Achats) {
            EXPECT_NEAR(p.CompetencesSpeciales[3].Exp, 0.001 * 36 * 20, 1e-12);   // bargaining grows
        }
    }
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

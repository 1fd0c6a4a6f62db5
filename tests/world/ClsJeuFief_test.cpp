// A fief's market, its step of each tick, the money given to its castle and the climb from
// one epoch to the next.
#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>

#include "MondeRegles.h"
#include "world/ClsJeuFief.h"
#include "world/GestionFiefs.h"

namespace {

// The market holds 5 of every resource but the ones named.
void Stocks(ClsJeuFief& f, std::initializer_list<std::pair<int, double>> autres) {
    f.Ressources.assign(f.Ressources.size(), 5);
    for (const auto& [r, q] : autres) f.Ressources[static_cast<std::size_t>(r)] = q;
}

using Marche = MondeRegles;

// A trade of Bois with the market: Bois carried, money and the market's Bois before; the
// order; the three after.
struct Echange {
    bool vente;
    double porte, argent, marche, q;
    bool tout;
    double porte_apres, argent_apres, marche_apres;
};

const Echange Echanges[] = {
    {true, 10, 0, 0, 4.7, false, 6, 8, 4},            // 2 a unit, whole units
    {true, 6, 8, 4, 0.5, false, 6, 8, 4},             // half a unit sells nothing
    {true, 6, 8, 4, 50, false, 0, 20, 10},            // no more than carried
    {true, 2.5, 0, 0, 0, true, 0.5, 4, 2},            // all the whole units
    {false, 0, 20, 10, 3, false, 3, 11, 7},           // 3 a unit (2 × 1.5)
    {false, 3, 7, 7, 5, false, 5, 1, 5},              // 7 buys 2
    {false, 5, 0, 5, 5, true, 5, 0, 5},               // all, without money: nothing
    {false, 5, 100, 1.5, 0, true, 6, 97, 0.5},        // the market has one whole unit
    {false, 19.5, 100, 10, 3, false, 19.5, 100, 10},  // room for 0.5, measured exactly: nothing
};

TEST_F(Marche, VendreEtAcheterParUnitesEntieresAuPrixDeVente) {
    ClsJeuFief& f = Fiefs[0];
    ClsJeuPerso& p = Persos[0];
    for (const Echange& e : Echanges) {
        SCOPED_TRACE(&e - Echanges);
        Perso(0, e.porte);
        p.Argent = e.argent;
        f.Definir_Ressources(Bois, e.marche);
        if (e.vente)
            f.Vendre(Bois, e.q, p, Param, e.tout);
        else
            f.Acheter(Bois, e.q, p, Param, e.tout);
        EXPECT_DOUBLE_EQ(p.Definir_Ressources(Bois), e.porte_apres);
        EXPECT_DOUBLE_EQ(p.Argent, e.argent_apres);
        EXPECT_DOUBLE_EQ(f.Definir_Ressources(Bois), e.marche_apres);
    }
    f.Definir_Ressources(Bois, -4);   // the stock never goes below 0
    EXPECT_DOUBLE_EQ(f.Definir_Ressources(Bois), 0);
    EXPECT_DOUBLE_EQ(f.Definir_Ressources(-1), 0);
}

using Transaction = MondeRegles;

TEST_F(Transaction, LePlusAbondantPasse002AuPlusRareDesEpoquesDuFief) {
    ClsJeuFief& f = Fiefs[0];
    f.Epoque = 4;
    Stocks(f, {});
    for (int t = 0; t < 100; ++t) f.Transaction_Ressources(Param);
    EXPECT_EQ(f.Ressources, std::vector<double>(f.Ressources.size(), 5));

    Stocks(f, {{Bois, 3}, {Pierre, 3.9}, {Planches, 9}});   // equal whole stocks: the first is kept
    f.Transaction_Ressources(Param);
    EXPECT_DOUBLE_EQ(f.Ressources[Bois], 3.02);
    EXPECT_DOUBLE_EQ(f.Ressources[Pierre], 3.9);
    EXPECT_DOUBLE_EQ(f.Ressources[Planches], 8.98);

    f.Epoque = 0;   // Planches and Pain belong to the second epoch: they only lose
    Stocks(f, {{Bois, 3}, {Planches, 1}, {Pain, 9}});
    f.Transaction_Ressources(Param);
    EXPECT_DOUBLE_EQ(f.Ressources[Bois], 3.02);
    EXPECT_DOUBLE_EQ(f.Ressources[Pain], 8.98);
    for (int t = 0; t < 1000; ++t) f.Transaction_Ressources(Param);
    EXPECT_DOUBLE_EQ(f.Ressources[Planches], 1);
}

TEST_F(Transaction, LaPremiereRessourceGagneQuelleQueSoitSonEpoqueEtUnEcartDe002NeBougePas) {
    regles.Modifier({FichierRessources, "Ressource_1", "Epoque"}, "3");
    Param.Init(2);
    ClsJeuFief& f = Fiefs[0];
    Stocks(f, {{0, 1}, {Planches, 9}});
    f.Transaction_Ressources(Param);
    EXPECT_DOUBLE_EQ(f.Ressources[0], 1.02);
    EXPECT_DOUBLE_EQ(f.Ressources[Planches], 8.98);

    Stocks(f, {{Bois, 4.99}});   // Low Bois, High resource 0, 0.01 apart
    f.Transaction_Ressources(Param);
    EXPECT_DOUBLE_EQ(f.Ressources[0], 5);
    EXPECT_DOUBLE_EQ(f.Ressources[Bois], 4.99);
    Stocks(f, {{Bois, 4.97}});
    f.Transaction_Ressources(Param);
    EXPECT_DOUBLE_EQ(f.Ressources[0], 4.98);
    EXPECT_DOUBLE_EQ(f.Ressources[Bois], 4.99);
}

using Chateau = MondeRegles;

TEST_F(Chateau, LaVieDuChateauSuitLesEpoquesEtLArgentDonne) {
    ClsJeuFief& f = Fiefs[0];
    ClsJeuBatiment& c = Chateaux[0];
    Initialiser_Chateau(c, f, Param);
    EXPECT_EQ(c.MaxVie, 5000);
    EXPECT_DOUBLE_EQ(c.Vie, 5000);
    EXPECT_TRUE(c.Termine);
    EXPECT_EQ(c.Largeur, 112);
    f.Epoque = 2;
    Initialiser_Chateau(c, f, Param);
    EXPECT_EQ(c.MaxVie, 10000);
    f.Peuple = 1;   // a monster fief has no epochs to its castle
    Initialiser_Chateau(c, f, Param);
    EXPECT_EQ(c.MaxVie, 4000);

    // Money given becomes health at 5 a point.
    f.Peuple = 0;
    f.Epoque = 0;
    Initialiser_Chateau(c, f, Param);
    ClsJeuPerso& p = Persos[0];
    p.Argent = 100;
    f.Restaurer_Chateau(50, p, false);   // a full castle: the gift waits
    f.Restauration(c);
    EXPECT_DOUBLE_EQ(f.TresorRestauration, 50);
    EXPECT_DOUBLE_EQ(c.ReserveVie, 0);
    EXPECT_DOUBLE_EQ(p.Argent, 50);

    f.TresorRestauration = 0;
    c.Definir_Vie(4990);
    f.Restaurer_Chateau(5, p, false);
    f.Restauration(c);
    EXPECT_DOUBLE_EQ(c.ReserveVie, 1);
    EXPECT_NEAR(f.TresorRestauration, 0, 1e-12);

    c.ReserveVie = 0;
    f.TresorRestauration = 100;
    f.Restauration(c);   // what is missing and one more
    EXPECT_NEAR(c.ReserveVie, 11, 1e-12);
    EXPECT_NEAR(f.TresorRestauration, 45, 1e-12);
    f.Restaurer_Chateau(1000, p, false);   // no more than it has
    EXPECT_DOUBLE_EQ(p.Argent, 0);
    EXPECT_NEAR(f.TresorRestauration, 90, 1e-12);
}

// Ticks of the world's fief step until fief 0 reaches the epoch or the limit runs out.
int Tours_Jusqu_A(int16_t epoque, int limite) {
    for (int t = 1; t <= limite; ++t) {
        Gerer_Fiefs();
        if (Fiefs[0].Epoque == epoque) return t;
    }
    return -1;
}

TEST_F(Chateau, LEpoqueMonteQuandLeChateauAFiniDeGrandirEtJamaisAuDelaDeLaDerniere) {
    ClsJeuFief& f = Fiefs[0];
    ClsJeuBatiment& c = Chateaux[0];
    Initialiser_Chateau(c, f, Param);
    f.Changer_Epoque(c, Param);
    EXPECT_TRUE(f.ChangementEpoque);
    EXPECT_EQ(c.MaxVie, 7000);
    EXPECT_DOUBLE_EQ(c.ReserveVie, 2001);
    f.Changer_Epoque(c, Param);   // one climb at a time
    EXPECT_EQ(c.MaxVie, 7000);

    EXPECT_EQ(Tours_Jusqu_A(1, 20000), -1);   // about 10 × 2001 ticks
    const int reste = Tours_Jusqu_A(1, 20);
    EXPECT_GE(reste, 10);
    EXPECT_LE(reste, 12);
    EXPECT_FALSE(f.ChangementEpoque);
    EXPECT_DOUBLE_EQ(c.Vie, 7000);

    f.Epoque = static_cast<int16_t>(Param.NombreEpoques - 1);   // the last epoch
    f.Changer_Epoque(c, Param);
    EXPECT_FALSE(f.ChangementEpoque);
    EXPECT_EQ(c.MaxVie, 7000);
}

TEST_F(Chateau, UnChateauTombeNeMontePasEtFinitSaMonteeSIlSeReleve) {
    ClsJeuFief& f = Fiefs[0];
    ClsJeuBatiment& c = Chateaux[0];
    Initialiser_Chateau(c, f, Param);
    c.Definir_Vie(0);
    f.Changer_Epoque(c, Param);
    EXPECT_FALSE(f.ChangementEpoque);
    EXPECT_EQ(c.MaxVie, 5000);

    c.Definir_Vie(5000);
    f.Changer_Epoque(c, Param);
    c.Definir_Vie(0);   // falls during the climb
    EXPECT_EQ(Tours_Jusqu_A(1, 50), -1);
    EXPECT_TRUE(f.ChangementEpoque);
    EXPECT_DOUBLE_EQ(c.Vie, 0);
    c.Definir_Vie(10);
    EXPECT_EQ(Tours_Jusqu_A(1, 1), 1);
}

TEST_F(Chateau, GererFiefsTraiteChaqueFiefAvecSonChateauDansLOrdre) {
    for (std::size_t i = 0; i < Fiefs.size(); ++i) Initialiser_Chateau(Chateaux[i], Fiefs[i], Param);
    Fiefs[1].TresorRestauration = 5;
    Chateaux[1].Definir_Vie(4990);
    Fiefs[1].Epoque = 4;
    Stocks(Fiefs[1], {{Bois, 1}, {Pain, 9}});
    Gerer_Fiefs();
    EXPECT_NEAR(Chateaux[1].ReserveVie, 0.9, 1e-12);   // the gift, then the castle's first tenth
    EXPECT_DOUBLE_EQ(Chateaux[1].Vie, 4990.1);
    EXPECT_DOUBLE_EQ(Fiefs[1].Ressources[Bois], 1.02);
    EXPECT_DOUBLE_EQ(Chateaux[0].Vie, 5000);
    EXPECT_DOUBLE_EQ(Chateaux[0].ReserveVie, 0);

    // The fief looks at the reserve before the castle drops the last crumb: one tick more.
    Fiefs[0].ChangementEpoque = true;
    Chateaux[0].ReserveVie = 0.05;
    Gerer_Fiefs();
    EXPECT_EQ(Fiefs[0].Epoque, 0);
    EXPECT_DOUBLE_EQ(Chateaux[0].ReserveVie, 0);
    Gerer_Fiefs();
    EXPECT_EQ(Fiefs[0].Epoque, 1);
}

}  // namespace

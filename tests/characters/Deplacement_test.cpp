#include "characters/Deplacement.h"

#include <cstdlib>
#include <vector>

#include "ReglesParDefaut.h"
#include "characters/ClsJeuPerso.h"

namespace {

// A one-fief world with its castle at (2000, 2000), three characters in the open at
// (100, 100) walking 3 metres a tick, and a deposit.
class Mouvement : public ReglesParDefaut {
protected:
    void SetUp() override {
        ReglesParDefaut::SetUp();
        Peupler(3);
        for (ClsJeuPerso& p : Persos) {
            p.PositionX = p.PositionY = 100;
            p.Arreter();
        }
        ClsJeuBatiment& chateau = Chateaux[0];
        chateau.PositionX = chateau.PositionY = 2000;
        chateau.Largeur = Param.ChateauxLargeur;
        chateau.Hauteur = Param.ChateauxHauteur;
        chateau.MaxVie = 4000;
        chateau.Definir_Vie(4000);
        Ressources.assign(1, ClsJeuRessources{});
        Ressources[0].PositionX = 400;
        Ressources[0].PositionY = 100;
        Ressources[0].TypeRessource = 3;
        Ressources[0].Quantite = 100;
    }

    static ClsJeuPerso& P(int i) { return Persos[static_cast<std::size_t>(i)]; }

    // One tick of character i; the comment code it raised, -1 for none.
    static int32_t Tour(int i = 0) {
        int32_t commentaire = -1;
        CiblesDeplacement cibles = Lire_Cibles(P(i));
        P(i).Deplacement(cibles, commentaire, Param);
        return commentaire;
    }
    static void Tours(int n, int i = 0) {
        for (int k = 0; k < n; ++k) Tour(i);
    }
    // Ticks until the character no longer walks, at most max.
    static int Marcher_Jusqu_A_Arrivee(int i, int max = 2000) {
        int n = 0;
        do {
            Tour(i);
            ++n;
        } while (P(i).EnMouvement && n < max);
        return n;
    }

    // House of character i, of a type chosen by its trade, at (300, 500); finished or a
    // fresh building site.
    template <class Predicat>
    static ClsJeuBatiment& Batir(int i, Predicat type_voulu, bool finie) {
        int16_t type = -1;
        for (int16_t b = 0; b < Param.NombreTypeBatiments && type < 0; ++b)
            if (type_voulu(b)) type = b;
        EXPECT_GE(type, 0) << "aucun type de bâtiment ne convient dans les règles par défaut";
        ClsJeuBatiment& m = Maisons[static_cast<std::size_t>(i)];
        m.Creer(300, 500, type, P(i), Param);
        if (finie) m.Definir_Vie(m.MaxVie);
        return m;
    }
    static bool Sans_Metier(int16_t b) {
        return Param.Batiment_RessourceFabrique(b) < 0 && Param.Batiment_Service(b) == 0;
    }
    static bool Recolte(int16_t b) { return Param.Batiment_RessourceFabrique(b) >= 0; }
    static bool De_Service(int16_t b) { return Param.Batiment_Service(b) > 0; }
};

// --- Walking ---

TEST_F(Mouvement, UnPersoEnvoyeEnUnPointYArriveEtSeMetEnAttente) {
    ClsJeuPerso& p = P(0);
    p.Aller_A(130, 160);
    Tours(30);   // 20 steps south, then 10 east, of 3 metres
    EXPECT_EQ(p.PositionX, 130);
    EXPECT_EQ(p.PositionY, 160);
    EXPECT_EQ(p.Definir_Action(), 1);   // arrival is the next tick
    EXPECT_TRUE(p.EnMouvement);
    Tour();
    EXPECT_EQ(p.Definir_Action(), 0);
    EXPECT_EQ(p.Texte_Action(Param), "En attente");
    EXPECT_EQ(p.Direction, 0);
    EXPECT_FALSE(p.EnMouvement);
    Tours(5);   // arrived on every later tick: it stays
    EXPECT_EQ(p.PositionX, 130);
    EXPECT_EQ(p.PositionY, 160);
    EXPECT_EQ(p.Definir_Action(), 0);
}

TEST_F(Mouvement, LaJambeNordSudPasseAvantLaJambeEstOuest) {
    ClsJeuPerso& p = P(0);
    p.Aller_A(190, 40);   // 90 east, 60 north
    std::vector<int16_t> directions;
    for (int k = 0; k < 50; ++k) {
        const int32_t x = p.PositionX;
        Tour();
        directions.push_back(p.Direction);
        if (k < 20) {
            EXPECT_EQ(p.PositionX, x) << "tick " << k;
        }
    }
    EXPECT_EQ(std::vector<int16_t>(directions.begin(), directions.begin() + 20), std::vector<int16_t>(20, 1));
    EXPECT_EQ(std::vector<int16_t>(directions.begin() + 20, directions.end()), std::vector<int16_t>(30, 2));

    ClsJeuPerso& q = P(1);
    q.Aller_A(10, 160);   // south first, then west
    Tour(1);
    EXPECT_EQ(q.Direction, 3);
    Tours(20, 1);
    EXPECT_EQ(q.Direction, 4);
    EXPECT_EQ(q.PositionY, 160);
}

TEST_F(Mouvement, LeMarcheurSArreteADemiPasPresDuBut) {
    ClsJeuPerso& p = P(0);
    p.Vitesse = 4;
    p.Aller_A(100, 94);
    Marcher_Jusqu_A_Arrivee(0);
    EXPECT_EQ(p.PositionY, 96);
    EXPECT_EQ(p.DestinationY, 96);   // pinned to where it stands

    p.PositionY = 100;
    p.Aller_A(100, 93);
    Marcher_Jusqu_A_Arrivee(0);
    EXPECT_EQ(p.PositionY, 92);

    p.PositionY = 100;
    p.Aller_A(98, 98);   // exactly half a step away on both legs: the tests are strict
    Tour();
    EXPECT_EQ(p.PositionX, 100);
    EXPECT_EQ(p.PositionY, 100);
    EXPECT_EQ(p.Definir_Action(), 0);
}

TEST_F(Mouvement, UnMarcheurImmobiliseAttendLaFinDeSonImmobilisation) {
    ClsJeuPerso& p = P(0);
    p.Aller_A(100, 400);
    Tour();
    ASSERT_EQ(p.PositionY, 103);
    p.Definir_DureeImmobilisation(2.5);
    const int16_t etape = p.EtapeAnimation;
    Tours(3);
    EXPECT_EQ(p.PositionY, 103);
    EXPECT_EQ(p.EtapeAnimation, etape);   // held still, not walking on the spot
    EXPECT_DOUBLE_EQ(p.DureeImmobilisation, -0.5);
    EXPECT_EQ(p.Definir_Action(), 1);
    Tour();
    EXPECT_EQ(p.PositionY, 106);
}

TEST_F(Mouvement, MarcherFaitSortirDesBatimentsFatigueEtAnime) {
    ClsJeuPerso& p = P(0);
    p.Visible(false);
    p.RessourceRecoltee = 4;
    const double energie = p.Energie.Valeur;
    p.Aller_A(100, 400);
    Tour();
    EXPECT_TRUE(p.Visible());
    EXPECT_TRUE(p.EnMouvement);
    EXPECT_EQ(p.RessourceRecoltee, -1);
    EXPECT_DOUBLE_EQ(p.Energie.Valeur, energie - 0.001);
    EXPECT_EQ(p.EtapeAnimation, 1);
    Tours(3);
    EXPECT_EQ(p.EtapeAnimation, 0);   // four frames, then round again
    Tour();
    EXPECT_EQ(p.EtapeAnimation, 1);
    EXPECT_DOUBLE_EQ(p.Energie.Valeur, energie - 0.005);
}

TEST_F(Mouvement, LaFormeRaccourcitLePasEtUnMortMarcheASixMetres) {
    ClsJeuPerso& p = P(0);
    p.Vitesse = 8;
    p.Energie.Valeur = p.Energie.Max * 0.3;   // 0.875 of form: a step of Int(7) = 7
    p.Aller_A(100, 400);
    Tour();
    EXPECT_DOUBLE_EQ(p.CoefForme, 0.875);
    EXPECT_EQ(p.LongueurPas, 7);
    EXPECT_EQ(p.PositionY, 107);

    ClsJeuPerso& mort = P(1);
    mort.Definir_Vie(0);
    mort.CoefForme = 0.5;
    mort.Energie.Valeur = 0;
    mort.Aller_A(100, 400);
    Tour(1);
    EXPECT_EQ(mort.LongueurPas, 6);
    EXPECT_EQ(mort.PositionY, 106);
    EXPECT_DOUBLE_EQ(mort.CoefForme, 0.5);   // the form of the dead is left alone
    EXPECT_EQ(mort.Energie.Valeur, 0);       // and walking does not tire them
}

TEST_F(Mouvement, UnVolantPlaneSurPlaceEtSeFatigueAChaqueTour) {
    ClsJeuPerso& p = P(0);
    p.Volant = true;
    p.Energie.Valeur = 50;
    Tours(5);   // already on its destination
    EXPECT_EQ(p.Direction, 3);
    EXPECT_TRUE(p.EnMouvement);
    EXPECT_EQ(p.PositionY, 100);
    // Waiting outdoors gives back 0.00005 of the maximum, hovering costs 0.001.
    EXPECT_NEAR(p.Energie.Valeur, 50 + 5 * (p.Energie.Max * 0.00005 - 0.001), 1e-9);
    EXPECT_EQ(p.EtapeAnimation, 1);   // 1, 2, 3, 0, 1
    EXPECT_EQ(p.Definir_Action(), 0);
}

// --- Deposits ---

TEST_F(Mouvement, UnRecolteurVaAuGisementEtSeMetARecolter) {
    ClsJeuPerso& p = P(0);
    p.DansMaison = true;
    p.Aller_Ressource(Ressources[0], 0, 32, 32);
    EXPECT_EQ(p.DestinationX, 404);
    EXPECT_EQ(p.DestinationY, 100);
    Marcher_Jusqu_A_Arrivee(0);
    EXPECT_EQ(p.Definir_Action(), 2);
    EXPECT_EQ(p.RessourceRecoltee, 3);
    EXPECT_FALSE(p.DansMaison);
    EXPECT_EQ(p.Texte_Action(Param), "Récolter ressources");
}

// --- Houses ---

TEST_F(Mouvement, UnPersoQuiRentreChezLuiNEstPlusDehors) {
    ClsJeuPerso& p = P(0);
    ClsJeuBatiment& m = Batir(0, Sans_Metier, true);
    p.Rentrer_Maison(m);
    EXPECT_EQ(p.Definir_Action(), 101);
    EXPECT_TRUE(p.Visible());
    ASSERT_EQ(m.Largeur % 2, 0);
    const int32_t porte = m.PositionX + m.Largeur / 2 - 12 + m.EntreePositionX;
    EXPECT_EQ(p.DestinationX, porte);
    Marcher_Jusqu_A_Arrivee(0);
    EXPECT_EQ(p.PositionX, p.DestinationX);
    EXPECT_LE(std::abs(p.PositionX - porte), 1);   // within half a step of the door
    EXPECT_TRUE(p.DansSaMaison);
    EXPECT_FALSE(p.Visible());   // not drawn outside any more
    EXPECT_EQ(p.Definir_Action(), 100);   // a house without a trade: it rests
    EXPECT_EQ(p.RessourceRecoltee, -1);
}

TEST_F(Mouvement, ALaMaisonUnOuvrierPrendLeNomDeSonMetier) {
    ClsJeuPerso& p = P(0);
    ClsJeuBatiment& m = Batir(0, Recolte, true);
    const int32_t r = Param.Batiment_RessourceFabrique(m.Type);
    p.Rentrer_Maison(m);
    Marcher_Jusqu_A_Arrivee(0);
    EXPECT_TRUE(p.DansSaMaison);
    EXPECT_EQ(p.Definir_Action(), 102);
    EXPECT_EQ(p.RessourceRecoltee, r);
    EXPECT_EQ(p.Texte_Action(Param), Param.Ressources_NomCompetence(r));
    Tours(3);   // it arrives again each tick
    EXPECT_EQ(p.Definir_Action(), 102);
    EXPECT_EQ(p.Texte_Action(Param), Param.Ressources_NomCompetence(r));
}

TEST_F(Mouvement, UneMaisonDeServiceGardeSonMaitreAuTravail) {
    ClsJeuPerso& p = P(0);
    ClsJeuBatiment& m = Batir(0, De_Service, true);
    p.Rentrer_Maison(m);
    Marcher_Jusqu_A_Arrivee(0);
    EXPECT_TRUE(p.DansSaMaison);
    EXPECT_EQ(p.RessourceRecoltee, -1);
    EXPECT_FALSE(p.Inactif());
}

TEST_F(Mouvement, UnOuvrierDontLaMaisonTombeSArrete) {
    ClsJeuPerso& p = P(0);
    ClsJeuBatiment& m = Batir(0, Recolte, true);
    p.Rentrer_Maison(m);
    Marcher_Jusqu_A_Arrivee(0);
    ASSERT_EQ(p.Definir_Action(), 102);
    m.Definir_Vie(0);
    Tour();
    EXPECT_FALSE(p.DansSaMaison);
    EXPECT_EQ(p.Definir_Action(), 0);
    EXPECT_EQ(p.Texte_Action(Param), "En attente");
}

TEST_F(Mouvement, SeReposerChezSoiRendDeuxFoisPlusQuAttendreDehors) {
    ClsJeuPerso& chez_soi = P(0);
    ClsJeuPerso& dehors = P(1);
    ClsJeuBatiment& m = Batir(0, Sans_Metier, true);
    chez_soi.Rentrer_Maison(m);
    Marcher_Jusqu_A_Arrivee(0);
    ASSERT_EQ(chez_soi.Definir_Action(), 100);
    for (ClsJeuPerso* p : {&chez_soi, &dehors}) {
        p->Vie.Valeur = 50;
        p->Energie.Valeur = 60;
        p->Magie.Valeur = 30;
        p->Moral.Valeur = 80;
    }
    Tour(0);
    Tour(1);
    EXPECT_DOUBLE_EQ(chez_soi.Vie.Valeur, 50 + chez_soi.Vie.Max * 0.0001);
    EXPECT_DOUBLE_EQ(chez_soi.Energie.Valeur, 60 + chez_soi.Energie.Max * 0.0001);
    EXPECT_DOUBLE_EQ(chez_soi.Magie.Valeur, 30 + chez_soi.Magie.Max * 0.0001);
    EXPECT_DOUBLE_EQ(chez_soi.Moral.Valeur, 80 + chez_soi.Moral.Max * 0.000025);
    EXPECT_DOUBLE_EQ(dehors.Vie.Valeur, 50 + dehors.Vie.Max * 0.00005);
    EXPECT_DOUBLE_EQ(dehors.Energie.Valeur, 60 + dehors.Energie.Max * 0.00005);
    EXPECT_DOUBLE_EQ(dehors.Magie.Valeur, 30 + dehors.Magie.Max * 0.00005);
    EXPECT_DOUBLE_EQ(dehors.Moral.Valeur, 80);
    EXPECT_EQ(chez_soi.Vie.Exp, 0);   // gains earn nothing

    chez_soi.Vie.Valeur = chez_soi.Vie.Max;
    Tour(0);
    EXPECT_EQ(chez_soi.Vie.Valeur, chez_soi.Vie.Max);   // the write keeps its limit
}

TEST_F(Mouvement, UnPersoAuReposQuOnDeplaceRentreALaMaison) {
    ClsJeuPerso& p = P(0);
    ClsJeuBatiment& m = Batir(0, Sans_Metier, true);
    p.Rentrer_Maison(m);
    Marcher_Jusqu_A_Arrivee(0);
    ASSERT_EQ(p.Definir_Action(), 100);
    p.DestinationY += 30;   // pushed, as a formation does, without a new action
    Tour();
    EXPECT_TRUE(p.Visible());
    EXPECT_EQ(p.Definir_Action(), 101);
    Marcher_Jusqu_A_Arrivee(0);
    EXPECT_EQ(p.Definir_Action(), 100);   // home again: now where it stood
    EXPECT_TRUE(p.DansSaMaison);
}

TEST_F(Mouvement, UnVolantAuTravailEcrit103QuiSeLitAuTravail) {
    ClsJeuPerso& p = P(0);
    p.Volant = true;
    ClsJeuBatiment& m = Batir(0, Recolte, true);
    p.Rentrer_Maison(m);
    Tours(400);
    EXPECT_EQ(p.PositionX, p.DestinationX);
    EXPECT_EQ(p.Definir_Action(), 102);
    EXPECT_EQ(p.Texte_Action(Param), "Au travail");
    EXPECT_EQ(p.RessourceRecoltee, -1);   // a hovering arrival drops what it worked
}

TEST_F(Mouvement, UnChantierSeConstruitQuandOnYArrive) {
    ClsJeuPerso& p = P(0);
    p.DansSaMaison = true;
    ClsJeuBatiment& m = Batir(0, Recolte, false);
    p.Rentrer_Maison(m);
    EXPECT_EQ(p.Definir_Action(), 7);
    Tour();
    EXPECT_FALSE(m.EnConstruction);   // a walker's site is idle
    Marcher_Jusqu_A_Arrivee(0);
    EXPECT_EQ(p.Definir_Action(), 6);
    EXPECT_EQ(p.Texte_Action(Param), "Construire");
    EXPECT_TRUE(m.EnConstruction);
    EXPECT_EQ(p.RessourceRecoltee, -1);
    EXPECT_TRUE(p.Visible());   // a builder stands outside

    m.Definir_Vie(0);
    Tour();
    EXPECT_EQ(p.Definir_Action(), 0);
}

TEST_F(Mouvement, UnChantierQuiTombeEnChemineEstAbandonne) {
    ClsJeuPerso& p = P(0);
    ClsJeuBatiment& m = Batir(0, Recolte, false);
    p.Rentrer_Maison(m);
    Tour();
    ASSERT_EQ(p.Definir_Action(), 7);
    m.Definir_Vie(0);
    const int32_t y = p.PositionY;
    Tour();
    EXPECT_EQ(p.PositionY, y + 3);   // the step is taken, then given up
    EXPECT_EQ(p.Definir_Action(), 0);
    EXPECT_EQ(p.DestinationY, p.PositionY);
}

TEST_F(Mouvement, UnMortRentreChezLuiPuisSArrete) {
    ClsJeuPerso& p = P(0);
    ClsJeuBatiment& m = Batir(0, Recolte, false);
    p.Definir_Vie(0);
    p.Rentrer_Maison(m);
    ASSERT_EQ(p.Definir_Action(), 101);
    Marcher_Jusqu_A_Arrivee(0);
    EXPECT_TRUE(p.DansSaMaison);
    EXPECT_EQ(p.Definir_Action(), 100);
    EXPECT_EQ(m.EnConstruction, false);
}

TEST_F(Mouvement, UnVisiteurEntreDansUneMaisonAcheveeEtNonDansUnChantier) {
    ClsJeuPerso& visiteur = P(1);
    ClsJeuBatiment& m = Batir(0, Recolte, true);
    visiteur.Aller_Maison(m);
    Marcher_Jusqu_A_Arrivee(1);
    EXPECT_TRUE(visiteur.DansMaison);
    EXPECT_FALSE(visiteur.DansSaMaison);
    EXPECT_EQ(visiteur.Definir_Action(), 0);
    Tour(1);
    EXPECT_TRUE(visiteur.DansMaison);   // still inside while it waits
    m.Definir_Vie(0);
    Tour(1);
    EXPECT_FALSE(visiteur.DansMaison);   // out of what fell

    ClsJeuPerso& autre = P(2);
    ClsJeuBatiment& chantier = Batir(0, Recolte, false);
    autre.Aller_Maison(chantier);
    Marcher_Jusqu_A_Arrivee(2);
    EXPECT_FALSE(autre.DansMaison);
    EXPECT_EQ(autre.Definir_Action(), 0);
}

TEST_F(Mouvement, UnFabricantSansMaisonSArrete) {
    ClsJeuPerso& p = P(0);
    p.DansSaMaison = true;
    p.MaisonCible = 0;
    p.Definir_Action(500);
    Tour();
    EXPECT_FALSE(p.DansSaMaison);
    EXPECT_EQ(p.Definir_Action(), 0);

    Batir(0, Sans_Metier, true);
    p.Definir_Action(500);
    Tour();
    EXPECT_EQ(p.Definir_Action(), 500);
}

// --- Castles ---

TEST_F(Mouvement, UnMortRentreAuChateauASixMetresParTour) {
    ClsJeuPerso& p = P(0);
    p.Definir_Vie(0);
    p.Rentrer_Chateau(Chateaux[0], Param.ChateauxLargeur, Param.ChateauxHauteur);
    Tour();
    EXPECT_EQ(p.PositionY, 106);
    const int n = Marcher_Jusqu_A_Arrivee(0);
    EXPECT_GT(n, 1);
    EXPECT_TRUE(p.DansSonChateau);
    EXPECT_EQ(p.Definir_Action(), 0);
}

TEST_F(Mouvement, UnMortNEntreJamaisDansUnAutreChateau) {
    Chateaux.resize(2);
    Chateaux[1] = Chateaux[0];
    Chateaux[1].PositionX = 200;
    ClsJeuPerso& p = P(0);
    p.Definir_Vie(0);
    p.Aller_Chateau(Chateaux[1], 1, Param.ChateauxLargeur, Param.ChateauxHauteur);
    Marcher_Jusqu_A_Arrivee(0);
    Tours(3);
    EXPECT_FALSE(p.DansChateau);
    EXPECT_EQ(p.Definir_Action(), 203);
}

TEST_F(Mouvement, UnVivantEntreDansUnChateauEtEnSortQuandIlTombe) {
    Chateaux.resize(2);
    Chateaux[1] = Chateaux[0];
    Chateaux[1].PositionX = 200;
    ClsJeuPerso& p = P(0);
    p.Aller_Chateau(Chateaux[1], 1, Param.ChateauxLargeur, Param.ChateauxHauteur);
    Marcher_Jusqu_A_Arrivee(0);
    EXPECT_TRUE(p.DansChateau);
    EXPECT_EQ(p.Definir_Action(), 0);
    Chateaux[1].Definir_Vie(0);
    Tour();
    EXPECT_FALSE(p.DansChateau);

    ClsJeuPerso& q = P(1);
    q.Rentrer_Chateau(Chateaux[0], Param.ChateauxLargeur, Param.ChateauxHauteur);
    Marcher_Jusqu_A_Arrivee(1);
    EXPECT_TRUE(q.DansSonChateau);
    Chateaux[0].Definir_Vie(0);
    Tour(1);
    EXPECT_FALSE(q.DansSonChateau);
}

// --- Fights ---

TEST_F(Mouvement, UnAttaquantSuitSaCibleEtSeTientAPortee) {
    ClsJeuPerso& a = P(0);
    ClsJeuPerso& cible = P(1);
    cible.PositionX = 300;
    a.Attaquer_Perso(1);
    Tour(0);
    EXPECT_EQ(a.DestinationX, 300);
    EXPECT_EQ(a.PositionX, 103);
    cible.PositionY = 130;   // it follows where the target goes
    Tour(0);
    EXPECT_EQ(a.DestinationY, 130);

    int n = 0;
    while (a.EnMouvement && a.Direction != 0 && n++ < 200) Tour(0);
    const int32_t x = a.PositionX, y = a.PositionY;
    EXPECT_GE(x + LargeurPerso + a.PorteeAttaque, cible.PositionX);
    a.Definir_DureeImmobilisation(2);
    Tours(3);
    EXPECT_EQ(a.PositionX, x);   // in reach it stands
    EXPECT_EQ(a.PositionY, y);
    EXPECT_EQ(a.Direction, 0);
    EXPECT_EQ(a.DureeImmobilisation, 2);   // and a hold does not wear off while it fights
    EXPECT_EQ(a.Definir_Action(), 300);
}

TEST_F(Mouvement, LaPorteeSeMesureEntreLaBoiteGonfleeEtLaCible) {
    ClsJeuPerso& a = P(0);
    ClsJeuPerso& cible = P(1);
    const int32_t portee = a.PorteeAttaque;
    ASSERT_GT(portee, 0);
    cible.PositionX = 100 + LargeurPerso + portee;   // edges exactly P apart
    a.Attaquer_Perso(1);
    Tour(0);
    EXPECT_EQ(a.PositionX, 100);
    cible.PositionX += 1;
    Tour(0);
    EXPECT_EQ(a.PositionX, 103);

    a.PositionX = 100;
    cible.PositionX = 100;
    cible.PositionY = 100 - HauteurPerso - portee;   // above, touching
    Tour(0);
    EXPECT_EQ(a.PositionY, 100);
    cible.PositionY -= 1;
    Tour(0);
    EXPECT_EQ(a.PositionY, 97);
}

TEST_F(Mouvement, UneCibleMorteOuAbsenteMetFinAuCombat) {
    ClsJeuPerso& a = P(0);
    a.Attaquer_Perso(1);
    P(1).Definir_Vie(0);
    EXPECT_EQ(Tour(0), -1);
    EXPECT_EQ(a.Definir_Action(), 0);

    a.Attaquer_Perso(57);   // no such character
    Tour(0);
    EXPECT_EQ(a.Definir_Action(), 0);

    a.Attaquer_Maison(-1);
    Tour(0);
    EXPECT_EQ(a.Definir_Action(), 0);
}

TEST_F(Mouvement, UnPersoAuxOrdresRenonceAUneCibleCachee) {
    ClsJeuPerso& a = P(0);
    a.ModeAuto = false;
    P(1).DansMaison = true;
    a.Attaquer_Perso(1);
    EXPECT_EQ(Tour(0), 15);
    EXPECT_EQ(a.Definir_Action(), 0);
}

TEST_F(Mouvement, EnModeAutoOnAssiegeLeBatimentOuSeCacheLaCible) {
    ClsJeuPerso& a = P(0);
    ClsJeuPerso& cible = P(1);
    a.ModeAuto = true;
    Chateaux.resize(3);
    Chateaux[2] = Chateaux[0];
    Batir(1, Recolte, true);
    Batir(2, Recolte, true);
    cible.MaisonCible = 2;
    cible.ChateauCible = 2;

    struct Cas {
        bool ClsJeuPerso::*cachette;
        int16_t action;
        int32_t cibleBatiment;
    };
    for (const Cas& c : {Cas{&ClsJeuPerso::DansSaMaison, 301, 1}, Cas{&ClsJeuPerso::DansMaison, 301, 2},
                         Cas{&ClsJeuPerso::DansSonChateau, 302, 0}, Cas{&ClsJeuPerso::DansChateau, 302, 2}}) {
        cible.Visible(true);
        cible.*c.cachette = true;
        a.Attaquer_Perso(1);
        EXPECT_EQ(Tour(0), 15);
        EXPECT_EQ(a.Definir_Action(), c.action);
        EXPECT_EQ(c.action == 301 ? a.MaisonCible : a.ChateauCible, c.cibleBatiment);
    }

    // The reach of that very tick is measured to the building now attacked: beside the
    // target's house, the attacker stands at once instead of walking on.
    cible.Visible(true);
    cible.DansSaMaison = true;
    a.PositionX = Maisons[1].PositionX - LargeurPerso;
    a.PositionY = Maisons[1].PositionY;
    a.Aller_A(a.PositionX, a.PositionY + 300);
    a.MaisonCible = 0;   // an empty slot far away, until the siege names the house
    a.Attaquer_Perso(1);
    Tour(0);
    EXPECT_EQ(a.Definir_Action(), 301);
    EXPECT_EQ(a.PositionY, Maisons[1].PositionY);
}

TEST_F(Mouvement, UnAssautViseLeCentreDuBatimentEtCesseQuandIlTombe) {
    ClsJeuPerso& a = P(0);
    ClsJeuBatiment& m = Batir(1, Recolte, true);
    a.Attaquer_Maison(1);
    Tour(0);
    EXPECT_EQ(a.DestinationX, 300 + 24 - 12);   // a 48 × 48 hut at (300, 500)
    EXPECT_EQ(a.DestinationY, 500 + 24 - 16);
    int n = 0;
    while (a.Direction != 0 && n++ < 2000) Tour(0);
    EXPECT_LT(n, 2000);
    EXPECT_TRUE(a.EnMouvement);   // standing in reach is not an arrival
    EXPECT_EQ(a.Definir_Action(), 301);   // it stopped in reach of the walls
    EXPECT_LE(a.PositionY - a.PorteeAttaque, m.PositionY + m.Hauteur);
    m.Definir_Vie(0);
    Tour(0);
    EXPECT_EQ(a.Definir_Action(), 0);

    a.Attaquer_Chateau(0);
    Tour(0);
    EXPECT_EQ(a.DestinationX, 2000 + Param.ChateauxLargeur / 2 - 12);
    EXPECT_EQ(a.DestinationY, 2000 + Param.ChateauxHauteur / 2 - 16);
    Chateaux[0].Definir_Vie(0);
    Tour(0);
    EXPECT_EQ(a.Definir_Action(), 0);
}

TEST_F(Mouvement, UneActionSansArriveePropreOublieCeQuIlRecoltait) {
    ClsJeuPerso& p = P(0);
    p.Definir_Vie(0);
    p.Definir_Action(400);
    p.RessourceRecoltee = 5;
    Tour();
    EXPECT_EQ(p.RessourceRecoltee, -1);
    EXPECT_EQ(p.Definir_Action(), 400);
}

}  // namespace

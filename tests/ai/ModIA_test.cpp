#include "ai/ModIA.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "Pensee.h"
#include "ai/OrdresIA.h"
#include "ai/TablesIA.h"
#include "rules/ClsJeuParam.h"
#include "world/Globales.h"

namespace {

// ---- The scheduler -------------------------------------------------------------------

using Ordonnanceur = Pensee;

TEST_F(Ordonnanceur, UnCentiemeDeLaPopulationPlusUnPenseAChaqueTour) {
    for (const auto& [nombre, parTrame] : {std::tuple{1, 1}, std::tuple{3, 1}, std::tuple{201, 2}, std::tuple{301, 3}}) {
        Peupler_Auto(nombre);
        for (ClsJeuPerso& p : Persos) p.ModeAuto = false;
        EXPECT_EQ(PersosParTrame, parTrame) << nombre;
        CurseurIA = 0;
        Executer_IA();
        EXPECT_EQ(CurseurIA, (parTrame + 1) % nombre) << nombre;
    }
}

TEST_F(Ordonnanceur, DeuxPenseesParTourPuisLeCurseurRevientAuPremier) {
    // A berserker with no enemy drops dead at its thought: the dead tell who has thought.
    Peupler_Auto(5);
    for (ClsJeuPerso& p : Persos) p.IA_Berserk = true;
    auto morts = [] {
        std::vector<int32_t> m;
        for (int32_t i = 0; i < 5; ++i)
            if (!P(i).Vivant()) m.push_back(i);
        return m;
    };
    CurseurIA = 0;
    Executer_IA();
    EXPECT_EQ(morts(), (std::vector<int32_t>{1, 2}));
    Executer_IA();
    EXPECT_EQ(morts(), (std::vector<int32_t>{1, 2, 3, 4}));
    Executer_IA();
    EXPECT_EQ(morts(), (std::vector<int32_t>{0, 1, 2, 3, 4}));
    EXPECT_EQ(CurseurIA, 1);
}

// One under the player's orders does not think; one alone thinks twice a tick, two slots each.
TEST_F(Ordonnanceur, SousLaMainDuJoueurRienSeulDeuxPenseesParTour) {
    P(1).ModeAuto = false;
    P(1).IA_Berserk = true;
    Penser_Perso(1);
    EXPECT_TRUE(P(1).Vivant());
    Peupler_Auto(1);
    CurseurInventaire = 0;
    Executer_IA();
    EXPECT_EQ(CurseurInventaire, 4);
}

// ---- The dead ------------------------------------------------------------------------

using Mort = Pensee;

TEST_F(Mort, SansChateauIlResteOuIlEstPauvreOuSansTempleIlYRentre) {
    P(0).Vivant(false);
    Penser_Perso(0);
    EXPECT_EQ(P(0).Definir_Action(), 0);
    Chateau_Debout();
    for (double argent : {0.0, 5000.0}) {
        P(0).Vivant(false);
        P(0).Definir_Argent(argent);
        Penser_Perso(0);
        EXPECT_EQ(P(0).Definir_Action(), 202) << argent;
    }
    // Already home, or on its way somewhere: left as it is.
    P(0).Arreter();
    P(0).DansSonChateau = true;
    Penser_Perso(0);
    EXPECT_EQ(P(0).Definir_Action(), 0);
    P(0).DansSonChateau = false;
    P(0).Aller_A(10, 10);
    Penser_Perso(0);
    EXPECT_EQ(P(0).Definir_Action(), 1);
}

// In a temple the dead rise, except an invocation, whatever its chief's attitude or state.
TEST_F(Mort, DansUnTempleIlEstRessusciteSaufUneInvocation) {
    Maison_Terminee(2, Temple, Centre, Centre);
    Monstre(1, 1, 0).Chef = 0;
    for (int32_t i : {1, 0}) {
        P(i).Vivant(false);
        P(i).Definir_Argent(100);
        P(i).DansMaison = true;
        P(i).MaisonCible = 2;
    }
    for (int32_t attitude : {0, 1}) {
        P(0).Attitude = static_cast<int16_t>(attitude);
        Penser_Perso(1);
        EXPECT_FALSE(P(1).Vivant());
    }
    Penser_Perso(0);
    EXPECT_TRUE(P(0).Vivant());
    EXPECT_TRUE(ActionFaite[0]);
    EXPECT_EQ(Maisons[2].Stock, 0);
    P(0).Vivant(false);
    Maisons[2].Stock = 1;
    Penser_Perso(1);
    EXPECT_FALSE(P(1).Vivant());
}

// ---- Wealth --------------------------------------------------------------------------

using Richesse = Pensee;

TEST_F(Richesse, LesSeuilsSuiventLEpoque) {
    // (epoch, money, poor, rich): poor below 300 a epoch, rich above 500 a epoch.
    for (const auto& [epoque, argent, pauvre, riche] :
         {std::tuple{0, 299.0, true, false}, std::tuple{0, 300.0, false, false}, std::tuple{0, 500.0, false, false},
          std::tuple{0, 501.0, false, true}, std::tuple{2, 899.0, true, false}, std::tuple{2, 900.0, false, false},
          std::tuple{2, 1500.0, false, false}, std::tuple{2, 1501.0, false, true}}) {
        Fiefs[0].Epoque = static_cast<int16_t>(epoque);
        P(0).Definir_Argent(argent);
        EXPECT_EQ(Perso_Pauvre(0), pauvre) << epoque << ' ' << argent;
        EXPECT_EQ(Perso_Riche(0), riche) << epoque << ' ' << argent;
    }
}

// ---- Needs ---------------------------------------------------------------------------

using Besoins = Pensee;

TEST_F(Besoins, SansIAMangerIlNeMangePasSonSac) {
    for (bool manger : {false, true}) {
        ClsJeuPerso& p = P(0);
        Blesser(p);
        p.Vie.Reserve = 0;
        p.Definir_Ressources(Baies, 10);
        p.IA_Manger = manger;
        Gerer_Besoins(0);
        EXPECT_EQ(p.Definir_Ressources(Baies) < 10, manger);
        EXPECT_EQ(p.Vie.Reserve > 0, manger);
        EXPECT_EQ(p.Definir_Action(), 0);
    }
}

// ---- Riposte -------------------------------------------------------------------------

using Riposte = Pensee;

// A wrecker turns on an enemy it fought, but not on a friend, a hidden enemy, nor when walking.
TEST_F(Riposte, UnDemolisseurSeRetourneContreUnEnnemiVisibleQuIlCombattait) {
    P(0).PersoCible = 1;   // a friend
    P(0).Attaquer_Chateau(0);
    Riposter(0);
    EXPECT_EQ(P(0).Definir_Action(), 302);

    Ennemi(2).DansMaison = true;   // out of reach
    P(0).PersoCible = 2;
    Riposter(0);
    EXPECT_EQ(P(0).Definir_Action(), 302);

    P(0).Aller_A(0, 0);   // not tearing anything down
    P(2).DansMaison = false;
    Riposter(0);
    EXPECT_EQ(P(0).Definir_Action(), 1);
    P(0).PersoCible = 2;
    P(0).Attaquer_Maison(1);
    Riposter(0);
    EXPECT_EQ(std::pair(P(0).Definir_Action(), P(0).PersoCible), std::pair(int16_t{300}, 2));
}

// ---- Berserkers ----------------------------------------------------------------------

using Berserk = Pensee;

TEST_F(Berserk, DejaAuCombatIlContinueSansRienACombattreIlTombeMort) {
    P(0).IA_Berserk = true;
    P(0).Attaquer_Perso(2);
    Penser_Perso(0);
    EXPECT_EQ(std::pair(P(0).Vivant(), P(0).PersoCible), std::pair(true, 2));
    P(0).Arreter();
    Penser_Perso(0);
    EXPECT_EQ(std::pair(P(0).Vivant(), Fiefs[0].NombreMorts), std::pair(false, 1));
}

// ---- Monsters ------------------------------------------------------------------------

using Repaire = Pensee;

TEST_F(Repaire, HorsDeSonRepaireRienDedansUnMonstreRetrouveSesBiensEtGuerit) {
    ClsJeuPerso& chef = Monstre(0, 2, 6);
    chef.Ressources[0] = 0;
    Ravitailler_Monstre(0);
    EXPECT_EQ(chef.Ressources[0], 0);
    EXPECT_FALSE(ActionFaite[0]);
    chef.Objet_Inventaire_Vider_Tout();
    chef.Objet_Equipes_Vider_Tout();
    chef.Ressources.assign(chef.Ressources.size(), 0.0);
    chef.Ressources[1] = 4;
    chef.Ressources[14] = 9;   // more than its rules give: kept
    chef.Vie.Valeur = 10;
    chef.DansSonChateau = true;
    Ravitailler_Monstre(0);
    EXPECT_EQ(std::tuple(chef.Ressources[0], chef.Ressources[1], chef.Ressources[14]), std::tuple(5.0, 4.0, 9.0));
    EXPECT_EQ(std::pair(chef.Objet_NombreType(EpeeCourte), chef.Objet_NombreType(50)), std::pair(1, 1));
    EXPECT_EQ(chef.Vie.Reserve, chef.Vie.Max - 10);
    EXPECT_EQ(chef.Energie.Reserve, chef.Energie.Max - chef.Energie.Valeur);
    EXPECT_TRUE(ActionFaite[0]);

    // Once a stay: what it loses meanwhile comes back at the next stay only.
    chef.Ressources[0] = 0;
    Ravitailler_Monstre(0);
    EXPECT_EQ(chef.Ressources[0], 0);
}

// ---- Summoned creatures --------------------------------------------------------------

// Character 1 a wolf summoned by character 0, hurt and carrying Baies: it eats only when it
// lives on its own.
class Suivant : public Pensee {
protected:
    void SetUp() override {
        Pensee::SetUp();
        ClsJeuPerso& loup = Monstre(1, 1, 0);
        loup.Chef = 0;
        loup.DecalageChefX = 16;
        loup.DecalageChefY = -24;
        loup.IA_Manger = true;
        loup.IA_Pacifique = true;
        Blesser(loup);
        loup.Definir_Ressources(Baies, 10);
    }
    static bool A_Mange() { return P(1).Definir_Ressources(Baies) < 10; }
};

// It follows its chief's destination with its offset and strikes what the chief strikes.
TEST_F(Suivant, IlSuitSonChefAvecSonDecalageEtFrappeCeQuIlFrappe) {
    P(0).Aller_A(1000, 900);
    Penser_Perso(1);
    EXPECT_EQ(std::tuple(P(1).Definir_Action(), P(1).DestinationX, P(1).DestinationY), std::tuple(int16_t{1}, 1016, 876));
    EXPECT_FALSE(A_Mange());
    P(0).Attaquer_Perso(2);
    Penser_Perso(1);
    EXPECT_EQ(P(1).Definir_Action(), 300);
    EXPECT_EQ(P(1).PersoCible, 2);
    P(0).Attaquer_Chateau(0);
    Penser_Perso(1);
    EXPECT_EQ(P(1).Definir_Action(), 300);
}

TEST_F(Suivant, ChefMortOuAttitude1IlVitSaVie) {
    P(0).Aller_A(1000, 900);
    P(0).Attitude = 1;
    Penser_Perso(1);
    EXPECT_TRUE(A_Mange());

    P(1).Definir_Ressources(Baies, 10);
    Blesser(P(1));
    P(1).Vie.Reserve = 0;
    P(0).Attitude = 0;
    P(0).Vivant(false);
    Penser_Perso(1);
    EXPECT_TRUE(A_Mange());
}

}  // namespace

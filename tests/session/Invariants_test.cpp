// The checker of a live world: silent on a world as it opens, and for each kind of fault the
// first one, named by its record and field.
#include "session/Invariants.h"

#include <limits>
#include <sstream>

#include "MondeDeTest.h"

namespace {

class Invariants : public MondeDeTest {
protected:
    Simulateur simulateur;

    // Two fiefs of three villagers: characters 0 to 5.
    void SetUp() override {
        MondeDeTest::SetUp();
        ASSERT_TRUE(simulateur.Ouvrir(Nouveau_Monde({{0, 0, 3}, {1, 0, 3}})));
    }

    static std::string Faute() { return Invariant_Rompu().value_or("aucune"); }
};

TEST_F(Invariants, UnMondeQuiSOuvreLesGardeTous) {
    EXPECT_EQ(Faute(), "aucune");
    simulateur.Passe();
    EXPECT_EQ(Faute(), "aucune");
}

TEST_F(Invariants, UneMaisonQuiNEstPasCelleDeSonPersonnage) {
    Maisons[2].Numero = 5;
    EXPECT_EQ(Faute(), "Maisons[2].Numero = 5 au lieu de 2");
}

TEST_F(Invariants, DesTableauxQuiNeVontPlusEnsemble) {
    Maisons.pop_back();
    EXPECT_EQ(Faute(), "Maisons a 5 entrées et Persos 6");
}

TEST_F(Invariants, UnStockNegatif) {
    Maisons[3].Stock = -1;
    EXPECT_EQ(Faute(), "Maisons[3].Stock = -1 est négatif");
    Maisons[3].Stock = 0;
    Fiefs[1].Ressources[2] = -0.5;
    EXPECT_EQ(Faute(), "Fiefs[1].Ressources[2] = -0.5 est négatif");
    Fiefs[1].Ressources[2] = 0;
    Persos[1].Argent = std::numeric_limits<double>::infinity();
    EXPECT_EQ(Faute(), "Persos[1].Argent = inf n'est pas un nombre fini");
}

TEST_F(Invariants, UneJaugeAuDessusDeSonMaximum) {
    const int32_t max = Persos[4].Vie.Max;
    Persos[4].Vie.Valeur = max + 10.5;
    std::ostringstream attendu;
    attendu << "Persos[4].Vie = " << max + 10.5 << " hors de [0, " << max << "]";
    EXPECT_EQ(Faute(), attendu.str());
}

TEST_F(Invariants, UneJaugeQuiNEstPasUnNombre) {
    Persos[1].Energie.Valeur = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(Faute().rfind("Persos[1].Energie = ", 0), 0U) << Faute();
}

TEST_F(Invariants, UneChargeAuDelaDeLaCapaciteEtUneReserveNegative) {
    ClsJeuPerso& p = Persos[2];
    p.Ressources[1] = p.Definir_MaxRessources(1) + 1;
    EXPECT_EQ(Faute().rfind("Persos[2].Ressources[1] = ", 0), 0U) << Faute();
    p.Ressources[1] = 0;
    p.Moral.Reserve = -2;
    EXPECT_EQ(Faute(), "Persos[2].Moral.Reserve = -2 est négatif");
}

TEST_F(Invariants, DesIndicesQuiNeDesignentRien) {
    Persos[3].Chef = 6;
    EXPECT_EQ(Faute(), "Persos[3].Chef = 6 ne désigne rien dans Persos (6 entrées)");
    Persos[3].Chef = -1;
    Persos[5].Fief = 2;
    EXPECT_EQ(Faute(), "Persos[5].Fief = 2 ne désigne rien dans Fiefs (2 entrées)");
    Persos[5].Fief = 1;
    Persos[0].ObjetsInventaire[3].Charger(Param.NombreObjets);
    EXPECT_EQ(Faute().rfind("Persos[0].ObjetsInventaire[3] = ", 0), 0U) << Faute();
}

// A deposit is looked up only by the character that walks to it or harvests it.
TEST_F(Invariants, UnGisementViseHorsDuTableauNeCompteQuePourQuiYVa) {
    Persos[1].RessourceCible = static_cast<int32_t>(Ressources.size());
    EXPECT_EQ(Faute(), "aucune");
    Persos[1].Aller_Ressource(Ressources[0], static_cast<int32_t>(Ressources.size()), 32, 32);
    EXPECT_EQ(Faute().rfind("Persos[1].RessourceCible = ", 0), 0U) << Faute();
}

TEST_F(Invariants, UnPersonnageHorsDuMonde) {
    Persos[2].PositionX = Monde.Largeur * TailleCase + 100;
    EXPECT_EQ(Faute().rfind("Persos[2].PositionX = ", 0), 0U) << Faute();
}

}  // namespace

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "world/ClsJeuMonde.h"
#include "world/ClsJeuRessources.h"

namespace {

template <class T>
uint64_t Empreinte_De(const T& x) {
    Empreinte e;
    x.Empreindre(e);
    return e.Valeur();
}

// Every change of one field alters the hash of a new record.
template <class T>
void Verifier_Empreinte(const std::vector<std::function<void(T&)>>& changements) {
    const uint64_t neuf = Empreinte_De(T{});
    for (std::size_t i = 0; i < changements.size(); ++i) {
        T x;
        changements[i](x);
        EXPECT_NE(Empreinte_De(x), neuf) << "champ " << i;
    }
}

}  // namespace

TEST(Monde, UnMondeNeufAUneSeuleCaseLibre) {
    const ClsJeuMonde monde;
    EXPECT_EQ(monde.NombreCases(), 1);
    EXPECT_EQ(monde.Type_Terrain(0), 0);
    EXPECT_EQ(monde.Lire_Case(0), 0);
}

TEST(Monde, EcrireAuDelaDeLaFinAgranditLaGrille) {
    ClsJeuMonde monde;
    monde.Type_Terrain(0, 3);
    monde.Type_Terrain(10, 7);
    EXPECT_EQ(monde.NombreCases(), 11);
    EXPECT_EQ(monde.Type_Terrain(0), 3);   // kept
    for (int32_t i = 1; i < 10; ++i) EXPECT_EQ(monde.Type_Terrain(i), 0) << i;
    EXPECT_EQ(monde.Type_Terrain(10), 7);

    monde.Type_Terrain(4, 16);   // inside: no growth
    EXPECT_EQ(monde.NombreCases(), 11);
    EXPECT_EQ(monde.Type_Terrain(4), 16);

    // A generated grid of 4 × 3 holds (3 + 1) × (4 + 1) cells, more than it draws.
    ClsJeuMonde genere;
    genere.Largeur = 4;
    genere.Hauteur = 3;
    for (int32_t i = 0; i < 20; ++i) genere.Type_Terrain(i, 2 + i % 15);
    EXPECT_EQ(genere.NombreCases(), 20);
    EXPECT_EQ(genere.Type_Terrain(19), 2 + 19 % 15);
}

TEST(Monde, HorsDeLaGrilleLireCaseDonneUnMorceauAFaconner) {
    ClsJeuMonde monde;
    monde.Type_Terrain(5, 9);
    EXPECT_EQ(monde.Lire_Case(-1), 1);
    EXPECT_EQ(monde.Lire_Case(-1000), 1);
    EXPECT_EQ(monde.Lire_Case(6), 1);
    EXPECT_EQ(monde.Lire_Case(5), 9);
    EXPECT_EQ(monde.Lire_Case(0), 0);
}

TEST(Monde, UnSeulPasDeLigneSansBordure) {
    ClsJeuMonde monde;
    monde.Largeur = 5;
    monde.Hauteur = 4;
    EXPECT_EQ(monde.Indice_Case(0, 0), 0);
    EXPECT_EQ(monde.Indice_Case(3, 2), 13);
    // Left of column 0 is the last cell of the row above.
    EXPECT_EQ(monde.Indice_Case(-1, 1), monde.Indice_Case(4, 0));
}

TEST(Monde, LaDiagonaleCompteSeizeMetresParCase) {
    ClsJeuMonde monde;
    EXPECT_EQ(monde.Longueur_Diagonale(), 0);
    monde.Largeur = 3;
    monde.Hauteur = 4;
    EXPECT_EQ(monde.Longueur_Diagonale(), 80);
    monde.Largeur = 1;
    monde.Hauteur = 1;
    EXPECT_EQ(monde.Longueur_Diagonale(), 23);   // 22.63
    monde.Largeur = 1000;
    monde.Hauteur = 500;
    EXPECT_EQ(monde.Longueur_Diagonale(), 17889);   // 17888.54
}

TEST(Monde, LEmpreinteCouvreChaqueChamp) {
    Verifier_Empreinte<ClsJeuMonde>({
        [](ClsJeuMonde& m) { m.Largeur = 2; },
        [](ClsJeuMonde& m) { m.Hauteur = 2; },
        [](ClsJeuMonde& m) { m.Type_Terrain(0, 5); },
        [](ClsJeuMonde& m) { m.Type_Terrain(1, 0); },
    });
}

TEST(Ressources, VisibleTantQuIlResteQuelqueChose) {
    ClsJeuRessources gisement;
    EXPECT_FALSE(gisement.Visible());
    gisement.Quantite = 0.25;
    EXPECT_TRUE(gisement.Visible());
    gisement.Quantite = -1;
    EXPECT_FALSE(gisement.Visible());
}

TEST(Ressources, LEmpreinteCouvreChaqueChamp) {
    Verifier_Empreinte<ClsJeuRessources>({
        [](ClsJeuRessources& g) { g.PositionX = 1; },
        [](ClsJeuRessources& g) { g.PositionY = 1; },
        [](ClsJeuRessources& g) { g.Nom = "Forêt"; },
        [](ClsJeuRessources& g) { g.TypeTerrain = 1; },
        [](ClsJeuRessources& g) { g.TypeRessource = 1; },
        [](ClsJeuRessources& g) { g.Quantite = 1; },
        [](ClsJeuRessources& g) { g.QuantiteDepart = 1; },
    });
}

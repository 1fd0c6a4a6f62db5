#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "world/ClsJeuBatiment.h"
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
        EXPECT_NE(Empreinte_De(x), neuf) << typeid(T).name() << ", change " << i;
    }
}

}  // namespace

TEST(Monde, LaGrilleSAgranditALEcritureEtSeLitHorsDesBords) {
    ClsJeuMonde monde;
    EXPECT_EQ(monde.NombreCases(), 1);   // a new world: one open cell
    EXPECT_EQ(monde.Type_Terrain(0), 0);
    monde.Type_Terrain(0, 3);
    monde.Type_Terrain(10, 7);
    EXPECT_EQ(monde.NombreCases(), 11);
    EXPECT_EQ(monde.Type_Terrain(0), 3);   // kept
    for (int32_t i = 1; i < 10; ++i) EXPECT_EQ(monde.Type_Terrain(i), 0) << i;
    EXPECT_EQ(monde.Type_Terrain(10), 7);
    monde.Type_Terrain(4, 16);   // inside: no growth
    EXPECT_EQ(monde.NombreCases(), 11);

    // Outside the grid, a piece to shape.
    EXPECT_EQ(monde.Lire_Case(-1), 1);
    EXPECT_EQ(monde.Lire_Case(11), 1);
    EXPECT_EQ(monde.Lire_Case(10), 7);
}

TEST(Monde, UnSeulPasDeLigneEtSeizeMetresParCaseEnDiagonale) {
    ClsJeuMonde monde;
    EXPECT_EQ(monde.Longueur_Diagonale(), 0);
    monde.Largeur = 5;
    monde.Hauteur = 4;
    EXPECT_EQ(monde.Indice_Case(3, 2), 13);
    EXPECT_EQ(monde.Indice_Case(-1, 1), monde.Indice_Case(4, 0));   // no border between rows
    monde.Largeur = 3;
    EXPECT_EQ(monde.Longueur_Diagonale(), 80);
    monde.Largeur = 1;
    monde.Hauteur = 1;
    EXPECT_EQ(monde.Longueur_Diagonale(), 23);   // 22.63
    monde.Largeur = 1000;
    monde.Hauteur = 500;
    EXPECT_EQ(monde.Longueur_Diagonale(), 17889);   // 17888.54
}

TEST(Monde, LEmpreinteCouvreChaqueChamp) {
    using M = ClsJeuMonde;
    Verifier_Empreinte<M>({[](M& m) { m.Largeur = 2; }, [](M& m) { m.Hauteur = 2; },
                           [](M& m) { m.Type_Terrain(0, 5); }, [](M& m) { m.Type_Terrain(1, 0); }});
    using R = ClsJeuRessources;
    Verifier_Empreinte<R>({[](R& g) { g.PositionX = 1; }, [](R& g) { g.PositionY = 1; },
                           [](R& g) { g.Nom = "Forêt"; }, [](R& g) { g.TypeTerrain = 1; },
                           [](R& g) { g.TypeRessource = 1; }, [](R& g) { g.Quantite = 1; },
                           [](R& g) { g.QuantiteDepart = 1; }});
    using B = ClsJeuBatiment;
    Verifier_Empreinte<B>({
        [](B& b) { b.Numero = 1; },        [](B& b) { b.PositionX = 1; },          [](B& b) { b.PositionY = 1; },
        [](B& b) { b.Largeur = 1; },       [](B& b) { b.Hauteur = 1; },            [](B& b) { b.EntreePositionX = 1; },
        [](B& b) { b.EntreePositionY = 1; }, [](B& b) { b.Termine = true; },       [](B& b) { b.EnConstruction = true; },
        [](B& b) { b.Vie = 1; },           [](B& b) { b.ReserveVie = 1; },         [](B& b) { b.MaxVie = 1; },
        [](B& b) { b.Argent = 1; },        [](B& b) { b.MaxStock = 1; },           [](B& b) { b.Magasin = true; },
        [](B& b) { b.Fabrique = true; },   [](B& b) { b.Service = 1; },            [](B& b) { b.Type = 1; },
        [](B& b) { b.Stock = 1; },         [](B& b) { b.StockObjets.push_back(0); }, [](B& b) { b.NumeroAnimation = 1; },
    });
}

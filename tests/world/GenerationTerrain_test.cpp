#include "world/GenerationTerrain.h"

#include <gtest/gtest.h>

#include <tuple>
#include <utility>
#include <vector>

#include "rules/Hasard.h"
#include "world/ClsJeuMonde.h"

namespace {

// A world of l × h cells dimensioned as the generator does, all open ground.
ClsJeuMonde Monde_Vide(int32_t l, int32_t h) {
    ClsJeuMonde m;
    m.Largeur = l;
    m.Hauteur = h;
    m.Dimensionner((h + 1) * (l + 1));
    return m;
}

int32_t Compter(const ClsJeuMonde& m, int32_t valeur) {
    int32_t n = 0;
    for (int32_t k = 0; k < m.NombreCases(); ++k) n += m.Type_Terrain(k) == valeur;
    return n;
}

TEST(Semis, UneCaseDevientGraineQuandLeTirageFois1000Atteint999) {
    ClsJeuMonde m = Monde_Vide(400, 300);
    Definir_Graine(5);
    Semer_Terrain(m);
    const uint64_t apres = Etat_Hasard();
    Definir_Graine(5);   // the same stream, drawn again by hand, cell by cell
    const int32_t n = m.NombreCases();
    for (int32_t k = 0; k < n - 1; ++k) ASSERT_EQ(m.Type_Terrain(k), static_cast<double>(Rnd()) * 1000 >= 999 ? 1 : 0) << k;
    EXPECT_EQ(m.Type_Terrain(n - 1), 0);   // the last cell draws nothing
    EXPECT_EQ(Etat_Hasard(), apres);
}

TEST(Croissance, LaGrilleChangeEnPlaceEtChaqueCaseLibreTireUneFois) {
    // Seeds scattered by hand, one cell in 300.
    ClsJeuMonde m = Monde_Vide(200, 150);
    Definir_Graine(4);
    for (int32_t k = 0; k < m.NombreCases() - 1; ++k)
        if (static_cast<int32_t>(Rnd() * 300.0f) == 0) m.Type_Terrain(k, 1);
    const ClsJeuMonde avant = m;
    Definir_Graine(12);
    Pousser_Terrain(m);
    const uint64_t apres = Etat_Hasard();
    Definir_Graine(12);
    for (int32_t i = Compter(avant, 0); i > 0; --i) Rnd();
    EXPECT_EQ(Etat_Hasard(), apres);

    // Cells that joined a patch although no side neighbour was patch when the round began:
    // only a neighbour set earlier in the same round, above or to the left, explains them.
    const int32_t l = m.Largeur;
    int32_t enCascade = 0;
    for (int32_t k = 0; k < m.NombreCases(); ++k) {
        if (avant.Type_Terrain(k) != 0 || m.Type_Terrain(k) != 1) continue;
        bool voisinAvant = false;
        for (int32_t v : {k - l, k + l, k - 1, k + 1}) voisinAvant |= avant.Lire_Case(v) == 1;
        if (voisinAvant) continue;
        ++enCascade;
        EXPECT_TRUE(m.Lire_Case(k - l) == 1 || m.Lire_Case(k - 1) == 1) << k;
    }
    EXPECT_GT(enCascade, 5);
}

TEST(Croissance, LeHautEtLeBasDeLaGrillePoussentVersLInterieurMaisPasLesCotes) {
    ClsJeuMonde m = Monde_Vide(80, 100);   // no seed at all
    Definir_Graine(21);
    for (int32_t tour = 0; tour < ToursCroissance; ++tour) Pousser_Terrain(m);
    int32_t haut = 0, milieu = 0, colonneGauche = 0;
    for (int32_t x = 0; x < m.Largeur; ++x) {
        haut += m.Type_Terrain(m.Indice_Case(x, 0)) == 1;
        milieu += m.Type_Terrain(m.Indice_Case(x, 50)) == 1;
    }
    for (int32_t y = 30; y < 70; ++y) colonneGauche += m.Type_Terrain(m.Indice_Case(0, y)) == 1;
    EXPECT_GT(haut, m.Largeur / 2);
    EXPECT_EQ(std::pair(milieu, colonneGauche), std::pair(0, 0));
    EXPECT_EQ(m.Type_Terrain(m.NombreCases() - 1), 1);   // the far end touches the outside
}

TEST(Faconnage, ChacunDesSeizeVoisinagesDonneSaTuile) {
    // North, south, west and east neighbours, and the tile.
    constexpr std::tuple<bool, bool, bool, bool, int32_t> Table[16] = {
        {true, true, true, true, 2},     {false, true, false, false, 3}, {true, false, false, false, 4},
        {false, false, false, true, 5},  {false, false, true, false, 6}, {true, true, false, false, 7},
        {false, false, true, true, 8},   {false, true, true, true, 9},   {true, false, true, true, 10},
        {true, true, false, true, 11},   {true, true, true, false, 12},  {false, true, false, true, 13},
        {false, true, true, false, 14},  {true, false, false, true, 15}, {true, false, true, false, 16},
        {false, false, false, false, 0},
    };
    for (const auto& [n, s, w, e, tuile] : Table) {
        for (int32_t voisin : {2, 16}) {   // any shaped neighbour counts
            ClsJeuMonde m = Monde_Vide(5, 5);
            const int32_t k = m.Indice_Case(2, 2);
            m.Type_Terrain(k, 1);
            for (auto [la, decalage] : {std::pair{n, -5}, std::pair{s, 5}, std::pair{w, -1}, std::pair{e, 1}})
                if (la) m.Type_Terrain(k + decalage, voisin);
            Faconner_Terrain(m);
            EXPECT_EQ(m.Type_Terrain(k), tuile) << n << s << w << e;
        }
    }
}

TEST(Faconnage, UneCaseIsoleeDisparaitEtLeDehorsCommeLesTuilesEcritesComptent) {
    ClsJeuMonde m = Monde_Vide(6, 6);
    const int32_t seule = m.Indice_Case(2, 1), paire = m.Indice_Case(3, 3), fin = m.Indice_Case(5, 4);
    for (int32_t k : {0, seule, paire, paire + 1, fin, fin + 1}) m.Type_Terrain(k, 1);
    Faconner_Terrain(m);
    // Above and to the left of cell 0 lies the outside; the pair is east only then west only,
    // its first cell already shaped; a row goes on into the next one.
    EXPECT_EQ(std::tuple(m.Type_Terrain(0), m.Type_Terrain(seule), m.Type_Terrain(paire), m.Type_Terrain(paire + 1)),
              std::tuple(16, 0, 5, 6));
    EXPECT_EQ(std::pair(m.Type_Terrain(fin), m.Type_Terrain(fin + 1)), std::pair(5, 6));
}

TEST(GenererMonde, LaMemeGraineDonneLeMemeTerrainEtDesTaillesAbsurdesUneGrilleMinimale) {
    auto terrain = [](uint64_t graine, int32_t l, int32_t h) {
        ClsJeuMonde m;
        m.Largeur = l;
        m.Hauteur = h;
        Definir_Graine(graine);
        m.Generer_Monde();
        std::vector<int32_t> v;
        for (int32_t k = 0; k < m.NombreCases(); ++k) v.push_back(m.Type_Terrain(k));
        return v;
    };
    EXPECT_EQ(terrain(8, 100, 70), terrain(8, 100, 70));
    EXPECT_NE(terrain(8, 100, 70), terrain(9, 100, 70));
    for (auto [l, h] : {std::pair{0, 0}, std::pair{-3, 5}, std::pair{4, -2}, std::pair{1, 1}}) {
        const std::size_t n = terrain(1, l, h).size();
        EXPECT_TRUE(n >= 1 && n <= 5) << l << ' ' << h;
    }
}

}  // namespace

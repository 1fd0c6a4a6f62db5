#include "world/GenerationTerrain.h"

#include <gtest/gtest.h>

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

std::vector<int32_t> Cases_De(const ClsJeuMonde& m) {
    std::vector<int32_t> v;
    for (int32_t k = 0; k < m.NombreCases(); ++k) v.push_back(m.Type_Terrain(k));
    return v;
}

int32_t Compter(const ClsJeuMonde& m, int32_t valeur) {
    int32_t n = 0;
    for (int32_t k = 0; k < m.NombreCases(); ++k) n += m.Type_Terrain(k) == valeur;
    return n;
}

// Scatters seeds by hand: one cell in s, from a seeded stream, so that the growth rounds
// start from the same grid whatever the seeding does.
ClsJeuMonde Monde_Seme(int32_t l, int32_t h, uint64_t graine, int32_t s) {
    ClsJeuMonde m = Monde_Vide(l, h);
    Definir_Graine(graine);
    for (int32_t k = 0; k < m.NombreCases() - 1; ++k)
        if (static_cast<int32_t>(Rnd() * static_cast<float>(s)) == 0) m.Type_Terrain(k, 1);
    return m;
}

TEST(Semis, UneCaseDevientGraineQuandLeTirageFois1000Atteint999) {
    ClsJeuMonde m = Monde_Vide(400, 300);
    Definir_Graine(5);
    Semer_Terrain(m);
    // The same stream, drawn again by hand, cell by cell.
    Definir_Graine(5);
    const int32_t n = m.NombreCases();
    for (int32_t k = 0; k < n - 1; ++k) {
        const bool graine = static_cast<double>(Rnd()) * 1000 >= 999;
        ASSERT_EQ(m.Type_Terrain(k), graine ? 1 : 0) << k;
    }
    EXPECT_EQ(m.Type_Terrain(n - 1), 0);   // the last cell draws nothing
    const uint64_t apres = Etat_Hasard();
    Definir_Graine(5);
    Semer_Terrain(m);
    EXPECT_EQ(Etat_Hasard(), apres);

    // About one cell in a thousand: 120 701 cells give about 121 seeds.
    const int32_t graines = Compter(m, 1);
    EXPECT_GT(graines, 80);
    EXPECT_LT(graines, 165);
    EXPECT_EQ(graines + Compter(m, 0), n);
}

TEST(Croissance, ChaqueCaseLibreTireUneFoisQuEllePousseOuNon) {
    ClsJeuMonde m = Monde_Seme(60, 40, 3, 50);
    const int32_t libres = Compter(m, 0);
    Definir_Graine(9);
    Pousser_Terrain(m);
    const uint64_t apres = Etat_Hasard();
    Definir_Graine(9);
    for (int32_t i = 0; i < libres; ++i) Rnd();
    EXPECT_EQ(Etat_Hasard(), apres);
}

TEST(Croissance, UneCasePousseeEnDebutDeTourCompteAussitotPourLesSuivantes) {
    // Cells that joined a patch although none of their side neighbours was patch when the
    // round began: only a neighbour set earlier in the same round can explain them.
    ClsJeuMonde m = Monde_Seme(200, 150, 4, 300);
    const ClsJeuMonde avant = m;
    Definir_Graine(12);
    Pousser_Terrain(m);
    const int32_t l = m.Largeur;
    int32_t enCascade = 0;
    for (int32_t k = 0; k < m.NombreCases(); ++k) {
        if (avant.Type_Terrain(k) != 0 || m.Type_Terrain(k) != 1) continue;
        bool voisinAvant = false;
        for (int32_t v : {k - l, k + l, k - 1, k + 1}) voisinAvant |= avant.Lire_Case(v) == 1;
        if (voisinAvant) continue;
        ++enCascade;
        // The neighbour that carried it lies before it: above or to its left.
        EXPECT_TRUE(m.Lire_Case(k - l) == 1 || m.Lire_Case(k - 1) == 1) << k;
    }
    EXPECT_GT(enCascade, 5);
}

TEST(Croissance, UnPatchNeDemarrePasParUneDiagonale) {
    // One seed in the middle of a large grid: in one round, the cell above and to the left
    // has only the seed as a diagonal neighbour and its side neighbours come after it.
    for (uint64_t graine = 1; graine <= 200; ++graine) {
        ClsJeuMonde m = Monde_Vide(40, 40);
        const int32_t k = m.Indice_Case(20, 20);
        m.Type_Terrain(k, 1);
        Definir_Graine(graine);
        Pousser_Terrain(m);
        ASSERT_EQ(m.Type_Terrain(k - m.Largeur - 1), 0) << graine;
    }
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
    EXPECT_EQ(milieu, 0);
    EXPECT_EQ(colonneGauche, 0);
    EXPECT_EQ(m.Type_Terrain(m.NombreCases() - 1), 1);   // the far end touches the outside
}

// Tiles by side neighbours, as the table of tiles lists them.
struct Cas {
    bool n, s, w, e;
    int32_t tuile;
};
constexpr Cas Table[16] = {
    {true, true, true, true, 2},     {false, true, false, false, 3}, {true, false, false, false, 4},
    {false, false, false, true, 5},  {false, false, true, false, 6}, {true, true, false, false, 7},
    {false, false, true, true, 8},   {false, true, true, true, 9},   {true, false, true, true, 10},
    {true, true, false, true, 11},   {true, true, true, false, 12},  {false, true, false, true, 13},
    {false, true, true, false, 14},  {true, false, false, true, 15}, {true, false, true, false, 16},
    {false, false, false, false, 0},
};

TEST(Faconnage, ChacunDesSeizeVoisinagesDonneSaTuile) {
    for (const Cas& c : Table) {
        for (int32_t voisin : {2, 16}) {   // any shaped neighbour counts
            ClsJeuMonde m = Monde_Vide(5, 5);
            const int32_t k = m.Indice_Case(2, 2);
            m.Type_Terrain(k, 1);
            if (c.n) m.Type_Terrain(k - 5, voisin);
            if (c.s) m.Type_Terrain(k + 5, voisin);
            if (c.w) m.Type_Terrain(k - 1, voisin);
            if (c.e) m.Type_Terrain(k + 1, voisin);
            Faconner_Terrain(m);
            EXPECT_EQ(m.Type_Terrain(k), c.tuile) << c.n << c.s << c.w << c.e;
            EXPECT_EQ(Tuile_Faconnee(c.n, c.s, c.w, c.e), c.tuile);
        }
    }
}

TEST(Faconnage, UneCaseIsoleeDisparaitEtLesTuilesEcritesComptentPourLesSuivantes) {
    ClsJeuMonde m = Monde_Vide(6, 6);
    const int32_t seule = m.Indice_Case(1, 1), a = m.Indice_Case(3, 3);
    m.Type_Terrain(seule, 1);
    m.Type_Terrain(a, 1);
    m.Type_Terrain(a + 1, 1);
    Faconner_Terrain(m);
    EXPECT_EQ(m.Type_Terrain(seule), 0);
    EXPECT_EQ(m.Type_Terrain(a), 5);       // east only
    EXPECT_EQ(m.Type_Terrain(a + 1), 6);   // west only: its neighbour already shaped counts
}

TEST(Faconnage, LeDehorsCompteEtUneLigneContinueSurLaSuivante) {
    ClsJeuMonde m = Monde_Vide(6, 6);
    m.Type_Terrain(0, 1);   // above and to the left lies the outside
    const int32_t fin = m.Indice_Case(5, 2);   // last cell of a row, next to the next row's first
    m.Type_Terrain(fin, 1);
    m.Type_Terrain(fin + 1, 1);
    Faconner_Terrain(m);
    EXPECT_EQ(m.Type_Terrain(0), 16);   // north and west
    EXPECT_EQ(m.Type_Terrain(fin), 5);
    EXPECT_EQ(m.Type_Terrain(fin + 1), 6);
}

TEST(GenererMonde, LaGrilleFinaleNeGardeQueDesTuilesAccordeesASesVoisins) {
    ClsJeuMonde m;
    m.Largeur = 120;
    m.Hauteur = 90;
    Definir_Graine(77);
    m.Generer_Monde();
    ASSERT_EQ(m.NombreCases(), 91 * 121 + 1);
    const int32_t l = m.Largeur;
    auto compte = [&](int32_t k) { return m.Lire_Case(k) != 0; };
    int32_t patch = 0;
    for (int32_t k = 0; k < m.NombreCases(); ++k) {
        const int32_t t = m.Type_Terrain(k);
        ASSERT_NE(t, 1) << k;
        ASSERT_TRUE(t == 0 || (t >= 2 && t <= 16)) << k;
        if (t == 0) continue;
        ++patch;
        EXPECT_EQ(t, Tuile_Faconnee(compte(k - l), compte(k + l), compte(k - 1), compte(k + 1))) << k;
    }
    EXPECT_GT(patch, m.NombreCases() / 50);
    EXPECT_LT(patch, m.NombreCases() / 2);
}

TEST(GenererMonde, LaMemeGraineDonneLeMemeTerrain) {
    auto terrain = [](uint64_t graine) {
        ClsJeuMonde m;
        m.Largeur = 100;
        m.Hauteur = 70;
        Definir_Graine(graine);
        m.Generer_Monde();
        return Cases_De(m);
    };
    EXPECT_EQ(terrain(8), terrain(8));
    EXPECT_NE(terrain(8), terrain(9));
}

TEST(GenererMonde, DesDimensionsNullesOuNegativesDonnentUneGrilleMinimale) {
    for (auto [l, h] : {std::pair{0, 0}, std::pair{-3, 5}, std::pair{4, -2}, std::pair{1, 1}}) {
        ClsJeuMonde m;
        m.Largeur = l;
        m.Hauteur = h;
        m.Generer_Monde();
        EXPECT_GE(m.NombreCases(), 1);
        EXPECT_LE(m.NombreCases(), 5);
    }
}

}  // namespace

#include "world/RepartitionPoints.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>
#include <tuple>
#include <utility>

#include "rules/Hasard.h"

namespace {

// The points are distinct, inside the grid, and exactly the marked cells.
void Verifier_Carte(const Repartition& r) {
    std::set<std::pair<int32_t, int32_t>> vus;
    for (const PointCarte& p : r.Points) {
        EXPECT_TRUE(r.Carte.Occupee(p.a, p.b)) << p.a << ',' << p.b;
        EXPECT_TRUE(vus.insert({p.a, p.b}).second) << "deux points en " << p.a << ',' << p.b;
    }
    std::size_t marquees = 0;
    for (int32_t a = r.Carte.AMin; a <= r.Carte.AMax; ++a)
        for (int32_t b = r.Carte.BMin; b <= r.Carte.BMax; ++b) marquees += r.Carte.Occupee(a, b);
    EXPECT_EQ(marquees, r.Points.size());
}

TEST(RepartirPoints, LesPointsTombentSurDesCasesDistinctesEtCeQuiNeTientPasEstCompte) {
    Definir_Graine(3);
    CartePoints carte(1, 6, 1, 5);   // draws reach rows 1 … 5 and columns 1 … 4: 20 cells
    std::set<std::pair<int32_t, int32_t>> vus;
    for (const PointCarte& p : Tirer_Points(carte, 20)) {
        EXPECT_TRUE(p.a >= 1 && p.a <= 5 && p.b >= 1 && p.b <= 4) << p.a << ',' << p.b;
        vus.insert({p.a, p.b});
    }
    EXPECT_EQ(vus.size(), 20u);   // every reachable cell, once

    // 3 × 3 reachable cells; 2 × 2; no room at all; equal bounds leave one row.
    for (auto [aMax, bMax, n, points] : {std::tuple{4, 4, 20, 9}, std::tuple{3, 3, 50, 4}, std::tuple{-4, 20, 6, 0},
                                         std::tuple{20, 0, 6, 0}, std::tuple{1, 4, 5, 3}}) {
        const Repartition r = Repartir_Points(1, aMax, 1, bMax, n);
        EXPECT_EQ(std::tuple(r.Points.size(), r.Abandonnes), std::tuple(points, n - points)) << aMax << ' ' << bMax;
        EXPECT_LE(r.Tours, ToursEcartementMax);
        Verifier_Carte(r);
    }
}

TEST(RepartirPoints, LesFiefsFinissentAuMoinsALEcartVouluLesUnsDesAutres) {
    const CartePoints grille(1, 111, 1, 151);
    // Int(260 / 5) + 5 and Int(43.33) + 5.
    EXPECT_EQ(std::pair(Ecart_Voulu(grille, 6), Ecart_Voulu(grille, 7)), std::pair(57, 48));
    for (uint64_t graine = 1; graine <= 10; ++graine) {
        Definir_Graine(graine);
        const Repartition r = Repartir_Points(1, 111, 1, 151, 6);
        ASSERT_EQ(r.Points.size(), 6u);
        EXPECT_LT(r.Tours, ToursEcartementMax) << graine;
        Verifier_Carte(r);
        for (std::size_t i = 0; i < 6; ++i)
            for (std::size_t j = i + 1; j < 6; ++j)
                EXPECT_GE(std::abs(r.Points[i].a - r.Points[j].a) + std::abs(r.Points[i].b - r.Points[j].b), 57);
    }
}

TEST(RepartirPoints, UnEcartImpossibleSArreteApres5000Tours) {
    // 12 points on 10 × 10 cells want 6 apart; 50 points more than the cells; two points
    // want the whole span plus 5.
    for (auto [aMax, bMax, n] : {std::tuple{10, 10, 12}, std::tuple{3, 3, 50}, std::tuple{111, 151, 2}}) {
        Definir_Graine(6);
        const Repartition r = Repartir_Points(1, aMax, 1, bMax, n);
        EXPECT_EQ(r.Tours, ToursEcartementMax) << n;
        Verifier_Carte(r);
    }
}

TEST(RepartirPoints, UnSeulFiefTireUnPointSansLEcarterEtLaMemeGraineRepartitPareil) {
    Definir_Graine(8);
    const Repartition r = Repartir_Points(1, 111, 1, 151, 1);
    ASSERT_EQ(r.Points.size(), 1u);
    EXPECT_EQ(r.Tours, 0);
    // Two draws in all, a row and a column, and the point is where they fell.
    const uint64_t apres = Etat_Hasard();
    Definir_Graine(8);
    const auto a = static_cast<int32_t>(static_cast<double>(Rnd()) * 110 + 1);
    const auto b = static_cast<int32_t>(static_cast<double>(Rnd()) * 150 + 1);
    EXPECT_EQ(Etat_Hasard(), apres);
    EXPECT_EQ(r.Points[0], (PointCarte{a, b}));

    auto repartir = [](uint64_t graine) {
        Definir_Graine(graine);
        return Repartir_Points(1, 60, 1, 80, 5).Points;
    };
    EXPECT_EQ(repartir(30), repartir(30));
    EXPECT_NE(repartir(30), repartir(31));
}

TEST(RepartirPoints, LeCompteParLesCasesEgaleLeCompteParLesPoints) {
    Definir_Graine(15);
    for (int32_t essai = 0; essai < 40; ++essai) {
        CartePoints carte(1, 40, 1, 50);
        std::vector<PointCarte> points = Tirer_Points(carte, 30 + essai * 5);
        const int32_t ecart = 2 + essai % 7;
        for (std::size_t i = 0; i < points.size(); i += 7)
            for (int32_t da = -1; da <= 1; ++da)
                for (int32_t db = -1; db <= 1; ++db) {
                    const auto n = static_cast<int32_t>(i);
                    const PointCarte p = points[i];
                    ASSERT_EQ(Compter_Voisins(carte, points, n, p.a + da, p.b + db, ecart),
                              Compter_Voisins_Par_Points(points, n, p.a + da, p.b + db, ecart));
                }
    }
}

}  // namespace

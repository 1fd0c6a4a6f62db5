#include "world/RepartitionPoints.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

#include "rules/Hasard.h"

namespace {

int32_t Distance(const PointCarte& p, const PointCarte& q) { return std::abs(p.a - q.a) + std::abs(p.b - q.b); }

// The points are distinct, inside the grid, and exactly the marked cells.
void Verifier_Carte(const Repartition& r) {
    std::set<std::pair<int32_t, int32_t>> vus;
    for (const PointCarte& p : r.Points) {
        EXPECT_TRUE(r.Carte.Dedans(p.a, p.b)) << p.a << ',' << p.b;
        EXPECT_TRUE(r.Carte.Occupee(p.a, p.b));
        EXPECT_TRUE(vus.insert({p.a, p.b}).second) << "deux points en " << p.a << ',' << p.b;
    }
    std::size_t marquees = 0;
    for (int32_t a = r.Carte.AMin; a <= r.Carte.AMax; ++a)
        for (int32_t b = r.Carte.BMin; b <= r.Carte.BMax; ++b) marquees += r.Carte.Occupee(a, b);
    EXPECT_EQ(marquees, r.Points.size());
}

TEST(TirerPoints, LesPointsSontDistinctsEtNeDepassentPasLaDerniereLigneMoinsUne) {
    Definir_Graine(3);
    CartePoints carte(1, 6, 1, 5);   // draws reach rows 1 … 5 and columns 1 … 4: 20 cells
    const std::vector<PointCarte> points = Tirer_Points(carte, 20);
    ASSERT_EQ(points.size(), 20u);
    std::set<std::pair<int32_t, int32_t>> vus;
    for (const PointCarte& p : points) {
        EXPECT_GE(p.a, 1);
        EXPECT_LE(p.a, 5);
        EXPECT_GE(p.b, 1);
        EXPECT_LE(p.b, 4);
        vus.insert({p.a, p.b});
    }
    EXPECT_EQ(vus.size(), 20u);   // every reachable cell, once
}

TEST(TirerPoints, PlusDePointsQueDeCasesTirablesSArreteAuxCasesLibres) {
    Definir_Graine(4);
    const Repartition r = Repartir_Points(1, 4, 1, 4, 20);   // 3 × 3 reachable cells
    EXPECT_EQ(r.Points.size(), 9u);
    EXPECT_EQ(r.Abandonnes, 11);
    EXPECT_LE(r.Tours, ToursEcartementMax);
    Verifier_Carte(r);
}

TEST(TirerPoints, UneGrilleSansPlaceNeDonneAucunPoint) {
    Definir_Graine(4);
    for (auto [aMax, bMax] : {std::pair{-4, 20}, std::pair{20, 0}, std::pair{-8, -8}}) {
        const Repartition r = Repartir_Points(1, aMax, 1, bMax, 6);
        EXPECT_TRUE(r.Points.empty());
        EXPECT_EQ(r.Abandonnes, 6);
        EXPECT_EQ(r.Tours, 0);
    }
    // Equal bounds leave one row: a draw always gives it.
    const Repartition r = Repartir_Points(1, 1, 1, 4, 5);
    EXPECT_EQ(r.Points.size(), 3u);
    for (const PointCarte& p : r.Points) EXPECT_EQ(p.a, 1);
}

TEST(EcarterPoints, LEcartVouluPartageLesEtenduesEntreLesPoints) {
    const CartePoints carte(1, 111, 1, 151);
    EXPECT_EQ(Ecart_Voulu(carte, 6), 57);   // Int(260 / 5) + 5
    EXPECT_EQ(Ecart_Voulu(carte, 2), 265);
    EXPECT_EQ(Ecart_Voulu(carte, 7), 48);   // Int(43.33) + 5
}

TEST(EcarterPoints, LesFiefsFinissentAuMoinsALEcartVouluLesUnsDesAutres) {
    for (uint64_t graine = 1; graine <= 20; ++graine) {
        Definir_Graine(graine);
        const Repartition r = Repartir_Points(1, 111, 1, 151, 6);
        ASSERT_EQ(r.Points.size(), 6u);
        EXPECT_EQ(r.Abandonnes, 0);
        EXPECT_LT(r.Tours, ToursEcartementMax) << graine;
        Verifier_Carte(r);
        const int32_t ecart = Ecart_Voulu(r.Carte, 6);
        for (std::size_t i = 0; i < 6; ++i)
            for (std::size_t j = i + 1; j < 6; ++j) EXPECT_GE(Distance(r.Points[i], r.Points[j]), ecart) << graine;
    }
}

TEST(EcarterPoints, UnEcartImpossibleSArreteApres5000Tours) {
    Definir_Graine(6);
    // 12 points on a 10 × 10 grid: an impossible spacing of Int(18 / 11) + 5 = 6.
    const Repartition r = Repartir_Points(1, 10, 1, 10, 12);
    EXPECT_EQ(r.Tours, ToursEcartementMax);
    EXPECT_EQ(r.Points.size(), 12u);
    Verifier_Carte(r);
}

TEST(EcarterPoints, PlusDePointsQueDeCasesPartoutSArreteAussi) {
    Definir_Graine(7);
    const Repartition r = Repartir_Points(1, 3, 1, 3, 50);   // 2 × 2 reachable cells, 9 in all
    EXPECT_EQ(r.Points.size(), 4u);
    EXPECT_EQ(r.Abandonnes, 46);
    EXPECT_EQ(r.Tours, ToursEcartementMax);
    Verifier_Carte(r);
}

TEST(EcarterPoints, UnSeulFiefTireUnPointSansLEcarter) {
    Definir_Graine(8);
    const Repartition r = Repartir_Points(1, 111, 1, 151, 1);
    ASSERT_EQ(r.Points.size(), 1u);
    EXPECT_EQ(r.Tours, 0);
    Verifier_Carte(r);
    // Two draws in all, a row and a column, and the point is where they fell.
    const uint64_t apres = Etat_Hasard();
    Definir_Graine(8);
    const auto a = static_cast<int32_t>(static_cast<double>(Rnd()) * 110 + 1);
    const auto b = static_cast<int32_t>(static_cast<double>(Rnd()) * 150 + 1);
    EXPECT_EQ(Etat_Hasard(), apres);
    EXPECT_EQ(r.Points[0], (PointCarte{a, b}));

    Definir_Graine(8);
    const Repartition aucun = Repartir_Points(1, 111, 1, 151, 0);
    EXPECT_TRUE(aucun.Points.empty());
    EXPECT_EQ(aucun.Abandonnes, 0);
}

TEST(EcarterPoints, DesPointsDejaEcartesNeBougentNiNeTirent) {
    CartePoints carte(1, 101, 1, 101);   // four points: spacing Int(200 / 3) + 5 = 71
    std::vector<PointCarte> points = {{1, 1}, {1, 101}, {101, 1}, {101, 101}};
    for (const PointCarte& p : points) carte.Marquer(p.a, p.b, true);
    const std::vector<PointCarte> avant = points;
    Definir_Graine(2);
    const uint64_t etat = Etat_Hasard();
    EXPECT_EQ(Ecarter_Points(carte, points), 1);
    EXPECT_EQ(points, avant);
    EXPECT_EQ(Etat_Hasard(), etat);
}

TEST(EcarterPoints, DeuxFiefsNAtteignentJamaisUnEcartPlusGrandQueLaGrille) {
    // With two points the spacing is the whole span plus 5: they jump for all 5000 rounds.
    Definir_Graine(9);
    const Repartition r = Repartir_Points(1, 111, 1, 151, 2);
    EXPECT_EQ(r.Tours, ToursEcartementMax);
    Verifier_Carte(r);
}

TEST(EcarterPoints, LaMemeGraineRepartitPareil) {
    auto repartir = [](uint64_t graine) {
        Definir_Graine(graine);
        return Repartir_Points(1, 60, 1, 80, 5).Points;
    };
    EXPECT_EQ(repartir(30), repartir(30));
    EXPECT_NE(repartir(30), repartir(31));
}

TEST(EcarterPoints, LeCompteParLesCasesEgaleLeCompteParLesPoints) {
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

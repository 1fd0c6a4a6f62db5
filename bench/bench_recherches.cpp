// One call of each main search, and of the charge's full scan, in worlds of 1 000, 10 000
// and 50 000 characters, walked one candidate at a time (second argument 0) and through the
// index of a tick (1); the searches of a whole tick; and the picture the index takes at the
// start of a tick.
//
// The world is the simulator's: a map of 400 × 300 tiles, four fiefs of four teams in its
// quarters, everyone about its castle, two houses in three standing, finished and stocked.
// Each call is made by another character, and every call moves the searcher's cursor and
// radius as in play.
#include <benchmark/benchmark.h>

#include <cmath>
#include <optional>

#include "MondeBench.h"
#include "ai/IndexRecherches.h"
#include "ai/Recherches.h"
#include "ai/TablesIA.h"
#include "rules/Conversions.h"
#include "world/Globales.h"

namespace {

constexpr int32_t LargeurCarte = 400, HauteurCarte = 300, NombreFiefs = 4;

int32_t Dans(double v, int32_t borne) { return std::clamp(Arrondir_En<int32_t>(v), 0, borne); }

// A point about (cx, cy), at most `etendue` metres away each way, drawn from the game's stream.
std::pair<int32_t, int32_t> Autour(int32_t cx, int32_t cy, double etendue) {
    const double a = Rnd() * 6.283185307179586, r = std::sqrt(static_cast<double>(Rnd())) * etendue;
    return {Dans(cx + r * std::cos(a), LargeurCarte * TailleCase - 64),
            Dans(cy + r * std::sin(a), HauteurCarte * TailleCase - 64)};
}

void Construire(int n) {
    Preparer_Monde_Bench(n);
    Monde.Largeur = LargeurCarte;
    Monde.Hauteur = HauteurCarte;
    Fiefs.assign(NombreFiefs, Fiefs[0]);
    Chateaux.assign(NombreFiefs, ClsJeuBatiment{});
    for (int32_t f = 0; f < NombreFiefs; ++f) {
        ClsJeuBatiment& c = Chateaux[static_cast<std::size_t>(f)];
        Fiefs[static_cast<std::size_t>(f)].Equipe = f;
        c.PositionX = (f % 2 == 0 ? 1 : 3) * LargeurCarte * TailleCase / 4;
        c.PositionY = (f / 2 == 0 ? 1 : 3) * HauteurCarte * TailleCase / 4;
        Initialiser_Chateau(c, Fiefs[static_cast<std::size_t>(f)], Param);
    }
    for (int32_t i = 0; i < n; ++i) {
        ClsJeuPerso& p = Persos[static_cast<std::size_t>(i)];
        ClsJeuBatiment& m = Maisons[static_cast<std::size_t>(i)];
        m.Numero = i;
        p.Fief = p.Equipe = i % NombreFiefs;
        const ClsJeuBatiment& c = Chateaux[static_cast<std::size_t>(p.Fief)];
        std::tie(p.PositionX, p.PositionY) = Autour(c.PositionX, c.PositionY, 1400);
        if (i % 3 == 2) continue;
        const auto [x, y] = Autour(c.PositionX, c.PositionY, 1400);
        m.Creer(x, y, static_cast<int16_t>(i / NombreFiefs % Param.NombreTypeBatiments), p, Param);
        m.Definir_Vie(m.MaxVie);
        m.MaxStock = 10;
        m.Definir_Stock(5);
    }
    Initialiser_IA();
}

template <class Recherche>
void Mesurer(benchmark::State& etat, Recherche recherche) {
    const auto n = static_cast<int32_t>(etat.range(0));
    Construire(n);
    std::optional<TourDeRecherches> tour;
    if (etat.range(1) != 0) tour.emplace();
    int32_t i = 0, trouves = 0;
    for (auto _ : etat) {
        i = (i + 7919) % n;
        trouves += recherche(i);
    }
    etat.counters["trouves"] = benchmark::Counter(trouves, benchmark::Counter::kAvgIterations);
}

bool Ennemi(int32_t i) {
    int32_t r;
    return Chercher_Ennemi(i, r);
}
bool Maison_Ennemie(int32_t i) {
    int32_t r;
    return Chercher_Maison_Ennemie(i, r);
}
// Food for magic, then objects: what a villager looks for at almost every thought.
bool Magie(int32_t i) {
    int32_t r;
    return Chercher_Maison(i, i, 0, 3, 0, r);
}
bool Objets(int32_t i) {
    int32_t r;
    return Chercher_Maison(i, i, 0, 5, 0, r);
}
// The charge of a berserker or of a script's attack: a scan of every character.
bool Charge(int32_t i) {
    Attaquer_Perso_Proche(i);
    return Persos[static_cast<std::size_t>(i)].Definir_Action() == 300;
}
bool Emplacement(int32_t i) {
    int32_t x, y;
    return Chercher_Emplacement(i, x, y, static_cast<int16_t>(i % Param.NombreTypeBatiments));
}

// The searches of one tick: PersosParTrame + 1 thinkers in turn, each looking for food for
// magic and morale and for objects, for an enemy, and one in five for an enemy house; with
// the index, its picture is taken at the start of each tick.
void Tour(benchmark::State& etat) {
    const auto n = static_cast<int32_t>(etat.range(0));
    Construire(n);
    int32_t i = 0;
    for (auto _ : etat) {
        std::optional<TourDeRecherches> tour;
        if (etat.range(1) != 0) tour.emplace();
        for (int32_t pensee = 0; pensee <= PersosParTrame; ++pensee) {
            i = (i + 1) % n;
            int32_t r;
            Chercher_Maison(i, i, 0, 3, 0, r);
            Chercher_Maison(i, i, 0, 4, 0, r);
            Chercher_Maison(i, i, 0, 5, 0, r);
            Chercher_Ennemi(i, r);
            if (pensee % 5 == 0) Chercher_Maison_Ennemie(i, r);
        }
    }
}

void Photographier(benchmark::State& etat) {
    Construire(static_cast<int>(etat.range(0)));
    for (auto _ : etat) {
        const TourDeRecherches tour;
        benchmark::DoNotOptimize(Index_Ouvert());
    }
}

const std::vector<std::vector<int64_t>> Tailles = {{1000, 10000, 50000}, {0, 1}};

}  // namespace

BENCHMARK_CAPTURE(Mesurer, ennemi, Ennemi)->ArgsProduct(Tailles)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Mesurer, maison_ennemie, Maison_Ennemie)->ArgsProduct(Tailles)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Mesurer, maison_magie, Magie)->ArgsProduct(Tailles)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Mesurer, maison_objets, Objets)->ArgsProduct(Tailles)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Mesurer, charge, Charge)->ArgsProduct(Tailles)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Mesurer, emplacement, Emplacement)->ArgsProduct(Tailles)->Unit(benchmark::kMicrosecond);
BENCHMARK(Tour)->ArgsProduct(Tailles)->Unit(benchmark::kMillisecond);
BENCHMARK(Photographier)->Arg(1000)->Arg(10000)->Arg(50000)->Unit(benchmark::kMicrosecond);

// One tick of every character through the frame loop's routine, over 10 000 and 50 000
// walkers: targets looked up, the step, recovery.
#include <benchmark/benchmark.h>

#include "MondeBench.h"
#include "session/FrmMoteur2D.h"
#include "world/Globales.h"

namespace {

// n characters spread over a square, each walking to a point far beyond the others, with
// a castle and a house slot each; their destinations are out of reach for any run.
void Preparer(int n) {
    Preparer_Monde_Bench(n);
    for (int i = 0; i < n; ++i) {
        ClsJeuPerso& p = Persos[static_cast<std::size_t>(i)];
        p.PositionX = (i % 200) * 40;
        p.PositionY = (i / 200) * 40;
        p.MaisonCible = i;
        p.Aller_A(p.PositionX + 3'000'000 * (i % 2 ? 1 : -1), p.PositionY + 1'000'000 * (i % 3 ? 1 : -1));
    }
}

void DeplacerPersosMarcheurs(benchmark::State& etat) {
    const int n = static_cast<int>(etat.range(0));
    Preparer(n);
    for (auto _ : etat) {
        Deplacer_Persos();
        benchmark::DoNotOptimize(Persos.data());
    }
    etat.SetItemsProcessed(etat.iterations() * n);
}

}  // namespace

BENCHMARK(DeplacerPersosMarcheurs)->Arg(10000)->Arg(50000)->Unit(benchmark::kMicrosecond);

// One tick of every character through the frame loop's routine, over 10 000 and 50 000
// walkers: targets looked up, the step, recovery.
#include <benchmark/benchmark.h>

#include "rules/Chemins.h"
#include "rules/ClsJeuParam.h"
#include "rules/Hasard.h"
#include "session/FrmMoteur2D.h"
#include "world/Globales.h"

namespace {

// n characters spread over a square, each walking to a point far beyond the others, with
// a castle and a house slot each; their destinations are out of reach for any run.
void Preparer(int n) {
    Reinitialiser_Monde();
    Param.Reinitialiser();
    Definir_Dossier_Jeu(KORVALIS_DATA);
    for (int groupe = 0; groupe < 7; ++groupe) Param.Init(groupe);
    Definir_Graine(1);
    Fiefs.assign(1, ClsJeuFief{});
    Fiefs[0].Init(Param);
    Fiefs[0].NombreSujets = n;
    Chateaux.assign(1, ClsJeuBatiment{});
    Persos.assign(static_cast<std::size_t>(n), ClsJeuPerso{});
    Maisons.assign(static_cast<std::size_t>(n), ClsJeuBatiment{});
    PersoActif = 0;
    for (int i = 0; i < n; ++i) {
        ClsJeuPerso& p = Persos[static_cast<std::size_t>(i)];
        p.Init(i, Param);
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

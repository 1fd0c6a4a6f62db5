// The per-tick work of characters: recovery and gauge writes over 50 000 of them.
#include <benchmark/benchmark.h>

#include "MondeBench.h"

namespace {

void RecuperationEtJauges(benchmark::State& etat) {
    const int n = static_cast<int>(etat.range(0));
    Preparer_Monde_Bench(n);
    for (auto _ : etat) {
        for (ClsJeuPerso& p : Persos) {
            // A tired fighter: spends a blow, loses a little health, recovers.
            p.Definir_Attaque(0);
            p.Definir_Vie(p.Vie.Valeur - 0.01);
            p.Vie.Reserve += 0.02;
            p.Calculer_CoefForme();
            p.Recuperation(Fiefs[0]);
        }
    }
    etat.SetItemsProcessed(etat.iterations() * n);
}

}  // namespace

BENCHMARK(RecuperationEtJauges)->Arg(50000)->Unit(benchmark::kMillisecond);

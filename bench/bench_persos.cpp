// The per-tick work of characters: recovery and gauge writes over 50 000 of them.
#include <benchmark/benchmark.h>

#include "rules/Chemins.h"
#include "rules/ClsJeuParam.h"
#include "rules/Hasard.h"
#include "world/Globales.h"

namespace {

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
    for (int i = 0; i < n; ++i) Persos[static_cast<std::size_t>(i)].Init(i, Param);
}

void RecuperationEtJauges(benchmark::State& etat) {
    const int n = static_cast<int>(etat.range(0));
    Preparer(n);
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

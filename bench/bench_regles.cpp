// Hot routines of the rule files: INI reads and the random stream.
#include <benchmark/benchmark.h>

#include "rules/Chemins.h"
#include "rules/ClsFicINI.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"

static void LectureINI(benchmark::State& etat) {
    Definir_Dossier_Jeu(KORVALIS_DATA);
    ClsFicINI ini;
    ini.Fichier = "Ini_Partie";
    ini.Section = "Fiefs";
    for (auto _ : etat) benchmark::DoNotOptimize(Convertir_Souple(ini.Parametre("ValVillageoisFief8")));
}
BENCHMARK(LectureINI);

static void TirageRnd(benchmark::State& etat) {
    Definir_Graine(7);
    for (auto _ : etat) benchmark::DoNotOptimize(Rnd());
}
BENCHMARK(TirageRnd);

// Hot routines of the rule files: INI reads, the random stream, and the whole rule book
// loaded from the default game folder, in the game and in check mode.
#include <benchmark/benchmark.h>

#include "rules/Chemins.h"
#include "rules/ClsFicINI.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"
#include "rules/VerificationParam.h"

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

// The seven groups, as at start-up; the INI files stay parsed in the reader's cache, so this
// measures the conversions and tables rather than the disk.
static void ChargementRegles(benchmark::State& etat) {
    Definir_Dossier_Jeu(KORVALIS_DATA);
    for (auto _ : etat) {
        ClsJeuParam regles;
        for (int groupe = 0; groupe < 7; ++groupe) regles.Init(groupe);
        benchmark::DoNotOptimize(regles.NombreObjets);
    }
}
BENCHMARK(ChargementRegles)->Unit(benchmark::kMillisecond);

// What korvalis-verifier does with the rule files: loading in check mode and every check.
static void VerificationRegles(benchmark::State& etat) {
    Definir_Dossier_Jeu(KORVALIS_DATA);
    for (auto _ : etat) benchmark::DoNotOptimize(Verifier_Param());
}
BENCHMARK(VerificationRegles)->Unit(benchmark::kMillisecond);

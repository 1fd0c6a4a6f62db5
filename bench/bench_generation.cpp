// World generation on the largest map the dialog allows, 400 × 300 cells: the terrain alone,
// the castle sites, the deposits, and a whole new world from Preparer_Partie.
#include <benchmark/benchmark.h>

#include "ai/IndexTestPoint.h"
#include "rules/Chemins.h"
#include "rules/ClsJeuParam.h"
#include "rules/Hasard.h"
#include "session/ModMain.h"
#include "session/PreparerPartie.h"
#include "session/Simulation.h"
#include "world/Globales.h"
#include "world/ModGenererMonde.h"
#include "world/RepartitionPoints.h"

namespace {

void Charger_Regles() {
    Reinitialiser_Globales();
    Definir_Dossier_Jeu(KORVALIS_DATA);
    for (int groupe = 0; groupe < 7; ++groupe) Param.Init(groupe);
    Definir_Graine(1);
}

ChoixPartie Grand_Monde(int32_t fiefs, int32_t villageois, int32_t gisements) {
    ChoixPartie choix;
    choix.Page = PageNouveauMonde;
    choix.Largeur = 400;
    choix.Hauteur = 300;
    choix.Gisements = gisements;
    for (int32_t f = 0; f < fiefs; ++f) choix.Fiefs.push_back({f, 0, villageois});
    return choix;
}

void Terrain(benchmark::State& etat) {
    Monde.Largeur = 400;
    Monde.Hauteur = 300;
    Definir_Graine(1);
    for (auto _ : etat) Monde.Generer_Monde();
    etat.SetItemsProcessed(etat.iterations() * Monde.NombreCases());
}
BENCHMARK(Terrain)->Unit(benchmark::kMillisecond);

void SitesDeChateaux(benchmark::State& etat) {
    Definir_Graine(1);
    const auto n = static_cast<int32_t>(etat.range(0));
    for (auto _ : etat) benchmark::DoNotOptimize(Repartir_Points(1, 291, 1, 391, n).Tours);
}
BENCHMARK(SitesDeChateaux)->Arg(2)->Arg(8)->Arg(40)->Unit(benchmark::kMillisecond);

void Gisements(benchmark::State& etat) {
    Charger_Regles();
    Monde.Largeur = 400;
    Monde.Hauteur = 300;
    for (auto _ : etat) {
        Ressources.assign(static_cast<std::size_t>(etat.range(0)), ClsJeuRessources{});
        benchmark::DoNotOptimize(Placer_Ressources());
    }
    etat.SetItemsProcessed(etat.iterations() * etat.range(0));
}
BENCHMARK(Gisements)->Arg(600)->Arg(5000)->Unit(benchmark::kMillisecond);

// The whole set-up of a new world: 8 fiefs of 60 villagers and 600 deposits.
void NouveauMonde(benchmark::State& etat) {
    Charger_Regles();
    const ChoixPartie choix = Grand_Monde(8, 60, 600);
    for (auto _ : etat) {
        Creer_Heros_Actif();
        benchmark::DoNotOptimize(Preparer_Partie(choix));
    }
}
BENCHMARK(NouveauMonde)->Unit(benchmark::kMillisecond);

}  // namespace

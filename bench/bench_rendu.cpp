// One render of the world on a 1920 × 1080 view: the ground, 60 deposits, 2 000 characters
// on screen (a third of them hurt, so with their bars, and a few dead, mixed with the ground),
// the hero's frame, the pointer. Then the same render without a screen: only what drawing
// moves on.
#include <benchmark/benchmark.h>

#include <cstddef>

#include "MondeBench.h"
#include "presentation/Affichages.h"
#include "platform/ClsPerEcran.h"
#include "platform/EcranHorsEcran.h"
#include "session/FrmMoteur2D.h"

namespace {

constexpr int32_t Largeur = 1920, Hauteur = 1080;

// n characters spread over the view around the map's centre, facing every way.
void Preparer_Vue(int n) {
    Preparer_Monde_Bench(n);
    Monde.Largeur = 200;
    Monde.Hauteur = 150;
    Monde.Generer_Monde();
    EffetsPersos.assign(static_cast<std::size_t>(n), ClsJeuEffet{});
    EffetsMaisons.assign(static_cast<std::size_t>(n), ClsJeuEffet{});
    const int32_t x0 = 1600 - Largeur / 2, y0 = 1200 - Hauteur / 2;
    for (int i = 0; i < n; ++i) {
        ClsJeuPerso& p = Persos[static_cast<std::size_t>(i)];
        p.PositionX = x0 + (i * 97) % (Largeur - 24);
        p.PositionY = y0 + (i * 61) % (Hauteur - 32);
        p.Direction = static_cast<int16_t>(i % 5);
        p.EtapeAnimation = static_cast<int16_t>(i % 4);
        if (i % 3 == 1) p.Vie.Valeur = p.Definir_MaxVie() / 2.0;
        if (i % 200 == 199) p.Vie.Valeur = 0;
    }
    Persos[0].PositionX = 1600;
    Persos[0].PositionY = 1200;
    Ressources.assign(60, ClsJeuRessources{});
    for (std::size_t k = 0; k < Ressources.size(); ++k) {
        Ressources[k].PositionX = x0 + static_cast<int32_t>(k * 211) % Largeur;
        Ressources[k].PositionY = y0 + static_cast<int32_t>(k * 137) % Hauteur;
        Ressources[k].TypeTerrain = static_cast<int32_t>(k % 8);
    }
}

void Rendu(benchmark::State& etat, bool avecEcran) {
    Preparer_Vue(static_cast<int>(etat.range(0)));
    EcranHorsEcran ecran;
    FenetreMuette fenetre;
    SourisMuette souris;
    ClavierMuet clavier;
    FrmMoteur2D moteur(Peripheriques{fenetre, ecran, souris, clavier});
    if (avecEcran) {
        ecran.Allumer(Largeur, Hauteur);
        Definir_Dossier_Jeu(KORVALIS_JEU);
        Creer_Affichages();
        moteur.Charger_Images();
    } else {
        EcranLargeur = Largeur;
        EcranHauteur = Hauteur;
    }
    moteur.Centrer_Camera();
    for (auto _ : etat) {
        moteur.Rendu();
        benchmark::DoNotOptimize(moteur.SpritesDessines);
    }
    etat.counters["sprites"] = moteur.SpritesDessines;
}

void RenduEcran(benchmark::State& etat) { Rendu(etat, true); }
void RenduSansEcran(benchmark::State& etat) { Rendu(etat, false); }

}  // namespace

BENCHMARK(RenduEcran)->Arg(2000)->Unit(benchmark::kMillisecond);
BENCHMARK(RenduSansEcran)->Arg(2000)->Unit(benchmark::kMicrosecond);

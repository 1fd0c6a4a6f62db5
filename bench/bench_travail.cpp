// One tick of 10 000 villagers at work, through the frame loop's routine: a quarter harvest
// at deposits, a quarter build their house, a quarter work the resource of their finished
// house, a quarter make an object in a joiner's workshop. Every 64 ticks, outside the
// measure, they are put back to work as at the start, so that no one fills up, finishes or
// tires during a run and every measured tick is a tick of work.
#include <benchmark/benchmark.h>

#include "MondeBench.h"
#include "ai/TestPoint.h"
#include "session/FrmMoteur2D.h"
#include "world/Globales.h"

namespace {

constexpr int Gisements = 200;
constexpr int16_t Menuisier = 12;        // the first workshop of the default rules
constexpr int TypesProducteurs = 7;      // house types 0 to 6 each produce a resource
constexpr int ToursEntreRemises = 64;
constexpr int32_t Bois = 2;              // the stave's material

enum Metier { Recolteur, Batisseur, Ouvrier, Artisan };

Metier Metier_De(int i) { return static_cast<Metier>(i % 4); }


// Villagers on a grid 80 metres apart; deposits of berries and wood scattered among them.
void Construire(int n) {
    Preparer_Monde_Bench(n);
    Initialiser_Chateau(Chateaux[0], Fiefs[0], Param);
    Ressources.assign(Gisements, ClsJeuRessources{});
    for (int k = 0; k < Gisements; ++k) {
        ClsJeuRessources& g = Ressources[static_cast<std::size_t>(k)];
        g.PositionX = (k % 20) * 400 + 40;
        g.PositionY = (k / 20) * 400 + 40;
        g.TypeRessource = k % 2 == 0 ? 0 : Bois;
        g.Quantite = g.QuantiteDepart = 100;
    }
    for (int i = 0; i < n; ++i) {
        ClsJeuPerso& p = Persos[static_cast<std::size_t>(i)];
        ClsJeuBatiment& m = Maisons[static_cast<std::size_t>(i)];
        m.Numero = i;
        p.PositionX = (i % 100) * 80;
        p.PositionY = (i / 100) * 80;
        const Metier metier = Metier_De(i);
        if (metier == Recolteur) continue;
        const int16_t type = metier == Artisan ? Menuisier : static_cast<int16_t>(i / 4 % TypesProducteurs);
        for (int r = 0; r < Param.NombreRessources; ++r) p.Definir_Ressources(r, p.Definir_MaxRessources(r));
        m.Creer(p.PositionX, p.PositionY, type, p, Param);
    }
}

// Everyone back at the start of its job, standing where the job is done.
void Remettre_Au_Travail() {
    for (std::size_t i = 0; i < Persos.size(); ++i) {
        ClsJeuPerso& p = Persos[i];
        ClsJeuBatiment& m = Maisons[i];
        for (int r = 0; r < Param.NombreRessources; ++r) p.Definir_Ressources(r, 0);
        p.Definir_Energie(p.Definir_MaxEnergie());
        p.Definir_Moral(p.Definir_MaxMoral());
        p.Visible(true);
        p.ProgressionFabrication = 0;
        switch (Metier_De(static_cast<int>(i))) {
        case Recolteur: {
            const auto k = static_cast<int32_t>(i % Gisements);
            p.Aller_Ressource(Ressources[static_cast<std::size_t>(k)], k, LargeurGisement, HauteurGisement);
            break;
        }
        case Batisseur:
            m.Termine = false;
            m.Vie = m.MaxVie * 0.09;
            m.ReserveVie = 0;
            p.Rentrer_Maison(m);
            break;
        case Ouvrier:
            m.Definir_Vie(m.MaxVie);
            m.Definir_Stock(0);
            p.Rentrer_Maison(m);
            break;
        case Artisan:
            m.Definir_Vie(m.MaxVie);
            for (int l = 0; l <= m.Definir_Nombre_Stock_Objet(); ++l) m.Stock_Objets(l, 0);
            p.Definir_Ressources(Bois, p.Definir_MaxRessources(Bois));
            p.Rentrer_Maison(m);
            p.Creer_Objet(0);
            break;
        }
        p.PositionX = p.DestinationX;
        p.PositionY = p.DestinationY;
    }
}

void DeplacerPersosAuTravail(benchmark::State& etat) {
    const int n = static_cast<int>(etat.range(0));
    Construire(n);
    Remettre_Au_Travail();
    int tours = 0;
    for (auto _ : etat) {
        if (++tours % ToursEntreRemises == 0) {
            etat.PauseTiming();
            Remettre_Au_Travail();
            etat.ResumeTiming();
        }
        Deplacer_Persos();
        benchmark::DoNotOptimize(Persos.data());
    }
    etat.SetItemsProcessed(etat.iterations() * n);
    // What the last tick found them doing, by job: a run in which they stopped working
    // measures nothing.
    int recolte = 0, chantier = 0, metier = 0, fabrication = 0;
    for (const ClsJeuPerso& p : Persos) {
        switch (p.Definir_Action()) {
        case 2: ++recolte; break;
        case 6: ++chantier; break;
        case 102: ++metier; break;
        case 500: ++fabrication; break;
        default: break;
        }
    }
    etat.counters["recolte"] = recolte;
    etat.counters["chantier"] = chantier;
    etat.counters["metier"] = metier;
    etat.counters["fabrication"] = fabrication;
}

}  // namespace

BENCHMARK(DeplacerPersosAuTravail)->Arg(10000)->Unit(benchmark::kMicrosecond);

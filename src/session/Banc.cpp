#include "session/Banc.h"

#include <chrono>
#include <ctime>
#include <ostream>

#include "session/Simulation.h"
#include "world/Globales.h"

namespace {

struct CasBanc {
    const char* Nom;
    const char* Page;
    int32_t Sujets;            // villagers of each of the 4 fiefs, or soldiers of each army
    int32_t Largeur, Hauteur;  // cells
    int32_t Gisements;
    int64_t Echauffement, Ticks;
};

// The battle's armies stand 20 deep from x = 640 m, the second 1,000 m behind where the first
// ends: 2 × 5,000 soldiers reach x = 13,640 m and y = 1,280 m.
constexpr CasBanc Cas[] = {
    {"monde_1000", PageNouveauMonde, 250, 400, 300, 1000, 500, 2000},
    {"monde_10000", PageNouveauMonde, 2500, 1200, 1000, 10000, 200, 300},
    {"monde_50000", PageNouveauMonde, 12500, 2700, 2200, 50000, 50, 100},
    {"bataille_10000", PageNouvelleBataille, 5000, 900, 120, 100, 200, 500},
};

void Choisir(const CasBanc& cas, ChoixPartie& choix) {
    choix.Page = cas.Page;
    choix.Largeur = cas.Largeur;
    choix.Hauteur = cas.Hauteur;
    choix.Gisements = cas.Gisements;
    choix.Epoque = 0;
    choix.Fiefs = {{0, 0, cas.Sujets}, {0, 0, cas.Sujets}, {1, 0, cas.Sujets}, {1, 0, cas.Sujets}};
    choix.Armees = {{{0, 0, cas.Sujets}, {1, 2, cas.Sujets}}};
}

struct Duree {
    double Secondes, SecondesCpu;
};

// The time taken by the ticks of the case after its warm-up: on the clock, and in processor
// time, which a machine busy with other work does not inflate.
Duree Mesurer(Simulateur& simulateur, const CasBanc& cas) {
    while (simulateur.Ticks() < cas.Echauffement && !FinPartie) simulateur.Passe();
    const auto debut = std::chrono::steady_clock::now();
    const std::clock_t debutCpu = std::clock();
    while (simulateur.Ticks() < cas.Echauffement + cas.Ticks && !FinPartie) simulateur.Passe();
    return {std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count(),
            static_cast<double>(std::clock() - debutCpu) / CLOCKS_PER_SEC};
}

double Par_Seconde(int64_t ticks, double secondes) { return secondes > 0 ? static_cast<double>(ticks) / secondes : 0.0; }

}  // namespace

bool Executer_Banc(uint64_t graine, std::ostream& sortie) {
    for (const CasBanc& cas : Cas) {
        ChoixPartie choix = Preparer_Session(graine);
        Choisir(cas, choix);
        Simulateur simulateur;
        if (!simulateur.Ouvrir(choix)) return false;
        const Duree duree = Mesurer(simulateur, cas);
        const int64_t ticks = simulateur.Ticks() - cas.Echauffement;
        sortie << "banc=" << cas.Nom << " personnages=" << Persos.size() << " monde=" << cas.Largeur << 'x'
               << cas.Hauteur << " gisements=" << Ressources.size() << " echauffement=" << cas.Echauffement
               << " ticks=" << ticks << " secondes=" << duree.Secondes
               << " ticks_par_seconde=" << Par_Seconde(ticks, duree.Secondes)
               << " ticks_par_seconde_cpu=" << Par_Seconde(ticks, duree.SecondesCpu) << std::endl;
    }
    return true;
}

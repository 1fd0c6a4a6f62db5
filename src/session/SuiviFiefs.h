// How the fiefs of a headless game fare, for a series of seeds: at chosen ticks (milestones)
// each fief's epoch and its living and dead people, and the first tick at which a fief had
// all its people dead. A fief's people are its characters that are not summoned creatures.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <vector>

class SuiviFiefs {
public:
    // jalons in increasing order; the lines of a milestone go to sortie as soon as it is
    // reached, each starting with "graine=<graine>".
    SuiviFiefs(std::vector<int64_t> jalons, uint64_t graine, std::ostream& sortie);

    // After every tick of the game, tick being the ticks done.
    void Observer(int64_t tick);
    // The fiefs that had all their people dead, and when; once the game is over.
    void Ecrire_Extinctions() const;

    // Per milestone reached: the fiefs of the world, those at epoch 2 or later, and those
    // that had all their people dead at some tick up to it.
    struct Compte {
        int32_t Fiefs = 0, Epoque2 = 0, TousMorts = 0;
    };
    const std::vector<Compte>& Comptes() const { return comptes_; }

private:
    std::vector<int64_t> jalons_;
    uint64_t graine_;
    std::ostream& sortie_;
    std::vector<int32_t> vivants_, morts_;   // per fief, at the last tick observed
    std::vector<int64_t> extinction_;        // per fief, first tick all dead, -1 for never
    std::vector<Compte> comptes_;

    void Compter();
    void Ecrire_Jalon(int64_t tick);
};

// The milestones of a whole series, summed over its seeds.
class BilanSerie {
public:
    explicit BilanSerie(std::vector<int64_t> jalons);
    void Ajouter(const SuiviFiefs& suivi);
    // One line per milestone: "bilan tick=T fiefs=N epoque2=E tous_morts=M".
    void Ecrire(std::ostream& sortie) const;

private:
    std::vector<int64_t> jalons_;
    std::vector<SuiviFiefs::Compte> comptes_;
};

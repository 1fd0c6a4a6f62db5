#include "rules/Hasard.h"

namespace {

// PCG32 (M. E. O'Neill, pcg-random.org): a 64-bit linear congruential state with the
// multiplier 6364136223846793005 and the fixed odd increment 1442695040888963407 (the
// reference pcg32 constants), and an XSH-RR output: xorshift the high bits, then rotate
// right by the top five bits of the old state.
constexpr uint64_t Multiplicateur = 6364136223846793005ULL;
constexpr uint64_t Increment = 1442695040888963407ULL;

struct Pcg32 {
    uint64_t etat = 0;
    uint64_t graine = 0;

    void Avancer() { etat = etat * Multiplicateur + Increment; }

    // The reference seeding: state 0, one step, add the seed, one step.
    void Semer(uint64_t g) {
        graine = g;
        etat = 0;
        Avancer();
        etat += g;
        Avancer();
    }

    uint32_t Suivant() {
        const uint64_t ancien = etat;
        Avancer();
        const auto melange = static_cast<uint32_t>(((ancien >> 18u) ^ ancien) >> 27u);
        const auto rotation = static_cast<uint32_t>(ancien >> 59u);
        return (melange >> rotation) | (melange << ((32u - rotation) & 31u));
    }
};

Pcg32& Generateur() {
    static Pcg32 g = [] {
        Pcg32 p;
        p.Semer(0);
        return p;
    }();
    return g;
}

}  // namespace

// The top 24 bits of one output fill a float's mantissa exactly, so the draw is below 1.
float Rnd() { return static_cast<float>(Generateur().Suivant() >> 8) * 0x1p-24f; }

void Definir_Graine(uint64_t graine) { Generateur().Semer(graine); }

uint64_t Graine() { return Generateur().graine; }

uint64_t Etat_Hasard() { return Generateur().etat; }

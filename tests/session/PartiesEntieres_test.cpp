// Whole headless games from the default game folder, through the real frame loop: a new world
// of four human fiefs of 40 villagers in two teams, and a battle of 200 humans against 200
// goblins. Every invariant holds after every tick, the game plays to its last tick, and a
// second game of the same seed in the same process ends in the same state.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "session/Invariants.h"
#include "session/ModMain.h"
#include "session/Simulation.h"
#include "world/Globales.h"

namespace {

#ifdef KORVALIS_SANITIZE
// The sanitizers make a game many times slower: shorter games, the battle still long enough for
// the armies, 1,000 m apart, to meet.
constexpr int64_t TicksMonde = 5000, TicksBataille = 1500;
#else
constexpr int64_t TicksMonde = 20000, TicksBataille = 3000;
#endif

ChoixPartie Quatre_Fiefs(ChoixPartie choix) {
    choix.Page = PageNouveauMonde;
    choix.Largeur = 160;
    choix.Hauteur = 120;
    choix.Gisements = 140;
    choix.Epoque = 0;
    choix.Fiefs = {{0, 0, 40}, {0, 0, 40}, {1, 0, 40}, {1, 0, 40}};
    return choix;
}

// The armies stand 20 deep: 400 soldiers reach x = 2,120 m and y = 1,280 m of a 2,560 × 1,920 m map.
ChoixPartie Bataille(ChoixPartie choix) {
    choix.Page = PageNouvelleBataille;
    choix.Largeur = 160;
    choix.Hauteur = 120;
    choix.Gisements = 40;
    choix.Armees = {{{0, 0, 200}, {1, 2, 200}}};
    return choix;
}

struct Partie {
    int64_t Ticks = 0;
    std::optional<std::string> Faute;   // the first broken invariant, with its tick
    uint64_t Milieu = 0, Fin = 0;       // state hashes halfway and at the end
};

// Plays a game of the default folder with this seed, checking every invariant after every tick,
// up to ticks ticks or the first broken invariant. Not as it opens: an army drawn up for battle
// keeps the gauges of the objects it wears above the maxima without them until its first tick.
Partie Jouer(ChoixPartie (*choisir)(ChoixPartie), uint64_t graine, int64_t ticks) {
    Partie partie;
    const ChoixPartie choix = choisir(Preparer_Session(graine));
    Simulateur simulateur;
    if (!simulateur.Ouvrir(choix)) {
        partie.Faute = "le monde n'a pas pu être construit";
        return partie;
    }
    std::optional<std::string> faute;
    while (!faute && simulateur.Ticks() < ticks && !FinPartie) {
        simulateur.Passe();
        if (simulateur.Ticks() == ticks / 2) partie.Milieu = Empreinte_Etat();
        faute = Invariant_Rompu();
    }
    partie.Ticks = simulateur.Ticks();
    if (faute) partie.Faute = "tour " + std::to_string(partie.Ticks) + " : " + *faute;
    partie.Fin = Empreinte_Etat();
    return partie;
}

void Rejouer(ChoixPartie (*choisir)(ChoixPartie), uint64_t graine, int64_t ticks) {
    ASSERT_TRUE(Trouver_Dossier_Jeu(std::filesystem::path(KORVALIS_DATA)));
    const Partie premiere = Jouer(choisir, graine, ticks);
    ASSERT_FALSE(premiere.Faute) << *premiere.Faute;
    EXPECT_EQ(premiere.Ticks, ticks);
    const Partie seconde = Jouer(choisir, graine, ticks);
    ASSERT_FALSE(seconde.Faute) << *seconde.Faute;
    EXPECT_EQ(seconde.Milieu, premiere.Milieu);
    EXPECT_EQ(seconde.Fin, premiere.Fin);
}

TEST(PartiesEntieres, QuatreFiefsDeQuaranteVillageoisGardentLeursInvariantsEtSeRejouent) {
    Rejouer(Quatre_Fiefs, 11, TicksMonde);
}

TEST(PartiesEntieres, UneBatailleDeDeuxCentsContreDeuxCentsVaJusquAuBoutEtSeRejoue) {
    Rejouer(Bataille, 5, TicksBataille);
}

}  // namespace

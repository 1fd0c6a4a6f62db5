// A short headless game through the real frame loop, driven by the example script of
// orders: the hero harvests, builds a workshop, makes two staves, sells one at the castle,
// and a villager buys the other. Every tick, every invariant of the world holds.
#include <regex>
#include <sstream>
#include <string>

#include "MondeDeTest.h"
#include "rules/Hasard.h"
#include "session/Invariants.h"
#include "session/ScriptOrdres.h"

namespace {

constexpr const char* Script = KORVALIS_TESTS_SOURCES "/session/ordres_village.txt";
constexpr int64_t Duree = 8000;
constexpr int64_t TourVente = 7302;   // "vendre" in the script
constexpr int16_t Menuisier = 12;     // the workshop the script builds
constexpr int Bois = 2, Pierre = 3;

class VillageScripte : public MondeDeTest {
protected:
    Simulateur simulateur;
    std::optional<ScriptOrdres> script;

    // A fresh process state seeded before the hero is made, as the simulator does it.
    void Repartir() {
        MondeDeTest::SetUp();
        Definir_Graine(7);
        Creer_Heros_Actif();
    }

    void SetUp() override {
        Repartir();
        std::string erreur;
        script = ScriptOrdres::Lire(Script, erreur);
        ASSERT_TRUE(script) << erreur;
        // Two fiefs of one team, three villagers each; the hero is character 0 of fief 0.
        ASSERT_TRUE(simulateur.Ouvrir(Nouveau_Monde({{0, 0, 3}, {0, 0, 3}}, 40)));
        const auto faute = script->Verifier();
        ASSERT_FALSE(faute) << *faute;
    }

    static bool Gisement_De(int r) {
        for (const ClsJeuRessources& g : Ressources)
            if (g.Visible() && g.TypeRessource == r) return true;
        return false;
    }
};

TEST_F(VillageScripte, LeHerosBatitFabriqueEtVendSansQueRienNeSorteDeSesLimites) {
    ASSERT_TRUE(Gisement_De(Bois) && Gisement_De(Pierre)) << "le monde de cette graine n'a pas de quoi bâtir";
    const ClsJeuPerso& heros = Persos[0];
    const int16_t baton = Param.Batiment_ObjetFabrique(Menuisier, 0);
    double boisMax = 0;
    double argentAvantVente = -1, argentApresVente = -1;
    while (simulateur.Ticks() < Duree) {
        const int64_t tour = simulateur.Ticks();
        if (tour == TourVente) argentAvantVente = heros.Argent;
        simulateur.Passe(&*script);
        if (tour == TourVente) argentApresVente = heros.Argent;
        boisMax = std::max(boisMax, heros.Definir_Ressources(Bois));
        const auto faute = Invariant_Rompu();
        ASSERT_FALSE(faute) << "tour " << simulateur.Ticks() << " : " << *faute;
    }
    EXPECT_EQ(script->Donnes(), script->Ordres().size());

    // Harvested up to a full load of wood.
    EXPECT_EQ(boisMax, heros.Definir_MaxRessources(Bois));
    // The workshop stands finished; it belongs to a later epoch, so the fief began to climb.
    const ClsJeuBatiment& atelier = Maisons[0];
    EXPECT_EQ(atelier.Type, Menuisier);
    EXPECT_TRUE(atelier.Termine && atelier.Visible());
    EXPECT_TRUE(Fiefs[0].ChangementEpoque || Fiefs[0].Epoque > 0);
    // Two staves made; the first sold at the castle for its full price, the second bought.
    EXPECT_EQ(Fiefs[0].ObjetsFabriques, 2);
    EXPECT_EQ(argentApresVente - argentAvantVente, Param.Objet_PrixVente(baton));
    EXPECT_FALSE(heros.Objet_Posseder(baton));
    EXPECT_TRUE(Persos[1].Objet_Posseder(baton));
    EXPECT_GT(atelier.Argent, 0);

    // The simulator's figures count the workshop and the staves; the older keys stay.
    std::ostringstream sortie;
    Ecrire_Fiefs(sortie);
    std::smatch m;
    const std::string texte = sortie.str();
    ASSERT_TRUE(std::regex_search(texte, m,
                                  std::regex("fief=0 epoque=\\d+ vivants=\\d+ morts=\\d+ argent=\\S+ stock=\\S+ "
                                             "batiments=(\\d+) objets=(\\d+)\n")))
        << texte;
    EXPECT_GE(std::stoi(m[1]), 1);
    EXPECT_EQ(std::stoi(m[2]), 2);
}

TEST_F(VillageScripte, LaMemePartieScripteeDonneLeMemeEtat) {
    while (simulateur.Ticks() < 3000) simulateur.Passe(&*script);
    const uint64_t premiere = Empreinte_Etat();

    Repartir();
    std::string erreur;
    auto encore = ScriptOrdres::Lire(Script, erreur);
    ASSERT_TRUE(encore) << erreur;
    Simulateur autre;
    ASSERT_TRUE(autre.Ouvrir(Nouveau_Monde({{0, 0, 3}, {0, 0, 3}}, 40)));
    while (autre.Ticks() < 3000) autre.Passe(&*encore);
    EXPECT_EQ(Empreinte_Etat(), premiere);
    // And the orders change the game: without them the state differs.
    Repartir();
    Simulateur seul;
    ASSERT_TRUE(seul.Ouvrir(Nouveau_Monde({{0, 0, 3}, {0, 0, 3}}, 40)));
    while (seul.Ticks() < 3000) seul.Passe();
    EXPECT_NE(Empreinte_Etat(), premiere);
}

}  // namespace

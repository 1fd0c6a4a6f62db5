#include "session/Simulation.h"

#include "MondeDeTest.h"
#include "rules/ClsJeuParam.h"
#include "rules/Hasard.h"

namespace {

// A whole headless game from the default rules, seeded.
uint64_t Partie(uint64_t graine, const char* page) {
    Reinitialiser_Globales();
    EXPECT_TRUE(Trouver_Dossier_Jeu(std::filesystem::path(KORVALIS_DATA)));
    FenetreMuette fenetre;
    Demarrer_Programme(fenetre);
    Definir_Graine(graine);
    ChoixPartie choix = Lire_Ini_Partie();
    choix.Page = page;
    Creer_Heros_Actif();
    EXPECT_EQ(Simuler(choix, 300).value_or(-1), 300);
    return Empreinte_Etat();
}

TEST(Simulation, LaMemeGraineDonneLeMemeEtatEtUneAutreGraineUnAutre) {
    for (const char* page : {PageNouveauMonde, PageNouvelleBataille}) {
        const uint64_t a = Partie(7, page);
        EXPECT_EQ(Partie(7, page), a) << page;
        EXPECT_NE(Partie(8, page), a) << page;
    }
}

}  // namespace

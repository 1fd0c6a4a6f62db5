#include <tuple>
#include <utility>

#include "MondeDeTest.h"
#include "rules/Hasard.h"
#include "session/FrmMoteur2D.h"

namespace {

// A fief with its castle and n characters at (100, 100); a phrase book in which a character
// that loses its target into a building says one thing.
class DeplacerLesPersos : public MondeDeTest {
protected:
    void SetUp() override {
        MondeDeTest::SetUp();
        std::string livre = "[Commentaires]\nNombreTypeMessages=16\nNombreMaxMessagesParType=1\n";
        livre += "[Commentaires_16]\nNombreMessages=1\nMessage(1)=Il se cache !\n";
        dossier.Ecrire("Ini_Commentaires.ini", livre);
        Commentaires.Charger();
        Fiefs.assign(1, ClsJeuFief{});
        Fiefs[0].Init(Param);
        Chateaux.assign(1, ClsJeuBatiment{});
        Initialiser_Chateau(Chateaux[0], Fiefs[0], Param);
    }

    static void Peupler(int n) {
        Persos.assign(static_cast<std::size_t>(n), ClsJeuPerso{});
        Maisons.assign(static_cast<std::size_t>(n), ClsJeuBatiment{});
        for (int i = 0; i < n; ++i) {
            P(i).Init(i, Param);
            P(i).PositionX = P(i).PositionY = 100;
            P(i).Arreter();
            Maisons[static_cast<std::size_t>(i)].Numero = i;
        }
        Fiefs[0].NombreSujets = n;
        PersoActif = 0;
    }

    static ClsJeuPerso& P(int i) { return Persos[static_cast<std::size_t>(i)]; }
};

TEST_F(DeplacerLesPersos, ChacunFaitSonPasPuisRecupereDansLOrdreDesIndices) {
    Peupler(4);
    P(3).Definir_Vie(0);   // dead at its castle's centre: in on this tick, it starts back to life
    P(3).PositionX = Param.ChateauxLargeur / 2 - 12;
    P(3).PositionY = Param.ChateauxHauteur / 2 - 16;
    P(3).Rentrer_Chateau(Chateaux[0], Param.ChateauxLargeur, Param.ChateauxHauteur);
    P(0).Aller_A(100, 400);
    P(1).Attaquer_Perso(0);   // 0 steps first, so 1 aims where 0 stands after its step
    P(1).PositionX = 900;
    P(2).Attaquer_Perso(1);   // and 2 where 1 stands after its own
    P(2).PositionX = 2000;
    P(2).Definir_Attaque(0);
    Deplacer_Persos();
    // 1 takes its north-south leg first.
    EXPECT_EQ(std::tuple(P(0).PositionY, P(1).DestinationY, P(1).PositionY), std::tuple(103, 103, 103));
    EXPECT_EQ(std::pair(P(2).DestinationX, P(2).DestinationY), std::pair(900, 103));
    EXPECT_GT(P(2).Definir_Attaque(), 0);   // recovery ran after the step
    EXPECT_TRUE(P(3).DansSonChateau);
    EXPECT_LT(P(3).CompteResurrection, 100);
    EXPECT_LT(P(0).Energie.Valeur, P(0).Energie.Max);
}

TEST_F(DeplacerLesPersos, UnIndiceHorsDeSonTableauNeDesigneRien) {
    Peupler(4);
    P(0).Attaquer_Perso(40);
    P(1).Attaquer_Maison(-3);
    P(2).RessourceCible = 12;   // there is no deposit at all
    P(2).Definir_Action(3);
    P(2).DestinationY = 200;
    P(3).Aller_Chateau(Chateaux[0], 9, 112, 112);   // a castle index that no fief has
    for (int k = 0; k < 300; ++k) Deplacer_Persos();
    for (int i : {0, 1, 3}) EXPECT_EQ(P(i).Definir_Action(), 0) << i;
    EXPECT_EQ(std::tuple(P(2).Definir_Action(), P(2).RessourceRecoltee, P(3).DansChateau), std::tuple(2, -1, false));
}

TEST_F(DeplacerLesPersos, LeHerosParleToujoursLesAutresUneFoisSurCent) {
    const int n = 1001;
    Peupler(n);
    P(n - 1).DansSaMaison = true;   // hidden: every one of its attackers gives up and says so
    for (int i = 0; i < n - 1; ++i) P(i).Attaquer_Perso(n - 1);
    Definir_Graine(5);
    Deplacer_Persos();

    // The same draws again: a draw for each character, the hero's included, then one for
    // the phrase of each speaker.
    Definir_Graine(5);
    int bavards = 0;
    for (int i = 0; i < n - 1; ++i) {
        const bool tirage = static_cast<double>(Rnd()) > 0.99;
        const bool parle = i == PersoActif || tirage;
        if (parle) Rnd();
        EXPECT_EQ(P(i).Definir_Commentaires(), parle ? "Il se cache !" : "") << i;
        bavards += parle;
    }
    EXPECT_GT(bavards, 1);
    EXPECT_LT(bavards, 40);
    EXPECT_EQ(P(n - 1).Definir_Commentaires(), "");
}

}  // namespace

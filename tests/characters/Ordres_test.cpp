#include "characters/Ordres.h"

#include <string>
#include <tuple>
#include <utility>

#include "ReglesParDefaut.h"
#include "characters/ClsJeuPerso.h"

namespace {

using XY = std::pair<int32_t, int32_t>;
XY Destination(const ClsJeuPerso& p) { return {p.DestinationX, p.DestinationY}; }

class Ordres : public ReglesParDefaut {
protected:
    void SetUp() override {
        ReglesParDefaut::SetUp();
        Peupler(3);
    }

    ClsJeuPerso& P(int i) { return Persos[static_cast<std::size_t>(i)]; }

    // A house of character i: 48 × 48 at (200, 300), door 8 metres below the centre.
    ClsJeuBatiment& Maison(int i, bool finie) {
        ClsJeuBatiment& m = Maisons[static_cast<std::size_t>(i)];
        m.Numero = i;
        m.PositionX = 200;
        m.PositionY = 300;
        m.Largeur = m.Hauteur = 48;
        m.EntreePositionX = 0;
        m.EntreePositionY = 8;
        m.MaxVie = 500;
        m.Definir_Vie(finie ? 500 : 45);
        return m;
    }
};

TEST_F(Ordres, ChaqueCodeSeRelitParSonTexteEtLeResteSeLitAuTravail) {
    ClsJeuPerso& p = P(0);
    for (int16_t code : {0, 1, 2, 3, 6, 7, 100, 101, 102, 201, 202, 203, 300, 301, 302, 400, 500, 600}) {
        p.Definir_Action(code);
        EXPECT_EQ(p.Definir_Action(), code);
        const std::string texte(p.Texte_Action(Param));
        p.Definir_Action(0);
        p.Definir_Action_Texte(texte, Param);
        EXPECT_EQ(p.Definir_Action(), code) << texte;
    }
    for (int16_t code : {103, 5, -1, 999, 4}) {
        p.Definir_Action(code);
        EXPECT_EQ(p.Definir_Action(), 102) << code;
        EXPECT_EQ(p.Texte_Action(Param), "Au travail");
    }
    for (const char* texte : {"N'importe quoi", "en attente"}) {   // the texts compare exactly
        p.Definir_Action(0);
        p.Definir_Action_Texte(texte, Param);
        EXPECT_EQ(p.Texte_Action(Param), "Au travail") << texte;
    }

    // A trade name reads back as 102 and shows again, until the next action.
    const std::string metier(Param.Ressources_NomCompetence(3));
    ASSERT_FALSE(metier.empty());
    p.Definir_Action_Texte(metier, Param);
    EXPECT_EQ(p.Definir_Action(), 102);
    EXPECT_EQ(p.Texte_Action(Param), metier);
    p.Arreter();
    EXPECT_EQ(p.Texte_Action(Param), "En attente");
}

TEST_F(Ordres, LesDestinationsVisentLeCentreArrondiAuPairOuLaPorteEtJamaisUneRuine) {
    ClsJeuPerso& p = P(0);
    ClsJeuRessources gisement{101, 50, "", 0, 0, 0, 0};   // an empty deposit is aimed at all the same
    p.Aller_Ressource(gisement, 7, 33, 32);
    EXPECT_EQ(std::tuple(Destination(p), p.RessourceCible, p.Definir_Action()), std::tuple(XY(106, 50), 7, 3));   // 105.5
    gisement.PositionX = 100;
    p.Aller_Ressource(gisement, 7, 33, 32);
    EXPECT_EQ(p.DestinationX, 104);   // 104.5

    ClsJeuBatiment& m = Maison(1, true);
    P(1).DansSaMaison = true;
    P(1).Rentrer_Maison(m);   // 24 + 200 - 12, 24 + 300 - 16 + 8
    EXPECT_EQ(std::tuple(Destination(P(1)), P(1).MaisonCible, P(1).Definir_Action()), std::tuple(XY(212, 316), 1, 101));
    m.Definir_Vie(499);   // finished but hurt: to be repaired
    P(1).Rentrer_Maison(m);
    EXPECT_EQ(P(1).Definir_Action(), 7);
    EXPECT_FALSE(P(1).DansSaMaison);
    ClsJeuBatiment& chantier = Maison(2, false);
    chantier.EntreePositionX = -5;
    p.Aller_Maison(chantier, 23, 31);   // 207.5 and 316.5
    EXPECT_EQ(std::tuple(Destination(p), p.MaisonCible, p.Definir_Action()), std::tuple(XY(208, 316), 2, 201));

    Chateaux[0].PositionX = 1000;
    Chateaux[0].PositionY = 2000;
    Initialiser_Chateau(Chateaux[0], Fiefs[0], Param);
    p.Rentrer_Chateau(Chateaux[0], Param.ChateauxLargeur, Param.ChateauxHauteur);
    EXPECT_EQ(Destination(p), XY(1000 + Param.ChateauxLargeur / 2 - 12, 2000 + Param.ChateauxHauteur / 2 - 16));
    EXPECT_EQ(p.Definir_Action(), 202);
    p.Aller_Chateau(Chateaux[0], 4, Param.ChateauxLargeur, Param.ChateauxHauteur);
    EXPECT_EQ(std::tuple(p.Definir_Action(), p.ChateauCible), std::tuple(203, 4));

    // An order toward a fallen building does nothing.
    m.Definir_Vie(0);
    P(2).Aller_A(10, 20);
    P(2).Rentrer_Maison(m);
    P(2).Aller_Maison(m);
    P(2).Rentrer_Chateau(m, 112, 112);
    P(2).Aller_Chateau(m, 1, 112, 112);
    EXPECT_EQ(std::tuple(Destination(P(2)), P(2).Definir_Action(), P(2).MaisonCible, P(2).ChateauCible),
              std::tuple(XY(10, 20), 1, 0, 0));
}

TEST_F(Ordres, LePasSuitLaVitesseEtLaFormeSansJamaisTomberAZero) {
    ClsJeuPerso& p = P(0);
    for (const auto& [vitesse, forme, vie, pas] :
         {std::tuple{5, 0.875, 100.0, 4}, std::tuple{3, 0.1, 100.0, 1}, std::tuple{0, 1.0, 100.0, 1},
          std::tuple{40, 1.0, 0.0, 6}}) {
        p.Vitesse = vitesse;
        p.CoefForme = forme;
        p.Vie.Valeur = vie;   // the dead walk at 6
        p.Calculer_Longueur_Pas();
        EXPECT_EQ(p.LongueurPas, pas) << vitesse << ' ' << forme;
    }
}

}  // namespace

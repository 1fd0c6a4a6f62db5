#include "characters/Deplacement.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <tuple>
#include <utility>

#include "ReglesParDefaut.h"
#include "characters/ClsJeuPerso.h"

namespace {

using XY = std::pair<int32_t, int32_t>;
XY Pos(const ClsJeuPerso& p) { return {p.PositionX, p.PositionY}; }

// A one-fief world: its castle 0 at (2000, 2000), two more castles at (200, 2000), ten
// characters in the open at (100, 100) walking 3 metres a tick, and a deposit at (400, 100).
class Mouvement : public ReglesParDefaut {
protected:
    void SetUp() override {
        ReglesParDefaut::SetUp();
        Peupler(10);
        for (ClsJeuPerso& p : Persos) {
            p.PositionX = p.PositionY = 100;
            p.Arreter();
        }
        Chateaux[0].PositionX = Chateaux[0].PositionY = 2000;
        Initialiser_Chateau(Chateaux[0], Fiefs[0], Param);
        Chateaux.resize(3, ClsJeuBatiment(Chateaux[0]));
        Chateaux[1].PositionX = Chateaux[2].PositionX = 200;
        Ressources.assign(1, ClsJeuRessources{400, 100, "", 0, 3, 100, 100});
    }

    static ClsJeuPerso& P(int i) { return Persos[static_cast<std::size_t>(i)]; }

    // One tick of character i; the comment code it raised, -1 for none.
    static int32_t Tour(int i = 0) {
        int32_t commentaire = -1;
        CiblesDeplacement cibles = Lire_Cibles(P(i));
        P(i).Deplacement(cibles, commentaire, Param);
        return commentaire;
    }
    static void Tours(int n, int i = 0) {
        for (int k = 0; k < n; ++k) Tour(i);
    }
    // Ticks of every character in index order until none walks any more.
    static void Marcher_Tous() {
        for (int n = 0; n < 3000; ++n) {
            for (int i = 0; i < static_cast<int>(Persos.size()); ++i) Tour(i);
            if (std::none_of(Persos.begin(), Persos.end(), [](const ClsJeuPerso& p) { return p.EnMouvement; })) return;
        }
    }
    // Ticks of character i until it has arrived, then n more where it stands.
    static void Arriver_Puis(int i, int n) {
        Tour(i);
        for (int k = 0; k < 3000 && P(i).EnMouvement; ++k) Tour(i);
        Tours(n, i);
    }

    // House of character i at (300, 500), of the first type that harvests, serves or does
    // neither; finished or a fresh site.
    enum Genre { Repos, Recolte, Service };
    static ClsJeuBatiment& Batir(int i, Genre genre, bool finie) {
        auto genre_de = [](int16_t b) {
            return Param.Batiment_RessourceFabrique(b) >= 0 ? Recolte : Param.Batiment_Service(b) > 0 ? Service : Repos;
        };
        int16_t type = 0;
        while (type < Param.NombreTypeBatiments && genre_de(type) != genre) ++type;
        ClsJeuBatiment& m = Maisons[static_cast<std::size_t>(i)];
        m.Creer(300, 500, type, P(i), Param);
        if (finie) m.Definir_Vie(m.MaxVie);
        return m;
    }
};

TEST_F(Mouvement, LaJambeNordSudPasseAvantLaJambeEstOuestEtLArriveeVientAuTourSuivant) {
    ClsJeuPerso& p = P(0);
    p.Visible(false);
    p.Aller_A(190, 40);   // 60 north, then 90 east, 3 metres a step
    Tour();
    EXPECT_TRUE(p.Visible());   // a step takes it out of where it was
    Tours(19);
    EXPECT_EQ(std::tuple(Pos(p), p.Direction), std::tuple(XY(100, 40), 1));
    Tours(30);
    EXPECT_EQ(std::tuple(Pos(p), p.Direction, p.Definir_Action()), std::tuple(XY(190, 40), 2, 1));
    Tour();
    EXPECT_EQ(std::tuple(p.Definir_Action(), p.Direction, p.EnMouvement), std::tuple(0, 0, false));
    Tours(5);   // arrived on every later tick: it stays
    EXPECT_EQ(std::tuple(Pos(p), p.Definir_Action()), std::tuple(XY(190, 40), 0));
    P(1).Aller_A(10, 160);   // 60 south, then 90 west
    Tours(20, 1);
    EXPECT_EQ(std::tuple(Pos(P(1)), P(1).Direction), std::tuple(XY(100, 160), 3));
    Tours(30, 1);
    EXPECT_EQ(std::tuple(Pos(P(1)), P(1).Direction), std::tuple(XY(10, 160), 4));

    // Held, a walker neither steps nor stirs until its hold has run out.
    ClsJeuPerso& q = P(2);
    q.Aller_A(100, 400);
    Tour(2);
    q.Definir_DureeImmobilisation(2.5);
    const int16_t etape = q.EtapeAnimation;
    Tours(3, 2);
    EXPECT_EQ(std::tuple(q.PositionY, q.EtapeAnimation, q.DureeImmobilisation), std::tuple(103, etape, -0.5));
    Tour(2);
    EXPECT_EQ(q.PositionY, 106);

    // It stops within half a step of its goal; at 4 metres a step, exactly 2 away is near enough.
    q.Vitesse = 4;
    for (const auto& [but, arret] : {std::pair{XY(100, 94), XY(100, 96)}, std::pair{XY(100, 93), XY(100, 92)},
                                     std::pair{XY(98, 98), XY(100, 100)}}) {
        q.PositionX = q.PositionY = 100;
        q.Aller_A(but.first, but.second);
        Tours(5, 2);
        EXPECT_EQ(std::tuple(Pos(q), XY(q.DestinationX, q.DestinationY), q.Definir_Action()), std::tuple(arret, arret, 0));
    }
}

// Every order walks to its end and turns into what is done there, tick after tick; then the
// buildings fall and send their people away.
TEST_F(Mouvement, ChaqueOrdreFinitSurSonActionPuisLesRuinesRenvoientLeursOccupants) {
    ClsJeuBatiment& hutte = Batir(1, Repos, true);
    ClsJeuBatiment& atelier = Batir(2, Recolte, true);
    ClsJeuBatiment& chantier = Batir(4, Recolte, false);
    const int32_t r = Param.Batiment_RessourceFabrique(atelier.Type);
    const std::string metier(Param.Ressources_NomCompetence(r));
    P(0).Aller_Ressource(Ressources[0], 0, 32, 32);
    P(1).Rentrer_Maison(hutte);
    P(2).Rentrer_Maison(atelier);
    P(3).Rentrer_Maison(Batir(3, Service, true));
    P(4).Rentrer_Maison(chantier);
    P(5).Rentrer_Chateau(Chateaux[0], Param.ChateauxLargeur, Param.ChateauxHauteur);
    P(6).Aller_Maison(atelier);
    P(7).Aller_Maison(chantier);
    P(8).Aller_Chateau(Chateaux[1], 1, Param.ChateauxLargeur, Param.ChateauxHauteur);
    EXPECT_EQ(P(4).Definir_Action(), 7);
    for (int r = 0; r < Param.NombreRessources; ++r) P(3).Definir_Ressources(r, 20);   // raw material to serve with
    for (int i = 0; i < 9; ++i) {
        Arriver_Puis(i, 3);   // the trade name is written again on every tick at home
        if (i == 4) {
            EXPECT_TRUE(chantier.EnConstruction);
        }
    }

    const std::tuple<int, std::string, bool ClsJeuPerso::*, int> fins[] = {
        {2, "Récolter ressources", nullptr, 3},           {100, "En repos", &ClsJeuPerso::DansSaMaison, -1},
        {102, metier, &ClsJeuPerso::DansSaMaison, r},      {600, "Préparer Service", &ClsJeuPerso::DansSaMaison, -1},
        {6, "Construire", nullptr, -1},                    {0, "En attente", &ClsJeuPerso::DansSonChateau, -1},
        {0, "En attente", &ClsJeuPerso::DansMaison, -1},   {0, "En attente", nullptr, -1},
        {0, "En attente", &ClsJeuPerso::DansChateau, -1},
    };
    for (int i = 0; i < 9; ++i) {
        const auto& [action, texte, dedans, recoltee] = fins[i];
        const ClsJeuPerso& p = P(i);
        EXPECT_EQ(p.Definir_Action(), action) << i;
        EXPECT_EQ(p.Texte_Action(Param), texte) << i;
        EXPECT_EQ(p.Visible(), dedans == nullptr) << i;
        EXPECT_TRUE(dedans == nullptr || p.*dedans) << i;
        EXPECT_EQ(p.RessourceRecoltee, recoltee) << i;
        EXPECT_FALSE(p.EnMouvement) << i;
    }
    P(7).Aller_Maison(chantier);   // at the door of a site, not even the arrival takes it in
    Tour(7);
    EXPECT_FALSE(P(7).DansMaison);
    EXPECT_LE(std::abs(P(1).PositionX - (hutte.PositionX + hutte.Largeur / 2 - 12 + hutte.EntreePositionX)), 1);

    // A walker whose site falls on the way takes its step, then gives up.
    P(9).Rentrer_Maison(Batir(9, Recolte, false));
    Tour(9);
    for (ClsJeuBatiment* b : {&atelier, &chantier, &Maisons[9], &Chateaux[0], &Chateaux[1]}) b->Definir_Vie(0);
    for (int i = 0; i < 10; ++i) Tour(i);
    for (int i : {2, 4, 9}) EXPECT_EQ(P(i).Definir_Action(), 0) << i;
    EXPECT_EQ(XY(P(9).PositionY, P(9).DestinationY), XY(106, 106));
    for (int i : {2, 5, 6, 8}) EXPECT_TRUE(P(i).Visible()) << i;
}

TEST_F(Mouvement, UnMortMarcheASixMetresEtNeRentreQueChezLui) {
    for (int i : {0, 1, 2}) P(i).Definir_Vie(0);
    P(0).CoefForme = 0.5;
    P(0).Energie.Valeur = 0;
    P(0).Rentrer_Chateau(Chateaux[0], Param.ChateauxLargeur, Param.ChateauxHauteur);
    P(1).Aller_Chateau(Chateaux[1], 1, Param.ChateauxLargeur, Param.ChateauxHauteur);
    P(2).Rentrer_Maison(Batir(2, Recolte, false));   // the dead go home, even to a site
    EXPECT_EQ(P(2).Definir_Action(), 101);
    Tour(0);   // its form left alone, and walking does not tire it
    EXPECT_EQ(std::tuple(P(0).LongueurPas, P(0).PositionY, P(0).CoefForme, P(0).Energie.Valeur),
              std::tuple(6, 106, 0.5, 0.0));
    Marcher_Tous();
    Tours(3, 1);
    EXPECT_EQ(std::tuple(P(0).DansSonChateau, P(0).Definir_Action()), std::tuple(true, 0));
    EXPECT_EQ(std::tuple(P(1).DansChateau, P(1).Definir_Action()), std::tuple(false, 203));
    EXPECT_EQ(std::tuple(P(2).DansSaMaison, P(2).Definir_Action()), std::tuple(true, 100));
    EXPECT_FALSE(Maisons[2].EnConstruction);
}

TEST_F(Mouvement, UnAttaquantSuitSaCibleEtSeTientAPortee) {
    ClsJeuPerso& a = P(0);
    ClsJeuPerso& cible = P(1);
    cible.PositionX = 300;
    a.Attaquer_Perso(1);
    Tour(0);
    EXPECT_EQ(a.DestinationX, 300);
    cible.PositionY = 130;   // it follows where the target goes
    Tour(0);
    EXPECT_EQ(a.DestinationY, 130);
    for (int n = 0; a.Direction != 0 && n < 200; ++n) Tour(0);
    const XY x = Pos(a);
    EXPECT_GE(a.PositionX + LargeurPerso + a.PorteeAttaque, cible.PositionX);
    a.Definir_DureeImmobilisation(2);
    Tours(3);
    // In reach it stands, and a hold does not wear off while it fights.
    EXPECT_EQ(std::tuple(Pos(a), a.DureeImmobilisation, a.Definir_Action()), std::tuple(x, 2.0, 300));

    // The reach is measured from the box inflated by it: edges exactly that far apart touch.
    const int32_t r = a.PorteeAttaque;
    ASSERT_GT(r, 0);
    a.DureeImmobilisation = 0;
    for (const auto& [place, apres] : {std::pair{XY(100 + LargeurPerso + r, 100), XY(100, 100)},
                                       std::pair{XY(101 + LargeurPerso + r, 100), XY(103, 100)},
                                       std::pair{XY(100, 100 - HauteurPerso - r), XY(100, 100)},
                                       std::pair{XY(100, 99 - HauteurPerso - r), XY(100, 97)}}) {
        a.PositionX = a.PositionY = 100;
        std::tie(cible.PositionX, cible.PositionY) = place;
        a.Attaquer_Perso(1);
        Tour(0);
        EXPECT_EQ(Pos(a), apres) << place.first << ',' << place.second;
    }
}

TEST_F(Mouvement, UneCibleMorteOuAbsenteFinitLeCombatEtUneCibleCacheeEstAbandonneeOuAssiegee) {
    ClsJeuPerso& a = P(0);
    ClsJeuPerso& cible = P(1);
    P(2).Definir_Vie(0);
    cible.DansMaison = true;
    a.ModeAuto = false;   // under orders, a hidden target is given up
    for (const auto& [n, commentaire] : {std::pair{2, -1}, std::pair{57, -1}, std::pair{1, 15}}) {
        a.Attaquer_Perso(n);
        EXPECT_EQ(Tour(0), commentaire) << n;
        EXPECT_EQ(a.Definir_Action(), 0) << n;
    }
    a.Attaquer_Maison(-1);
    Tour(0);
    EXPECT_EQ(a.Definir_Action(), 0);

    a.ModeAuto = true;   // deciding for itself, it besieges where the target hides
    Batir(1, Recolte, true);
    Batir(2, Recolte, true);
    cible.MaisonCible = cible.ChateauCible = 2;
    for (const auto& [cachette, action, batiment] :
         {std::tuple{&ClsJeuPerso::DansSaMaison, 301, 1}, std::tuple{&ClsJeuPerso::DansMaison, 301, 2},
          std::tuple{&ClsJeuPerso::DansSonChateau, 302, 0}, std::tuple{&ClsJeuPerso::DansChateau, 302, 2}}) {
        cible.Visible(true);
        cible.*cachette = true;
        a.Attaquer_Perso(1);
        EXPECT_EQ(Tour(0), 15);
        EXPECT_EQ(a.Definir_Action(), action);
        EXPECT_EQ(action == 301 ? a.MaisonCible : a.ChateauCible, batiment);
    }

    // The reach of that very tick is measured to the building now attacked: beside the
    // target's house, the attacker stands at once instead of walking on.
    cible.Visible(true);
    cible.DansSaMaison = true;
    a.PositionX = Maisons[1].PositionX - LargeurPerso;
    a.PositionY = Maisons[1].PositionY;
    a.Aller_A(a.PositionX, a.PositionY + 300);
    a.MaisonCible = 0;   // an empty slot far away, until the siege names the house
    a.Attaquer_Perso(1);
    Tour(0);
    EXPECT_EQ(a.Definir_Action(), 301);
    EXPECT_EQ(a.PositionY, Maisons[1].PositionY);
}

TEST_F(Mouvement, UnAssautViseLeCentreDuBatimentEtCesseQuandIlTombe) {
    ClsJeuPerso& a = P(0);
    ClsJeuBatiment& m = Batir(1, Recolte, true);
    a.Attaquer_Maison(1);
    Tour(0);
    EXPECT_EQ(XY(a.DestinationX, a.DestinationY), XY(300 + 24 - 12, 500 + 24 - 16));   // a 48 × 48 hut
    int n = 0;
    while (a.Direction != 0 && n++ < 2000) Tour(0);
    EXPECT_TRUE(a.EnMouvement);   // standing in reach is not an arrival
    EXPECT_EQ(a.Definir_Action(), 301);
    EXPECT_LE(a.PositionY - a.PorteeAttaque, m.PositionY + m.Hauteur);
    m.Definir_Vie(0);
    Tour(0);
    EXPECT_EQ(a.Definir_Action(), 0);

    a.Attaquer_Chateau(0);
    Tour(0);
    EXPECT_EQ(XY(a.DestinationX, a.DestinationY),
              XY(2000 + Param.ChateauxLargeur / 2 - 12, 2000 + Param.ChateauxHauteur / 2 - 16));
    Chateaux[0].Definir_Vie(0);
    Tour(0);
    EXPECT_EQ(a.Definir_Action(), 0);
}

}  // namespace

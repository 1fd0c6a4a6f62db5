#include "characters/ModCombat.h"

#include <functional>
#include <initializer_list>
#include <string>
#include <tuple>
#include <utility>

#include "ReglesParDefaut.h"
#include "characters/Deplacement.h"
#include "characters/ModDialogue.h"
#include "rules/Conversions.h"

namespace {

using Tirage = std::function<bool(float)>;
Tirage Au_Plus(double s) { return [s](float x) { return x <= s; }; }
Tirage Au_Dessus(double s) { return [s](float x) { return x > s; }; }
Tirage Sous(double s) { return [s](float x) { return x < s; }; }
const Tirage Libre = [](float) { return true; };
// A blow that lands and is not a hard one: two draws above 0.05.
const Tirage Porte = Au_Dessus(0.05);

// Fiefs 0 (first n0) and 1 (next n1) in the open at (1000, 1000), castles far off; comments cost a draw.
class Combat : public ReglesParDefaut {
protected:
    void SetUp() override {
        ReglesParDefaut::SetUp();
        Commentaires.Charger();
        Former_Equipes(3, 3);
    }

    void Former_Equipes(int n0, int n1) {
        Fiefs.assign(2, ClsJeuFief{});
        Chateaux.assign(2, ClsJeuBatiment{});
        Peupler(n0 + n1);
        for (int f : {0, 1}) {
            Fiefs[f].Init(Param);
            Fiefs[f].Equipe = f;
            Fiefs[f].NombreSujets = f == 0 ? n0 : n1;
            Chateaux[f].PositionX = 5000 * (f + 1);
            Initialiser_Chateau(Chateaux[f], Fiefs[f], Param);
        }
        for (ClsJeuPerso& p : Persos) {
            p.Fief = p.Equipe = p.Numero < n0 ? 0 : 1;
            p.PositionX = p.PositionY = 1000;
            p.LongueurPas = 3;
            p.Arreter();
        }
    }

    static ClsJeuPerso& P(int i) { return Persos[static_cast<std::size_t>(i)]; }

    // The first seed whose draws pass these tests in order; the stream starts there.
    static void Graine_Pour(std::initializer_list<Tirage> tests) {
        for (uint64_t g = 1; g < 1'000'000; ++g) {
            Definir_Graine(g);
            bool bon = true;
            for (const Tirage& t : tests) bon = bon && t(Rnd());
            if (!bon) continue;
            Definir_Graine(g);
            return;
        }
        ADD_FAILURE() << "aucune graine ne donne ces tirages";
    }

    // The text is one of the phrases of this type.
    static bool Dit(const ClsJeuPerso& p, int type) {
        for (int k = 0; k < Commentaires.Nombre_Messages(type); ++k)
            if (p.Commentaire == Commentaires.Phrase(type, k)) return true;
        return false;
    }

    // One tick of character i; the comment code it raised, -1 for none.
    static int32_t Tour(int i) {
        int32_t commentaire = -1;
        CiblesDeplacement cibles = Lire_Cibles(P(i));
        P(i).Deplacement(cibles, commentaire, Param);
        return commentaire;
    }

    // A finished house of character i at (x, y), of the first type that passes the test.
    static ClsJeuBatiment& Maison(int i, int32_t x, int32_t y, const std::function<bool(int16_t)>& type) {
        int16_t b = 0;
        while (!type(b)) ++b;
        ClsJeuBatiment& m = Maisons[static_cast<std::size_t>(i)];
        m.Creer(x, y, b, P(i), Param);
        m.Definir_Vie(m.MaxVie);
        return m;
    }
};

TEST_F(Combat, UnCoupRateCoute20EtUnCoupQuiTueCouteCeQuIlFallait) {
    ClsJeuPerso& a = P(0);
    ClsJeuPerso& t = P(3);
    a.Attaque.Max = 60;
    a.Attaque.Valeur = 50;
    t.Vie.Valeur = 10;
    t.Defense.Valeur = 5;
    a.Attaquer_Perso(3);
    Graine_Pour({Au_Plus(0.05)});
    Frapper_Perso(0, 3);
    EXPECT_EQ(std::tuple(a.Attaque.Valeur, t.Vie.Valeur, t.Defense.Valeur), std::tuple(30.0, 10.0, 5.0));
    EXPECT_TRUE(Dit(a, 3));
    EXPECT_FALSE(EffetsPersos[3].Actif);

    // The price is 2 × 10 + 5 - 1 = 24; the target loses (50 - 5) / 2 = 22.5 and dies.
    a.Attaque.Valeur = 50;
    t.DureeImmobilisation = 9;
    Graine_Pour({Porte, Porte});
    Frapper_Perso(0, 3);
    EXPECT_EQ(std::tuple(t.Vivant(), a.Attaque.Valeur, t.DureeImmobilisation), std::tuple(false, 26.0, 0.0));
    EXPECT_EQ(std::tuple(a.Definir_Action(), t.Definir_Action(), a.Definir_Bestiaire(0), Fiefs[1].NombreMorts),
              std::tuple(0, 0, 1, 1));
    EXPECT_TRUE(EffetsPersos[3].Actif);
    EXPECT_EQ(EffetsPersos[3].Type, a.Effet_Attaque(Param));
}

TEST_F(Combat, UneDefenseTropForteNeCedeQuUnPointDeVieEtSUseJusquALArmure) {
    ClsJeuPerso& t = P(3);
    t.Defense.Max = 20;
    t.Defense.Valeur = 20;
    t.Armure = 12;
    P(4).Aller_A(0, 0);   // busy under the player's orders: it does not turn
    Graine_Pour({Porte, Porte, Porte, Porte});
    for (const auto& [vie, defense] : {std::pair{99.0, 15.0}, std::pair{98.0, 12.0}, std::pair{97.0, 12.0}}) {
        P(0).Attaque.Valeur = 5;
        Frapper_Perso(0, 3);
        EXPECT_EQ(std::pair(t.Vie.Valeur, t.Defense.Valeur), std::pair(vie, defense));
    }
    // An idle victim under orders turns on its attacker.
    EXPECT_EQ(std::pair(t.Definir_Action(), t.PersoCible), std::pair(int16_t{300}, 0));
    Frapper_Perso(0, 4);
    EXPECT_EQ(P(4).Definir_Action(), 1);
}

// Losses teach the loser and the striker alike, except a monster, which never learns.
TEST_F(Combat, UnCoupPuissantCroitAvecLaCompetenceEtLesPertesInstruisent) {
    ClsJeuPerso& a = P(0);
    ClsJeuPerso& t = P(3);
    a.CompetencesSpeciales[2].Effectif = 20;   // twice the starting level
    Graine_Pour({Porte, Au_Plus(0.05)});
    Frapper_Perso(0, 3);
    // (2 × 20 - 10) / 2 × 20 / 10 = 30; the skill learns from 2 × 20 / 2 × 2 = 40, limited to the gauge.
    EXPECT_EQ(t.Vie.Valeur, 70);
    EXPECT_EQ(a.Definir_ExpSpeciales(2), 0.005 * 20 * 20);
    EXPECT_TRUE(Dit(a, 2));
    EXPECT_EQ(std::tuple(t.Vie.Exp, t.Defense.Exp, a.Attaque.Exp), std::tuple(30.0, 10.0, 20.0));

    ClsJeuPerso& monstre = P(4);
    monstre.Changer_Race(Souple_En<int16_t>(Param.Monstre_Peuple(0)), Param, 0, 0, false);
    monstre.Vie.Max = monstre.Defense.Max = 100;
    monstre.Vie.Valeur = 50;
    monstre.Defense.Valeur = 5;
    Graine_Pour({Porte, Porte, Porte, Porte});
    a.Attaque.Valeur = 20;
    Frapper_Perso(0, 4);   // 7.5 of health and 5 of defence lost, which would teach a human
    EXPECT_EQ(std::tuple(monstre.Vie.Valeur, monstre.Vie.Exp, monstre.Defense.Exp), std::tuple(42.5, 0.0, 0.0));
    monstre.Vie.Valeur = 1;
    a.Attaque.Valeur = 20;
    Frapper_Perso(0, 4);
    EXPECT_EQ(std::pair(monstre.Vivant(), a.Definir_Bestiaire(monstre.Monstre)), std::pair(false, 1));
}

TEST_F(Combat, LeVainqueurPrendUnQuartDesBiensQuelquesObjetsEtSaPrime) {
    ClsJeuPerso& v = P(0);
    ClsJeuPerso& d = P(3);
    const int16_t arme = Objet_Tel_Que([](int16_t o) { return Param.Objet_Categorie(o) == 0; });
    const int16_t habit = Objet_Tel_Que([](int16_t o) { return Param.Objet_Categorie(o) == 2; });
    d.Objet_Ajouter_Inventaire(arme, Param, true);
    d.Objet_Ajouter_Inventaire(habit, Param, false);
    d.Argent = 100;
    d.Definir_Ressources(0, 8);
    d.Vie.Valeur = 1;
    d.Defense.Valeur = 0;
    d.Attaquer_Perso(1);   // a fellow of the winner, who hears of the death at once
    P(1).Commentaire = "avant";
    ClsJeuBatiment& caserne = Maison(0, 2000, 2000, [](int16_t b) { return Param.Batiment_Service(b) == 2; });
    // The victim as it fought, its weapon's bonuses included.
    const double force = d.Definir_MaxDefense() + d.Definir_MaxAttaque() + d.Definir_MaxVie();
    ASSERT_GT(force, 130);
    // Kill; the comment to 1; the weapon taken and kept; the tunic taken and lost.
    Graine_Pour({Porte, Porte, Libre, Sous(0.25), Au_Dessus(0.5), Sous(0.25), Au_Plus(0.5)});
    Frapper_Perso(0, 3);
    EXPECT_EQ(std::tuple(v.Argent, d.Argent, v.Definir_Ressources(0), d.Definir_Ressources(0)),
              std::tuple(25.0, 75.0, 2.0, 6.0));
    EXPECT_TRUE(Dit(P(1), 14));
    EXPECT_EQ(std::tuple(v.ObjetsEquipes[0].Type, v.Objet_Posseder(habit)), std::tuple(arme, false));
    EXPECT_EQ(std::tuple(d.Objet_Posseder(arme), d.Objet_Posseder(habit)), std::tuple(false, false));
    // The bounty, into the barracks' till, weighs the victim with the weapon it lost:
    // (maxima) × coefficient × (10 + 10) / 10.
    EXPECT_DOUBLE_EQ(caserne.Argent, force * Param.Service_Coefficient(2) * 2);

    // An invocation's kill fills its chief's purse and counts on its own bestiary.
    P(1).Chef = 2;
    P(4).Argent = 40;
    P(4).Vie.Valeur = 1;
    Graine_Pour({Porte, Porte});
    Frapper_Perso(1, 4);
    EXPECT_EQ(std::tuple(P(2).Argent, P(1).Argent, P(1).Definir_Bestiaire(0), P(2).Definir_Bestiaire(0)),
              std::tuple(10.0, 0.0, 1, 0));
}

TEST_F(Combat, UneMaisonFrappeeEstPilleeEtUneMaisonTombeeLivreSonProprietaire) {
    ClsJeuPerso& a = P(0);
    auto magasin = [](int r) {
        return [r](int16_t b) { return Param.Batiment_Magasin(b) && Param.Batiment_RessourceFabrique(b) == r; };
    };
    ClsJeuBatiment& boutique = Maison(3, 1000, 1100, magasin(1));
    boutique.Argent = 100;
    boutique.Stock = 10;
    EffetsMaisons[3].Activer_Effet(0, 0, 0, 1, 1, Param, true);
    EffetsMaisons[3].Etape_Effet();
    Frapper_Batiment(0, boutique, 3, -1);
    const double part = 20.0 / boutique.MaxVie;
    EXPECT_EQ(boutique.Vie, boutique.MaxVie - 20);   // at the starting level, exactly the force
    EXPECT_EQ(std::pair(a.Attaque.Valeur, a.Attaque.Exp), std::pair(0.0, 0.0));   // spent, not lost
    EXPECT_DOUBLE_EQ(a.Definir_ExpSpeciales(1), 0.0025 * 20 * 20);
    EXPECT_DOUBLE_EQ(a.Argent, 100 * part);
    EXPECT_DOUBLE_EQ(a.Definir_Ressources(1), 10 * part);
    EXPECT_DOUBLE_EQ(boutique.Stock, 10 - 10 * part);
    const ClsJeuEffet& effet = EffetsMaisons[3];
    EXPECT_EQ(std::tuple(effet.Type, effet.EtapeCourante), std::tuple(a.Effet_Attaque(Param), 0.0));
    EXPECT_TRUE(Dit(P(3), 4));

    // A shop's resource 0 is never looted; a workshop's objects are, by their share.
    ClsJeuBatiment& cueillette = Maison(4, 3000, 3000, magasin(0));
    cueillette.Stock = 10;
    Piller_Batiment(0, cueillette, cueillette.MaxVie);
    EXPECT_EQ(std::pair(a.Definir_Ressources(0), cueillette.Stock), std::pair(0.0, 10.0));
    ClsJeuBatiment& atelier = Maison(5, 3500, 3500, [](int16_t b) { return Param.Batiment_Fabrique(b); });
    atelier.Stock_Objets(0, 1);
    Piller_Batiment(0, atelier, atelier.MaxVie);
    EXPECT_EQ(atelier.Stock_Objets(0), 0);
    EXPECT_TRUE(a.Objet_Posseder(atelier.Objet_De_Ligne(0, Param)));

    // It falls: the striker stops, then goes for the owner now in the open.
    boutique.Definir_Vie(10);
    P(3).DansSaMaison = true;
    P(3).Commentaire = "avant";
    P(3).Apparence = 99;
    a.ModeAuto = true;
    a.Attaque.Valeur = 20;
    a.Attaquer_Maison(3);
    Graine_Pour({Libre, Sous(0.9)});
    Frapper_Batiment(0, boutique, 3, -1);
    EXPECT_FALSE(boutique.Visible());
    EXPECT_EQ(std::tuple(a.Attaque.Valeur, a.Definir_Action(), a.PersoCible), std::tuple(10.0, 300, 3));
    EXPECT_EQ(std::tuple(effet.Type, P(3).Apparence), std::tuple(Param.EffetMaisonDetruite, P(3).ApparenceBase));
    EXPECT_TRUE(Dit(P(3), 5));
}

TEST_F(Combat, UnChateauNePerdQueCeQuIlAEtSaChuteFaitParlerSesGens) {
    ClsJeuPerso& a = P(0);
    ClsJeuBatiment& chateau = Chateaux[1];
    chateau.Definir_Vie(5);
    for (int i : {3, 4, 5}) P(i).Commentaire = "avant";
    a.Attaquer_Chateau(1);
    Graine_Pour({Au_Dessus(0.6), Libre, Au_Plus(0.6), Au_Dessus(0.6)});
    Frapper_Batiment(0, chateau, -1, 1);
    EXPECT_EQ(std::tuple(chateau.Visible(), a.Attaque.Valeur, a.Definir_Action()), std::tuple(false, 15.0, 0));
    EXPECT_EQ(EffetsMaisons[0].Type, Param.EffetChateauDetruit);
    EXPECT_EQ(std::tuple(Dit(P(3), 12), P(4).Commentaire, Dit(P(5), 12)), std::tuple(true, "avant", true));
}

TEST_F(Combat, UnCoupDeZoneFrappeChaqueEnnemiProcheDeToutLaJaugeEtLaVide) {
    ClsJeuPerso& a = P(0);
    P(1).PositionX = 1010;                         // a friend: spared
    P(3).PositionX = 1060;                         // 60 metres: struck
    P(4).PositionY = 1100;                         // exactly the radius: spared
    P(5).DansMaison = true;                        // hidden: spared
    ClsJeuBatiment& maison = Maison(4, 1050, 1050, [](int16_t b) { return !Param.Batiment_Fabrique(b); });
    ClsJeuBatiment& amie = Maison(2, 1020, 1020, [](int16_t) { return true; });
    Chateaux[1].PositionX = 930;
    Chateaux[1].PositionY = 1000;
    const double vieChateau = Chateaux[1].Vie;
    Graine_Pour({Porte, Porte});
    Frapper_Zone(0, 100);
    for (int i : {1, 4, 5}) EXPECT_EQ(P(i).Vie.Valeur, 100) << i;
    EXPECT_EQ(P(3).Vie.Valeur, 95);
    EXPECT_EQ(std::tuple(maison.Vie, amie.Vie, Chateaux[1].Vie),
              std::tuple(maison.MaxVie - 20.0, double(amie.MaxVie), vieChateau - 20));
    // Emptied once by writing, which teaches; the blow on 3 taught as much; the buildings nothing.
    EXPECT_EQ(std::pair(a.Attaque.Valeur, a.Attaque.Exp), std::pair(0.0, 40.0));

    P(1).PositionX = 9000;
    Frapper_Zone(1, 5);
    EXPECT_EQ(P(1).Attaque.Valeur, 0);
}

TEST_F(Combat, UneVictimeAffaibliePeutFuirApresAvoirAppeleALAide) {
    ClsJeuBatiment& maison = Maison(3, 3000, 3000, [](int16_t) { return true; });
    // Hit, not hard, the call, one draw per character for it, the flight, the comment.
    const std::initializer_list<Tirage> fuite = {Porte, Porte, Au_Dessus(0.2), Libre, Libre, Libre,
                                                 Libre, Libre, Libre, Au_Dessus(0.9)};
    enum Cas { Maison_Finie, Chateau_Debout, Nulle_Part, Temeraire, Plus_Lent };
    for (Cas cas : {Maison_Finie, Chateau_Debout, Nulle_Part, Temeraire, Plus_Lent}) {
        ClsJeuPerso& t = P(3);
        t.Arreter();
        t.ModeAuto = true;
        t.Vie.Valeur = 30;
        t.IA_Temeraire = cas == Temeraire;
        t.LongueurPas = cas == Plus_Lent ? 2 : 3;
        if (cas == Chateau_Debout) maison.Definir_Vie(0);
        if (cas == Nulle_Part) Chateaux[1].Definir_Vie(0);
        P(0).Attaque.Valeur = 20;
        P(0).Commentaire.clear();
        Graine_Pour(fuite);
        Frapper_Perso(0, 3);
        const int16_t attendue[] = {101, 202, 1, 300, 300};
        EXPECT_EQ(t.Definir_Action(), attendue[cas]) << cas;
        EXPECT_EQ(Dit(P(0), 13), attendue[cas] != 300) << cas;
    }
}

// In reach it strikes when ready and able to pay for its equipment, else says what it lacks.
TEST_F(Combat, LeCoupDuTourAttendDEtrePretEtPayeLEquipement) {
    ClsJeuPerso& a = P(0);
    ClsJeuPerso& t = P(3);
    t.Vie.Valeur = 5;
    t.Defense.Valeur = 2;
    auto frappe = [&](double attaque) {
        a.Attaquer_Perso(3);
        a.AttaqueImmediate = false;
        a.Attaque.Valeur = attaque;
        Graine_Pour({Au_Plus(0.05)});   // a miss, which leaves the target as it was
        Tour(0);
        return a.Attaque.Valeur != attaque;
    };
    // Bare-handed a blow is ready above 5 + 2 + 1; with a weapon that costs, at 2 × 5 + 2.
    EXPECT_EQ(std::pair(frappe(8), frappe(8.5)), std::pair(false, true));
    const int16_t baton =
        Objet_Tel_Que([](int16_t o) { return Param.Objet_PerteMagie(o) > 0 && Param.Objet_Categorie(o) == 1; });
    a.Objet_Ajouter_Inventaire(baton, Param, true);
    ASSERT_EQ(a.ObjetsEquipes[0].Type, baton);
    const double magie = a.Magie.Valeur;
    EXPECT_EQ(std::pair(frappe(11.5), frappe(12)), std::pair(false, true));
    EXPECT_EQ(a.Magie.Valeur, magie - Param.Objet_PerteMagie(baton));

    // Too little magic for it: comment 19, the staff goes back into the bag, the fighter stops.
    a.Magie.Valeur = Param.Objet_PerteMagie(baton);
    a.Attaquer_Perso(3);
    EXPECT_EQ(Tour(0), 19);
    EXPECT_EQ(std::tuple(a.Definir_Action(), a.ObjetsEquipes[0].Type, a.Objet_Posseder(baton)),
              std::tuple(0, -1, true));
    // Bare-handed, every gauge must stay above the cost of 0; ammunition must be carried.
    for (int k = 0; k < 4; ++k) {
        Jauge* jauges[] = {&a.Vie, &a.Energie, &a.Magie, &a.Moral};
        const double avant = jauges[k]->Valeur;
        a.SeuilsArme[k] = 30;
        jauges[k]->Valeur = 30;
        a.Attaquer_Perso(3);
        EXPECT_EQ(Tour(0), 17 + k);
        a.SeuilsArme[k] = 0;
        jauges[k]->Valeur = avant;
    }
    a.PerteRessourceIndice = 2;
    a.PerteRessourceQuantite = 2;
    a.Definir_Ressources(2, 1.5);
    a.Attaquer_Perso(3);
    EXPECT_EQ(Tour(0), 34);
    a.Definir_Ressources(2, 3);
    a.Attaquer_Perso(3);
    Tour(0);
    EXPECT_EQ(std::pair(a.Definir_Ressources(2), a.AttaqueImmediate), std::pair(1.0, false));
}

TEST_F(Combat, UnKamikazeFrappeUneFoisEnArrivantPuisMeurt) {
    ClsJeuPerso& a = P(0);
    a.Kamikaze = true;
    a.Attaque.Valeur = 5;
    a.Attaquer_Perso(3);
    Graine_Pour({Porte});
    Tour(0);
    EXPECT_EQ(std::tuple(P(3).Vie.Valeur, a.Vivant(), Fiefs[0].NombreMorts), std::tuple(99.0, false, 1));
    Tour(0);
    EXPECT_EQ(P(3).Vie.Valeur, 99);
}

// Only team mates free for it answer, each on its own draw; the caller and the helpers say so.
TEST_F(Combat, SeulsLesCoequipiersDisponiblesRepondentALAppel) {
    Former_Equipes(8, 1);
    for (ClsJeuPerso& p : Persos) p.ModeAuto = true;
    P(2).ModeAuto = false;
    P(3).Chef = 1;
    P(4).CoefForme = 0.875;
    P(5).Vie.Valeur = 50;
    P(6).Definir_Action(102);
    P(7).Aller_A(0, 0);        // walking: free to come
    Fiefs[0].NombreSujets = 2;   // a chance of 3 in 3
    P(0).Attaquer_Perso(8);
    P(0).Commentaire = "avant";
    Definir_Graine(5);
    for (int k = 0; k < 9 + 4; ++k) Rnd();
    const float suivant = Rnd();
    Definir_Graine(5);
    Appeler_Aide(0);
    EXPECT_EQ(Rnd(), suivant);   // one draw for every character, and one for each comment
    EXPECT_TRUE(Dit(P(0), 6));
    for (int i = 1; i <= 8; ++i) {
        const bool aide = i == 1 || i == 7;
        EXPECT_EQ(P(i).Definir_Action() == 300 && P(i).PersoCible == 8, aide) << i;
        EXPECT_EQ(Dit(P(i), 10), aide) << i;
    }

    // A caller that attacks nothing sends its helpers at its attacker, when it has one.
    P(0).ModeAuto = false;
    for (int i : {0, 1, 7}) {
        P(i).Arreter();
        P(i).Commentaire.clear();
    }
    P(8).Attaquer_Perso(0);
    Appeler_Aide(0);
    EXPECT_TRUE(Dit(P(0), 9));
    EXPECT_EQ(std::pair(P(1).PersoCible, P(7).PersoCible), std::pair(8, 8));
    for (int i : {0, 1, 7}) {
        P(i).Arreter();
        P(i).Commentaire.clear();
    }
    P(8).Arreter();
    Appeler_Aide(0);
    EXPECT_EQ(std::tuple(P(1).Definir_Action(), P(0).Commentaire, P(1).Commentaire), std::tuple(0, "", ""));
}

}  // namespace

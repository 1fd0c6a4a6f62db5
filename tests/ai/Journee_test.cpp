#include "ai/Journee.h"

#include <gtest/gtest.h>

#include <string_view>
#include <tuple>

#include "../characters/ReglesParDefaut.h"
#include "ai/TablesIA.h"
#include "rules/ClsJeuParam.h"
#include "world/Globales.h"

namespace {

// Four villagers of fief 0 around a standing castle; their empty house slots keep type 0, the berry hut.
class Journee : public ReglesParDefaut {
protected:
    void SetUp() override {
        ReglesParDefaut::SetUp();
        Monde.Largeur = 200;
        Monde.Hauteur = 200;
        Chateaux[0].PositionX = 3000;
        Chateaux[0].PositionY = 3000;
        Initialiser_Chateau(Chateaux[0], Fiefs[0], Param);
        Village(4);
    }

    // n villagers and fresh AI tables, nothing kept from another world.
    void Village(int n) {
        Peupler(n);
        EffetsMaisons.assign(static_cast<std::size_t>(n), ClsJeuEffet{});
        Dimensionner_Tables_IA(0);
        Initialiser_IA();
    }

    static ClsJeuPerso& P(int32_t i) { return Persos[static_cast<std::size_t>(i)]; }
    static ClsJeuBatiment& M(int32_t i) { return Maisons[static_cast<std::size_t>(i)]; }

    static int16_t Type(std::string_view nom) {
        for (int16_t t = 0; t < Param.NombreTypeBatiments; ++t)
            if (Param.Batiment_Nom(t) == nom) return t;
        ADD_FAILURE() << "pas de bâtiment " << nom;
        return 0;
    }
    static int Ressource(std::string_view nom) {
        for (int r = 0; r < Param.NombreRessources; ++r)
            if (Param.Ressources_Nom(r) == nom) return r;
        ADD_FAILURE() << "pas de ressource " << nom;
        return 0;
    }

    // House slot k of the type, put up free by its owner and finished, far from the castle.
    static ClsJeuBatiment& Maison_Finie(int32_t k, int16_t type) {
        ClsJeuBatiment& m = M(k);
        m.Creer(500 + 100 * k, 500, type, P(k), Param);
        m.Definir_Vie(m.MaxVie);
        return m;
    }

    // A character well off at every epoch, carrying nothing.
    static ClsJeuPerso& Riche(int32_t i) {
        P(i).Argent = 100000;
        return P(i);
    }
};

// --- What to build ---------------------------------------------------------------------

TEST_F(Journee, AuPlusHautNiveauIlNeFormeAucunVoeu) {
    Riche(0);
    Maison_Finie(0, Type("Cathédrale"));   // the highest level
    Gerer_Batiment_Perso(0);
    EXPECT_EQ(BatimentVoulu[0], -1);

    Maison_Finie(0, Type("Armurerie"));   // one level below: a wish of the level above
    Gerer_Batiment_Perso(0);
    ASSERT_GE(BatimentVoulu[0], 0);
    EXPECT_EQ(Param.Batiment_Niveau(BatimentVoulu[0]), NiveauBatimentMax);
}

// Alone in its trade it climbs; with a second sawmill (even fallen) the first missing lower trade comes first.
TEST_F(Journee, SeulDeSonMetierIlMonteADeuxIlPrendDAbordLeMetierInferieurQuiManque) {
    const int16_t scierie = Type("Scierie");
    Maison_Finie(0, scierie);
    for (int essai = 0; essai < 20; ++essai) EXPECT_EQ(Param.Batiment_Niveau(Choisir_Batiment(0, 0, 2)), 2);
    M(1).Type = scierie;
    for (int essai = 0; essai < 5; ++essai) EXPECT_EQ(Choisir_Batiment(0, 0, 2), Type("Cabane du pêcheur"));
}

// Houseless, with the missing lower trade of a later epoch, it takes a type of level 0 instead.
TEST_F(Journee, SansMaisonIlNAttendPasUnMetierDUneEpoqueAVenir) {
    Village(10);
    const int16_t fonderie = Type("Fonderie"), scierie = Type("Scierie");   // levels 2 and 1
    M(0).Type = M(1).Type = fonderie;   // fallen, or never built
    for (int16_t t = 0; t < BatimentsParNiveau[0]; ++t) M(2 + t).Type = t;
    P(0).Definir_Ressources(Ressource("Bois"), 20);   // it can pay for a sawmill
    P(0).Definir_Ressources(Ressource("Pierre"), 20);
    ASSERT_TRUE(P(0).PeutConstruire_Maison(scierie, Param));
    EXPECT_EQ(Param.Batiment_Niveau(Choisir_Batiment(0, 0, 0)), 0);
    Fiefs[0].Epoque = 1;   // the sawmill's epoch is reached
    EXPECT_EQ(Choisir_Batiment(0, 0, 0), scierie);
}

// Paid for and in its epoch, a type over its share of the fief is dropped; otherwise the house is rebuilt.
TEST_F(Journee, UnTypeTropCourantNEstPasBatiEtLeVoeuEstAbandonne) {
    const int16_t hutte = Type("Hutte du cueilleur"), scierie = Type("Scierie");
    const int bois = Ressource("Bois"), pierre = Ressource("Pierre");
    Fiefs[0].Epoque = 1;
    ClsJeuBatiment& h = Maison_Finie(0, hutte);
    ClsJeuPerso& p = Riche(0);
    auto payer_et_vouloir = [&] {
        p.Definir_Ressources(bois, Param.Batiment_Prix(scierie, bois));
        p.Definir_Ressources(pierre, Param.Batiment_Prix(scierie, pierre));
        BatimentVoulu[0] = scierie;
    };
    payer_et_vouloir();
    M(1).Type = scierie;
    Gerer_Batiment_Perso(0);
    EXPECT_EQ(std::tuple(BatimentVoulu[0], h.Type, h.Termine), std::tuple(int16_t{-1}, hutte, true));
    EXPECT_EQ(p.Definir_Ressources(bois), Param.Batiment_Prix(scierie, bois));

    M(1).Type = hutte;
    payer_et_vouloir();
    Gerer_Batiment_Perso(0);
    EXPECT_EQ(std::tuple(BatimentVoulu[0], h.Type, h.Termine), std::tuple(int16_t{-1}, scierie, false));
    EXPECT_EQ(p.Definir_Action(), 7);   // home, to build it
}

// --- The day ----------------------------------------------------------------------------

TEST_F(Journee, EnVisiteIlAchetePourSaMaisonEtUnSeulObjetQuIlNAPas) {
    ClsJeuPerso& p = Riche(0);
    Maison_Finie(0, Type("Boulangerie"));   // its raw material is Blé
    const int ble = Ressource("Blé");
    ClsJeuBatiment& ferme = Maison_Finie(1, Type("Chaumière du paysan"));
    ferme.Magasin = true;
    ferme.Definir_Stock(15);
    p.DansMaison = true;
    p.MaisonCible = 1;
    Gerer_Journee(0);
    EXPECT_EQ(p.Definir_Ressources(ble), 15);   // the whole shelf, as much as it can
    EXPECT_EQ(ferme.Stock, 0);
    EXPECT_TRUE(ActionFaite[0]);

    ClsJeuBatiment& atelier = Maison_Finie(2, Type("Atelier du tisserand"));
    const int lignes = Param.Batiment_NombreObjetsFabriques(atelier.Type);
    for (int k = 0; k < lignes; ++k) atelier.Stock_Objets(k, 1);
    p.MaisonCible = 2;
    auto objets_tenus = [&] {
        int32_t n = 0;
        for (int k = 0; k < lignes; ++k) n += p.Objet_NombreType(atelier.Objet_De_Ligne(k, Param));
        return n;
    };
    ActionFaite[0] = 0;
    Gerer_Journee(0);
    EXPECT_EQ(objets_tenus(), 1);
    EXPECT_EQ(atelier.Stock, lignes - 1);

    // Owning one of each, it buys nothing, whatever line it looks at.
    p.Objet_Inventaire_Vider_Tout();
    p.Objet_Equipes_Vider_Tout();
    for (int k = 0; k < lignes; ++k) p.Objet_Inventaire_Charger(k, atelier.Objet_De_Ligne(k, Param));
    const double argent = p.Argent;
    for (int visite = 0; visite < 10; ++visite) {
        ActionFaite[0] = 0;
        Gerer_Journee(0);
    }
    EXPECT_EQ(p.Argent, argent);
    EXPECT_EQ(objets_tenus(), lignes);
}

TEST_F(Journee, UnArtisanPauvreQuiNePeutRienFaireEmporteSesMarchandisesAuMarche) {
    Fiefs[0].Epoque = 1;   // the weaver's objects belong to the second epoch
    ClsJeuBatiment& h = Maison_Finie(0, Type("Atelier du tisserand"));
    h.Stock_Objets(1, 2);
    h.Stock_Objets(4, 1);
    h.Argent = 7;
    ClsJeuPerso& p = P(0);   // no money, no wool: poor, and nothing can be made
    for (int s = 0; s < static_cast<int>(p.ObjetsEquipes.size()); ++s) p.Objet_Equipe_Charger(s, 0);   // dressed
    p.DansSaMaison = true;
    Gerer_Journee(0);
    EXPECT_EQ(p.Argent, 7);   // the takings first
    const int16_t cape = h.Objet_De_Ligne(1, Param), echarpe = h.Objet_De_Ligne(4, Param);
    EXPECT_EQ(p.Objet_NombreType(cape), 1);   // one of each line in stock
    EXPECT_EQ(p.Objet_NombreType(echarpe), 1);
    EXPECT_EQ(h.Stock, 1);
    EXPECT_EQ(p.Definir_Action(), 202);
    EXPECT_FALSE(ActionFaite[0]);

    // At the castle it sells what its trade makes, at the full price.
    p.Definir_Action(0);
    p.DansSaMaison = false;
    p.DansSonChateau = true;
    Gerer_Journee(0);
    EXPECT_EQ(p.Objet_NombreType(cape) + p.Objet_NombreType(echarpe), 0);
    EXPECT_EQ(p.Argent, 7 + Param.Objet_PrixVente(cape) + Param.Objet_PrixVente(echarpe));
    EXPECT_TRUE(ActionFaite[0]);
}

TEST_F(Journee, UnArtisanQuiPeutFabriquerCommenceParUneLigneVide) {
    Fiefs[0].Epoque = 1;
    ClsJeuBatiment& h = Maison_Finie(0, Type("Atelier du tisserand"));
    const int lignes = Param.Batiment_NombreObjetsFabriques(h.Type);
    for (int k = 0; k < lignes; ++k) h.Stock_Objets(k, k == 2 ? 0 : 1);
    ClsJeuPerso& p = Riche(0);
    p.Definir_Ressources(Ressource("Laine"), 20);
    p.Definir_Ressources(Ressource("Herbes"), 20);
    p.DansSaMaison = true;
    Gerer_Journee(0);
    EXPECT_EQ(std::pair(p.Definir_Action(), p.ObjetFabrique), std::pair(int16_t{500}, int16_t{2}));
    EXPECT_FALSE(ActionFaite[0]);   // the work goes on when the object is done
}

// A house with no resource, service or workshop never calls its owner home; any of the three does.
TEST_F(Journee, UneMaisonQuiNeProduitRienNeRappelleJamaisSonProprietaire) {
    ClsJeuBatiment& h = Maison_Finie(0, Type("Temple"));
    h.Service = 0;
    ClsJeuPerso& p = Riche(0);
    p.IA_Pacifique = true;   // its idle draws: go back to the castle, wander, or nothing
    const int16_t matiere = Param.Batiment_TypeMatierePremiere(h.Type);
    p.Definir_Ressources(matiere, 5);   // needs no raw material
    ActionFaite[0] = 1;
    int auChateau = 0;
    for (int pensee = 0; pensee < 50; ++pensee) {
        p.Definir_Action(0);
        Gerer_Journee(0);
        EXPECT_NE(p.Definir_Action(), 101);
        auChateau += p.Definir_Action() == 202;
    }
    EXPECT_LT(auChateau, 25);   // now and then back to the castle by a draw, not every time
    p.Definir_Ressources(0, 1);
    p.Definir_Action(0);
    Gerer_Journee(0);
    EXPECT_EQ(p.Definir_Action(), 202);

    p.Definir_Ressources(0, 0);
    for (const auto& [service, fabrique, type] :
         {std::tuple{1, false, h.Type}, std::tuple{0, true, h.Type}, std::tuple{0, false, Type("Cabane du bûcheron")}}) {
        h.Service = static_cast<int16_t>(service);
        h.Fabrique = fabrique;
        h.Type = type;
        p.Definir_Action(0);
        Gerer_Journee(0);
        EXPECT_EQ(p.Definir_Action(), 101) << service << fabrique << type;
    }
}

// --- Trade and gifts ----------------------------------------------------------------------

TEST_F(Journee, IlAchetePourSonBatimentCeQuiManqueEtQuePersonneNeRecolte) {
    Maison_Finie(0, Type("Boulangerie"));
    ClsJeuPerso& p = Riche(0);
    for (double& stock : Fiefs[0].Ressources) stock = 50;
    BatimentVoulu[0] = Type("Armurerie");   // 10 Planches, 10 Fer, 16 Briques
    const int planches = Ressource("Planches"), fer = Ressource("Fer"), briques = Ressource("Briques");
    p.Definir_Ressources(fer, 10);   // enough of it already
    Acheter_Pour_Batiment(0);
    for (int r = 0; r < Param.NombreRessources; ++r) {
        const bool achete = r == planches || r == briques;
        EXPECT_EQ(Fiefs[0].Ressources[static_cast<std::size_t>(r)] < 50, achete) << Param.Ressources_Nom(r);
    }
    EXPECT_EQ(p.Definir_Ressources(fer), 10);

    // The product of its own house it never buys; what is harvested it goes and gets.
    Maison_Finie(0, Type("Scierie"));   // makes Planches
    BatimentVoulu[0] = Type("Taverne");   // 8 Bois, 14 Pierre, 16 Planches
    p.Definir_Ressources(planches, 0);
    const double argent = p.Argent;
    for (int visite = 0; visite < 5; ++visite) Acheter_Pour_Batiment(0);
    EXPECT_EQ(p.Argent, argent);
}

TEST_F(Journee, IlDonneAuChateauLaPartDeSonArgentQueLeChateauAPerdueDeSaVie) {
    ClsJeuBatiment& c = Chateaux[0];
    ClsJeuPerso& p = P(0);
    p.Argent = 101;
    Contribuer_Chateau(0);   // a full castle gets nothing
    EXPECT_EQ(p.Argent, 101);

    c.MaxVie = 1000;
    c.Vie = 750;
    c.ReserveVie = 0;
    Contribuer_Chateau(0);   // Int(101 - 750 × 101 / 1000) + 1 = Int(25.25) + 1
    EXPECT_EQ(p.Argent, 75);
    EXPECT_EQ(Fiefs[0].TresorRestauration, 26);

    c.ReserveVie = 250;   // the health on its way counts
    Contribuer_Chateau(0);
    EXPECT_EQ(p.Argent, 75);
}

}  // namespace

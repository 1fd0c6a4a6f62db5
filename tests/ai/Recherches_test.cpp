#include "ai/Recherches.h"

#include <gtest/gtest.h>

#include <vector>

#include "MondeRecherches.h"
#include "ai/TablesIA.h"
#include "rules/ClsJeuParam.h"
#include "world/Globales.h"

namespace {

// Ten characters (a call looks at six); 0 looks from (1000, 1000), the others friends at (0, 0).
class Recherches : public MondeRecherches {
protected:
    void SetUp() override {
        MondeRecherches::SetUp();
        Creer_Monde(10);
        Placer(0, 1000, 1000);
    }
    template <class Recherche>
    static int32_t Chercher(Recherche recherche, int32_t i = 0) {
        int32_t r = -2;
        const bool trouve = recherche(i, r);
        EXPECT_EQ(trouve, r >= 0);
        return r;
    }
    static int32_t Maison_Pour(int16_t ressource, int16_t besoin, int16_t service) {
        return Chercher([&](int32_t i, int32_t& r) { return Chercher_Maison(i, 0, ressource, besoin, service, r); });
    }
};

TEST_F(Recherches, UnEnnemiEstDUneAutreEquipeFrappableEtAPortee) {
    ASSERT_EQ(PasDeRecherche, 5);
    Placer(1, 1010, 1000);                          // a friend
    Placer(2, 1010, 1000, 1).Visible(false);        // an enemy in a building
    Placer(3, 1010, 1000, 1).Vivant(false);         // a dead enemy
    Placer(4, 1300, 1000, 1);                       // an enemy out of reach
    Placer(5, 1100, 1000, 1);                       // an enemy within 200
    RayonPerso[0] = 200;
    EXPECT_EQ(Chercher(Chercher_Ennemi), 5);
    EXPECT_EQ(CurseurPerso[0], 6);
    EXPECT_EQ(RayonPerso[0], 200);   // a search for a target keeps its radius
}

TEST_F(Recherches, LaRechercheReprendDerriereLaCibleTrouvee) {
    Placer(2, 1050, 1000, 1);
    Placer(4, 1000, 1050, 1);
    RayonPerso[0] = 200;
    // (found, cursor after): 5 to 9 then 0 finds nothing, and that pass widens the radius.
    for (const auto& [trouve, curseur] : {std::pair{2, 3}, std::pair{4, 5}, std::pair{-1, 1}}) {
        EXPECT_EQ(Chercher(Chercher_Ennemi), trouve);
        EXPECT_EQ(CurseurPerso[0], curseur) << trouve;
    }
    EXPECT_EQ(RayonPerso[0], 248);
    EXPECT_EQ(Chercher(Chercher_Ennemi), 2);
}

TEST_F(Recherches, UnAppelRegardeAuPlusPasDeRecherchePlusUnCandidats) {
    RayonPerso[0] = 640;
    // (found, cursor after); the enemy at 8 lies just beyond the third call's steps, 2 to 7.
    for (const auto& [trouve, curseur] : {std::pair{-1, 6}, std::pair{-1, 2}, std::pair{-1, 8}, std::pair{8, 9}}) {
        if (curseur == 8) Placer(8, 1000, 1000, 1);
        EXPECT_EQ(Chercher(Chercher_Ennemi), trouve);
        EXPECT_EQ(CurseurPerso[0], curseur) << trouve;
    }
}

TEST_F(Recherches, LeRayonPersoVaDe64EnPasDe48JusquA640PuisRevientA64) {
    // 48, 96, … 624, then round and round 64, 112, … 640.
    std::vector<int32_t> attendus;
    for (int32_t r = 48; r <= 640; r += 48) attendus.push_back(r);
    for (int tour = 0; tour < 3; ++tour)
        for (int32_t r = 64; r <= 640; r += 48) attendus.push_back(r);
    std::vector<int32_t> vus;
    for (int appel = 0; vus.size() < attendus.size() && appel < 1000; ++appel) {
        const int32_t avant = RayonPerso[0];
        Chercher(Chercher_Ennemi);
        if (RayonPerso[0] != avant) vus.push_back(RayonPerso[0]);
    }
    EXPECT_EQ(vus, attendus);
}

TEST_F(Recherches, LesRayonsDesMaisonsEtChateauxEnnemisBouclentAussi) {
    for (int appel = 0; appel < 40; ++appel) {
        int32_t r;
        Chercher_Maison_Ennemie(0, r);
        Chercher_Chateau_Ennemi(0, r);
        EXPECT_LE(RayonMaisonEnnemie[0], 640);
        EXPECT_LE(RayonChateauEnnemi[0], 640);
    }
    // Two castles: a call of six steps goes round them three times.
    CurseurChateauEnnemi[0] = 0;
    RayonChateauEnnemi[0] = 0;
    int32_t r;
    EXPECT_FALSE(Chercher_Chateau_Ennemi(0, r));
    EXPECT_EQ(CurseurChateauEnnemi[0], 2);
    EXPECT_EQ(RayonChateauEnnemi[0], 4 * Param.ChateauxLargeur);
}

TEST_F(Recherches, UneMaisonOuUnChateauEnnemiDeboutEstTrouveASonCoin) {
    const int16_t type = Type_Nourrissant(1);
    Placer(3, 0, 0, 1);
    Batir(3, type, 1100, 1000);          // its corner is 100 away
    Placer(4, 0, 0, 1);
    Batir(4, type, 1050, 1000).Definir_Vie(0);   // fallen
    RayonMaisonEnnemie[0] = 101;
    EXPECT_EQ(Chercher(Chercher_Maison_Ennemie), 3);
    RayonMaisonEnnemie[0] = 100;
    CurseurMaisonEnnemie[0] = 0;
    EXPECT_EQ(Chercher(Chercher_Maison_Ennemie), -1);

    Chateaux[1].PositionX = 1000;
    Chateaux[1].PositionY = 1200;
    Chateaux[1].Vie = 10;
    RayonChateauEnnemi[0] = 201;
    EXPECT_EQ(Chercher(Chercher_Chateau_Ennemi), 1);
    EXPECT_EQ(CurseurChateauEnnemi[0], 2);
}

TEST_F(Recherches, LeRayonMaisonGranditSansBornePuisRevientA96) {
    const int16_t type = Type_Nourrissant(1);
    EXPECT_EQ(RayonMaison[0], 96);
    for (int appel = 0; appel < 40; ++appel) EXPECT_EQ(Maison_Pour(0, 1, 0), -1);
    // 240 steps over ten houses: 23 times back to the start, the cursor now at the end.
    EXPECT_EQ(RayonMaison[0], 96 + 23 * 96);
    Batir(7, type, 2500, 2500);
    EXPECT_EQ(Maison_Pour(0, 1, 0), -1);   // round again, 0 to 5
    EXPECT_EQ(RayonMaison[0], 96 + 24 * 96);
    EXPECT_EQ(Maison_Pour(0, 1, 0), 7);
    EXPECT_EQ(RayonMaison[0], 96);
    EXPECT_EQ(CurseurMaison[0], 8);
}

TEST_F(Recherches, LaZoneEstCarreeSaufPourUneRessource) {
    // A shop of food other than resource 0, which "no resource" would stand for.
    const int16_t type = Type_Tel_Que([](int16_t t) {
        return Param.Batiment_RessourceFabrique(t) > 0 && Param.Batiment_Magasin(t) &&
               Param.Ressources_GainVie(Param.Batiment_RessourceFabrique(t)) > 0;
    });
    const auto ressource = static_cast<int16_t>(Param.Batiment_RessourceFabrique(type));
    Batir(5, type, 1090, 910);   // in the square of 96, 127 away
    EXPECT_EQ(Maison_Pour(0, 1, 0), 5);
    CurseurMaison[0] = 0;
    EXPECT_EQ(Maison_Pour(ressource, 0, 0), -1);
    EXPECT_EQ(CurseurMaison[0], 6);
    M(5).PositionX = M(5).PositionY = 1060;   // 85 away
    CurseurMaison[0] = 0;
    EXPECT_EQ(Maison_Pour(ressource, 0, 0), 5);
}

TEST_F(Recherches, LaPremiereLigneQuiSAppliqueDecide) {
    const int16_t atelier = Type_Tel_Que([](int16_t t) { return Param.Batiment_Fabrique(t); });
    const int16_t service = Type_Tel_Que([](int16_t t) { return Param.Batiment_Service(t) >= 1; });
    const int16_t s = Param.Batiment_Service(service);
    Batir(1, atelier, 1000, 1000);
    Batir(3, service, 1000, 1000);
    EXPECT_EQ(Maison_Pour(0, 5, 0), 1);
    CurseurMaison[0] = 0;
    EXPECT_EQ(Maison_Pour(0, 5, s), 3);   // a service comes first
    CurseurMaison[0] = 0;
    EXPECT_EQ(Maison_Pour(0, 0, 0), -1);  // nothing asked, nothing found
}

TEST_F(Recherches, UneMaisonNeSertQueSonFiefFinieEtGarnie) {
    const int16_t type = Type_Nourrissant(1);
    Placer(1, 0, 0, 1);
    Batir(1, type, 1000, 1000);                  // another fief
    Batir(2, type, 1000, 1000, 0.5);             // not a whole unit in stock
    Batir(3, type, 1000, 1000).Definir_Vie(0);   // fallen, so no longer finished
    Batir(4, type, 1000, 1000);
    EXPECT_EQ(Maison_Pour(0, 1, 0), 4);
    EXPECT_EQ(Maison_Pour(0, 1, 0), -1);   // 5 to 9, 0: the own house counts like any other
    Batir(0, type, 1000, 1000);
    CurseurMaison[0] = 0;
    EXPECT_EQ(Maison_Pour(0, 1, 0), 0);
}

TEST_F(Recherches, LeGisementTrouveEstLePremierDansLOrdrePasLePlusProche) {
    Ressources.assign(4, ClsJeuRessources{});
    auto gisement = [](std::size_t k, int32_t type, int32_t x, int32_t y) {
        Ressources[k].TypeRessource = type;
        Ressources[k].PositionX = x;
        Ressources[k].PositionY = y;
    };
    gisement(0, 3, 1010, 1000);
    gisement(1, 7, 1300, 1000);
    gisement(2, 7, 1050, 1000);
    gisement(3, 7, 9000, 9000);
    RayonRessource[0] = 300;   // one draw makes it 300 or more
    int32_t r = -2;
    EXPECT_TRUE(Chercher_Ressource(0, 0, 7, r) && r == 1);
    EXPECT_EQ(RayonRessource[0], 0);
    // Nothing within reach: the radius only grows, by less than ten deposit widths a call.
    int32_t avant = 0;
    for (int appel = 0; appel < 20; ++appel) {
        EXPECT_FALSE(Chercher_Ressource(0, 0, 5, r));
        EXPECT_EQ(r, -1);
        EXPECT_GE(RayonRessource[0], avant);
        EXPECT_LE(RayonRessource[0], avant + 320);
        avant = RayonRessource[0];
    }
    RayonRessource[0] = 300;
    Aller_Recolter(0, 7);
    EXPECT_EQ(std::pair(P(0).RessourceCible, P(0).Definir_Action()), std::pair(1, int16_t{3}));
}

TEST_F(Recherches, LeGisementLePlusProcheDUnTerrainEtSinonLeGisementZero) {
    Ressources.assign(3, ClsJeuRessources{});
    for (std::size_t k = 0; k < 3; ++k) {
        Ressources[k].TypeTerrain = 2;
        Ressources[k].PositionX = 1000 + 300 * static_cast<int32_t>(2 - k);
        Ressources[k].PositionY = 1000;
    }
    Aller_Ressource_Proche(0, 2);
    EXPECT_EQ(P(0).RessourceCible, 2);
    Aller_Ressource_Proche(0, 4);
    EXPECT_EQ(P(0).RessourceCible, 0);
    EXPECT_EQ(P(0).Definir_Action(), 3);
}

TEST_F(Recherches, LePremierDesCiblesAussiProchesResteEtLArrondiCompte) {
    Placer(3, 1050, 1000, 1);
    Placer(6, 1000, 1050, 1);
    Attaquer_Perso_Proche(0);
    EXPECT_EQ(std::pair(P(0).PersoCible, P(0).Definir_Action()), std::pair(3, int16_t{300}));
    // 10.44 is kept as 10: 10.20 is not nearer, 9.49 is.
    Placer(2, 1010, 1003, 1);
    Placer(4, 1010, 1002, 1);
    Attaquer_Perso_Proche(0, true);
    EXPECT_EQ(P(0).PersoCible, 2);
    Placer(5, 1009, 1003, 1);
    Attaquer_Perso_Proche(0);
    EXPECT_EQ(P(0).PersoCible, 5);
}

TEST_F(Recherches, LaChargeVaAuChateauOuALaMaisonEnnemieLaPlusProche) {
    for (std::size_t f = 0; f < 2; ++f) {
        Chateaux[f].PositionX = 1400 - 200 * static_cast<int32_t>(f);
        Chateaux[f].PositionY = 1000;
        Chateaux[f].Vie = 10;
    }
    Attaquer_Chateau_Proche(0);
    EXPECT_EQ(std::pair(P(0).ChateauCible, P(0).Definir_Action()), std::pair(1, int16_t{302}));   // 0 is its own
    const int16_t type = Type_Nourrissant(1);
    Placer(6, 0, 0, 1);
    Placer(8, 0, 0, 1);
    Batir(6, type, 1500, 1000);
    Batir(8, type, 1000, 1400);
    Batir(2, type, 1000, 1000);   // a friend's
    Attaquer_Maison_Proche(0);
    EXPECT_EQ(std::pair(P(0).MaisonCible, P(0).Definir_Action()), std::pair(8, int16_t{301}));
}

TEST_F(Recherches, LesComptesDeMaisonsParTypeEtParFief) {
    const auto type = static_cast<int16_t>(Param.NombreTypeBatiments - 1);   // not the type of empty slots
    Placer(7, 0, 0, 1);
    Placer(8, 0, 0, 1);
    Batir(2, type, 1000, 1000);
    Batir(3, type, 1000, 1000).Definir_Vie(0);   // a fallen house keeps its type
    Batir(7, type, 1000, 1000);
    EXPECT_EQ(Compter_Maisons_Type(type, 0), 2);
    EXPECT_EQ(Compter_Maisons_Type(type, 1), 1);
    EXPECT_EQ(Compter_Maisons_Type(-1, 0), 0);
    EXPECT_EQ(Compter_Maisons_Fief(0), 8);
    EXPECT_EQ(Compter_Maisons_Fief(1), 2);
}

TEST_F(Recherches, PresDuBordDuMondeLEmplacementResteAMoinsDUneCaseDuBord) {
    const int16_t type = Type_Nourrissant(1);
    const int32_t largeur = Param.Batiment_Largeur(type), hauteur = Param.Batiment_Hauteur(type);
    const int32_t bordX = Monde.Largeur * TailleCase - largeur, bordY = Monde.Hauteur * TailleCase - hauteur;
    int32_t x = 0, y = 0;
    int presDuCoin = 0, presDuBout = 0;
    for (int appel = 0; appel < 100; ++appel) {
        Chateaux[0].PositionX = Chateaux[0].PositionY = 0;
        ASSERT_TRUE(Chercher_Emplacement(0, x, y, type));
        EXPECT_GE(x, 0);
        EXPECT_GE(y, 0);
        presDuCoin += x <= TailleCase && y <= TailleCase;
        Chateaux[0].PositionX = bordX;
        Chateaux[0].PositionY = bordY;
        ASSERT_TRUE(Chercher_Emplacement(0, x, y, type));
        EXPECT_LE(x, bordX);
        EXPECT_LE(y, bordY);
        presDuBout += x >= bordX - TailleCase && y >= bordY - TailleCase;
    }
    EXPECT_GT(presDuCoin, 0);
    EXPECT_GT(presDuBout, 0);
}

TEST_F(Recherches, LAnneauDuFiefGranditDUneCaseParEssaiEtRetombeALaLargeurDuChateau) {
    const int16_t type = Type_Nourrissant(1);
    ClsJeuBatiment& partout = Batir(9, type, 0, 0);   // a house over the whole map: no room
    partout.Largeur = partout.Hauteur = 4000;
    Chateaux[0].PositionX = Chateaux[0].PositionY = 1500;
    int32_t x = 0, y = 0;
    EXPECT_FALSE(Chercher_Emplacement(0, x, y, type));
    EXPECT_EQ(RayonPlacementFief[0], 11 * TailleCase);
    EXPECT_FALSE(Chercher_Emplacement(1, x, y, type));   // the fief's builders share the ring
    EXPECT_EQ(RayonPlacementFief[0], 22 * TailleCase);
    partout.Definir_Vie(0);
    EXPECT_TRUE(Chercher_Emplacement(1, x, y, type));
    EXPECT_EQ(RayonPlacementFief[0], Param.ChateauxLargeur);
    EXPECT_EQ(RayonPlacementFief[1], 0);
}

}  // namespace

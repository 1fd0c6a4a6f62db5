// The rule book loaded from a copy of the default game folder: each kind of key read with
// its conversion, and the links and corrections made while loading.
#include <gtest/gtest.h>

#include <set>

#include "ClsJeuParamRegles.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"

namespace {

class ClsJeuParamTest : public ::testing::Test {
protected:
    void SetUp() override { Param.Reinitialiser(); }
    void TearDown() override { Param.Reinitialiser(); }

    ReglesCopiees regles;
};

// One key set to a telling value, and what the rule book makes of it.
struct Lecture {
    CleRegle Cle;
    const char* Valeur;
    double (*Lu)();
    double Attendu;
};

#define LU(x) [] { return static_cast<double>(x); }

const Lecture Lectures[] = {
    // Strict numbers as written; lenient ones by their leading number, else 0.
    {{FichierPersos, "Personnages", "PersosMaxVie"}, "120", LU(Param.PersosMaxVie), 120},
    {{FichierFiefs, "Epoque_2", "ChateauxRessourcesDepart"}, "12abc", LU(Param.Epoque_ChateauxRessourcesDepart(1)), 12},
    {{FichierFiefs, "Epoque_2", "PersosArgentDepart"}, "beaucoup", LU(Param.Epoque_PersosArgentDepart(1)), 0},
    {{FichierBatiments, "Batiment_1", "Magasin"}, "vrai", LU(Param.Batiment_Magasin(0)), 0},
    {{FichierBatiments, "Batiment_1", "Hauteur"}, " 7 mètres", LU(Param.Batiment_Hauteur(0)), 7},
    // A real stored into an integer field: ties to even.
    {{FichierBatiments, "Batiment_1", "Largeur"}, "-2.5", LU(Param.Batiment_Largeur(0)), -2},
    {{FichierBatiments, "Batiment_1", "EntreePositionX"}, "1.5", LU(Param.Batiment_EntreePositionX(0)), 2},
    {{FichierBatiments, "Batiment_1", "EntreePositionY"}, "0.5", LU(Param.Batiment_EntreePositionY(0)), 0},
    {{FichierObjets, "Objet_1", "PrixVente"}, "5.5", LU(Param.Objet_PrixVente(0)), 6},
    // Indices written from 1 come back from 0, 0 and junk meaning none; a service's is plain.
    {{FichierRessources, "Ressource_1", "TypeMatierePremiere"}, "0", LU(Param.Ressources_TypeMatierePremiere(0)), -1},
    {{FichierRessources, "Ressource_9", "TypeMatierePremiere"}, "4", LU(Param.Ressources_TypeMatierePremiere(8)), 3},
    {{FichierBatiments, "Batiment_2", "RessourceFabrique"}, "blé", LU(Param.Batiment_RessourceFabrique(1)), -1},
    {{FichierObjets, "Service_2", "TypeMatierePremiere"}, "0", LU(Convertir_Souple(Param.Service_MatierePremiere(1))), 0},
    {{FichierObjets, "Service_2", "Prix"}, "12.5xyz", LU(Param.Service_Prix(1)), 12.5},
    // Filled in while loading: a monster's missing health is the human maximum, a tireless
    // monster has 9999 energy and morale, and a step of 0 or none lasts 1.
    {{FichierMonstres, "Monstre_1", "Vie"}, "", LU(Param.Monstre_Vie(0)), 120},
    {{FichierMonstres, "Monstre_2", "Infatigable"}, "1", LU(Param.Monstre_Energie(1)), 9999},
    {{FichierMonstres, "Monstre_2", "Infatigable"}, "1", LU(Param.Monstre_Moral(1)), 9999},
    {{FichierEffets, "Effet_1", "DureeEtape"}, "0", LU(Param.Effet_DureeEtape(0)), 1},
    {{FichierEffets, "Effet_2", "DureeEtape"}, "", LU(Param.Effet_DureeEtape(1)), 1},
};

TEST_F(ClsJeuParamTest, ChaqueCleSeLitSelonSonGenre) {
    for (const Lecture& l : Lectures) regles.Modifier(l.Cle, l.Valeur);
    Charger_Groupes();
    for (const Lecture& l : Lectures) EXPECT_EQ(l.Lu(), l.Attendu) << l.Cle.Lieu() << "=" << l.Valeur;
}

TEST_F(ClsJeuParamTest, LesGisementsMarquentLeursRessourcesEtLeDernierGagne) {
    regles.Modifier({FichierRessources, "TerrainRessource_10", "TypeRessource"}, "3");   // a second forest
    Charger_Groupes(2);
    EXPECT_EQ(Param.Ressources_TypeTerrainRessource(0), 0);
    EXPECT_TRUE(Param.Ressources_Recoltable(2));
    EXPECT_EQ(Param.Ressources_TypeTerrainRessource(2), 9);
    EXPECT_FALSE(Param.Ressources_Recoltable(15));   // the wool lost its pasture
    EXPECT_FALSE(Param.Ressources_Recoltable(-1));
    EXPECT_FALSE(Param.Ressources_Recoltable(Param.NombreRessources));
}

TEST_F(ClsJeuParamTest, UnNombreNulDonneUneTableVide) {
    regles.Modifier({FichierRessources, "Ressources", "NombreRessources"}, "0");
    regles.Modifier({FichierRessources, "Terrain_Ressources", "NombreTerrainRessource"}, "0");
    Charger_Groupes(3);
    EXPECT_EQ(Param.NombreRessources, 0);
    EXPECT_EQ(Param.NombreTerrainRessource, 0);
    EXPECT_FALSE(Param.Ressources_Recoltable(0));
    EXPECT_GT(Param.NombreTypeBatiments, 0);   // later groups still load
}

// Objects 1 to 6 are made by the joiner's workshop, of the second epoch.
TEST_F(ClsJeuParamTest, LEpoqueDUnObjetSuitSonAtelierEtSesIngredients) {
    regles.Modifier({FichierObjets, "Objet_5", "Epoque"}, "1");
    regles.Modifier({FichierObjets, "Objet_1", "PrixRessources(8)"}, "1");   // gold, of the fourth epoch
    regles.Modifier({FichierObjets, "Objet_2", "Epoque"}, "5");
    regles.Modifier({FichierObjets, "Objet_6", "Secret"}, "1");
    regles.Modifier({FichierObjets, "Objet_49", "Secret"}, "0");
    regles.Modifier({FichierObjets, "Objet_49", "Epoque"}, "3");
    Charger_Groupes(4);
    EXPECT_EQ(Param.Objet_Epoque(4), 2);    // raised to its workshop's
    EXPECT_EQ(Param.Objet_Epoque(0), 4);    // and past it, to its ingredient's
    EXPECT_EQ(Param.Objet_Epoque(1), 5);    // never lowered
    EXPECT_EQ(Param.Objet_Epoque(5), -1);   // secret, whatever makes it
    EXPECT_EQ(Param.Objet_Epoque(48), 3);   // neither workshop nor ingredient: as written
}

TEST_F(ClsJeuParamTest, LaMatierePremiereDUnBatimentSelonSonGenre) {
    Charger_Groupes(4);
    EXPECT_EQ(Param.Batiment_TypeMatierePremiere(0), -1);   // berries need nothing
    EXPECT_EQ(Param.Batiment_TypeMatierePremiere(7), 2);    // planks need wood
    EXPECT_EQ(Param.Batiment_TypeMatierePremiere(14), 12);   // the temple's service, as written
    // The joiner draws among the ingredients of its objects: wood, planks and wool.
    Definir_Graine(12345);
    std::set<int> reponses;
    for (int i = 0; i < 2000; ++i) reponses.insert(Param.Batiment_TypeMatierePremiere(12));
    EXPECT_EQ(reponses, (std::set<int>{2, 8, 15}));
}

}  // namespace

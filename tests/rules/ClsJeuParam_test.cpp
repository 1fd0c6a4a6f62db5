// The rule book loaded from a small hand-written game folder: each key lands in its field
// with its conversion, and the links and corrections made while loading hold.
#include <gtest/gtest.h>

#include <set>

#include "ClsJeuParamRegles.h"
#include "rules/ClsJeuParam.h"
#include "rules/Hasard.h"

namespace {

class ClsJeuParamTest : public ::testing::Test {
protected:
    void SetUp() override {
        Param.Reinitialiser();
        Ecrire_Regles(dossier);
    }
    void TearDown() override { Param.Reinitialiser(); }

    DossierTemporaire dossier;
};

TEST_F(ClsJeuParamTest, ChargeLesPersonnagesEtLesCompetencesSpeciales) {
    Param.Init(0);
    EXPECT_DOUBLE_EQ(Param.CoefficientAchat, 1.5);
    EXPECT_EQ(Param.PersosNombreApparences, 4);
    EXPECT_EQ(Param.PersosMaxVie, 100);
    EXPECT_EQ(Param.PersosMaxEnergie, 90);
    EXPECT_EQ(Param.PersosMaxMagie, 80);
    EXPECT_EQ(Param.PersosMaxMoral, 70);
    EXPECT_EQ(Param.PersosNiveauSpecialesDepart, 11);
    EXPECT_EQ(Param.PersosNiveauServicesDepart, 12);
    EXPECT_EQ(Param.PersosNiveauObjetsDepart, 13);
    EXPECT_EQ(Param.PersosMaxRessources, 20);
    EXPECT_EQ(Param.PersosAttaque, 5);
    EXPECT_EQ(Param.PersosPorteeAttaque, 30);
    EXPECT_EQ(Param.PersosDefense, 6);
    EXPECT_EQ(Param.PersosVitesse, 3);
    EXPECT_EQ(Param.PersosNombreObjetsEquipes, 7);
    EXPECT_EQ(Param.PersosNombreObjetsInventaire, 8);
    ASSERT_EQ(Param.NombreCompetencesSpeciales, 2);
    EXPECT_EQ(Param.Speciales_NomCompetences(0), "Marchandage");
    EXPECT_EQ(Param.Speciales_NomCompetences(1), "Commandement");   // bracketed key accepted
}

TEST_F(ClsJeuParamTest, ChargeLesChateauxEtLesEpoques) {
    Param.Init(1);
    EXPECT_EQ(Param.ChateauxMaxVie, 500);
    EXPECT_EQ(Param.ChateauxLargeur, 96);
    EXPECT_EQ(Param.ChateauxHauteur, 80);
    ASSERT_EQ(Param.NombreEpoques, 3);
    EXPECT_EQ(Param.Epoque_Nom(0), "Âge du bois");
    EXPECT_EQ(Param.Epoque_BonusVieChateau(0), "50");
    EXPECT_EQ(Param.Epoque_BonusVieChateau(1), "-10");
    EXPECT_DOUBLE_EQ(Param.Epoque_ChateauxRessourcesDepart(0), 100);
    EXPECT_DOUBLE_EQ(Param.Epoque_PersosRessourcesDepart(0), 5);
    EXPECT_DOUBLE_EQ(Param.Epoque_PersosArgentDepart(0), 20.5);
    // Lenient keys: the leading number, else 0; a missing key is 0.
    EXPECT_DOUBLE_EQ(Param.Epoque_ChateauxRessourcesDepart(1), 12);
    EXPECT_DOUBLE_EQ(Param.Epoque_PersosRessourcesDepart(1), 0);
    EXPECT_DOUBLE_EQ(Param.Epoque_PersosArgentDepart(1), 0);
}

TEST_F(ClsJeuParamTest, ChargeLesRessources) {
    Param.Init(2);
    ASSERT_EQ(Param.NombreRessources, 3);
    EXPECT_EQ(Param.Ressources_Nom(0), "Blé");
    EXPECT_EQ(Param.Ressources_NomCompetence(0), "Agriculture");
    EXPECT_DOUBLE_EQ(Param.Ressources_VitesseExtraction(0), 0.5);
    EXPECT_EQ(Param.Ressources_TypeMatierePremiere(0), -1);   // 0 in the file: none
    EXPECT_EQ(Param.Ressources_TypeMatierePremiere(2), 1);
    EXPECT_DOUBLE_EQ(Param.Ressources_QuantiteMatierePremiere(2), 2);
    EXPECT_DOUBLE_EQ(Param.Ressources_PrixVente(2), 8);
    EXPECT_TRUE(Param.Ressources_Mangeable(0));
    EXPECT_FALSE(Param.Ressources_Mangeable(1));
    EXPECT_DOUBLE_EQ(Param.Ressources_GainVie(0), 3);
    EXPECT_DOUBLE_EQ(Param.Ressources_GainEnergie(0), 1.5);
    EXPECT_DOUBLE_EQ(Param.Ressources_GainMagie(0), 0.25);
    EXPECT_DOUBLE_EQ(Param.Ressources_GainMoral(0), 4);
    EXPECT_FALSE(Param.Ressources_NecessairePourConstruire(0));
    EXPECT_TRUE(Param.Ressources_NecessairePourConstruire(1));
    EXPECT_FALSE(Param.Ressources_NecessairePourConstruire(2));   // "oui" is no number
    EXPECT_DOUBLE_EQ(Param.Ressources_Epoque(0), 0);              // epochs count from 0 here
    EXPECT_DOUBLE_EQ(Param.Ressources_Epoque(2), 1);
    EXPECT_FALSE(Param.Ressources_NecessairePourAttaquer(1));      // until the objects load
}

TEST_F(ClsJeuParamTest, LesGisementsDesignentLeursRessourcesEtLeDernierGagne) {
    Param.Init(2);
    ASSERT_EQ(Param.NombreTerrainRessource, 3);
    EXPECT_EQ(Param.TerrainRessources_Nom(1), "Forêt");
    EXPECT_EQ(Param.TerrainRessources_TypeRessource(0), 0);
    EXPECT_EQ(Param.TerrainRessources_TypeRessource(2), 1);
    EXPECT_DOUBLE_EQ(Param.TerrainRessources_Quantite(1), 500);

    EXPECT_TRUE(Param.Ressources_Recoltable(0));
    EXPECT_EQ(Param.Ressources_TypeTerrainRessource(0), 0);
    EXPECT_TRUE(Param.Ressources_Recoltable(1));
    EXPECT_EQ(Param.Ressources_TypeTerrainRessource(1), 2);   // Bosquet, read after Forêt
    EXPECT_FALSE(Param.Ressources_Recoltable(2));
    EXPECT_FALSE(Param.Ressources_Recoltable(-1));
}

TEST_F(ClsJeuParamTest, ChargeLesBatiments) {
    Charger_Groupes(3);
    ASSERT_EQ(Param.NombreTypeBatiments, 4);
    EXPECT_EQ(Param.Batiment_Nom(0), "Ferme");
    EXPECT_EQ(Param.Batiment_Metier(0, false), "Fermier");
    EXPECT_EQ(Param.Batiment_Metier(0, true), "Fermière");
    EXPECT_EQ(Param.Batiment_Description(0), "Produit du blé.");
    EXPECT_EQ(Param.Batiment_Prix(0, 0), 0);
    EXPECT_EQ(Param.Batiment_Prix(0, 1), 10);
    EXPECT_EQ(Param.Batiment_MaxVie(0), 200);
    EXPECT_EQ(Param.Batiment_RessourceFabrique(0), 0);
    EXPECT_EQ(Param.Batiment_RessourceFabrique(1), -1);
    EXPECT_TRUE(Param.Batiment_Magasin(0));
    EXPECT_FALSE(Param.Batiment_Fabrique(0));
    EXPECT_TRUE(Param.Batiment_Fabrique(1));
    EXPECT_EQ(Param.Batiment_Service(0), 0);
    EXPECT_EQ(Param.Batiment_Service(2), 1);   // a plain number: Services[1]
    EXPECT_DOUBLE_EQ(Param.Batiment_MaxStockVente(0), 50);
    EXPECT_EQ(Param.Batiment_NoEpoque(0), 1);
    EXPECT_EQ(Param.Batiment_Largeur(0), 64);
    EXPECT_EQ(Param.Batiment_Hauteur(0), 48);
    EXPECT_EQ(Param.Batiment_EntreePositionX(0), 30);
    EXPECT_EQ(Param.Batiment_EntreePositionY(0), 40);
    EXPECT_EQ(Param.Batiment_NombreEtapeFabrication(0), 4);
    EXPECT_EQ(Param.Batiment_NombreEtapeAnimation(0), 2);
    EXPECT_EQ(Param.Batiment_ApparencePerso(0), 1);
    EXPECT_EQ(Param.Batiment_NombreObjetsFabriques(0), 0);
    ASSERT_EQ(Param.Batiment_NombreObjetsFabriques(1), 2);
    EXPECT_EQ(Param.Batiment_ObjetFabrique(1, 0), 0);
    EXPECT_EQ(Param.Batiment_ObjetFabrique(1, 1), 1);
}

TEST_F(ClsJeuParamTest, ChargeLesServicesDontCertainsRendentLeurTexte) {
    Charger_Groupes(4);
    ASSERT_EQ(Param.NombreServices, 2);
    EXPECT_EQ(Param.Service_Nom(1), "Soins");
    EXPECT_EQ(Param.Service_Description(1), "Rend la vie.");
    EXPECT_EQ(Param.Service_NomCompetence(1), "Médecine");
    EXPECT_EQ(Param.Service_VitesseCreation(1), "0.25");
    EXPECT_EQ(Param.Service_MatierePremiere(1), "0");   // the plain number, not minus 1
    EXPECT_EQ(Param.Service_MatierePremiere(0), "-1");
    EXPECT_EQ(Param.Service_QuantiteMatierePremiere(1), "1.5");
    EXPECT_EQ(Param.Service_CoefExp(1), "0.1");
    EXPECT_EQ(Param.Service_Effet(1), "1");
    EXPECT_DOUBLE_EQ(Param.Service_Prix(1), 12.5);   // lenient on reading, strict on asking
    EXPECT_DOUBLE_EQ(Param.Service_Prix(0), 0);
    EXPECT_DOUBLE_EQ(Param.Service_Coefficient(1), 2);
}

TEST_F(ClsJeuParamTest, ChargeLesObjetsEtLeursCompetences) {
    Charger_Groupes(4);
    ASSERT_EQ(Param.NombreCompetencesObjets, 1);
    EXPECT_EQ(Param.CompetenceObjet_Numero(0), 7);
    EXPECT_EQ(Param.CompetenceObjet_Nom(0), "Armes");

    ASSERT_EQ(Param.NombreObjets, 5);
    const int o = 0;
    EXPECT_EQ(Param.Objet_Nom(o), "Épée");
    EXPECT_EQ(Param.Objet_NomPluriel(o), "Épées");
    EXPECT_EQ(Param.Objet_Description(o), "Une lame.");
    EXPECT_FALSE(Param.Objet_Secret(o));
    EXPECT_EQ(Param.Objet_Categorie(o), 2);
    EXPECT_EQ(Param.Objet_Competence(o), 0);
    EXPECT_EQ(Param.Objet_PrixRessources(o, 0), 0);
    EXPECT_EQ(Param.Objet_PrixRessources(o, 1), 3);
    EXPECT_EQ(Param.Objet_BonusVie(o), 1);
    EXPECT_EQ(Param.Objet_BonusEnergie(o), 2);
    EXPECT_EQ(Param.Objet_BonusMagie(o), 3);
    EXPECT_EQ(Param.Objet_BonusMoral(o), 4);
    EXPECT_EQ(Param.Objet_BonusAttaque(o), 9);
    EXPECT_EQ(Param.Objet_BonusPorteeAttaque(o), 10);
    EXPECT_EQ(Param.Objet_EffetAttaque(o), 1);
    EXPECT_EQ(Param.Objet_SurfaceAttaque(o), 11);
    EXPECT_EQ(Param.Objet_BonusDefense(o), 12);
    EXPECT_EQ(Param.Objet_BonusDeplacement(o), 13);
    EXPECT_EQ(Param.Objet_BonusCompetencesSpeciales(o, 0), 14);
    EXPECT_EQ(Param.Objet_BonusCompetencesSpeciales(o, 1), 15);
    EXPECT_EQ(Param.Objet_BonusCompetencesRessources(o, 2), 16);
    EXPECT_EQ(Param.Objet_BonusCompetencesServices(o, 0), 17);   // service 1, the first real one
    EXPECT_EQ(Param.Objet_BonusCompetencesObjets(o, 4), 18);
    EXPECT_EQ(Param.Objet_BonusArmure(o), 19);
    EXPECT_EQ(Param.Objet_BonusMaxRessources(o), 21);
    EXPECT_DOUBLE_EQ(Param.Objet_PerteVie(o), 0.5);
    EXPECT_DOUBLE_EQ(Param.Objet_PerteEnergie(o), 1.25);
    EXPECT_DOUBLE_EQ(Param.Objet_PerteMagie(o), 2.5);
    EXPECT_DOUBLE_EQ(Param.Objet_PerteMoral(o), 3.75);
    EXPECT_EQ(Param.Objet_PerteRessourceIndice(o), 1);
    EXPECT_DOUBLE_EQ(Param.Objet_PerteRessourceQuantite(o), 0.5);
    EXPECT_EQ(Param.Objet_ApparencePerso(o), 3);
    EXPECT_TRUE(Param.Objet_Utilisable(o));
    EXPECT_FALSE(Param.Objet_UtilisationUnique(o));
    EXPECT_DOUBLE_EQ(Param.Objet_Experience(o), 6.5);
    EXPECT_EQ(Param.Objet_Invocation(o), -1);
    EXPECT_EQ(Param.Objet_Invocation(2), 1);
    EXPECT_EQ(Param.Objet_Quantite(o), 22);
    EXPECT_DOUBLE_EQ(Param.Objet_GainVie(o), 7);
    EXPECT_DOUBLE_EQ(Param.Objet_GainEnergie(o), 8);
    EXPECT_DOUBLE_EQ(Param.Objet_GainMagie(o), 9);
    EXPECT_DOUBLE_EQ(Param.Objet_GainMoral(o), 10);
    EXPECT_EQ(Param.Objet_Resurrection(o), 23);

    // The sword burns wood on use: wood is now needed for attacking, wheat is not.
    EXPECT_TRUE(Param.Ressources_NecessairePourAttaquer(1));
    EXPECT_FALSE(Param.Ressources_NecessairePourAttaquer(0));
}

TEST_F(ClsJeuParamTest, LEpoqueDUnObjetSuitSonAtelierEtSesIngredients) {
    Charger_Groupes(4);
    EXPECT_EQ(Param.Objet_Epoque(0), 2);    // 1 in the file, raised to its workshop's epoch
    EXPECT_EQ(Param.Objet_Epoque(1), 3);    // never lowered to the workshop's
    EXPECT_EQ(Param.Objet_Epoque(2), 2);    // raised past its ingredient (0-based epoch 1)
    EXPECT_EQ(Param.Objet_Epoque(3), -1);   // secret, whatever makes it
    EXPECT_EQ(Param.Objet_Epoque(4), 2);    // no workshop, no ingredient: as in the file
}

TEST_F(ClsJeuParamTest, UnObjetSecretFabriqueParUnAtelierResteSansEpoque) {
    Remplacer(dossier, "Ini_Parametres_Objets.ini", "Nom=Arc", "Nom=Arc\nSecret=1");
    Charger_Groupes(4);
    EXPECT_EQ(Param.Objet_Epoque(1), -1);
}

TEST_F(ClsJeuParamTest, LesMonstresPrennentLesValeursHumainesParDefaut) {
    Charger_Groupes(5);
    ASSERT_EQ(Param.NombrePeuples, 2);
    EXPECT_EQ(Param.Peuples_Nom(1), "Loups");
    EXPECT_EQ(Param.Peuples_NombreMonstres(1), 2);
    ASSERT_EQ(Param.NombreTotalMonstres, 2);

    EXPECT_EQ(Param.Monstre_Nom(0), "Loup");
    EXPECT_EQ(Param.Monstre_NomPluriel(0), "Loups");
    EXPECT_EQ(Param.Monstre_Vie(0), 100);      // no key: the human maximum
    EXPECT_EQ(Param.Monstre_Energie(0), 90);   // 0: the human maximum
    EXPECT_EQ(Param.Monstre_Magie(0), 15);
    EXPECT_EQ(Param.Monstre_Moral(0), 25);
    EXPECT_EQ(Param.Monstre_Apparence(0), 2);
    EXPECT_EQ(Param.Monstre_Attaque(0), 8);
    EXPECT_EQ(Param.Monstre_PorteeAttaque(0), 20);
    EXPECT_EQ(Param.Monstre_EffetAttaque(0), 0);
    EXPECT_TRUE(Param.Monstre_Kamikaze(0));
    EXPECT_EQ(Param.Monstre_Defense(0), 4);
    EXPECT_EQ(Param.Monstre_Armure(0), 1);
    EXPECT_EQ(Param.Monstre_Vitesse(0), 5);
    EXPECT_DOUBLE_EQ(Param.Monstre_Argent(0), 1.5);
    EXPECT_DOUBLE_EQ(Param.Monstre_Ressource(0, 0), 2.5);
    EXPECT_DOUBLE_EQ(Param.Monstre_Ressource(0, 1), 0);
    EXPECT_DOUBLE_EQ(Param.Monstre_Ressource(0, 2), 1);
    EXPECT_EQ(Param.Monstre_Objet(0, 4), 2);
    EXPECT_TRUE(Param.Monstre_IA_Equiper(0));
    EXPECT_FALSE(Param.Monstre_IA_Manger(0));
    EXPECT_TRUE(Param.Monstre_IA_Pacifique(0));
    EXPECT_FALSE(Param.Monstre_IA_Temeraire(0));
    EXPECT_TRUE(Param.Monstre_IA_Berserk(0));

    // These four answer text, for the caller to convert.
    EXPECT_EQ(Param.Monstre_Peuple(0), "1");
    EXPECT_EQ(Param.Monstre_Parole(0), "0");
    EXPECT_EQ(Param.Monstre_Parole(1), "1");
    EXPECT_EQ(Param.Monstre_Volant(0), "1");
    EXPECT_EQ(Param.Monstre_Grade(1), "1");

    // Tireless: energy and morale 9999 whatever the file says.
    EXPECT_DOUBLE_EQ(Param.Monstre_Infatigable(0), 0.0);
    EXPECT_DOUBLE_EQ(Param.Monstre_Infatigable(1), 1.0);
    EXPECT_EQ(Param.Monstre_Vie(1), 300);
    EXPECT_EQ(Param.Monstre_Energie(1), 9999);
    EXPECT_EQ(Param.Monstre_Moral(1), 9999);
    EXPECT_EQ(Param.Monstre_Magie(1), 80);
}

TEST_F(ClsJeuParamTest, ChargeLesEffetsEtUneDureeNulleDevientUn) {
    Remplacer(dossier, "Ini_Parametres_Effets.ini", "Son=feu.wav", "Son=feu.wav\n[Effet_3]\nNom=Fumée");
    Remplacer(dossier, "Ini_Parametres_Effets.ini", "NombreEffets=2", "NombreEffets=3");
    Param.Init(6);
    ASSERT_EQ(Param.NombreEffets, 3);
    EXPECT_EQ(Param.EffetMaisonEnFeu, 0);
    EXPECT_EQ(Param.EffetMaisonDetruite, 1);
    EXPECT_EQ(Param.EffetChateauDetruit, 1);
    EXPECT_EQ(Param.Effet_Nom(0), "Feu");
    EXPECT_EQ(Param.Effet_Fichier(0), "Flammes");
    EXPECT_EQ(Param.Effet_Largeur(0), 32);
    EXPECT_EQ(Param.Effet_Hauteur(0), 48);
    EXPECT_EQ(Param.Effet_NombreEtapes(0), 8);
    EXPECT_DOUBLE_EQ(Param.Effet_DureeEtape(0), 0.1);
    EXPECT_EQ(Param.Effet_Son(0), "feu.wav");
    EXPECT_DOUBLE_EQ(Param.Effet_DureeEtape(1), 1.0);   // 0 in the file
    EXPECT_DOUBLE_EQ(Param.Effet_DureeEtape(2), 1.0);   // no key
}

TEST_F(ClsJeuParamTest, LesClesSouplesLisentLeDesordreCommeZero) {
    Remplacer(dossier, "Ini_Parametres_Batiments.ini", "Largeur=64", "Largeur=large");
    Remplacer(dossier, "Ini_Parametres_Batiments.ini", "Magasin=1", "Magasin=vrai");
    Remplacer(dossier, "Ini_Parametres_Batiments.ini", "MaxStock=50", "MaxStock=");
    Remplacer(dossier, "Ini_Parametres_Batiments.ini", "RessourceFabrique=1", "RessourceFabrique=blé");
    Remplacer(dossier, "Ini_Parametres_Batiments.ini", "Hauteur=48", "Hauteur= 7 mètres");
    Charger_Groupes(3);
    EXPECT_EQ(Param.Batiment_Largeur(0), 0);
    EXPECT_FALSE(Param.Batiment_Magasin(0));
    EXPECT_DOUBLE_EQ(Param.Batiment_MaxStockVente(0), 0);
    EXPECT_EQ(Param.Batiment_RessourceFabrique(0), -1);   // junk is 0, minus 1
    EXPECT_EQ(Param.Batiment_Hauteur(0), 7);
}

TEST_F(ClsJeuParamTest, UnReelSoupleRangeDansUnEntierSArrondiAuPair) {
    Remplacer(dossier, "Ini_Parametres_Batiments.ini", "Largeur=64", "Largeur=-2.5");
    Remplacer(dossier, "Ini_Parametres_Batiments.ini", "EntreePositionX=30", "EntreePositionX=1.5");
    Remplacer(dossier, "Ini_Parametres_Batiments.ini", "EntreePositionY=40", "EntreePositionY=0.5");
    Charger_Groupes(4);
    EXPECT_EQ(Param.Batiment_Prix(0, 2), 2);       // 2.5
    EXPECT_EQ(Param.Batiment_Niveau(0), 4);        // 3.5
    EXPECT_EQ(Param.Batiment_Largeur(0), -2);      // -2.5
    EXPECT_EQ(Param.Batiment_EntreePositionX(0), 2);
    EXPECT_EQ(Param.Batiment_EntreePositionY(0), 0);
    EXPECT_EQ(Param.Objet_DureeFabrication(0), 4);   // 4.5
    EXPECT_EQ(Param.Objet_PrixVente(0), 6);          // 5.5
}

TEST_F(ClsJeuParamTest, LaMatierePremiereDUnBatimentSelonSonGenre) {
    Charger_Groupes(4);
    EXPECT_EQ(Param.Batiment_TypeMatierePremiere(0), -1);   // wheat needs nothing
    EXPECT_EQ(Param.Batiment_TypeMatierePremiere(3), 1);    // planks need wood
    EXPECT_EQ(Param.Batiment_TypeMatierePremiere(2), 0);    // the Soins service uses wheat

    // The workshop picks among its objects' ingredients, wood (first) about half the time.
    Definir_Graine(12345);
    std::set<int> reponses;
    int bois = 0;
    for (int i = 0; i < 2000; ++i) {
        const int r = Param.Batiment_TypeMatierePremiere(1);
        reponses.insert(r);
        bois += r == 1;
    }
    EXPECT_EQ(reponses, (std::set<int>{1, 2}));
    EXPECT_GT(bois, 850);
    EXPECT_LT(bois, 1150);
}

TEST_F(ClsJeuParamTest, UnAtelierSansIngredientNeDemandeRien) {
    Remplacer(dossier, "Ini_Parametres_Objets.ini", "PrixRessources(2)=3", "");
    Remplacer(dossier, "Ini_Parametres_Objets.ini", "PrixRessources(3)=1", "");
    Charger_Groupes(4);
    EXPECT_EQ(Param.Batiment_TypeMatierePremiere(1), -1);
}

TEST_F(ClsJeuParamTest, UnNombreNulDonneUneTableVide) {
    Remplacer(dossier, "Ini_Parametres_Ressources.ini", "NombreRessources=3", "NombreRessources=0");
    Remplacer(dossier, "Ini_Parametres_Ressources.ini", "NombreTerrainRessource=3", "NombreTerrainRessource=0");
    Remplacer(dossier, "Ini_Parametres_Objets.ini", "PerteRessourceQuantite=0.5", "");   // no wood to burn
    Charger_Groupes(6);
    EXPECT_EQ(Param.NombreRessources, 0);
    EXPECT_EQ(Param.NombreTerrainRessource, 0);
    EXPECT_FALSE(Param.Ressources_Recoltable(0));
    EXPECT_EQ(Param.Batiment_MaxVie(0), 200);        // later groups still load
    EXPECT_EQ(Param.Batiment_TypeMatierePremiere(1), -1);
    EXPECT_EQ(Param.Objet_Epoque(2), 1);             // no ingredient left to raise it
}

TEST_F(ClsJeuParamTest, UnGroupeInconnuNeFaitRienEtReinitialiserVideTout) {
    Charger_Groupes(6);
    Param.Init(7);
    Param.Init(-1);
    EXPECT_EQ(Param.NombreRessources, 3);
    EXPECT_EQ(Param.NombreEffets, 2);

    Param.Reinitialiser();
    EXPECT_EQ(Param.NombreRessources, 0);
    EXPECT_EQ(Param.PersosMaxVie, 0);
    EXPECT_FALSE(Param.Ressources_Recoltable(0));
}

}  // namespace

#include <gtest/gtest.h>

#include "MondeDeTest.h"
#include "rules/ClsFicINI.h"
#include "rules/ClsJeuParam.h"

namespace {

TEST(Demarrage, LesLegendesSuiventLOrdreDuChargement) {
    Reinitialiser_Globales();
    ASSERT_TRUE(Trouver_Dossier_Jeu(std::filesystem::path(KORVALIS_DATA)));
    FenetreMuette fenetre;
    Demarrer_Programme(fenetre);
    const std::vector<std::string> attendues = {
        "Korvalis - chargement",
        "Korvalis - chargement jeu",
        "Korvalis - chargement messages",
        "Korvalis - chargement affichage",
        "Korvalis - chargement périphériques",
        "Korvalis - chargement interface",
        "Korvalis - chargement paramètres (personnages)",
        "Korvalis - chargement paramètres (fiefs)",
        "Korvalis - chargement paramètres (ressources)",
        "Korvalis - chargement paramètres (bâtiments)",
        "Korvalis - chargement paramètres (objets)",
        "Korvalis - chargement paramètres (monstres)",
        "Korvalis - chargement paramètres (effets visuels)",
        "Korvalis - chargement sauvegardes",
        "Korvalis - chargement IAs",
        "Korvalis - chargement fenêtres",
        "Korvalis",
    };
    EXPECT_EQ(fenetre.Titres, attendues);
    EXPECT_FALSE(fenetre.SablierActif);
    EXPECT_EQ(Jeu.Definir_Vitesse(), 40);
    EXPECT_GT(Param.NombreRessources, 0);
}

TEST(Demarrage, UnDossierDeJeuAbsentEstNommeSansPlantage) {
    testing::internal::CaptureStderr();
    EXPECT_FALSE(Trouver_Dossier_Jeu(std::filesystem::path("/nulle/part/korvalis")));
    EXPECT_NE(testing::internal::GetCapturedStderr().find("/nulle/part/korvalis"), std::string::npos);
}

TEST(RythmeDuJeu, UnRythmeIlliblePrendLaBorneDuFichierAvecUnAvertissement) {
    DossierTemporaire dossier;
    dossier.Ecrire("Ini_Jeu.ini", "[Vitesse]\nFPS=vite\nFPSMin=15\nFPSMax=60\nVitesse=0\nVitesseMin=x\nVitesseMax=50\n");
    ClsJeu jeu;
    testing::internal::CaptureStderr();
    jeu.Charger();
    const std::string avertissements = testing::internal::GetCapturedStderr();
    EXPECT_EQ(jeu.Definir_FPS(), 15);
    EXPECT_EQ(jeu.Definir_Vitesse(), 1);   // no usable lower bound: the slowest pace
    EXPECT_NE(avertissements.find("FPS"), std::string::npos);
    EXPECT_NE(avertissements.find("Vitesse"), std::string::npos);
}

TEST(RythmeDuJeu, DefinirVitesseRegleLesDeuxRythmesEtLesEcrit) {
    DossierTemporaire dossier;
    dossier.Ecrire("Ini_Jeu.ini", "; allure\n[Vitesse]\nFPS=40\nFPSMin=10\nFPSMax=100\nVitesse=40.5\nVitesseMin=10\nVitesseMax=100\n");
    ClsJeu jeu;
    jeu.Charger();
    EXPECT_EQ(jeu.Definir_Vitesse(), 40);   // lenient reading rounds ties to even
    jeu.Definir_Vitesse(25);
    EXPECT_EQ(jeu.Definir_FPS(), 25);
    ClsJeu relu;
    relu.Charger();
    EXPECT_EQ(relu.Definir_FPS(), 25);
    EXPECT_EQ(relu.Definir_Vitesse(), 25);
    EXPECT_EQ(dossier.Lire("Ini_Jeu.ini").rfind("; allure\n", 0), 0u);
}

}  // namespace

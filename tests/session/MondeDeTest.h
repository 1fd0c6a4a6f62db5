// A small world set-up shared by the session tests: a fresh process state with the default
// rules, a game folder with "Ini_Jeu" at 40/40, and the active hero of the dialog.
#pragma once

#include <gtest/gtest.h>

#include "Support.h"
#include "rules/Chemins.h"
#include "rules/ClsJeuParam.h"
#include "rules/Horloge.h"
#include "session/ChoixPartie.h"
#include "session/ModMain.h"
#include "session/Simulation.h"
#include "world/Globales.h"

class MondeDeTest : public ::testing::Test {
protected:
    DossierTemporaire dossier;

    void SetUp() override {
        Reinitialiser_Globales();
        Definir_Dossier_Jeu(KORVALIS_DATA);
        for (int groupe = 0; groupe < 7; ++groupe) Param.Init(groupe);
        Definir_Dossier_Jeu(dossier.Chemin());
        Piloter_Horloge(0);
        dossier.Ecrire("Ini_Jeu.ini", "[Vitesse]\nFPS=40\nFPSMin=10\nFPSMax=100\nVitesse=40\nVitesseMin=10\nVitesseMax=100\n");
        Jeu.Charger();
        Creer_Heros_Actif();
    }

    static ChoixPartie Nouveau_Monde(std::initializer_list<ChoixFief> fiefs, int32_t gisements = 10) {
        ChoixPartie choix;
        choix.Page = PageNouveauMonde;
        choix.Largeur = 100;
        choix.Hauteur = 80;
        choix.Gisements = gisements;
        choix.Fiefs = fiefs;
        return choix;
    }

    static ChoixPartie Bataille(int32_t n0, int32_t n1) {
        ChoixPartie choix;
        choix.Page = PageNouvelleBataille;
        choix.Largeur = 160;
        choix.Hauteur = 120;
        choix.Armees[0] = {0, 0, n0};
        choix.Armees[1] = {1, 0, n1};
        return choix;
    }
};

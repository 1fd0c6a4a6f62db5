// A small world for the tests of buildings and fiefs: the rule files of the rule book's tests,
// adjusted so that the numbers read plainly, two fiefs with their castles, and three
// characters of fief 0 with their house slots.
//
// Adjusted rules: starting special level 20 and four special competences (0 building, 3
// bargaining); epoch bonuses 50, 20, 30 on a castle of 500; Blé (resource 0) belongs to
// the second epoch, Bois to the first, Planches to the second; Ferme costs 10 Bois and 4
// Planches; service 1 (resurrection, effect 1) costs 10 and brings back half the health;
// service 2 (the bounty) costs 4 and plays no effect.
#pragma once

#include <gtest/gtest.h>

#include "../rules/ClsJeuParamRegles.h"
#include "rules/ClsJeuParam.h"
#include "world/Globales.h"

// Building types and resources of these rules.
inline constexpr int16_t Ferme = 0, Atelier = 1, Temple = 2, Scierie = 3;
inline constexpr int Ble = 0, Bois = 1, Planches = 2;

class MondeRegles : public ::testing::Test {
protected:
    DossierTemporaire dossier;

    void SetUp() override {
        Reinitialiser_Monde();
        Param.Reinitialiser();
        Ecrire_Regles(dossier);
        Remplacer(dossier, "Ini_Parametres_Persos.ini", "PersosNiveauSpecialesDepart=11", "PersosNiveauSpecialesDepart=20");
        Remplacer(dossier, "Ini_Parametres_Persos.ini", "NombreCompetencesSpeciales=2", "NombreCompetencesSpeciales=4");
        Remplacer(dossier, "Ini_Parametres_Fiefs.ini", "BonusVieChateau=-10", "BonusVieChateau=20");
        Remplacer(dossier, "Ini_Parametres_Fiefs.ini", "BonusVieChateau=0", "BonusVieChateau=30");
        Remplacer(dossier, "Ini_Parametres_Ressources.ini", "Epoque=1", "Epoque=2");   // Blé
        Remplacer(dossier, "Ini_Parametres_Batiments.ini", "PrixRessources(3)=2.5", "PrixRessources(3)=4");
        Remplacer(dossier, "Ini_Parametres_Objets.ini", "NombreServices=2", "NombreServices=3");
        Remplacer(dossier, "Ini_Parametres_Objets.ini", "Prix=12.5xyz", "Prix=10");
        Remplacer(dossier, "Ini_Parametres_Objets.ini", "Coefficient=2", "Coefficient=0.5");
        Remplacer(dossier, "Ini_Parametres_Objets.ini", "[CompetencesObjets]",
                  "[Service_3]\nNom=Prime\nPrix=4\nEffet=-1\nCoefExp=0.5\n[CompetencesObjets]");
        Charger_Groupes();

        Fiefs.assign(2, ClsJeuFief{});
        Chateaux.assign(2, ClsJeuBatiment{});
        for (std::size_t f = 0; f < Fiefs.size(); ++f) {
            Fiefs[f].Init(Param);
            Fiefs[f].Equipe = static_cast<int32_t>(f);
            Chateaux[f].Numero = static_cast<int32_t>(f);
        }
        const std::size_t n = 3;
        Persos.assign(n, ClsJeuPerso{});
        Maisons.assign(n, ClsJeuBatiment{});
        EffetsPersos.assign(n, ClsJeuEffet{});
        EffetsMaisons.assign(n, ClsJeuEffet{});
        for (std::size_t i = 0; i < n; ++i) {
            Persos[i].Init(static_cast<int32_t>(i), Param);
            Maisons[i].Numero = static_cast<int32_t>(i);
            Fiefs[0].NombreSujets++;
        }
    }

    void TearDown() override {
        Reinitialiser_Monde();
        Param.Reinitialiser();
    }

    // A character carrying the given quantities of Blé, Bois and Planches.
    static ClsJeuPerso& Perso(std::size_t i, double ble = 0, double bois = 0, double planches = 0) {
        ClsJeuPerso& p = Persos[i];
        p.Definir_Ressources(Ble, ble);
        p.Definir_Ressources(Bois, bois);
        p.Definir_Ressources(Planches, planches);
        return p;
    }

    static void Niveau_Special(ClsJeuPerso& p, int k, int32_t niveau) {
        p.CompetencesSpeciales[static_cast<std::size_t>(k)].Valeur = niveau;
        p.CompetencesSpeciales[static_cast<std::size_t>(k)].Effectif = niveau;
    }

    // House slot i built by its owner, of the given type and health (MaxVie finishes it).
    static ClsJeuBatiment& Maison(std::size_t i, int16_t type, double vie = -1) {
        ClsJeuPerso& p = Perso(i, 20, 20, 20);
        ClsJeuBatiment& m = Maisons[i];
        m.Creer(100, 200, type, p, Param);
        if (vie >= 0) m.Definir_Vie(vie);
        return m;
    }
};

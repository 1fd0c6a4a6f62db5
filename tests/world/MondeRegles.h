// A small world on a copy of the default rules, for the tests of buildings and fiefs: two
// fiefs with their castles, and three characters of fief 0 with their house slots.
//
// What the tests count on in the default rules: special skills start at level 10 (skill 0
// builds, skill 3 bargains); buying costs 1.5 times the selling price; 20 of each resource
// can be carried. The bakery costs 16 Bois and 18 Pierre, has 4000 health, sells Pain (8
// apiece) from a store of 40 and draws 4 stages and 4 frames; the berry hut costs 14 Bois;
// the joiner makes 6 objects; the temple's service 1 brings the dead back for 40; the
// barracks' service 2 cashes bounties. Bois sells for 2, Planches for 8. A castle has 4000
// health plus 1000, 2000, 3000 … for each epoch reached, over 5 epochs.
#pragma once

#include <gtest/gtest.h>

#include "../rules/ClsJeuParamRegles.h"
#include "world/Globales.h"

// Building types and resources of the default rules.
inline constexpr int16_t Hutte = 0, Boulangerie = 8, Menuisier = 12, Temple = 14, Caserne = 20;
inline constexpr int Bois = 2, Pierre = 3, Planches = 8, Pain = 9;

class MondeRegles : public ::testing::Test {
protected:
    ReglesCopiees regles;

    void SetUp() override {
        Reinitialiser_Monde();
        Param.Reinitialiser();
        Charger_Groupes();
        Fiefs.assign(2, ClsJeuFief{});
        Chateaux.assign(2, ClsJeuBatiment{});
        for (ClsJeuFief& f : Fiefs) f.Init(Param);
        const std::size_t n = 3;
        Persos.assign(n, ClsJeuPerso{});
        Maisons.assign(n, ClsJeuBatiment{});
        EffetsMaisons.assign(n, ClsJeuEffet{});
        for (std::size_t i = 0; i < n; ++i) {
            Persos[i].Init(static_cast<int32_t>(i), Param);
            Maisons[i].Numero = static_cast<int32_t>(i);
        }
        Fiefs[0].NombreSujets = static_cast<int32_t>(n);
    }

    void TearDown() override {
        Reinitialiser_Monde();
        Param.Reinitialiser();
    }

    // A character carrying the given quantities of Bois, Pierre and Pain.
    static ClsJeuPerso& Perso(std::size_t i, double bois = 0, double pierre = 0, double pain = 0) {
        ClsJeuPerso& p = Persos[i];
        p.Definir_Ressources(Bois, bois);
        p.Definir_Ressources(Pierre, pierre);
        p.Definir_Ressources(Pain, pain);
        return p;
    }

    static void Niveau_Special(ClsJeuPerso& p, int k, int32_t niveau) {
        p.CompetencesSpeciales[static_cast<std::size_t>(k)].Valeur = niveau;
        p.CompetencesSpeciales[static_cast<std::size_t>(k)].Effectif = niveau;
    }

    // House slot i built by its owner, of the given type, under construction or finished.
    static ClsJeuBatiment& Maison(std::size_t i, int16_t type, bool termine = false) {
        ClsJeuBatiment& m = Maisons[i];
        m.Creer(100, 200, type, Perso(i, 20, 20), Param);
        if (termine) m.Definir_Vie(m.MaxVie);
        return m;
    }
};

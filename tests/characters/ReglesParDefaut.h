// The default rule book of the game folder, and a tiny world of one fief around it.
#pragma once

#include <gtest/gtest.h>

#include "rules/Chemins.h"
#include "rules/ClsJeuParam.h"
#include "rules/Hasard.h"
#include "world/Globales.h"

class ReglesParDefaut : public ::testing::Test {
protected:
    void SetUp() override {
        Reinitialiser_Monde();
        Param.Reinitialiser();
        Definir_Dossier_Jeu(KORVALIS_DATA);
        for (int groupe = 0; groupe < 7; ++groupe) Param.Init(groupe);
        Definir_Graine(11);
        Fiefs.assign(1, ClsJeuFief{});
        Fiefs[0].Init(Param);
        Chateaux.assign(1, ClsJeuBatiment{});
    }

    // n fresh humans of fief 0, with their house slots and effect slots.
    void Peupler(int n) {
        Persos.assign(static_cast<std::size_t>(n), ClsJeuPerso{});
        Maisons.assign(static_cast<std::size_t>(n), ClsJeuBatiment{});
        EffetsPersos.assign(static_cast<std::size_t>(n), ClsJeuEffet{});
        EffetsMaisons.assign(static_cast<std::size_t>(n), ClsJeuEffet{});
        for (int i = 0; i < n; ++i) {
            Persos[static_cast<std::size_t>(i)].Init(i, Param);
            Maisons[static_cast<std::size_t>(i)].Numero = i;
        }
        Fiefs[0].NombreSujets = n;
    }

    // The first object type whose category and bonus match.
    template <class Predicat>
    static int16_t Objet_Tel_Que(Predicat predicat) {
        for (int16_t o = 0; o < Param.NombreObjets; ++o)
            if (predicat(o)) return o;
        ADD_FAILURE() << "aucun objet ne convient dans les règles par défaut";
        return 0;
    }
};

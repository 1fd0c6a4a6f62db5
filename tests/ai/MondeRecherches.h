// A world on the default rules for the searches: fiefs, castles, characters and houses by hand.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>

#include "../characters/ReglesParDefaut.h"
#include "ai/TablesIA.h"
#include "rules/ClsJeuParam.h"
#include "world/Globales.h"

class MondeRecherches : public ReglesParDefaut {
protected:
    // 200 × 200 tiles, fief f of team equipes[f], castles far off, n characters of fief 0 at (0, 0).
    void Creer_Monde(int32_t n, std::initializer_list<int32_t> equipes = {0, 1}) {
        Monde.Largeur = Monde.Hauteur = 200;
        const ClsJeuFief modele = Fiefs[0];
        Fiefs.assign(equipes.size(), modele);
        Chateaux.assign(equipes.size(), ClsJeuBatiment{});
        std::size_t f = 0;
        for (int32_t e : equipes) {
            Fiefs[f].Equipe = e;
            Chateaux[f].PositionX = Chateaux[f].PositionY = 3000;
            ++f;
        }
        Peupler(n);
        Dimensionner_Tables_IA(0);   // the tables keep their entries from one game to the next
        Initialiser_IA();
    }

    static ClsJeuPerso& P(int32_t k) { return Persos[static_cast<std::size_t>(k)]; }
    static ClsJeuBatiment& M(int32_t k) { return Maisons[static_cast<std::size_t>(k)]; }

    // Character k of fief f (and of that fief's team) at (x, y), in the open.
    static ClsJeuPerso& Placer(int32_t k, int32_t x, int32_t y, int32_t f = 0) {
        ClsJeuPerso& p = P(k);
        p.PositionX = x;
        p.PositionY = y;
        p.Fief = f;
        p.Equipe = Fiefs[static_cast<std::size_t>(f)].Equipe;
        return p;
    }

    // House k of the type at (x, y), raised by its owner, finished and holding `stock`.
    static ClsJeuBatiment& Batir(int32_t k, int16_t type, int32_t x, int32_t y, double stock = 5) {
        ClsJeuBatiment& m = M(k);
        m.Creer(x, y, type, P(k), Param);
        m.Definir_Vie(m.MaxVie);
        m.MaxStock = 100;
        m.Definir_Stock(stock);
        return m;
    }

    // The first building type for which the predicate holds.
    template <class Predicat>
    static int16_t Type_Tel_Que(Predicat predicat) {
        for (int16_t t = 0; t < Param.NombreTypeBatiments; ++t)
            if (predicat(t)) return t;
        ADD_FAILURE() << "aucun type de bâtiment ne convient dans les règles par défaut";
        return 0;
    }
    // A shop of food that gives to gauge `besoin` (1 health … 4 morale).
    static int16_t Type_Nourrissant(int16_t besoin) {
        return Type_Tel_Que([besoin](int16_t t) {
            const int32_t r = Param.Batiment_RessourceFabrique(t);
            if (r < 0 || !(Param.Batiment_Magasin(t) || Param.Batiment_Fabrique(t))) return false;
            const double gains[] = {Param.Ressources_GainVie(r), Param.Ressources_GainEnergie(r),
                                    Param.Ressources_GainMagie(r), Param.Ressources_GainMoral(r)};
            return gains[besoin - 1] > 0;
        });
    }
};

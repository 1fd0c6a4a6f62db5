// Characters of fief 0 driven by the AI at the centre of a 100 × 80 map. Default rules: Baies
// heal; the temple resurrects; people 1 are wolves, people 2 goblins (chief: monster 6).
#pragma once

#include <cstddef>

#include "../characters/ReglesParDefaut.h"
#include "ai/TablesIA.h"
#include "world/Globales.h"

// Objects of the default rules.
inline constexpr int16_t Baton = 0, Gourdin = 1, ArcCourt = 2, BouclierBois = 3, CanneAPeche = 5, Tunique = 6,
                         Bonnet = 8, RobeDeBure = 9, EpeeCourte = 12, HacheBucheron = 14, Pioche = 15,
                         CotteDeMailles = 21, FioleDeSoins = 30, BaguetteDeSoins = 38;
inline constexpr int16_t Temple = 14;
inline constexpr int Baies = 0;

class Pensee : public ReglesParDefaut {
protected:
    static constexpr int32_t Centre = 800;

    void SetUp() override {
        ReglesParDefaut::SetUp();
        Monde.Largeur = 100;
        Monde.Hauteur = 80;
        Peupler_Auto(3);
    }

    // n characters of fief 0 at the centre of the map, driven by the AI, its tables fresh.
    void Peupler_Auto(int n) {
        Peupler(n);
        EffetsMaisons.assign(static_cast<std::size_t>(n), ClsJeuEffet{});
        for (ClsJeuPerso& p : Persos) {
            p.ModeAuto = true;
            p.PositionX = p.DestinationX = Centre;
            p.PositionY = p.DestinationY = Centre;
        }
        Initialiser_IA();
    }

    static ClsJeuPerso& P(int32_t i) { return Persos[static_cast<std::size_t>(i)]; }

    static void Chateau_Debout() {
        ClsJeuBatiment& c = Chateaux[0];
        c.PositionX = Centre + 200;
        c.PositionY = Centre;
        c.MaxVie = Param.ChateauxMaxVie;
        c.Definir_Vie(c.MaxVie);
    }

    // House slot k finished, at (x, y), with one unit in stock.
    static ClsJeuBatiment& Maison_Terminee(int32_t k, int16_t type, int32_t x, int32_t y) {
        ClsJeuBatiment& m = Maisons[static_cast<std::size_t>(k)];
        m.Creer(x, y, type, P(k), Param);
        m.Definir_Vie(m.MaxVie);
        m.Stock = 1;
        return m;
    }

    // Character i turned into monster m of people peuple, goods of its rules included.
    static ClsJeuPerso& Monstre(int32_t i, int16_t peuple, int16_t m) {
        P(i).Changer_Race(peuple, Param, 0, m, false);
        return P(i);
    }

    // Character i put in the next fief, of team 1; the fief and its castle slot are added.
    static ClsJeuPerso& Ennemi(int32_t i) {
        if (Fiefs.size() < 2) {
            Fiefs.push_back(Fiefs[0]);
            Fiefs[1].Equipe = 1;
            Chateaux.resize(2);
        }
        P(i).Fief = 1;
        P(i).Equipe = 1;
        return P(i);
    }

    static void Blesser(ClsJeuPerso& p) { p.Vie.Valeur = p.Vie.Max / 4.0; }
};

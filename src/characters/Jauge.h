// A gauge of a character (health, energy, magic, morale, attack, defence) with its
// maximum without objects, its effective maximum, the reserve still to flow in, and the
// experience and level counters that make it grow.
#pragma once

#include <cstdint>

#include "rules/Empreinte.h"

struct Jauge {
    double Valeur = 0;
    int32_t MaxBase = 0;     // maximum without objects; +1 per level
    int32_t Max = 0;         // effective maximum, with objects
    double Reserve = 0;      // still to be received (the first four gauges)
    double Exp = 0;
    int32_t Niveau = 0;      // levels gained
    double SeuilBas = 0, SeuilHaut = 0;

    int32_t Bonus() const { return Max - MaxBase; }
    // How far through its level the gauge is, from 0 to 1.
    double Progression() const { return (Exp - SeuilBas) / (SeuilHaut - SeuilBas); }

    void Empreindre(Empreinte& e) const {
        e.Ajouter(Valeur);
        e.Ajouter(MaxBase);
        e.Ajouter(Max);
        e.Ajouter(Reserve);
        e.Ajouter(Exp);
        e.Ajouter(Niveau);
        e.Ajouter(SeuilBas);
        e.Ajouter(SeuilHaut);
    }
};

// One entry of a competence table. Valeur is the base level (for a resource, the carrying
// capacity), Compte the levels gained, Effectif the level with objects.
struct Competence {
    int32_t Valeur = 0;
    int32_t Compte = 0;
    int32_t Effectif = 0;
    double Exp = 0;
    double SeuilBas = 0, SeuilHaut = 0;

    double Progression() const { return (Exp - SeuilBas) / (SeuilHaut - SeuilBas); }
    // The level without objects. A resource's Valeur is a load, so its level is the
    // levels gained.
    int32_t Base(bool ressource) const { return ressource ? Compte : Valeur; }
    bool Bonus(bool ressource) const { return Effectif > Base(ressource); }

    void Empreindre(Empreinte& e) const {
        e.Ajouter(Valeur);
        e.Ajouter(Compte);
        e.Ajouter(Effectif);
        e.Ajouter(Exp);
        e.Ajouter(SeuilBas);
        e.Ajouter(SeuilHaut);
    }
};

// The kinds of counter of the level rule; each has its own step between thresholds.
enum GenreExperience : int16_t {
    GenreJauge = 0,
    GenreCombat = 1,
    GenreRessource = 2,
    GenreService = 3,
    GenreObjet = 4,
    GenreSpeciale = 5,
};

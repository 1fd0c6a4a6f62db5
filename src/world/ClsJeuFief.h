// A fief: its team, its people, its epoch, its market stock and its head counts. Its castle
// is the building at the same index in Chateaux; its people are the characters whose Fief
// is its index.
//
// The market trades with characters at fixed prices, never refuses (a quantity shrinks to
// what fits) and slowly turns what it has most of into what it lacks. A fief climbs to the
// next epoch when its castle has grown to its new size.
#pragma once

#include <cstdint>
#include <vector>

#include "rules/Empreinte.h"

class ClsJeuParam;
class ClsJeuPerso;
class ClsJeuBatiment;

class ClsJeuFief {
public:
    int32_t Equipe = 0;
    int16_t Peuple = 0;
    int16_t Epoque = 0;          // counts from 0
    bool ChangementEpoque = false;  // the castle is growing towards the next epoch
    int32_t NombreSujets = 0;
    int32_t NombreMorts = 0;
    double TresorRestauration = 0;  // money given towards the castle's repair
    std::vector<double> Ressources;   // market stock, one entry per resource
    int32_t ObjetsFabriques = 0;      // figures: objects its people have finished making

    // Sizes the market stock; the caller fills the rest.
    void Init(const ClsJeuParam& param);

    double Definir_Ressources(int r) const;
    void Definir_Ressources(int r, double quantite);

    // Starts the climb to the next epoch: the castle gets the epoch's bonus of health.
    void Changer_Epoque(ClsJeuBatiment& chateau, const ClsJeuParam& param);
    // The market's step, every tick: 0.02 of the most plentiful resource turns into the
    // scarcest one of the fief's epochs.
    void Transaction_Ressources(const ClsJeuParam& param);
    // A character gives money towards the castle.
    void Restaurer_Chateau(double q, ClsJeuPerso& perso, bool tout);
    // Every tick: given money becomes castle health at 5 money a point, and a climb ends
    // once the castle has taken in all its reserve.
    void Restauration(ClsJeuBatiment& chateau);
    // A character sells whole units of resource r to the market.
    void Vendre(int r, double q, ClsJeuPerso& perso, const ClsJeuParam& param, bool tout);
    // A character buys whole units of resource r from the market.
    void Acheter(int r, double q, ClsJeuPerso& perso, const ClsJeuParam& param, bool tout);

    void Empreindre(Empreinte& e) const;
};

// A castle at the start of a game: the castle's size, and a health of ChateauxMaxVie plus
// the castle bonus of every epoch up to the fief's (for a human fief), full.
void Initialiser_Chateau(ClsJeuBatiment& chateau, const ClsJeuFief& fief, const ClsJeuParam& param);

// The rule book: every table of the game, read once at start-up from the seven
// "Ini_Parametres_" files and then asked through one accessor per column.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class ClsJeuParam {
public:
    int16_t NombreEpoques = 0;
    int16_t NombreRessources = 0;
    int16_t NombrePeuples = 0;

    // Loads one group of tables (0 characters … 6 effects); any other number does nothing.
    void Init(int section);

    double Epoque_ChateauxRessourcesDepart(int e) const;
    double Epoque_PersosRessourcesDepart(int e) const;
    double Epoque_PersosArgentDepart(int e) const;
    double Ressources_Epoque(int r) const;
    bool Ressources_NecessairePourConstruire(int r) const;
};

extern ClsJeuParam Param;

// What a game is made of, as the set-up dialog (or the simulator) chooses it.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

inline constexpr const char* PageNouveauMonde = "NouveauMonde";
inline constexpr const char* PageNouvelleBataille = "NouvelleBataille";
inline constexpr const char* PageChargerMonde = "ChargerMonde";

// One row of fiefs, or one army.
struct ChoixFief {
    int32_t Equipe = 0;    // team, from 0
    int16_t Peuple = 0;    // people, from 0; NombrePeuples or more draws one at random
    int32_t Sujets = 0;    // villagers, or soldiers of an army
};

struct ChoixPartie {
    std::string Page = PageNouveauMonde;   // the session kind
    int32_t Largeur = 0, Hauteur = 0;      // map size in cells
    int32_t Gisements = 0;                 // deposit count: N gives N + 1 deposits
    int16_t Epoque = 0;                    // start epoch, from 0
    std::vector<ChoixFief> Fiefs;          // one per fief of a new world
    std::array<ChoixFief, 2> Armees{};     // the two armies of a battle
    std::string FichierMonde;              // world or scenario file to load
    std::vector<std::string> Heros;        // character files of the other selected heroes
    std::vector<std::string> FichiersIA;   // AI scripts drawn for the villagers of a new world

    int32_t Total_Villageois() const;
};

// The choices remembered in "Ini_Partie", each limited as its slider or list limits it.
ChoixPartie Lire_Ini_Partie();

// Everything that walks on two legs: villagers, heroes, goblins, skeletons, werewolves.
// One description of a look gives a block of a character sheet: three walking steps across,
// four directions down (north, east, south, west), cells of 24 x 32.
#pragma once

#include "Pinceau.h"

inline constexpr int LargeurPerso = 24;
inline constexpr int HauteurPerso = 32;

enum class Gabarit { Petit, Normal, Grand };
enum class Tete { Humaine, Gobeline, Crane, Loup };
enum class Armure { Aucune, Cuir, Mailles, Plaques, Os };
enum class Coiffe { Aucune, Bonnet, Paille, Capuche, Casque, Pointu, Chaperon, Couronne, Voile, Foulard, Cornes, Heaume };
enum class Tenu { Rien, Epee, Hache, Baton, Arc, Lance, Bombe, Dague };

struct Apparence {
    Gabarit gabarit = Gabarit::Normal;
    Tete tete = Tete::Humaine;
    Rampe peau = Pal::Peau;
    Rampe cheveux = Pal::CheveuxBruns;
    bool cheveuxLongs = false;
    bool chauve = false;
    bool barbe = false;
    Rampe haut = Pal::DrapOcre;      // tunic, doublet or robe
    Rampe bas = Pal::DrapBrun;       // trousers
    Rampe chaussures = Pal::Cuir;
    bool jupe = false;               // a dress or a robe to the feet
    bool manchesNues = false;
    bool tablier = false;
    Rampe tablierCouleur = Pal::Cuir;
    bool ceinture = true;
    Rampe ceintureCouleur = Pal::Cuir;
    bool galons = false;             // gold trim on the garment
    bool cape = false;
    Rampe capeCouleur = Pal::DrapRouge;
    Armure armure = Armure::Aucune;
    Coiffe coiffe = Coiffe::Aucune;
    Rampe coiffeCouleur = Pal::DrapBrun;
    bool plumet = false;
    Tenu main = Tenu::Rien;          // held in the hand
    Tenu dos = Tenu::Rien;           // carried on the back
    Couleur yeux = Pal::Encre;
    bool yeuxLuisants = false;       // eyes that glow (undead, beasts)
    bool brasTendus = false;         // arms reaching forward (the walking dead)
    bool griffes = false;
};

// One cell: direction 0 north, 1 east, 2 south, 3 west; pas -1, 0, 1 (the middle is at rest).
Toile Dessiner_Humanoide(const Apparence& a, int direction, int pas);

// A whole block of 72 x 128: columns the steps 0, 1, 2, rows the four directions.
Toile Bloc_Perso(const Apparence& a);
// The same for any drawing of a cell.
template <class F>
Toile Bloc_De(F&& cellule) {
    Toile bloc(3 * LargeurPerso, 4 * HauteurPerso);
    for (int d = 0; d < 4; ++d)
        for (int p = 0; p < 3; ++p) bloc.Coller(cellule(d, p - 1), p * LargeurPerso, d * HauteurPerso);
    return bloc;
}

// The dithered shadow under a character's feet.
void Ombre_Au_Sol(Toile& t, double cx, double cy, double rx, double ry);

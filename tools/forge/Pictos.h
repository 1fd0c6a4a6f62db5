// Small pictures of the resources (berries, fish, logs, bread…), 14 x 14 with their outline,
// chosen by the keywords of the resource's name. Shop signs, deposits and buttons use them.
#pragma once

#include <string>

#include "Pinceau.h"

inline constexpr int TaillePicto = 14;

// The pictogram of a resource by its folded name; a sack when the name says nothing.
Toile Picto_Ressource(const std::string& plie);

// Signs of the interface, 14 x 14 with their outline.
enum class Insigne {
    Maison, Chateau, Epee, Marteau, Croix, Coche, Piece, Drapeau, Torche, Bouclier, Main, Cor, Engrenage,
    Etoile, Personne, Sac, Coffre, Patte, Pain, Cadenas, Crane, Fleche, Enclume, Livre, Casque, Botte, Anneau,
    Collier, Cape,
};
Toile Picto_Insigne(Insigne i);

// Each pixel as a k x k block.
Toile Agrandir(const Toile& t, int k);

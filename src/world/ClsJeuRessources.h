// A deposit lying on the ground at a free position: a forest, a quarry, a shoal of fish.
// It is 32 × 32 metres. Its fields are set at creation or load and stay: harvesting never
// lowers Quantite, so deposits never run out.
#pragma once

#include <cstdint>
#include <string>

#include "rules/Empreinte.h"

class ClsJeuRessources {
public:
    int32_t PositionX = 0;     // top left, world metres
    int32_t PositionY = 0;
    std::string Nom;           // name of its deposit type
    int32_t TypeTerrain = 0;   // row of the deposit table, and of the sprite sheet
    int32_t TypeRessource = 0; // the resource it gives
    double Quantite = 0;       // amount left
    double QuantiteDepart = 0; // amount at the start

    bool Visible() const { return Quantite > 0; }

    void Empreindre(Empreinte& e) const {
        e.Ajouter(PositionX);
        e.Ajouter(PositionY);
        e.Ajouter(Nom);
        e.Ajouter(TypeTerrain);
        e.Ajouter(TypeRessource);
        e.Ajouter(Quantite);
        e.Ajouter(QuantiteDepart);
    }
};

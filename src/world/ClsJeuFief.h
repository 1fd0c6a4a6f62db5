// A fief: its team, its people, its epoch, its market stock and its head counts.
#pragma once

#include <cstdint>
#include <vector>

#include "rules/Empreinte.h"

class ClsJeuParam;

class ClsJeuFief {
public:
    int32_t Equipe = 0;
    int16_t Peuple = 0;
    int16_t Epoque = 0;          // counts from 0
    bool ChangementEpoque = false;
    int32_t NombreSujets = 0;
    int32_t NombreMorts = 0;
    double TresorRestauration = 0;
    std::vector<double> Ressources;   // market stock, one entry per resource

    // Sizes the market stock; the caller fills the rest.
    void Init(const ClsJeuParam& param);

    double Definir_Ressources(int r) const;
    void Definir_Ressources(int r, double quantite);

    void Empreindre(Empreinte& e) const;
};

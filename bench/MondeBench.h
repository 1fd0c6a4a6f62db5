// A one-fief world of n fresh characters on the default rules, for the benchmarks.
#pragma once

#include <cstddef>

#include "rules/Chemins.h"
#include "rules/ClsJeuParam.h"
#include "rules/Hasard.h"
#include "world/Globales.h"

inline void Preparer_Monde_Bench(int n) {
    Reinitialiser_Monde();
    Param.Reinitialiser();
    Definir_Dossier_Jeu(KORVALIS_DATA);
    for (int groupe = 0; groupe < 7; ++groupe) Param.Init(groupe);
    Definir_Graine(1);
    Fiefs.assign(1, ClsJeuFief{});
    Fiefs[0].Init(Param);
    Fiefs[0].NombreSujets = n;
    Chateaux.assign(1, ClsJeuBatiment{});
    Persos.assign(static_cast<std::size_t>(n), ClsJeuPerso{});
    Maisons.assign(static_cast<std::size_t>(n), ClsJeuBatiment{});
    PersoActif = 0;
    for (int i = 0; i < n; ++i) Persos[static_cast<std::size_t>(i)].Init(i, Param);
}

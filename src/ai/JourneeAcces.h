// The records of a villager's day, by the character's number: its record, its house slot,
// its fief, its castle and its wish. Read through the index each time, never kept across a
// call that may grow the arrays.
#pragma once

#include <cstddef>
#include <cstdint>

#include "ai/TablesIA.h"
#include "world/Globales.h"

inline ClsJeuPerso& Le_Perso(int32_t i) { return Persos[static_cast<std::size_t>(i)]; }
inline ClsJeuBatiment& Sa_Maison(int32_t i) { return Maisons[static_cast<std::size_t>(i)]; }
inline ClsJeuFief& Son_Fief(int32_t i) { return Fiefs[static_cast<std::size_t>(Le_Perso(i).Fief)]; }
inline ClsJeuBatiment& Son_Chateau(int32_t i) { return Chateaux[static_cast<std::size_t>(Le_Perso(i).Fief)]; }
inline int16_t& Son_Voulu(int32_t i) { return BatimentVoulu[static_cast<std::size_t>(i)]; }
inline bool Action_Faite(int32_t i) { return ActionFaite[static_cast<std::size_t>(i)] != 0; }

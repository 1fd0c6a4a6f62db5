// The thought of a character: the scheduler gives a few characters one pass each per tick
// through a decision tree chosen by their kind (the dead, monsters, villagers), which gives
// orders or does nothing; between two thoughts a character carries out its order by itself.
#pragma once

#include <cstdint>

// Once a tick: PersosParTrame + 1 thoughts, in turn over every character.
void Executer_IA();
// One thought of character i; nothing for a character under the player's control.
void Penser_Perso(int32_t i);
// Eating, resting and fetching the weapon's resource when a gauge or the stock runs low.
void Gerer_Besoins(int32_t i);
// A well-off character goes to buy objects.
void Gerer_Achats(int32_t i);
// Now and then a whim: wander, stop, go home, rebuild, pick a fight, stock up.
void Humeur_Aleatoire(int32_t i);
// A character tearing down a building turns on the character it last fought.
void Riposter(int32_t i);
// A monster in its lair gets its goods and objects back and heals.
void Ravitailler_Monstre(int32_t i);
// A berserker charges the nearest enemy, castle, house; with none left it drops dead.
void Foncer(int32_t i);
// A few inventory slots a thought: uses what is to be used, wears what is worth more.
void Equiper_Auto(int32_t i);
// At a castle, sells what it holds beyond two of category 0 and one of anything else.
void Vendre_Doublons(int32_t i);

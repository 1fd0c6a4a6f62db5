// Blows. A fighter's Attaque gauge charges by itself and is spent by blows; the target's
// Defense soaks them up. Characters are named by their index in Persos; a building is the
// house or castle struck itself, since nothing here makes the arrays grow.
//
// Comments of these blows go straight to whoever says them, the striker included: only the
// checks of the tick itself (Coup.h) hand their comment back to the frame loop.
#pragma once

#include <cstdint>

class ClsJeuBatiment;

// A blow of attaquant on the character cible: a miss one time in twenty, else damage that
// the defence soaks up, a kill with its spoils, or the victim's answer (strike back, call
// for help, flee). The blow costs the striker what a kill would need, or 20 for a miss.
void Frapper_Perso(int32_t attaquant, int32_t cible);

// The spoils of a kill. actionVictime is what the victim was doing when struck (its death
// has stopped it since): one that was fighting a fellow of the winner's fief other than the
// winner lets that one know. Then a quarter of its purse and of each resource, some of its
// objects, and the bounty of the winner's barracks.
void Prendre_Butin(int32_t vainqueur, int32_t victime, int16_t actionVictime);

// A blow of force at most 20 on a house (chateau < 0, owned by proprietaire) or on castle
// chateau (proprietaire not read). A house still standing is looted and its owner answers;
// a castle's people may rise; a building that falls stops the striker.
void Frapper_Batiment(int32_t attaquant, ClsJeuBatiment& batiment, int32_t proprietaire, int32_t chateau);

// What a blow of force degats takes from a house: its share of the till, of a shop's stock
// and of a workshop's objects.
void Piller_Batiment(int32_t pilleur, ClsJeuBatiment& batiment, double degats);

// An area blow around the striker: every enemy character, house and castle closer than
// rayon takes a blow of the full gauge, which is spent once, even if nothing was in reach.
void Frapper_Zone(int32_t attaquant, double rayon);

// The sprite families the play window draws with. They live as long as the process; the
// session creates them (Creer_Affichages) before a game loads its pictures.
#pragma once

#include "presentation/ClsAffBatiment.h"
#include "presentation/ClsAffEffet.h"
#include "presentation/ClsAffPerso.h"
#include "presentation/ClsAffRessources.h"
#include "presentation/ClsAffSouris.h"
#include "presentation/ClsAffTerrain.h"

extern ClsAffPerso AffPerso;
extern ClsAffTerrain AffTerrain;
extern ClsAffBatiment AffChateaux;
extern ClsAffBatiment AffMaisons;
extern ClsAffRessources AffRessources;
extern ClsAffSouris AffSouris;
extern ClsAffEffet AffEffet;

// Fresh families, in the order the game creates them: the hero folders are counted now.
void Creer_Affichages();
// The pictures of the world: characters, the "Plaine" ground, castles, houses, deposits,
// pointer and effects. A missing picture ends the program with its message.
void Charger_Affichages(const ClsJeuParam& param);
// Every family back to empty, its pictures freed, as at the start of the process.
void Reinitialiser_Affichages();

// The sprite families the play window draws with. They live as long as the process; the
// session creates them (Creer_Affichages) before a game loads its pictures.
#pragma once

#include "affichage/ClsAffBatiment.h"
#include "affichage/ClsAffEffet.h"
#include "affichage/ClsAffPerso.h"
#include "affichage/ClsAffRessources.h"
#include "affichage/ClsAffSouris.h"
#include "affichage/ClsAffTerrain.h"

extern ClsAffPerso AffPerso;
extern ClsAffTerrain AffTerrain;
extern ClsAffBatiment AffChateaux;
extern ClsAffBatiment AffMaisons;
extern ClsAffRessources AffRessources;
extern ClsAffSouris AffSouris;
extern ClsAffEffet AffEffet;

// Fresh families, in the order the game creates them: the hero folders are counted now.
void Creer_Affichages();
// Every family back to empty, its pictures freed, as at the start of the process.
void Reinitialiser_Affichages();

#include "presentation/Affichages.h"

ClsAffPerso AffPerso;
ClsAffTerrain AffTerrain;
ClsAffBatiment AffChateaux;
ClsAffBatiment AffMaisons;
ClsAffRessources AffRessources;
ClsAffSouris AffSouris;
ClsAffEffet AffEffet;

void Reinitialiser_Affichages() {
    AffPerso = ClsAffPerso{};
    AffTerrain = ClsAffTerrain{};
    AffChateaux = ClsAffBatiment{};
    AffMaisons = ClsAffBatiment{};
    AffRessources = ClsAffRessources{};
    AffSouris = ClsAffSouris{};
    AffEffet = ClsAffEffet{};
}

void Creer_Affichages() {
    Reinitialiser_Affichages();
    AffPerso.Initialiser();
}

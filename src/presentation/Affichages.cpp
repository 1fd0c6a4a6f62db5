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

void Charger_Affichages(const ClsJeuParam& param) {
    AffPerso.Charger(param);
    AffTerrain.Charger("Plaine");
    AffChateaux.Charger(ClsAffBatiment::Chateaux, param);
    AffMaisons.Charger(ClsAffBatiment::Maisons, param);
    AffRessources.Charger();
    AffSouris.Charger();
    AffEffet.Charger(param);
}

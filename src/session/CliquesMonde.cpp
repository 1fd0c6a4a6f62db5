// Clicks on the world. A click acts on the pointer's mode as the last render drew it, not
// on what lies under the pointer now, so the player gets what the cursor promised.
#include "ai/TestPoint.h"
#include "presentation/Affichages.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "session/FrmMoteur2D.h"
#include "world/Globales.h"

// The interface's walk over its buttons and windows comes first, and with it the building in
// hand (modes 2 and 3) and the right click's windows and charges; until it is there every
// click falls on the world, and only the left button has something to do there.
void FrmMoteur2D::Cliquer() {
    if (CliqueGauche) Clic_Gauche_Monde();
}

// The active hero goes where the pointer shows: the ground, a deposit, its house, a castle
// or a friendly house, or an enemy to attack.
void FrmMoteur2D::Clic_Gauche_Monde() {
    ClsJeuPerso& heros = Persos[static_cast<std::size_t>(PersoActif)];
    const int32_t c = CibleSousPoint;
    const auto k = static_cast<std::size_t>(c);
    const int32_t largeur = Param.ChateauxLargeur, hauteur = Param.ChateauxHauteur;
    switch (AffSouris.Mode) {
    case PointRien:
        heros.Aller_A(Arrondir_En<int32_t>(SourisX - LargeurPerso / 2.0 + CameraX),
                      Arrondir_En<int32_t>(SourisY - HauteurPerso / 2.0 + CameraY));
        break;
    case PointGisement: heros.Aller_Ressource(Ressources[k], c, LargeurGisement, HauteurGisement); break;
    case PointMaisonAReparer:
    case PointMaisonEntiere: heros.Rentrer_Maison(Maisons[static_cast<std::size_t>(PersoActif)]); break;
    case PointChateauPropre: heros.Rentrer_Chateau(Chateaux[static_cast<std::size_t>(heros.Fief)], largeur, hauteur); break;
    case PointMaisonAmieCommerce: heros.Aller_Maison(Maisons[k]); break;
    case PointChateauAmi: heros.Aller_Chateau(Chateaux[k], c, largeur, hauteur); break;
    case PointEnnemi: heros.Attaquer_Perso(c); break;
    case PointMaisonEnnemie: heros.Attaquer_Maison(c); break;
    case PointChateauEnnemi: heros.Attaquer_Chateau(c); break;
    default: break;
    }
}

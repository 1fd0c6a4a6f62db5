// Fetching what a villager's house and its next building need: the raw material of a
// finished house (harvested, bought at a shop, or at the castle market), and the harvested
// part of the price of the wished building.
#include "ai/Journee.h"
#include "ai/JourneeAcces.h"
#include "ai/OrdresIA.h"
#include "ai/Recherches.h"
#include "rules/ClsJeuParam.h"

namespace {

// Idle or on its way back to the castle, outside other people's houses, with a finished
// house whose raw material m it lacks.
bool Manque_Matiere(int32_t i, int16_t m) {
    const ClsJeuPerso& p = Le_Perso(i);
    return p.Definir_Ressources(m) < 1 && m >= 0 && (p.Inactif() || p.Definir_Action() == 202) && !p.DansMaison &&
           Sa_Maison(i).Termine;
}

// The market has the raw material, the character is not already going into a building,
// its last stay is dealt with, and the castle stands.
bool Au_Marche(int32_t i, int16_t m) {
    return Son_Fief(i).Definir_Ressources(m) > 1 && Le_Perso(i).Definir_Action() != 201 && Action_Faite(i) &&
           Son_Chateau(i).Visible();
}

}  // namespace

void Approvisionner_Maison(int32_t i) {
    const int16_t m = Param.Batiment_TypeMatierePremiere(Sa_Maison(i).Type);
    if (!Manque_Matiere(i, m)) return;
    if (Param.Ressources_Recoltable(m)) {
        Aller_Recolter(i, m);
        return;
    }
    if (Le_Perso(i).Argent <= 1) return;
    int32_t boutique = -1;
    if (Chercher_Maison(i, i, m, 0, 0, boutique))
        Aller_Chez(i, boutique);
    else if (Au_Marche(i, m))
        Aller_Au_Chateau(i);
}

// The first harvested resource of the wished building's price that is short.
void Recolter_Pour_Batiment(int32_t i) {
    const int16_t voulu = Son_Voulu(i);
    if (voulu < 0) return;
    for (int r = 0; r < Param.NombreRessources; ++r)
        if (Param.Batiment_Prix(voulu, r) > Le_Perso(i).Definir_Ressources(r) && Param.Ressources_Recoltable(r)) {
            Aller_Recolter(i, r);
            return;
        }
}

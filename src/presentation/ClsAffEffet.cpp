#include "presentation/ClsAffEffet.h"

#include <algorithm>

#include "presentation/Cellule.h"
#include "rules/ClsJeuParam.h"

void ClsAffEffet::Charger(const ClsJeuParam& param) {
    Effets.clear();
    Effets.resize(static_cast<std::size_t>(std::max<int>(param.NombreEffets, 0)));
    for (int e = 0; e < param.NombreEffets; ++e) {
        Effet& f = Effets[static_cast<std::size_t>(e)];
        f.sprite.Charger("Effets/" + param.Effet_Fichier(e));
        f.largeur = param.Effet_Largeur(e);
        f.hauteur = param.Effet_Hauteur(e);
        f.nombreEtapes = param.Effet_NombreEtapes(e);
        f.dureeEtape = param.Effet_DureeEtape(e);
        f.son = param.Effet_Son(e);
    }
}

Rectangle ClsAffEffet::Cellule(int32_t etape, int32_t largeur, int32_t hauteur) { return Cellule_En_Ligne(etape, largeur, hauteur); }

void ClsAffEffet::Afficher(int32_t effet, int32_t etape, int32_t x, int32_t y, Surface& surface) {
    if (effet < 0 || effet >= static_cast<int32_t>(Effets.size())) return;
    Effet& f = Effets[static_cast<std::size_t>(effet)];
    Afficher_Cellule(f.sprite, Cellule(etape, f.largeur, f.hauteur), x, y, surface, true);
}

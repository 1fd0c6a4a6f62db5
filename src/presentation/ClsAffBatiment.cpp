#include "presentation/ClsAffBatiment.h"

#include <algorithm>
#include <cstdio>

#include "presentation/Cellule.h"
#include "rules/ClsJeuParam.h"

std::string ClsAffBatiment::Chemin_Chateau(int i) {
    char nom[32];
    std::snprintf(nom, sizeof nom, "Batiments/Chateaux-%04d", i + 1);
    return nom;
}

std::string ClsAffBatiment::Chemin_Maison(int i, const ClsJeuParam& param) { return "Batiments/" + param.Batiment_Nom(i); }

void ClsAffBatiment::Charger(int famille, const ClsJeuParam& param) {
    const int n = famille == Chateaux ? param.NombrePeuples : famille == Maisons ? param.NombreTypeBatiments : 0;
    Sprites.clear();
    Sprites.resize(static_cast<std::size_t>(std::max(n, 0)));
    for (int i = 0; i < n; ++i) Sprites[static_cast<std::size_t>(i)].Charger(famille == Chateaux ? Chemin_Chateau(i) : Chemin_Maison(i, param));
}

Rectangle ClsAffBatiment::Cellule(int32_t ligne, int32_t largeur, int32_t hauteur, int32_t colonne) {
    return Cellule_En_Ligne(colonne, largeur, hauteur, ligne);
}

void ClsAffBatiment::Afficher(int32_t x, int32_t y, int32_t sprite, int32_t ligne, Surface& surface, int32_t largeur,
                              int32_t hauteur, int32_t colonne) {
    if (sprite < 0 || sprite >= static_cast<int32_t>(Sprites.size())) return;
    Afficher_Cellule(Sprites[static_cast<std::size_t>(sprite)], Cellule(ligne, largeur, hauteur, colonne), x, y, surface, true);
}

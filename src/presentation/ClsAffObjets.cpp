#include "presentation/ClsAffObjets.h"

#include <algorithm>

#include "rules/ClsJeuParam.h"

void ClsAffObjets::Charger(const ClsJeuParam& param) {
    Sprites.clear();
    Sprites.resize(static_cast<std::size_t>(std::max<int>(param.NombreObjets, 0)));
    for (int o = 0; o < param.NombreObjets; ++o) {
        ClsAffSprite& s = Sprites[static_cast<std::size_t>(o)];
        s.Charger("Objets/" + param.Objet_Nom(o));
        s.Selection(0, Hauteur(), 0, Largeur());
    }
}

// The icons sit inside the windows, never across the screen's edge, so the selection set at
// load is not cut by a draw.
void ClsAffObjets::Afficher(int32_t x, int32_t y, int32_t objet, Surface& surface, bool semiTransparent) {
    if (objet < 0 || objet >= static_cast<int32_t>(Sprites.size())) return;
    Sprites[static_cast<std::size_t>(objet)].Afficher(x, y, surface, true, semiTransparent);
}

// The view of the world: the camera follows the active hero. There is no free scrolling.
#include "platform/ClsPerEcran.h"
#include "rules/Conversions.h"
#include "session/FrmMoteur2D.h"
#include "world/Globales.h"

namespace {

// The hero's position less half the screen, then kept inside the map. The upper limit is
// tested first: on a map smaller than the screen the camera takes that limit, which is
// negative, and the map sits at the bottom right.
int32_t Axe_Camera(int32_t position, int32_t ecran, int32_t cases) {
    const auto camera = Arrondir_En<int32_t>(position - ecran / 2.0);
    const int32_t limite = cases * TailleCase - ecran;
    if (camera > limite) return limite;
    return camera < 0 ? 0 : camera;
}

}  // namespace

// The map's cells are TailleCase metres wide whatever their pictures, so the view needs no
// picture and runs as well without a screen.
void FrmMoteur2D::Centrer_Camera() {
    const ClsJeuPerso& heros = Persos[static_cast<std::size_t>(PersoActif)];
    CameraX = Axe_Camera(heros.PositionX, EcranLargeur, Monde.Largeur);
    CameraY = Axe_Camera(heros.PositionY, EcranHauteur, Monde.Hauteur);
}

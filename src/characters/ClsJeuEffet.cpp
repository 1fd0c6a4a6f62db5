#include "characters/ClsJeuEffet.h"

#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"

namespace {

// Top left of a picture of size `image` centred on a box of size `boite` starting at `debut`.
int32_t Centrer(int32_t debut, int32_t boite, int16_t image) {
    return Arrondir_En<int32_t>((boite - image) / 2.0 + debut);
}

}  // namespace

void ClsJeuEffet::Activer_Effet(int16_t type, int32_t x, int32_t y, int32_t largeur, int32_t hauteur,
                                const ClsJeuParam& param, bool force) {
    // A blow or an object without an effect names none: nothing plays, and nothing is read
    // outside the table.
    if (type < 0 || type >= param.NombreEffets || (Actif && !force)) return;
    Type = type;
    PositionX = Centrer(x, largeur, param.Effet_Largeur(type));
    PositionY = Centrer(y, hauteur, param.Effet_Hauteur(type));
    DureeEtape = param.Effet_DureeEtape(type);
    NombreEtapes = param.Effet_NombreEtapes(type);
    EtapeCourante = 0;
    Actif = true;
}

int16_t ClsJeuEffet::Etape_Effet() {
    const auto etape = Arrondir_En<int16_t>(EtapeCourante);
    EtapeCourante += 1.0 / DureeEtape;
    Actif = EtapeCourante < NombreEtapes;
    return etape;
}

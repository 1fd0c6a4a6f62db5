// One playing slot of a visual effect. Every character owns one (EffetsPersos) and every
// house one (EffetsMaisons), so at most one effect plays over anything and nothing is
// allocated during play. The slot does not draw: it holds where the animation sits and how
// far it has got. Slots are not saved; a loaded world starts with every slot idle.
#pragma once

#include <cstdint>

#include "rules/Empreinte.h"

class ClsJeuParam;

class ClsJeuEffet {
public:
    int16_t Type = 0;              // row of the effects table
    int32_t PositionX = 0;         // top left of the animation, world metres
    int32_t PositionY = 0;
    double DureeEtape = 0;         // drawings per step
    int16_t NombreEtapes = 0;
    double EtapeCourante = 0;      // step reached, with its fraction
    bool Actif = false;

    // Starts effect `type` centred on the box (x, y, largeur, hauteur). A playing slot is
    // left alone unless `force`, which restarts it. A type outside the table (a negative one
    // stands for no effect) changes nothing.
    void Activer_Effet(int16_t type, int32_t x, int32_t y, int32_t largeur, int32_t hauteur,
                       const ClsJeuParam& param, bool force);

    // The step to draw now (rounded, ties to even, so it may equal NombreEtapes, which has no
    // picture), then moves on by one drawing; the slot goes idle once the steps are done.
    int16_t Etape_Effet();

    void Empreindre(Empreinte& e) const {
        e.Ajouter(Type);
        e.Ajouter(PositionX);
        e.Ajouter(PositionY);
        e.Ajouter(DureeEtape);
        e.Ajouter(NombreEtapes);
        e.Ajouter(EtapeCourante);
        e.Ajouter(Actif);
    }
};

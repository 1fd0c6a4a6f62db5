#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"
#include "world/Globales.h"
#include "world/ModGenererMonde.h"

void Placer_Persos() {
    for (std::size_t i = 0; i < Persos.size(); ++i) {
        ClsJeuPerso& p = Persos[i];
        if (p.Fief < 0 || static_cast<std::size_t>(p.Fief) >= Chateaux.size()) continue;
        const ClsJeuBatiment& c = Chateaux[static_cast<std::size_t>(p.Fief)];
        p.PositionX = Arrondir_En<int32_t>(Param.ChateauxLargeur / 2.0 + c.PositionX - LargeurPerso / 2.0);
        p.PositionY = Arrondir_En<int32_t>(Param.ChateauxHauteur / 2.0 + c.PositionY - HauteurPerso / 2.0);
        p.DansSonChateau = true;
        p.DestinationX = p.PositionX;
        p.DestinationY = p.PositionY;
        if (static_cast<int32_t>(i) == PersoActif)
            p.EstActif = true;
        else if (p.Peuple == 0 && Rnd() > 0.5f)
            p.Feminin = true;
    }
}

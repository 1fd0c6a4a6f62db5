#include "world/GestionFiefs.h"

#include "rules/ClsJeuParam.h"
#include "world/Globales.h"

void Gerer_Fiefs() {
    for (std::size_t i = 0; i < Fiefs.size(); ++i) {
        Fiefs[i].Transaction_Ressources(Param);
        Fiefs[i].Restauration(Chateaux[i]);
        Chateaux[i].Restauration();
    }
}

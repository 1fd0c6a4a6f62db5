// Experience shared with worn objects: each equipped object for which `bonus` is above 0
// feeds the object competence that rules it.
#pragma once

#include "characters/ClsJeuPerso.h"
#include "rules/ClsJeuParam.h"

template <class Bonus>
void Partager_Experience_Objets(ClsJeuPerso& p, double gain, const ClsJeuParam& param, Bonus bonus) {
    for (const ClsJeuObjet& o : p.ObjetsEquipes) {
        if (o.Type < 0 || bonus(o.Type) <= 0) continue;
        Competence& c = p.CompetencesObjets[static_cast<std::size_t>(param.Objet_Competence(o.Type))];
        p.Ajouter_Experience(c, gain, GenreObjet);
    }
}

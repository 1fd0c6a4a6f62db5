// Effective values: the base ones plus what is worn, scaled by the wearer's skill.
#include <algorithm>
#include <array>

#include "characters/ClsJeuPerso.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"

namespace {

void Copier_Base(std::vector<Competence>& table, bool ressource) {
    for (Competence& c : table) c.Effectif = c.Base(ressource);
}

// Keeps the fill of a gauge when its maximum changes.
void Reechelonner(Jauge& j, int32_t ancienMax, bool avecReserve) {
    if (ancienMax == 0 || ancienMax == j.Max) return;
    const double facteur = static_cast<double>(j.Max) / ancienMax;
    j.Valeur *= facteur;
    if (avecReserve) j.Reserve *= facteur;
}

}  // namespace

void ClsJeuPerso::Ajuster_Bonus() {
    Vitesse = VitesseBase;
    for (Jauge* j : {&Vie, &Energie, &Magie, &Moral, &Attaque, &Defense}) j->Max = j->MaxBase;
    PorteeAttaque = PorteeAttaqueBase;
    SurfaceAttaque = SurfaceAttaqueBase;
    Armure = ArmureBase;
    Copier_Base(CompetencesSpeciales, false);
    Copier_Base(CompetencesRessources, true);
    Copier_Base(CompetencesServices, false);
    Copier_Base(CompetencesObjets, false);
    BonusMaxRessources = 0;
}

int32_t ClsJeuPerso::Objet_Equipe_BonusSup(int competence, double valeur) const {
    const double niveau = CompetencesObjets[static_cast<std::size_t>(competence)].Effectif;
    return static_cast<int32_t>(Int(niveau * valeur / NiveauObjetsDepart));
}

void ClsJeuPerso::Actualiser_Bonus(const ClsJeuParam& param) {
    Jauge* jauges[] = {&Vie, &Energie, &Magie, &Moral, &Attaque, &Defense};
    std::array<int32_t, 6> anciens{};
    for (std::size_t k = 0; k < 6; ++k) anciens[k] = jauges[k]->Max;

    std::fill(std::begin(SeuilsArme), std::end(SeuilsArme), 0.0);
    PerteRessourceIndice = 0;
    PerteRessourceQuantite = 0;
    Ajuster_Bonus();

    // Objects first raise the object competences, which then scale every other bonus.
    for (const ClsJeuObjet& slot : ObjetsEquipes) {
        if (slot.Type < 0) continue;
        const int16_t o = slot.Type, c = param.Objet_Competence(o);
        for (std::size_t k = 0; k < CompetencesObjets.size(); ++k)
            CompetencesObjets[k].Effectif += Objet_Equipe_BonusSup(c, param.Objet_BonusCompetencesObjets(o, static_cast<int>(k)));
    }
    for (const ClsJeuObjet& slot : ObjetsEquipes) {
        if (slot.Type < 0) continue;
        const int16_t o = slot.Type, c = param.Objet_Competence(o);
        auto sup = [this, c](double valeur) { return Objet_Equipe_BonusSup(c, valeur); };
        Vitesse += sup(param.Objet_BonusDeplacement(o));
        Vie.Max += sup(param.Objet_BonusVie(o));
        Energie.Max += sup(param.Objet_BonusEnergie(o));
        Magie.Max += sup(param.Objet_BonusMagie(o));
        Moral.Max += sup(param.Objet_BonusMoral(o));
        Attaque.Max += sup(param.Objet_BonusAttaque(o));
        Defense.Max += sup(param.Objet_BonusDefense(o));
        PorteeAttaque = static_cast<int16_t>(PorteeAttaque + sup(param.Objet_BonusPorteeAttaque(o)));
        SurfaceAttaque = static_cast<int16_t>(SurfaceAttaque + sup(param.Objet_SurfaceAttaque(o)));
        for (std::size_t k = 0; k < CompetencesSpeciales.size(); ++k)
            CompetencesSpeciales[k].Effectif += sup(param.Objet_BonusCompetencesSpeciales(o, static_cast<int>(k)));
        for (std::size_t k = 0; k < CompetencesRessources.size(); ++k)
            CompetencesRessources[k].Effectif += sup(param.Objet_BonusCompetencesRessources(o, static_cast<int>(k)));
        for (std::size_t k = 0; k < CompetencesServices.size(); ++k)
            CompetencesServices[k].Effectif += sup(param.Objet_BonusCompetencesServices(o, static_cast<int>(k)));
        BonusMaxRessources += sup(param.Objet_BonusMaxRessources(o));

        Armure = static_cast<int16_t>(Armure + param.Objet_BonusArmure(o));
        SeuilsArme[0] += param.Objet_PerteVie(o);
        SeuilsArme[1] += param.Objet_PerteEnergie(o);
        SeuilsArme[2] += param.Objet_PerteMagie(o);
        SeuilsArme[3] += param.Objet_PerteMoral(o);
        PerteRessourceQuantite += param.Objet_PerteRessourceQuantite(o);
        if (param.Objet_PerteRessourceIndice(o) >= 0) PerteRessourceIndice = param.Objet_PerteRessourceIndice(o);
    }

    for (std::size_t k = 0; k < 6; ++k) Reechelonner(*jauges[k], anciens[k], k < 4);
    for (std::size_t r = 0; r < Ressources.size(); ++r)
        Ressources[r] = std::min(Ressources[r], static_cast<double>(Definir_MaxRessources(static_cast<int>(r))));
}

// Levels: every counter of experience grows its value by one at each threshold passed.
#include <algorithm>

#include "characters/ClsJeuPerso.h"
#include "characters/ExperienceObjets.h"
#include "rules/ClsJeuParam.h"
#include "world/Globales.h"

namespace {

// Distance from one threshold to the next, for the c-th level of a kind of counter.
double Pas(GenreExperience genre, int32_t c) {
    switch (genre) {
        case GenreCombat: return (5.0 * c + 5) * 80;
        case GenreRessource: return (3.0 * c + 3) * 5;
        default: return (5.0 * c + 5) * 4;
    }
}

}  // namespace

void ClsJeuPerso::Ajouter_Experience(int32_t& valeur, double gain, double& exp, int32_t& compte, double& bas,
                                     double& haut, GenreExperience genre) {
    if (!Progresse) return;
    exp += gain;
    while (exp >= haut) {
        valeur += 1;
        compte += 1;
        bas = haut;
        haut += Pas(genre, compte);
        Actualiser_Bonus(Param);
    }
}

void ClsJeuPerso::Gestion_Tous_Niveaux() {
    for (Jauge* j : {&Vie, &Energie, &Magie, &Moral}) j->SeuilHaut = 20;
    Attaque.SeuilHaut = Defense.SeuilHaut = 400;
    const GenreExperience genres[] = {GenreJauge, GenreJauge, GenreJauge, GenreJauge, GenreCombat, GenreCombat};
    Jauge* jauges[] = {&Vie, &Energie, &Magie, &Moral, &Attaque, &Defense};
    for (std::size_t k = 0; k < 6; ++k)
        Ajouter_Experience(jauges[k]->MaxBase, 0, jauges[k]->Exp, jauges[k]->Niveau, jauges[k]->SeuilBas,
                           jauges[k]->SeuilHaut, genres[k]);
    auto rejouer = [this](std::vector<Competence>& table, GenreExperience genre) {
        for (Competence& c : table) Ajouter_Experience(c, 0, genre);
    };
    rejouer(CompetencesSpeciales, GenreSpeciale);
    rejouer(CompetencesRessources, GenreRessource);
    rejouer(CompetencesServices, GenreService);
    rejouer(CompetencesObjets, GenreObjet);
}

void ClsJeuPerso::Gestion_Niveau_Comp_Speciale(int k, double montant, const ClsJeuParam& param) {
    static constexpr double taux[] = {0.001, 0.0025, 0.005, 0.001};
    static constexpr double partObjets[] = {0.05, 1, 1, 1};
    if (k == 2) montant = std::min(montant, Attaque.Valeur);
    const double gain = taux[k] * montant * 20;
    Competence& c = CompetencesSpeciales[static_cast<std::size_t>(k)];
    Ajouter_Experience(c, gain, GenreSpeciale);
    if (Bonus_CompetenceSpeciales(k))
        Partager_Experience_Objets(*this, gain * partObjets[k], param,
                                   [&param, k](int16_t o) { return param.Objet_BonusCompetencesSpeciales(o, k); });
}

void ClsJeuPerso::Gestion_Niveau_Prime(double montant, const ClsJeuParam& param) {
    const double gain = param.Service_CoefExp_Reel(2) * montant;
    Competence& c = CompetencesServices[1];
    Ajouter_Experience(c, gain, GenreService);
    if (Bonus_CompetenceServices(1))
        Partager_Experience_Objets(*this, gain, param, [&param](int16_t o) { return param.Objet_BonusCompetencesServices(o, 1); });
}

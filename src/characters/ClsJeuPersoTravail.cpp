// Work: harvesting, preparing a service, building, making an object. Each tick's output is
// a small fraction that grows with the worker's level and form; it is paid for in energy,
// morale and raw material, and earned again as experience.
#include "characters/ClsJeuPerso.h"
#include "characters/ExperienceObjets.h"
#include "rules/ClsJeuParam.h"
#include "world/ClsJeuBatiment.h"
#include "world/ClsJeuFief.h"

namespace {

constexpr double FatigueEnergie = 0.00625;
constexpr double FatigueMoral = 0.00125;

}  // namespace

void ClsJeuPerso::Fatiguer() {
    Definir_Energie(Energie.Valeur - FatigueEnergie);
    Definir_Moral(Moral.Valeur - FatigueMoral);
}

bool ClsJeuPerso::Payer_Matiere(int m, double quantite, double parUnite) {
    if (m < 0) return true;
    const double cout = quantite * parUnite;
    if (cout > Definir_Ressources(m)) return false;
    Definir_Ressources(m, Definir_Ressources(m) - cout);
    return true;
}

void ClsJeuPerso::Recolter_Ressources(int r, ClsJeuBatiment& maison, int32_t& commentaire, const ClsJeuParam& param) {
    if (r < 0) {
        if (!Inactif()) Fatiguer();
        return;
    }
    const double f = (Definir_Niveau_CompetenceRessources(r) + param.PersosMaxRessources) * (1.0 / 400 * CoefForme);
    const double sortie = param.Ressources_VitesseExtraction(r) * f;
    const bool surSoi = Definir_Ressources(r) < Definir_MaxRessources(r);
    if (!surSoi && !(maison.Stock < maison.MaxStock && DansSaMaison)) {
        Arreter();
        commentaire = 0;
    } else if (!Payer_Matiere(param.Ressources_TypeMatierePremiere(r), sortie, param.Ressources_QuantiteMatierePremiere(r))) {
        Definir_Action(100);
        commentaire = 1;
    } else if (surSoi) {
        Definir_Ressources(r, Definir_Ressources(r) + sortie);
    } else {
        maison.Definir_Stock(maison.Stock + sortie);
    }
    if (Inactif()) return;
    Fatiguer();
    Ajouter_Experience(Entree(CompetencesRessources, r), f, GenreRessource);
    if (Bonus_CompetenceRessources(r))
        Partager_Experience_Objets(*this, f, param, [&param, r](int16_t o) { return param.Objet_BonusCompetencesRessources(o, r); });
}

void ClsJeuPerso::Preparer_Service(ClsJeuBatiment& maison, int32_t& commentaire, const ClsJeuParam& param) {
    const int s = maison.Service;
    ServiceEnCours = s;
    const double f = 1.0 / 400 * CoefForme * Definir_Niveau_CompetenceServices(s - 1);
    const double sortie = param.Service_VitesseCreation_Reel(s) * f;
    if (maison.Stock < maison.MaxStock) {
        if (Payer_Matiere(param.Service_MatierePremiere_Indice(s), sortie, param.Service_QuantiteMatierePremiere_Reel(s))) {
            maison.Definir_Stock(maison.Stock + sortie);
            Definir_Action(600);
        } else {
            Definir_Action(100);
            commentaire = 1;
        }
    } else {
        Arreter();
        commentaire = 0;
    }
    if (Inactif()) return;
    Fatiguer();
    const double e = param.Service_CoefExp_Reel(s) * sortie;
    Ajouter_Experience(Entree(CompetencesServices, s - 1), e, GenreService);
    if (Bonus_CompetenceServices(s - 1))
        Partager_Experience_Objets(*this, e, param, [&param, s](int16_t o) { return param.Objet_BonusCompetencesServices(o, s - 1); });
}

void ClsJeuPerso::Batir_Maison(ClsJeuFief& fief, ClsJeuBatiment& chateau, ClsJeuBatiment& maison, const ClsJeuParam& param) {
    const double depart = param.PersosNiveauSpecialesDepart;
    const double g = (Definir_Niveau_CompetenceSpeciales(0) + depart) * (CoefForme * 3) / depart;
    maison.Definir_Vie(maison.Definir_Vie() + g);
    Fatiguer();
    const double gain = g * 0.001 * 20;
    Ajouter_Experience(Entree(CompetencesSpeciales, 0), gain, GenreSpeciale);
    if (Bonus_CompetenceSpeciales(0))
        Partager_Experience_Objets(*this, gain, param, [&param](int16_t o) { return param.Objet_BonusCompetencesSpeciales(o, 0); });
    if (maison.Termine && maison.Definir_Vie() == maison.MaxVie) {
        Definir_Action(101);
        Calculer_Apparence(maison, param);
        if (param.Batiment_NoEpoque(maison.Type) > fief.Epoque) fief.Changer_Epoque(chateau, param);
    } else {
        Definir_Action(6);
    }
}

bool ClsJeuPerso::PeutConstruire_Maison(int type, const ClsJeuParam& param) const {
    if (type < 0 || type >= param.NombreTypeBatiments) return false;
    for (int r = 0; r < param.NombreRessources; ++r)
        if (Definir_Ressources(r) < param.Batiment_Prix(type, r)) return false;
    return true;
}

void ClsJeuPerso::Creer_Objet(int n) {
    ObjetFabrique = static_cast<int16_t>(n);
    ProgressionFabrication = 0;
    Definir_Action(500);
}

bool ClsJeuPerso::Fabriquer_Objet(const ClsJeuParam& param, ClsJeuBatiment& maison, int32_t& commentaire) {
    const int16_t o = maison.Objet_De_Ligne(ObjetFabrique, param);
    if (o < 0) {
        Arreter();   // the house does not make this line
        return false;
    }
    const int c = param.Objet_Competence(o);
    const double g = CoefForme * 0.1 * Definir_Niveau_CompetenceObjets(c);
    ProgressionFabrication += g;
    Fatiguer();
    const double gain = g * 20 * 0.0025;
    Ajouter_Experience(Entree(CompetencesObjets, c), gain, GenreObjet);
    if (Bonus_CompetenceObjets(c))
        Partager_Experience_Objets(*this, gain, param, [&param, c](int16_t x) { return param.Objet_BonusCompetencesObjets(x, c); });
    if (param.Objet_DureeFabrication(o) > ProgressionFabrication) {
        Definir_Action(500);
        return false;
    }
    maison.Stock_Objets(ObjetFabrique, maison.Stock_Objets(ObjetFabrique) + 1);
    commentaire = 0;
    Definir_Action(100);
    for (int r = 0; r < param.NombreRessources; ++r)
        Definir_Ressources(r, Definir_Ressources(r) - param.Objet_PrixRessources(o, r));
    return true;
}

bool ClsJeuPerso::PeutConstruire_Objet(int n, const ClsJeuBatiment& maison, const ClsJeuParam& param) const {
    const int16_t o = maison.Objet_De_Ligne(n, param);
    if (o < 0 || maison.MaxStock - 1 < maison.Stock) return false;
    for (int r = 0; r < param.NombreRessources; ++r)
        if (Definir_Ressources(r) < param.Objet_PrixRessources(o, r)) return false;
    return true;
}

// Figures drawn from the competences for the player: overall level, trade, the spread of
// the competences on the character sheet, and the kills of the bestiary.
#include <algorithm>
#include <limits>
#include <numeric>

#include "characters/ClsJeuPerso.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"

namespace {

int32_t Somme_Niveaux(const std::vector<Competence>& table) {
    int32_t somme = 0;
    for (const Competence& c : table) somme += c.Compte;
    return somme;
}

// What a competence weighs in choosing a trade: the levels gained and how far into the next.
double Avancement(const Competence& c) { return c.Compte + c.Progression(); }

double Score_Metier(const ClsJeuPerso& p, int b, const ClsJeuParam& param) {
    if (param.Batiment_Fabrique(b)) {
        const int n = param.Batiment_NombreObjetsFabriques(b);
        if (n <= 0) return 0;
        double somme = 0;
        for (int k = 0; k < n; ++k)
            somme += Avancement(p.CompetencesObjets[static_cast<std::size_t>(
                param.Objet_Competence(param.Batiment_ObjetFabrique(b, k)))]);
        return somme / n;
    }
    const int s = param.Batiment_Service(b);
    if (s >= 1) return Avancement(p.CompetencesServices[static_cast<std::size_t>(s - 1)]);
    const int32_t r = param.Batiment_RessourceFabrique(b);
    return r >= 0 ? Avancement(p.CompetencesRessources[static_cast<std::size_t>(r)]) : 0;
}

// Every effective level of the special, service and object tables and every carrying
// capacity. Capacities are whole already, so they add to the mean as they are.
struct Releve {
    int32_t min = std::numeric_limits<int32_t>::max();
    int32_t max = 0;
    double somme = 0;
    int32_t nombre = 0;

    void Ajouter(int32_t v) {
        min = std::min(min, v);
        max = std::max(max, v);
        somme += v;
        ++nombre;
    }
};

Releve Relever(const ClsJeuPerso& p) {
    Releve releve;
    for (const auto* table : {&p.CompetencesSpeciales, &p.CompetencesServices, &p.CompetencesObjets})
        for (const Competence& c : *table) releve.Ajouter(c.Effectif);
    for (int r = 0; r < p.Nombre_CompetencesRessources(); ++r) releve.Ajouter(p.Definir_MaxRessources(r));
    return releve;
}

}  // namespace

// A level of a gauge weighs as much as k levels of a competence, k a quarter of the
// number of resource, service and object competences beyond the first of each.
double ClsJeuPerso::Niveau() const {
    const int32_t n = (Nombre_CompetencesRessources() - 1) + (Nombre_CompetencesServices() - 1) +
                      (Nombre_CompetencesObjets() - 1);
    const double k = Int(n * 0.25);
    const double s = k * (Vie.Niveau + Energie.Niveau + Magie.Niveau + Moral.Niveau + Attaque.Niveau + Defense.Niveau) +
                     Somme_Niveaux(CompetencesSpeciales) + Somme_Niveaux(CompetencesRessources) +
                     Somme_Niveaux(CompetencesServices) + Somme_Niveaux(CompetencesObjets);
    const double poids = n + 6 * k;
    return (poids > 0 ? s / poids : 0) + 1;
}

// The best score wins and the first type wins a tie; a score not above 0 counts for nothing.
std::string_view ClsJeuPerso::Metier(const ClsJeuParam& param) const {
    double meilleur = 0;
    int choisi = -1;
    for (int b = 0; b < param.NombreTypeBatiments; ++b) {
        const double score = Score_Metier(*this, b, param);
        if (score > meilleur) {
            meilleur = score;
            choisi = b;
        }
    }
    return choisi < 0 ? std::string_view{} : std::string_view{param.Batiment_Metier(choisi, Feminin)};
}

int32_t ClsJeuPerso::Definir_Min_Competence() const {
    const Releve releve = Relever(*this);
    return releve.nombre > 0 ? releve.min : 0;
}

double ClsJeuPerso::Definir_Moy_Competence() const {
    const Releve releve = Relever(*this);
    return releve.nombre > 0 ? releve.somme / releve.nombre : 0;
}

int32_t ClsJeuPerso::Definir_Max_Competence() const { return Relever(*this).max; }

int32_t ClsJeuPerso::Definir_Bestiaire_Total() const {
    return std::accumulate(Bestiaire.begin(), Bestiaire.end(), int32_t{0});
}

// Checks of the characters' rules: starting levels, equipment slots, special skills.
#include <string>
#include <utility>

#include "rules/ClsJeuParam.h"
#include "rules/ControleRegles.h"

namespace {

// The rules divide by the starting level of each family of skills.
void Niveaux_Depart(ControleRegles& c) {
    const std::pair<const char*, int32_t> niveaux[] = {
        {"PersosNiveauSpecialesDepart", c.P.PersosNiveauSpecialesDepart},
        {"PersosNiveauServicesDepart", c.P.PersosNiveauServicesDepart},
        {"PersosNiveauObjetsDepart", c.P.PersosNiveauObjetsDepart},
    };
    for (const auto& [cle, niveau] : niveaux)
        if (niveau < 1)
            c.Signaler(FichierPersos, "Personnages", cle,
                       "vaut " + std::to_string(niveau) + " : il faut au moins 1, les règles divisent par ce niveau");
}

// The equipment rule and the interface know nine slots: hands 0 and 1, body 2, head 3,
// feet 4, neck 5, rings 6 and 7, back 8.
void Emplacements(ControleRegles& c) {
    if (c.P.PersosNombreObjetsEquipes != 9)
        c.Signaler(FichierPersos, "Personnages", "PersosNombreObjetsEquipes",
                   "vaut " + std::to_string(c.P.PersosNombreObjetsEquipes) +
                       " : l'équipement compte 9 emplacements (mains, corps, tête, pieds, cou, deux anneaux, dos)");
}

// Skills 1 to 4 have fixed roles: building, attacking buildings, hard blows, bargaining.
void Competences_Speciales(ControleRegles& c) {
    if (c.P.NombreCompetencesSpeciales < 4)
        c.Signaler(FichierPersos, "Competences_Speciales", "NombreCompetencesSpeciales",
                   "vaut " + std::to_string(c.P.NombreCompetencesSpeciales) +
                       " : il en faut au moins 4 (construction, démolition, coups puissants, marchandage)");
}

}  // namespace

void Controler_Persos(ControleRegles& c) {
    Niveaux_Depart(c);
    Emplacements(c);
    Competences_Speciales(c);
}

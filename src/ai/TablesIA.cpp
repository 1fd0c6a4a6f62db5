#include "ai/TablesIA.h"

#include <algorithm>

#include "ai/PhotoRecherches.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"
#include "world/Globales.h"

int32_t DernierPerso = -1;
int32_t PersosParTrame = 1;
int32_t PasDeRecherche = 1;
int32_t CurseurIA = 0;
int16_t CurseurInventaire = 0;
int16_t NiveauBatimentMax = 0;
std::vector<int16_t> BatimentsParNiveau;
std::vector<uint8_t> ActionFaite;
std::vector<int16_t> BatimentVoulu;
std::vector<int32_t> CurseurPerso, CurseurMaison, CurseurMaisonEnnemie, CurseurChateauEnnemi;
std::vector<int32_t> RayonPerso, RayonMaison, RayonMaisonEnnemie, RayonChateauEnnemi, RayonRessource;
std::vector<int16_t> EtapeRessource, EtapeObjet, EtapeQuantite;
std::vector<int32_t> RayonPlacementFief;

namespace {

// A share of the population, in single precision as the budgets have always been worked out;
// never below 1.
int32_t Part(int32_t dernier, float facteur) {
    const int32_t n = Arrondir_En<int32_t>(static_cast<double>(static_cast<float>(dernier) * facteur));
    return n == 0 ? 1 : n;
}

}  // namespace

void Dimensionner_Tables_IA(int32_t nombre) {
    const auto n = static_cast<std::size_t>(std::max(nombre, 0));
    ActionFaite.resize(n, 0);
    BatimentVoulu.resize(n, 0);
    for (auto* t : {&CurseurPerso, &CurseurMaison, &CurseurMaisonEnnemie, &CurseurChateauEnnemi, &RayonPerso,
                    &RayonMaison, &RayonMaisonEnnemie, &RayonChateauEnnemi, &RayonRessource})
        t->resize(n, 0);
    for (auto* t : {&EtapeRessource, &EtapeObjet, &EtapeQuantite}) t->resize(n, 0);
    DernierPerso = nombre - 1;
    PersosParTrame = Part(DernierPerso, 0.01f);
    PasDeRecherche = Part(DernierPerso, 0.6f);
}

void Initialiser_IA() {
    RayonPlacementFief.assign(Fiefs.size(), 0);
    // A new game's tables and the searches' picture start empty, whatever the last game left
    // in them (its rules may have had other building types).
    CurseurIA = 0;
    PhotoIndex = PhotoRecherches{};
    Dimensionner_Tables_IA(0);
    Dimensionner_Tables_IA(static_cast<int32_t>(Persos.size()));
    CurseurInventaire = static_cast<int16_t>(Arrondir(Rnd()));
    std::fill(RayonMaison.begin(), RayonMaison.end(), 96);
    std::fill(BatimentVoulu.begin(), BatimentVoulu.end(), int16_t{-1});
    std::fill(EtapeRessource.begin(), EtapeRessource.end(), int16_t{-1});
    std::fill(EtapeObjet.begin(), EtapeObjet.end(), int16_t{-1});
    std::fill(EtapeQuantite.begin(), EtapeQuantite.end(), int16_t{0});
    NiveauBatimentMax = 0;
    for (int t = 0; t < Param.NombreTypeBatiments; ++t)
        NiveauBatimentMax = static_cast<int16_t>(std::max<int32_t>(NiveauBatimentMax, Param.Batiment_Niveau(t)));
    BatimentsParNiveau.assign(static_cast<std::size_t>(NiveauBatimentMax) + 2, 0);
    for (int t = 0; t < Param.NombreTypeBatiments; ++t) {
        const int32_t niveau = Param.Batiment_Niveau(t);
        if (niveau >= 0) BatimentsParNiveau[static_cast<std::size_t>(niveau)] += 1;
    }
}

void Reinitialiser_IA() {
    PhotoIndex = PhotoRecherches{};
    DernierPerso = -1;
    PersosParTrame = PasDeRecherche = 1;
    CurseurIA = 0;
    CurseurInventaire = NiveauBatimentMax = 0;
    BatimentsParNiveau.clear();
    ActionFaite.clear();
    BatimentVoulu.clear();
    for (auto* t : {&CurseurPerso, &CurseurMaison, &CurseurMaisonEnnemie, &CurseurChateauEnnemi, &RayonPerso,
                    &RayonMaison, &RayonMaisonEnnemie, &RayonChateauEnnemi, &RayonRessource, &RayonPlacementFief})
        t->clear();
    for (auto* t : {&EtapeRessource, &EtapeObjet, &EtapeQuantite}) t->clear();
}

void Empreindre_IA(Empreinte& e) {
    for (int32_t x : {DernierPerso, PersosParTrame, PasDeRecherche, CurseurIA}) e.Ajouter(x);
    e.Ajouter(CurseurInventaire);
    e.Ajouter(ActionFaite);
    e.Ajouter(BatimentVoulu);
    for (const auto* t : {&CurseurPerso, &CurseurMaison, &CurseurMaisonEnnemie, &CurseurChateauEnnemi, &RayonPerso,
                          &RayonMaison, &RayonMaisonEnnemie, &RayonChateauEnnemi, &RayonRessource,
                          &RayonPlacementFief})
        e.Ajouter(*t);
    for (const auto* t : {&EtapeRessource, &EtapeObjet, &EtapeQuantite}) e.Ajouter(*t);
}

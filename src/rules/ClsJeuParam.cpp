// The rule book's entry points and its first three groups: characters, fiefs with their
// epochs, resources with their deposits.
#include "rules/ClsJeuParam.h"

#include "rules/ClsJeuParamLecteur.h"
#include "rules/Conversions.h"

ClsJeuParam Param;

void ClsJeuParam::Init(int section) { Charger(section, nullptr); }

void ClsJeuParam::Init(int section, RapportParam& rapport) { Charger(section, &rapport); }

void ClsJeuParam::Charger(int section, RapportParam* rapport) {
    switch (section) {
        case 0: Charger_Persos(rapport); break;
        case 1: Charger_Fiefs(rapport); break;
        case 2: Charger_Ressources(rapport); break;
        case 3: Charger_Batiments(rapport); break;
        case 4: Charger_Objets(rapport); break;
        case 5: Charger_Monstres(rapport); break;
        case 6: Charger_Effets(rapport); break;
        default: break;
    }
}

void ClsJeuParam::Charger_Persos(RapportParam* rapport) {
    LecteurParam l("Ini_Parametres_Persos", rapport);
    l.Section("Transactions");
    CoefficientAchat = l.Strict<double>("CoefficientAchat");

    l.Section("Personnages");
    PersosNombreApparences = l.Strict<int16_t>("PersosNombreApparences");
    PersosMaxVie = l.Strict<int32_t>("PersosMaxVie");
    PersosMaxEnergie = l.Strict<int32_t>("PersosMaxEnergie");
    PersosMaxMagie = l.Strict<int32_t>("PersosMaxMagie");
    PersosMaxMoral = l.Strict<int32_t>("PersosMaxMoral");
    PersosNiveauSpecialesDepart = l.Strict<int32_t>("PersosNiveauSpecialesDepart");
    PersosNiveauServicesDepart = l.Strict<int32_t>("PersosNiveauServicesDepart");
    PersosNiveauObjetsDepart = l.Strict<int32_t>("PersosNiveauObjetsDepart");
    PersosMaxRessources = l.Strict<int32_t>("PersosMaxRessources");
    PersosAttaque = l.Strict<int32_t>("PersosAttaque");
    PersosPorteeAttaque = l.Strict<int32_t>("PersosPorteeAttaque");
    PersosDefense = l.Strict<int32_t>("PersosDefense");
    PersosVitesse = l.Strict<int16_t>("PersosVitesse");
    PersosNombreObjetsEquipes = l.Strict<int16_t>("PersosNombreObjetsEquipes");
    PersosNombreObjetsInventaire = l.Strict<int16_t>("PersosNombreObjetsInventaire");

    l.Section("Competences_Speciales");
    NombreCompetencesSpeciales = l.Taille("NombreCompetencesSpeciales");
    CompetencesSpeciales.assign(NombreCompetencesSpeciales, {});
    for (int k = 0; k < NombreCompetencesSpeciales; ++k) {
        // The key is "CompetencesSpeciales1"; the bracketed form is accepted as well.
        std::string nom = l.Texte("CompetencesSpeciales" + std::to_string(k + 1));
        if (nom.empty()) nom = l.Texte(Cle_Numerotee("CompetencesSpeciales", k + 1));
        CompetencesSpeciales[k] = std::move(nom);
    }
}

void ClsJeuParam::Charger_Fiefs(RapportParam* rapport) {
    LecteurParam l("Ini_Parametres_Fiefs", rapport);
    l.Section("Chateaux");
    ChateauxMaxVie = l.Strict<int16_t>("ChateauxMaxVie");
    ChateauxLargeur = l.Strict<int16_t>("ChateauxLargeur");
    ChateauxHauteur = l.Strict<int16_t>("ChateauxHauteur");

    l.Section("Epoques");
    NombreEpoques = l.Taille("NombreEpoques");
    Epoques.assign(NombreEpoques, {});
    for (int n = 0; n < NombreEpoques; ++n) {
        Epoque& e = Epoques[n];
        l.Section(Section_Numerotee("Epoque_", n + 1));
        e.Nom = l.Texte("Nom");
        e.BonusVieChateau = l.Strict<int32_t>("BonusVieChateau");
        e.ChateauxRessourcesDepart = l.Souple<double>("ChateauxRessourcesDepart");
        e.PersosRessourcesDepart = l.Souple<double>("PersosRessourcesDepart");
        e.PersosArgentDepart = l.Souple<double>("PersosArgentDepart");
    }
}

void ClsJeuParam::Charger_Ressources(RapportParam* rapport) {
    LecteurParam l("Ini_Parametres_Ressources", rapport);
    l.Section("Ressources");
    NombreRessources = l.Taille("NombreRessources");
    TypesRessources.assign(NombreRessources, {});
    for (int n = 0; n < NombreRessources; ++n) {
        TypeRessource& r = TypesRessources[n];
        l.Section(Section_Numerotee("Ressource_", n + 1));
        r.Nom = l.Texte("Nom");
        r.NomCompetence = l.Texte("NomCompetence");
        r.VitesseExtraction = l.Souple<double>("VitesseExtraction");
        r.TypeMatierePremiere =
            l.Index<int32_t>("TypeMatierePremiere", TableParam::Ressources, GenreRenvoi::NegatifAucun);
        r.QuantiteMatierePremiere = l.Souple<double>("QuantiteMatierePremiere");
        r.PrixVente = l.Souple<double>("PrixVente");
        r.Mangeable = l.Souple<bool>("Mangeable");
        r.GainVie = l.Souple<double>("GainVie");
        r.GainEnergie = l.Souple<double>("GainEnergie");
        r.GainMagie = l.Souple<double>("GainMagie");
        r.GainMoral = l.Souple<double>("GainMoral");
        r.NecessairePourConstruire = l.Souple<bool>("NecessairePourConstruire");
        r.Epoque = l.Index<int16_t>("Epoque", TableParam::Epoques, GenreRenvoi::Obligatoire);
    }

    l.Section("Terrain_Ressources");
    NombreTerrainRessource = l.Taille("NombreTerrainRessource");
    TerrainsRessources.assign(NombreTerrainRessource, {});
    for (int n = 0; n < NombreTerrainRessource; ++n) {
        TerrainRessource& t = TerrainsRessources[n];
        l.Section(Section_Numerotee("TerrainRessource_", n + 1));
        t.Nom = l.Texte("Nom");
        t.TypeRessource = l.Index_Strict<int16_t>("TypeRessource", TableParam::Ressources);
        t.Quantite = l.Souple<double>("Quantite");
    }

    // Each deposit type marks the resource it gives; with two deposits for one resource the
    // later one wins. A deposit giving no known resource cannot be linked: a load failure.
    for (int t = 0; t < NombreTerrainRessource; ++t) {
        const int r = TerrainsRessources[t].TypeRessource;
        if (r < 0 || r >= NombreRessources) {
            l.Section(Section_Numerotee("TerrainRessource_", t + 1));
            l.Echec("TypeRessource", "ne donne aucune ressource de la table");
            continue;
        }
        TypesRessources[r].Recoltable = true;
        TypesRessources[r].TypeTerrainRessource = static_cast<int16_t>(t);
    }
}

// Group 4 of the rule book, file "Ini_Parametres_Objets": services, object skills, objects,
// and the true epoch of each object.
#include "rules/ClsJeuParam.h"
#include "rules/ClsJeuParamLecteur.h"
#include "rules/Conversions.h"

void ClsJeuParam::Charger_Objets(RapportParam* rapport) {
    LecteurParam l("Ini_Parametres_Objets", rapport);
    l.Section("Services");
    NombreServices = l.Taille("NombreServices");
    Services.assign(NombreServices, {});
    for (int n = 0; n < NombreServices; ++n) {
        Service& s = Services[n];
        l.Section(Section_Numerotee("Service_", n + 1));
        s.Nom = l.Texte("Nom");
        s.Description = l.Texte("Description");
        s.VitesseCreation = l.Souple<double>("VitesseCreation");
        // A plain 0-based resource number, negative for none.
        s.TypeMatierePremiere = l.Souple<int16_t>("TypeMatierePremiere");
        l.Renvoi("TypeMatierePremiere", s.TypeMatierePremiere, TableParam::Ressources, GenreRenvoi::NegatifAucun);
        s.QuantiteMatierePremiere = l.Souple<double>("QuantiteMatierePremiere");
        s.Prix = Texte_Nombre(l.Souple<double>("Prix"));
        s.Coefficient = l.Souple<double>("Coefficient");
        s.NomCompetence = l.Texte("NomCompetence");
        s.Effet = l.Souple<int16_t>("Effet");
        l.Renvoi("Effet", s.Effet, TableParam::Effets, GenreRenvoi::NegatifAucun);
        s.CoefExp = l.Souple<double>("CoefExp");
    }

    l.Section("CompetencesObjets");
    NombreCompetencesObjets = l.Taille("NombreCompetencesObjets");
    CompetencesObjets.assign(NombreCompetencesObjets, {});
    for (int n = 0; n < NombreCompetencesObjets; ++n) {
        l.Section(Section_Numerotee("CompetenceObjet_", n + 1));
        CompetencesObjets[n].Numero = l.Strict<int16_t>("Numero");
        CompetencesObjets[n].Nom = l.Texte("Nom");
    }

    l.Section("Objets");
    NombreObjets = l.Taille("NombreObjets");
    Objets.assign(NombreObjets, {});
    for (int n = 0; n < NombreObjets; ++n) {
        Objet& o = Objets[n];
        l.Section(Section_Numerotee("Objet_", n + 1));
        o.Nom = l.Texte("Nom");
        o.NomPluriel = l.Texte("NomPluriel");
        o.Description = l.Texte("Description");
        o.Secret = l.Souple<bool>("Secret");
        o.Categorie = l.Strict<int16_t>("Categorie");
        o.Competence = l.Index<int16_t>("Competence", TableParam::CompetencesObjets, GenreRenvoi::Obligatoire);
        o.PrixRessources = l.Liste<int16_t>("PrixRessources", NombreRessources);
        o.Epoque = l.Souple<int16_t>("Epoque");
        if (!o.Secret) l.Renvoi("Epoque", o.Epoque, TableParam::Epoques, GenreRenvoi::Numero);
        o.DureeFabrication = l.Souple<int16_t>("DureeFabrication");
        o.PrixVente = l.Souple<int16_t>("PrixVente");
        o.BonusVie = l.Souple<int16_t>("BonusVie");
        o.BonusEnergie = l.Souple<int16_t>("BonusEnergie");
        o.BonusMagie = l.Souple<int16_t>("BonusMagie");
        o.BonusMoral = l.Souple<int16_t>("BonusMoral");
        o.BonusAttaque = l.Souple<int16_t>("BonusAttaque");
        o.BonusPorteeAttaque = l.Souple<int16_t>("BonusPorteeAttaque");
        o.EffetAttaque = l.Souple<int16_t>("EffetAttaque");
        l.Renvoi("EffetAttaque", o.EffetAttaque, TableParam::Effets, GenreRenvoi::NegatifAucun);
        o.SurfaceAttaque = l.Souple<int16_t>("SurfaceAttaque");
        o.BonusDefense = l.Souple<int16_t>("BonusDefense");
        o.BonusDeplacement = l.Souple<int16_t>("BonusDeplacement");
        o.BonusCompetencesSpeciales = l.Liste<int16_t>("BonusCompetencesSpeciales", NombreCompetencesSpeciales);
        o.BonusCompetencesRessources = l.Liste<int16_t>("BonusCompetencesRessources", NombreRessources);
        // Service 0 is "no service", so the skills of services start at the second entry.
        o.BonusCompetencesServices = l.Liste<int16_t>("BonusCompetencesServices", NombreServices - 1);
        o.BonusCompetencesObjets = l.Liste<int16_t>("BonusCompetencesObjets", NombreObjets);
        o.BonusArmure = l.Souple<int16_t>("BonusArmure");
        o.BonusMaxRessources = l.Souple<int16_t>("BonusMaxRessources");
        o.PerteVie = l.Souple<double>("PerteVie");
        o.PerteEnergie = l.Souple<double>("PerteEnergie");
        o.PerteMagie = l.Souple<double>("PerteMagie");
        o.PerteMoral = l.Souple<double>("PerteMoral");
        o.PerteRessourceIndice =
            l.Index<int16_t>("PerteRessourceIndice", TableParam::Ressources, GenreRenvoi::NegatifAucun);
        o.PerteRessourceQuantite = l.Souple<double>("PerteRessourceQuantite");
        if (o.PerteRessourceQuantite > 0) {
            // A use that burns a resource makes that resource needed for attacking.
            if (o.PerteRessourceIndice >= 0 && o.PerteRessourceIndice < NombreRessources)
                TypesRessources[o.PerteRessourceIndice].NecessairePourAttaquer = true;
            else
                l.Echec("PerteRessourceIndice", "la ressource brûlée par l'usage n'est pas dans la table");
        }
        o.ApparencePerso = l.Souple<int16_t>("ApparencePerso");
        o.Utilisable = l.Souple<bool>("Utilisable");
        o.UtilisationUnique = l.Souple<bool>("UtilisationUnique");
        o.Experience = l.Souple<double>("Experience");
        o.Invocation = l.Index<int16_t>("Invocation", TableParam::Monstres, GenreRenvoi::NegatifAucun);
        o.Quantite = l.Souple<int32_t>("Quantite");
        o.GainVie = l.Souple<double>("GainVie");
        o.GainEnergie = l.Souple<double>("GainEnergie");
        o.GainMagie = l.Souple<double>("GainMagie");
        o.GainMoral = l.Souple<double>("GainMoral");
        o.Resurrection = l.Souple<int32_t>("Resurrection");
    }
    Corriger_Epoques_Objets();
}

// An object is never available before the workshop that makes it, nor before its
// ingredients. Object epochs count from 1, resource epochs from 0; a secret object has none.
void ClsJeuParam::Corriger_Epoques_Objets() {
    for (int n = 0; n < NombreObjets; ++n) {
        Objet& o = Objets[n];
        if (o.Secret) {
            o.Epoque = -1;
            continue;
        }
        for (const TypeBatiment& b : TypesBatiments) {
            if (!b.Fabrique) continue;
            for (const int16_t fait : b.ObjetsFabriques)
                if (fait == n && o.Epoque < b.NoEpoque) o.Epoque = b.NoEpoque;
        }
        for (int r = 0; r < NombreRessources; ++r)
            if (o.PrixRessources[r] > 0 && o.Epoque >= 0 && TypesRessources[r].Epoque > o.Epoque - 1)
                o.Epoque = static_cast<int16_t>(TypesRessources[r].Epoque + 1);
    }
}

std::string ClsJeuParam::Service_VitesseCreation(int s) const { return Texte_Nombre(Services[s].VitesseCreation); }

std::string ClsJeuParam::Service_QuantiteMatierePremiere(int s) const {
    return Texte_Nombre(Services[s].QuantiteMatierePremiere);
}

std::string ClsJeuParam::Service_CoefExp(int s) const { return Texte_Nombre(Services[s].CoefExp); }

// The price is kept as text and converted strictly on each request; the text is always
// the one written from a number, so the conversion holds.
double ClsJeuParam::Service_Prix(int s) const { return Convertir_Strict_Reel(Services[s].Prix).value_or(0.0); }

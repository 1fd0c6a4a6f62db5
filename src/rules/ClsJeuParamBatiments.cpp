// Group 3 of the rule book: the building types, and what raw material each one needs.
#include <algorithm>

#include "rules/ClsJeuParam.h"
#include "rules/ClsJeuParamLecteur.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"

void ClsJeuParam::Charger_Batiments(RapportParam* rapport) {
    LecteurParam l("Ini_Parametres_Batiments", rapport);
    l.Section("Batiments");
    NombreTypeBatiments = l.Taille("NombreTypeBatiments");
    TypesBatiments.assign(NombreTypeBatiments, {});
    for (int n = 0; n < NombreTypeBatiments; ++n) {
        TypeBatiment& b = TypesBatiments[n];
        l.Section(Section_Numerotee("Batiment_", n + 1));
        b.Nom = l.Texte("Nom");
        b.MetierM = l.Texte("MetierM");
        b.MetierF = l.Texte("MetierF");
        b.Description = l.Texte("Description");
        b.PrixRessources = l.Liste<int32_t>("PrixRessources", NombreRessources);
        b.MaxVie = l.Strict<int32_t>("MaxVie");
        b.RessourceFabrique =
            l.Index<int32_t>("RessourceFabrique", TableParam::Ressources, GenreRenvoi::NegatifAucun);
        b.NombreObjetsFabriques = l.Souple<int16_t>("NombreObjetsfabriques");
        // A negative count makes no list, like a count of 0.
        b.ObjetsFabriques.resize(std::max<int>(b.NombreObjetsFabriques, 0));
        for (int k = 0; k < b.NombreObjetsFabriques; ++k)
            b.ObjetsFabriques[k] = l.Index_Strict<int16_t>(Cle_Numerotee("ObjetsFabriques", k + 1), TableParam::Objets);
        b.Magasin = l.Souple<bool>("Magasin");
        b.Fabrique = l.Souple<bool>("Fabrique");
        b.Service = l.Souple<int16_t>("Service");
        l.Renvoi("Service", b.Service, TableParam::Services, GenreRenvoi::ZeroAucun);
        b.MaxStock = l.Souple<double>("MaxStock");
        b.Niveau = l.Souple<int32_t>("Niveau");
        b.NoEpoque = l.Souple<int16_t>("NoEpoque");
        l.Renvoi("NoEpoque", b.NoEpoque, TableParam::Epoques, GenreRenvoi::Numero);
        b.Largeur = l.Souple<int16_t>("Largeur");
        b.Hauteur = l.Souple<int16_t>("Hauteur");
        b.EntreePositionX = l.Souple<int32_t>("EntreePositionX");
        b.EntreePositionY = l.Souple<int32_t>("EntreePositionY");
        b.NombreEtapeFabrication = l.Souple<int16_t>("NombreEtapeFabrication");
        b.NombreEtapeAnimation = l.Souple<int16_t>("NombreEtapeAnimation");
        b.ApparencePerso = l.Souple<int16_t>("ApparencePerso");
    }
}

int16_t ClsJeuParam::Batiment_TypeMatierePremiere(int b) const {
    const TypeBatiment& t = TypesBatiments[b];
    if (t.Fabrique) {
        // Among the ingredients of the objects it makes, with a lean towards the first.
        int16_t dernier = -1;
        for (int r = 0; r < NombreRessources; ++r)
            for (int k = 0; k < t.NombreObjetsFabriques; ++k)
                if (Objet_PrixRessources(t.ObjetsFabriques[k], r) > 0) {
                    dernier = static_cast<int16_t>(r);
                    if (Rnd() > 0.5f) return dernier;
                }
        return dernier;
    }
    if (t.Service != 0) return Services[t.Service].TypeMatierePremiere;
    if (t.RessourceFabrique < 0) return -1;   // a house that makes nothing needs nothing
    // Resource indices fit 16 bits: the table size is an i16.
    return static_cast<int16_t>(TypesRessources[t.RessourceFabrique].TypeMatierePremiere);
}

// Group 6 of the rule book, file "Ini_Parametres_Effets": the visual effects.
#include "rules/ClsJeuParam.h"
#include "rules/ClsJeuParamLecteur.h"
#include "rules/Conversions.h"

void ClsJeuParam::Charger_Effets(RapportParam* rapport) {
    LecteurParam l("Ini_Parametres_Effets", rapport);
    l.Section("Effets");
    NombreEffets = l.Taille("NombreEffets");
    EffetMaisonEnFeu = l.Index<int16_t>("EffetMaisonEnFeu", TableParam::Effets, GenreRenvoi::Obligatoire);
    EffetMaisonDetruite = l.Index<int16_t>("EffetMaisonDetruite", TableParam::Effets, GenreRenvoi::Obligatoire);
    EffetChateauDetruit = l.Index<int16_t>("EffetChateauDetruit", TableParam::Effets, GenreRenvoi::Obligatoire);
    Effets.assign(NombreEffets, {});
    for (int n = 0; n < NombreEffets; ++n) {
        Effet& e = Effets[n];
        l.Section(Section_Numerotee("Effet_", n + 1));
        e.Nom = l.Texte("Nom");
        e.Fichier = l.Texte("Fichier");
        e.Largeur = l.Souple<int16_t>("Largeur");
        e.Hauteur = l.Souple<int16_t>("Hauteur");
        e.NombreEtapes = l.Souple<int16_t>("NombreEtapes");
        // A missing or zero step length reads as 1.
        e.DureeEtape = l.Souple<double>("DureeEtape");
        if (e.DureeEtape == 0) e.DureeEtape = 1.0;
        e.Son = l.Texte("Son");
    }
}

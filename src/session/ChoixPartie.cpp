#include "session/ChoixPartie.h"

#include <algorithm>

#include "ai/ModIA2.h"
#include "rules/Chemins.h"
#include "rules/ClsFicINI.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"

int32_t ChoixPartie::Total_Villageois() const {
    int32_t total = 0;
    for (const ChoixFief& f : Fiefs) total += f.Sujets;
    return total;
}

namespace {

int32_t Lire_Entier(ClsFicINI& ini, const std::string& cle) { return Souple_En<int32_t>(ini.Parametre(cle)); }

// A slider's value within its limits, as the slider itself holds it.
int32_t Curseur(ClsFicINI& ini, const std::string& min, const std::string& val, const std::string& max) {
    const int32_t bas = Lire_Entier(ini, min);
    const int32_t haut = std::max(bas, Lire_Entier(ini, max));
    return std::clamp(Lire_Entier(ini, val), bas, haut);
}

// A list's selection stored as index + 1, within the list's n entries.
int32_t Liste(ClsFicINI& ini, const std::string& cle, int32_t n) {
    return std::clamp(Lire_Entier(ini, cle) - 1, 0, std::max(n - 1, 0));
}

const char* Page_De_Type(int32_t type) {
    switch (type) {
        case 1: return PageNouvelleBataille;
        case 2: return PageChargerMonde;
        default: return PageNouveauMonde;
    }
}

void Lire_Monde(ClsFicINI& ini, ChoixPartie& choix) {
    ini.Section = "Monde";
    choix.Page = Page_De_Type(Lire_Entier(ini, "TypePartie"));
    choix.Largeur = Curseur(ini, "MinLargeur", "ValLargeur", "MaxLargeur");
    choix.Hauteur = Curseur(ini, "MinHauteur", "ValHauteur", "MaxHauteur");
    choix.Gisements = Curseur(ini, "MinQuantitéRessources", "ValQuantitéRessources", "MaxQuantitéRessources");
    choix.Epoque = static_cast<int16_t>(Liste(ini, "EpoqueChoisie", Param.NombreEpoques));
}

void Lire_Fiefs(ClsFicINI& ini, ChoixPartie& choix) {
    ini.Section = "Fiefs";
    const int32_t lignes = Curseur(ini, "MinFiefs", "ValFiefs", "MaxFiefs");
    const int32_t maxFiefs = Lire_Entier(ini, "MaxFiefs");
    choix.Fiefs.resize(static_cast<std::size_t>(std::max(lignes, 0)));
    for (int32_t i = 0; i < lignes; ++i) {
        const std::string n = std::to_string(i + 1);
        ChoixFief& f = choix.Fiefs[static_cast<std::size_t>(i)];
        f.Sujets = Curseur(ini, "MinVillageoisFief", "ValVillageoisFief" + n, "MaxVillageoisFief");
        f.Peuple = static_cast<int16_t>(Liste(ini, "PeupleFief" + n, Param.NombrePeuples + 1));
        f.Equipe = Liste(ini, "EquipeFief" + n, maxFiefs);
    }
}

void Lire_Armees(ClsFicINI& ini, ChoixPartie& choix) {
    for (int a = 0; a < 2; ++a) {
        ini.Section = Section_Numerotee("Armée_", a + 1);
        ChoixFief& armee = choix.Armees[static_cast<std::size_t>(a)];
        armee.Equipe = a;
        armee.Sujets = Curseur(ini, "MinSoldats", "ValSoldats", "MaxSoldats");
        armee.Peuple = static_cast<int16_t>(Liste(ini, "Peuple", Param.NombrePeuples + 1));
    }
}

}  // namespace

ChoixPartie Lire_Ini_Partie() {
    ChoixPartie choix;
    ClsFicINI ini;
    ini.Fichier = "Ini_Partie";
    Lire_Monde(ini, choix);
    Lire_Fiefs(ini, choix);
    Lire_Armees(ini, choix);
    choix.FichiersIA = Lister_Dossier(Chemin_Jeu(DossierIAs));
    return choix;
}

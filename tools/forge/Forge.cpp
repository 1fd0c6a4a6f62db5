#include "Forge.h"

#include <iostream>

#include "Bmp.h"
#include "rules/Chemins.h"
#include "rules/ClsFicINI.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"

namespace fs = std::filesystem;

namespace {

// The screen sizes of "Ini_Ecran", or the default ones when the file gives none.
std::vector<Resolution> Lire_Resolutions() {
    ClsFicINI ini;
    ini.Fichier = "Ini_Ecran";
    ini.Section = "Ecran";
    const int nombre = Souple_En<int32_t>(ini.Parametre("NombreResolution"));
    std::vector<Resolution> resolutions;
    for (int n = 1; n <= nombre; ++n) {
        ini.Section = Section_Numerotee("Resolution_", n);
        const auto l = Convertir_Strict_Entier(ini.Parametre("Largeur"));
        const auto h = Convertir_Strict_Entier(ini.Parametre("Hauteur"));
        if (l && h && *l > 0 && *h > 0) resolutions.push_back({static_cast<int>(*l), static_cast<int>(*h)});
    }
    return resolutions.empty() ? Resolutions_Par_Defaut() : resolutions;
}

// The size of one info window, from the layout of the first screen width if it gives one.
void Lire_Taille_Fenetres(Atelier& a) {
    ClsFicINI ini;
    ini.Fichier = "Ini_Interface" + std::to_string(a.resolutions.front().largeur);
    ini.Section = "Interface";
    const auto l = Convertir_Strict_Entier(ini.Parametre("LargeurFenetres"));
    const auto h = Convertir_Strict_Entier(ini.Parametre("HauteurFenetres"));
    if (l && h && *l > 0 && *h > 0) {
        a.largeurFenetre = static_cast<int>(*l);
        a.hauteurFenetre = static_cast<int>(*h);
    }
}

}  // namespace

std::vector<Resolution> Resolutions_Par_Defaut() {
    return {{800, 600}, {1024, 768}, {1280, 720}, {1600, 900}, {1920, 1080}};
}

void Atelier::Ecrire(std::string_view relatif, const Toile& toile) {
    if (!Ecrire_Bmp(images / fs::path(std::string(relatif)), toile)) reussi = false;
    ++fichiers;
}

bool Forger(const fs::path& donnees, const fs::path& jeu) {
    Definir_Dossier_Jeu(donnees);
    Param.Reinitialiser();
    for (int groupe = 0; groupe < 7; ++groupe) Param.Init(groupe);

    Atelier a;
    a.images = jeu / "Images";
    a.resolutions = Lire_Resolutions();
    Lire_Taille_Fenetres(a);
    // Every file of the hero folders is read by the game: nothing old may stay there.
    std::error_code erreur;
    fs::remove_all(a.images / "Persos" / "HerosF", erreur);
    fs::remove_all(a.images / "Persos" / "HerosM", erreur);

    Forger_Terrain(a);
    Forger_Decors(a);
    Forger_Batiments(a);
    Forger_Chateaux(a);
    Forger_Persos(a);
    Forger_Monstres(a);
    Forger_Objets(a);
    Forger_Effets(a);
    Forger_Curseurs(a);
    Forger_Interface(a);
    return a.reussi;
}

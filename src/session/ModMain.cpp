#include "session/ModMain.h"

#include <chrono>
#include <cstdlib>
#include <string>
#include <system_error>

#include "ai/TablesIA.h"
#include "presentation/Affichages.h"
#include "rules/BoiteMessage.h"
#include "rules/Chemins.h"
#include "rules/ClsJeuParam.h"
#include "rules/Hasard.h"
#include "world/Globales.h"

namespace fs = std::filesystem;

namespace {

fs::path Dossier_Par_Defaut() {
    std::error_code erreur;
    const fs::path executable = fs::read_symlink("/proc/self/exe", erreur);
    return erreur ? fs::path("jeu") : executable.parent_path() / "jeu";
}

void Legende(PeripheriqueFenetre& fenetre, std::string_view texte) {
    fenetre.Definir_Titre(std::string(TitreProgramme) + std::string(texte));
}

void Charger_Regles(PeripheriqueFenetre& fenetre) {
    static constexpr std::string_view groupes[] = {
        " - chargement paramètres (personnages)", " - chargement paramètres (fiefs)",
        " - chargement paramètres (ressources)",  " - chargement paramètres (bâtiments)",
        " - chargement paramètres (objets)",      " - chargement paramètres (monstres)",
        " - chargement paramètres (effets visuels)"};
    for (int n = 0; n < 7; ++n) {
        Legende(fenetre, groupes[n]);
        Param.Init(n);
    }
}

}  // namespace

bool Trouver_Dossier_Jeu(const std::optional<fs::path>& donne) {
    fs::path dossier = Dossier_Par_Defaut();
    if (donne) {
        dossier = *donne;
    } else if (const char* env = std::getenv("KORVALIS_DOSSIER"); env && *env) {
        dossier = env;
    }
    std::error_code erreur;
    if (!fs::is_directory(dossier, erreur) || erreur) {
        Boite_Message("Erreur", "Le dossier du jeu est introuvable ou illisible : " + dossier.string(),
                      GenreMessage::Critique);
        return false;
    }
    Definir_Dossier_Jeu(fs::absolute(dossier, erreur));
    return true;
}

void Demarrer_Programme(PeripheriqueFenetre& fenetre) {
    fenetre.Pomper_Evenements();
    Definir_Graine(static_cast<uint64_t>(std::chrono::system_clock::now().time_since_epoch().count()));

    Legende(fenetre, " - chargement");
    fenetre.Sablier(true);
    Legende(fenetre, " - chargement jeu");
    Jeu.Charger();
    Legende(fenetre, " - chargement messages");
    Commentaires.Charger();
    Legende(fenetre, " - chargement affichage");
    Creer_Affichages();
    Legende(fenetre, " - chargement périphériques");
    Legende(fenetre, " - chargement interface");
    Param = ClsJeuParam{};
    Charger_Regles(fenetre);
    Legende(fenetre, " - chargement sauvegardes");
    Legende(fenetre, " - chargement IAs");
    Legende(fenetre, " - chargement fenêtres");

    fenetre.Definir_Titre(TitreProgramme);
    fenetre.Pomper_Evenements();
    fenetre.Sablier(false);
}

void Reinitialiser_Globales() {
    Reinitialiser_Monde();
    Reinitialiser_IA();
    Reinitialiser_Affichages();
    Param = ClsJeuParam{};
}

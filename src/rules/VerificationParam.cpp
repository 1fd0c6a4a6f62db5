#include "rules/VerificationParam.h"

#include "rules/ClsJeuParam.h"
#include "rules/ClsJeuParamLecteur.h"
#include "rules/ControleRegles.h"
#include "rules/Conversions.h"

namespace {

constexpr int NombreGroupes = 7;

void Exiger_Un(RapportParam& rapport, const char* lieu, int n) {
    if (n < 1) rapport.Signaler(lieu, "il en faut au moins un");
}

// What the game needs of the tables beyond reading them.
void Verifier_Besoins(const ClsJeuParam& p, RapportParam& rapport) {
    Exiger_Un(rapport, "Ini_Parametres_Fiefs.ini:Epoques:NombreEpoques", p.NombreEpoques);
    Exiger_Un(rapport, "Ini_Parametres_Ressources.ini:Ressources:NombreRessources", p.NombreRessources);
    Exiger_Un(rapport, "Ini_Parametres_Monstres.ini:Peuples:NombrePeuples", p.NombrePeuples);

    for (int r = 0; r < p.NombreRessources; ++r)
        if (p.Ressources_NomCompetence(r).empty())
            rapport.Signaler("Ini_Parametres_Ressources.ini:" + Section_Numerotee("Ressource_", r + 1) + ":NomCompetence",
                             "vide : la fenêtre des compétences l'affiche");

    std::vector<int> compte(p.NombrePeuples, 0);
    for (int m = 0; m < p.NombreTotalMonstres; ++m) {
        const int peuple = std::stoi(p.Monstre_Peuple(m));
        if (peuple >= 0 && peuple < p.NombrePeuples) ++compte[peuple];
    }
    for (int n = 0; n < p.NombrePeuples; ++n)
        if (compte[n] != p.Peuples_NombreMonstres(n))
            rapport.Signaler("Ini_Parametres_Monstres.ini:" + Section_Numerotee("Peuple_", n + 1) + ":NombreMonstres",
                             "annonce " + std::to_string(p.Peuples_NombreMonstres(n)) + " monstres, la table en donne " +
                                 std::to_string(compte[n]));
}

}  // namespace

std::vector<std::string> Verifier_Param() {
    RapportParam rapport;
    ClsJeuParam param;
    for (int groupe = 0; groupe < NombreGroupes; ++groupe) param.Init(groupe, rapport);
    rapport.Verifier_Renvois(param);
    Verifier_Besoins(param, rapport);
    Controler_Regles(param, rapport);
    return std::move(rapport.Problemes);
}

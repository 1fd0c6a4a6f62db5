// The rule book in check mode: every problem of the rule files at once, as
// "file:section:key: what is wrong", and never an exit.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "ClsJeuParamRegles.h"
#include "rules/ClsJeuParam.h"
#include "rules/ClsJeuParamLecteur.h"
#include "rules/ControleRegles.h"
#include "rules/VerificationParam.h"

namespace {

using Liste = std::vector<std::string>;

// Problems of loading come first; the checks of a full game follow, and the small folder
// of these tests, with its three resources, breaks several of them.
Liste Debut(const Liste& problemes, std::size_t n) {
    return Liste(problemes.begin(), problemes.begin() + static_cast<std::ptrdiff_t>(std::min(n, problemes.size())));
}

class VerificationParamTest : public ::testing::Test {
protected:
    void SetUp() override {
        Param.Reinitialiser();
        Ecrire_Regles(dossier);
    }
    void TearDown() override { Param.Reinitialiser(); }

    DossierTemporaire dossier;
};

TEST_F(VerificationParamTest, DesReglesBienLuesNeDonnentQueLesControlesDuJeu) {
    // Loaded in game mode (which ends the program on a failure), the same rule book gives
    // exactly the problems of the game-level checks: nothing is wrong with its reading.
    Charger_Groupes(6);
    RapportParam rapport;
    Controler_Regles(Param, rapport);
    EXPECT_FALSE(rapport.Problemes.empty());
    EXPECT_EQ(Verifier_Param(), rapport.Problemes);
}

TEST_F(VerificationParamTest, ListeToutesLesErreursSansQuitter) {
    Remplacer(dossier, "Ini_Parametres_Persos.ini", "PersosMaxVie=100", "PersosMaxVie=cent");
    Remplacer(dossier, "Ini_Parametres_Fiefs.ini", "ChateauxMaxVie=500", "ChateauxMaxVie=40000");
    Remplacer(dossier, "Ini_Parametres_Ressources.ini", "TypeRessource=1", "TypeRessource=0");
    Remplacer(dossier, "Ini_Parametres_Batiments.ini", "ObjetsFabriques(2)=2", "ObjetsFabriques(2)=9");
    Remplacer(dossier, "Ini_Parametres_Objets.ini", "PerteRessourceIndice=2", "PerteRessourceIndice=9");
    Remplacer(dossier, "Ini_Parametres_Monstres.ini", "Peuple=2", "Peuple=5");
    Remplacer(dossier, "Ini_Parametres_Effets.ini", "EffetMaisonEnFeu=1", "EffetMaisonEnFeu=0");
    const Liste attendus{
        "Ini_Parametres_Persos.ini:Personnages:PersosMaxVie: « cent » n'est pas un nombre entier",
        "Ini_Parametres_Fiefs.ini:Chateaux:ChateauxMaxVie: « 40000 » sort des bornes [-32768, 32767]",
        "Ini_Parametres_Ressources.ini:TerrainRessource_1:TypeRessource: ne donne aucune ressource de la table",
        "Ini_Parametres_Objets.ini:Objet_1:PerteRessourceIndice: la ressource brûlée par l'usage n'est pas "
        "dans la table",
        "Ini_Parametres_Batiments.ini:Batiment_2:ObjetsFabriques(2): renvoie hors de la table des objets "
        "(5 entrées)",
        "Ini_Parametres_Monstres.ini:Monstre_1:Peuple: renvoie hors de la table des peuples (2 entrées)",
        "Ini_Parametres_Effets.ini:Effets:EffetMaisonEnFeu: renvoie hors de la table des effets (2 entrées)",
        "Ini_Parametres_Monstres.ini:Peuple_2:NombreMonstres: annonce 2 monstres, la table en donne 1",
    };
    EXPECT_EQ(Debut(Verifier_Param(), attendus.size()), attendus);
}

TEST_F(VerificationParamTest, VerifieChaqueColonneQuiDesigneUneTable) {
    Remplacer(dossier, "Ini_Parametres_Ressources.ini", "TypeMatierePremiere=2", "TypeMatierePremiere=4");
    Remplacer(dossier, "Ini_Parametres_Ressources.ini", "Epoque=2", "Epoque=4");
    Remplacer(dossier, "Ini_Parametres_Batiments.ini", "RessourceFabrique=3", "RessourceFabrique=4");
    Remplacer(dossier, "Ini_Parametres_Batiments.ini", "Service=1", "Service=2");
    Remplacer(dossier, "Ini_Parametres_Batiments.ini", "NoEpoque=2", "NoEpoque=4");
    Remplacer(dossier, "Ini_Parametres_Objets.ini", "TypeMatierePremiere=0", "TypeMatierePremiere=3");
    Remplacer(dossier, "Ini_Parametres_Objets.ini", "Effet=1", "Effet=2");
    Remplacer(dossier, "Ini_Parametres_Objets.ini", "Competence=1", "Competence=0");
    Remplacer(dossier, "Ini_Parametres_Objets.ini", "EffetAttaque=1", "EffetAttaque=2");
    Remplacer(dossier, "Ini_Parametres_Objets.ini", "Epoque=3", "Epoque=4");
    Remplacer(dossier, "Ini_Parametres_Objets.ini", "Invocation=2", "Invocation=3");
    Remplacer(dossier, "Ini_Parametres_Monstres.ini", "EffetAttaque=0", "EffetAttaque=2");
    const std::string r = "renvoie hors de la table des ";
    const Liste attendus{
        "Ini_Parametres_Ressources.ini:Ressource_3:TypeMatierePremiere: " + r + "ressources (3 entrées)",
        "Ini_Parametres_Ressources.ini:Ressource_3:Epoque: " + r + "époques (3 entrées)",
        "Ini_Parametres_Batiments.ini:Batiment_2:NoEpoque: " + r + "époques (3 entrées)",
        "Ini_Parametres_Batiments.ini:Batiment_3:Service: " + r + "services (2 entrées)",
        "Ini_Parametres_Batiments.ini:Batiment_4:RessourceFabrique: " + r + "ressources (3 entrées)",
        "Ini_Parametres_Objets.ini:Service_2:TypeMatierePremiere: " + r + "ressources (3 entrées)",
        "Ini_Parametres_Objets.ini:Service_2:Effet: " + r + "effets (2 entrées)",
        "Ini_Parametres_Objets.ini:Objet_1:Competence: " + r + "compétences d'objets (1 entrées)",
        "Ini_Parametres_Objets.ini:Objet_1:EffetAttaque: " + r + "effets (2 entrées)",
        "Ini_Parametres_Objets.ini:Objet_2:Epoque: " + r + "époques (3 entrées)",
        "Ini_Parametres_Objets.ini:Objet_3:Invocation: " + r + "monstres (2 entrées)",
        "Ini_Parametres_Monstres.ini:Monstre_1:EffetAttaque: " + r + "effets (2 entrées)",
    };
    EXPECT_EQ(Debut(Verifier_Param(), attendus.size()), attendus);
}

TEST_F(VerificationParamTest, SignaleCeQueLeJeuExigeDesTables) {
    Remplacer(dossier, "Ini_Parametres_Fiefs.ini", "NombreEpoques=3", "NombreEpoques=0");
    Remplacer(dossier, "Ini_Parametres_Ressources.ini", "NomCompetence=Menuiserie", "");
    Remplacer(dossier, "Ini_Parametres_Batiments.ini", "Largeur=64", "Largeur=70000");
    const Liste problemes = Verifier_Param();
    const Liste attendus{
        "Ini_Parametres_Batiments.ini:Batiment_1:Largeur: « 70000 » sort des bornes [-32768, 32767]",
        "Ini_Parametres_Fiefs.ini:Epoques:NombreEpoques: il en faut au moins un",
        "Ini_Parametres_Ressources.ini:Ressource_3:NomCompetence: vide : la fenêtre des compétences l'affiche",
    };
    for (const std::string& a : attendus)
        EXPECT_NE(std::find(problemes.begin(), problemes.end(), a), problemes.end()) << a;
}

TEST_F(VerificationParamTest, UnFichierAbsentDonneUneSeuleLigneASonNom) {
    std::filesystem::remove(dossier.Chemin() / "Ini_Parametres_Effets.ini");
    const Liste problemes = Verifier_Param();
    // Keys of other files that point into the now empty table of effects are listed too.
    ASSERT_FALSE(problemes.empty());
    EXPECT_EQ(problemes[0], "Ini_Parametres_Effets.ini: fichier absent");
    EXPECT_EQ(std::count_if(problemes.begin(), problemes.end(),
                            [](const std::string& p) { return p.starts_with("Ini_Parametres_Effets.ini"); }),
              1);
}

TEST_F(VerificationParamTest, LaisseLeLivreDesReglesDuJeuIntact) {
    Charger_Groupes(6);
    Remplacer(dossier, "Ini_Parametres_Ressources.ini", "NombreRessources=3", "NombreRessources=x");
    EXPECT_FALSE(Verifier_Param().empty());
    EXPECT_EQ(Param.NombreRessources, 3);
    EXPECT_EQ(Param.Ressources_Nom(2), "Planches");
}

}  // namespace

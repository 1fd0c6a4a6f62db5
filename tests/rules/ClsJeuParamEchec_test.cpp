// A rule file that cannot be read ends the program: a critical box titled "Erreur" naming
// the last key read and the file, then a non-zero exit, and never a crash.
#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <iostream>

#include "ClsJeuParamRegles.h"
#include "rules/BoiteMessage.h"
#include "rules/ClsJeuParam.h"

namespace {

// Shows the box on stderr in a form the test can match exactly, kind included.
ReponseMessage Temoin(std::string_view titre, std::string_view texte, GenreMessage genre, BoutonsMessage) {
    std::cerr << "<" << titre << "|" << texte << "|" << (genre == GenreMessage::Critique ? "critique" : "autre")
              << ">" << std::endl;
    return ReponseMessage::OK;
}

std::string Litteral(std::string_view texte) {
    std::string motif;
    for (const char c : texte) {
        if (std::strchr("\\^$.|?*+()[]{}", c)) motif += '\\';
        motif += c;
    }
    return motif;
}

std::string Message(std::string_view derniere, std::string_view fichier) {
    return "Une erreur s'est produit pendant le chargement de :" + std::string(derniere) + "(" +
           std::string(fichier) + ").";
}

struct CasEchec {
    const char* nom;
    int groupe;            // groups 0 to this one are loaded
    const char* fichier;   // rule file changed, without extension
    const char* ancienne;  // line replaced; null: the file is removed
    const char* nouvelle;
    const char* derniere;  // DerniereLigne expected in the message
};

void PrintTo(const CasEchec& c, std::ostream* os) { *os << c.nom; }

class EchecChargement : public ::testing::TestWithParam<CasEchec> {};

TEST_P(EchecChargement, AfficheLaDerniereCleLueEtQuitte) {
    const CasEchec& c = GetParam();
    Param.Reinitialiser();
    DossierTemporaire dossier;
    Ecrire_Regles(dossier);
    const std::string fichier = std::string(c.fichier) + ".ini";
    if (c.ancienne)
        Remplacer(dossier, fichier, c.ancienne, c.nouvelle);
    else
        std::filesystem::remove(dossier.Chemin() / fichier);

    const std::string attendu = "<Erreur|" + Message(c.derniere, c.fichier) + "|critique>";
    EXPECT_EXIT(
        {
            Definir_Afficheur_Message(Temoin);
            Charger_Groupes(c.groupe);
        },
        ::testing::ExitedWithCode(1), Litteral(attendu));
}

const CasEchec Cas[] = {
    {"ReelStrictVide", 0, "Ini_Parametres_Persos", "CoefficientAchat=1.5", "CoefficientAchat=", "CoefficientAchat="},
    {"EntierStrictIllisible", 0, "Ini_Parametres_Persos", "PersosMaxVie=100", "PersosMaxVie=cent", "PersosMaxVie=cent"},
    {"EntierStrictDecimal", 0, "Ini_Parametres_Persos", "PersosVitesse=3", "PersosVitesse=3.5", "PersosVitesse=3.5"},
    {"EntierStrictHorsDuType", 1, "Ini_Parametres_Fiefs", "ChateauxMaxVie=500", "ChateauxMaxVie=40000",
     "ChateauxMaxVie=40000"},
    {"CleStrictAbsente", 1, "Ini_Parametres_Fiefs", "BonusVieChateau=0", "", "BonusVieChateau="},
    {"TailleNegative", 2, "Ini_Parametres_Ressources", "NombreRessources=3", "NombreRessources=-1",
     "NombreRessources=-1"},
    {"IndiceStrictVide", 2, "Ini_Parametres_Ressources", "TypeRessource=1", "TypeRessource=", "TypeRessource="},
    // The link of deposits to resources runs after the last key of the group.
    {"GisementSansRessource", 2, "Ini_Parametres_Ressources", "TypeRessource=1", "TypeRessource=4", "Quantite=50"},
    {"MaxVieIllisible", 3, "Ini_Parametres_Batiments", "MaxVie=300", "MaxVie=solide", "MaxVie=solide"},
    {"ObjetFabriqueDecimal", 3, "Ini_Parametres_Batiments", "ObjetsFabriques(2)=2", "ObjetsFabriques(2)=2.0",
     "ObjetsFabriques(2)=2.0"},
    {"FichierAbsent", 3, "Ini_Parametres_Batiments", nullptr, nullptr, ""},
    {"CategorieVide", 4, "Ini_Parametres_Objets", "Categorie=5", "Categorie=", "Categorie="},
    {"NumeroIllisible", 4, "Ini_Parametres_Objets", "Numero=7", "Numero=sept", "Numero=sept"},
    {"RessourceBruleeHorsTable", 4, "Ini_Parametres_Objets", "PerteRessourceIndice=2", "PerteRessourceIndice=9",
     "PerteRessourceQuantite=0.5"},
    {"NombreTotalMonstresVide", 5, "Ini_Parametres_Monstres", "NombreTotalMonstres=2", "NombreTotalMonstres=",
     "NombreTotalMonstres="},
    {"NombreEffetsIllisible", 6, "Ini_Parametres_Effets", "NombreEffets=2", "NombreEffets=deux",
     "NombreEffets=deux"},
};

INSTANTIATE_TEST_SUITE_P(ClsJeuParam, EchecChargement, ::testing::ValuesIn(Cas),
                         [](const auto& info) { return std::string(info.param.nom); });

TEST(ClsJeuParamEchec, SansEcranLeMessageVaSurLaSortieDErreur) {
    Param.Reinitialiser();
    DossierTemporaire dossier;
    Ecrire_Regles(dossier);
    Remplacer(dossier, "Ini_Parametres_Persos.ini", "PersosMaxVie=100", "PersosMaxVie=");
    EXPECT_EXIT(
        {
            Definir_Afficheur_Message(nullptr);
            Param.Init(0);
        },
        ::testing::ExitedWithCode(1), Litteral(Message("PersosMaxVie=", "Ini_Parametres_Persos")));
}

TEST(ClsJeuParamEchec, UneCleSoupleNeFaitJamaisEchouer) {
    Param.Reinitialiser();
    DossierTemporaire dossier;
    Ecrire_Regles(dossier);
    Remplacer(dossier, "Ini_Parametres_Monstres.ini", "Attaque=8", "Attaque=féroce");
    Remplacer(dossier, "Ini_Parametres_Monstres.ini", "NombreMonstres=2", "NombreMonstres=");
    Charger_Groupes(6);
    EXPECT_EQ(Param.Monstre_Attaque(0), 0);
    EXPECT_EQ(Param.Peuples_NombreMonstres(1), 0);
    Param.Reinitialiser();
}

}  // namespace

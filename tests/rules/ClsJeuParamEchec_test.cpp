// A strict rule key that cannot be read ends the program: a critical box titled "Erreur"
// naming the last key read and its file, then exit code 1.
#include <gtest/gtest.h>

#include <cstring>
#include <iostream>

#include "ClsJeuParamRegles.h"
#include "rules/BoiteMessage.h"

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

std::string Message(const CleRegle& c, const std::string& valeur) {
    return "Une erreur s'est produit pendant le chargement de :" + std::string(c.Cle) + "=" + valeur + "(" +
           std::filesystem::path(c.Fichier).stem().string() + ").";
}

struct CasEchec {
    CleRegle Cle;
    const char* Valeur;
};

const CasEchec Cas[] = {
    {{FichierPersos, "Transactions", "CoefficientAchat"}, ""},
    {{FichierPersos, "Personnages", "PersosMaxVie"}, "cent"},
    {{FichierPersos, "Personnages", "PersosVitesse"}, "3.5"},
    {{FichierFiefs, "Chateaux", "ChateauxMaxVie"}, "40000"},
    {{FichierRessources, "TerrainRessource_1", "TypeRessource"}, ""},
    {{FichierBatiments, "Batiment_2", "MaxVie"}, "solide"},
    {{FichierObjets, "CompetenceObjet_1", "Numero"}, "1.0"},
    {{FichierMonstres, "Monstres", "NombreTotalMonstres"}, "-1"},
    {{FichierEffets, "Effets", "NombreEffets"}, "deux"},
};

TEST(ClsJeuParamEchec, UneCleStricteIllisibleArreteLeJeuSurSonNom) {
    for (const CasEchec& c : Cas) {
        Param.Reinitialiser();
        ReglesCopiees regles;
        regles.Modifier(c.Cle, c.Valeur);
        EXPECT_EXIT(
            {
                Definir_Afficheur_Message(Temoin);
                Charger_Groupes();
            },
            ::testing::ExitedWithCode(1), Litteral("<Erreur|" + Message(c.Cle, c.Valeur) + "|critique>"))
            << c.Cle.Lieu();
    }
}

TEST(ClsJeuParamEchec, SansAfficheurLeMessageVaSurLaSortieDErreur) {
    Param.Reinitialiser();
    ReglesCopiees regles;
    const CleRegle cle{FichierPersos, "Personnages", "PersosMaxVie"};
    regles.Modifier(cle, "");
    EXPECT_EXIT(
        {
            Definir_Afficheur_Message(nullptr);
            Param.Init(0);
        },
        ::testing::ExitedWithCode(1), Litteral("Erreur: " + Message(cle, "")));
}

}  // namespace

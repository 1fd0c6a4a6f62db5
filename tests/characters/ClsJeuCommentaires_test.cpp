#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

#include "Support.h"
#include "characters/ClsJeuCommentaires.h"
#include "rules/ClsFicINI.h"
#include "rules/Hasard.h"
#include "rules/Horloge.h"
#include "world/Globales.h"

namespace {

// The phrase book of the default game folder, copied so that its writes stay in the copy.
class Commentaires_Test : public ::testing::Test {
protected:
    DossierTemporaire jeu;
    ClsFicINI livre;

    void SetUp() override {
        Reinitialiser_Monde();
        std::filesystem::copy_file(std::filesystem::path(KORVALIS_DATA) / "Ini_Commentaires.ini",
                                   jeu.Chemin() / "Ini_Commentaires.ini");
        livre.Fichier = "Ini_Commentaires";
        livre.Section = "Commentaires";
        Commentaires.Charger();
    }
    void TearDown() override {
        Reinitialiser_Monde();
        Piloter_Horloge(0);
    }
};

}  // namespace

TEST_F(Commentaires_Test, LeLivreDuJeuParleDeChaqueSituation) {
    EXPECT_TRUE(Commentaires.Definir_Afficher());
    ASSERT_EQ(Commentaires.Nombre_Types(), 35);
    for (int t = 0; t <= 34; ++t) {
        const int n = Commentaires.Nombre_Messages(t);
        EXPECT_GE(n, 4) << "type " << t;
        std::set<std::string> differentes;
        for (int k = 0; k < n; ++k) {
            const std::string& phrase = Commentaires.Phrase(t, k);
            EXPECT_FALSE(phrase.empty()) << "type " << t << " phrase " << k;
            EXPECT_LE(phrase.size(), 60u) << phrase;
            EXPECT_EQ(phrase.find('#'), std::string::npos) << phrase;   // drawn as is
            differentes.insert(phrase);
        }
        EXPECT_EQ(differentes.size(), static_cast<std::size_t>(n)) << "type " << t;
    }
}

TEST_F(Commentaires_Test, MessageTireParmiLesPhrasesDuTypeEtRienSansPhrase) {
    std::set<std::string> toutes, vues;
    for (int k = 0; k < Commentaires.Nombre_Messages(0); ++k) toutes.insert(Commentaires.Phrase(0, k));
    for (int i = 0; i < 300; ++i) vues.insert(Commentaires.Message(0));
    EXPECT_EQ(vues, toutes);

    livre.Section = "Commentaires_2";
    livre.Parametre("NombreMessages", "0");
    Commentaires.Charger();
    Definir_Graine(11);
    const float premier = Rnd();
    Definir_Graine(11);
    for (int type : {-1, 1, 35}) EXPECT_EQ(Commentaires.Message(type), "") << type;
    EXPECT_EQ(Rnd(), premier);   // no draw spent
}

TEST(Commentaires, FichierAbsentDonneUnLivreVide) {
    DossierTemporaire jeu;
    ClsJeuCommentaires livre;
    livre.Charger();
    EXPECT_FALSE(livre.Definir_Afficher());
    EXPECT_EQ(livre.Duree, 0);
    EXPECT_EQ(livre.Nombre_Types(), 0);
    EXPECT_EQ(livre.Message(0), "");
}

// At 0.5 s a letter, "Salut" stays 2.5 s and "Éa" (two letters, three bytes) 1 s.
TEST_F(Commentaires_Test, UnCommentaireResteSelonSesLettresEtNEstPasRemplaceAvant) {
    livre.Parametre("Duree", "0.5");
    Commentaires.Charger();
    EXPECT_FALSE(Commentaires.Expire("\xC3\x89" "a", 100, 101));
    EXPECT_TRUE(Commentaires.Expire("\xC3\x89" "a", 100, 101.25));
    EXPECT_TRUE(Commentaires.Expire("Salut", 86399, 1));   // the clock wrapped at midnight

    Persos.resize(3);
    ClsJeuPerso& bavard = Persos[0];
    Persos[1].Parole = false;
    Persos[2].Vie.Valeur = 0;   // dead: nothing drawn, but the comment still expires
    Piloter_Horloge(50);
    for (ClsJeuPerso& p : Persos) p.Definir_Commentaires("Salut");
    EXPECT_EQ(Persos[1].Commentaire, "");
    Piloter_Horloge(51);
    bavard.Definir_Commentaires("Autre chose");
    EXPECT_EQ(bavard.Commentaire, "Salut");   // kept while it shows
    Expirer_Commentaires(52.5);
    EXPECT_EQ(bavard.Commentaire, "Salut");
    Expirer_Commentaires(52.625);
    EXPECT_EQ(bavard.Commentaire, "");
    EXPECT_EQ(Persos[2].Commentaire, "");
    bavard.Definir_Commentaires("Autre chose");
    EXPECT_EQ(bavard.Commentaire, "Autre chose");

    // Hidden comments never expire; the choice is written to the file at once.
    Commentaires.Definir_Afficher(false);
    Expirer_Commentaires(1000);
    EXPECT_EQ(bavard.Commentaire, "Autre chose");
    ClsJeuCommentaires relu;
    relu.Charger();
    EXPECT_FALSE(relu.Definir_Afficher());
    EXPECT_EQ(relu.Phrase(0, 1), Commentaires.Phrase(0, 1));   // the rest of the file is kept
}

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "Support.h"
#include "characters/ClsJeuCommentaires.h"
#include "rules/Chemins.h"
#include "rules/Hasard.h"
#include "rules/Horloge.h"
#include "world/Globales.h"

namespace {

// Type 0 has three phrases; type 1 none; type 2 claims five but the table holds three;
// type 3 has no section at all.
constexpr std::string_view PetitLivre = R"([Commentaires]
Afficher=1
Duree=0.5
Couleur=65535
DecalageX=-8
DecalageY=-20
NombreTypeMessages=4
NombreMaxMessagesParType=3
[Commentaires_1]
NombreMessages=3
Message(1)=Un
Message(2)=Deux
Message(3)=Trois
[Commentaires_2]
NombreMessages=0
Message(1)=Jamais
[Commentaires_3]
NombreMessages=5
Message(1)=A
Message(2)=B
Message(3)=C
Message(4)=Quatre
)";

class Commentaires_Test : public ::testing::Test {
protected:
    DossierTemporaire jeu;
    void SetUp() override {
        Reinitialiser_Monde();
        jeu.Ecrire("Ini_Commentaires.ini", PetitLivre);
        Commentaires.Charger();
    }
    void TearDown() override { Reinitialiser_Monde(); }
};

}  // namespace

TEST_F(Commentaires_Test, LectureDuLivre) {
    EXPECT_TRUE(Commentaires.Definir_Afficher());
    EXPECT_EQ(Commentaires.Duree, 0.5);
    EXPECT_EQ(Commentaires.Couleur, 65535);
    EXPECT_EQ(Commentaires.DecalageX, -8);
    EXPECT_EQ(Commentaires.DecalageY, -20);
    EXPECT_EQ(Commentaires.Nombre_Types(), 4);
    EXPECT_EQ(Commentaires.Nombre_Messages(0), 3);
    EXPECT_EQ(Commentaires.Phrase(0, 0), "Un");
    EXPECT_EQ(Commentaires.Phrase(0, 2), "Trois");
    EXPECT_EQ(Commentaires.Phrase(0, 3), "");
    EXPECT_EQ(Commentaires.Phrase(0, -1), "");
    // A type never holds more phrases than the table has room for.
    EXPECT_EQ(Commentaires.Nombre_Messages(2), 3);
    EXPECT_EQ(Commentaires.Phrase(2, 2), "C");
    EXPECT_EQ(Commentaires.Phrase(2, 3), "");
    // A missing section is a type without phrases.
    EXPECT_EQ(Commentaires.Nombre_Messages(3), 0);
}

TEST_F(Commentaires_Test, MessageTireUnePhraseDuType) {
    Definir_Graine(7);
    const float tirage = Rnd();
    Definir_Graine(7);
    EXPECT_EQ(Commentaires.Message(0), Commentaires.Phrase(0, static_cast<int32_t>(tirage * 3.0)));

    std::set<std::string> vues;
    for (int i = 0; i < 300; ++i) vues.insert(Commentaires.Message(0));
    EXPECT_EQ(vues, (std::set<std::string>{"Un", "Deux", "Trois"}));

    vues.clear();
    for (int i = 0; i < 300; ++i) vues.insert(Commentaires.Message(2));
    EXPECT_EQ(vues, (std::set<std::string>{"A", "B", "C"}));
}

TEST_F(Commentaires_Test, TypeSansPhraseDonneLeTexteVideSansTirage) {
    Definir_Graine(11);
    const float premier = Rnd();
    Definir_Graine(11);
    for (int type : {-1, -5, 1, 3, 4, 1000}) EXPECT_EQ(Commentaires.Message(type), "") << type;
    EXPECT_EQ(Rnd(), premier);
}

TEST_F(Commentaires_Test, AfficherEstEcritAussitot) {
    Commentaires.Definir_Afficher(false);
    EXPECT_FALSE(Commentaires.Definir_Afficher());
    EXPECT_NE(jeu.Lire("Ini_Commentaires.ini").find("Afficher=0"), std::string::npos);
    ClsJeuCommentaires relu;
    relu.Charger();
    EXPECT_FALSE(relu.Definir_Afficher());
    EXPECT_EQ(relu.Phrase(0, 1), "Deux");   // the rest of the file is kept

    Commentaires.Definir_Afficher(true);
    relu.Charger();
    EXPECT_TRUE(relu.Definir_Afficher());
}

TEST(Commentaires, FichierAbsentDonneUnLivreVide) {
    DossierTemporaire jeu;
    ClsJeuCommentaires livre;
    livre.Charger();
    EXPECT_FALSE(livre.Definir_Afficher());
    EXPECT_EQ(livre.Duree, 0);
    EXPECT_EQ(livre.Nombre_Types(), 0);
    EXPECT_EQ(livre.Message(0), "");

    jeu.Ecrire("Ini_Commentaires.ini", "[Autre]\nNombreTypeMessages=3\n");
    livre.Charger();
    EXPECT_EQ(livre.Nombre_Types(), 0);
    EXPECT_EQ(livre.Message(0), "");
}

// Duree 0.5 s a letter: "Salut" stays 2.5 s, "Éa" (two letters, three bytes) 1 s.
TEST_F(Commentaires_Test, ExpirationParLettre) {
    EXPECT_FALSE(Commentaires.Expire("Salut", 100, 102.5));
    EXPECT_TRUE(Commentaires.Expire("Salut", 100, 102.625));
    EXPECT_FALSE(Commentaires.Expire("\xC3\x89" "a", 100, 101));
    EXPECT_TRUE(Commentaires.Expire("\xC3\x89" "a", 100, 101.25));
    // The difference is absolute: a clock that went back, or wrapped at midnight.
    EXPECT_TRUE(Commentaires.Expire("Salut", 100, 97));
    EXPECT_TRUE(Commentaires.Expire("Salut", 86399, 1));
}

TEST_F(Commentaires_Test, ExpirerParcourtTousLesPersos) {
    Persos.resize(3);
    for (ClsJeuPerso& p : Persos) {
        p.Commentaire = "Salut";
        p.DateCommentaire = 100;
    }
    Persos[1].Vie.Valeur = 0;   // dead: nothing drawn, but the comment still expires
    Persos[2].Commentaire = "Bonjour à tous";
    ASSERT_FALSE(Persos[1].Vivant());

    Expirer_Commentaires(103);
    EXPECT_EQ(Persos[0].Commentaire, "");
    EXPECT_EQ(Persos[1].Commentaire, "");
    EXPECT_EQ(Persos[2].Commentaire, "Bonjour à tous");
    Expirer_Commentaires(107.25);   // 14 letters, 15 bytes: 7 s
    EXPECT_EQ(Persos[2].Commentaire, "");
}

TEST_F(Commentaires_Test, RienNExpireQuandLesParolesSontCachees) {
    Commentaires.Definir_Afficher(false);
    Persos.resize(1);
    Persos[0].Commentaire = "Salut";
    Persos[0].DateCommentaire = 0;
    Expirer_Commentaires(1000);
    EXPECT_EQ(Persos[0].Commentaire, "Salut");
}

// The whole path of a phrase: drawn from the book, taken by the character, kept while it
// shows, then gone.
TEST_F(Commentaires_Test, UnePhraseAuPlusParPersonnage) {
    Persos.resize(2);
    ClsJeuPerso& bavard = Persos[0];
    ClsJeuPerso& muet = Persos[1];
    muet.Parole = false;
    Piloter_Horloge(50);

    bavard.Definir_Commentaires(Commentaires.Message(1));   // a type without phrases
    EXPECT_EQ(bavard.Commentaire, "");

    bavard.Definir_Commentaires(Commentaires.Message(0));
    const std::string premiere = bavard.Commentaire;
    EXPECT_FALSE(premiere.empty());
    EXPECT_EQ(bavard.DateCommentaire, 50);

    Piloter_Horloge(50.5f);
    bavard.Definir_Commentaires("Autre chose");
    EXPECT_EQ(bavard.Commentaire, premiere);   // dropped while the first one shows
    bavard.Definir_Commentaires("");
    bavard.Definir_Commentaires("Autre chose");
    EXPECT_EQ(bavard.Commentaire, "Autre chose");

    for (int t = 0; t < 3; ++t) muet.Definir_Commentaires(Commentaires.Message(t));
    EXPECT_EQ(muet.Commentaire, "");

    Expirer_Commentaires(56);   // "Autre chose", said at 50.5, 11 letters: 5.5 s
    EXPECT_EQ(bavard.Commentaire, "Autre chose");
    Expirer_Commentaires(56.25);
    EXPECT_EQ(bavard.Commentaire, "");
    Piloter_Horloge(0);
}

// The default game folder speaks in every situation of the rules, with variety.
TEST(Commentaires, LeLivreDuJeuParleDeChaqueSituation) {
    Definir_Dossier_Jeu(KORVALIS_DATA);
    ClsJeuCommentaires livre;
    livre.Charger();
    EXPECT_TRUE(livre.Definir_Afficher());
    EXPECT_GT(livre.Duree, 0);
    ASSERT_EQ(livre.Nombre_Types(), 35);
    for (int t = 0; t <= 34; ++t) {
        const int n = livre.Nombre_Messages(t);
        EXPECT_GE(n, 4) << "type " << t;
        EXPECT_LE(n, 8) << "type " << t;
        std::set<std::string> differentes;
        for (int k = 0; k < n; ++k) {
            const std::string& phrase = livre.Phrase(t, k);
            EXPECT_FALSE(phrase.empty()) << "type " << t << " phrase " << k;
            EXPECT_LE(phrase.size(), 60u) << phrase;
            EXPECT_EQ(phrase.find('#'), std::string::npos) << phrase;   // drawn as is
            differentes.insert(phrase);
        }
        EXPECT_EQ(differentes.size(), static_cast<std::size_t>(n)) << "type " << t;
    }
}

#include <gtest/gtest.h>

#include "rules/BoiteMessage.h"
#include "rules/Horloge.h"

TEST(Horloge, PiloteeTourneAMinuit) {
    Piloter_Horloge(86399.5f);
    EXPECT_EQ(Horloge(), 86399.5f);
    Avancer_Horloge(1.0f);
    EXPECT_EQ(Horloge(), 0.5f);
    Avancer_Horloge(-1.0f);
    EXPECT_EQ(Horloge(), 86399.5f);
    Piloter_Horloge(90000.0f);
    EXPECT_EQ(Horloge(), 3600.0f);
    Piloter_Horloge(86400.0f);
    EXPECT_EQ(Horloge(), 0.0f);
}

TEST(Horloge, SourceInstalleePuisPilotee) {
    Definir_Source_Horloge([] { return 86399.999f; });   // rounds to 86400 in a float
    EXPECT_EQ(Horloge(), 0.0f);
    Definir_Source_Horloge([] { return 1234.5f; });
    EXPECT_EQ(Horloge(), 1234.5f);
    Avancer_Horloge(0.5f);   // from the source's time, then driven
    EXPECT_EQ(Horloge(), 1235.0f);
    Definir_Source_Horloge(nullptr);
    EXPECT_EQ(Horloge(), 1235.0f);
}

TEST(BoiteMessage, SortieErreurParDefautEtAfficheurInstalle) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(Boite_Message("Erreur", "Fichier manquant", GenreMessage::Critique), ReponseMessage::OK);
    EXPECT_EQ(Boite_Message("Quitter", "Sûr ?", GenreMessage::Question, BoutonsMessage::OuiNon), ReponseMessage::Oui);
    EXPECT_EQ(Boite_Message("Sauver", "Écraser ?", GenreMessage::Question, BoutonsMessage::OKAnnuler), ReponseMessage::OK);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Erreur: Fichier manquant\nQuitter: Sûr ?\nSauver: Écraser ?\n");

    std::string vu;
    Definir_Afficheur_Message([&](std::string_view titre, std::string_view texte, GenreMessage, BoutonsMessage) {
        vu = std::string(titre) + "|" + std::string(texte);
        return ReponseMessage::Non;
    });
    EXPECT_EQ(Boite_Message("T", "X", GenreMessage::Question, BoutonsMessage::OuiNon), ReponseMessage::Non);
    EXPECT_EQ(vu, "T|X");

    Definir_Afficheur_Message(nullptr);
    testing::internal::CaptureStderr();
    EXPECT_EQ(Boite_Message("A", "B", GenreMessage::Question, BoutonsMessage::OuiNon), ReponseMessage::Oui);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "A: B\n");
}

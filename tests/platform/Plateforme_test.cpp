#include <gtest/gtest.h>

#include <cmath>
#include <ctime>

#include "Environnement.h"
#include "platform/Plateforme.h"
#include "rules/BoiteMessage.h"
#include "rules/Horloge.h"

TEST(Plateforme, AffichageSelonLEnvironnementEtSansEcranLesMessagesSurErreurStandard) {
    VariableTemporaire x11("DISPLAY", ":0");
    VariableTemporaire wayland("WAYLAND_DISPLAY", nullptr);
    for (const char* pilote : {"dummy", "offscreen"}) {
        VariableTemporaire p("SDL_VIDEODRIVER", pilote);
        EXPECT_FALSE(Affichage_Disponible()) << pilote;
    }
    {
        VariableTemporaire sans_pilote("SDL_VIDEODRIVER", nullptr);
        EXPECT_TRUE(Affichage_Disponible());
        VariableTemporaire sans_x11("DISPLAY", nullptr);
        EXPECT_FALSE(Affichage_Disponible());
        VariableTemporaire avec_wayland("WAYLAND_DISPLAY", "wayland-0");
        EXPECT_TRUE(Affichage_Disponible());
    }

    VariableTemporaire pilote("SDL_VIDEODRIVER", "dummy");
    Installer_Plateforme();
    testing::internal::CaptureStderr();
    EXPECT_EQ(Boite_Message("Korvalis", "Bonjour", GenreMessage::Question, BoutonsMessage::OuiNon), ReponseMessage::Oui);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Korvalis: Bonjour\n");
    Piloter_Horloge(0);
}

// The system clock is the local time of day: under a zone five hours east of UTC it is five
// hours past the UTC time of day (give or take the second it takes to read both).
TEST(Plateforme, HorlogeSystemeEnHeureLocale) {
    VariableTemporaire zone("TZ", "UTC-5");
    tzset();
    const auto attendu = static_cast<double>((std::time(nullptr) + 5 * 3600) % 86400);
    const auto ecart = [attendu](double lu) {
        const double e = std::fmod(lu - attendu + 86400.0, 86400.0);
        return std::min(e, 86400.0 - e);
    };
    const float lu = Horloge_Systeme();
    EXPECT_LT(ecart(lu), 2.0) << lu << " vs " << attendu;
    EXPECT_GE(lu, 0.0f);
    EXPECT_LT(lu, SecondesParJour);

    Installer_Plateforme();
    EXPECT_LT(ecart(Horloge()), 2.0);   // installed as the game's clock
    Piloter_Horloge(0);
    Definir_Afficheur_Message(nullptr);
}

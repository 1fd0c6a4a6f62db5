// The screen file, and the screen opened offscreen on SDL's dummy driver.
#include <gtest/gtest.h>

#include <set>

#include "Environnement.h"
#include "Images.h"
#include "Support.h"
#include "platform/ClsPerEcran.h"
#include "rules/BoiteMessage.h"
#include "rules/Chemins.h"

namespace {

constexpr const char* ErreurInit = "Une erreur a eu lieu durant l'initalisation de DirectDraw";
constexpr const char* EchecFenetre = "Echec de la création de la surface DirectDraw";

TEST(Ecran, LectureDuFichier) {
    const std::string tailles = "[Resolution_1]\nLargeur=800\nHauteur=600\n[Resolution_2]\nLargeur=1024\nHauteur=768\n"
                                "[Resolution_3]\nLargeur=1280\nHauteur=720\n";
    struct Cas {
        const char* ecran;
        bool fenetre;
        int16_t nombre, resolution;
        int32_t largeur, hauteur;
    } const cas[] = {
        {"ModeFenetre=1\nNombreResolution=3\nResolution=2", true, 3, 1, 1024, 768},
        {"ModeFenetre=0\nNombreResolution=3\nResolution=3", false, 3, 2, 1280, 720},
        {"ModeFenetre=2\nNombreResolution=2\nResolution=3", true, 2, 2, 800, 600},   // beyond the list: first row
        {"NombreResolution=3\nResolution=0", false, 3, -1, 800, 600},                 // 0 is no row: the first
        {"NombreResolution=2.5\nResolution=2.5", false, 2, 2, 800, 600},              // halves to even: 2 and 1.5 -> 2
        {"ModeFenetre=oui\nNombreResolution=3abc\nResolution=1", false, 3, 0, 800, 600},
        {"", false, 0, -1, 0, 0},
    };
    for (const Cas& c : cas) {
        DossierTemporaire jeu;
        jeu.Ecrire("Ini_Ecran.ini", std::string("[Ecran]\n") + c.ecran + "\n" + tailles);
        const ClsPerEcran e;
        EXPECT_EQ(e.ModeFenetre, c.fenetre) << c.ecran;
        EXPECT_EQ(e.Nombre_Resolutions(), c.nombre) << c.ecran;
        EXPECT_EQ(e.Resolution, c.resolution) << c.ecran;
        EXPECT_EQ(e.Width(), c.largeur) << c.ecran;
        EXPECT_EQ(e.Height(), c.hauteur) << c.ecran;
    }
}

TEST(Ecran, UneResolutionChoisieSEcritEtVautAuProchainLancement) {
    DossierTemporaire jeu;
    Ecrire_Ini_Ecran(jeu, false, {{800, 600}, {1024, 768}, {1920, 1080}}, 1);
    ClsPerEcran e;
    EXPECT_EQ(e.Definir_ResolutionX(2), 1920);
    EXPECT_EQ(e.Definir_ResolutionY(2), 1080);
    EXPECT_EQ(e.Definir_ResolutionX(3), 0);
    e.Definir_Resolution(2);
    EXPECT_EQ(e.Resolution, 2);
    EXPECT_EQ(e.Width(), 800);   // not before the next start
    EXPECT_NE(jeu.Lire("Ini_Ecran.ini").find("Resolution=3\n"), std::string::npos);
    const ClsPerEcran suivant;
    EXPECT_EQ(suivant.Width(), 1920);
    EXPECT_EQ(suivant.Height(), 1080);
}

TEST(Ecran, UneTailleQuiNEstPasUnEntierArreteLeProgramme) {
    DossierTemporaire jeu;
    jeu.Ecrire("Ini_Ecran.ini", "[Ecran]\nNombreResolution=1\n[Resolution_1]\nLargeur=800.5\nHauteur=600\n");
    EXPECT_EXIT(ClsPerEcran{}, ::testing::ExitedWithCode(1), "Ini_Ecran");
}

// The default game offers the usual sizes, each width once, since a width names the
// pictures and the layout that go with it.
TEST(Ecran, LeJeuParDefautOffreDesLargeursDistinctes) {
    Definir_Dossier_Jeu(KORVALIS_DATA);
    const ClsPerEcran e;
    std::set<std::pair<int, int>> tailles;
    std::set<int> largeurs;
    for (int i = 0; i < e.Nombre_Resolutions(); ++i) {
        tailles.insert({e.Definir_ResolutionX(i), e.Definir_ResolutionY(i)});
        largeurs.insert(e.Definir_ResolutionX(i));
    }
    EXPECT_EQ(largeurs.size(), static_cast<std::size_t>(e.Nombre_Resolutions()));
    for (const auto& t : {std::pair{1024, 768}, std::pair{1280, 720}, std::pair{1920, 1080}})
        EXPECT_TRUE(tailles.count(t)) << t.first << "x" << t.second;
    EXPECT_GT(e.Width(), 0);
}

class EcranOuvert : public ::testing::Test {
protected:
    VariableTemporaire pilote{"SDL_VIDEODRIVER", "dummy"};
    DossierTemporaire jeu;
    MessagesVus messages;
};

// In a window the back buffer is the Fond picture of the width, with that picture's size.
TEST_F(EcranOuvert, EnFenetreLeTamponEstLImageDeFond) {
    Ecrire_Ini_Ecran(jeu, true, {{16, 8}}, 1);
    std::vector<int32_t> fond(15 * 8, 0x123456);
    fond[0] = 0x0000FF;
    jeu.Ecrire("Images/Fond16.bmp", Bmp_24(15, fond));
    ClsPerEcran e;
    ASSERT_TRUE(e.Init());
    EXPECT_TRUE(messages.textes.empty());
    EXPECT_TRUE(e.Affiche());
    ASSERT_NE(e.Tampon(), nullptr);
    EXPECT_EQ(e.Tampon()->Largeur(), 15);
    EXPECT_EQ(e.Tampon()->Lire_Pixel(0, 0), 0x0000FF);
    EXPECT_EQ(e.Tampon()->Lire_Pixel(14, 7), 0x123456);
    EXPECT_EQ(EcranLargeur, 16);
    EXPECT_EQ(EcranHauteur, 8);
    e.Presenter_Image();
    e.Pomper_Evenements();
    e.Fermer_Ecran();
    EXPECT_FALSE(e.Affiche());
    EXPECT_EQ(e.Tampon(), nullptr);
}

TEST_F(EcranOuvert, EnPleinEcranLeTamponEstNoirALaTailleChoisie) {
    Ecrire_Ini_Ecran(jeu, false, {{40, 30}, {64, 48}}, 2);
    ClsPerEcran e;
    ASSERT_TRUE(e.Init());
    ASSERT_NE(e.Tampon(), nullptr);
    EXPECT_EQ(e.Tampon()->Largeur(), 64);
    EXPECT_EQ(e.Tampon()->Hauteur(), 48);
    EXPECT_EQ(e.Tampon()->Lire_Pixel(63, 47), 0);
    e.Tampon()->Remplir(0xFFFFFF);
    e.Presenter_Image();
    EXPECT_TRUE(messages.textes.empty());
}

// A missing Fond is an error of the opening, told, but the game still gets its buffer.
TEST_F(EcranOuvert, SansImageDeFondUneErreurEtUnTamponQuandMeme) {
    Ecrire_Ini_Ecran(jeu, true, {{40, 30}}, 1);
    ClsPerEcran e;
    EXPECT_TRUE(e.Init());
    EXPECT_EQ(messages.textes, std::vector<std::string>{ErreurInit});
    ASSERT_NE(e.Tampon(), nullptr);
    EXPECT_EQ(e.Tampon()->Largeur(), 40);
}

TEST_F(EcranOuvert, SansResolutionPasDEcranEtDeuxMessages) {
    ClsPerEcran e;
    EXPECT_FALSE(e.Init());
    EXPECT_EQ(messages.textes, (std::vector<std::string>{ErreurInit, EchecFenetre}));
    EXPECT_FALSE(e.Affiche());
    EXPECT_EQ(e.Tampon(), nullptr);
}

}  // namespace

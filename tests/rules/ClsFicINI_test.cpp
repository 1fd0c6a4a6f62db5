#include <gtest/gtest.h>

#include <string>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Support.h"
#include "rules/ClsFicINI.h"

namespace {

ClsFicINI Ini(std::string fichier, std::string section) {
    ClsFicINI ini;
    ini.Fichier = std::move(fichier);
    ini.Section = std::move(section);
    return ini;
}

}  // namespace

TEST(Ini, AbsentLitVide) {
    DossierTemporaire jeu;
    ClsFicINI absent = Ini("Ini_Absent", "Jeu");
    EXPECT_EQ(absent.Parametre("FPS"), "");
    EXPECT_EQ(absent.DerniereLigne, "FPS=");

    jeu.Ecrire("Ini_Jeu.ini", "Orphelin=1\n[Vitesse]\nFPS=40\n");
    ClsFicINI ini = Ini("Ini_Jeu", "Ecran");
    EXPECT_EQ(ini.Parametre("FPS"), "");
    ini.Section = "Vitesse";
    EXPECT_EQ(ini.Parametre("Vitesse"), "");
    EXPECT_EQ(ini.Parametre("Orphelin"), "");   // a key before any section belongs to none
    EXPECT_EQ(ini.Parametre("FPS"), "40");
}

TEST(Ini, SectionParDefautEtDerniereLigne) {
    DossierTemporaire jeu;
    jeu.Ecrire("Ini_Jeu.ini", "[Autre]\nA=faux\n[Korvalis]\nA=1\nB = deux mots \n");
    ClsFicINI ini;
    ini.Fichier = "Ini_Jeu";
    EXPECT_EQ(ini.Section, "Korvalis");
    EXPECT_EQ(ini.Parametre("A"), "1");
    EXPECT_EQ(ini.Parametre("b"), "deux mots");
    EXPECT_EQ(ini.DerniereLigne, "b=deux mots");
}

TEST(Ini, LireAnalyseLesLignes) {
    DossierTemporaire jeu;
    jeu.Ecrire("Regles.ini",
               "\xEF\xBB\xBF[Premiere]\r\nA=1\r\n"
               "  [ Ressource_1 ]  \r\n"
               "; Nom=commentaire\r\n"
               "  Nom  =  Bois  \r\n"
               "Vide=\r\n"
               "Egal=a=b\r\n"
               "SansEgal\r\n");
    ClsFicINI ini = Ini("Regles", "Premiere");
    EXPECT_EQ(ini.Parametre("A"), "1");   // the BOM is not part of the first section name
    ini.Section = "Ressource_1";
    EXPECT_EQ(ini.Parametre("Nom"), "Bois");
    EXPECT_EQ(ini.Parametre("; Nom"), "");
    EXPECT_EQ(ini.Parametre("Vide"), "");
    EXPECT_EQ(ini.Parametre("Egal"), "a=b");
    EXPECT_EQ(ini.Parametre("SansEgal"), "");
}

TEST(Ini, ValeurCoupeeA254Octets) {
    DossierTemporaire jeu;
    const std::string longue(300, 'x');
    const std::string exacte(254, 'y');
    const std::string accent = std::string(253, 'z') + "\xC3\xA9" + "fin";   // é over bytes 254-255
    jeu.Ecrire("Long.ini", "[S]\nLongue=" + longue + "\nExacte=" + exacte + "\nAccent=" + accent + "\n");
    ClsFicINI ini = Ini("Long", "S");
    EXPECT_EQ(ini.Parametre("Longue"), std::string(254, 'x'));
    EXPECT_EQ(ini.Parametre("Exacte"), exacte);
    EXPECT_EQ(ini.Parametre("Accent"), std::string(253, 'z'));
    EXPECT_EQ(ini.DerniereLigne, "Accent=" + std::string(253, 'z'));
}

TEST(Ini, CasseIgnoreeAsciiEtLatin1) {
    DossierTemporaire jeu;
    jeu.Ecrire("Ini_Partie.ini",
               "[Armée_1]\nEquipe=3\n"
               "[SavMonde]\nExtensionFichiersAperçu=.gif\nŒuvre=1\n");
    ClsFicINI ini = Ini("Ini_Partie", "ARMÉE_1");
    EXPECT_EQ(ini.Parametre("EQUIPE"), "3");
    ini.Section = "savmonde";
    EXPECT_EQ(ini.Parametre("EXTENSIONFICHIERSAPERÇU"), ".gif");
    EXPECT_EQ(ini.Parametre("œuvre"), "");   // Œ is outside Latin-1: bytes compared as they are

    EXPECT_TRUE(Egal_Sans_Casse("ÀÉÎÕÜÞ", "àéîõüþ"));
    EXPECT_FALSE(Egal_Sans_Casse("×", "÷"));   // the two signs among the letters
    EXPECT_FALSE(Egal_Sans_Casse("é", "e"));
    EXPECT_FALSE(Egal_Sans_Casse("[", "{"));
}

TEST(Ini, PremiereOccurrenceGagne) {
    DossierTemporaire jeu;
    jeu.Ecrire("Double.ini",
               "[Objet_1]\nNom=Epee\nnom=Hache\n"
               "[objet_1]\nNom=Arc\nPrix=9\n");
    ClsFicINI ini = Ini("Double", "Objet_1");
    EXPECT_EQ(ini.Parametre("Nom"), "Epee");
    EXPECT_EQ(ini.Parametre("Prix"), "");   // only the first section of a name is read

    ini.Parametre("NOM", "Masse");
    EXPECT_EQ(jeu.Lire("Double.ini"), "[Objet_1]\nNom=Masse\nnom=Hache\n[objet_1]\nNom=Arc\nPrix=9\n");
}

TEST(Ini, EcritureGardeLesAutresLignes) {
    DossierTemporaire jeu;
    const std::string debut =
        "\xEF\xBB\xBF; Réglages\r\n"
        "\r\n"
        "[Vitesse]\r\n"
        "FPS = 40   \r\n"
        "; le rythme\r\n"
        "Vitesse=20\r\n"
        "\r\n"
        "[Ecran]\r\n"
        "ModeFenetre=1";
    jeu.Ecrire("Ini_Jeu.ini", debut);
    ClsFicINI ini = Ini("Ini_Jeu", "vitesse");
    ini.Parametre("fps", "60");
    ini.Section = "Ecran";
    ini.Parametre("ModeFenetre", "0");
    EXPECT_EQ(jeu.Lire("Ini_Jeu.ini"),
              "\xEF\xBB\xBF; Réglages\r\n"
              "\r\n"
              "[Vitesse]\r\n"
              "FPS = 60\r\n"
              "; le rythme\r\n"
              "Vitesse=20\r\n"
              "\r\n"
              "[Ecran]\r\n"
              "ModeFenetre=0");
    ini.Section = "Vitesse";
    EXPECT_EQ(ini.Parametre("FPS"), "60");
}

TEST(Ini, EcritureCreeCleSectionEtFichier) {
    DossierTemporaire jeu;
    jeu.Ecrire("Ini_Jeu.ini", "[Vitesse]\nFPS=40\n\n; fin de Vitesse ?\n\n[Ecran]\nLargeur=800");
    ClsFicINI ini = Ini("Ini_Jeu", "Vitesse");
    ini.Parametre("VitesseMax", "100");
    ini.Section = "Ecran";
    ini.Parametre("Hauteur", "600");
    ini.Section = "Musiques";
    ini.Parametre("Jouer", "1\nInjecte=1");   // a value is one line
    EXPECT_EQ(jeu.Lire("Ini_Jeu.ini"),
              "[Vitesse]\nFPS=40\n\n; fin de Vitesse ?\nVitesseMax=100\n\n"
              "[Ecran]\nLargeur=800\nHauteur=600\n\n"
              "[Musiques]\nJouer=1\n");

    ClsFicINI perso = Ini("Sauvegardes\\Persos\\Héros", "SavPerso");
    perso.Extension = ".per";
    perso.Parametre("Nom", "Aude");
    EXPECT_EQ(jeu.Lire("Sauvegardes/Persos/Héros.per"), "[SavPerso]\nNom=Aude\n");
    EXPECT_EQ(perso.Parametre("nom"), "Aude");
}

TEST(Ini, UneEcritureEstVueDesAutresLecteurs) {
    DossierTemporaire jeu;
    jeu.Ecrire("Ini_Jeu.ini", "[Vitesse]\nFPS=40\n");
    ClsFicINI lecteur = Ini("Ini_Jeu", "Vitesse");
    ClsFicINI ecrivain = Ini("Ini_Jeu", "Vitesse");
    EXPECT_EQ(lecteur.Parametre("FPS"), "40");
    ecrivain.Parametre("FPS", "25");
    EXPECT_EQ(lecteur.Parametre("FPS"), "25");

    jeu.Ecrire("Ini_Jeu.ini", "[Vitesse]\nFPS=125\n");   // changed behind the game's back
    EXPECT_EQ(lecteur.Parametre("FPS"), "125");
    std::filesystem::remove(jeu.Chemin() / "Ini_Jeu.ini");
    EXPECT_EQ(lecteur.Parametre("FPS"), "");
}

TEST(Ini, EcritureRateeLaisseLAncienFichier) {
    DossierTemporaire jeu;
    const std::string ancien = "[S]\nCle=ancienne\n";
    jeu.Ecrire("Ini_Jeu.ini", ancien);
    ClsFicINI ini = Ini("Ini_Jeu", "S");

    // The temporary file cannot be opened: a folder holds its name.
    std::filesystem::create_directory(ini.Chemin_Temporaire());
    ini.Parametre("Cle", "nouvelle");
    EXPECT_EQ(jeu.Lire("Ini_Jeu.ini"), ancien);
    EXPECT_EQ(ini.Parametre("Cle"), "ancienne");
    std::filesystem::remove(ini.Chemin_Temporaire());

    // The disk fills up half way: a child process limited to 64-byte files writes a long value.
    const pid_t enfant = fork();
    ASSERT_GE(enfant, 0);
    if (enfant == 0) {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit limite{64, 64};
        setrlimit(RLIMIT_FSIZE, &limite);
        ini.Parametre("Cle", std::string(1000, 'n'));
        _exit(0);
    }
    int etat = 0;
    ASSERT_EQ(waitpid(enfant, &etat, 0), enfant);
    ASSERT_TRUE(WIFEXITED(etat));
    EXPECT_EQ(jeu.Lire("Ini_Jeu.ini"), ancien);
    EXPECT_FALSE(std::filesystem::exists(ini.Chemin_Temporaire()));
    EXPECT_EQ(ini.Parametre("Cle"), "ancienne");
}

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

TEST(Ini, LectureDesLignesEtDeCeQuiManque) {
    DossierTemporaire jeu;
    EXPECT_EQ(Ini("Ini_Absent", "Jeu").Parametre("FPS"), "");
    jeu.Ecrire("Ini_Jeu.ini",
               "\xEF\xBB\xBF[Korvalis]\r\nA=1\r\n"
               "  [ Vitesse ]  \r\n"
               "; FPS=commentaire\r\n"
               "  FPS  =  a=b  \r\n"
               "SansEgal\r\n");
    ClsFicINI ini;
    ini.Fichier = "Ini_Jeu";
    EXPECT_EQ(ini.Parametre("A"), "1");   // the default section; the BOM is not part of its name
    EXPECT_EQ(ini.Parametre("FPS"), "");
    ini.Section = "Ecran";
    EXPECT_EQ(ini.Parametre("A"), "");
    ini.Section = "Vitesse";
    EXPECT_EQ(ini.Parametre("SansEgal"), "");
    EXPECT_EQ(ini.Parametre("fps"), "a=b");
    EXPECT_EQ(ini.DerniereLigne, "fps=a=b");
}

TEST(Ini, ValeurCoupeeA254Octets) {
    DossierTemporaire jeu;
    const std::string exacte(254, 'y');
    const std::string accent = std::string(253, 'z') + "\xC3\xA9" + "fin";   // é over bytes 254-255
    jeu.Ecrire("Long.ini", "[S]\nLongue=" + std::string(300, 'x') + "\nExacte=" + exacte + "\nAccent=" + accent + "\n");
    ClsFicINI ini = Ini("Long", "S");
    EXPECT_EQ(ini.Parametre("Longue"), std::string(254, 'x'));
    EXPECT_EQ(ini.Parametre("Exacte"), exacte);
    EXPECT_EQ(ini.Parametre("Accent"), std::string(253, 'z'));
}

TEST(Ini, CasseIgnoreeAccentsComprisEtPremiereOccurrence) {
    DossierTemporaire jeu;
    jeu.Ecrire("Ini_Partie.ini",
               "[Armée_1]\nAperçu=.gif\nÉquipe=3\néquipe=4\nŒuvre=1\n"
               "[armée_1]\nNom=Arc\n");
    ClsFicINI ini = Ini("Ini_Partie", "ARMÉE_1");
    EXPECT_EQ(ini.Parametre("APERÇU"), ".gif");
    EXPECT_EQ(ini.Parametre("équipe"), "3");
    EXPECT_EQ(ini.Parametre("œuvre"), "");   // Œ is outside Latin-1: bytes compared as they are
    EXPECT_EQ(ini.Parametre("Nom"), "");     // only the first section of a name is read
    EXPECT_FALSE(Egal_Sans_Casse("×", "÷"));   // the two signs among the letters
    EXPECT_FALSE(Egal_Sans_Casse("é", "e"));

    ini.Parametre("ÉQUIPE", "5");
    EXPECT_EQ(jeu.Lire("Ini_Partie.ini"), "[Armée_1]\nAperçu=.gif\nÉquipe=5\néquipe=4\nŒuvre=1\n[armée_1]\nNom=Arc\n");
}

TEST(Ini, EcritureGardeLesAutresLignesEtCreeCeQuiManque) {
    DossierTemporaire jeu;
    jeu.Ecrire("Ini_Jeu.ini", "\xEF\xBB\xBF; Réglages\r\n\r\n[Vitesse]\r\nFPS = 40   \r\n; le rythme\r\n\r\n[Ecran]\r\nMode=1");
    ClsFicINI ini = Ini("Ini_Jeu", "vitesse");
    ClsFicINI lecteur = Ini("Ini_Jeu", "Vitesse");
    EXPECT_EQ(lecteur.Parametre("FPS"), "40");
    ini.Parametre("fps", "60");
    ini.Parametre("VitesseMax", "100");
    ini.Section = "Ecran";
    ini.Parametre("Mode", "0");
    ini.Section = "Musiques";
    ini.Parametre("Jouer", "1\nInjecte=1");   // a value is one line
    EXPECT_EQ(jeu.Lire("Ini_Jeu.ini"),
              "\xEF\xBB\xBF; Réglages\r\n\r\n[Vitesse]\r\nFPS = 60\r\n; le rythme\r\nVitesseMax=100\r\n\r\n"
              "[Ecran]\r\nMode=0\r\n\r\n[Musiques]\r\nJouer=1\r\n");
    EXPECT_EQ(lecteur.Parametre("FPS"), "60");   // another reader sees the write

    ClsFicINI perso = Ini("Sauvegardes\\Persos\\Héros", "SavPerso");
    perso.Extension = ".per";
    perso.Parametre("Nom", "Aude");
    EXPECT_EQ(jeu.Lire("Sauvegardes/Persos/Héros.per"), "[SavPerso]\nNom=Aude\n");
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

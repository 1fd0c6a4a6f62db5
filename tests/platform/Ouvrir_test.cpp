#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include <sys/wait.h>

#include "Environnement.h"
#include "Support.h"
#include "platform/Ouvrir.h"
#include "rules/BoiteMessage.h"

namespace fs = std::filesystem;

namespace {

void Ecrire_Programme(const DossierTemporaire& jeu, const std::string& nom, const std::string& contenu) {
    jeu.Ecrire("bin/" + nom, contenu);
    fs::permissions(jeu.Chemin() / "bin" / nom, fs::perms::owner_all);
}

// A stand-in program that writes its arguments, one per line, to "sortie" beside it.
void Ecrire_Temoin(const DossierTemporaire& jeu, const std::string& nom) {
    const std::string sortie = (jeu.Chemin() / "sortie").string();
    Ecrire_Programme(jeu, nom,
                     "#!/bin/sh\nprintf '%s\\n' \"$@\" > '" + sortie + ".part'\n/bin/mv '" + sortie + ".part' '" + sortie + "'\n");
}

// The stand-in runs detached, so its output appears some time after the launch returns.
std::string Attendre_Sortie(const DossierTemporaire& jeu) {
    for (int i = 0; i < 3000 && !fs::exists(jeu.Chemin() / "sortie"); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    const std::string sortie = jeu.Lire("sortie");
    fs::remove(jeu.Chemin() / "sortie");
    return sortie;
}

bool Aucun_Enfant() { return waitpid(-1, nullptr, WNOHANG) < 0 && errno == ECHILD; }

}  // namespace

TEST(Ouvrir, SansLogicielQuiSeLanceLeMessageLeDit) {
    DossierTemporaire jeu;
    jeu.Ecrire("bin/xdg-open", "#!/bin/sh\n");   // present but not executable
    VariableTemporaire chemin("PATH", (jeu.Chemin() / "bin").c_str());
    VariableTemporaire editeur("EDITOR", "/inexistant/editeur");
    MessagesVus vus;
    Ouvrir_Bloc_Notes(jeu.Chemin() / "Info_FAQ.txt");
    Ouvrir_Explorateur(jeu.Chemin());
    EXPECT_EQ(vus.textes, (std::vector<std::string>{"Logiciel Notepad introuvable", "Logiciel Explorer introuvable"}));
    EXPECT_FALSE(Lancer_Programme({}));

    Ecrire_Programme(jeu, "xdg-open", "ni ELF ni script\n");   // executable, but it cannot run
    Ouvrir_Explorateur(jeu.Chemin());
    EXPECT_EQ(vus.textes.back(), "Logiciel Explorer introuvable");
    EXPECT_EQ(vus.textes.size(), 3u);
    EXPECT_TRUE(Aucun_Enfant());
}

TEST(Ouvrir, LeCheminPasseTelQuelSansShellAEditorPuisAXdgOpen) {
    DossierTemporaire jeu;
    Ecrire_Temoin(jeu, "editeur");
    Ecrire_Temoin(jeu, "xdg-open");
    VariableTemporaire chemin("PATH", ("/inexistant:" + (jeu.Chemin() / "bin").string() + ":/bin").c_str());
    MessagesVus vus;
    const fs::path dossier = jeu.Chemin() / "Musiques $(touch piege) ; 'x'";
    Ouvrir_Explorateur(dossier);
    EXPECT_TRUE(Aucun_Enfant());   // the launch left no zombie behind
    EXPECT_EQ(Attendre_Sortie(jeu), dossier.string() + "\n");
    EXPECT_FALSE(fs::exists("piege"));
    EXPECT_FALSE(fs::exists(jeu.Chemin() / "piege"));

    const fs::path fichier = jeu.Chemin() / "Info_Lisez moi.txt";
    {
        VariableTemporaire editeur("EDITOR", "editeur  --attendre");
        Ouvrir_Bloc_Notes(fichier);
        EXPECT_EQ(Attendre_Sortie(jeu), "--attendre\n" + fichier.string() + "\n");
    }
    VariableTemporaire editeur("EDITOR", "absent");
    Ouvrir_Bloc_Notes(fichier);
    EXPECT_EQ(Attendre_Sortie(jeu), fichier.string() + "\n");
    EXPECT_TRUE(vus.textes.empty());
}

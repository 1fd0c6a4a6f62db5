#include <gtest/gtest.h>

#include "Support.h"
#include "rules/Chemins.h"

TEST(Chemins, CheminsDepuisLeDossierDuJeuEtListesTriees) {
    DossierTemporaire jeu;
    EXPECT_EQ(Dossier_Jeu(), jeu.Chemin());
    EXPECT_EQ(Chemin_Jeu("Images\\Objets\\Epee.bmp"), jeu.Chemin() / "Images/Objets/Epee.bmp");
    EXPECT_EQ(Chemin_Jeu("\\Sauvegardes"), jeu.Chemin() / "Sauvegardes");
    EXPECT_EQ(Chemin_Jeu("//etc/passwd"), jeu.Chemin() / "etc/passwd");

    for (const char* nom : {"b.ia", "a.IA", "Z.ia", "été.ia", ".cache.ia", "note.txt", "IAs.ia/x", ".git/x", "Zz/x"})
        jeu.Ecrire(std::string("IAs/") + nom, "");
    using V = std::vector<std::string>;
    EXPECT_EQ(Lister_Dossier(jeu.Chemin() / "IAs", GenreEntree::Fichiers, ".ia"), (V{"Z.ia", "a.IA", "b.ia", "été.ia"}));
    EXPECT_EQ(Lister_Dossier(jeu.Chemin() / "IAs", GenreEntree::Dossiers), (V{"IAs.ia", "Zz"}));
    EXPECT_TRUE(Lister_Dossier(jeu.Chemin() / "Absent").empty());
}

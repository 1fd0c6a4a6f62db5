// The check of a whole game's rule files (Verifier_Param): the default folder passes, a
// copy with one damaged key is reported at that file, section and key, several damages are
// all reported in one pass, and the game's own rule book is left as it was.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "ClsJeuParamRegles.h"
#include "rules/Chemins.h"
#include "rules/VerificationParam.h"

namespace {

using Liste = std::vector<std::string>;

// "file:section:key" of each problem, the part before the first ": ".
Liste Lieux(const Liste& problemes) {
    Liste lieux;
    for (const std::string& p : problemes) lieux.push_back(p.substr(0, p.find(": ")));
    return lieux;
}

std::string Lignes(const Liste& problemes) {
    std::string texte;
    for (const std::string& p : problemes) texte += "\n  " + p;
    return texte;
}

TEST(DonneesParDefaut, SeChargentEnEntierEtPassentTousLesControles) {
    Definir_Dossier_Jeu(KORVALIS_DATA);
    Param.Reinitialiser();
    Charger_Groupes();   // the game's own loading ends the program on the first problem
    for (const int n : {Param.NombreEpoques, Param.NombreTypeBatiments, Param.NombreObjets, Param.NombreEffets})
        EXPECT_GE(n, 1);
    EXPECT_GE(Param.NombreRessources, 13);
    EXPECT_GE(Param.NombrePeuples, 2);
    Param.Reinitialiser();

    const Liste problemes = Verifier_Param();
    EXPECT_TRUE(problemes.empty()) << Lignes(problemes);
}

// A damaged key, reported alone at its place; Quoi, when given, is the exact complaint.
struct Degat {
    CleRegle Cle;
    const char* Valeur;
    const char* Quoi = nullptr;
};

const Degat Degats[] = {
    // Reading: a value that is no number, or out of its type, or an index out of its table.
    {{FichierPersos, "Personnages", "PersosMaxVie"}, "cent", "« cent » n'est pas un nombre entier"},
    {{FichierFiefs, "Chateaux", "ChateauxMaxVie"}, "40000", "« 40000 » sort des bornes [-32768, 32767]"},
    {{FichierBatiments, "Batiment_3", "RessourceFabrique"}, "40", "renvoie hors de la table des ressources (17 entrées)"},
    {{FichierEffets, "Effets", "EffetMaisonEnFeu"}, "0", "renvoie hors de la table des effets (19 entrées)"},
    {{FichierRessources, "Ressource_5", "NomCompetence"}, "", "vide : la fenêtre des compétences l'affiche"},
    // What the code and the AI take for granted.
    {{FichierPersos, "Personnages", "PersosNombreObjetsEquipes"}, "8"},
    {{FichierRessources, "Ressource_8", "PrixVente"}, "1100"},
    {{FichierBatiments, "Batiment_4", "RessourceFabrique"}, "0"},
    {{FichierBatiments, "Batiment_1", "Niveau"}, "1"},
    {{FichierObjets, "Service_2", "Coefficient"}, "1.5"},
    {{FichierObjets, "Objet_7", "Categorie"}, "9"},
    {{FichierMonstres, "Monstre_1", "EffetAttaque"}, "-1"},
    {{FichierMonstres, "Monstre_5", "Grade"}, "0"},
};

TEST(Degats, ChacunEstSignaleASaCle) {
    for (const Degat& d : Degats) {
        ReglesCopiees copie;
        copie.Modifier(d.Cle, d.Valeur);
        const Liste problemes = Verifier_Param();
        EXPECT_EQ(Lieux(problemes), Liste{d.Cle.Lieu()}) << Lignes(problemes);
        if (d.Quoi) { EXPECT_EQ(problemes, Liste{d.Cle.Lieu() + ": " + d.Quoi}); }
    }
}

TEST(Degats, TousSignalesEnUnePasseSansToucherAuLivreDuJeu) {
    Definir_Dossier_Jeu(KORVALIS_DATA);
    Param.Reinitialiser();
    Charger_Groupes();
    ReglesCopiees copie;
    Liste attendus;
    for (const Degat& d : Degats) {
        copie.Modifier(d.Cle, d.Valeur);
        attendus.push_back(d.Cle.Lieu());
    }
    Liste lieux = Lieux(Verifier_Param());
    std::sort(lieux.begin(), lieux.end());
    std::sort(attendus.begin(), attendus.end());
    EXPECT_EQ(lieux, attendus);
    EXPECT_EQ(Param.PersosMaxVie, 100);
    EXPECT_EQ(Param.Ressources_NomCompetence(4), "Extraction minière");
    Param.Reinitialiser();
}

}  // namespace

// The checks of a whole game's rule files, on the default game folder: it loads and passes
// them all, and a copy with one damaged key is reported at that file, section and key.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "Support.h"
#include "rules/Chemins.h"
#include "rules/ClsFicINI.h"
#include "rules/ClsJeuParam.h"
#include "rules/VerificationParam.h"

namespace fs = std::filesystem;

namespace {

using Liste = std::vector<std::string>;

const char* const FichiersRegles[] = {
    "Ini_Parametres_Persos",    "Ini_Parametres_Fiefs",   "Ini_Parametres_Ressources", "Ini_Parametres_Batiments",
    "Ini_Parametres_Objets",    "Ini_Parametres_Monstres", "Ini_Parametres_Effets",
};

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
    // The game's own loading ends the program on the first problem; getting past it is a pass.
    for (int groupe = 0; groupe < 7; ++groupe) Param.Init(groupe);
    EXPECT_GE(Param.NombreEpoques, 2);
    EXPECT_GE(Param.NombreRessources, 13);
    EXPECT_GE(Param.NombreTypeBatiments, 1);
    EXPECT_GE(Param.NombreObjets, 1);
    EXPECT_GE(Param.NombrePeuples, 2);
    EXPECT_GE(Param.NombreEffets, 1);
    Param.Reinitialiser();

    const Liste problemes = Verifier_Param();
    EXPECT_TRUE(problemes.empty()) << Lignes(problemes);
}

// One key of a rule file and the value it takes.
struct Modification {
    const char* Fichier;
    const char* Section;
    const char* Cle;
    const char* Valeur;
};

struct Degat {
    const char* Nom;
    std::vector<Modification> Modifications;
    // The key reported; Seul when it is the only problem, otherwise the damage also has
    // consequences elsewhere that are rightly reported too.
    std::string Lieu;
    bool Seul = true;
};

// A copy of the default rule files in a temporary game folder.
class CopieDonnees {
public:
    CopieDonnees() {
        for (const char* f : FichiersRegles) {
            const std::string nom = std::string(f) + ".ini";
            fs::copy_file(fs::path(KORVALIS_DATA) / nom, dossier_.Chemin() / nom);
        }
    }

    void Modifier(const Modification& m) const {
        ClsFicINI ini;
        ini.Fichier = m.Fichier;
        ini.Section = m.Section;
        ini.Parametre(m.Cle, m.Valeur);
    }

private:
    DossierTemporaire dossier_;
};

class DegatTest : public ::testing::TestWithParam<Degat> {};

TEST_P(DegatTest, EstSignaleASaCle) {
    const Degat& d = GetParam();
    CopieDonnees copie;
    for (const Modification& m : d.Modifications) copie.Modifier(m);
    const Liste problemes = Verifier_Param();
    const Liste lieux = Lieux(problemes);
    if (d.Seul)
        EXPECT_EQ(lieux, Liste{d.Lieu}) << Lignes(problemes);
    else
        EXPECT_NE(std::find(lieux.begin(), lieux.end(), d.Lieu), lieux.end()) << Lignes(problemes);
}

constexpr const char* Persos = "Ini_Parametres_Persos";
constexpr const char* Ressources = "Ini_Parametres_Ressources";
constexpr const char* Batiments = "Ini_Parametres_Batiments";
constexpr const char* Objets = "Ini_Parametres_Objets";
constexpr const char* Monstres = "Ini_Parametres_Monstres";
constexpr const char* Effets = "Ini_Parametres_Effets";

// Indices, resources and deposits.
const Degat DegatsRessources[] = {
    {"IndexHorsTable",
     {{Batiments, "Batiment_3", "RessourceFabrique", "40"}},
     "Ini_Parametres_Batiments.ini:Batiment_3:RessourceFabrique"},
    {"NomCompetenceAbsent",
     {{Ressources, "Ressource_5", "NomCompetence", ""}},
     "Ini_Parametres_Ressources.ini:Ressource_5:NomCompetence"},
    {"NomCompetenceQuiEstUneAction",
     {{Ressources, "Ressource_4", "NomCompetence", "Construire"}},
     "Ini_Parametres_Ressources.ini:Ressource_4:NomCompetence"},
    {"TropPeuDeRessources",
     {{Ressources, "Ressources", "NombreRessources", "12"}},
     "Ini_Parametres_Ressources.ini:Ressources:NombreRessources",
     false},
    {"PremiereRessourceImmangeable",
     {{Ressources, "Ressource_1", "Mangeable", "0"}},
     "Ini_Parametres_Ressources.ini:Ressource_1:Mangeable"},
    {"PremiereRessourceSansVie",
     {{Ressources, "Ressource_1", "GainVie", "0"}},
     "Ini_Parametres_Ressources.ini:Ressource_1:GainVie"},
    {"DeuxiemeRessourceSansEnergie",
     {{Ressources, "Ressource_2", "GainEnergie", "0"}},
     "Ini_Parametres_Ressources.ini:Ressource_2:GainEnergie"},
    {"MateriauRecolteInutileAConstruire",
     {{Ressources, "Ressource_3", "NecessairePourConstruire", "0"}},
     "Ini_Parametres_Ressources.ini:Ressource_3:NecessairePourConstruire"},
    {"GisementDansLeDesordre",
     {{Ressources, "TerrainRessource_4", "TypeRessource", "5"}},
     "Ini_Parametres_Ressources.ini:TerrainRessource_4:TypeRessource",
     false},
    {"DeuxGisementsPourUneRessourceFixe",
     {{Ressources, "TerrainRessource_10", "TypeRessource", "4"}},
     "Ini_Parametres_Ressources.ini:TerrainRessource_10:TypeRessource",
     false},
    {"TreiziemeRessourceSansGisement",
     {{Ressources, "TerrainRessource_9", "TypeRessource", "16"}},
     "Ini_Parametres_Ressources.ini:Ressource_13:Nom",
     false},
    {"RessourceFabriqueeSansMatiere",
     {{Ressources, "Ressource_10", "TypeMatierePremiere", "0"}},
     "Ini_Parametres_Ressources.ini:Ressource_10:TypeMatierePremiere"},
    {"RessourceQuePersonneNeFabrique",
     {{Batiments, "Batiment_9", "RessourceFabrique", "1"}},
     "Ini_Parametres_Ressources.ini:Ressource_10:Nom"},
    {"MatierePremiereDUneEpoqueSuivante",
     {{Ressources, "Ressource_17", "TypeMatierePremiere", "12"}},
     "Ini_Parametres_Ressources.ini:Ressource_17:TypeMatierePremiere"},
    {"RessourceFabriqueeTropTard",
     {{Ressources, "Ressource_9", "Epoque", "1"}},
     "Ini_Parametres_Ressources.ini:Ressource_9:Epoque"},
    {"PrixDeRessourceSur16Bits",
     {{Ressources, "Ressource_8", "PrixVente", "1100"}},
     "Ini_Parametres_Ressources.ini:Ressource_8:PrixVente"},
};
INSTANTIATE_TEST_SUITE_P(Ressources, DegatTest, ::testing::ValuesIn(DegatsRessources),
                         [](const auto& info) { return std::string(info.param.Nom); });

// Building types and epochs.
const Degat DegatsBatiments[] = {
    {"TypeQuiNeFaitRien",
     {{Batiments, "Batiment_3", "RessourceFabrique", "0"}},
     "Ini_Parametres_Batiments.ini:Batiment_3:RessourceFabrique"},
    {"MagasinSansRessource",
     {{Batiments, "Batiment_15", "Magasin", "1"}},
     "Ini_Parametres_Batiments.ini:Batiment_15:Magasin"},
    {"EpoquesEnDesordre",
     {{Batiments, "Batiment_9", "NoEpoque", "1"}},
     "Ini_Parametres_Batiments.ini:Batiment_9:NoEpoque"},
    {"PremierTypeHorsDuNiveau0",
     {{Batiments, "Batiment_1", "Niveau", "1"}},
     "Ini_Parametres_Batiments.ini:Batiment_1:Niveau"},
    {"NiveauManquant",
     {{Batiments, "Batiment_28", "Niveau", "6"}},
     "Ini_Parametres_Batiments.ini:Batiment_28:Niveau"},
    {"AtelierDeSeptObjets",
     {{Batiments, "Batiment_13", "NombreObjetsfabriques", "7"}, {Batiments, "Batiment_13", "ObjetsFabriques(7)", "7"}},
     "Ini_Parametres_Batiments.ini:Batiment_13:NombreObjetsfabriques"},
    {"AtelierDObjetSecret",
     {{Batiments, "Batiment_13", "ObjetsFabriques(6)", "49"}},
     "Ini_Parametres_Batiments.ini:Batiment_13:ObjetsFabriques(6)"},
    {"AtelierSansObjetDeSonEpoque",
     {{Batiments, "Batiment_13", "NombreObjetsfabriques", "1"}, {Batiments, "Batiment_13", "ObjetsFabriques(1)", "13"}},
     "Ini_Parametres_Batiments.ini:Batiment_13:NombreObjetsfabriques"},
    {"PremiereMaisonAuDelaDuDepart",
     {{Batiments, "Batiment_1", "PrixRessources(4)", "11"}},
     "Ini_Parametres_Batiments.ini:Batiment_1:PrixRessources(4)"},
    {"PremiereMaisonAuDelaDeLaCharge",
     {{Batiments, "Batiment_2", "PrixRessources(3)", "21"}},
     "Ini_Parametres_Batiments.ini:Batiment_2:PrixRessources(3)"},
    {"EpoqueSansMontee",   // gold comes at the fourth epoch: no type of the third is payable
     {{Batiments, "Batiment_16", "PrixRessources(8)", "1"},
      {Batiments, "Batiment_17", "PrixRessources(8)", "1"},
      {Batiments, "Batiment_18", "PrixRessources(8)", "1"},
      {Batiments, "Batiment_19", "PrixRessources(8)", "1"},
      {Batiments, "Batiment_20", "PrixRessources(8)", "1"},
      {Batiments, "Batiment_21", "PrixRessources(8)", "1"}},
     "Ini_Parametres_Fiefs.ini:Epoque_3:Nom"},
};
INSTANTIATE_TEST_SUITE_P(Batiments, DegatTest, ::testing::ValuesIn(DegatsBatiments),
                         [](const auto& info) { return std::string(info.param.Nom); });

// Characters, services, objects, peoples and effects.
const Degat DegatsAutres[] = {
    {"NiveauDeDepartNul",
     {{Persos, "Personnages", "PersosNiveauObjetsDepart", "0"}},
     "Ini_Parametres_Persos.ini:Personnages:PersosNiveauObjetsDepart"},
    {"HuitEmplacements",
     {{Persos, "Personnages", "PersosNombreObjetsEquipes", "8"}},
     "Ini_Parametres_Persos.ini:Personnages:PersosNombreObjetsEquipes"},
    {"TroisCompetencesSpeciales",
     {{Persos, "Competences_Speciales", "NombreCompetencesSpeciales", "3"}},
     "Ini_Parametres_Persos.ini:Competences_Speciales:NombreCompetencesSpeciales"},
    {"PremierServiceNomme",
     {{Objets, "Service_1", "Nom", "Rien"}},
     "Ini_Parametres_Objets.ini:Service_1:Nom"},
    {"DeuxServices",
     {{Objets, "Services", "NombreServices", "2"}},
     "Ini_Parametres_Objets.ini:Services:NombreServices",
     false},
    {"ResurrectionAuDelaDeLaVie",
     {{Objets, "Service_2", "Coefficient", "1.5"}},
     "Ini_Parametres_Objets.ini:Service_2:Coefficient"},
    {"ResurrectionNulle",
     {{Objets, "Service_2", "Coefficient", "0"}},
     "Ini_Parametres_Objets.ini:Service_2:Coefficient"},
    {"SansTemple",
     {{Batiments, "Batiment_15", "Service", "2"}, {Batiments, "Batiment_26", "Service", "2"}},
     "Ini_Parametres_Objets.ini:Service_2:Nom"},
    {"SansCaserne",
     {{Batiments, "Batiment_21", "Service", "1"}},
     "Ini_Parametres_Objets.ini:Service_3:Nom"},
    {"PrixDeServiceSur16Bits",
     {{Objets, "Service_2", "Prix", "40000"}},
     "Ini_Parametres_Objets.ini:Service_2:Prix"},
    {"PrixDObjetSur16Bits",
     {{Objets, "Objet_56", "PrixVente", "22000"}},
     "Ini_Parametres_Objets.ini:Objet_56:PrixVente"},
    {"CategorieHorsDesEmplacements",
     {{Objets, "Objet_7", "Categorie", "9"}},
     "Ini_Parametres_Objets.ini:Objet_7:Categorie"},
    {"ArmeSansEffet",
     {{Objets, "Objet_13", "EffetAttaque", "-1"}},
     "Ini_Parametres_Objets.ini:Objet_13:EffetAttaque"},
    {"PotionSansEffet",
     {{Objets, "Objet_31", "EffetAttaque", "-1"}},
     "Ini_Parametres_Objets.ini:Objet_31:EffetAttaque"},
    {"PotionPortee",
     {{Objets, "Objet_31", "BonusVie", "5"}},
     "Ini_Parametres_Objets.ini:Objet_31:BonusVie"},
    {"PotionQuiDonneUneCompetence",
     {{Objets, "Objet_32", "BonusCompetencesRessources(2)", "3"}},
     "Ini_Parametres_Objets.ini:Objet_32:BonusCompetencesRessources(2)"},
    {"SansEffets",
     {{Effets, "Effets", "NombreEffets", "0"}},
     "Ini_Parametres_Effets.ini:Effets:NombreEffets",
     false},
    {"MonstreSansEffet",
     {{Monstres, "Monstre_1", "EffetAttaque", "-1"}},
     "Ini_Parametres_Monstres.ini:Monstre_1:EffetAttaque"},
    {"GradeHorsDuPeuple",
     {{Monstres, "Monstre_3", "Grade", "3"}},
     "Ini_Parametres_Monstres.ini:Monstre_3:Grade"},
    {"GradeEnDouble",
     {{Monstres, "Monstre_2", "Grade", "0"}},
     "Ini_Parametres_Monstres.ini:Monstre_2:Grade"},
    {"PeupleDeBerserks",
     {{Monstres, "Monstre_11", "IA_Berserk", "1"}, {Monstres, "Monstre_12", "IA_Berserk", "1"}},
     "Ini_Parametres_Monstres.ini:Peuple_5:Nom"},
    {"PeupleSansMonstre",
     {{Monstres, "Peuple_5", "NombreMonstres", "0"},
      {Monstres, "Peuple_6", "NombreMonstres", "5"},
      {Monstres, "Monstre_11", "Peuple", "6"},
      {Monstres, "Monstre_11", "Grade", "3"},
      {Monstres, "Monstre_12", "Peuple", "6"},
      {Monstres, "Monstre_12", "Grade", "4"}},
     "Ini_Parametres_Monstres.ini:Peuple_5:NombreMonstres"},
};
INSTANTIATE_TEST_SUITE_P(Autres, DegatTest, ::testing::ValuesIn(DegatsAutres),
                         [](const auto& info) { return std::string(info.param.Nom); });

// -1 as an effect is left to summoning objects and to those that treat others.
TEST(EffetAucun, PermisPourLesInvocationsEtLesSoinsDAutrui) {
    CopieDonnees copie;
    copie.Modifier({Objets, "Objet_41", "EffetAttaque", "-1"});   // summons
    copie.Modifier({Objets, "Objet_35", "EffetAttaque", "-1"});   // treats others within its range
    EXPECT_EQ(Verifier_Param(), Liste{});
    copie.Modifier({Objets, "Objet_35", "BonusPorteeAttaque", "0"});   // now acts on its user
    EXPECT_EQ(Lieux(Verifier_Param()), Liste{"Ini_Parametres_Objets.ini:Objet_35:EffetAttaque"});
}

// Several damaged keys in several files: all of them are listed, in one pass.
TEST(Degats, TousSignalesEnUnePasse) {
    CopieDonnees copie;
    copie.Modifier({Persos, "Personnages", "PersosNiveauSpecialesDepart", "0"});
    copie.Modifier({Batiments, "Batiment_3", "RessourceFabrique", "0"});
    copie.Modifier({Objets, "Objet_7", "Categorie", "12"});
    copie.Modifier({Monstres, "Monstre_1", "EffetAttaque", "-1"});
    Liste lieux = Lieux(Verifier_Param());
    std::sort(lieux.begin(), lieux.end());
    EXPECT_EQ(lieux, (Liste{
                         "Ini_Parametres_Batiments.ini:Batiment_3:RessourceFabrique",
                         "Ini_Parametres_Monstres.ini:Monstre_1:EffetAttaque",
                         "Ini_Parametres_Objets.ini:Objet_7:Categorie",
                         "Ini_Parametres_Persos.ini:Personnages:PersosNiveauSpecialesDepart",
                     }));
}

}  // namespace

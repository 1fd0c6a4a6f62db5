// Each family draws the right cell of its sheet: sheets written here, one flat colour a cell,
// drawn offscreen and read back. The default rule book gives the names and counts.
#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "Planches.h"
#include "Support.h"
#include "presentation/ClsAffBatiment.h"
#include "presentation/ClsAffBouton.h"
#include "presentation/ClsAffEffet.h"
#include "presentation/ClsAffFenetre.h"
#include "presentation/ClsAffObjets.h"
#include "presentation/ClsAffPerso.h"
#include "presentation/ClsAffRessources.h"
#include "presentation/ClsAffSouris.h"
#include "platform/ClsPerEcran.h"
#include "rules/Chemins.h"
#include "rules/ClsJeuParam.h"

namespace {

constexpr int Humains = 50, Monstres = 60, Chateaux = 100, Maisons = 110, Objets = 140, Effets = 200;
constexpr int L = 24, H = 32;

void Charger_Regles() {
    Param.Reinitialiser();
    Definir_Dossier_Jeu(KORVALIS_DATA);
    for (int groupe = 0; groupe < 7; ++groupe) Param.Init(groupe);
    EcranLargeur = 240;
    EcranHauteur = 200;
}

// A game folder holding a sheet for every picture the families load.
class Familles : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        Charger_Regles();
        jeu_ = std::make_unique<DossierTemporaire>();
        const DossierTemporaire& j = *jeu_;
        j.Ecrire("Images/Persos/HerosF/Alice.bmp", Planche(1, 3, 4, L, H));
        j.Ecrire("Images/Persos/HerosM/Bob.bmp", Planche(2, 3, 4, L, H));
        j.Ecrire("Images/Persos/HerosM/Bob.vieux", "a note, counted as a hero, drawn as Bob");
        j.Ecrire("Images/Persos/HerosM/Zed.bmp", Planche(4, 3, 4, L, H));
        j.Ecrire("Images/Persos/" + Param.Peuples_Nom(0) + ".bmp", Planche(Humains, 18, 4, L, H));
        for (int m = 0; m < Param.NombreTotalMonstres; ++m)
            j.Ecrire("Images/Persos/Monstres/" + Param.Monstre_Nom(m) + ".bmp", Planche(Monstres + m, 6, 4, L, H));
        for (int p = 0; p < Param.NombrePeuples; ++p)
            j.Ecrire("Images/" + ClsAffBatiment::Chemin_Chateau(p) + ".bmp", Planche(Chateaux + p, 1, 3, 20, 10));
        for (int b = 0; b < Param.NombreTypeBatiments; ++b)
            j.Ecrire("Images/" + ClsAffBatiment::Chemin_Maison(b, Param) + ".bmp", Planche(Maisons + b, 3, 4, 20, 10));
        for (int o = 0; o < Param.NombreObjets; ++o) j.Ecrire("Images/Objets/" + Param.Objet_Nom(o) + ".bmp", Planche(Objets + o, 1, 1, 32, 32));
        for (int e = 0; e < Param.NombreEffets; ++e)
            j.Ecrire("Images/Effets/" + Param.Effet_Fichier(e) + ".bmp",
                     Planche(Effets + e, Param.Effet_NombreEtapes(e), 1, Param.Effet_Largeur(e), Param.Effet_Hauteur(e)));
        j.Ecrire("Images/Decors/Ressources.bmp", Planche(1, 5, 1, 32, 32));
        j.Ecrire("Images/Curseurs/ArrowCursor.bmp", Planche(2, 12, 1, 32, 32));
        for (int f = 0; f < ClsAffBouton::NombreFamilles; ++f) {
            const ClsAffBouton::Famille& b = ClsAffBouton::Familles[f];
            j.Ecrire(std::string("Images/Boutons/") + b.fichier + ".bmp", Planche(10 + f, 10, 3, b.largeur, b.hauteur));
        }
        j.Ecrire("Images/Fenetres/Essai.bmp", Planche(9, 4, 1, 40, 30));
    }
    static void TearDownTestSuite() { jeu_.reset(); }

    void SetUp() override { ecran.Remplir(Fond); }

    static std::unique_ptr<DossierTemporaire> jeu_;
    Surface ecran{240, 200};
};
std::unique_ptr<DossierTemporaire> Familles::jeu_;

TEST_F(Familles, UnPersonnageMontreLaCelluleDeSonApparenceDeSaDirectionEtDeSonPas) {
    ClsAffPerso perso;
    perso.Initialiser();
    ASSERT_EQ(perso.NombreHeros, 4);
    perso.Charger(Param);
    ASSERT_EQ(perso.Sprites.size(), 5u + static_cast<std::size_t>(Param.NombreTotalMonstres));
    struct Cas {
        int apparence, monstre;
        bool feminin, propre;
        int direction, etape;
        Cellule_Vue vue;
        bool mort = false;
    } const cas[] = {
        // Own hero pictures: the sprite is the look, block 0.
        {0, 0, true, true, 1, 0, {1, 0, 0, L, H}},
        {2, 5, false, true, 2, 2, {2, 2, 1, L, H}},   // "Bob.vieux" loads Bob
        {3, 0, false, true, 0, 2, {4, 1, 2, L, H}},   // at rest: the middle step, south
        // Humans: block 2 × look, plus 1 for a woman; the walk goes 0, 1, 2, 1.
        {0, 0, false, false, 3, 1, {Humains, 1, 2, L, H}},
        {1, 0, true, false, 4, 0, {Humains, 9, 3, L, H}},
        {2, 0, false, false, 1, 3, {Humains, 13, 0, L, H}},
        {2, 0, true, false, 1, 2, {Humains, 17, 0, L, H}},
        {1, 0, false, false, -1, 0, {Humains, 7, 2, L, H}},
        // Monsters: the sheet of type Monstre - 1, block = look.
        {0, 1, false, false, 2, 2, {Monstres, 2, 1, L, H}},
        {1, 3, true, false, 4, 3, {Monstres + 2, 4, 3, L, H}},
        // The dead are mixed with the ground.
        {1, 0, true, false, 2, 1, {Humains, 10, 1, L, H, true, true}, true},
    };
    for (const Cas& c : cas) {
        ecran.Remplir(Fond);
        perso.Afficher(30, 40, c.etape, c.direction, c.apparence, c.monstre, c.feminin, ecran, c.propre, c.mort);
        EXPECT_EQ(Ecarts(ecran, 30, 40, c.vue), "") << "apparence " << c.apparence << " monstre " << c.monstre << " direction "
                                                    << c.direction << " pas " << c.etape;
    }
}

TEST_F(Familles, UnHerosSeTrouveParLeNomDeSonFichierDansLeDossierDeSonSexe) {
    struct Cas {
        const char* nom;
        bool feminin;
        int32_t indice;
    } const cas[] = {
        {"Alice.bmp", true, 0}, {"Bob.bmp", false, 1}, {"Bob.vieux", false, 2}, {"Zed.bmp", false, 3},
        {"Zed.bmp", true, 0},   {"Inconnu.bmp", false, 0}, {"", false, 0},
    };
    ClsAffPerso perso;
    perso.Initialiser();
    for (const Cas& c : cas) {
        int32_t indice = 7;
        perso.Charger_Hero(c.nom, c.feminin, indice);
        EXPECT_EQ(indice, c.indice) << c.nom << " " << c.feminin;
    }
}

TEST_F(Familles, SansHerosLaPlancheDesHumainsEstLaPremiere) {
    DossierTemporaire vide;
    vide.Ecrire("Images/Persos/" + Param.Peuples_Nom(0) + ".bmp", Planche(Humains, 18, 4, L, H));
    for (int m = 0; m < Param.NombreTotalMonstres; ++m)
        vide.Ecrire("Images/Persos/Monstres/" + Param.Monstre_Nom(m) + ".bmp", Planche(Monstres + m, 6, 4, L, H));
    std::filesystem::create_directories(vide.Chemin() / "Images/Persos/HerosF");
    ClsAffPerso perso;
    perso.Initialiser();
    EXPECT_EQ(perso.NombreHeros, 0);
    perso.Charger(Param);
    perso.Afficher(0, 0, 0, 1, 0, 0, false, ecran, false, false);
    EXPECT_EQ(Ecarts(ecran, 0, 0, {Humains, 0, 0, L, H}), "");
    perso.Afficher(50, 0, 0, 1, 0, 1, false, ecran, false, false);
    EXPECT_EQ(Ecarts(ecran, 50, 0, {Monstres, 0, 0, L, H}), "");
    Definir_Dossier_Jeu(jeu_->Chemin());   // the suite's folder is the game folder again
}

TEST_F(Familles, ChaqueFamilleChoisitLaCelluleDeSonEtat) {
    ClsAffBatiment chateaux, maisons;
    chateaux.Charger(ClsAffBatiment::Chateaux, Param);
    maisons.Charger(ClsAffBatiment::Maisons, Param);
    ClsAffRessources ressources;
    ressources.Charger();
    ClsAffSouris souris;
    souris.Charger();
    ClsAffObjets objets;
    objets.Charger(Param);
    ClsAffEffet effets;
    effets.Charger(Param);
    ClsAffBouton boutons[ClsAffBouton::NombreFamilles];
    for (int f = 0; f < ClsAffBouton::NombreFamilles; ++f) boutons[f].Charger(f);
    ClsAffFenetre fenetre;
    fenetre.Charger("Essai");
    fenetre.Largeur = 40;
    fenetre.Hauteur = 30;
    const int e = 1, le = Param.Effet_Largeur(e), he = Param.Effet_Hauteur(e);

    struct Cas {
        const char* quoi;
        std::function<void(Surface&, int, int)> dessin;
        Cellule_Vue vue;
        int mode = -1;   // the pointer's Mode after the draw
    } const cas[] = {
        {"château du peuple 0, époque 2", [&](Surface& s, int x, int y) { chateaux.Afficher(x, y, 0, 2, s, 20, 10, 0); }, {Chateaux, 0, 2, 20, 10}},
        {"château du peuple 3", [&](Surface& s, int x, int y) { chateaux.Afficher(x, y, 3, 0, s, 20, 10, 0); }, {Chateaux + 3, 0, 0, 20, 10}},
        {"maison 5, état 3, animation 2", [&](Surface& s, int x, int y) { maisons.Afficher(x, y, 5, 3, s, 20, 10, 2); }, {Maisons + 5, 2, 3, 20, 10}},
        {"gisement 3", [&](Surface& s, int x, int y) { ressources.Afficher(x, y, 3, s); }, {1, 3, 0, 32, 32}},
        {"pointeur 11", [&](Surface& s, int x, int y) { souris.Afficher(x, y, 11, s); }, {2, 11, 0, 32, 32}, 11},
        {"pointeur 12", [&](Surface& s, int x, int y) { souris.Afficher(x, y, 12, s); }, {2, 0, 0, 32, 32}, 0},
        {"pointeur 40", [&](Surface& s, int x, int y) { souris.Afficher(x, y, 40, s); }, {2, 0, 0, 32, 32}, 0},
        {"objet 3", [&](Surface& s, int x, int y) { objets.Afficher(x, y, 3, s, false); }, {Objets + 3, 0, 0, 32, 32}},
        {"objet 3 mort", [&](Surface& s, int x, int y) { objets.Afficher(x, y, 3, s, true); }, {Objets + 3, 0, 0, 32, 32, true, true}},
        {"effet 1, étape 2", [&](Surface& s, int x, int y) { effets.Afficher(e, 2, x, y, s); }, {Effets + e, 2, 0, le, he}},
        {"bouton Action 4, état 1", [&](Surface& s, int x, int y) { boutons[2].Afficher(x, y, 4, 1, s, true); }, {12, 4, 1, 24, 24}},
        {"bouton Infos 5, état 2, opaque", [&](Surface& s, int x, int y) { boutons[1].Afficher(x, y, 5, 2, s, false); }, {11, 5, 2, 28, 16, false}},
        {"bouton Defilement 1", [&](Surface& s, int x, int y) { boutons[6].Afficher(x, y, 1, 0, s, true); }, {16, 1, 0, 64, 16}},
        {"fenêtre 2", [&](Surface& s, int x, int y) { fenetre.Afficher(x, y, s, 2); }, {9, 2, 0, 40, 30}},
    };
    for (const Cas& c : cas) {
        ecran.Remplir(Fond);
        c.dessin(ecran, 17, 9);
        EXPECT_EQ(Ecarts(ecran, 17, 9, c.vue), "") << c.quoi;
        if (c.mode >= 0) {
            EXPECT_EQ(souris.Mode, c.mode) << c.quoi;
        }
    }
    EXPECT_EQ(effets.NombreEtapes(e), Param.Effet_NombreEtapes(e));
    EXPECT_EQ(effets.DureeEtape(e), Param.Effet_DureeEtape(e));
    EXPECT_EQ(effets.Son(e), Param.Effet_Son(e));
}

TEST(CheminsDesFamilles, LesChateauxSontNumerotesSurQuatreChiffresDepuisUn) {
    EXPECT_EQ(ClsAffBatiment::Chemin_Chateau(0), "Batiments/Chateaux-0001");
    EXPECT_EQ(ClsAffBatiment::Chemin_Chateau(11), "Batiments/Chateaux-0012");
    EXPECT_EQ(ClsAffPerso::Nom_Heros(true, "Archère.v2.bmp"), "Persos/HerosF/Archère");
    EXPECT_EQ(ClsAffPerso::Nom_Heros(false, "Moine"), "Persos/HerosM/Moine");
}

}  // namespace

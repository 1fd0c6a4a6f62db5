// The forge run on the default rules into a folder of its own: every picture that the rules
// or the program name is there with the size its sprite family reads, nothing visible is
// (or nearly is) the transparent black, every cell of every sheet holds a drawing, the looks
// differ, the ground tiles join, and a second run writes the same bytes. Then the verifier's
// check of the pictures: silent on this folder, precise on a damaged copy. Last, the sprite
// families load the forged sheets and find a drawing for every state of the rules.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "Bmp.h"
#include "Forge.h"
#include "Support.h"
#include "presentation/Affichages.h"
#include "presentation/ClsAffBouton.h"
#include "presentation/ClsAffObjets.h"
#include "platform/ClsPerEcran.h"
#include "rules/Chemins.h"
#include "rules/ClsJeuParam.h"
#include "rules/TailleBmp.h"
#include "session/Verification.h"

namespace fs = std::filesystem;

namespace {

struct Attendue {
    std::string chemin;   // under Images/
    int largeur, hauteur;
    int cellL = 0, cellH = 0;   // a sheet's cell, when every cell must hold a drawing
};

int Apparences_Nommees() {
    int n = Param.PersosNombreApparences;
    for (int b = 0; b < Param.NombreTypeBatiments; ++b) n = std::max<int>(n, Param.Batiment_ApparencePerso(b) + 1);
    for (int o = 0; o < Param.NombreObjets; ++o) n = std::max<int>(n, Param.Objet_ApparencePerso(o) + 1);
    return n;
}

// The layouts of the sprite families, written out again here from the rules.
std::vector<Attendue> Attendues() {
    std::vector<Attendue> a;
    a.push_back({"terrains/Plaine.bmp", 17 * 16, 16, 16, 16});
    for (int p = 0; p < Param.NombrePeuples; ++p) {
        char nom[40];
        std::snprintf(nom, sizeof nom, "Batiments/Chateaux-%04d.bmp", p + 1);
        const int lignes = p == 0 ? Param.NombreEpoques : 1;
        a.push_back({nom, Param.ChateauxLargeur, lignes * Param.ChateauxHauteur, Param.ChateauxLargeur, Param.ChateauxHauteur});
    }
    for (int b = 0; b < Param.NombreTypeBatiments; ++b)
        a.push_back({"Batiments/" + Param.Batiment_Nom(b) + ".bmp", Param.Batiment_NombreEtapeAnimation(b) * Param.Batiment_Largeur(b),
                     (Param.Batiment_NombreEtapeFabrication(b) + 1) * Param.Batiment_Hauteur(b), Param.Batiment_Largeur(b), Param.Batiment_Hauteur(b)});
    a.push_back({"Decors/Ressources.bmp", 32 * Param.NombreTerrainRessource, 32, 32, 32});
    a.push_back({"Curseurs/ArrowCursor.bmp", 12 * 32, 32, 32, 32});
    for (int e = 0; e < Param.NombreEffets; ++e)
        a.push_back({"Effets/" + Param.Effet_Fichier(e) + ".bmp", Param.Effet_NombreEtapes(e) * Param.Effet_Largeur(e), Param.Effet_Hauteur(e),
                     Param.Effet_Largeur(e), Param.Effet_Hauteur(e)});
    for (int o = 0; o < Param.NombreObjets; ++o) a.push_back({"Objets/" + Param.Objet_Nom(o) + ".bmp", 32, 32, 32, 32});
    a.push_back({"Persos/" + Param.Peuples_Nom(0) + ".bmp", 2 * Apparences_Nommees() * 72, 128, 24, 32});
    for (int m = 0; m < Param.NombreTotalMonstres; ++m)
        a.push_back({"Persos/Monstres/" + Param.Monstre_Nom(m) + ".bmp", (Param.Monstre_Apparence(m) + 1) * 72, 128, 24, 32});
    a.push_back({"Boutons/Construire.bmp", 28 * (Param.NombreTypeBatiments + 1), 3 * 28, 28, 28});
    a.push_back({"Boutons/Infos.bmp", 6 * 28, 2 * 16, 28, 16});
    a.push_back({"Boutons/Action.bmp", 7 * 24, 2 * 24, 24, 24});
    a.push_back({"Boutons/Deplacement.bmp", 18 * 28, 5 * 28, 28, 28});
    a.push_back({"Boutons/Commerce.bmp", 9 * 24, 2 * 24, 24, 24});
    a.push_back({"Boutons/Transfert.bmp", 6 * 24, 2 * 24, 24, 24});
    a.push_back({"Boutons/Defilement.bmp", 2 * 64, 2 * 16, 64, 16});
    a.push_back({"Fenetres/Fenetres.bmp", 3 * 320, 360, 320, 360});
    a.push_back({"Fenetres/Victoire-Defaite.bmp", 320, 400, 320, 200});
    for (const Resolution& r : Resolutions_Par_Defaut()) {
        a.push_back({"Fond" + std::to_string(r.largeur) + ".bmp", r.largeur, r.hauteur});
        a.push_back({"Fenetres/Chargement" + std::to_string(r.largeur) + ".bmp", r.largeur, r.hauteur});
    }
    return a;
}

std::vector<fs::path> Toutes_Les_Images(const fs::path& racine) {
    std::vector<fs::path> images;
    for (const auto& e : fs::recursive_directory_iterator(racine))
        if (e.is_regular_file() && e.path().extension() == ".bmp") images.push_back(e.path());
    std::sort(images.begin(), images.end());
    return images;
}

std::string Octets(const fs::path& fichier) {
    std::ifstream f(fichier, std::ios::binary);
    std::ostringstream s;
    s << f.rdbuf();
    return s.str();
}

bool Noir(Couleur c) { return c == Transparent; }

int Pixels_Visibles(const Toile& t, int x0, int y0, int l, int h) {
    int n = 0;
    for (int y = y0; y < y0 + h; ++y)
        for (int x = x0; x < x0 + l; ++x) n += t.Opaque(x, y);
    return n;
}

bool Blocs_Egaux(const Toile& a, int xa, const Toile& b, int xb, int l, int h) {
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < l; ++x)
            if (!(a.Lire(xa + x, y) == b.Lire(xb + x, y))) return false;
    return true;
}

class Forge : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        dossier_ = new DossierTemporaire;
        reussi_ = Forger(KORVALIS_DATA, dossier_->Chemin());
    }
    static void TearDownTestSuite() {
        delete dossier_;
        dossier_ = nullptr;
    }
    void SetUp() override { ASSERT_TRUE(reussi_); }

    static fs::path Images() { return dossier_->Chemin() / "Images"; }
    static Toile Lire(const std::string& relatif) {
        auto t = Lire_Bmp(Images() / relatif);
        EXPECT_TRUE(t.has_value()) << relatif;
        return t.value_or(Toile(1, 1));
    }

    static DossierTemporaire* dossier_;
    static bool reussi_;
};

DossierTemporaire* Forge::dossier_ = nullptr;
bool Forge::reussi_ = false;

TEST_F(Forge, ChaqueImageNommeeExisteALaTailleDeSaFamille) {
    for (const Attendue& a : Attendues()) {
        const auto t = Lire_Bmp(Images() / a.chemin);
        ASSERT_TRUE(t.has_value()) << a.chemin << " manque ou n'est pas lisible";
        EXPECT_EQ(t->Largeur(), a.largeur) << a.chemin;
        EXPECT_EQ(t->Hauteur(), a.hauteur) << a.chemin;
    }
    EXPECT_EQ(Lire("terrains/Plaine.bmp").Largeur(), 17 * 16);
    EXPECT_EQ(Lire("terrains/Plaine.bmp").Hauteur(), 16);
    EXPECT_EQ(Lire("Fond1920.bmp").Largeur(), 1920);
    EXPECT_EQ(Lire("Fond1920.bmp").Hauteur(), 1080);
}

TEST_F(Forge, LesDossiersDeHerosTiennentPlusieursLooksDUnBlocChacun) {
    for (const char* dossier : {"Persos/HerosF", "Persos/HerosM"}) {
        const auto noms = Lister_Dossier(Images() / dossier);
        EXPECT_GE(noms.size(), 3u) << dossier;
        std::vector<Toile> looks;
        for (const std::string& nom : noms) {
            const Toile t = Lire(std::string(dossier) + "/" + nom);
            EXPECT_EQ(t.Largeur(), 72) << nom;
            EXPECT_EQ(t.Hauteur(), 128) << nom;
            for (const Toile& autre : looks) EXPECT_FALSE(Blocs_Egaux(t, 0, autre, 0, 72, 128)) << nom;
            looks.push_back(t);
        }
    }
}

TEST_F(Forge, AucunPixelVisibleNEstNoirNiPresqueNoir) {
    for (const fs::path& image : Toutes_Les_Images(Images())) {
        const auto t = Lire_Bmp(image);
        ASSERT_TRUE(t.has_value()) << image;
        int fautes = 0;
        for (const Couleur c : t->Pixels())
            if (!Noir(c) && (c.r < CanalMinimum || c.g < CanalMinimum || c.b < CanalMinimum)) ++fautes;
        EXPECT_EQ(fautes, 0) << image;
    }
}

TEST_F(Forge, LeSolEtLesFondsNOntAucunTrou) {
    for (const std::string nom : {"terrains/Plaine.bmp", "Fond800.bmp", "Fond1280.bmp"}) {
        const Toile t = Lire(nom);
        EXPECT_EQ(std::count_if(t.Pixels().begin(), t.Pixels().end(), Noir), 0) << nom;
    }
    // The loading picture lets the bar show only in its slot at the foot of the screen.
    for (const Resolution& r : Resolutions_Par_Defaut()) {
        const Toile t = Lire("Fenetres/Chargement" + std::to_string(r.largeur) + ".bmp");
        int transparents = 0;
        for (int y = 0; y < t.Hauteur(); ++y)
            for (int x = 0; x < t.Largeur(); ++x)
                if (!t.Opaque(x, y)) {
                    ++transparents;
                    EXPECT_GE(y, r.hauteur - 101) << r.largeur;
                }
        EXPECT_GT(transparents, r.largeur / 2);
    }
}

TEST_F(Forge, ChaqueCelluleDeChaquePlancheTientUnDessin) {
    for (const Attendue& a : Attendues()) {
        if (a.cellL == 0) continue;
        const Toile t = Lire(a.chemin);
        for (int y = 0; y + a.cellH <= t.Hauteur(); y += a.cellH)
            for (int x = 0; x + a.cellL <= t.Largeur(); x += a.cellL)
                EXPECT_GE(Pixels_Visibles(t, x, y, a.cellL, a.cellH), std::min(a.cellL * a.cellH / 20, 30))
                    << a.chemin << " cellule " << x / a.cellL << ", " << y / a.cellH;
    }
}

TEST_F(Forge, LesApparencesDesHumainsSontToutesDifferentes) {
    const Toile planche = Lire("Persos/" + Param.Peuples_Nom(0) + ".bmp");
    const int blocs = planche.Largeur() / 72;
    EXPECT_EQ(blocs, 2 * Apparences_Nommees());
    for (int i = 0; i < blocs; ++i)
        for (int j = i + 1; j < blocs; ++j) EXPECT_FALSE(Blocs_Egaux(planche, i * 72, planche, j * 72, 72, 128)) << i << " et " << j;
    // A walk: the three steps of a direction differ, the middle one is the rest.
    for (int d = 0; d < 4; ++d) EXPECT_FALSE(Blocs_Egaux(planche.Extraire(0, d * 32, 24, 32), 0, planche.Extraire(48, d * 32, 24, 32), 0, 24, 32));
}

TEST_F(Forge, LesTuilesFaconneesSeRaccordentAuSolOuvert) {
    // On a side without patch neighbour, a tile's outer line is the open ground's, so that a
    // shaped tile meets grass without a seam. Sides by tile: north, south, west, east.
    const bool voisins[17][4] = {{}, {}, {1, 1, 1, 1}, {0, 1, 0, 0}, {1, 0, 0, 0}, {0, 0, 0, 1}, {0, 0, 1, 0}, {1, 1, 0, 0}, {0, 0, 1, 1},
                                 {0, 1, 1, 1}, {1, 0, 1, 1}, {1, 1, 0, 1}, {1, 1, 1, 0}, {0, 1, 0, 1}, {0, 1, 1, 0}, {1, 0, 0, 1}, {1, 0, 1, 0}};
    const Toile t = Lire("terrains/Plaine.bmp");
    for (int tuile = 2; tuile < 17; ++tuile)
        for (int i = 0; i < 16; ++i) {
            if (!voisins[tuile][0]) {
                EXPECT_EQ(t.Lire(tuile * 16 + i, 0), t.Lire(i, 0)) << tuile;
            }
            if (!voisins[tuile][1]) {
                EXPECT_EQ(t.Lire(tuile * 16 + i, 15), t.Lire(i, 15)) << tuile;
            }
            if (!voisins[tuile][2]) {
                EXPECT_EQ(t.Lire(tuile * 16, i), t.Lire(0, i)) << tuile;
            }
            if (!voisins[tuile][3]) {
                EXPECT_EQ(t.Lire(tuile * 16 + 15, i), t.Lire(15, i)) << tuile;
            }
        }
    // The inside of a patch tiles with itself: opposite edges of tile 2 continue each other's texture.
    const Toile seule = t.Extraire(32, 0, 16, 16);
    int differences = 0;
    for (int i = 0; i < 16; ++i) differences += !(seule.Lire(i, 0) == seule.Lire(i, 15)) + !(seule.Lire(0, i) == seule.Lire(15, i));
    EXPECT_LT(differences, 32);
}

TEST_F(Forge, UneSecondeForgeEcritLesMemesOctets) {
    DossierTemporaire autre;
    ASSERT_TRUE(Forger(KORVALIS_DATA, autre.Chemin()));
    const auto premieres = Toutes_Les_Images(Images()), secondes = Toutes_Les_Images(autre.Chemin() / "Images");
    ASSERT_EQ(premieres.size(), secondes.size());
    for (size_t i = 0; i < premieres.size(); ++i) {
        EXPECT_EQ(fs::relative(premieres[i], Images()), fs::relative(secondes[i], autre.Chemin() / "Images"));
        EXPECT_TRUE(Octets(premieres[i]) == Octets(secondes[i])) << premieres[i];
    }
}

TEST_F(Forge, LEnTeteDUneImageDonneSaTaille) {
    const auto taille = Lire_Taille_Bmp(Images() / "terrains/Plaine.bmp");
    ASSERT_TRUE(taille.has_value());
    EXPECT_EQ(taille->largeur, 272);
    EXPECT_EQ(taille->hauteur, 16);
    EXPECT_FALSE(Lire_Taille_Bmp(Images() / "absente.bmp").has_value());
    dossier_->Ecrire("texte.bmp", "ceci n'est pas une image");
    EXPECT_FALSE(Lire_Taille_Bmp(dossier_->Chemin() / "texte.bmp").has_value());
    // A picture stored top-down gives its height as a positive number.
    std::string enTete(54, '\0');
    enTete[0] = 'B', enTete[1] = 'M', enTete[14] = 40, enTete[18] = 10;
    const int32_t hauteur = -7;
    for (int k = 0; k < 4; ++k) enTete[22 + k] = static_cast<char>((static_cast<uint32_t>(hauteur) >> (8 * k)) & 0xFF);
    dossier_->Ecrire("envers.bmp", enTete);
    const auto envers = Lire_Taille_Bmp(dossier_->Chemin() / "envers.bmp");
    ASSERT_TRUE(envers.has_value());
    EXPECT_EQ(envers->largeur, 10);
    EXPECT_EQ(envers->hauteur, 7);
}

// The families read the forged sheets: each loads without a missing picture, and every state
// the default rules can ask of it names a cell inside its sheet that shows a drawing.
TEST_F(Forge, LesFamillesTrouventUnDessinPourChaqueEtatDesRegles) {
    Definir_Dossier_Jeu(dossier_->Chemin());
    EcranLargeur = 200;
    EcranHauteur = 200;
    Creer_Affichages();
    Charger_Affichages(Param);
    ClsAffObjets objets;
    objets.Charger(Param);
    ClsAffBouton boutons[ClsAffBouton::NombreFamilles];
    for (int f = 0; f < ClsAffBouton::NombreFamilles; ++f) boutons[f].Charger(f);
    EXPECT_EQ(AffPerso.NombreHeros, static_cast<int>(Lister_Dossier(Images() / "Persos/HerosF").size() + Lister_Dossier(Images() / "Persos/HerosM").size()));

    constexpr int32_t Temoin = 0x123457;
    Surface ecran(200, 200);
    const auto verifier = [&](const std::string& quoi, const ClsAffSprite& s, const Rectangle& r, const auto& dessin) {
        EXPECT_TRUE(r.Left >= 0 && r.Top >= 0 && r.Right <= s.Image.Largeur() && r.Bottom <= s.Image.Hauteur()) << quoi << " hors de la planche";
        ecran.Remplir(Temoin);
        dessin();
        int vus = 0;
        for (int y = 0; y < std::min(r.Bottom - r.Top, 200); ++y)
            for (int x = 0; x < std::min(r.Right - r.Left, 200); ++x) vus += ecran.Lire_Pixel(x, y) != Temoin;
        EXPECT_GT(vus, 0) << quoi << " ne montre rien";
    };
    const auto perso = [&](int apparence, int monstre, bool feminin, bool propre) {
        const auto choix = ClsAffPerso::Choisir(apparence, monstre, feminin, propre, AffPerso.NombreHeros);
        for (int d = 0; d <= 4; ++d)
            for (int pas = 0; pas <= 3; ++pas)
                verifier("perso " + std::to_string(choix.sprite) + " bloc " + std::to_string(choix.bloc) + " direction " + std::to_string(d) + " pas " + std::to_string(pas),
                         AffPerso.Sprites[static_cast<std::size_t>(choix.sprite)], ClsAffPerso::Cellule(pas, d, choix.bloc),
                         [&] { AffPerso.Afficher(0, 0, pas, d, apparence, monstre, feminin, ecran, propre, false); });
    };
    for (int h = 0; h < AffPerso.NombreHeros; ++h) perso(h, 0, false, true);
    for (int look = 0; look < Apparences_Nommees(); ++look)
        for (const bool feminin : {false, true}) perso(look, 0, feminin, false);
    for (int m = 0; m < Param.NombreTotalMonstres; ++m) perso(Param.Monstre_Apparence(m), m + 1, false, false);

    for (int t = 0; t < 17; ++t)
        verifier("tuile " + std::to_string(t), AffTerrain.Sprite, Cellule_En_Ligne(t, 16, 16), [&] { AffTerrain.Afficher(0, 0, t, ecran); });
    for (int p = 0; p < Param.NombrePeuples; ++p)
        for (int e = 0; e < (p == 0 ? Param.NombreEpoques : 1); ++e)
            verifier("château " + std::to_string(p) + " époque " + std::to_string(e), AffChateaux.Sprites[static_cast<std::size_t>(p)],
                     ClsAffBatiment::Cellule(e, Param.ChateauxLargeur, Param.ChateauxHauteur, 0),
                     [&] { AffChateaux.Afficher(0, 0, p, e, ecran, Param.ChateauxLargeur, Param.ChateauxHauteur, 0); });
    for (int b = 0; b < Param.NombreTypeBatiments; ++b)
        for (int etat = 0; etat <= Param.Batiment_NombreEtapeFabrication(b); ++etat)
            for (int a = 0; a < Param.Batiment_NombreEtapeAnimation(b); ++a) {
                const int w = Param.Batiment_Largeur(b), h = Param.Batiment_Hauteur(b);
                verifier(Param.Batiment_Nom(b) + " état " + std::to_string(etat) + " animation " + std::to_string(a), AffMaisons.Sprites[static_cast<std::size_t>(b)],
                         ClsAffBatiment::Cellule(etat, w, h, a), [&] { AffMaisons.Afficher(0, 0, b, etat, ecran, w, h, a); });
            }
    for (int d = 0; d < Param.NombreTerrainRessource; ++d)
        verifier("gisement " + std::to_string(d), AffRessources.Sprite, ClsAffRessources::Cellule(d), [&] { AffRessources.Afficher(0, 0, d, ecran); });
    for (int m = 0; m < ClsAffSouris::NombreModes; ++m)
        verifier("pointeur " + std::to_string(m), AffSouris.Sprite, ClsAffSouris::Cellule(m), [&] { AffSouris.Afficher(0, 0, m, ecran); });
    for (int e = 0; e < Param.NombreEffets; ++e)
        for (int k = 0; k < Param.Effet_NombreEtapes(e); ++k)
            verifier("effet " + Param.Effet_Fichier(e) + " étape " + std::to_string(k), AffEffet.Effets[static_cast<std::size_t>(e)].sprite,
                     ClsAffEffet::Cellule(k, AffEffet.Largeur(e), AffEffet.Hauteur(e)), [&] { AffEffet.Afficher(e, k, 0, 0, ecran); });
    for (int o = 0; o < Param.NombreObjets; ++o)
        verifier("objet " + Param.Objet_Nom(o), objets.Sprites[static_cast<std::size_t>(o)], Cellule_En_Ligne(0, 32, 32), [&] { objets.Afficher(0, 0, o, ecran, false); });
    Reinitialiser_Affichages();
}

// A game folder of the rule files and the forged pictures, for the verifier.
void Copier_Dossier_Jeu(const fs::path& images, const fs::path& vers) {
    for (const auto& e : fs::directory_iterator(KORVALIS_DATA))
        if (e.is_regular_file()) fs::copy_file(e.path(), vers / e.path().filename(), fs::copy_options::overwrite_existing);
    fs::copy(images, vers / "Images", fs::copy_options::recursive | fs::copy_options::overwrite_existing);
}

TEST_F(Forge, LeVerificateurNeTrouveRienAReprendreAuxImagesForgees) {
    DossierTemporaire jeu;
    Copier_Dossier_Jeu(Images(), jeu.Chemin());
    Problemes problemes;
    Verifier_Images(problemes);
    for (const std::string& p : problemes) ADD_FAILURE() << p;
}

TEST_F(Forge, LeVerificateurNommeLaRegleDUneImageAbsenteOuTropPetite) {
    DossierTemporaire jeu;
    Copier_Dossier_Jeu(Images(), jeu.Chemin());
    int scierie = -1;
    for (int b = 0; b < Param.NombreTypeBatiments; ++b)
        if (Param.Batiment_Nom(b) == "Scierie") scierie = b;
    ASSERT_GE(scierie, 0);
    fs::remove(jeu.Chemin() / "Images/Batiments/Scierie.bmp");
    ASSERT_TRUE(Ecrire_Bmp(jeu.Chemin() / "Images" / ("Objets/" + Param.Objet_Nom(0) + ".bmp"), Toile(16, 16)));
    ASSERT_TRUE(Ecrire_Bmp(jeu.Chemin() / "Images/terrains/Plaine.bmp", Toile(16, 16)));
    jeu.Ecrire("Images/Persos/HerosF/Note.bmp", "pas une image");
    // The game loads a hero file by its name cut at the first '.': here Images/Persos/HerosM/Ancien.bmp.
    ASSERT_TRUE(Ecrire_Bmp(jeu.Chemin() / "Images/Persos/HerosM/Ancien.v2.bmp", Toile(72, 128)));
    Problemes problemes;
    Verifier_Images(problemes);
    const std::vector<std::string> attendus = {
        "Ini_Parametres_Batiments.ini:Batiment_" + std::to_string(scierie + 1) + ":Nom: Images/Batiments/Scierie.bmp manque",
        "Ini_Parametres_Objets.ini:Objet_1:Nom: Images/Objets/" + Param.Objet_Nom(0) + ".bmp fait 16 × 16, il faut au moins 32 × 32",
        "Images:terrains:Plaine.bmp: Images/terrains/Plaine.bmp fait 16 × 16, il faut au moins 272 × 16",
        "Images:Persos/HerosF:Note.bmp: Images/Persos/HerosF/Note.bmp n'est pas une image BMP lisible",
        "Images:Persos/HerosM:Ancien.v2.bmp: Images/Persos/HerosM/Ancien.bmp manque",
    };
    for (const std::string& a : attendus) EXPECT_NE(std::find(problemes.begin(), problemes.end(), a), problemes.end()) << a;
    EXPECT_EQ(problemes.size(), attendus.size());
}

}  // namespace

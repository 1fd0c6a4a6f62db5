#include "session/CarteMonde.h"

#include <gtest/gtest.h>

#include "MondeDeTest.h"
#include "rules/Hasard.h"
#include "session/PreparerPartie.h"

namespace {

class CarteMonde : public MondeDeTest {
protected:
    static Tache Quoi(const ImageCarte& image, int32_t xMetres, int32_t yMetres) {
        return image.Pixel(xMetres / TailleCase, yMetres / TailleCase).Quoi;
    }
};

TEST_F(CarteMonde, UnPixelParCaseAvecLeTerrainDessous) {
    Definir_Graine(1);
    ASSERT_TRUE(Preparer_Partie(Nouveau_Monde({{0, 0, 3}, {1, 0, 3}}, 20)));
    const ImageCarte image = Dessiner_Carte();
    ASSERT_EQ(image.Largeur, 100);
    ASSERT_EQ(image.Hauteur, 80);
    ASSERT_EQ(image.Pixels.size(), 8000u);
    int32_t terrain = 0;
    for (int32_t y = 0; y < 80; ++y)
        for (int32_t x = 0; x < 100; ++x) {
            const PixelCarte& p = image.Pixel(x, y);
            const bool patch = Monde.Type_Terrain(Monde.Indice_Case(x, y)) != 0;
            if (p.Quoi == Tache::Sol) EXPECT_FALSE(patch) << x << ',' << y;
            if (p.Quoi == Tache::Terrain) {
                EXPECT_TRUE(patch) << x << ',' << y;
                ++terrain;
            }
        }
    EXPECT_GT(terrain, 0);
}

TEST_F(CarteMonde, ChateauxGisementsEtVillageoisSontALeurPlace) {
    Definir_Graine(2);
    ASSERT_TRUE(Preparer_Partie(Nouveau_Monde({{0, 0, 3}, {4, 0, 3}}, 20)));
    const ImageCarte image = Dessiner_Carte();
    for (std::size_t f = 0; f < Chateaux.size(); ++f) {
        const ClsJeuBatiment& c = Chateaux[f];
        const PixelCarte& coin = image.Pixel(c.PositionX / TailleCase + 1, c.PositionY / TailleCase + 1);
        EXPECT_EQ(coin.Quoi, Tache::Chateau);
        EXPECT_EQ(coin.Teinte, Fiefs[f].Equipe);
    }
    // The villagers stand at the centre of their castle, drawn over it.
    const ClsJeuPerso& p = Persos[4];
    const PixelCarte& centre = image.Pixel((p.PositionX + 12) / TailleCase, (p.PositionY + 16) / TailleCase);
    EXPECT_EQ(centre.Quoi, Tache::Perso);
    EXPECT_EQ(centre.Teinte, 4);
    for (const ClsJeuRessources& r : Ressources) {
        EXPECT_EQ(Quoi(image, r.PositionX, r.PositionY), Tache::Gisement);
        EXPECT_EQ(Quoi(image, r.PositionX + 31, r.PositionY + 31), Tache::Gisement);
    }
}

TEST_F(CarteMonde, CeQuiDepasseLaCarteEstCoupeEtLesMortsNeSontPasDessines) {
    Definir_Graine(3);
    ASSERT_TRUE(Preparer_Partie(Bataille(5, 5)));
    Persos[1].PositionX = -10;   // half off the bottom left corner
    Persos[1].PositionY = 120 * 16 - 10;
    Persos[2].PositionX = 160 * 16 + 50;
    Persos[3].PositionX = 2000;
    Persos[3].PositionY = 1500;
    Persos[3].Vie.Valeur = 0;
    const ImageCarte image = Dessiner_Carte();
    EXPECT_EQ(image.Pixel(0, 119).Quoi, Tache::Perso);
    EXPECT_NE(Quoi(image, 2000, 1500), Tache::Perso);
    Persos[3].Vie.Valeur = 1;
    EXPECT_EQ(Quoi(Dessiner_Carte(), 2000, 1500), Tache::Perso);
}

TEST_F(CarteMonde, LeFichierEstUnPGMOuUnPPMSelonSonNom) {
    Definir_Graine(4);
    ASSERT_TRUE(Preparer_Partie(Nouveau_Monde({{0, 0, 2}, {1, 0, 2}}, 10)));
    const ImageCarte image = Dessiner_Carte();
    ASSERT_TRUE(Ecrire_Carte(image, dossier.Chemin() / "monde.pgm"));
    ASSERT_TRUE(Ecrire_Carte(image, dossier.Chemin() / "monde.PPM"));
    const std::string gris = dossier.Lire("monde.pgm");
    const std::string couleur = dossier.Lire("monde.PPM");
    const std::string entete = "100 80\n255\n";
    EXPECT_EQ(gris.substr(0, 3 + entete.size()), "P5\n" + entete);
    EXPECT_EQ(couleur.substr(0, 3 + entete.size()), "P6\n" + entete);
    EXPECT_EQ(gris.size(), 3 + entete.size() + 8000);
    EXPECT_EQ(couleur.size(), 3 + entete.size() + 3 * 8000);
    // In grey, a villager is black and open ground the lightest shade.
    const ClsJeuPerso& p = Persos[1];
    const std::size_t debut = 3 + entete.size();
    const auto octet = [&](int32_t x, int32_t y) {
        return static_cast<unsigned char>(gris[debut + static_cast<std::size_t>(y * 100 + x)]);
    };
    EXPECT_EQ(octet((p.PositionX + 12) / 16, (p.PositionY + 16) / 16), 0);
    for (int32_t y = 0; y < 80; ++y)
        for (int32_t x = 0; x < 100; ++x)
            if (image.Pixel(x, y).Quoi == Tache::Sol) ASSERT_EQ(octet(x, y), 235);
    EXPECT_FALSE(Ecrire_Carte(image, dossier.Chemin() / "absent" / "monde.pgm"));
}

}  // namespace

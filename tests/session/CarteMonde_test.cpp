#include "session/CarteMonde.h"

#include <gtest/gtest.h>

#include <tuple>
#include <utility>

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

TEST_F(CarteMonde, UnPixelParCaseEtChaqueChoseASaPlace) {
    Definir_Graine(2);
    ASSERT_TRUE(Preparer_Partie(Nouveau_Monde({{0, 0, 3}, {4, 0, 3}}, 20)));
    const ImageCarte image = Dessiner_Carte();
    ASSERT_EQ(std::tuple(image.Largeur, image.Hauteur, image.Pixels.size()), std::tuple(100, 80, 8000u));
    int32_t terrain = 0;
    for (int32_t y = 0; y < 80; ++y)
        for (int32_t x = 0; x < 100; ++x) {
            const Tache quoi = image.Pixel(x, y).Quoi;
            const bool patch = Monde.Type_Terrain(Monde.Indice_Case(x, y)) != 0;
            EXPECT_TRUE(quoi != Tache::Sol || !patch) << x << ',' << y;
            EXPECT_TRUE(quoi != Tache::Terrain || patch) << x << ',' << y;
            terrain += quoi == Tache::Terrain;
        }
    EXPECT_GT(terrain, 0);
    for (std::size_t f = 0; f < Chateaux.size(); ++f) {
        const PixelCarte& coin = image.Pixel(Chateaux[f].PositionX / TailleCase + 1, Chateaux[f].PositionY / TailleCase + 1);
        EXPECT_EQ(std::tuple(coin.Quoi, coin.Teinte), std::tuple(Tache::Chateau, Fiefs[f].Equipe));
    }
    // The villagers stand at the centre of their castle, drawn over it while they live.
    const int32_t x = (Persos[4].PositionX + 12) / TailleCase, y = (Persos[4].PositionY + 16) / TailleCase;
    EXPECT_EQ(std::tuple(image.Pixel(x, y).Quoi, image.Pixel(x, y).Teinte), std::tuple(Tache::Perso, 4));
    for (std::size_t i = 3; i < 6; ++i) Persos[i].Vie.Valeur = 0;
    EXPECT_EQ(Dessiner_Carte().Pixel(x, y).Quoi, Tache::Chateau);
    for (const ClsJeuRessources& r : Ressources)
        EXPECT_EQ(std::pair(Quoi(image, r.PositionX, r.PositionY), Quoi(image, r.PositionX + 31, r.PositionY + 31)),
                  std::pair(Tache::Gisement, Tache::Gisement));
}

TEST_F(CarteMonde, LeFichierEstUnPGMOuUnPPMSelonSonNom) {
    Definir_Graine(4);
    ASSERT_TRUE(Preparer_Partie(Nouveau_Monde({{0, 0, 2}, {1, 0, 2}}, 10)));
    const ImageCarte image = Dessiner_Carte();
    ASSERT_TRUE(Ecrire_Carte(image, dossier.Chemin() / "monde.pgm"));
    ASSERT_TRUE(Ecrire_Carte(image, dossier.Chemin() / "monde.PPM"));
    EXPECT_FALSE(Ecrire_Carte(image, dossier.Chemin() / "absent" / "monde.pgm"));
    const std::string gris = dossier.Lire("monde.pgm");
    const std::string couleur = dossier.Lire("monde.PPM");
    const std::string entete = "100 80\n255\n";   // 14 bytes with the magic number
    EXPECT_EQ(std::pair(gris.substr(0, 14), couleur.substr(0, 14)), std::pair("P5\n" + entete, "P6\n" + entete));
    ASSERT_EQ(std::pair(gris.size(), couleur.size()), std::pair(14 + 8000ul, 14 + 3 * 8000ul));
    // In grey, a villager is black and open ground the lightest shade.
    const auto octet = [&](int32_t x, int32_t y) {
        return static_cast<unsigned char>(gris[14 + static_cast<std::size_t>(y * 100 + x)]);
    };
    EXPECT_EQ(octet((Persos[1].PositionX + 12) / 16, (Persos[1].PositionY + 16) / 16), 0);
    for (int32_t y = 0; y < 80; ++y)
        for (int32_t x = 0; x < 100; ++x)
            ASSERT_TRUE(image.Pixel(x, y).Quoi != Tache::Sol || octet(x, y) == 235) << x << ',' << y;
}

}  // namespace

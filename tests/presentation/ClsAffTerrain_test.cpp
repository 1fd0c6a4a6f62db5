// The ground of a 4 x 3 map drawn in a window smaller than the surface: every pixel of the
// window shows the pixel of the world under it, nothing is drawn past the window, and cells
// past the end of the grid are left alone.
#include <gtest/gtest.h>

#include "Planches.h"
#include "Support.h"
#include "presentation/ClsAffTerrain.h"
#include "platform/ClsPerEcran.h"
#include "world/Globales.h"

namespace {

// Each pixel of the tile sheet tells its tile and its place in the tile.
int32_t Pixel_Tuile(int tuile, int x, int y) { return (0x20 + tuile) | (0x20 + x) << 8 | (0x20 + y) << 16; }

class Terrain : public ::testing::Test {
protected:
    void SetUp() override {
        std::vector<int32_t> pixels;
        for (int y = 0; y < 16; ++y)
            for (int x = 0; x < 17 * 16; ++x) pixels.push_back(Pixel_Tuile(x / 16, x % 16, y));
        jeu.Ecrire("Images/terrains/Plaine.bmp", Bmp_24(17 * 16, pixels));
        EcranLargeur = 60;
        EcranHauteur = 40;
        Reinitialiser_Monde();
        Monde.Largeur = 4;
        Monde.Hauteur = 3;
        Monde.Dimensionner(11);
        for (int i = 0; i < 12; ++i) Monde.Type_Terrain(i, (i * 5 + 2) % 17);
        terrain.Charger("Plaine");
    }
    void TearDown() override { Reinitialiser_Monde(); }

    DossierTemporaire jeu;
    ClsAffTerrain terrain;
};

TEST_F(Terrain, LaFenetreMontreLeMondeSousElleEtRienAuDela) {
    constexpr int Largeur = 44, Hauteur = 24;   // 2.75 and 1.5 cells: the window ends inside a cell
    struct Camera {
        int x, y;
    } const cameras[] = {{0, 0}, {5, 7}, {16, 16}, {20, 9}, {31, 30}};
    for (const Camera& c : cameras) {
        Surface ecran(60, 40);
        ecran.Remplir(Fond);
        terrain.AfficheFast(c.x, c.y, Largeur, Hauteur, ecran);
        int fautes = 0;
        for (int y = 0; y < ecran.Hauteur(); ++y)
            for (int x = 0; x < ecran.Largeur(); ++x) {
                const int wx = c.x + x, wy = c.y + y;
                // A column past the right edge reads the start of the next row, as in the map.
                const int i = (wy / 16) * Monde.Largeur + wx / 16;
                const bool dedans = x < Largeur && y < Hauteur && i < Monde.NombreCases();
                const int32_t attendu = dedans ? Pixel_Tuile(Monde.Type_Terrain(i), wx % 16, wy % 16) : Fond;
                if (ecran.Lire_Pixel(x, y) != attendu && ++fautes <= 3)
                    ADD_FAILURE() << "caméra " << c.x << ", " << c.y << " : pixel " << x << ", " << y;
            }
        EXPECT_EQ(fautes, 0) << "caméra " << c.x << ", " << c.y;
    }
}

TEST_F(Terrain, UneTuileSeuleEstSaColonneDeLaPlanche) {
    Surface ecran(60, 40);
    ecran.Remplir(Fond);
    terrain.Afficher(3, 2, 9, ecran);
    EXPECT_EQ(ecran.Lire_Pixel(3, 2), Pixel_Tuile(9, 0, 0));
    EXPECT_EQ(ecran.Lire_Pixel(18, 17), Pixel_Tuile(9, 15, 15));
    EXPECT_EQ(ecran.Lire_Pixel(19, 2), Fond);
}

TEST_F(Terrain, UnSolIntrouvableAbandonneAvecSonMessage) {
    ClsAffTerrain autre;
    EXPECT_EXIT(autre.Charger("Roche"), ::testing::ExitedWithCode(1), "Texture du terrain Roche introuvable\\. Abandon\\.");
}

}  // namespace

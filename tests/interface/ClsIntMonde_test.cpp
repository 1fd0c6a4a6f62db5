// The interface's pieces that the world view uses: the gauge, the bubble, the frame rate and
// the switch of the bubbles, with their settings files.
#include <gtest/gtest.h>

#include "Support.h"
#include "interface/ClsIntMonde.h"
#include "platform/Surface.h"

namespace {

constexpr int32_t Fond = 0x505050, Blanc = 0xFFFFFF;

// A 20 × 4 bar at (5, 3) on a fresh picture; then one row of it read back.
Surface Barre(double valeur, double potentiel, int32_t couleur, bool vertical = false) {
    Surface s(40, 20);
    s.Remplir(Fond);
    ClsIntMonde().Afficher_Barre_Statut(valeur, potentiel, 100, 5, 3, s, 20, 4, couleur, vertical);
    return s;
}

TEST(BarreStatut, CouleurParPartDuMaximumEtPartBlancheDuPotentiel) {
    struct Cas {
        double valeur, potentiel;
        int32_t couleur;
        int32_t coloreesJusquA;   // first column of the bar after the coloured part
        int32_t attendue, blanchesJusquA;
    } const cas[] = {
        {9.9, 0, 0, 7, 128, 7},          // below a tenth: dark red
        {10, 0, 0, 7, 255, 7},           // exactly a tenth: red
        {25, 30, 0, 10, 33023, 11},      // a quarter: orange, white up to the potential
        {50, 0, 0, 15, 49152, 15},       // a half: green
        {100, 100, 0, 25, 49152, 25},
        {50, 0, 0xFF0000, 15, 0xFF0000, 15},   // a colour of its own wins
        {-20, 40, 0, 5, 0, 13},          // below 0: no coloured part at all
    };
    for (const Cas& c : cas) {
        const Surface s = Barre(c.valeur, c.potentiel, c.couleur);
        for (int32_t x = 3; x < 28; ++x) {
            int32_t voulue = Fond;
            if (x == 4 || x == 25) voulue = 0;   // the black box, one pixel wider
            else if (x >= 5 && x < c.coloreesJusquA) voulue = c.attendue;
            else if (x >= 5 && x < c.blanchesJusquA) voulue = Blanc;
            else if (x >= 5 && x < 25) voulue = 0;
            EXPECT_EQ(s.Lire_Pixel(x, 5), voulue) << "valeur " << c.valeur << " colonne " << x;
        }
        EXPECT_EQ(s.Lire_Pixel(10, 2), 0);   // the box's top and bottom edges
        EXPECT_EQ(s.Lire_Pixel(10, 7), 0);
        EXPECT_EQ(s.Lire_Pixel(10, 8), Fond);
    }
}

TEST(BarreStatut, VerticaleMonteDuBas) {
    const Surface s = Barre(50, 0, 0xFF0000, true);   // 4 rows high: rows 5 and 6 coloured
    for (int32_t y = 3; y < 7; ++y) EXPECT_EQ(s.Lire_Pixel(12, y), y >= 5 ? 0xFF0000 : 0) << y;
}

TEST(InfoBulle, MesureParDiesesPuisRetoursChariot) {
    struct Cas {
        const char* texte;
        int32_t largeur, lignes;
    } const cas[] = {
        {"abc", 3, 1}, {"abc#", 4, 1}, {"ab#cde", 3, 2}, {"a#bcdef", 5, 2}, {"ab\rcdef#g", 8, 2},
        {"", 0, 0}, {"Forêt : 3 / 20", 14, 1},   // letters, not bytes
    };
    for (const Cas& c : cas) {
        int32_t largeur = -1, lignes = -1;
        Mesurer_Bulle(c.texte, largeur, lignes);
        EXPECT_EQ(largeur, c.largeur) << c.texte;
        EXPECT_EQ(lignes, c.lignes) << c.texte;
    }
}

TEST(InfoBulle, ResteSurLEcranAvecSaMarge) {
    ClsIntMonde interface;
    Surface s(200, 100);
    s.Remplir(Fond);
    interface.Afficher_Info_Bulles_Terrain(190, 95, "Humain ", s);   // 7 letters: 49 × 16
    const int32_t fond = interface.CouleurRectangleFond, b = interface.BordureRectangleFond;
    EXPECT_EQ(s.Lire_Pixel(199, 99), fond);   // the margin ends on the screen's last pixel
    EXPECT_EQ(s.Lire_Pixel(200 - b - 49 - b, 90), fond);
    EXPECT_EQ(s.Lire_Pixel(200 - b - 49 - b - 1, 90), Fond);
    EXPECT_EQ(s.Lire_Pixel(190, 100 - b - 16 - b - 1), Fond);
    s.Remplir(Fond);
    interface.Afficher_Info_Bulles_Terrain(-50, -50, "x", s);
    EXPECT_EQ(s.Lire_Pixel(0, 0), fond);
}

TEST(InfoBulle, ReglagesDesFichiersEtInterrupteurGardeDansLaDisposition) {
    DossierTemporaire jeu;
    ClsIntMonde interface;
    interface.Charger(640);   // no file: the values of the class stay
    EXPECT_TRUE(interface.Definir_AfficherInfoBulleTerrain());
    interface.Definir_AfficherInfoBulleTerrain(false);
    EXPECT_FALSE(interface.Definir_AfficherInfoBulleTerrain());
    EXPECT_EQ(jeu.Lire("Ini_Interface640.ini"), "");   // nothing written without a layout

    jeu.Ecrire("Ini_Boutons.ini", "[Boutons]\nAfficherInfoBulle=1\nInfoBulleDecalageX=-4\nCouleurRectangleFond=255\n");
    jeu.Ecrire("Ini_Interface640.ini", "[Interface]\nAfficherFPS=0\nFPSMessage=Images :\nAfficherInfoBulleTerrain=1\n");
    interface.Charger(640);
    EXPECT_EQ(interface.InfoBulleDecalageX, -4);
    EXPECT_EQ(interface.InfoBulleDecalageY, 0);
    EXPECT_EQ(interface.CouleurRectangleFond, 255);
    EXPECT_FALSE(interface.AfficherFPS);
    EXPECT_EQ(interface.FPSMessage, "Images :");
    EXPECT_TRUE(interface.Definir_AfficherInfoBulleTerrain());
    interface.Definir_AfficherInfoBulleTerrain(false);
    ClsIntMonde relue;
    relue.Charger(640);
    EXPECT_FALSE(relue.Definir_AfficherInfoBulleTerrain());

    Surface s(100, 30);
    s.Remplir(Fond);
    relue.Afficher_FPS(40, s);   // switched off: nothing drawn
    for (int32_t x = 0; x < 100; ++x) ASSERT_EQ(s.Lire_Pixel(x, 10), Fond);
}

}  // namespace

// Drawing on a picture: colours, boxes with their pen and brush, rounded corners, hatching,
// text in the game's font.
#include <gtest/gtest.h>

#include "platform/Surface.h"

namespace {

constexpr int32_t Fond = 0x202020, Stylo = 0x0000FF, Pinceau = 0x00FF00;

TEST(Surface, CouleursDuJeuEtPixels) {
    EXPECT_EQ(Pixel_De_Couleur(255), 0xFFFF0000u);   // 255 is red
    EXPECT_EQ(Pixel_De_Couleur(0xC00000), 0xFF0000C0u);
    EXPECT_EQ(Pixel_De_Couleur(0), 0xFF000000u);
    for (const int32_t c : {0, 255, 49152, 0xC00000, 0x123456, 0xFFFFFF}) EXPECT_EQ(Couleur_De_Pixel(Pixel_De_Couleur(c)), c);
    Surface s(3, 2);
    EXPECT_EQ(s.Lire_Pixel(2, 1), 0);
    s.Ecrire_Pixel(2, 1, 0x123456);
    s.Ecrire_Pixel(3, 1, 0x654321);   // outside: nothing
    EXPECT_EQ(s.Lire_Pixel(2, 1), 0x123456);
    EXPECT_EQ(s.Lire_Pixel(-1, 0), 0);
    EXPECT_FALSE(Surface(0, 5).Valide());
}

// A 6 x 4 box at (2, 1) on a 10 x 8 picture, corners given in either order. 'S' pen,
// 'P' brush, '.' untouched.
TEST(Surface, BoitesAvecStyloEtPinceau) {
    struct Cas {
        int16_t remplissage, trait;
        int x1, y1, x2, y2;
        const char* attendu[4];
    } const cas[] = {
        {RemplissagePlein, TraitPlein, 2, 1, 8, 5, {"SSSSSS", "SPPPPS", "SPPPPS", "SSSSSS"}},
        {RemplissageTransparent, TraitPlein, 8, 5, 2, 1, {"SSSSSS", "S....S", "S....S", "SSSSSS"}},
        {RemplissagePlein, TraitInvisible, 2, 5, 8, 1, {"PPPPPP", "PPPPPP", "PPPPPP", "PPPPPP"}},
        {HachuresMontantes, TraitInvisible, 2, 1, 8, 5, {".....P", "....P.", "...P..", "..P..."}},
        {HachuresHorizontales, TraitInvisible, 2, 1, 8, 5, {"......", "......", "......", "......"}},
    };
    for (const Cas& c : cas) {
        Surface s(10, 8);
        s.Remplir(Fond);
        s.Definir_Couleur_Trait(Stylo);
        s.Definir_Couleur_Remplissage(Pinceau);
        s.Definir_Style_Remplissage(c.remplissage);
        s.Definir_Style_Trait(c.trait);
        s.Dessiner_Boite(c.x1, c.y1, c.x2, c.y2);
        for (int y = 0; y < 8; ++y)
            for (int x = 0; x < 10; ++x) {
                const bool dedans = x >= 2 && x < 8 && y >= 1 && y < 5;
                const char a = dedans ? c.attendu[y - 1][x - 2] : '.';
                const int32_t couleur = a == 'S' ? Stylo : a == 'P' ? Pinceau : Fond;
                ASSERT_EQ(s.Lire_Pixel(x, y), couleur) << "style " << c.remplissage << "/" << c.trait << " en " << x << "," << y;
            }
    }
}

TEST(Surface, CoinsArrondisEtBoitesHorsDeLImage) {
    Surface s(40, 30);
    s.Remplir(Fond);
    s.Definir_Couleur_Trait(Stylo);
    s.Definir_Couleur_Remplissage(Pinceau);
    s.Definir_Style_Remplissage(RemplissagePlein);
    s.Dessiner_Boite_Arrondie(5, 5, 35, 25, 10, 10);
    EXPECT_EQ(s.Lire_Pixel(5, 5), Fond);     // the corner is cut off
    EXPECT_EQ(s.Lire_Pixel(34, 24), Fond);
    EXPECT_EQ(s.Lire_Pixel(20, 5), Stylo);   // the middle of each side is on the border
    EXPECT_EQ(s.Lire_Pixel(5, 15), Stylo);
    EXPECT_EQ(s.Lire_Pixel(34, 15), Stylo);
    EXPECT_EQ(s.Lire_Pixel(20, 24), Stylo);
    EXPECT_EQ(s.Lire_Pixel(20, 15), Pinceau);
    EXPECT_EQ(s.Lire_Pixel(6, 5), Fond);     // along the curve: cut, then the border
    EXPECT_EQ(s.Lire_Pixel(8, 5), Stylo);
    EXPECT_EQ(s.Lire_Pixel(5, 8), Stylo);
    // Partly or wholly off the picture: drawn where it is on it, no fault.
    s.Dessiner_Boite(-10, -10, 2, 2);
    EXPECT_EQ(s.Lire_Pixel(0, 0), Pinceau);
    EXPECT_EQ(s.Lire_Pixel(1, 1), Stylo);
    s.Dessiner_Boite_Arrondie(30, 20, 60, 50, 10, 10);
    s.Dessiner_Boite(100, 100, 120, 120);
    EXPECT_EQ(s.Lire_Pixel(39, 29), Pinceau);
}

// The text sits in a 7-pixel cell per character from its top left, in the pen's colour.
TEST(Surface, TexteDansSesCellules) {
    EXPECT_EQ(Avance_Caractere(), 7);
    EXPECT_EQ(Largeur_Texte("Vie : 12"), 56);
    EXPECT_EQ(Largeur_Texte("Énée ça"), 49);   // characters, not bytes
    Surface s(80, 30);
    s.Remplir(Fond);
    s.Definir_Couleur_Trait(0xFFFFFF);
    s.Dessiner_Texte(10, 5, "HÉ|");
    int plein = 0, parCellule[3] = {};
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 80; ++x) {
            const int32_t c = s.Lire_Pixel(x, y);
            if (c == Fond) continue;
            ASSERT_TRUE(x >= 10 && x < 31 && y >= 5 && y < 21) << "trace hors du texte en " << x << "," << y;
            ASSERT_TRUE((c & 0xFF) == ((c >> 8) & 0xFF) && (c & 0xFF) == ((c >> 16) & 0xFF)) << "gris attendu";
            plein += c == 0xFFFFFF;
            ++parCellule[(x - 10) / 7];
        }
    EXPECT_GT(plein, 10);
    for (int k = 0; k < 3; ++k) EXPECT_GT(parCellule[k], 5) << k;
    // At the edge of the picture the text is cut, not wrapped.
    s.Remplir(Fond);
    s.Dessiner_Texte(75, -4, "MM");
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 70; ++x) ASSERT_EQ(s.Lire_Pixel(x, y), Fond);
}

}  // namespace

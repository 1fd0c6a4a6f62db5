// Sprites drawn offscreen on an 8 x 6 screen: the colour key, the cut at each edge of the
// screen, the half-and-half mix of the dead, and the end of the program on a missing picture.
#include <gtest/gtest.h>

#include "Images.h"
#include "Support.h"
#include "platform/ClsAffSprite.h"
#include "platform/ClsPerEcran.h"

namespace {

constexpr int32_t Fond = 0x336699;
constexpr int L = 8, H = 6;

// Every pixel of the 4 x 4 test sprite has its own colour, none black.
int32_t Pixel_Motif(int x, int y) { return 0x202020 + 0x10 * x + 0x1000 * y; }

class Sprite : public ::testing::Test {
protected:
    void SetUp() override {
        EcranLargeur = L;
        EcranHauteur = H;
        std::vector<int32_t> motif;
        for (int y = 0; y < 4; ++y)
            for (int x = 0; x < 4; ++x) motif.push_back(Pixel_Motif(x, y));
        jeu.Ecrire("Images/Motif.bmp", Bmp_24(4, motif));
        // Pure black, then the darkest colours that are not, then ordinary ones.
        jeu.Ecrire("Images/Sombres.bmp", Bmp_24(6, {0x000000, 0x010101, 0x000001, 0x000100, 0x010000, 0xFFFFFF}));
        ecran = Surface(L, H);
        ecran.Remplir(Fond);
    }
    DossierTemporaire jeu;
    Surface ecran;
};

TEST_F(Sprite, UnePhotoChargeeGardeSesCouleursExactes) {
    ClsAffSprite s;
    s.Charger("Sombres");
    ASSERT_EQ(s.Image.Largeur(), 6);
    const int32_t attendues[] = {0x000000, 0x010101, 0x000001, 0x000100, 0x010000, 0xFFFFFF};
    for (int x = 0; x < 6; ++x) EXPECT_EQ(s.Image.Lire_Pixel(x, 0), attendues[x]) << x;
    EXPECT_EQ(s.EcranLargeur, L);
    // The screen size is the one of the load, not of later.
    EcranLargeur = 100;
    EXPECT_EQ(s.EcranLargeur, L);
}

// Drawn in this order on the same sprite, so that the key goes on and off between draws.
TEST_F(Sprite, SeulLeNoirPurEstTransparent) {
    struct Cas {
        int colonne;
        bool transparent;
        int32_t attendu;
    } const cas[] = {
        {0, true, Fond},       {1, true, 0x010101},  {2, true, 0x000001}, {3, true, 0x000100},
        {4, true, 0x010000},   {0, false, 0x000000}, {0, true, Fond},     {5, false, 0xFFFFFF},
        {5, true, 0xFFFFFF},
    };
    ClsAffSprite s;
    s.Charger("Sombres");
    for (const Cas& c : cas) {
        ecran.Remplir(Fond);
        s.Selection(0, 1, c.colonne, c.colonne + 1);
        s.Afficher(3, 2, ecran, c.transparent, false);
        EXPECT_EQ(ecran.Lire_Pixel(3, 2), c.attendu) << "colonne " << c.colonne << " transparent " << c.transparent;
        EXPECT_EQ(ecran.Lire_Pixel(4, 2), Fond);
    }
}

// Each draw puts the part of the sprite that is on the screen, at the right place, and
// nothing else; the cut stays in the selection.
TEST_F(Sprite, CoupeAChaqueBordDeLEcran) {
    struct Cas {
        const char* bord;
        int x, y;
        Rectangle apres;   // the selection once cut
    } const cas[] = {
        {"dedans", 2, 1, {0, 0, 4, 4}},         {"gauche", -2, 1, {2, 0, 4, 4}},
        {"droite", 6, 1, {0, 0, 2, 4}},         {"haut", 1, -3, {0, 3, 4, 4}},
        {"bas", 1, 4, {0, 0, 4, 2}},            {"haut gauche", -3, -3, {3, 3, 4, 4}},
        {"bas droite", 7, 5, {0, 0, 1, 1}},     {"haut droite", 5, -1, {0, 1, 3, 4}},
        {"bas gauche", -1, 3, {1, 0, 4, 3}},    {"hors a gauche", -4, 1, {4, 0, 4, 4}},
        {"hors a droite", 8, 1, {0, 0, 0, 4}},  {"hors en bas", 1, 6, {0, 0, 4, 0}},
        {"hors en haut", 1, -5, {0, 5, 4, 4}},
    };
    ClsAffSprite s;
    s.Charger("Motif");
    for (const Cas& c : cas) {
        ecran.Remplir(Fond);
        s.Selection(0, 4, 0, 4);
        s.Afficher(c.x, c.y, ecran, true, false);
        for (int y = 0; y < H; ++y)
            for (int x = 0; x < L; ++x) {
                const int sx = x - c.x, sy = y - c.y;
                const bool dessus = sx >= 0 && sx < 4 && sy >= 0 && sy < 4;
                ASSERT_EQ(ecran.Lire_Pixel(x, y), dessus ? Pixel_Motif(sx, sy) : Fond) << c.bord << " en " << x << "," << y;
            }
        const Rectangle& r = s.Selection();
        EXPECT_EQ(r.Left, c.apres.Left) << c.bord;
        EXPECT_EQ(r.Top, c.apres.Top) << c.bord;
        EXPECT_EQ(r.Right, c.apres.Right) << c.bord;
        EXPECT_EQ(r.Bottom, c.apres.Bottom) << c.bord;
    }
}

// A cell of a sheet cut at the left edge shows the cell's own right part, never its neighbour.
TEST_F(Sprite, UneCelluleCoupeeResteDansSaPlanche) {
    ClsAffSprite s;
    s.Charger("Motif");
    s.Selection(1, 3, 1, 3);   // the middle 2 x 2
    s.Afficher(-1, -1, ecran, true, false);
    EXPECT_EQ(ecran.Lire_Pixel(0, 0), Pixel_Motif(2, 2));
    EXPECT_EQ(ecran.Lire_Pixel(1, 0), Fond);
    EXPECT_EQ(ecran.Lire_Pixel(0, 1), Fond);
    // And at the right and bottom edges, its own left part.
    ecran.Remplir(Fond);
    s.Selection(1, 3, 1, 3);
    s.Afficher(L - 1, H - 1, ecran, true, false);
    EXPECT_EQ(ecran.Lire_Pixel(L - 1, H - 1), Pixel_Motif(1, 1));
    EXPECT_EQ(s.Selection().Right, 2);
    EXPECT_EQ(s.Selection().Bottom, 2);
}

TEST(Melange, MoitieDeChaqueCouleurArrondieALaPaire) {
    struct Cas {
        uint32_t source, cible, attendu;
    } const cas[] = {
        {0xFF204060, 0xFF6080A0, 0xFF406080},   // plain halves
        {0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF},
        {0xFFFF0000, 0xFF000000, 0xFF7F0000},   // red: the half below its bits is lost
        {0xFF000300, 0xFF000000, 0xFF000100},   // green likewise: 1.5 gives 1
        {0xFF000001, 0xFF000000, 0xFF000000},   // blue keeps the half: 0.5 goes to 0
        {0xFF000003, 0xFF000000, 0xFF000002},   // 1.5 goes to 2
        {0xFF000005, 0xFF000000, 0xFF000002},   // 2.5 goes to 2
        {0x00000080, 0x00000080, 0xFF000080},   // the result is opaque whatever the inputs
    };
    for (const Cas& c : cas) EXPECT_EQ(Melange_Moitie(c.source, c.cible), c.attendu) << std::hex << c.source << " " << c.cible;
}

// The dead: no cut of the selection, black skipped, each pixel on the screen mixed.
TEST_F(Sprite, LesMortsSontMelangesPixelParPixelSansCoupe) {
    ClsAffSprite s;
    s.Charger("Sombres");
    ecran = Surface(L + 2, H);   // wider than the screen: the last two columns are off it
    ecran.Remplir(0x808080);
    const auto melange = [](int32_t source) {
        return Couleur_De_Pixel(Melange_Moitie(Pixel_De_Couleur(source), Pixel_De_Couleur(0x808080)));
    };
    s.Selection(0, 1, 0, 6);
    s.Afficher(-1, 0, ecran, true, true);
    EXPECT_EQ(s.Selection().Left, 0);   // not cut
    EXPECT_EQ(ecran.Lire_Pixel(0, 0), melange(0x010101));
    EXPECT_EQ(ecran.Lire_Pixel(4, 0), melange(0xFFFFFF));
    EXPECT_EQ(ecran.Lire_Pixel(5, 0), 0x808080);
    ecran.Remplir(0x808080);
    s.Afficher(3, 0, ecran, true, true);
    EXPECT_EQ(ecran.Lire_Pixel(3, 0), 0x808080);   // black source: untouched
    EXPECT_EQ(ecran.Lire_Pixel(7, 0), melange(0x010000));
    EXPECT_EQ(ecran.Lire_Pixel(8, 0), 0x808080);   // beyond the screen's width
    s.Afficher(3, 6, ecran, true, true);           // below the screen: nothing, no fault
}

using SpriteMort = Sprite;

TEST_F(SpriteMort, UneImageManquanteArreteLeProgrammeAvecSonMessage) {
    ClsAffSprite s;
    EXPECT_FALSE(s.Charger_Si_Present("Fenetres/Absente"));
    EXPECT_EXIT(s.Charger("Fenetres\\Absente"), ::testing::ExitedWithCode(1),
                "Le fichier image :\n[^\n]*/Images/Fenetres/Absente\\.bmp\nest manquant\\.");
    jeu.Ecrire("Images/Vide.bmp", "");
    EXPECT_EXIT(s.Charger("Vide"), ::testing::ExitedWithCode(1), "Images/Vide\\.bmp\nest manquant\\.");
}

TEST_F(SpriteMort, UnTerrainIntrouvableAbandonne) {
    EXPECT_EXIT(Terrain_Introuvable("Plaine"), ::testing::ExitedWithCode(1), "Texture du terrain Plaine introuvable\\. Abandon\\.");
}

}  // namespace

// The world view: the camera, the passes that draw the world and what they move on with or
// without a screen, the pointer's mode and the clicks that act on it. Worlds come from the
// built game folder, whose pictures the forge drew; images are drawn offscreen.
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>
#include <utility>

#include "ai/TestPoint.h"
#include "platform/ClsPerEcran.h"
#include "platform/EcranHorsEcran.h"
#include "presentation/Affichages.h"
#include "rules/ClsJeuParam.h"
#include "rules/Hasard.h"
#include "rules/Horloge.h"
#include "session/FrmMoteur2D.h"
#include "session/ModMain.h"
#include "session/Simulation.h"
#include "world/Globales.h"

namespace {

constexpr int32_t Largeur = 320, Hauteur = 240;
constexpr int32_t Loin = -5000;   // outside the map, where nothing is found or shown

// A pointer put where the test says, which clicks once when asked.
class SourisDeTest final : public PeripheriqueSouris {
public:
    int32_t X = 0, Y = 0;
    bool Gauche = false;
    bool Active() const override { return true; }
    void Positions(int32_t& x, int32_t& y, int32_t& z) override {
        x = X;
        y = Y;
        z = 0;
    }
    bool Clique(int bouton) override { return bouton == 0 && std::exchange(Gauche, false); }
};

ClsJeuPerso& P(int i) { return Persos[static_cast<std::size_t>(i)]; }
ClsJeuBatiment& M(int i) { return Maisons[static_cast<std::size_t>(i)]; }

// A world of seed 7 from the built game folder: fief 0 of the hero and fief 2 in team 0,
// fief 1 the enemy, three villagers each.
class VueDuMonde : public ::testing::Test {
protected:
    FenetreMuette fenetre;
    EcranHorsEcran ecran;
    SourisDeTest souris;
    ClavierMuet clavier;
    FrmMoteur2D moteur{Peripheriques{fenetre, ecran, souris, clavier}};

    void SetUp() override {
        Reinitialiser_Globales();
        ASSERT_TRUE(Trouver_Dossier_Jeu(std::filesystem::path(KORVALIS_JEU)));
        Demarrer_Programme(fenetre);
        Definir_Graine(7);
        Creer_Heros_Actif();
        Piloter_Horloge(1000);
        EcranLargeur = EcranHauteur = 0;
    }

    static ChoixPartie Choix() {
        ChoixPartie choix;
        choix.Largeur = 100;
        choix.Hauteur = 80;
        choix.Gisements = 10;
        choix.Fiefs = {{0, 0, 3}, {1, 0, 3}, {0, 0, 3}};
        return choix;
    }

    void Ouvrir(bool avecEcran) {
        ASSERT_TRUE(!avecEcran || ecran.Allumer(Largeur, Hauteur));
        ASSERT_TRUE(moteur.Ouvrir(Choix()));
    }

    // Everything but the hero far away, so that a test puts on the ground only what it needs.
    static void Vider_Les_Alentours() {
        for (std::size_t i = 1; i < Persos.size(); ++i) Persos[i].PositionX = Loin;
        for (ClsJeuBatiment& m : Maisons) m.PositionX = Loin;
        for (ClsJeuBatiment& c : Chateaux) c.PositionX = Loin;
        for (ClsJeuRessources& g : Ressources) g.PositionX = Loin;
    }

    // A finished house of character i at (x, y).
    static void Batir(int i, int32_t x, int32_t y, bool magasin = false) {
        ClsJeuBatiment& m = M(i);
        m.Numero = i;
        m.PositionX = x;
        m.PositionY = y;
        m.Largeur = m.Hauteur = 48;
        m.MaxVie = 100;
        m.Vie = 100;
        m.Termine = true;
        m.Magasin = magasin;
    }

    // A pass with neither tick nor render: only the devices and the clicks.
    void Passe_Sans_Tour() {
        Avancer_Horloge(0.001f);
        moteur.Passe();
    }
};

TEST_F(VueDuMonde, LaCameraSuitLeHerosDansLesLimitesDeLaCarte) {
    Ouvrir(false);
    struct Cas {
        int32_t ecranL, ecranH, carteL, carteH, x, y, cameraX, cameraY;
    } const cas[] = {
        {1024, 768, 200, 150, 1000, 800, 488, 416},     // in the middle: the hero at the centre
        {1024, 768, 200, 150, 100, 50, 0, 0},           // near the top left corner
        {1024, 768, 200, 150, 3150, 2390, 2176, 1632},  // near the far corner: 3200 - 1024, 2400 - 768
        {1025, 768, 200, 150, 1000, 800, 488, 416},     // 487.5 rounds to even
        {1024, 768, 40, 30, 300, 200, -384, -288},      // a map smaller than the screen: the upper limit, negative
        {1024, 768, 40, 30, 0, 0, 0, 0},              // not above the limit: below 0, so 0
    };
    for (const Cas& c : cas) {
        EcranLargeur = c.ecranL;
        EcranHauteur = c.ecranH;
        Monde.Largeur = c.carteL;
        Monde.Hauteur = c.carteH;
        P(0).PositionX = c.x;
        P(0).PositionY = c.y;
        moteur.Centrer_Camera();
        EXPECT_EQ(std::pair(moteur.CameraX, moteur.CameraY), std::pair(c.cameraX, c.cameraY)) << c.x << "," << c.y;
    }
}

TEST_F(VueDuMonde, LaCameraBougeAuTourEtPasEnPause) {
    Ouvrir(false);
    EcranLargeur = 200;
    EcranHauteur = 100;
    Monde.Largeur = Monde.Hauteur = 100;
    P(0).PositionX = P(0).PositionY = 800;
    const auto avant = std::pair(moteur.CameraX, moteur.CameraY);
    ASSERT_NE(avant, std::pair(700, 750));
    Jeu.Pause = true;
    Avancer_Horloge(0.05f);
    moteur.Passe();
    EXPECT_EQ(std::pair(moteur.CameraX, moteur.CameraY), avant);
    Jeu.Pause = false;
    Avancer_Horloge(0.05f);
    moteur.Passe();
    EXPECT_EQ(std::pair(moteur.CameraX, moteur.CameraY), std::pair(700, 750));
}

TEST_F(VueDuMonde, LesPersosMontresOuNonSelonLeurEtat) {
    Ouvrir(false);
    const int32_t fiefHeros = P(0).Fief;
    int autre = -1, ami = -1;
    for (int i = 1; i < static_cast<int>(Persos.size()); ++i) {
        if (P(i).Fief == fiefHeros && ami < 0) ami = i;
        if (P(i).Fief != fiefHeros && autre < 0) autre = i;
    }
    ASSERT_GE(ami, 0);
    ASSERT_GE(autre, 0);
    struct Cas {
        const char* quoi;
        int qui;
        bool vivant, invocation, dansMaison, montre;
    } const cas[] = {
        {"vivant dehors", ami, true, false, false, true},
        {"vivant dans une maison", ami, true, false, true, false},
        {"mort du fief du héros", ami, false, false, false, true},
        {"mort d'un autre fief", autre, false, false, false, false},
        {"vivant d'un autre fief", autre, true, false, false, true},
        {"invocation morte du fief", ami, false, true, false, false},
        {"invocation vivante", ami, true, true, false, true},
        {"héros mort", 0, false, false, false, true},
        {"héros mort dans sa maison", 0, false, false, true, false},
    };
    for (const Cas& c : cas) {
        ClsJeuPerso& p = P(c.qui);
        const ClsJeuPerso avant = p;
        p.Vie.Valeur = c.vivant ? 10 : 0;
        p.Chef = c.invocation ? 0 : -1;
        p.Visible(!c.dansMaison);
        EXPECT_EQ(Perso_Affiche(static_cast<std::size_t>(c.qui)), c.montre) << c.quoi;
        p = avant;
    }
}

// Each mode of the pointer and the order that a left click gives the hero. The mode is the
// one the last render found under the pointer.
TEST_F(VueDuMonde, UnClicGaucheDonneAuHerosLOrdreDuModeDuPointeur) {
    Ouvrir(false);
    int ennemi = -1, allie = -1;
    for (int i = 1; i < static_cast<int>(Persos.size()); ++i) {
        if (P(i).Equipe != P(0).Equipe && ennemi < 0) ennemi = i;
        if (P(i).Equipe == P(0).Equipe && P(i).Fief != P(0).Fief && allie < 0) allie = i;
    }
    ASSERT_GE(ennemi, 0);
    ASSERT_GE(allie, 0);
    const int32_t fiefAllie = P(allie).Fief, fiefEnnemi = P(ennemi).Fief;
    souris.X = 40;
    souris.Y = 30;
    struct Cas {
        int32_t mode;
        std::function<void(int32_t, int32_t)> poser;   // puts the thing at this world point
        int16_t action;
        std::function<int32_t()> cible;
        int32_t attendue;
    };
    const auto rien = [](int32_t, int32_t) {};
    const Cas cas[] = {
        {PointRien, rien, 1, [] { return P(0).DestinationX; }, 0},
        {PointGisement, [](int32_t x, int32_t y) { Ressources[2].PositionX = x - 5; Ressources[2].PositionY = y - 5; }, 3,
         [] { return P(0).RessourceCible; }, 2},
        {PointMaisonAReparer, [](int32_t x, int32_t y) { Batir(0, x - 10, y - 10); M(0).Termine = false; M(0).Vie = 50; }, 7,
         [] { return P(0).MaisonCible; }, 0},
        {PointMaisonEntiere, [](int32_t x, int32_t y) { Batir(0, x - 10, y - 10); }, 101, [] { return P(0).MaisonCible; }, 0},
        {PointChateauPropre, [](int32_t x, int32_t y) { Chateaux[static_cast<std::size_t>(P(0).Fief)].PositionX = x - 3;
                                                         Chateaux[static_cast<std::size_t>(P(0).Fief)].PositionY = y - 3; },
         202, [] { return P(0).DestinationX; }, -1},
        {PointMaisonAmieCommerce, [&](int32_t x, int32_t y) { Batir(allie, x - 10, y - 10, true); }, 201,
         [] { return P(0).MaisonCible; }, allie},
        {PointChateauAmi, [&](int32_t x, int32_t y) { Chateaux[static_cast<std::size_t>(fiefAllie)].PositionX = x - 3;
                                                       Chateaux[static_cast<std::size_t>(fiefAllie)].PositionY = y - 3; },
         203, [] { return P(0).ChateauCible; }, fiefAllie},
        {PointEnnemi, [&](int32_t x, int32_t y) { P(ennemi).PositionX = x - 3; P(ennemi).PositionY = y - 3; P(ennemi).Visible(true); }, 300,
         [] { return P(0).PersoCible; }, ennemi},
        {PointMaisonEnnemie, [&](int32_t x, int32_t y) { Batir(ennemi, x - 10, y - 10); }, 301, [] { return P(0).MaisonCible; },
         ennemi},
        {PointChateauEnnemi, [&](int32_t x, int32_t y) { Chateaux[static_cast<std::size_t>(fiefEnnemi)].PositionX = x - 3;
                                                          Chateaux[static_cast<std::size_t>(fiefEnnemi)].PositionY = y - 3; },
         302, [] { return P(0).ChateauCible; }, fiefEnnemi},
    };
    for (const Cas& c : cas) {
        Vider_Les_Alentours();
        P(0).Arreter();
        P(0).Visible(true);
        P(0).PersoCible = P(0).MaisonCible = P(0).ChateauCible = P(0).RessourceCible = -1;
        const int32_t x = moteur.CameraX + souris.X, y = moteur.CameraY + souris.Y;
        c.poser(x, y);
        Passe_Sans_Tour();   // the pointer comes to its place
        moteur.Rendu();
        ASSERT_EQ(AffSouris.Mode, c.mode);
        souris.Gauche = true;
        Passe_Sans_Tour();
        EXPECT_EQ(P(0).Definir_Action(), c.action) << "mode " << c.mode;
        const int32_t attendue = c.mode == PointRien ? x - 12 : c.attendue;
        if (c.mode != PointChateauPropre) {
            EXPECT_EQ(c.cible(), attendue) << "mode " << c.mode;
        }
    }

    // The render found a deposit; it is gone before the click, which still goes for it.
    Vider_Les_Alentours();
    Ressources[1].PositionX = moteur.CameraX + souris.X;
    Ressources[1].PositionY = moteur.CameraY + souris.Y;
    moteur.Rendu();
    Ressources[1].PositionX = Loin;
    souris.Gauche = true;
    Passe_Sans_Tour();
    EXPECT_EQ(std::pair(P(0).Definir_Action(), P(0).RessourceCible), std::pair(int16_t{3}, 1));
}

TEST_F(VueDuMonde, UnHerosMortNeVoitQueSonChateauEtLesTemples) {
    Ouvrir(false);
    int ennemi = 1;
    while (P(ennemi).Equipe == P(0).Equipe) ++ennemi;
    souris.X = 40;
    souris.Y = 30;
    Passe_Sans_Tour();
    const int32_t x = moteur.CameraX + souris.X, y = moteur.CameraY + souris.Y;
    P(0).Vie.Valeur = 0;
    struct Cas {
        const char* quoi;
        std::function<void()> poser;
        int32_t curseur;
    } const cas[] = {
        {"son château", [&] { Chateaux[static_cast<std::size_t>(P(0).Fief)].PositionX = x - 3;
                               Chateaux[static_cast<std::size_t>(P(0).Fief)].PositionY = y - 3; }, 6},
        {"un ennemi", [&] { P(ennemi).PositionX = x - 3; P(ennemi).PositionY = y - 3; P(ennemi).Visible(true); }, 0},
        {"sa maison sans temple", [&] { Batir(0, x - 10, y - 10); }, 0},
        {"sa maison qui est un temple", [&] { Batir(0, x - 10, y - 10); M(0).Service = 1; }, 5},
    };
    for (const Cas& c : cas) {
        Vider_Les_Alentours();
        c.poser();
        moteur.Rendu();
        EXPECT_EQ(AffSouris.Mode, c.curseur) << c.quoi;
    }
}

// The blits keep to the camera; what drawing moves on does not, and runs alike without a screen.
TEST_F(VueDuMonde, RienNEstDessineHorsDeLaCameraMaisLesEffetsAvancentPartout) {
    for (const bool avecEcran : {true, false}) {
        SetUp();
        ecran.Eteindre();
        Ouvrir(avecEcran);
        Vider_Les_Alentours();
        const int32_t cx = moteur.CameraX, cy = moteur.CameraY;
        Ressources[0].PositionX = cx + 10;
        Ressources[0].PositionY = cy + 10;
        Ressources[1].PositionX = cx + Largeur;   // just off the right edge
        Ressources[1].PositionY = cy + 10;
        Ressources[2].PositionX = cx - 32;        // just off the left edge
        Ressources[2].PositionY = cy + 10;
        Batir(1, cx + 100, cy + 100);
        Batir(2, cx + 2000, cy + 100);            // far off screen, badly hurt
        M(2).Vie = 20;
        P(0).PositionX = cx + 200;
        P(0).PositionY = cy + 150;
        P(0).Visible(true);
        moteur.Rendu();
        EXPECT_EQ(moteur.SpritesDessines, avecEcran ? 3 : 0);   // a deposit, a house, the hero
        EXPECT_TRUE(EffetsMaisons[2].Actif);
        EXPECT_GT(EffetsMaisons[2].EtapeCourante, 0);
        const double etape = EffetsMaisons[2].EtapeCourante;
        const int16_t animation = M(2).NumeroAnimation;
        moteur.Rendu();
        EXPECT_GT(EffetsMaisons[2].EtapeCourante, etape);
        EXPECT_FALSE(EffetsMaisons[1].Actif);
        if (Param.Batiment_NombreEtapeAnimation(M(2).Type) > 1) {
            EXPECT_NE(M(2).NumeroAnimation, animation);
        }
    }
}

// What the screen shows at (x, y) for the ground alone.
int32_t Pixel_Terrain(int32_t xMonde, int32_t yMonde) {
    const int32_t tuile = Monde.Type_Terrain((yMonde / 16) * Monde.Largeur + xMonde / 16);
    return AffTerrain.Sprite.Image.Lire_Pixel(16 * tuile + xMonde % 16, yMonde % 16);
}

// Pixel (dx, dy) of the cell that shows character i; 0 where the cell is transparent.
int32_t Pixel_Perso(int i, int32_t dx, int32_t dy) {
    const ClsJeuPerso& p = P(i);
    const auto choix = ClsAffPerso::Choisir(p.Apparence, p.Monstre, p.Feminin, p.ApparenceFichier, AffPerso.NombreHeros);
    const Rectangle c = ClsAffPerso::Cellule(p.EtapeAnimation, p.Direction, choix.bloc);
    return AffPerso.Sprites[static_cast<std::size_t>(choix.sprite)].Image.Lire_Pixel(c.Left + dx, c.Top + dy);
}

// Characters stand where they are, drawn over the ground; the lower index on top; the dead of
// the hero's fief mixed with the ground, those of other fiefs not drawn at all.
TEST_F(VueDuMonde, LesPersosSurLeTerrainAuxBonsPixels) {
    Ouvrir(true);
    Vider_Les_Alentours();
    souris.X = Largeur - 10;
    souris.Y = Hauteur - 10;
    Passe_Sans_Tour();
    const int32_t cx = moteur.CameraX, cy = moteur.CameraY;
    int autreFief = 1;
    while (P(autreFief).Fief == P(0).Fief) ++autreFief;
    int a = 1;   // two villagers of the hero's fief
    while (P(a).Fief != P(0).Fief) ++a;
    int b = a + 1;
    while (P(b).Fief != P(0).Fief) ++b;
    struct Place {
        int qui;
        int32_t x, y;   // on the screen
    } const places[] = {{0, 40, 60}, {a, 150, 60}, {b, 150, 60}, {autreFief, 250, 60}};
    for (const Place& pl : places) {
        ClsJeuPerso& p = P(pl.qui);
        p.PositionX = cx + pl.x;
        p.PositionY = cy + pl.y;
        p.Visible(true);
        p.Commentaire.clear();
        p.Direction = 3;
        p.EtapeAnimation = 1;
    }
    P(b).Monstre = 1;   // under a, and of another look
    P(b).Apparence = 0;
    moteur.Rendu();
    const Surface& s = *ecran.Tampon();
    int differents = 0;
    for (int32_t dy = 0; dy < HauteurPerso; ++dy)
        for (int32_t dx = 0; dx < LargeurPerso; ++dx) {
            for (const Place& pl : {places[0], places[1]}) {
                const int32_t voulu = Pixel_Perso(pl.qui, dx, dy);
                if (voulu != 0) {
                    ASSERT_EQ(s.Lire_Pixel(pl.x + dx, pl.y + dy), voulu) << pl.qui << " en " << dx << "," << dy;
                }
            }
            if (Pixel_Perso(b, dx, dy) != 0 && Pixel_Perso(b, dx, dy) != Pixel_Perso(a, dx, dy)) ++differents;
        }
    EXPECT_GT(differents, 0);   // b would show if it were on top

    // The ground everywhere nothing stands: a grid of points away from the characters,
    // the pointer and the frame rate.
    for (int32_t y = 110; y < Hauteur - 20; y += 13)
        for (int32_t x = 3; x < Largeur - 20; x += 17)
            ASSERT_EQ(s.Lire_Pixel(x, y), Pixel_Terrain(cx + x, cy + y)) << x << "," << y;

    // Now dead: a of the hero's fief shows mixed with the ground, the other fief's not at all.
    P(a).Vie.Valeur = 0;
    P(b).PositionX = Loin;
    P(autreFief).Vie.Valeur = 0;
    moteur.Rendu();
    for (int32_t dy = 0; dy < HauteurPerso; ++dy)
        for (int32_t dx = 0; dx < LargeurPerso; ++dx) {
            const int32_t sol = Pixel_Terrain(cx + 150 + dx, cy + 60 + dy);
            const int32_t voulu = Pixel_Perso(a, dx, dy);
            const int32_t attendu =
                voulu == 0 ? sol : Couleur_De_Pixel(Melange_Moitie(Pixel_De_Couleur(voulu), Pixel_De_Couleur(sol)));
            ASSERT_EQ(s.Lire_Pixel(150 + dx, 60 + dy), attendu) << dx << "," << dy;
            ASSERT_EQ(s.Lire_Pixel(250 + dx, 60 + dy), Pixel_Terrain(cx + 250 + dx, cy + 60 + dy)) << dx << "," << dy;
        }
}

// One whole image of the seed-7 world, by a checksum of its pixels. A change of the art of
// the forge or of the font changes it too: look at a capture, and if the picture is right,
// take the new value.
TEST_F(VueDuMonde, UneImageDuMondeParSaSomme) {
    Ouvrir(true);
    souris.X = 100;
    souris.Y = 80;
    Passe_Sans_Tour();
    moteur.Rendu();
    const Surface& s = *ecran.Tampon();
    uint64_t somme = 1469598103934665603ull;
    for (int32_t y = 0; y < Hauteur; ++y)
        for (int32_t x = 0; x < Largeur; ++x) somme = (somme ^ static_cast<uint32_t>(s.Lire_Pixel(x, y))) * 1099511628211ull;
    EXPECT_EQ(somme, 10568614248727967131ull);
}

// The same game, shown or not, ends in the same state.
TEST(VueDuMondeSimulee, LEtatNeDependPasDeLEcran) {
    auto jouer = [](bool avecEcran) {
        Reinitialiser_Globales();
        EXPECT_TRUE(Trouver_Dossier_Jeu(std::filesystem::path(KORVALIS_JEU)));
        FenetreMuette fenetre;
        Demarrer_Programme(fenetre);
        Definir_Graine(7);
        Creer_Heros_Actif();
        ChoixPartie choix = Lire_Ini_Partie();
        choix.Largeur = 100;
        choix.Hauteur = 80;
        Simulateur simulateur;
        EXPECT_TRUE(!avecEcran || simulateur.Ecran().Allumer(Largeur, Hauteur));
        EXPECT_TRUE(simulateur.Ouvrir(choix));
        // A house on fire from the start: its effect plays on every render.
        ClsJeuBatiment& m = Maisons[1];
        m.Numero = 1;
        m.Largeur = Param.Batiment_Largeur(0);
        m.Hauteur = Param.Batiment_Hauteur(0);
        m.MaxVie = 100;
        m.Vie = 10;
        m.Termine = true;
        while (simulateur.Ticks() < 400) simulateur.Passe();
        EXPECT_EQ(simulateur.Ecran().ImagesPresentees, 400);
        return Empreinte_Etat();
    };
    EXPECT_EQ(jouer(true), jouer(false));
}

}  // namespace

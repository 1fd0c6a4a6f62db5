// The keyboard of play: the one table between SDL's keys and the codes of "Ini_Touches", and
// one key per press.
#include <gtest/gtest.h>

#include <SDL.h>

#include <set>
#include <string>

#include "platform/ClsPerClavier.h"
#include "platform/CodesTouches.h"
#include "platform/Evenements.h"
#include "rules/Chemins.h"
#include "rules/ClsFicINI.h"
#include "rules/Conversions.h"

namespace {

TEST(CodesTouches, LesCodesConnus) {
    const std::pair<int, int> paires[] = {
        {SDL_SCANCODE_ESCAPE, 1},  {SDL_SCANCODE_1, 2},         {SDL_SCANCODE_0, 11},     {SDL_SCANCODE_Q, 16},
        {SDL_SCANCODE_W, 17},      {SDL_SCANCODE_LCTRL, 29},    {SDL_SCANCODE_A, 30},     {SDL_SCANCODE_SEMICOLON, 39},
        {SDL_SCANCODE_LSHIFT, 42}, {SDL_SCANCODE_Z, 44},        {SDL_SCANCODE_M, 50},     {SDL_SCANCODE_LALT, 56},
        {SDL_SCANCODE_SPACE, 57},  {SDL_SCANCODE_F1, 59},       {SDL_SCANCODE_F4, 62},    {SDL_SCANCODE_F10, 68},
        {SDL_SCANCODE_KP_0, 82},   {SDL_SCANCODE_NONUSBACKSLASH, 86}, {SDL_SCANCODE_F12, 88}, {SDL_SCANCODE_KP_ENTER, 156},
        {SDL_SCANCODE_RCTRL, 157}, {SDL_SCANCODE_RALT, 184},    {SDL_SCANCODE_PAUSE, 197}, {SDL_SCANCODE_UP, 200},
        {SDL_SCANCODE_LEFT, 203},  {SDL_SCANCODE_RIGHT, 205},   {SDL_SCANCODE_DOWN, 208}, {SDL_SCANCODE_DELETE, 211},
    };
    for (const auto& [scancode, code] : paires) {
        EXPECT_EQ(Code_Touche(scancode), code) << SDL_GetScancodeName(static_cast<SDL_Scancode>(scancode));
        EXPECT_EQ(Scancode_Touche(static_cast<uint8_t>(code)), scancode) << code;
    }
    for (const int inconnue : {0, static_cast<int>(SDL_SCANCODE_F24), -1, static_cast<int>(SDL_NUM_SCANCODES)}) EXPECT_EQ(Code_Touche(inconnue), 0);
    EXPECT_EQ(Scancode_Touche(0), 0);
    EXPECT_EQ(Scancode_Touche(255), 0);
}

TEST(CodesTouches, UneSeuleTableSansDoublon) {
    std::set<int> scancodes, codes;
    for (const PaireTouche& p : Table_Touches()) {
        EXPECT_TRUE(scancodes.insert(p.scancode).second) << "scancode " << p.scancode;
        EXPECT_TRUE(codes.insert(p.code).second) << "code " << int(p.code);
        EXPECT_NE(p.code, 0);
        EXPECT_EQ(Code_Touche(p.scancode), p.code);
        EXPECT_EQ(Scancode_Touche(p.code), p.scancode);
    }
}

// Every command of the default keys has a key that a keyboard can give, and that key comes
// back to the same code; so do the keys of the object shortcuts.
TEST(CodesTouches, ChaqueToucheDuJeuFaitLAllerRetour) {
    static const char* const commandes[] = {
        "ToucheQuitter", "ToucheFenetreBatiment", "ToucheFenetrePersonnage", "ToucheFenetreRessources",
        "ToucheFenetreCompetences", "ToucheFenetreInventaire", "ToucheFenetreBestiaire", "ToucheFenetresFermer",
        "ToucheRetourChateau", "ToucheRetourMaison", "ToucheTrouverRessource1", "ToucheTrouverRessource2",
        "ToucheTrouverRessource3", "ToucheTrouverRessource4", "ToucheTrouverRessource5", "ToucheTrouverRessource6",
        "ToucheTrouverRessource7", "ToucheTrouverRessource8", "ToucheTrouverAttaquerPerso",
        "ToucheTrouverAttaquerChateau", "ToucheModeAuto", "ToucheAide", "ToucheArret", "ToucheChargez",
        "ToucheDefinirAttitude", "ToucheDefinirFormation", "ToucheDemolirMaison", "ToucheAfficherConseil",
        "TouchePause", "ToucheSauvegarderMonde", "ToucheInterfaceBoutonsConstruire", "ToucheChangerPersonnage",
        "ToucheDirectionHaut", "ToucheDirectionBas", "ToucheDirectionGauche", "ToucheDirectionDroite", "ToucheObjets",
    };
    Definir_Dossier_Jeu(KORVALIS_DATA);
    ClsFicINI ini;
    ini.Fichier = "Ini_Touches";
    ini.Section = "Touches";
    std::vector<int> touches;
    std::set<int> distinctes;
    for (const char* cle : commandes) {
        const auto code = Convertir_Strict_Entier(ini.Parametre(cle));
        ASSERT_TRUE(code.has_value()) << cle;
        EXPECT_TRUE(*code != 29 && *code != 42 && *code != 56) << cle << " est un modificateur";
        EXPECT_TRUE(distinctes.insert(static_cast<int>(*code)).second) << cle << " partage sa touche";
        touches.push_back(static_cast<int>(*code));
    }
    const int premier = static_cast<int>(Convertir_Souple(ini.Parametre("ToucheObjets")));
    const int nombre = static_cast<int>(Convertir_Souple(ini.Parametre("NombreTouchesObjets")));
    EXPECT_EQ(nombre, 10);
    for (int k = 1; k < nombre; ++k) touches.push_back(premier + k);
    for (const int code : touches) {
        ASSERT_GT(code, 0);
        ASSERT_LT(code, 256);
        const int scancode = Scancode_Touche(static_cast<uint8_t>(code));
        EXPECT_NE(scancode, 0) << "code " << code;
        EXPECT_EQ(Code_Touche(scancode), code);
    }
}

// Readings pass after pass, with ctrl, maj and alt kept between passes as the frame loop keeps
// them.
TEST(Clavier, UneToucheParPression) {
    struct Lecture {
        std::vector<int> enfoncees;
        int16_t touche;
        bool ctrl, maj, alt;
    };
    struct Suite {
        const char* nom;
        std::vector<Lecture> lectures;
    } const suites[] = {
        {"tenue des le debut", {{{30}, 0, false, false, false}, {{}, 0, false, false, false}, {{30}, 30, false, false, false}}},
        {"tenue puis relachee",
         {{{}, 0, false, false, false}, {{30}, 30, false, false, false}, {{30}, 0, false, false, false},
          {{}, 0, false, false, false}, {{30}, 30, false, false, false}}},
        {"Ctrl seul n'est pas une touche",
         {{{}, 0, false, false, false}, {{29}, 0, true, false, false}, {{29, 30}, 30, true, false, false},
          {{}, 0, false, false, false}, {{42}, 0, false, true, false}, {{42, 2}, 2, false, true, false}}},
        {"un modificateur au-dessus de la touche garde son etat",
         {{{}, 0, false, false, false}, {{56}, 0, false, false, true}, {{30}, 30, false, false, true},
          {{}, 0, false, false, false}, {{2, 29}, 2, false, false, false}}},
        {"deux touches : la plus basse, puis rien avant que tout soit relache",
         {{{}, 0, false, false, false}, {{45, 30}, 30, false, false, false}, {{45}, 0, false, false, false},
          {{}, 0, false, false, false}, {{45}, 45, false, false, false}}},
        {"Ctrl, Maj et Alt de droite sont des touches",
         {{{}, 0, false, false, false}, {{157}, 157, false, false, false}, {{}, 0, false, false, false},
          {{54}, 54, false, false, false}, {{}, 0, false, false, false}, {{184}, 184, false, false, false}}},
        {"Alt + F4", {{{}, 0, false, false, false}, {{56, 62}, 62, false, false, true}}},
    };
    for (const Suite& suite : suites) {
        ClsPerClavier clavier;
        bool ctrl = false, maj = false, alt = false;
        int n = 0;
        for (const Lecture& l : suite.lectures) {
            clavier.Etat.fill(0);
            for (const int code : l.enfoncees) clavier.Etat[static_cast<std::size_t>(code)] = 0x80;
            EXPECT_EQ(clavier.Interpreter(ctrl, maj, alt), l.touche) << suite.nom << ", lecture " << n;
            EXPECT_EQ(ctrl, l.ctrl) << suite.nom << ", lecture " << n;
            EXPECT_EQ(maj, l.maj) << suite.nom << ", lecture " << n;
            EXPECT_EQ(alt, l.alt) << suite.nom << ", lecture " << n;
            ++n;
        }
    }
}

// Closing the window is Alt + F4, once.
TEST(Clavier, FermerLaFenetreVautAltF4) {
    ClsPerClavier clavier;
    bool ctrl = true, maj = true, alt = false;
    Evenements().Fermeture = true;
    EXPECT_EQ(clavier.Pression_Clavier(ctrl, maj, alt), 62);
    EXPECT_TRUE(alt);
    EXPECT_FALSE(ctrl);
    EXPECT_FALSE(maj);
    EXPECT_FALSE(Evenements().Fermeture);
    EXPECT_EQ(clavier.Pression_Clavier(ctrl, maj, alt), 0);
}

// A key pressed and let go again between two readings (a quick tap while the events of a
// render pile up) still counts, once.
TEST(Clavier, UneFrappeBreveEntreDeuxLecturesCompte) {
    ClsPerClavier clavier;
    bool ctrl = false, maj = false, alt = false;
    EXPECT_EQ(clavier.Pression_Clavier(ctrl, maj, alt), 0);
    Evenements().ToucheAppuyee[4] = true;   // SDL's scancode of A, already released
    EXPECT_EQ(clavier.Pression_Clavier(ctrl, maj, alt), 30);
    EXPECT_EQ(clavier.Pression_Clavier(ctrl, maj, alt), 0);
    EXPECT_EQ(clavier.Pression_Clavier(ctrl, maj, alt), 0);
}

}  // namespace

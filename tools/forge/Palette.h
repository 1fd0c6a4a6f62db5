// The fixed warm palette of the game's pictures: ramps of four shades, darkest first.
//
// Pure black is the transparent colour of every sprite, so no drawn colour ever goes below
// 8 on any channel: the darkest ink is a warm brown, never black.
#pragma once

#include <cstdint>

struct Couleur {
    uint8_t r = 0, g = 0, b = 0;
    friend constexpr bool operator==(Couleur a, Couleur b) { return a.r == b.r && a.g == b.g && a.b == b.b; }
};

// The colour key: never drawn, only left where nothing is.
inline constexpr Couleur Transparent{0, 0, 0};
// Lowest value of a channel in a visible pixel.
inline constexpr uint8_t CanalMinimum = 8;

// Four shades of one material, from shadow (0) to highlight (3).
struct Rampe {
    Couleur c[4];
    constexpr Couleur operator[](int i) const { return c[i < 0 ? 0 : (i > 3 ? 3 : i)]; }
    friend constexpr bool operator==(const Rampe& a, const Rampe& b) {
        return a.c[0] == b.c[0] && a.c[1] == b.c[1] && a.c[2] == b.c[2] && a.c[3] == b.c[3];
    }
};

// Linear mix, t = 0 gives a, t = 1 gives b.
Couleur Melanger(Couleur a, Couleur b, double t);
// Channels raised to CanalMinimum where they are lower.
constexpr Couleur Visible(Couleur c) {
    return {c.r < CanalMinimum ? CanalMinimum : c.r, c.g < CanalMinimum ? CanalMinimum : c.g, c.b < CanalMinimum ? CanalMinimum : c.b};
}
// A ramp spread between two colours (shadow and highlight).
Rampe Rampe_Entre(Couleur sombre, Couleur clair);
// The same ramp pushed toward grey (for unavailable buttons) by the fraction t.
Rampe Desaturer(const Rampe& r, double t);
Couleur Desaturer(Couleur c, double t);

namespace Pal {

// Ink of every outline and the darkest shadow: warm and never black.
inline constexpr Couleur Encre{38, 24, 20};
inline constexpr Couleur EncreDouce{62, 42, 34};
inline constexpr Couleur Blanc{248, 244, 230};

inline constexpr Rampe Herbe{{{62, 98, 40}, {80, 120, 46}, {100, 142, 54}, {132, 168, 70}}};
inline constexpr Rampe Terre{{{100, 66, 40}, {128, 88, 52}, {154, 112, 68}, {182, 140, 90}}};
inline constexpr Rampe Sable{{{166, 134, 86}, {196, 166, 110}, {220, 194, 138}, {238, 218, 170}}};
inline constexpr Rampe Feuillage{{{34, 66, 36}, {50, 92, 44}, {74, 122, 54}, {112, 158, 70}}};
inline constexpr Rampe Bois{{{72, 44, 28}, {106, 68, 40}, {142, 96, 56}, {178, 130, 80}}};
inline constexpr Rampe BoisClair{{{122, 86, 50}, {160, 118, 70}, {196, 152, 98}, {224, 188, 132}}};
inline constexpr Rampe Pierre{{{74, 70, 72}, {106, 100, 98}, {142, 134, 126}, {180, 172, 158}}};
inline constexpr Rampe PierreClaire{{{128, 118, 104}, {166, 156, 138}, {200, 190, 168}, {228, 220, 198}}};
inline constexpr Rampe Brique{{{102, 40, 30}, {142, 60, 40}, {176, 86, 56}, {204, 118, 80}}};
inline constexpr Rampe Tuile{{{112, 42, 30}, {152, 62, 40}, {190, 92, 58}, {220, 130, 86}}};
inline constexpr Rampe Chaume{{{118, 86, 38}, {160, 122, 54}, {198, 160, 78}, {228, 198, 116}}};
inline constexpr Rampe Ardoise{{{48, 54, 76}, {68, 78, 104}, {94, 106, 134}, {130, 142, 166}}};
inline constexpr Rampe Cuivre{{{40, 94, 88}, {58, 126, 112}, {88, 160, 138}, {136, 196, 170}}};
inline constexpr Rampe Torchis{{{162, 138, 104}, {196, 172, 134}, {222, 202, 164}, {240, 226, 194}}};
inline constexpr Rampe Eau{{{30, 62, 100}, {46, 92, 140}, {74, 130, 176}, {136, 184, 210}}};
inline constexpr Rampe Peau{{{128, 76, 52}, {178, 116, 80}, {218, 160, 118}, {240, 198, 156}}};
inline constexpr Rampe PeauMate{{{90, 54, 36}, {130, 84, 56}, {168, 116, 80}, {198, 150, 108}}};
inline constexpr Rampe Metal{{{66, 70, 80}, {108, 114, 124}, {156, 162, 170}, {212, 216, 218}}};
inline constexpr Rampe Or{{{128, 86, 22}, {188, 136, 32}, {230, 186, 58}, {250, 228, 128}}};
inline constexpr Rampe Feu{{{156, 40, 22}, {222, 92, 30}, {248, 160, 44}, {255, 232, 128}}};
inline constexpr Rampe Magie{{{56, 52, 140}, {88, 100, 206}, {136, 160, 240}, {200, 220, 255}}};
inline constexpr Rampe Poison{{{40, 84, 30}, {72, 132, 40}, {120, 186, 60}, {190, 232, 120}}};
inline constexpr Rampe Glace{{{70, 110, 150}, {110, 160, 200}, {168, 210, 232}, {226, 244, 250}}};
inline constexpr Rampe Parchemin{{{132, 100, 64}, {186, 152, 104}, {224, 198, 148}, {242, 226, 186}}};
inline constexpr Rampe Cuir{{{78, 46, 30}, {112, 70, 42}, {148, 100, 60}, {184, 136, 88}}};
inline constexpr Rampe Os{{{142, 130, 108}, {184, 172, 146}, {216, 206, 182}, {240, 234, 214}}};
inline constexpr Rampe Sang{{{96, 20, 24}, {140, 30, 30}, {186, 48, 40}, {222, 90, 70}}};

// Cloths: the colours of outfits, banners and cushions.
inline constexpr Rampe DrapRouge{{{102, 30, 30}, {146, 44, 40}, {186, 68, 54}, {216, 108, 82}}};
inline constexpr Rampe DrapBleu{{{36, 48, 92}, {52, 74, 130}, {78, 106, 168}, {120, 148, 200}}};
inline constexpr Rampe DrapVert{{{40, 70, 38}, {58, 98, 50}, {84, 128, 64}, {124, 164, 90}}};
inline constexpr Rampe DrapViolet{{{66, 38, 84}, {96, 58, 116}, {130, 86, 150}, {168, 128, 184}}};
inline constexpr Rampe DrapOcre{{{120, 80, 30}, {162, 114, 42}, {200, 150, 62}, {226, 188, 104}}};
inline constexpr Rampe DrapBrun{{{76, 50, 34}, {104, 72, 48}, {136, 98, 66}, {168, 130, 94}}};
inline constexpr Rampe DrapGris{{{82, 80, 78}, {114, 110, 104}, {150, 144, 134}, {186, 180, 168}}};
inline constexpr Rampe DrapBlanc{{{164, 156, 140}, {200, 194, 178}, {226, 222, 208}, {246, 242, 232}}};
inline constexpr Rampe DrapBordeaux{{{78, 22, 36}, {112, 34, 50}, {146, 52, 68}, {180, 84, 96}}};
inline constexpr Rampe DrapSarcelle{{{26, 72, 78}, {38, 102, 106}, {60, 136, 134}, {104, 172, 164}}};

// Hair colours.
inline constexpr Rampe CheveuxBruns{{{52, 32, 22}, {78, 50, 32}, {106, 72, 46}, {136, 98, 66}}};
inline constexpr Rampe CheveuxBlonds{{{134, 98, 40}, {182, 142, 62}, {218, 184, 96}, {240, 216, 146}}};
inline constexpr Rampe CheveuxRoux{{{110, 44, 20}, {158, 68, 28}, {198, 98, 44}, {224, 140, 78}}};
inline constexpr Rampe CheveuxNoirs{{{30, 24, 24}, {46, 38, 38}, {68, 58, 58}, {96, 86, 84}}};
inline constexpr Rampe CheveuxGris{{{104, 100, 96}, {142, 138, 132}, {182, 178, 170}, {218, 214, 206}}};

}  // namespace Pal

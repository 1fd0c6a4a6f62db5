#include "platform/Police.h"

#include <algorithm>

#include <SDL.h>
#include <SDL_ttf.h>

#include "rules/Chemins.h"

namespace fs = std::filesystem;

namespace {

constexpr int TaillePoints = 12;
constexpr const char* NomPolice = "DejaVuSansMono.ttf";

TTF_Font* Fonte(void* p) { return static_cast<TTF_Font*>(p); }

}  // namespace

std::vector<fs::path> Chemins_Police() {
    return {Chemin_Jeu(std::string("Polices/") + NomPolice),
            fs::path("/usr/share/fonts/truetype/dejavu") / NomPolice,
            fs::path("/usr/share/fonts/dejavu") / NomPolice};
}

Police& Police::Jeu() {
    static Police police;
    return police;
}

Police::Police() {
    if (TTF_WasInit() == 0 && TTF_Init() != 0) return;
    for (const fs::path& chemin : Chemins_Police()) {
        std::error_code erreur;
        if (!fs::is_regular_file(chemin, erreur)) continue;
        police_ = TTF_OpenFont(chemin.c_str(), TaillePoints);
        if (police_) break;
    }
    if (!police_) {
        SDL_Log("Korvalis : police %s introuvable, les textes ne seront pas dessinés.", NomPolice);
        return;
    }
    TTF_SetFontHinting(Fonte(police_), TTF_HINTING_NORMAL);
    ascendant_ = TTF_FontAscent(Fonte(police_));
    int avance = 0;
    if (TTF_GlyphMetrics32(Fonte(police_), 'M', nullptr, nullptr, nullptr, nullptr, &avance) == 0 && avance > 0)
        avance_ = avance;
    ouverte_ = true;
    for (char32_t c = 0x20; c < 0x100; ++c)
        if (c < 0x7F || c >= 0xA0) latin_[c] = Rasteriser(c);
}

Police::~Police() {
    if (police_) TTF_CloseFont(Fonte(police_));
    if (TTF_WasInit()) TTF_Quit();
}

// The mask of one character. A rendered glyph has its top at the font's ascent line unless
// the character rises above it (accented capitals), and its left at the pen unless it
// reaches left of it: both shifts are measured from the glyph's own box.
Glyphe Police::Rasteriser(char32_t caractere) {
    Glyphe g;
    if (!police_ || !TTF_GlyphIsProvided32(Fonte(police_), caractere)) return g;
    int minx = 0, maxx = 0, miny = 0, maxy = 0, avance = 0;
    if (TTF_GlyphMetrics32(Fonte(police_), caractere, &minx, &maxx, &miny, &maxy, &avance) != 0) return g;
    SDL_Surface* rendu = TTF_RenderGlyph32_Blended(Fonte(police_), caractere, SDL_Color{255, 255, 255, 255});
    if (!rendu) return g;
    SDL_Surface* argb = SDL_ConvertSurfaceFormat(rendu, SDL_PIXELFORMAT_ARGB8888, 0);
    SDL_FreeSurface(rendu);
    if (!argb) return g;
    g.largeur = argb->w;
    g.hauteur = argb->h;
    g.decalageX = -std::max(0, -minx);
    g.decalageY = -std::max(0, maxy - ascendant_);
    g.debut = couvertures_.size();
    g.present = true;
    couvertures_.resize(g.debut + static_cast<std::size_t>(g.largeur) * static_cast<std::size_t>(g.hauteur));
    for (int y = 0; y < argb->h; ++y) {
        const auto* ligne = reinterpret_cast<const uint32_t*>(static_cast<const uint8_t*>(argb->pixels) + y * argb->pitch);
        for (int x = 0; x < argb->w; ++x)
            couvertures_[g.debut + static_cast<std::size_t>(y * g.largeur + x)] = static_cast<uint8_t>(ligne[x] >> 24);
    }
    SDL_FreeSurface(argb);
    return g;
}

const Glyphe* Police::Trouver(char32_t caractere) {
    if (!ouverte_) return nullptr;
    if (caractere < 0x100) return latin_[caractere].present ? &latin_[caractere] : nullptr;
    for (const auto& [c, g] : autres_)
        if (c == caractere) return g.present ? &g : nullptr;
    // A character met for the first time: rasterised once, remembered even if absent.
    autres_.emplace_back(caractere, Rasteriser(caractere));
    return autres_.back().second.present ? &autres_.back().second : nullptr;
}

char32_t Lire_Caractere(std::string_view texte, std::size_t& i) {
    const auto premier = static_cast<unsigned char>(texte[i]);
    const std::size_t suite = premier >= 0xF0 && premier < 0xF5   ? 3
                              : premier >= 0xE0 && premier < 0xF0 ? 2
                              : premier >= 0xC2 && premier < 0xE0 ? 1
                                                                  : 0;
    if (suite == 0 || i + suite >= texte.size()) {
        ++i;
        return premier;
    }
    char32_t c = premier & (0x3Fu >> suite);
    for (std::size_t k = 1; k <= suite; ++k) {
        const auto o = static_cast<unsigned char>(texte[i + k]);
        if ((o & 0xC0) != 0x80) {
            ++i;
            return premier;
        }
        c = (c << 6) | (o & 0x3Fu);
    }
    i += suite + 1;
    return c;
}

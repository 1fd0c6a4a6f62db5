#include "Bmp.h"

#include <cstdint>
#include <fstream>
#include <iostream>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr int TailleEnTetes = 14 + 40;

int Octets_Par_Ligne(int largeur) { return (largeur * 3 + 3) & ~3; }

void Poser16(std::vector<uint8_t>& o, size_t a, uint16_t v) {
    o[a] = static_cast<uint8_t>(v);
    o[a + 1] = static_cast<uint8_t>(v >> 8);
}

void Poser32(std::vector<uint8_t>& o, size_t a, uint32_t v) {
    for (int i = 0; i < 4; ++i) o[a + i] = static_cast<uint8_t>(v >> (8 * i));
}

uint32_t Lire32(const std::vector<uint8_t>& o, size_t a) {
    return o[a] | (o[a + 1] << 8) | (o[a + 2] << 16) | (static_cast<uint32_t>(o[a + 3]) << 24);
}

uint16_t Lire16(const std::vector<uint8_t>& o, size_t a) { return static_cast<uint16_t>(o[a] | (o[a + 1] << 8)); }

}  // namespace

bool Ecrire_Bmp(const fs::path& chemin, const Toile& toile) {
    const int l = toile.Largeur(), h = toile.Hauteur(), ligne = Octets_Par_Ligne(l);
    std::vector<uint8_t> o(TailleEnTetes + static_cast<size_t>(ligne) * h, 0);
    o[0] = 'B';
    o[1] = 'M';
    Poser32(o, 2, static_cast<uint32_t>(o.size()));
    Poser32(o, 10, TailleEnTetes);
    Poser32(o, 14, 40);
    Poser32(o, 18, static_cast<uint32_t>(l));
    Poser32(o, 22, static_cast<uint32_t>(h));   // positive height: bottom-up rows
    Poser16(o, 26, 1);
    Poser16(o, 28, 24);
    Poser32(o, 30, 0);                          // BI_RGB
    Poser32(o, 34, static_cast<uint32_t>(ligne) * h);
    Poser32(o, 38, 2835);                       // 72 dpi
    Poser32(o, 42, 2835);
    for (int y = 0; y < h; ++y) {
        size_t a = TailleEnTetes + static_cast<size_t>(h - 1 - y) * ligne;
        for (int x = 0; x < l; ++x) {
            const Couleur c = toile.Lire(x, y);
            o[a++] = c.b;
            o[a++] = c.g;
            o[a++] = c.r;
        }
    }
    std::error_code erreur;
    fs::create_directories(chemin.parent_path(), erreur);
    std::ofstream f(chemin, std::ios::binary | std::ios::trunc);
    f.write(reinterpret_cast<const char*>(o.data()), static_cast<std::streamsize>(o.size()));
    if (!f) {
        std::cerr << "forge: impossible d'écrire " << chemin.string() << '\n';
        return false;
    }
    return true;
}

std::optional<Toile> Lire_Bmp(const fs::path& chemin) {
    std::ifstream f(chemin, std::ios::binary);
    std::vector<uint8_t> o((std::istreambuf_iterator<char>(f)), std::istreambuf_iterator<char>());
    if (o.size() < TailleEnTetes || o[0] != 'B' || o[1] != 'M') return std::nullopt;
    const int l = static_cast<int32_t>(Lire32(o, 18));
    const int hauteurBrute = static_cast<int32_t>(Lire32(o, 22));
    const int h = hauteurBrute < 0 ? -hauteurBrute : hauteurBrute;
    if (Lire16(o, 28) != 24 || Lire32(o, 30) != 0 || l <= 0 || h <= 0) return std::nullopt;
    const size_t debut = Lire32(o, 10), ligne = Octets_Par_Ligne(l);
    if (o.size() < debut + ligne * h) return std::nullopt;
    Toile t(l, h);
    for (int y = 0; y < h; ++y) {
        const int ligneFichier = hauteurBrute < 0 ? y : h - 1 - y;
        size_t a = debut + ligneFichier * ligne;
        for (int x = 0; x < l; ++x, a += 3) {
            t.Point_Brut(x, y, Couleur{o[a + 2], o[a + 1], o[a]});
        }
    }
    return t;
}

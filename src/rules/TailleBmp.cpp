#include "rules/TailleBmp.h"

#include <array>
#include <fstream>

namespace {

uint32_t Mot32(const std::array<unsigned char, 26>& o, size_t a) {
    return o[a] | (o[a + 1] << 8) | (o[a + 2] << 16) | (static_cast<uint32_t>(o[a + 3]) << 24);
}

uint16_t Mot16(const std::array<unsigned char, 26>& o, size_t a) { return static_cast<uint16_t>(o[a] | (o[a + 1] << 8)); }

}  // namespace

std::optional<TailleImage> Lire_Taille_Bmp(const std::filesystem::path& chemin) {
    std::ifstream f(chemin, std::ios::binary);
    std::array<unsigned char, 26> o{};
    if (!f.read(reinterpret_cast<char*>(o.data()), o.size()) || o[0] != 'B' || o[1] != 'M') return std::nullopt;
    const uint32_t enTete = Mot32(o, 14);
    TailleImage t;
    if (enTete == 12) {   // the old OS/2 header: 16-bit sizes
        t.largeur = Mot16(o, 18);
        t.hauteur = Mot16(o, 20);
    } else if (enTete >= 40) {
        t.largeur = static_cast<int32_t>(Mot32(o, 18));
        t.hauteur = static_cast<int32_t>(Mot32(o, 22));
        if (t.hauteur == INT32_MIN) return std::nullopt;
        if (t.hauteur < 0) t.hauteur = -t.hauteur;
    } else {
        return std::nullopt;
    }
    if (t.largeur <= 0 || t.hauteur <= 0) return std::nullopt;
    return t;
}

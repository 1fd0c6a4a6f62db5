#include "Bruit.h"

#include <cmath>

uint32_t Hacher(int32_t x, int32_t y, uint32_t graine) {
    uint32_t h = graine * 0x9E3779B9u ^ static_cast<uint32_t>(x) * 0x85EBCA6Bu ^
                 static_cast<uint32_t>(y) * 0xC2B2AE35u;
    h ^= h >> 16;
    h *= 0x7FEB352Du;
    h ^= h >> 15;
    h *= 0x846CA68Bu;
    h ^= h >> 16;
    return h;
}

double Bruit(int32_t x, int32_t y, uint32_t graine) { return Hacher(x, y, graine) / 4294967296.0; }

double Bruit_Lisse(double x, double y, int pas, int periode, uint32_t graine) {
    const int cellules = periode / pas;
    const double fx = x / pas, fy = y / pas;
    const int x0 = static_cast<int>(std::floor(fx)), y0 = static_cast<int>(std::floor(fy));
    const double tx = fx - x0, ty = fy - y0;
    auto coin = [&](int cx, int cy) {
        const int px = ((cx % cellules) + cellules) % cellules, py = ((cy % cellules) + cellules) % cellules;
        return Bruit(px, py, graine);
    };
    const double sx = tx * tx * (3 - 2 * tx), sy = ty * ty * (3 - 2 * ty);
    const double haut = coin(x0, y0) + (coin(x0 + 1, y0) - coin(x0, y0)) * sx;
    const double bas = coin(x0, y0 + 1) + (coin(x0 + 1, y0 + 1) - coin(x0, y0 + 1)) * sx;
    return haut + (bas - haut) * sy;
}

uint32_t Graine_De(const char* texte, uint32_t sel) {
    uint32_t h = 2166136261u ^ sel;   // FNV-1a
    for (const char* p = texte; *p; ++p) {
        h ^= static_cast<uint8_t>(*p);
        h *= 16777619u;
    }
    return h;
}

Tirage::Tirage(uint64_t graine) : pas_((graine << 1u) | 1u) {
    Suivant();
    etat_ += 0x853C49E6748FEA9Bull ^ graine;
    Suivant();
}

uint32_t Tirage::Suivant() {
    const uint64_t ancien = etat_;
    etat_ = ancien * 6364136223846793005ull + pas_;
    const uint32_t melange = static_cast<uint32_t>(((ancien >> 18u) ^ ancien) >> 27u);
    const uint32_t rotation = static_cast<uint32_t>(ancien >> 59u);
    return (melange >> rotation) | (melange << ((32 - rotation) & 31));
}

double Tirage::Reel() { return Suivant() / 4294967296.0; }

int Tirage::Entre(int a, int b) { return a + static_cast<int>(Reel() * (b - a + 1)); }

double Tirage::Entre(double a, double b) { return a + Reel() * (b - a); }

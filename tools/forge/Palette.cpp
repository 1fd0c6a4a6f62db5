#include "Palette.h"

#include <algorithm>
#include <cmath>

namespace {

uint8_t Canal(double v) { return v <= 0 ? 0 : v >= 255 ? 255 : static_cast<uint8_t>(v + 0.5); }

}  // namespace

Couleur Melanger(Couleur a, Couleur b, double t) {
    return {Canal(a.r + (b.r - a.r) * t), Canal(a.g + (b.g - a.g) * t), Canal(a.b + (b.b - a.b) * t)};
}

Rampe Rampe_Entre(Couleur sombre, Couleur clair) {
    Rampe r;
    for (int i = 0; i < 4; ++i) r.c[i] = Melanger(sombre, clair, i / 3.0);
    return r;
}

Couleur Desaturer(Couleur c, double t) {
    const double gris = 0.3 * c.r + 0.55 * c.g + 0.15 * c.b;
    const Couleur g{Canal(gris), Canal(gris), Canal(gris * 0.96)};
    return Melanger(c, g, t);
}

Rampe Desaturer(const Rampe& r, double t) {
    Rampe d;
    for (int i = 0; i < 4; ++i) d.c[i] = Desaturer(r.c[i], t);
    return d;
}

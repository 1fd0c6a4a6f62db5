// The forge's own chance: a hash of coordinates for textures and a small PCG32 stream for
// scattered details. Both are fixed algorithms, so every run writes the same bytes.
#pragma once

#include <cstdint>

// A well-mixed 32-bit hash of a point and a seed.
uint32_t Hacher(int32_t x, int32_t y, uint32_t graine);

// Value in [0, 1) for a pixel: white noise, the same for the same arguments.
double Bruit(int32_t x, int32_t y, uint32_t graine);

// Smooth value noise in [0, 1) with cells of `pas` pixels, periodic with period `periode`
// pixels on both axes (a multiple of pas), so that a texture built from it tiles.
double Bruit_Lisse(double x, double y, int pas, int periode, uint32_t graine);

// The seed of a name: the same text always gives the same seed.
uint32_t Graine_De(const char* texte, uint32_t sel = 0);

// PCG32 (O'Neill), XSH RR output.
class Tirage {
public:
    explicit Tirage(uint64_t graine);
    uint32_t Suivant();
    // Real in [0, 1).
    double Reel();
    // Integer in [a, b].
    int Entre(int a, int b);
    double Entre(double a, double b);
    bool Chance(double p) { return Reel() < p; }

private:
    uint64_t etat_ = 0;
    uint64_t pas_ = 0;
};

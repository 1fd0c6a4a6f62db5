#include "session/CarteMonde.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <fstream>
#include <string>

#include "ai/TestPoint.h"
#include "rules/ClsJeuParam.h"
#include "world/Globales.h"

namespace {

struct Rgb {
    uint8_t r, g, b;
};

// Paints the cells under a box of the world, clipped to the picture.
void Peindre(ImageCarte& image, int32_t x, int32_t y, int32_t largeur, int32_t hauteur, PixelCarte pixel) {
    auto cellule = [](int64_t v) { return static_cast<int64_t>(v >= 0 ? v / TailleCase : (v - TailleCase + 1) / TailleCase); };
    const int64_t x0 = std::max<int64_t>(cellule(x), 0);
    const int64_t y0 = std::max<int64_t>(cellule(y), 0);
    const int64_t x1 = std::min<int64_t>(cellule(static_cast<int64_t>(x) + std::max(largeur, 1) - 1), image.Largeur - 1);
    const int64_t y1 = std::min<int64_t>(cellule(static_cast<int64_t>(y) + std::max(hauteur, 1) - 1), image.Hauteur - 1);
    for (int64_t cy = y0; cy <= y1; ++cy)
        for (int64_t cx = x0; cx <= x1; ++cx)
            image.Pixels[static_cast<std::size_t>(cy * image.Largeur + cx)] = pixel;
}

void Peindre_Terrain(ImageCarte& image) {
    for (int32_t y = 0; y < image.Hauteur; ++y)
        for (int32_t x = 0; x < image.Largeur; ++x) {
            const int32_t k = Monde.Indice_Case(x, y);
            if (k < Monde.NombreCases() && Monde.Type_Terrain(k) != ClsJeuMonde::TerrainLibre)
                image.Pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(image.Largeur) + static_cast<std::size_t>(x)] =
                    {Tache::Terrain, 0};
        }
}

constexpr std::array<Rgb, 8> Equipes = {{{220, 40, 40}, {40, 80, 230}, {240, 200, 20}, {200, 50, 200},
                                         {30, 200, 210}, {250, 130, 20}, {120, 60, 180}, {250, 250, 250}}};
constexpr std::array<Rgb, 6> Gisements = {
    {{120, 80, 40}, {150, 150, 150}, {110, 120, 130}, {200, 170, 60}, {90, 60, 30}, {170, 120, 90}}};

template <std::size_t N>
Rgb Dans(const std::array<Rgb, N>& palette, int32_t n) {
    return palette[static_cast<std::size_t>(n < 0 ? -n : n) % N];
}

Rgb Couleur(const PixelCarte& p) {
    switch (p.Quoi) {
        case Tache::Sol: return {176, 206, 128};
        case Tache::Terrain: return {84, 128, 70};
        case Tache::Gisement: return Dans(Gisements, p.Teinte);
        case Tache::Chateau: {
            const Rgb c = Dans(Equipes, p.Teinte);
            return {static_cast<uint8_t>(c.r / 2), static_cast<uint8_t>(c.g / 2), static_cast<uint8_t>(c.b / 2)};
        }
        case Tache::Perso: return Dans(Equipes, p.Teinte);
    }
    return {0, 0, 0};
}

uint8_t Gris(const PixelCarte& p) {
    static constexpr uint8_t Gris[] = {235, 175, 115, 60, 0};
    return Gris[static_cast<std::size_t>(p.Quoi)];
}

bool Termine_Par(const std::filesystem::path& fichier, const std::string& extension) {
    std::string e = fichier.extension().string();
    std::transform(e.begin(), e.end(), e.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return e == extension;
}

}  // namespace

ImageCarte Dessiner_Carte() {
    ImageCarte image;
    image.Largeur = std::max(Monde.Largeur, 0);
    image.Hauteur = std::max(Monde.Hauteur, 0);
    image.Pixels.assign(static_cast<std::size_t>(image.Largeur) * static_cast<std::size_t>(image.Hauteur), {});
    Peindre_Terrain(image);
    for (const ClsJeuRessources& r : Ressources)
        Peindre(image, r.PositionX, r.PositionY, LargeurGisement, HauteurGisement, {Tache::Gisement, r.TypeTerrain});
    for (std::size_t f = 0; f < Chateaux.size() && f < Fiefs.size(); ++f) {
        const ClsJeuBatiment& c = Chateaux[f];
        if (c.Visible()) Peindre(image, c.PositionX, c.PositionY, c.Largeur, c.Hauteur, {Tache::Chateau, Fiefs[f].Equipe});
    }
    for (const ClsJeuPerso& p : Persos)
        if (p.Vivant()) Peindre(image, p.PositionX, p.PositionY, LargeurPerso, HauteurPerso, {Tache::Perso, p.Equipe});
    return image;
}

bool Ecrire_Carte(const ImageCarte& image, const std::filesystem::path& fichier) {
    std::ofstream sortie(fichier, std::ios::binary);
    if (!sortie) return false;
    const bool couleur = Termine_Par(fichier, ".ppm");
    sortie << (couleur ? "P6" : "P5") << '\n' << image.Largeur << ' ' << image.Hauteur << "\n255\n";
    std::string octets;
    octets.reserve(image.Pixels.size() * (couleur ? 3 : 1));
    for (const PixelCarte& p : image.Pixels) {
        if (!couleur) {
            octets.push_back(static_cast<char>(Gris(p)));
            continue;
        }
        const Rgb c = Couleur(p);
        octets.append({static_cast<char>(c.r), static_cast<char>(c.g), static_cast<char>(c.b)});
    }
    sortie.write(octets.data(), static_cast<std::streamsize>(octets.size()));
    return static_cast<bool>(sortie);
}

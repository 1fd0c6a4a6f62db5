// Pictures written by the tests themselves: 24-bit bitmaps of given colours, and a screen
// file, in the temporary game folder.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Support.h"

// A bitmap of `largeur` columns; `couleurs` row by row from the top, 0x00BBGGRR.
inline std::string Bmp_24(int largeur, const std::vector<int32_t>& couleurs) {
    const int hauteur = static_cast<int>(couleurs.size()) / largeur, ligne = (largeur * 3 + 3) & ~3;
    std::string o(54 + static_cast<std::size_t>(ligne * hauteur), '\0');
    const auto poser = [&o](std::size_t a, uint32_t v, int n) {
        for (int i = 0; i < n; ++i) o[a + static_cast<std::size_t>(i)] = static_cast<char>(v >> (8 * i));
    };
    o[0] = 'B';
    o[1] = 'M';
    poser(2, static_cast<uint32_t>(o.size()), 4);
    poser(10, 54, 4);
    poser(14, 40, 4);
    poser(18, static_cast<uint32_t>(largeur), 4);
    poser(22, static_cast<uint32_t>(hauteur), 4);
    poser(26, 1, 2);
    poser(28, 24, 2);
    for (int y = 0; y < hauteur; ++y)
        for (int x = 0; x < largeur; ++x) {
            const auto c = static_cast<uint32_t>(couleurs[static_cast<std::size_t>(y * largeur + x)]);
            const std::size_t a = 54 + static_cast<std::size_t>((hauteur - 1 - y) * ligne + x * 3);
            o[a] = static_cast<char>(c >> 16);       // blue
            o[a + 1] = static_cast<char>(c >> 8);    // green
            o[a + 2] = static_cast<char>(c);         // red
        }
    return o;
}

// "Ini_Ecran" with these sizes, the row `choisie` (from 1) chosen.
inline void Ecrire_Ini_Ecran(const DossierTemporaire& jeu, bool fenetre, const std::vector<std::pair<int, int>>& tailles,
                             int choisie) {
    std::string texte = "[Ecran]\nModeFenetre=" + std::to_string(fenetre) + "\nNombreResolution=" +
                        std::to_string(tailles.size()) + "\nResolution=" + std::to_string(choisie) + "\n";
    for (std::size_t n = 0; n < tailles.size(); ++n)
        texte += "[Resolution_" + std::to_string(n + 1) + "]\nLargeur=" + std::to_string(tailles[n].first) +
                 "\nHauteur=" + std::to_string(tailles[n].second) + "\n";
    jeu.Ecrire("Ini_Ecran.ini", texte);
}

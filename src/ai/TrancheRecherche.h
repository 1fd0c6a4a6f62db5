// The resumed slice that every main search walks: from the character's cursor, at most
// PasDeRecherche + 1 steps over an array of n entries, one candidate a step. A step that
// finds the cursor past the last index first brings it back to 0 and widens the radius;
// the cursor moves on by one after every candidate, so the next call goes on behind a hit.
//
// How the candidates are found is left to premier(debut, fin, rayon): the first index of
// [debut, fin) that qualifies within rayon, or -1. Whether it walks them one by one or jumps
// over those that cannot qualify, the cursor and the radius end as a step-by-step walk
// leaves them, since the steps are counted by index, not by what was looked at.
#pragma once

#include <algorithm>
#include <cstdint>

#include "ai/TablesIA.h"

template <class Premier, class Elargir>
bool Parcourir_Tranche(int32_t n, int32_t& curseur, int32_t& rayon, Premier&& premier, Elargir&& elargir,
                       int32_t& resultat) {
    resultat = -1;
    if (n <= 0) return false;
    int64_t reste = static_cast<int64_t>(PasDeRecherche) + 1;
    while (reste > 0) {
        if (curseur >= n) {
            curseur = 0;
            rayon = elargir(rayon);
        }
        const auto fin = static_cast<int32_t>(std::min<int64_t>(n, curseur + reste));
        const int32_t k = premier(curseur, fin, rayon);
        if (k >= 0) {
            curseur = k + 1;
            resultat = k;
            return true;
        }
        reste -= fin - curseur;
        curseur = fin;
    }
    return false;
}

// Widenings of the radii of the enemy searches: by a step, and back to 64 above 640.
inline int32_t Elargir_Borne(int32_t rayon, int32_t pas) {
    rayon += pas;
    return rayon > 640 ? 64 : rayon;
}

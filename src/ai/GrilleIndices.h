// Indices of things filed by group and by square of the map, in increasing order within each
// square, each with the place it had when filed. A search that wants the lowest index near a
// point reads only the squares around it, and only from the first index it may take.
//
// Built in one counting pass; once its buffers have reached their size, building again
// allocates nothing.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

struct EntreeGrille {
    int32_t Numero, X, Y;
};

class GrilleIndices {
public:
    static constexpr int32_t TailleCarre = 256;   // metres

    // The squares from one corner to the other, both included; empty when reversed.
    struct Zone {
        int32_t Colonne0 = 0, Colonne1 = -1, Ligne0 = 0, Ligne1 = -1;
    };

    // Files things 0 to n - 1: groupe(k) is the group of thing k (-1 leaves it out) and
    // position(k) its place, an EntreeGrille. The map measures largeur × hauteur metres
    // (0 × 0 makes one square); things beyond it are filed in its edge squares.
    template <class Groupe, class Position>
    void Construire(int32_t groupes, int32_t largeur, int32_t hauteur, int32_t n, Groupe&& groupe, Position&& position);

    // The squares that hold the places of [x0, x1] × [y0, y1].
    Zone Zone_De(int64_t x0, int64_t x1, int64_t y0, int64_t y1) const;

    // The lowest index of [debut, fin) filed in group g within the zone for which
    // qualifie(entree) holds; fin when there is none.
    template <class Qualifie>
    int32_t Premier(int32_t g, const Zone& z, int32_t debut, int32_t fin, Qualifie&& qualifie) const;

    // Calls visiter(entree) for every entry of group g within the zone.
    template <class Visiter>
    void Pour_Chaque(int32_t g, const Zone& z, Visiter&& visiter) const;

    int32_t Groupes() const { return groupes_; }

private:
    int32_t Carre(int64_t v, int32_t n) const;
    std::size_t Cle(int32_t g, int32_t colonne, int32_t ligne) const {
        return (static_cast<std::size_t>(g) * static_cast<std::size_t>(lignes_) + static_cast<std::size_t>(ligne)) *
                   static_cast<std::size_t>(colonnes_) +
               static_cast<std::size_t>(colonne);
    }

    int32_t colonnes_ = 1, lignes_ = 1, groupes_ = 0;
    std::vector<int32_t> debuts_;          // per group and square, its first entry; one more at the end
    std::vector<EntreeGrille> entrees_;
    std::vector<EntreeGrille> tampon_;     // each thing as read, before it is filed
    std::vector<int64_t> cles_;            // the key of each thing, -1 when left out
};

template <class Groupe, class Position>
void GrilleIndices::Construire(int32_t groupes, int32_t largeur, int32_t hauteur, int32_t n, Groupe&& groupe,
                               Position&& position) {
    colonnes_ = std::max<int32_t>(1, (largeur + TailleCarre - 1) / TailleCarre);
    lignes_ = std::max<int32_t>(1, (hauteur + TailleCarre - 1) / TailleCarre);
    groupes_ = groupes;
    debuts_.assign(Cle(groupes_, 0, 0) + 1, 0);
    tampon_.resize(static_cast<std::size_t>(n));
    cles_.resize(static_cast<std::size_t>(n));
    entrees_.reserve(static_cast<std::size_t>(n));
    std::size_t nombre = 0;
    for (int32_t k = 0; k < n; ++k) {
        const auto u = static_cast<std::size_t>(k);
        const int32_t g = groupe(k);
        cles_[u] = -1;
        if (g < 0) continue;
        tampon_[u] = position(k);
        const std::size_t cle = Cle(g, Carre(tampon_[u].X, colonnes_), Carre(tampon_[u].Y, lignes_));
        cles_[u] = static_cast<int64_t>(cle);
        ++debuts_[cle + 1];
        ++nombre;
    }
    for (std::size_t c = 1; c < debuts_.size(); ++c) debuts_[c] += debuts_[c - 1];
    entrees_.resize(nombre);
    // Each entry goes to the next free place of its square, which leaves every square in
    // increasing order; the starts, moved on meanwhile, are then put back.
    for (std::size_t u = 0; u < cles_.size(); ++u) {
        if (cles_[u] < 0) continue;
        int32_t& place = debuts_[static_cast<std::size_t>(cles_[u])];
        entrees_[static_cast<std::size_t>(place++)] = tampon_[u];
    }
    for (std::size_t c = debuts_.size() - 1; c > 0; --c) debuts_[c] = debuts_[c - 1];
    debuts_[0] = 0;
}

template <class Qualifie>
int32_t GrilleIndices::Premier(int32_t g, const Zone& z, int32_t debut, int32_t fin, Qualifie&& qualifie) const {
    int32_t meilleur = fin;
    for (int32_t ligne = z.Ligne0; ligne <= z.Ligne1; ++ligne)
        for (int32_t colonne = z.Colonne0; colonne <= z.Colonne1; ++colonne) {
            const std::size_t cle = Cle(g, colonne, ligne);
            const auto premiere = entrees_.begin() + debuts_[cle], derniere = entrees_.begin() + debuts_[cle + 1];
            auto e = std::lower_bound(premiere, derniere, debut,
                                      [](const EntreeGrille& a, int32_t numero) { return a.Numero < numero; });
            for (; e != derniere && e->Numero < meilleur; ++e)
                if (qualifie(*e)) {
                    meilleur = e->Numero;
                    break;
                }
        }
    return meilleur;
}

template <class Visiter>
void GrilleIndices::Pour_Chaque(int32_t g, const Zone& z, Visiter&& visiter) const {
    for (int32_t ligne = z.Ligne0; ligne <= z.Ligne1; ++ligne)
        for (int32_t colonne = z.Colonne0; colonne <= z.Colonne1; ++colonne) {
            const std::size_t cle = Cle(g, colonne, ligne);
            for (int32_t e = debuts_[cle]; e < debuts_[cle + 1]; ++e) visiter(entrees_[static_cast<std::size_t>(e)]);
        }
}

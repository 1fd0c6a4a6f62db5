#include "ai/IndexTestPoint.h"

#include <algorithm>

#include "world/Globales.h"

namespace {

// Bucket of a coordinate, rounding down for negative ones, kept within 0 … n - 1.
int32_t Seau(int64_t v, int32_t n) {
    const int64_t s = (v >= 0 ? v : v - (IndexTestPoint::TailleSeau - 1)) / IndexTestPoint::TailleSeau;
    return static_cast<int32_t>(std::clamp<int64_t>(s, 0, n - 1));
}

int32_t Nombre_Seaux(int32_t cases) {
    const int64_t metres = static_cast<int64_t>(std::max(cases, 1)) * TailleCase;
    return static_cast<int32_t>((metres + IndexTestPoint::TailleSeau - 1) / IndexTestPoint::TailleSeau);
}

}  // namespace

// The buckets from one end of the box to the other; a box of negative size touches only
// what spans it, so its buckets are taken between its two ends as well.
IndexTestPoint::Plage IndexTestPoint::Seaux_De(const BoitePoint& b) const {
    const int64_t x1 = static_cast<int64_t>(b.X) + b.Largeur, y1 = static_cast<int64_t>(b.Y) + b.Hauteur;
    return {Seau(std::min<int64_t>(b.X, x1), colonnes_), Seau(std::max<int64_t>(b.X, x1), colonnes_),
            Seau(std::min<int64_t>(b.Y, y1), lignes_), Seau(std::max<int64_t>(b.Y, y1), lignes_)};
}

void IndexTestPoint::Construire() {
    colonnes_ = Nombre_Seaux(Monde.Largeur);
    lignes_ = Nombre_Seaux(Monde.Hauteur);
    seaux_.assign(static_cast<std::size_t>(colonnes_) * static_cast<std::size_t>(lignes_), {});
    for (GroupePoint g : GroupesPoint)
        for (int32_t k = 0; k < Nombre_Dans(g); ++k) Actualiser(g, k);
}

void IndexTestPoint::Actualiser(GroupePoint g, int32_t k) {
    const Plage p = Seaux_De(Boite_De(g, k));
    for (int32_t l = p.ligne0; l <= p.ligne1; ++l)
        for (int32_t c = p.colonne0; c <= p.colonne1; ++c)
            seaux_[static_cast<std::size_t>(l) * static_cast<std::size_t>(colonnes_) + static_cast<std::size_t>(c)]
                .push_back({g, k});
}

int32_t IndexTestPoint::Tester_Point(int32_t i, int32_t x, int32_t y, int32_t largeur, int32_t hauteur,
                                     bool memoriser) const {
    const Observateur o = Observateur_De(i);
    const BoitePoint boite{x, y, largeur, hauteur};
    const Plage p = Seaux_De(boite);
    // The hit of the earliest group, and inside it of the lowest index, as the plain walk finds.
    bool trouve = false;
    Entree meilleure{GroupePoint::Gisements, 0};
    auto avant = [](const Entree& e, const Entree& f) {
        return e.Groupe != f.Groupe ? e.Groupe < f.Groupe : e.Numero < f.Numero;
    };
    for (int32_t l = p.ligne0; l <= p.ligne1; ++l)
        for (int32_t c = p.colonne0; c <= p.colonne1; ++c)
            for (const Entree& e :
                 seaux_[static_cast<std::size_t>(l) * static_cast<std::size_t>(colonnes_) + static_cast<std::size_t>(c)]) {
                if (trouve && !avant(e, meilleure)) continue;
                if (e.Numero >= Nombre_Dans(e.Groupe) || !Trouve_Dans(e.Groupe, e.Numero, o, boite)) continue;
                meilleure = e;
                trouve = true;
            }
    if (!trouve) return PointRien;
    if (memoriser) CibleSousPoint = meilleure.Numero;
    return Code_De(meilleure.Groupe, meilleure.Numero, o);
}

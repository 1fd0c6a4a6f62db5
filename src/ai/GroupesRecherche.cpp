#include "ai/GroupesRecherche.h"

#include "ai/CriteresRecherche.h"
#include "rules/ClsJeuParam.h"
#include "world/ClsJeuBatiment.h"

namespace {
std::size_t U(int32_t k) { return static_cast<std::size_t>(k); }
}  // namespace

void Genres::Vider() {
    genres_.clear();
    for (int16_t t = 0; t < Param.NombreTypeBatiments; ++t)
        genres_.push_back({t, Param.Batiment_Magasin(t), Param.Batiment_Fabrique(t), Param.Batiment_Service(t)});
    types_ = Param.NombreTypeBatiments;
}

int32_t Genres::Numero_De(const ClsJeuBatiment& b) {
    const Genre g{b.Type, b.Magasin, b.Fabrique, b.Service};
    if (b.Type >= 0 && b.Type < types_ && genres_[U(b.Type)] == g) return b.Type;
    const auto autre = std::find(genres_.begin() + types_, genres_.end(), g);
    if (autre != genres_.end()) return static_cast<int32_t>(autre - genres_.begin());
    genres_.push_back(g);
    return Nombre() - 1;
}

bool Genres::Convient(int32_t g, const Course& c) const {
    const Genre& x = genres_[U(g)];
    return Genre_Convient(c, x.Type, x.Magasin, x.Fabrique, x.Service);
}

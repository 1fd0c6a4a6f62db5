#include "world/ClsJeuFief.h"

#include <algorithm>

#include "rules/ClsJeuParam.h"

void ClsJeuFief::Init(const ClsJeuParam& param) {
    Ressources.assign(static_cast<std::size_t>(std::max<int16_t>(param.NombreRessources, 0)), 0.0);
}

double ClsJeuFief::Definir_Ressources(int r) const {
    if (r < 0) return 0;
    return Ressources[static_cast<std::size_t>(r)];
}

void ClsJeuFief::Definir_Ressources(int r, double quantite) {
    Ressources[static_cast<std::size_t>(r)] = std::max(quantite, 0.0);
}

void ClsJeuFief::Empreindre(Empreinte& e) const {
    e.Ajouter(Equipe);
    e.Ajouter(Peuple);
    e.Ajouter(Epoque);
    e.Ajouter(ChangementEpoque);
    e.Ajouter(NombreSujets);
    e.Ajouter(NombreMorts);
    e.Ajouter(TresorRestauration);
    e.Ajouter(Ressources);
}

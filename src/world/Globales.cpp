#include "world/Globales.h"

ClsJeuMonde Monde;
std::vector<ClsJeuFief> Fiefs;
std::vector<ClsJeuPerso> Persos;
std::vector<ClsJeuEffet> EffetsPersos;
std::vector<ClsJeuEffet> EffetsMaisons;
int32_t PersoActif = 0;
std::vector<ClsJeuBatiment> Chateaux;
std::vector<ClsJeuBatiment> Maisons;
std::vector<int32_t> MaisonsCreees;
std::vector<ClsJeuRessources> Ressources;
ClsJeu Jeu;
ClsJeuCommentaires Commentaires;
bool FinPartie = false, Victoire = false, Defaite = false;

void Vider_Monde() {
    Maisons.clear();
    MaisonsCreees.clear();
    Chateaux.clear();
    Fiefs.clear();
    Ressources.clear();
}

void Reinitialiser_Monde() {
    Vider_Monde();
    Monde = ClsJeuMonde{};
    Persos.clear();
    EffetsPersos.clear();
    EffetsMaisons.clear();
    PersoActif = 0;
    Jeu = ClsJeu{};
    Commentaires = ClsJeuCommentaires{};
    FinPartie = Victoire = Defaite = false;
}

namespace {
template <class T>
void Empreindre_Tableau(Empreinte& e, const std::vector<T>& tableau) {
    e.Ajouter(static_cast<uint64_t>(tableau.size()));
    for (const T& x : tableau) x.Empreindre(e);
}
}  // namespace

void Empreindre_Monde(Empreinte& e) {
    Monde.Empreindre(e);
    Empreindre_Tableau(e, Fiefs);
    Empreindre_Tableau(e, Persos);
    Empreindre_Tableau(e, EffetsPersos);
    Empreindre_Tableau(e, EffetsMaisons);
    Empreindre_Tableau(e, Chateaux);
    Empreindre_Tableau(e, Maisons);
    Empreindre_Tableau(e, Ressources);
    e.Ajouter(PersoActif);
    e.Ajouter(Jeu.Pause);
    e.Ajouter(FinPartie);
    e.Ajouter(Victoire);
    e.Ajouter(Defaite);
}

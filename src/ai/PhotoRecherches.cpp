#include "ai/PhotoRecherches.h"

#include <algorithm>

#include "world/Globales.h"

PhotoRecherches PhotoIndex;

namespace {

std::size_t U(int32_t k) { return static_cast<std::size_t>(k); }

// Houses seldom change: their grids are filed again only once enough of them have, and
// until then the slots that changed are looked at directly.
constexpr std::size_t SeuilRevues = 32;

// The records are large and far apart: the ones a few steps ahead are asked for early, so
// that memory brings them in while the current ones are read.
constexpr std::size_t Avance = 8;
void Precharger(const ClsJeuPerso& p) {
    __builtin_prefetch(&p.PositionX);
    __builtin_prefetch(&p.Equipe);
}

}  // namespace

void PhotoRecherches::Prendre() {
    Photographier();
    Classer(Monde.Largeur * TailleCase, Monde.Hauteur * TailleCase);
    Comptes = false;
}

// A world of another size: every group and picture afresh.
void PhotoRecherches::Recommencer() {
    NombrePersos = Persos.size();
    Equipes.Vider();
    FiefsVus.Vider();
    GenresVus.Vider();
    PhotosPersos.resize(NombrePersos);
    PhotosMaisons.assign(NombrePersos, PhotoMaison{});
    EstRevue.assign(NombrePersos, 0);
    Vu.assign(NombrePersos, 0);
    Revues.clear();
    MaisonsClassees = false;
}

void PhotoRecherches::Photographier() {
    if (Persos.size() != NombrePersos) Recommencer();
    NombreRessources = Ressources.size();
    for (std::size_t k = 0; k < NombrePersos; ++k) {
        if (k + Avance < NombrePersos) Precharger(Persos[k + Avance]);
        const ClsJeuPerso& p = Persos[k];
        const ClsJeuBatiment& m = Maisons[k];
        PhotosPersos[k] = {p.PositionX, p.PositionY, Equipes.Groupe_De(p.Equipe)};
        Noter_Maison(k, {m.PositionX, m.PositionY, PhotosPersos[k].Equipe, FiefsVus.Groupe_De(p.Fief),
                         GenresVus.Numero_De(m), m.Largeur, m.Hauteur, m.MaxVie > 0 || m.Vie > 0});
    }
}

void PhotoRecherches::Noter_Maison(std::size_t k, const PhotoMaison& photo) {
    if (photo == PhotosMaisons[k]) return;
    PhotosMaisons[k] = photo;
    if (!MaisonsClassees || EstRevue[k]) return;
    EstRevue[k] = 1;
    Revues.push_back(static_cast<int32_t>(k));
}

bool PhotoRecherches::Maisons_A_Reclasser() const {
    return !MaisonsClassees || Revues.size() > SeuilRevues || Equipes.Nombre() != EquipesClassees ||
           FiefsVus.Nombre() != FiefsClasses || GenresVus.Nombre() != GenresClasses;
}

void PhotoRecherches::Classer_Maisons(int32_t largeur, int32_t hauteur) {
    const auto n = static_cast<int32_t>(NombrePersos);
    const int32_t genres = GenresVus.Nombre();
    auto photo = [this](int32_t k) -> const PhotoMaison& { return PhotosMaisons[U(k)]; };
    auto entree = [&](int32_t k) { return EntreeGrille{k, photo(k).X, photo(k).Y}; };
    MaisonsParEquipe.Construire(
        Equipes.Nombre(), largeur, hauteur, n, [&](int32_t k) { return photo(k).Batie ? photo(k).Equipe : -1; },
        entree);
    MaisonsParGenre.Construire(
        FiefsVus.Nombre() * genres, 0, 0, n, [&](int32_t k) { return photo(k).Fief * genres + photo(k).Genre; },
        entree);
    LargeurMaisons = HauteurMaisons = 0;
    for (const PhotoMaison& m : PhotosMaisons) {
        if (!m.Batie) continue;
        LargeurMaisons = std::max<int32_t>(LargeurMaisons, m.Largeur);
        HauteurMaisons = std::max<int32_t>(HauteurMaisons, m.Hauteur);
    }
    for (int32_t k : Revues) EstRevue[U(k)] = 0;
    Revues.clear();
    MaisonsClassees = true;
    EquipesClassees = Equipes.Nombre();
    FiefsClasses = FiefsVus.Nombre();
    GenresClasses = genres;
}

void PhotoRecherches::Classer(int32_t largeur, int32_t hauteur) {
    ParEquipe.Construire(
        Equipes.Nombre(), largeur, hauteur, static_cast<int32_t>(NombrePersos),
        [this](int32_t k) { return PhotosPersos[U(k)].Equipe; },
        [this](int32_t k) { return EntreeGrille{k, PhotosPersos[U(k)].X, PhotosPersos[U(k)].Y}; });
    if (Maisons_A_Reclasser()) Classer_Maisons(largeur, hauteur);
    Gisements.Construire(
        1, largeur, hauteur, static_cast<int32_t>(NombreRessources), [](int32_t) { return 0; },
        [](int32_t k) { return EntreeGrille{k, Ressources[U(k)].PositionX, Ressources[U(k)].PositionY}; });
    int32_t types = 0;
    for (const ClsJeuRessources& r : Ressources) types = std::max(types, r.TypeRessource + 1);
    GisementsParType.Construire(
        types, largeur, hauteur, static_cast<int32_t>(NombreRessources),
        [](int32_t k) { return std::max(Ressources[U(k)].TypeRessource, -1); },
        [](int32_t k) { return EntreeGrille{k, Ressources[U(k)].PositionX, Ressources[U(k)].PositionY}; });
}

void PhotoRecherches::Compter() {
    if (Comptes) return;
    const int32_t genres = GenresVus.Nombre();
    ParFief.assign(U(FiefsVus.Nombre()), 0);
    ParFiefGenre.assign(U(FiefsVus.Nombre() * genres), 0);
    for (const PhotoMaison& m : PhotosMaisons) {
        ++ParFief[U(m.Fief)];
        ++ParFiefGenre[U(m.Fief * genres + m.Genre)];
    }
    Comptes = true;
}


// The picture the index of the searches takes at the start of a tick: each character's place
// and team, each house slot's place, size, genre and owner's side, filed in grids by team,
// and the houses also by fief and genre. Houses seldom change, so their grids are filed again
// only once enough of them have; the slots that changed meanwhile are listed in Revues.
#pragma once

#include <cstdint>
#include <vector>

#include "ai/GrilleIndices.h"
#include "ai/GroupesRecherche.h"

// What the picture keeps of a character, and of its house slot with the owner's side.
struct PhotoPerso {
    int32_t X = 0, Y = 0, Equipe = 0;   // group of the team
};
struct PhotoMaison {
    int32_t X = 0, Y = 0, Equipe = -1, Fief = -1, Genre = -1;   // groups
    int16_t Largeur = 0, Hauteur = 0;
    bool Batie = false;                                         // has held a house at some time
    bool operator==(const PhotoMaison&) const = default;
};

// The picture and its files. Everything is kept from one tick to the next, so that filing
// again allocates nothing once the buffers have their size.
struct PhotoRecherches {
    std::size_t NombrePersos = 0, NombreRessources = 0;
    Valeurs Equipes, FiefsVus;
    Genres GenresVus;
    std::vector<PhotoPerso> PhotosPersos;
    std::vector<PhotoMaison> PhotosMaisons;
    // Slots whose picture has changed since the house grids were filed.
    std::vector<int32_t> Revues;
    std::vector<uint8_t> EstRevue;
    bool MaisonsClassees = false;
    int32_t EquipesClassees = 0, FiefsClasses = 0, GenresClasses = 0;
    int32_t LargeurMaisons = 0, HauteurMaisons = 0;   // the largest of the houses filed
    GrilleIndices ParEquipe, MaisonsParEquipe, MaisonsParGenre, Gisements;
    GrilleIndices GisementsParType;   // deposits by the resource they give (none below 0)
    // House slots of each fief, and of each fief by genre, as pictured; counted at the first
    // question of a tick.
    bool Comptes = false;
    std::vector<int32_t> ParFief, ParFiefGenre;
    std::vector<uint8_t> Vu;   // scratch of the counts

    // Takes the picture of the world as it stands and files it.
    void Prendre();
    // Counts the house slots, at the first question after a picture.
    void Compter();

private:
    void Recommencer();
    void Photographier();
    void Noter_Maison(std::size_t k, const PhotoMaison& photo);
    bool Maisons_A_Reclasser() const;
    void Classer_Maisons(int32_t largeur, int32_t hauteur);
    void Classer(int32_t largeur, int32_t hauteur);
};

// The picture of the open index.
extern PhotoRecherches PhotoIndex;

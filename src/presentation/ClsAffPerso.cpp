#include "presentation/ClsAffPerso.h"

#include <algorithm>

#include "presentation/Cellule.h"
#include "rules/Chemins.h"
#include "rules/ClsJeuParam.h"

namespace fs = std::filesystem;

fs::path ClsAffPerso::Dossier_Heros(bool feminin) { return Chemin_Jeu(ClsAffSprite::CheminImage() + CheminHeros(feminin)); }

std::string ClsAffPerso::Nom_Heros(bool feminin, std::string_view fichier) {
    return CheminHeros(feminin) + std::string(fichier.substr(0, fichier.find('.')));
}

void ClsAffPerso::Initialiser() {
    NombreHeros = 0;
    for (const bool feminin : {true, false}) NombreHeros += static_cast<int32_t>(Lister_Dossier(Dossier_Heros(feminin)).size());
}

// The hero slots are those counted at creation: files added since are not loaded, and slots
// whose file has gone stay empty and draw nothing.
void ClsAffPerso::Charger(const ClsJeuParam& param) {
    Sprites.clear();
    Sprites.resize(static_cast<std::size_t>(NombreHeros + 1 + std::max<int>(param.NombreTotalMonstres, 0)));
    std::size_t i = 0;
    for (const bool feminin : {true, false})
        for (const std::string& fichier : Lister_Dossier(Dossier_Heros(feminin)))
            if (i < static_cast<std::size_t>(NombreHeros)) Sprites[i++].Charger(Nom_Heros(feminin, fichier));
    i = static_cast<std::size_t>(NombreHeros);
    if (param.NombrePeuples > 0) Sprites[i].Charger("Persos/" + param.Peuples_Nom(0));
    ++i;
    for (int m = 0; m < param.NombreTotalMonstres; ++m) Sprites[i++].Charger("Persos/Monstres/" + param.Monstre_Nom(m));
}

void ClsAffPerso::Charger_Hero(std::string_view nom, bool feminin, int32_t& indice) const {
    indice = 0;
    if (nom.empty()) return;
    int32_t rang = 0;
    for (const bool f : {true, false})
        for (const std::string& fichier : Lister_Dossier(Dossier_Heros(f))) {
            if (f == feminin && fichier == nom) {
                indice = rang;
                return;
            }
            ++rang;
        }
}

ClsAffPerso::Choix ClsAffPerso::Choisir(int32_t apparence, int32_t monstre, bool feminin, bool fichierPropre, int32_t nombreHeros) {
    if (fichierPropre) return {apparence, 0};
    if (monstre > 0) return {nombreHeros + monstre, apparence};
    return {nombreHeros, 2 * apparence + (feminin ? 1 : 0)};
}

Rectangle ClsAffPerso::Cellule(int32_t etape, int32_t direction, int32_t bloc) {
    const int32_t c = 3 * bloc;
    if (direction < 1) return {(c + 1) * Largeur(), 2 * Hauteur(), (c + 2) * Largeur(), 3 * Hauteur()};
    const int32_t colonne = etape == 3 ? c + 1 : etape + c;
    return {colonne * Largeur(), (direction - 1) * Hauteur(), (colonne + 1) * Largeur(), direction * Hauteur()};
}

void ClsAffPerso::Afficher(int32_t x, int32_t y, int32_t etape, int32_t direction, int32_t apparence, int32_t monstre,
                           bool feminin, Surface& surface, bool fichierPropre, bool semiTransparent) {
    const Choix choix = Choisir(apparence, monstre, feminin, fichierPropre, NombreHeros);
    if (choix.sprite < 0 || choix.sprite >= static_cast<int32_t>(Sprites.size())) return;
    Afficher_Cellule(Sprites[static_cast<std::size_t>(choix.sprite)], Cellule(etape, direction, choix.bloc), x, y, surface, true,
                     semiTransparent);
}

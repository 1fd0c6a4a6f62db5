#include "ai/IndexRecherches.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <vector>

#include "ai/CriteresRecherche.h"
#include "ai/PhotoRecherches.h"
#include "ai/TestPoint.h"
#include "rules/Conversions.h"
#include "world/Globales.h"

namespace {

std::size_t U(int32_t k) { return static_cast<std::size_t>(k); }

constexpr int32_t SansFin = std::numeric_limits<int32_t>::max();

bool Ouvert = false;

// The lowest house slot of [debut, fin) that the grids may show otherwise than it stands
// (rebuilt by Creer since the picture, or changed since the grids were filed) for which
// qualifie(k) holds; fin when none. A building outside Maisons rebuilt by Creer is no house.
template <class Qualifie>
int32_t Premiere_Maison_Revue(int32_t debut, int32_t fin, Qualifie&& qualifie) {
    int32_t meilleur = fin;
    for (const std::vector<int32_t>* liste : {&MaisonsCreees, &PhotoIndex.Revues})
        for (int32_t k : *liste)
            if (k >= debut && k < meilleur && U(k) < Maisons.size() && qualifie(k)) meilleur = k;
    return meilleur;
}

// The lowest qualifying index over the groups of a grid for which prendre(g) holds.
template <class Prendre, class Qualifie>
int32_t Premier_Des_Groupes(const GrilleIndices& grille, const GrilleIndices::Zone& zone, int32_t debut, int32_t fin,
                            Prendre&& prendre, Qualifie&& qualifie) {
    int32_t meilleur = fin;
    for (int32_t g = 0; g < grille.Groupes(); ++g)
        if (prendre(g)) meilleur = grille.Premier(g, zone, debut, meilleur, qualifie);
    return meilleur;
}

// The squares around (x, y) within rayon each way.
GrilleIndices::Zone Autour(const GrilleIndices& grille, int32_t x, int32_t y, int32_t rayon) {
    return grille.Zone_De(static_cast<int64_t>(x) - rayon, static_cast<int64_t>(x) + rayon,
                          static_cast<int64_t>(y) - rayon, static_cast<int64_t>(y) + rayon);
}

int32_t Ou_Rien(int32_t k, int32_t fin) { return k < fin ? k : -1; }

// Whether any thing of the grid, its box of the given size at its place, touches the box.
template <class Prendre>
bool Touche_Dans(const GrilleIndices& grille, GroupePoint g, const Observateur& o, const BoitePoint& boite,
                 int32_t largeur, int32_t hauteur, Prendre&& prendre) {
    const GrilleIndices::Zone zone =
        grille.Zone_De(static_cast<int64_t>(boite.X) - largeur, static_cast<int64_t>(boite.X) + boite.Largeur,
                       static_cast<int64_t>(boite.Y) - hauteur, static_cast<int64_t>(boite.Y) + boite.Hauteur);
    const int32_t k = Premier_Des_Groupes(grille, zone, 0, SansFin, prendre, [&](const EntreeGrille& e) {
        return Trouve_Dans(g, e.Numero, o, boite);
    });
    return k < SansFin;
}

// Calls visiter(k, x, y) for every thing k of the grid of another team than p's filed within
// rayon each way of p, (x, y) being its place as filed; and, with directs, for every house to
// be looked at directly, at its place now.
template <class Visiter>
void Visiter_Autour(const ClsJeuPerso& p, const GrilleIndices& grille, bool directs, int64_t rayon,
                    Visiter&& visiter) {
    const GrilleIndices::Zone zone = grille.Zone_De(p.PositionX - rayon, p.PositionX + rayon, p.PositionY - rayon,
                                                    p.PositionY + rayon);
    for (int32_t g = 0; g < grille.Groupes(); ++g) {
        if (PhotoIndex.Equipes[g] == p.Equipe) continue;
        grille.Pour_Chaque(g, zone, [&](const EntreeGrille& e) {
            if (std::llabs(static_cast<int64_t>(e.X) - p.PositionX) <= rayon &&
                std::llabs(static_cast<int64_t>(e.Y) - p.PositionY) <= rayon)
                visiter(e.Numero, e.X, e.Y);
        });
    }
    if (!directs) return;
    for (const std::vector<int32_t>* liste : {&MaisonsCreees, &PhotoIndex.Revues})
        for (int32_t k : *liste)
            if (U(k) < Maisons.size()) visiter(k, Maisons[U(k)].PositionX, Maisons[U(k)].PositionY);
}

// The target of the full scan of the charges, from the index. The scan keeps each new best
// distance rounded, so a later target has to be nearer than that: it ends, among the targets
// whose rounded distance is the least (m), on the first in index order, or on the last of
// the later ones nearer than m itself. Those lie within m + 1 of p, and m is found by
// looking ever wider until the nearest target seen lies within the zone looked at. A place
// as filed only spares reading a record; what counts is read from the record (a house filed
// elsewhere than it stands is also among those looked at directly).
template <class Tableau>
int32_t Cible_La_Plus_Proche(const ClsJeuPerso& p, const Tableau& tableau, const GrilleIndices& grille, bool directs,
                             bool (*ennemi)(const ClsJeuPerso&, int32_t)) {
    const int32_t borne = (Monde.Largeur + Monde.Hauteur) * TailleCase;   // no target as far
    auto distance = [&](int32_t k) {
        return Distance(tableau[U(k)].PositionX, tableau[U(k)].PositionY, p.PositionX, p.PositionY);
    };
    double moindre = std::numeric_limits<double>::infinity();
    auto plus_pres = [&](int32_t k, int32_t x, int32_t y) {
        if (Distance(x, y, p.PositionX, p.PositionY) >= moindre || !ennemi(p, k)) return;
        const double d = distance(k);
        if (d < borne) moindre = std::min(moindre, d);
    };
    for (int64_t rayon = GrilleIndices::TailleCarre;; rayon *= 2) {
        Visiter_Autour(p, grille, directs, rayon, plus_pres);
        if (moindre <= static_cast<double>(rayon) || rayon >= borne) break;
    }
    if (moindre == std::numeric_limits<double>::infinity()) return -1;
    const auto m = Arrondir_En<int32_t>(moindre);
    int32_t premier = SansFin, dernier = -1;
    Visiter_Autour(p, grille, directs, int64_t{m} + 1, [&](int32_t k, int32_t x, int32_t y) {
        if (Distance(x, y, p.PositionX, p.PositionY) > m + 0.5 || !ennemi(p, k)) return;
        const double d = distance(k);
        if (d >= borne || Arrondir_En<int32_t>(d) != m) return;
        premier = std::min(premier, k);
        if (d < m) dernier = std::max(dernier, k);
    });
    return dernier > premier ? dernier : premier;
}

}  // namespace

TourDeRecherches::TourDeRecherches() {
    Ouvert = Maisons.size() == Persos.size();
    if (!Ouvert) return;
    PhotoIndex.Prendre();
    MaisonsCreees.clear();
}

TourDeRecherches::~TourDeRecherches() { Ouvert = false; }

bool Index_Ouvert() {
    return Ouvert && Persos.size() == PhotoIndex.NombrePersos && Maisons.size() == PhotoIndex.NombrePersos &&
           Ressources.size() == PhotoIndex.NombreRessources;
}

int32_t Index_Premier_Ennemi(const ClsJeuPerso& p, int32_t debut, int32_t fin, int32_t rayon) {
    const int32_t k = Premier_Des_Groupes(
        PhotoIndex.ParEquipe, Autour(PhotoIndex.ParEquipe, p.PositionX, p.PositionY, rayon), debut, fin,
        [&p](int32_t g) { return PhotoIndex.Equipes[g] != p.Equipe; },
        [&](const EntreeGrille& e) {
            return Distance(e.X, e.Y, p.PositionX, p.PositionY) < rayon && Perso_Ennemi_A_Portee(p, e.Numero, rayon);
        });
    return Ou_Rien(k, fin);
}

int32_t Index_Premier_Maison_Ennemie(const ClsJeuPerso& p, int32_t debut, int32_t fin, int32_t rayon) {
    auto qualifie = [&p, rayon](int32_t k) { return Maison_Ennemie_A_Portee(p, k, rayon); };
    const int32_t k = Premier_Des_Groupes(
        PhotoIndex.MaisonsParEquipe, Autour(PhotoIndex.MaisonsParEquipe, p.PositionX, p.PositionY, rayon), debut, fin,
        [&p](int32_t g) { return PhotoIndex.Equipes[g] != p.Equipe; },
        [&](const EntreeGrille& e) {
            return Distance(e.X, e.Y, p.PositionX, p.PositionY) < rayon && qualifie(e.Numero);
        });
    return Ou_Rien(Premiere_Maison_Revue(debut, k, qualifie), fin);
}

int32_t Index_Premier_Maison(const Course& c, int32_t fief, int32_t x, int32_t y, int32_t debut, int32_t fin,
                             int32_t rayon) {
    auto qualifie = [&](int32_t k) { return Maison_Convient(c, Maisons[U(k)], Persos[U(k)].Fief, fief, x, y, rayon); };
    auto proche = [&](const EntreeGrille& e) {
        return std::llabs(static_cast<int64_t>(x) - e.X) < rayon && std::llabs(static_cast<int64_t>(y) - e.Y) < rayon &&
               qualifie(e.Numero);
    };
    // The houses of the fief, a list for each genre that the errand may take.
    const int32_t groupeFief = PhotoIndex.FiefsVus.Trouver(fief), genres = PhotoIndex.GenresVus.Nombre();
    const GrilleIndices::Zone partout{0, 0, 0, 0};
    int32_t meilleur = fin;
    for (int32_t g = 0; groupeFief >= 0 && g < genres; ++g)
        if (PhotoIndex.GenresVus.Convient(g, c))
            meilleur = PhotoIndex.MaisonsParGenre.Premier(groupeFief * genres + g, partout, debut, meilleur, proche);
    return Ou_Rien(Premiere_Maison_Revue(debut, meilleur, qualifie), fin);
}

bool Index_Place_Libre(int32_t i, int32_t x, int32_t y, int32_t largeur, int32_t hauteur) {
    const PhotoRecherches& photo = PhotoIndex;
    const Observateur o = Observateur_De(i);
    const BoitePoint boite{x, y, largeur, hauteur};
    auto tous = [](int32_t) { return true; };
    auto ennemie = [&](int32_t g) { return photo.Equipes[g] != o.Equipe; };
    auto maison = [&](int32_t k) { return Trouve_Dans(GroupePoint::Maisons, k, o, boite); };
    for (int32_t k = 0; k < Nombre_Dans(GroupePoint::Chateaux); ++k)
        if (Trouve_Dans(GroupePoint::Chateaux, k, o, boite)) return false;
    return !Touche_Dans(photo.ParEquipe, GroupePoint::Persos, o, boite, LargeurPerso, HauteurPerso, ennemie) &&
           !Touche_Dans(photo.MaisonsParEquipe, GroupePoint::Maisons, o, boite, photo.LargeurMaisons,
                        photo.HauteurMaisons, tous) &&
           Premiere_Maison_Revue(0, SansFin, maison) == SansFin &&
           !Touche_Dans(photo.Gisements, GroupePoint::Gisements, o, boite, LargeurGisement, HauteurGisement, tous);
}

int32_t Index_Compter_Maisons_Type(int32_t type, int32_t fief) {
    PhotoIndex.Compter();
    const int32_t groupe = PhotoIndex.FiefsVus.Trouver(fief), genres = PhotoIndex.GenresVus.Nombre();
    int32_t n = 0;
    for (int32_t g = 0; groupe >= 0 && g < genres; ++g)
        if (PhotoIndex.GenresVus.Type(g) == type) n += PhotoIndex.ParFiefGenre[U(groupe * genres + g)];
    // A slot rebuilt since the picture counts as it stands now, once however often rebuilt.
    for (int32_t k : MaisonsCreees) {
        if (U(k) >= Maisons.size() || PhotoIndex.Vu[U(k)]) continue;
        PhotoIndex.Vu[U(k)] = 1;
        const PhotoMaison& avant = PhotoIndex.PhotosMaisons[U(k)];
        n -= avant.Fief == groupe && PhotoIndex.GenresVus.Type(avant.Genre) == type;
        n += Persos[U(k)].Fief == fief && Maisons[U(k)].Type == type;
    }
    for (int32_t k : MaisonsCreees)
        if (U(k) < Maisons.size()) PhotoIndex.Vu[U(k)] = 0;
    return n;
}

int32_t Index_Compter_Maisons_Fief(int32_t fief) {
    PhotoIndex.Compter();
    const int32_t groupe = PhotoIndex.FiefsVus.Trouver(fief);
    return groupe < 0 ? 0 : PhotoIndex.ParFief[U(groupe)];
}

int32_t Index_Premier_Gisement(int32_t type, int32_t x, int32_t y, int32_t rayon) {
    const GrilleIndices& grille = PhotoIndex.GisementsParType;
    const auto fin = static_cast<int32_t>(PhotoIndex.NombreRessources);
    if (type >= grille.Groupes()) return -1;
    const int32_t k = grille.Premier(type, Autour(grille, x, y, rayon), 0, fin, [&](const EntreeGrille& e) {
        return rayon >= Distance(e.X, e.Y, x, y);
    });
    return Ou_Rien(k, fin);
}

int32_t Index_Ennemi_Le_Plus_Proche(const ClsJeuPerso& p) {
    return Cible_La_Plus_Proche(p, Persos, PhotoIndex.ParEquipe, false, Perso_Ennemi);
}

int32_t Index_Maison_Ennemie_La_Plus_Proche(const ClsJeuPerso& p) {
    return Cible_La_Plus_Proche(p, Maisons, PhotoIndex.MaisonsParEquipe, true, Maison_Ennemie);
}

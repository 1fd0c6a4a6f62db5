#include "ai/IndexRecherches.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <vector>

#include "ai/CriteresRecherche.h"
#include "ai/GrilleIndices.h"
#include "ai/TestPoint.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "world/Globales.h"

namespace {

std::size_t U(int32_t k) { return static_cast<std::size_t>(k); }

constexpr int32_t SansFin = std::numeric_limits<int32_t>::max();

// The distinct values met in a field (teams, fiefs), each the number of its group.
class Valeurs {
public:
    void Vider() { valeurs_.clear(); }
    int32_t Groupe_De(int32_t v) {
        const int32_t g = Trouver(v);
        if (g >= 0) return g;
        valeurs_.push_back(v);
        return Nombre() - 1;
    }
    int32_t Trouver(int32_t v) const {
        const auto it = std::find(valeurs_.begin(), valeurs_.end(), v);
        return it == valeurs_.end() ? -1 : static_cast<int32_t>(it - valeurs_.begin());
    }
    int32_t Nombre() const { return static_cast<int32_t>(valeurs_.size()); }
    int32_t operator[](int32_t g) const { return valeurs_[U(g)]; }

private:
    std::vector<int32_t> valeurs_;
};

// What a house is, as stored in it: all Chercher_Maison asks of it beyond place and state.
struct Genre {
    int16_t Type = 0;
    bool Magasin = false, Fabrique = false;
    int16_t Service = 0;
    bool operator==(const Genre&) const = default;
};

// The genres met among the houses. Genre t is the one a house of type t gets from Creer;
// any other (an empty slot, a house read from an odd file) comes after them.
class Genres {
public:
    void Vider() {
        genres_.clear();
        for (int16_t t = 0; t < Param.NombreTypeBatiments; ++t)
            genres_.push_back({t, Param.Batiment_Magasin(t), Param.Batiment_Fabrique(t), Param.Batiment_Service(t)});
        types_ = Param.NombreTypeBatiments;
    }
    int32_t Numero_De(const ClsJeuBatiment& b) {
        const Genre g{b.Type, b.Magasin, b.Fabrique, b.Service};
        if (b.Type >= 0 && b.Type < types_ && genres_[U(b.Type)] == g) return b.Type;
        const auto autre = std::find(genres_.begin() + types_, genres_.end(), g);
        if (autre != genres_.end()) return static_cast<int32_t>(autre - genres_.begin());
        genres_.push_back(g);
        return Nombre() - 1;
    }
    int32_t Nombre() const { return static_cast<int32_t>(genres_.size()); }
    int16_t Type(int32_t g) const { return genres_[U(g)].Type; }
    bool Convient(int32_t g, const Course& c) const {
        const Genre& x = genres_[U(g)];
        return Genre_Convient(c, x.Type, x.Magasin, x.Fabrique, x.Service);
    }

private:
    std::vector<Genre> genres_;
    int32_t types_ = 0;
};

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

struct Index {
    bool Ouvert = false;
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
    // House slots of each fief, and of each fief by genre, as pictured; counted at the first
    // question of a tick.
    bool Comptes = false;
    std::vector<int32_t> ParFief, ParFiefGenre;
    std::vector<uint8_t> Vu;   // scratch of the counts

    void Recommencer();
    void Photographier();
    void Noter_Maison(std::size_t k, const PhotoMaison& photo);
    bool Maisons_A_Reclasser() const;
    void Classer_Maisons(int32_t largeur, int32_t hauteur);
    void Classer(int32_t largeur, int32_t hauteur);
    void Compter();
};

Index Idx;

// A world of another size: every group and picture afresh.
void Index::Recommencer() {
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

void Index::Photographier() {
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

void Index::Noter_Maison(std::size_t k, const PhotoMaison& photo) {
    if (photo == PhotosMaisons[k]) return;
    PhotosMaisons[k] = photo;
    if (!MaisonsClassees || EstRevue[k]) return;
    EstRevue[k] = 1;
    Revues.push_back(static_cast<int32_t>(k));
}

bool Index::Maisons_A_Reclasser() const {
    return !MaisonsClassees || Revues.size() > SeuilRevues || Equipes.Nombre() != EquipesClassees ||
           FiefsVus.Nombre() != FiefsClasses || GenresVus.Nombre() != GenresClasses;
}

void Index::Classer_Maisons(int32_t largeur, int32_t hauteur) {
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

void Index::Classer(int32_t largeur, int32_t hauteur) {
    ParEquipe.Construire(
        Equipes.Nombre(), largeur, hauteur, static_cast<int32_t>(NombrePersos),
        [this](int32_t k) { return PhotosPersos[U(k)].Equipe; },
        [this](int32_t k) { return EntreeGrille{k, PhotosPersos[U(k)].X, PhotosPersos[U(k)].Y}; });
    if (Maisons_A_Reclasser()) Classer_Maisons(largeur, hauteur);
    Gisements.Construire(
        1, largeur, hauteur, static_cast<int32_t>(NombreRessources), [](int32_t) { return 0; },
        [](int32_t k) { return EntreeGrille{k, Ressources[U(k)].PositionX, Ressources[U(k)].PositionY}; });
}

void Index::Compter() {
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

// The lowest house slot of [debut, fin) that the grids may show otherwise than it stands
// (rebuilt by Creer since the picture, or changed since the grids were filed) for which
// qualifie(k) holds; fin when none. A building outside Maisons rebuilt by Creer is no house.
template <class Qualifie>
int32_t Premiere_Maison_Revue(int32_t debut, int32_t fin, Qualifie&& qualifie) {
    int32_t meilleur = fin;
    for (const std::vector<int32_t>* liste : {&MaisonsCreees, &Idx.Revues})
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
        if (Idx.Equipes[g] == p.Equipe) continue;
        grille.Pour_Chaque(g, zone, [&](const EntreeGrille& e) {
            if (std::llabs(static_cast<int64_t>(e.X) - p.PositionX) <= rayon &&
                std::llabs(static_cast<int64_t>(e.Y) - p.PositionY) <= rayon)
                visiter(e.Numero, e.X, e.Y);
        });
    }
    if (!directs) return;
    for (const std::vector<int32_t>* liste : {&MaisonsCreees, &Idx.Revues})
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
    Idx.Ouvert = Maisons.size() == Persos.size();
    if (!Idx.Ouvert) return;
    Idx.Photographier();
    Idx.Classer(Monde.Largeur * TailleCase, Monde.Hauteur * TailleCase);
    Idx.Comptes = false;
    MaisonsCreees.clear();
}

TourDeRecherches::~TourDeRecherches() { Idx.Ouvert = false; }

bool Index_Ouvert() {
    return Idx.Ouvert && Persos.size() == Idx.NombrePersos && Maisons.size() == Idx.NombrePersos &&
           Ressources.size() == Idx.NombreRessources;
}

int32_t Index_Premier_Ennemi(const ClsJeuPerso& p, int32_t debut, int32_t fin, int32_t rayon) {
    const int32_t k = Premier_Des_Groupes(
        Idx.ParEquipe, Autour(Idx.ParEquipe, p.PositionX, p.PositionY, rayon), debut, fin,
        [&p](int32_t g) { return Idx.Equipes[g] != p.Equipe; },
        [&](const EntreeGrille& e) {
            return Distance(e.X, e.Y, p.PositionX, p.PositionY) < rayon && Perso_Ennemi_A_Portee(p, e.Numero, rayon);
        });
    return Ou_Rien(k, fin);
}

int32_t Index_Premier_Maison_Ennemie(const ClsJeuPerso& p, int32_t debut, int32_t fin, int32_t rayon) {
    auto qualifie = [&p, rayon](int32_t k) { return Maison_Ennemie_A_Portee(p, k, rayon); };
    const int32_t k = Premier_Des_Groupes(
        Idx.MaisonsParEquipe, Autour(Idx.MaisonsParEquipe, p.PositionX, p.PositionY, rayon), debut, fin,
        [&p](int32_t g) { return Idx.Equipes[g] != p.Equipe; },
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
    const int32_t groupeFief = Idx.FiefsVus.Trouver(fief), genres = Idx.GenresVus.Nombre();
    const GrilleIndices::Zone partout{0, 0, 0, 0};
    int32_t meilleur = fin;
    for (int32_t g = 0; groupeFief >= 0 && g < genres; ++g)
        if (Idx.GenresVus.Convient(g, c))
            meilleur = Idx.MaisonsParGenre.Premier(groupeFief * genres + g, partout, debut, meilleur, proche);
    return Ou_Rien(Premiere_Maison_Revue(debut, meilleur, qualifie), fin);
}

bool Index_Place_Libre(int32_t i, int32_t x, int32_t y, int32_t largeur, int32_t hauteur) {
    const Observateur o = Observateur_De(i);
    const BoitePoint boite{x, y, largeur, hauteur};
    auto tous = [](int32_t) { return true; };
    if (Touche_Dans(Idx.ParEquipe, GroupePoint::Persos, o, boite, LargeurPerso, HauteurPerso,
                    [&o](int32_t g) { return Idx.Equipes[g] != o.Equipe; }))
        return false;
    for (int32_t k = 0; k < Nombre_Dans(GroupePoint::Chateaux); ++k)
        if (Trouve_Dans(GroupePoint::Chateaux, k, o, boite)) return false;
    auto maison = [&](int32_t k) { return Trouve_Dans(GroupePoint::Maisons, k, o, boite); };
    if (Touche_Dans(Idx.MaisonsParEquipe, GroupePoint::Maisons, o, boite, Idx.LargeurMaisons, Idx.HauteurMaisons,
                    tous) ||
        Premiere_Maison_Revue(0, SansFin, maison) < SansFin)
        return false;
    return !Touche_Dans(Idx.Gisements, GroupePoint::Gisements, o, boite, LargeurGisement, HauteurGisement, tous);
}

int32_t Index_Compter_Maisons_Type(int32_t type, int32_t fief) {
    Idx.Compter();
    const int32_t groupe = Idx.FiefsVus.Trouver(fief), genres = Idx.GenresVus.Nombre();
    int32_t n = 0;
    for (int32_t g = 0; groupe >= 0 && g < genres; ++g)
        if (Idx.GenresVus.Type(g) == type) n += Idx.ParFiefGenre[U(groupe * genres + g)];
    // A slot rebuilt since the picture counts as it stands now, once however often rebuilt.
    for (int32_t k : MaisonsCreees) {
        if (U(k) >= Maisons.size() || Idx.Vu[U(k)]) continue;
        Idx.Vu[U(k)] = 1;
        const PhotoMaison& avant = Idx.PhotosMaisons[U(k)];
        n -= avant.Fief == groupe && Idx.GenresVus.Type(avant.Genre) == type;
        n += Persos[U(k)].Fief == fief && Maisons[U(k)].Type == type;
    }
    for (int32_t k : MaisonsCreees)
        if (U(k) < Maisons.size()) Idx.Vu[U(k)] = 0;
    return n;
}

int32_t Index_Compter_Maisons_Fief(int32_t fief) {
    Idx.Compter();
    const int32_t groupe = Idx.FiefsVus.Trouver(fief);
    return groupe < 0 ? 0 : Idx.ParFief[U(groupe)];
}

int32_t Index_Ennemi_Le_Plus_Proche(const ClsJeuPerso& p) {
    return Cible_La_Plus_Proche(p, Persos, Idx.ParEquipe, false, Perso_Ennemi);
}

int32_t Index_Maison_Ennemie_La_Plus_Proche(const ClsJeuPerso& p) {
    return Cible_La_Plus_Proche(p, Maisons, Idx.MaisonsParEquipe, true, Maison_Ennemie);
}

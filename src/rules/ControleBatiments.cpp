// Checks of the building types: each is a trade, they climb a ladder of levels and epochs,
// workshops make what they can, and every epoch can be left for the next.
#include <algorithm>
#include <set>
#include <string>

#include "rules/ClsJeuParam.h"
#include "rules/ControleRegles.h"
#include "rules/Conversions.h"

namespace {

// The material that villagers harvest to build.
constexpr int MateriauRecolte = 2;
constexpr int MaxObjetsAtelier = 6;

// A villager's house is its trade: the AI asks each type what it makes, what it serves or
// what its objects need, and reads outside the tables for a type with none of these.
void Metiers(ControleRegles& c) {
    const ClsJeuParam& p = c.P;
    for (int b = 0; b < p.NombreTypeBatiments; ++b) {
        const bool produit = p.Batiment_RessourceFabrique(b) >= 0;
        if (!produit && p.Batiment_Service(b) < 1 && !p.Batiment_Fabrique(b))
            c.Signaler(FichierBatiments, "Batiment_", b, "RessourceFabrique",
                       "ce type ne fabrique aucune ressource, ne rend aucun service et n'est pas un atelier : "
                       "la maison d'un villageois est son métier");
        else if (!produit && p.Batiment_Magasin(b))
            c.Signaler(FichierBatiments, "Batiment_", b, "Magasin",
                       "un magasin vend sa RessourceFabrique, et ce type n'en fabrique aucune");
    }
}

void Ordre_Epoques(ControleRegles& c) {
    const ClsJeuParam& p = c.P;
    for (int b = 1; b < p.NombreTypeBatiments; ++b)
        if (p.Batiment_NoEpoque(b) < p.Batiment_NoEpoque(b - 1))
            c.Signaler(FichierBatiments, "Batiment_", b, "NoEpoque",
                       "époque " + std::to_string(p.Batiment_NoEpoque(b)) + " après un type de l'époque " +
                           std::to_string(p.Batiment_NoEpoque(b - 1)) + " : les types vont par époque croissante");
}

// Levels 0 … max, each held by at least one type, type 0 at level 0.
void Echelle_Niveaux(ControleRegles& c) {
    const ClsJeuParam& p = c.P;
    if (p.NombreTypeBatiments < 1) {
        c.Signaler(FichierBatiments, "Batiments", "NombreTypeBatiments", "il en faut au moins un");
        return;
    }
    if (p.Batiment_Niveau(0) != 0)
        c.Signaler(FichierBatiments, "Batiment_", 0, "Niveau",
                   "vaut " + std::to_string(p.Batiment_Niveau(0)) + " : le premier type est au niveau 0");
    std::set<int32_t> niveaux;
    for (int b = 0; b < p.NombreTypeBatiments; ++b) niveaux.insert(p.Batiment_Niveau(b));
    std::set<int32_t> signales;
    for (int b = 0; b < p.NombreTypeBatiments; ++b) {
        const int32_t n = p.Batiment_Niveau(b);
        if (n < 0) {
            c.Signaler(FichierBatiments, "Batiment_", b, "Niveau", "un niveau n'est jamais négatif");
            continue;
        }
        // The highest level below n that some type holds: every level between is missing.
        // Said once, at the first type of level n.
        const auto dessous = niveaux.lower_bound(n);
        const int32_t precedent = dessous == niveaux.begin() ? -1 : std::max(*std::prev(dessous), -1);
        if (precedent < n - 1 && signales.insert(n).second)
            c.Signaler(FichierBatiments, "Batiment_", b, "Niveau",
                       "niveau " + std::to_string(n) + ", mais aucun type n'a " +
                           (precedent + 1 == n - 1 ? "le niveau " + std::to_string(n - 1)
                                                   : "les niveaux " + std::to_string(precedent + 1) + " à " +
                                                         std::to_string(n - 1)));
    }
}

// At most six objects, none secret, at least one to be had from the workshop's own epoch.
void Ateliers(ControleRegles& c) {
    const ClsJeuParam& p = c.P;
    for (int b = 0; b < p.NombreTypeBatiments; ++b) {
        if (!p.Batiment_Fabrique(b)) continue;
        const int n = p.Batiment_NombreObjetsFabriques(b);
        if (n > MaxObjetsAtelier)
            c.Signaler(FichierBatiments, "Batiment_", b, "NombreObjetsfabriques",
                       "vaut " + std::to_string(n) + " : un atelier fabrique 6 objets au plus");
        const int epoque = std::max<int>(p.Batiment_NoEpoque(b), 1);
        bool deSonEpoque = false;
        for (int k = 0; k < n; ++k) {
            const int o = p.Batiment_ObjetFabrique(b, k);
            if (!Dans_Table(o, p.NombreObjets)) continue;
            if (p.Objet_Secret(o))
                c.Signaler(FichierBatiments, "Batiment_", b, Cle_Numerotee("ObjetsFabriques", k + 1),
                           "« " + p.Objet_Nom(o) + " » est secret : aucun atelier ne le fabrique");
            else if (p.Objet_Epoque(o) <= epoque)
                deSonEpoque = true;
        }
        if (!deSonEpoque)
            c.Signaler(FichierBatiments, "Batiment_", b, "NombreObjetsfabriques",
                       "aucun de ses objets ne se fabrique dès son époque (" + std::to_string(epoque) + ")");
    }
}

// A new village builds its first houses with the harvested material and what each villager
// carries at the start; the whole price is carried when building starts.
void Premieres_Maisons(ControleRegles& c) {
    const ClsJeuParam& p = c.P;
    if (p.NombreEpoques < 1) return;
    const double porte = p.PersosMaxRessources;
    const double depart = std::min(p.Epoque_PersosRessourcesDepart(0), porte);
    for (int b = 0; b < p.NombreTypeBatiments; ++b) {
        if (p.Batiment_Niveau(b) != 0 || p.Batiment_NoEpoque(b) > 1) continue;
        for (int r = 0; r < p.NombreRessources; ++r) {
            const int32_t prix = p.Batiment_Prix(b, r);
            if (prix <= 0) continue;
            const bool donnee = p.Ressources_NecessairePourConstruire(r) && p.Ressources_Epoque(r) <= 0;
            const double disponible = r == MateriauRecolte ? porte : donnee ? depart : 0;
            if (prix > disponible)
                c.Signaler(FichierBatiments, "Batiment_", b, Cle_Numerotee("PrixRessources", r + 1),
                           std::to_string(prix) + " « " + p.Ressources_Nom(r) + " » : un type de niveau 0 de la " +
                               "première époque se paie avec la ressource 3, qu'on récolte (" + Texte_Nombre(porte) +
                               " au plus), et les matériaux de départ (" + Texte_Nombre(depart) + " de chacun)");
        }
    }
}

// A fief at epoch e climbs to the next as soon as it finishes a type of NoEpoque e + 1; one
// of them must be payable with what can be had at epoch e.
void Epoques_Atteignables(ControleRegles& c) {
    const ClsJeuParam& p = c.P;
    const std::vector<int> obtention = Epoques_Obtention(p);
    for (int e = 0; e + 1 < p.NombreEpoques; ++e) {
        bool montee = false;
        for (int b = 0; b < p.NombreTypeBatiments && !montee; ++b) {
            if (p.Batiment_NoEpoque(b) != e + 1) continue;
            bool payable = true;
            for (int r = 0; r < p.NombreRessources; ++r)
                if (p.Batiment_Prix(b, r) > 0 && obtention[r] > e) payable = false;
            montee = payable;
        }
        if (!montee)
            c.Signaler(FichierFiefs, "Epoque_", e, "Nom",
                       "aucun type de bâtiment de NoEpoque " + std::to_string(e + 1) +
                           " ne se paie avec les ressources qu'on obtient à cette époque : l'époque " +
                           std::to_string(e + 2) + " reste hors d'atteinte");
    }
}

}  // namespace

void Controler_Batiments(ControleRegles& c) {
    Metiers(c);
    Ordre_Epoques(c);
    Echelle_Niveaux(c);
    Ateliers(c);
    Premieres_Maisons(c);
    Epoques_Atteignables(c);
}

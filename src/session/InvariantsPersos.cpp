#include "session/InvariantsPersos.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "rules/ClsJeuParam.h"
#include "world/Globales.h"

namespace {

constexpr std::string_view P = "Persos";

void Verifier_Identite(Constat& c, std::size_t i, const ClsJeuPerso& p) {
    c.Egal({P, i, "Numero"}, p.Numero, static_cast<int64_t>(i));
    c.Indice({P, i, "Fief"}, p.Fief, "Fiefs", Fiefs.size());
    c.Indice({P, i, "Chef"}, p.Chef, "Persos", Persos.size(), true);
    c.Indice({P, i, "Monstre"}, p.Monstre, "son Bestiaire", p.Bestiaire.size());
}

// A character's tick looks up its character, house and castle targets whatever it does, and
// the deposit while it walks to it or harvests it.
void Verifier_Cibles(Constat& c, std::size_t i, const ClsJeuPerso& p) {
    c.Indice({P, i, "PersoCible"}, p.PersoCible, "Persos", Persos.size());
    c.Indice({P, i, "MaisonCible"}, p.MaisonCible, "Maisons", Maisons.size());
    c.Indice({P, i, "ChateauCible"}, p.ChateauCible, "Chateaux", Chateaux.size());
    const int16_t action = p.Definir_Action();
    if (action == 2 || action == 3)
        c.Indice({P, i, "RessourceCible"}, p.RessourceCible, "Ressources", Ressources.size());
    c.Indice({P, i, "RessourceRecoltee"}, p.RessourceRecoltee, "les ressources",
             static_cast<std::size_t>(Param.NombreRessources), true);
    c.Indice({P, i, "ObjetUtilise"}, p.ObjetUtilise, "les objets", static_cast<std::size_t>(Param.NombreObjets), true);
}

struct JaugeNommee {
    std::string_view Nom, Reserve;
    Jauge ClsJeuPerso::*Membre;
};

constexpr JaugeNommee Jauges[] = {
    {"Vie", "Vie.Reserve", &ClsJeuPerso::Vie},
    {"Energie", "Energie.Reserve", &ClsJeuPerso::Energie},
    {"Magie", "Magie.Reserve", &ClsJeuPerso::Magie},
    {"Moral", "Moral.Reserve", &ClsJeuPerso::Moral},
    {"Attaque", "Attaque.Reserve", &ClsJeuPerso::Attaque},
    {"Defense", "Defense.Reserve", &ClsJeuPerso::Defense},
};

// Every write of a gauge keeps it between 0 and its effective maximum (armour, the floor of
// the defence, gives way to the maximum); a reserve only ever flows out.
void Verifier_Jauges(Constat& c, std::size_t i, const ClsJeuPerso& p) {
    for (const JaugeNommee& j : Jauges) {
        const Jauge& jauge = p.*j.Membre;
        c.Entre({P, i, j.Nom}, jauge.Valeur, 0, jauge.Max);
        c.Positif({P, i, j.Reserve}, jauge.Reserve);
    }
}

void Verifier_Rangee(Constat& c, std::size_t i, std::string_view nom, const std::vector<ClsJeuObjet>& rangee,
                     int16_t attendu) {
    c.Entrees({P, i, nom}, rangee.size(), static_cast<std::size_t>(attendu));
    for (std::size_t k = 0; k < rangee.size(); ++k)
        c.Indice({P, i, nom, static_cast<int64_t>(k)}, rangee[k].Type, "les objets",
                 static_cast<std::size_t>(Param.NombreObjets), true);
}

// Money and loads are written through operations that stop them at 0, and a load at the
// capacity of its resource.
void Verifier_Biens(Constat& c, std::size_t i, const ClsJeuPerso& p) {
    c.Positif({P, i, "Argent"}, p.Argent);
    const auto n = static_cast<std::size_t>(Param.NombreRessources);
    c.Entrees({P, i, "Ressources"}, p.Ressources.size(), n);
    c.Entrees({P, i, "CompetencesRessources"}, p.CompetencesRessources.size(), n);
    if (c.Rompu()) return;
    for (std::size_t r = 0; r < n; ++r)
        c.Entre({P, i, "Ressources", static_cast<int64_t>(r)}, p.Ressources[r], 0,
                p.Definir_MaxRessources(static_cast<int>(r)));
    Verifier_Rangee(c, i, "ObjetsEquipes", p.ObjetsEquipes, Param.PersosNombreObjetsEquipes);
    Verifier_Rangee(c, i, "ObjetsInventaire", p.ObjetsInventaire, Param.PersosNombreObjetsInventaire);
}

// Everyone is placed inside the world and sent only to places inside it, but a walker stops
// within half a step of where it was sent (the dead walk 6 metres a step), and a follower is
// sent to its place around its chief, which lies beyond an edge by up to its offset.
void Verifier_Position(Constat& c, std::size_t i, const ClsJeuPerso& p) {
    const int32_t pas = std::max(p.Vitesse, 6);
    const int32_t mx = p.Invocation() ? 2 * pas + std::abs(p.DecalageChefX) : pas;
    const int32_t my = p.Invocation() ? 2 * pas + std::abs(p.DecalageChefY) : pas;
    c.Entre({P, i, "PositionX"}, p.PositionX, -mx, Monde.Largeur * TailleCase + mx);
    c.Entre({P, i, "PositionY"}, p.PositionY, -my, Monde.Hauteur * TailleCase + my);
}

}  // namespace

void Verifier_Perso(Constat& c, std::size_t i) {
    const ClsJeuPerso& p = Persos[i];
    Verifier_Identite(c, i, p);
    Verifier_Cibles(c, i, p);
    Verifier_Jauges(c, i, p);
    Verifier_Biens(c, i, p);
    Verifier_Position(c, i, p);
}

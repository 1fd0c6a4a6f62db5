#include "session/Invariants.h"

#include <string_view>
#include <vector>

#include "ai/TablesIA.h"
#include "rules/ClsJeuParam.h"
#include "session/Constat.h"
#include "session/InvariantsPersos.h"
#include "world/Globales.h"

namespace {

template <class T>
struct TableNommee {
    std::string_view Nom;
    const std::vector<T>* Table;
};

template <class T, std::size_t N>
void Memes_Tailles(Constat& c, const TableNommee<T> (&tables)[N], std::string_view reference, std::size_t n) {
    for (const TableNommee<T>& t : tables) c.Taille(t.Nom, t.Table->size(), reference, n);
}

// Character i owns house slot i, effect slot i and entry i of every table of the AI; fief f
// owns castle f and entry f of the AI's placement radii.
void Verifier_Tailles(Constat& c) {
    const std::size_t n = Persos.size(), f = Fiefs.size();
    c.Taille("Maisons", Maisons.size(), "Persos", n);
    c.Taille("EffetsPersos", EffetsPersos.size(), "Persos", n);
    c.Taille("EffetsMaisons", EffetsMaisons.size(), "Persos", n);
    c.Taille("ActionFaite", ActionFaite.size(), "Persos", n);
    const TableNommee<int32_t> curseurs[] = {
        {"CurseurPerso", &CurseurPerso},
        {"CurseurMaison", &CurseurMaison},
        {"CurseurMaisonEnnemie", &CurseurMaisonEnnemie},
        {"CurseurChateauEnnemi", &CurseurChateauEnnemi},
        {"RayonPerso", &RayonPerso},
        {"RayonMaison", &RayonMaison},
        {"RayonMaisonEnnemie", &RayonMaisonEnnemie},
        {"RayonChateauEnnemi", &RayonChateauEnnemi},
        {"RayonRessource", &RayonRessource},
    };
    const TableNommee<int16_t> etapes[] = {
        {"BatimentVoulu", &BatimentVoulu},
        {"EtapeRessource", &EtapeRessource},
        {"EtapeObjet", &EtapeObjet},
        {"EtapeQuantite", &EtapeQuantite},
    };
    Memes_Tailles(c, curseurs, "Persos", n);
    Memes_Tailles(c, etapes, "Persos", n);
    c.Taille("Chateaux", Chateaux.size(), "Fiefs", f);
    c.Taille("RayonPlacementFief", RayonPlacementFief.size(), "Fiefs", f);
    c.Exiger(DernierPerso == static_cast<int64_t>(n) - 1, "DernierPerso = ", DernierPerso, " pour ", n,
             " personnages");
    c.Exiger(PersoActif >= 0 && static_cast<std::size_t>(PersoActif) < n, "PersoActif = ", PersoActif,
             " ne désigne rien dans Persos (", n, " entrées)");
}

// A building stands inside the world; its till, stock and reserve are only ever taken down
// to 0, and every write of its health stops at its maximum. A fallen slot keeps what it held.
void Verifier_Batiment(Constat& c, std::string_view tableau, std::size_t i, const ClsJeuBatiment& b) {
    c.Egal({tableau, i, "Numero"}, b.Numero, static_cast<int64_t>(i));
    c.Exiger(Constat::Au_Plus(b.Vie, b.MaxVie), Champ{tableau, i, "Vie"}, " = ", b.Vie, " au-dessus de MaxVie ",
             b.MaxVie);
    c.Positif({tableau, i, "ReserveVie"}, b.ReserveVie);
    c.Positif({tableau, i, "Argent"}, b.Argent);
    c.Positif({tableau, i, "Stock"}, b.Stock);
    for (std::size_t k = 0; k < b.StockObjets.size(); ++k)
        c.Positif({tableau, i, "StockObjets", static_cast<int64_t>(k)}, b.StockObjets[k]);
    if (!b.Visible()) return;
    c.Entre({tableau, i, "PositionX"}, b.PositionX, 0, Monde.Largeur * TailleCase);
    c.Entre({tableau, i, "PositionY"}, b.PositionY, 0, Monde.Hauteur * TailleCase);
}

void Verifier_Maison(Constat& c, std::size_t i) {
    const ClsJeuBatiment& m = Maisons[i];
    Verifier_Batiment(c, "Maisons", i, m);
    if (m.Visible())
        c.Indice({"Maisons", i, "Type"}, m.Type, "les types de bâtiments",
                 static_cast<std::size_t>(Param.NombreTypeBatiments));
}

// The market stops its stock at 0 and sells no more than it has; given money is spent at
// most to the last coin.
void Verifier_Fief(Constat& c, std::size_t f) {
    const ClsJeuFief& fief = Fiefs[f];
    constexpr std::string_view F = "Fiefs";
    c.Indice({F, f, "Epoque"}, fief.Epoque, "les époques", static_cast<std::size_t>(Param.NombreEpoques));
    c.Positif({F, f, "TresorRestauration"}, fief.TresorRestauration);
    c.Entrees({F, f, "Ressources"}, fief.Ressources.size(), static_cast<std::size_t>(Param.NombreRessources));
    for (std::size_t r = 0; r < fief.Ressources.size(); ++r)
        c.Positif({F, f, "Ressources", static_cast<int64_t>(r)}, fief.Ressources[r]);
}

// Harvesting never lowers a deposit, which lies inside the world.
void Verifier_Gisement(Constat& c, std::size_t k) {
    const ClsJeuRessources& g = Ressources[k];
    constexpr std::string_view R = "Ressources";
    c.Positif({R, k, "Quantite"}, g.Quantite);
    c.Indice({R, k, "TypeTerrain"}, g.TypeTerrain, "les gisements des règles",
             static_cast<std::size_t>(Param.NombreTerrainRessource));
    c.Indice({R, k, "TypeRessource"}, g.TypeRessource, "les ressources", static_cast<std::size_t>(Param.NombreRessources));
    c.Entre({R, k, "PositionX"}, g.PositionX, 0, Monde.Largeur * TailleCase);
    c.Entre({R, k, "PositionY"}, g.PositionY, 0, Monde.Hauteur * TailleCase);
}

// A playing effect is a row of the effects table.
void Verifier_Effets(Constat& c, std::string_view tableau, const std::vector<ClsJeuEffet>& effets) {
    for (std::size_t i = 0; i < effets.size() && !c.Rompu(); ++i)
        if (effets[i].Actif)
            c.Indice({tableau, i, "Type"}, effets[i].Type, "les effets", static_cast<std::size_t>(Param.NombreEffets));
}

// What a character wants to build is a type of the rules, or nothing.
void Verifier_Voeux(Constat& c) {
    for (std::size_t i = 0; i < BatimentVoulu.size() && !c.Rompu(); ++i)
        c.Indice({"BatimentVoulu", i, ""}, BatimentVoulu[i], "les types de bâtiments",
                 static_cast<std::size_t>(Param.NombreTypeBatiments), true);
}

}  // namespace

std::optional<std::string> Invariant_Rompu() {
    Constat c;
    Verifier_Tailles(c);
    if (c.Rompu()) return std::move(c).Texte();
    for (std::size_t i = 0; i < Persos.size() && !c.Rompu(); ++i) {
        Verifier_Perso(c, i);
        Verifier_Maison(c, i);
    }
    for (std::size_t f = 0; f < Fiefs.size() && !c.Rompu(); ++f) {
        Verifier_Fief(c, f);
        Verifier_Batiment(c, "Chateaux", f, Chateaux[f]);
    }
    for (std::size_t k = 0; k < Ressources.size() && !c.Rompu(); ++k) Verifier_Gisement(c, k);
    Verifier_Effets(c, "EffetsPersos", EffetsPersos);
    Verifier_Effets(c, "EffetsMaisons", EffetsMaisons);
    Verifier_Voeux(c);
    return std::move(c).Texte();
}

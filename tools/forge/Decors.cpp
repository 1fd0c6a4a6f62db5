// The deposits: Decors/Ressources.bmp, one row with a 32 x 32 cell per deposit type. What a
// deposit looks like comes from its name (a berry bush, a pond, a wood, a quarry…), or else
// from the resource it gives.
#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "Architecture.h"
#include "Bruit.h"
#include "Forge.h"
#include "Mots.h"
#include "Pictos.h"
#include "rules/ClsJeuParam.h"

namespace {

constexpr int Case = 32;

void Rochers(Toile& t, const Rampe& r, uint32_t graine) {
    const double pos[][3] = {{12, 18, 9}, {21, 21, 7}, {9, 24, 6}, {20, 13, 5}};
    for (const auto& p : pos) {
        const double cx = p[0], cy = p[1], rr = p[2];
        t.Polygone({{cx - rr, cy + rr * 0.5}, {cx - rr * 0.7, cy - rr * 0.4}, {cx - rr * 0.1, cy - rr * 0.75},
                    {cx + rr * 0.8, cy - rr * 0.3}, {cx + rr, cy + rr * 0.5}},
                   r[1]);
        t.Polygone({{cx - rr * 0.7, cy - rr * 0.4}, {cx - rr * 0.1, cy - rr * 0.75}, {cx + rr * 0.5, cy - rr * 0.35}, {cx - rr * 0.2, cy}}, r[3]);
        t.Polygone({{cx - rr * 0.2, cy}, {cx + rr * 0.5, cy - rr * 0.35}, {cx + rr * 0.8, cy - rr * 0.3}, {cx + rr, cy + rr * 0.5}, {cx, cy + rr * 0.5}}, r[2]);
    }
    (void)graine;
}

void Filon(Toile& t, const Rampe& minerai, uint32_t graine) {
    Rochers(t, Pal::Pierre, graine);
    Tirage tirage(graine);
    for (int i = 0; i < 9; ++i) {
        const int x = tirage.Entre(6, 25), y = tirage.Entre(10, 26);
        if (!t.Opaque(x, y)) continue;
        t.Point(x, y, minerai[2]);
        t.Point_Sur(x + 1, y, minerai[1]);
        t.Point_Sur(x, y - 1, minerai[3]);
    }
}

void Buisson_De_Baies(Toile& t, uint32_t graine) {
    Buisson(t, 16, 18, 11, Pal::Feuillage, graine);
    Tirage tirage(graine + 1);
    for (int i = 0; i < 9; ++i) {
        const int x = tirage.Entre(8, 24), y = tirage.Entre(11, 24);
        t.Point(x, y, Pal::DrapRouge[2]);
        t.Point(x + 1, y, Pal::DrapRouge[1]);
        t.Point(x, y - 1, Pal::DrapRouge[3]);
    }
}

void Etang(Toile& t, uint32_t) {
    t.Ellipse(16, 18, 14, 10, Pal::Sable[1]);
    t.Ellipse(16, 18, 12.5, 8.5, Pal::Eau[1]);
    t.Ellipse(17, 19, 10, 6.5, Pal::Eau[2]);
    t.Ellipse(13, 15, 5, 2.5, Pal::Eau[3]);   // the sky in the water
    const double poissons[][2] = {{10, 20}, {20, 16}, {17, 23}};
    for (const auto& p : poissons) {   // dark backs of fish under the surface
        t.Ellipse(p[0], p[1], 2.2, 0.9, Pal::Eau[0]);
        t.Point(static_cast<int>(p[0]) + 2, static_cast<int>(p[1]) - 1, Pal::Eau[0]);
        t.Point(static_cast<int>(p[0]) + 2, static_cast<int>(p[1]) + 1, Pal::Eau[0]);
    }
    for (int x : {4, 6, 27}) t.Ligne(x, 14 + (x % 3), x, 20, Pal::Feuillage[2]);
    t.Point(4, 13, Pal::Bois[1]);
    t.Point(27, 15, Pal::Bois[1]);
}

void Bosquet(Toile& t, uint32_t graine) {
    Arbre(t, 9, 16, 7, graine);
    Arbre(t, 23, 14, 7.5, graine + 1);
    Arbre(t, 16, 22, 7, graine + 2);
}

void Champ(Toile& t, uint32_t) {
    Toile masque(Case, Case);
    masque.Ellipse(16, 18, 14, 10, Pal::Blanc);
    masque.Rectangle(5, 10, 22, 16, Pal::Blanc);
    for (int y = 6; y < 30; ++y)
        for (int x = 1; x < 31; ++x) {
            if (!masque.Opaque(x, y)) continue;
            const int rang = y % 3;
            const bool epi = (x + y / 3) % 2 == 0;
            t.Point(x, y, rang == 2 ? Pal::Terre[1] : (rang == 0 ? (epi ? Pal::Chaume[3] : Pal::Chaume[2]) : Pal::Chaume[1]));
        }
    for (int x = 4; x < 28; x += 4) t.Point(x, 7 + (x % 3), Pal::Chaume[3]);
}

void Glaisiere(Toile& t, uint32_t) {
    t.Ellipse(16, 18, 14, 10, Pal::Brique[1]);
    t.Ellipse(16, 17, 12, 8, Pal::Brique[2]);
    t.Ellipse(18, 20, 6, 3, Pal::Eau[1]);
    t.Ellipse(11, 14, 4, 2.5, Pal::Brique[3]);
    t.Ligne(6, 22, 10, 24, Pal::Brique[0]);
}

void Prairie(Toile& t, uint32_t graine) {
    t.Ellipse(16, 18, 13, 10, Pal::Herbe[3]);
    Tirage tirage(graine);
    for (int i = 0; i < 22; ++i) {
        const int x = tirage.Entre(5, 26), y = tirage.Entre(10, 26);
        t.Ligne(x, y, x, y - 2, Pal::Feuillage[2]);
        if (i % 3 == 0) t.Point(x, y - 3, i % 2 ? Pal::DrapViolet[3] : Pal::Or[3]);
        if (i % 4 == 1) t.Point(x, y - 3, Pal::Blanc);
    }
}

void Paturage(Toile& t, uint32_t graine) {
    Prairie(t, graine);
    Cloture(t, 2, 28, 29);
    t.Ellipse(15, 16, 5, 3.5, Pal::DrapBlanc[2]);
    t.Ellipse(14, 15, 3, 2, Pal::DrapBlanc[3]);
    t.Ellipse(20, 15, 2, 1.8, Pal::CheveuxNoirs[2]);
    t.Rectangle(12, 19, 1, 2, Pal::CheveuxNoirs[1]);
    t.Rectangle(17, 19, 1, 2, Pal::CheveuxNoirs[1]);
}

struct Gisement {
    std::vector<std::string_view> mots;
    std::function<void(Toile&, uint32_t)> dessin;
};

const std::vector<Gisement>& Gisements() {
    static const std::vector<Gisement> g = {
        {{"buisson", "baie", "fruit"}, Buisson_De_Baies},
        {{"poisson", "etang", "lac", "banc"}, Etang},
        {{"foret", "bois", "arbre", "bosquet"}, Bosquet},
        {{"filon d'or", "or", "pepite"}, [](Toile& t, uint32_t g) { Filon(t, Pal::Or, g); }},
        {{"fer", "minerai"}, [](Toile& t, uint32_t g) { Filon(t, Pal::Brique, g); }},
        {{"carriere", "pierre", "roche", "rocher"}, [](Toile& t, uint32_t g) { Rochers(t, Pal::Pierre, g); }},
        {{"champ", "ble", "cereale"}, Champ},
        {{"glaise", "argile"}, Glaisiere},
        {{"paturage", "pature", "laine", "mouton"}, Paturage},
        {{"prairie", "herbe", "simple"}, Prairie},
    };
    return g;
}

Toile Dessin_Gisement(const std::string& nom, const std::string& ressource, uint32_t graine) {
    Toile t(Case, Case);
    for (const std::string* texte : {&nom, &ressource})
        for (const Gisement& g : Gisements())
            if (Contient_Mot(*texte, g.mots)) {
                g.dessin(t, graine);
                t.Contourner(Pal::Encre);
                return t;
            }
    // A heap of what it gives.
    t.Ellipse(16, 22, 11, 6, Pal::Terre[1]);
    t.Coller(Agrandir(Picto_Ressource(ressource), 2), 4, 2);
    t.Contourner(Pal::Encre);
    return t;
}

}  // namespace

void Forger_Decors(Atelier& a) {
    const int n = std::max<int>(Param.NombreTerrainRessource, 1);
    Toile rangee(n * Case, Case);
    for (int d = 0; d < Param.NombreTerrainRessource; ++d) {
        const int r = Param.TerrainRessources_TypeRessource(d);
        const std::string ressource = r >= 0 && r < Param.NombreRessources ? Plier(Param.Ressources_Nom(r)) : "";
        rangee.Coller(Dessin_Gisement(Plier(Param.TerrainRessources_Nom(d)), ressource, Graine_De(Param.TerrainRessources_Nom(d).c_str())), d * Case, 0);
    }
    a.Ecrire("Decors/Ressources.bmp", rangee);
}

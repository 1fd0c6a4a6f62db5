#include "Pictos.h"

#include <cmath>
#include <functional>
#include <string_view>
#include <vector>

#include "Mots.h"

namespace {

// The drawing is 12 x 12; the picture gives it a pixel of margin for its outline.
constexpr int TailleDessin = TaillePicto - 2;

Toile Entourer(const Toile& dessin) {
    Toile t(TaillePicto, TaillePicto);
    t.Coller(dessin, 1, 1);
    t.Contourner(Pal::Encre);
    return t;
}

using Dessin = std::function<void(Toile&)>;

void Baies(Toile& t) {
    t.Trait(6, 1, 7, 4, 1.2, Pal::Feuillage[2]);
    t.Ellipse(8.5, 2.5, 2, 1.2, Pal::Feuillage[2]);
    const double pos[][2] = {{4, 6}, {7.5, 6.5}, {5.5, 9}, {8.5, 9.5}, {3, 9}};
    for (const auto& p : pos) {
        t.Ellipse(p[0], p[1], 1.7, 1.7, Pal::DrapRouge[2]);
        t.Point(static_cast<int>(p[0]) - 1, static_cast<int>(p[1]) - 1, Pal::DrapRouge[3]);
    }
}

void Poisson(Toile& t) {
    t.Ellipse(5.5, 6, 4.5, 2.5, Pal::Eau[2]);
    t.Ellipse(5.5, 7, 3.5, 1.2, Pal::Glace[3]);
    t.Polygone({{9, 6}, {12, 3}, {12, 9}}, Pal::Eau[1]);
    t.Point(3, 5, Pal::Encre);
}

void Bois(Toile& t) {
    for (int i = 0; i < 2; ++i) {
        const double y = 4 + i * 4;
        t.Rectangle(1, static_cast<int>(y) - 1, 8, 3, Pal::Bois[2]);
        t.Ligne(1, static_cast<int>(y) - 1, 8, static_cast<int>(y) - 1, Pal::Bois[3]);
        t.Ellipse(9.5, y + 0.5, 1.6, 1.6, Pal::BoisClair[3]);
        t.Point(9, static_cast<int>(y), Pal::Bois[2]);
    }
}

void Caillou(Toile& t, const Rampe& r, Couleur tache, bool taches) {
    t.Polygone({{1, 9}, {3, 3}, {7, 2}, {11, 5}, {11, 10}}, r[1]);
    t.Polygone({{3, 4}, {7, 3}, {9, 5}, {4, 7}}, r[3]);
    t.Polygone({{4, 7}, {9, 5}, {11, 6}, {10, 10}, {5, 10}}, r[2]);
    if (taches)
        for (const auto& p : std::vector<std::pair<int, int>>{{4, 5}, {8, 7}, {6, 9}, {9, 4}}) t.Point(p.first, p.second, tache);
}

void Ble(Toile& t) {
    for (int i = -1; i <= 1; ++i) t.Trait(6, 11, 6 + i * 3, 4, 1.0, Pal::Chaume[1]);
    for (int i = -1; i <= 1; ++i) t.Ellipse(6 + i * 3.3, 3, 1.4, 2.6, Pal::Chaume[3]);
    t.Rectangle(4, 8, 5, 1, Pal::DrapRouge[1]);
}

void Argile(Toile& t) {
    t.Ellipse(6, 7, 5, 4, Pal::Brique[2]);
    t.Ellipse(5, 6, 3, 2, Pal::Brique[3]);
    t.Point(8, 8, Pal::Brique[1]);
}

void Pepite(Toile& t) {
    t.Polygone({{2, 8}, {4, 4}, {8, 3}, {10, 6}, {9, 10}, {4, 10}}, Pal::Or[2]);
    t.Polygone({{4, 5}, {7, 4}, {6, 7}}, Pal::Or[3]);
    t.Point(8, 8, Pal::Or[1]);
}

void Planches(Toile& t) {
    for (int i = 0; i < 3; ++i) {
        t.Rectangle(1, 3 + i * 3, 10, 2, Pal::BoisClair[2]);
        t.Ligne(1, 3 + i * 3, 10, 3 + i * 3, Pal::BoisClair[3]);
    }
}

void Pain(Toile& t) {
    t.Ellipse(6, 7, 5.5, 3.5, Pal::DrapOcre[2]);
    t.Ellipse(5.5, 6, 4, 2, Pal::DrapOcre[3]);
    for (int x = 3; x <= 8; x += 3) t.Ligne(x, 5, x + 1, 7, Pal::DrapOcre[1]);
}

void Briques(Toile& t) {
    const int pos[][2] = {{1, 7}, {6, 7}, {3, 3}};
    for (const auto& p : pos) {
        t.Rectangle(p[0], p[1], 5, 3, Pal::Brique[2]);
        t.Ligne(p[0], p[1], p[0] + 4, p[1], Pal::Brique[3]);
    }
}

void Herbes(Toile& t) {
    t.Trait(6, 11, 6, 5, 1.0, Pal::Feuillage[1]);
    t.Ellipse(3.5, 5, 2.5, 1.4, Pal::Feuillage[2]);
    t.Ellipse(8.5, 4, 2.5, 1.4, Pal::Feuillage[3]);
    t.Ellipse(4.5, 8, 2.2, 1.2, Pal::Feuillage[3]);
    t.Ellipse(8, 8, 2, 1.2, Pal::Feuillage[2]);
    t.Point(6, 2, Pal::DrapViolet[3]);
}

void Potion(Toile& t) {
    t.Ellipse(6, 8, 4, 3.5, Pal::DrapRouge[2]);
    t.Rectangle(5, 2, 3, 4, Pal::Glace[2]);
    t.Rectangle(5, 1, 3, 1, Pal::Bois[2]);
    t.Point(4, 7, Pal::DrapRouge[3]);
    t.Point(4, 6, Pal::Blanc);
}

void Biere(Toile& t) {
    t.Rectangle(2, 3, 7, 8, Pal::Bois[2]);
    t.Rectangle(2, 5, 7, 1, Pal::Metal[1]);
    t.Rectangle(2, 9, 7, 1, Pal::Metal[1]);
    t.Ellipse(5.5, 3, 4, 2, Pal::DrapBlanc[3]);
    t.Anneau(10, 7, 2, 2.5, Pal::Bois[1]);
}

void Laine(Toile& t) {
    t.Ellipse(6, 6.5, 5, 4.5, Pal::DrapBlanc[2]);
    t.Ellipse(5, 5, 3, 2.5, Pal::DrapBlanc[3]);
    t.Ligne(3, 8, 9, 4, Pal::DrapBlanc[1]);
}

void Fleches(Toile& t) {
    for (int i = 0; i < 3; ++i) {
        const int x = 3 + i * 3;
        t.Ligne(x, 3, x, 11, Pal::Bois[2]);
        t.Point(x, 2, Pal::Metal[3]);
        t.Point(x, 1, Pal::Metal[2]);
        t.Point(x - 1, 10, Pal::DrapBlanc[3]);
        t.Point(x + 1, 10, Pal::DrapBlanc[3]);
    }
}

void Sac_(Toile& t) {
    t.Ellipse(6, 7, 4.5, 4, Pal::DrapOcre[2]);
    t.Ellipse(5, 6, 2.5, 2, Pal::DrapOcre[3]);
    t.Rectangle(5, 1, 3, 3, Pal::DrapOcre[1]);
}

struct Entree {
    std::vector<std::string_view> mots;
    Dessin dessin;
};

const std::vector<Entree>& Table() {
    static const std::vector<Entree> table = {
        {{"baie", "fruit", "mure"}, Baies},
        {{"poisson"}, Poisson},
        {{"planche"}, Planches},
        {{"minerai"}, [](Toile& t) { Caillou(t, Pal::Pierre, Pal::Brique[3], true); }},
        {{"fer", "metal", "lingot"}, [](Toile& t) { Caillou(t, Pal::Metal, Pal::Metal[3], false); }},
        {{"or", "pepite"}, Pepite},
        {{"pierre", "roche", "granit"}, [](Toile& t) { Caillou(t, Pal::Pierre, Pal::Pierre[0], false); }},
        {{"bois", "buche"}, Bois},
        {{"ble", "grain", "cereale"}, Ble},
        {{"argile", "glaise"}, Argile},
        {{"pain", "galette"}, Pain},
        {{"brique"}, Briques},
        {{"herbe", "plante", "simple"}, Herbes},
        {{"potion", "elixir", "remede"}, Potion},
        {{"biere", "vin", "cervoise"}, Biere},
        {{"laine", "tissu", "toison"}, Laine},
        {{"fleche", "carreau"}, Fleches},
    };
    return table;
}

}  // namespace

Toile Picto_Ressource(const std::string& plie) {
    Toile t(TailleDessin, TailleDessin);
    Dessin dessin = Sac_;
    // By the start of a word: "or" in "filon d'or", never inside "forêt".
    for (const Entree& e : Table())
        if (Contient_Mot(plie, e.mots)) {
            dessin = e.dessin;
            break;
        }
    dessin(t);
    return Entourer(t);
}

namespace {

void Dessiner_Insigne(Toile& t, Insigne i) {
    switch (i) {
        case Insigne::Maison:
            t.Polygone({{0.5, 6}, {6, 0.5}, {11.5, 6}}, Pal::Tuile[2]);
            t.Rectangle(2, 6, 8, 5, Pal::Torchis[2]);
            t.Rectangle(5, 7, 2, 4, Pal::Bois[1]);
            t.Ligne(6, 1, 11, 6, Pal::Tuile[1]);
            break;
        case Insigne::Chateau:
            t.Rectangle(1, 4, 10, 7, Pal::Pierre[2]);
            for (int x = 1; x < 11; x += 3) t.Rectangle(x, 2, 2, 2, Pal::Pierre[2]);
            t.Rectangle(4, 7, 4, 4, Pal::Bois[1]);
            t.Rectangle(1, 4, 1, 7, Pal::Pierre[3]);
            t.Rectangle(10, 4, 1, 7, Pal::Pierre[1]);
            break;
        case Insigne::Epee:
            t.Trait(3, 9, 10, 2, 1.6, Pal::Metal[2]);
            t.Ligne(4, 9, 9, 4, Pal::Metal[3]);
            t.Trait(1, 7, 5, 11, 1.4, Pal::Or[2]);
            t.Trait(1, 11, 3, 9, 1.4, Pal::Cuir[2]);
            break;
        case Insigne::Marteau:
            t.Trait(2, 11, 7, 5, 1.5, Pal::Bois[2]);
            t.Polygone({{5, 3}, {8, 0.5}, {11.5, 4}, {8.5, 6.5}}, Pal::Metal[2]);
            break;
        case Insigne::Croix:
            t.Trait(2, 2, 10, 10, 2.6, Pal::DrapRouge[2]);
            t.Trait(10, 2, 2, 10, 2.6, Pal::DrapRouge[2]);
            t.Ligne(2, 2, 10, 10, Pal::DrapRouge[3]);
            break;
        case Insigne::Coche:
            t.Trait(1.5, 6.5, 4.5, 9.5, 2.6, Pal::Poison[2]);
            t.Trait(4.5, 9.5, 10.5, 2.5, 2.6, Pal::Poison[2]);
            t.Ligne(2, 6, 4, 8, Pal::Poison[3]);
            break;
        case Insigne::Piece:
            t.Ellipse(6, 6, 5, 5, Pal::Or[2]);
            t.Ellipse(6, 6, 3, 3, Pal::Or[1]);
            t.Ligne(5, 4, 5, 7, Pal::Or[3]);
            t.Point(3, 3, Pal::Or[3]);
            break;
        case Insigne::Drapeau:
            t.Ligne(2, 0, 2, 11, Pal::Bois[1]);
            t.Polygone({{3, 1}, {11, 2}, {9, 4.5}, {11, 7}, {3, 7}}, Pal::DrapBleu[2]);
            t.Ligne(3, 1, 10, 2, Pal::DrapBleu[3]);
            break;
        case Insigne::Torche:
            t.Trait(4, 11, 6, 5, 1.8, Pal::Bois[2]);
            t.Ellipse(6.5, 3.5, 2.6, 3.2, Pal::Feu[1]);
            t.Ellipse(6.5, 4, 1.4, 2, Pal::Feu[3]);
            break;
        case Insigne::Bouclier:
            t.Polygone({{1, 1}, {11, 1}, {11, 6}, {6, 11.5}, {1, 6}}, Pal::DrapBleu[2]);
            t.Ligne(6, 1, 6, 10, Pal::Or[3]);
            t.Ligne(1, 4, 11, 4, Pal::Or[3]);
            t.Rectangle(1, 1, 1, 5, Pal::DrapBleu[3]);
            break;
        case Insigne::Main:
            t.Ellipse(6, 7.5, 4, 4, Pal::Peau[2]);
            for (int d = 0; d < 4; ++d) t.Rectangle(2 + d * 2, 1 + (d == 0 || d == 3 ? 2 : 0), 2, 5, Pal::Peau[2 + (d % 2)]);
            t.Trait(10, 7, 11.5, 4, 1.6, Pal::Peau[2]);
            break;
        case Insigne::Cor:
            t.Trait(1, 3, 8, 7, 2.4, Pal::Os[2]);
            t.Polygone({{7, 4}, {11.5, 2}, {11.5, 11}, {7, 9}}, Pal::Or[2]);
            t.Ligne(1, 3, 7, 6, Pal::Os[3]);
            break;
        case Insigne::Engrenage:
            for (int k = 0; k < 8; ++k) {
                const double a = k * 0.785;
                t.Trait(6, 6, 6 + std::cos(a) * 5.2, 6 + std::sin(a) * 5.2, 2.0, Pal::Metal[2]);
            }
            t.Ellipse(6, 6, 3.8, 3.8, Pal::Metal[2]);
            t.Ellipse(6, 6, 1.5, 1.5, Pal::Metal[0]);
            break;
        case Insigne::Etoile:
            t.Polygone({{6, 0.5}, {7.6, 4.3}, {11.5, 4.6}, {8.5, 7.2}, {9.5, 11.2}, {6, 9}, {2.5, 11.2}, {3.5, 7.2}, {0.5, 4.6}, {4.4, 4.3}}, Pal::Or[2]);
            t.Point(5, 4, Pal::Or[3]);
            break;
        case Insigne::Personne:
            t.Ellipse(6, 3, 2.6, 2.6, Pal::Peau[2]);
            t.Polygone({{2, 11.5}, {3, 6.5}, {9, 6.5}, {10, 11.5}}, Pal::DrapBleu[2]);
            t.Rectangle(3, 1, 6, 2, Pal::CheveuxBruns[2]);
            break;
        case Insigne::Sac:
            t.Ellipse(6, 7.5, 5, 4, Pal::DrapOcre[2]);
            t.Rectangle(4, 1, 4, 3, Pal::DrapOcre[1]);
            t.Ellipse(5, 6.5, 2.5, 2, Pal::DrapOcre[3]);
            break;
        case Insigne::Coffre:
            t.Rectangle(1, 4, 10, 7, Pal::Bois[2]);
            t.Ellipse(6, 4.5, 5, 2.5, Pal::Bois[3]);
            t.Ligne(1, 6, 10, 6, Pal::Metal[1]);
            t.Rectangle(5, 6, 2, 2, Pal::Or[3]);
            break;
        case Insigne::Patte:
            t.Ellipse(6, 8, 3.5, 3, Pal::Cuir[2]);
            for (int k = 0; k < 4; ++k) t.Ellipse(1.8 + k * 2.8, k == 0 || k == 3 ? 4.5 : 2.5, 1.3, 1.6, Pal::Cuir[2]);
            break;
        case Insigne::Pain: Pain(t); break;
        case Insigne::Cadenas:
            t.Anneau(6, 4.5, 3, 3.5, Pal::Metal[2]);
            t.Rectangle(2, 5, 8, 6, Pal::Or[2]);
            t.Rectangle(5, 7, 2, 2, Pal::Encre);
            break;
        case Insigne::Crane:
            t.Ellipse(6, 5, 4.5, 4.5, Pal::Os[3]);
            t.Rectangle(4, 8, 4, 3, Pal::Os[2]);
            t.Rectangle(3, 4, 2, 2, Pal::Encre);
            t.Rectangle(7, 4, 2, 2, Pal::Encre);
            break;
        case Insigne::Fleche:
            t.Polygone({{6, 0.5}, {11.5, 6}, {8, 6}, {8, 11.5}, {4, 11.5}, {4, 6}, {0.5, 6}}, Pal::Or[2]);
            t.Ligne(6, 1, 1, 6, Pal::Or[3]);
            break;
        case Insigne::Enclume:
            t.Polygone({{0.5, 3}, {11.5, 3}, {11.5, 5}, {8, 6}, {8, 8}, {10, 10}, {2, 10}, {4, 8}, {4, 6}, {0.5, 5}}, Pal::Metal[1]);
            t.Ligne(1, 3, 11, 3, Pal::Metal[3]);
            break;
        case Insigne::Casque:
            t.Ellipse(6, 6, 5, 5, Pal::Metal[2]);
            t.Rectangle(1, 6, 10, 5, Pal::Metal[2]);
            t.Rectangle(3, 7, 6, 1, Pal::Encre);
            t.Rectangle(5, 8, 2, 3, Pal::Encre);
            t.Point(4, 3, Pal::Metal[3]);
            break;
        case Insigne::Botte:
            t.Rectangle(3, 1, 5, 8, Pal::Cuir[2]);
            t.Polygone({{3, 8}, {8, 8}, {11.5, 10}, {11.5, 11.5}, {3, 11.5}}, Pal::Cuir[2]);
            t.Rectangle(3, 1, 5, 2, Pal::Cuir[1]);
            break;
        case Insigne::Anneau:
            t.Anneau(6, 7.5, 4, 3.5, Pal::Or[2]);
            t.Anneau(6, 7.5, 3, 2.5, Pal::Or[1]);
            t.Ellipse(6, 3, 2, 2, Pal::DrapRouge[2]);
            break;
        case Insigne::Collier:
            for (int k = 0; k <= 8; ++k) t.Point(static_cast<int>(6 + std::cos(3.1416 * k / 8) * 5), static_cast<int>(5 - std::sin(3.1416 * k / 8) * 4), Pal::Or[2]);
            t.Ellipse(6, 8, 2.5, 3, Pal::Or[2]);
            t.Ellipse(6, 8, 1.3, 1.6, Pal::Magie[2]);
            break;
        case Insigne::Cape:
            t.Polygone({{4, 1}, {8, 1}, {11.5, 11.5}, {0.5, 11.5}}, Pal::DrapRouge[2]);
            t.Ligne(5, 3, 3, 11, Pal::DrapRouge[1]);
            t.Rectangle(4, 1, 4, 1, Pal::Or[3]);
            break;
        case Insigne::Livre:
            t.Rectangle(1, 1, 10, 10, Pal::DrapRouge[2]);
            t.Rectangle(2, 9, 9, 2, Pal::Parchemin[3]);
            t.Rectangle(1, 1, 2, 10, Pal::DrapRouge[1]);
            t.Point(7, 5, Pal::Or[3]);
            break;
    }
}

}  // namespace

Toile Picto_Insigne(Insigne i) {
    Toile t(TailleDessin, TailleDessin);
    Dessiner_Insigne(t, i);
    return Entourer(t);
}

Toile Agrandir(const Toile& t, int k) {
    Toile g(t.Largeur() * k, t.Hauteur() * k);
    for (int y = 0; y < t.Hauteur(); ++y)
        for (int x = 0; x < t.Largeur(); ++x)
            if (t.Opaque(x, y)) g.Rectangle(x * k, y * k, k, k, t.Lire(x, y));
    return g;
}

// The pictures of the interface, all in parchment, wood and gold:
// - the seven button sheets of Boutons/ (cells of the family's size, a column per button and
//   a row per state),
// - Fenetres/Fenetres.bmp, the background of the info windows (frame 0 for every window,
//   frames 1 and 2 the inventory of a man and of a woman),
// - Fond<largeur>.bmp and Fenetres/Chargement<largeur>.bmp for each screen size,
// - Fenetres/Victoire-Defaite.bmp, 320 x 400, the victory above and the defeat below.
#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>
#include <string>

#include "Bruit.h"
#include "Forge.h"
#include "Humanoide.h"
#include "Pictos.h"
#include "Police.h"
#include "Mots.h"
#include "rules/ClsJeuParam.h"

namespace {

// ---------------------------------------------------------------- shared painting

Couleur Papier(int x, int y, uint32_t graine) {
    const double n = Bruit_Lisse(x, y, 16, 4096, graine) * 0.6 + Bruit(x, y, graine) * 0.4;
    return n < 0.3 ? Melanger(Pal::Parchemin[2], Pal::Parchemin[1], 0.35) : n < 0.75 ? Pal::Parchemin[2] : Melanger(Pal::Parchemin[2], Pal::Parchemin[3], 0.5);
}

Toile Retourner(const Toile& t) {
    Toile r(t.Largeur(), t.Hauteur());
    for (int y = 0; y < t.Hauteur(); ++y)
        for (int x = 0; x < t.Largeur(); ++x)
            if (t.Opaque(x, y)) r.Point(x, t.Hauteur() - 1 - y, t.Lire(x, y));
    return r;
}

void Centrer(Toile& t, const Toile& motif, int dx = 0, int dy = 0) {
    t.Coller(motif, (t.Largeur() - motif.Largeur()) / 2 + dx, (t.Hauteur() - motif.Hauteur()) / 2 + dy);
}

// A little number or letter in a corner of a button, light on a dark outline.
void Etiquette(Toile& t, const std::string& texte, const Rampe& teinte) {
    const int l = Largeur_Texte(texte);
    Toile lettres(l + 2, HauteurLigne + 2);
    Ecrire_Texte(lettres, 1, 1, texte, teinte[3]);
    lettres.Contourner(Pal::Encre, true);
    t.Coller(lettres, t.Largeur() - l - 3, t.Hauteur() - 2 - LigneDeBase - 2);
}

enum class Etat { Normal, Enfonce, Eteint, Verrouille };

// The face of a button: parchment in a dark frame, raised or pressed in.
Toile Face(int l, int h, Etat etat, uint32_t graine) {
    Toile t(l, h);
    const bool enfonce = etat == Etat::Enfonce;
    for (int y = 1; y < h - 1; ++y)
        for (int x = 1; x < l - 1; ++x) {
            Couleur c = Papier(x + l * 7, y, graine);
            if (enfonce) c = Melanger(c, Pal::Or[2], 0.25);
            const bool haut = y <= 2 || x <= 2, bas = y >= h - 3 || x >= l - 3;
            if (haut && !(bas && x > y)) c = enfonce ? Pal::Parchemin[0] : Pal::Parchemin[3];
            else if (bas) c = enfonce ? Pal::Parchemin[3] : Pal::Parchemin[0];
            t.Point(x, y, c);
        }
    for (int x = 1; x < l - 1; ++x) t.Point(x, 0, Pal::Encre), t.Point(x, h - 1, Pal::Encre);
    for (int y = 1; y < h - 1; ++y) t.Point(0, y, Pal::Encre), t.Point(l - 1, y, Pal::Encre);
    return t;
}

// A whole button: the face, the picture on it, and the look of its state.
Toile Bouton(int l, int h, Etat etat, const Toile& motif, const std::string& etiquette = "", const Rampe& teinte = Pal::Or) {
    const uint32_t graine = static_cast<uint32_t>(l * 31 + h);
    Toile t = Face(l, h, etat, graine);
    const int decale = etat == Etat::Enfonce ? 1 : 0;
    Centrer(t, motif, decale - (etiquette.empty() ? 0 : 2), decale - (etiquette.empty() ? 0 : 1));
    if (!etiquette.empty()) Etiquette(t, etiquette, teinte);
    if (etat == Etat::Eteint) t.Transformer([](int, int, Couleur c) { return Melanger(Desaturer(c, 0.8), Pal::Parchemin[1], 0.3); });
    if (etat == Etat::Verrouille) {
        t.Transformer([](int, int, Couleur c) { return Melanger(Desaturer(c, 0.85), Pal::Encre, 0.45); });
        t.Coller(Picto_Insigne(Insigne::Cadenas), l - TaillePicto, h - TaillePicto);
    }
    return t;
}

// A picture shrunk to fit a square, its proportions kept, and outlined again.
Toile Vignette(const Toile& image, int cote) {
    const double k = static_cast<double>(cote) / std::max(image.Largeur(), image.Hauteur());
    Toile petite = image.Reduire(std::max(1, static_cast<int>(image.Largeur() * k)), std::max(1, static_cast<int>(image.Hauteur() * k)));
    Toile t(petite.Largeur() + 2, petite.Hauteur() + 2);
    t.Coller(petite, 1, 1);
    t.Contourner(Pal::Encre);
    return t;
}

// Two signs together: the main one and a small one over its lower right corner.
Toile Compose(Insigne principal, Insigne badge) {
    Toile t(TaillePicto + 6, TaillePicto + 6);
    t.Coller(Picto_Insigne(principal), 0, 0);
    t.Coller(Picto_Insigne(badge).Reduire(10, 10), TaillePicto - 4, TaillePicto - 4);
    return t;
}

// ---------------------------------------------------------------- the button sheets

struct Planche {
    int l, h, colonnes, lignes;
    Toile toile;
    Planche(int l_, int h_, int c, int r) : l(l_), h(h_), colonnes(c), lignes(r), toile(l_ * c, h_ * r) {}
    void Poser(int colonne, int ligne, const Toile& cellule) { toile.Coller(cellule, colonne * l, ligne * h); }
};

void Boutons_Construire(Atelier& a) {
    constexpr int L = 28;
    Planche p(L, L, Param.NombreTypeBatiments + 1, 3);
    // Column 0 pulls down the own house; the others build a type. Rows: cannot now, can, later epoch.
    const Toile demolir = Compose(Insigne::Maison, Insigne::Croix);
    for (int col = 0; col < p.colonnes; ++col) {
        const Toile motif = col == 0 ? demolir : Vignette(Image_Batiment(col - 1), 21);
        p.Poser(col, 0, Bouton(L, L, Etat::Eteint, motif));
        p.Poser(col, 1, Bouton(L, L, Etat::Normal, motif));
        p.Poser(col, 2, Bouton(L, L, Etat::Verrouille, motif));
    }
    a.Ecrire("Boutons/Construire.bmp", p.toile);
}

void Boutons_Infos(Atelier& a) {
    // The six windows: building, resources, characteristics, skills, inventory, bestiary.
    const Insigne insignes[] = {Insigne::Maison, Insigne::Sac, Insigne::Personne, Insigne::Livre, Insigne::Coffre, Insigne::Patte};
    Planche p(28, 16, 6, 2);
    for (int col = 0; col < 6; ++col) {
        p.Poser(col, 0, Bouton(28, 16, Etat::Normal, Picto_Insigne(insignes[col])));
        p.Poser(col, 1, Bouton(28, 16, Etat::Enfonce, Picto_Insigne(insignes[col])));
    }
    a.Ecrire("Boutons/Infos.bmp", p.toile);
}

// A row of 24 x 24 buttons, living (row 0) and greyed (row 1).
void Boutons_Deux_Etats(Atelier& a, const std::string& nom, const std::vector<std::pair<Toile, std::string>>& motifs, const Rampe& teinte) {
    Planche p(24, 24, static_cast<int>(motifs.size()), 2);
    for (int col = 0; col < p.colonnes; ++col) {
        p.Poser(col, 0, Bouton(24, 24, Etat::Normal, motifs[col].first, motifs[col].second, teinte));
        p.Poser(col, 1, Bouton(24, 24, Etat::Eteint, motifs[col].first, motifs[col].second, teinte));
    }
    a.Ecrire("Boutons/" + nom + ".bmp", p.toile);
}

void Boutons_Action(Atelier& a) {
    const Toile chateau = Picto_Insigne(Insigne::Chateau);
    Boutons_Deux_Etats(a, "Action",
                       {{Picto_Insigne(Insigne::Pain), ""},
                        {Picto_Insigne(Insigne::Enclume), ""},
                        {chateau, "1"},
                        {chateau, "10"},
                        {chateau, "T"},
                        {Picto_Insigne(Insigne::Etoile), ""},
                        {Picto_Insigne(Insigne::Croix), ""}},
                       Pal::Poison);
}

void Boutons_Commerce(Atelier& a) {
    const Toile sac = Picto_Insigne(Insigne::Sac), piece = Picto_Insigne(Insigne::Piece), coffre = Picto_Insigne(Insigne::Coffre);
    Planche p(24, 24, 9, 2);
    const std::pair<Toile, std::string> motifs[] = {{sac, "1"}, {sac, "5"}, {sac, "T"}, {piece, "1"}, {piece, "5"}, {piece, "T"},
                                                    {coffre, "T"}, {sac, "T"}, {piece, "T"}};
    for (int col = 0; col < 9; ++col) {
        const Rampe& teinte = col < 3 ? Pal::Poison : Pal::Or;   // green to buy, gold to sell
        p.Poser(col, 0, Bouton(24, 24, Etat::Normal, motifs[col].first, motifs[col].second, teinte));
        p.Poser(col, 1, Bouton(24, 24, Etat::Eteint, motifs[col].first, motifs[col].second, teinte));
    }
    a.Ecrire("Boutons/Commerce.bmp", p.toile);
}

void Boutons_Transfert(Atelier& a) {
    // Taking from the house: an arrow out of it; putting in: an arrow into it.
    auto fleche = [](bool sortir) {
        Toile t(TaillePicto + 6, TaillePicto + 4);
        t.Coller(Picto_Insigne(Insigne::Maison), 0, 4);
        const Toile f = Picto_Insigne(Insigne::Fleche).Reduire(9, 9);
        t.Coller(sortir ? f : Retourner(f), TaillePicto - 4, 0);
        return t;
    };
    const Toile prendre = fleche(true), deposer = fleche(false);
    Boutons_Deux_Etats(a, "Transfert", {{prendre, "1"}, {prendre, "5"}, {prendre, "T"}, {deposer, "1"}, {deposer, "5"}, {deposer, "T"}}, Pal::Or);
}

void Boutons_Defilement(Atelier& a) {
    Planche p(64, 16, 2, 2);
    const Toile haut = Picto_Insigne(Insigne::Fleche), bas = Retourner(haut);
    p.Poser(0, 0, Bouton(64, 16, Etat::Normal, haut));
    p.Poser(1, 0, Bouton(64, 16, Etat::Normal, bas));
    p.Poser(0, 1, Bouton(64, 16, Etat::Enfonce, haut));
    p.Poser(1, 1, Bouton(64, 16, Etat::Enfonce, bas));
    a.Ecrire("Boutons/Defilement.bmp", p.toile);
}

// The five formations round the leader (the gold dot): a block, rows to the north, to the
// south, columns to the west, to the east.
Toile Formation(int f) {
    Toile t(16, 16);
    auto point = [&](int x, int y, bool chef) {
        t.Rectangle(x, y, 3, 3, chef ? Pal::Or[2] : Pal::DrapBleu[2]);
        t.Point(x, y, chef ? Pal::Or[3] : Pal::DrapBleu[3]);
    };
    const int c = 6;
    for (int i = -1; i <= 1; ++i)
        for (int j = 1; j <= 2; ++j) {
            switch (f) {
                case 0: point(c + i * 4, c + (j == 1 ? -4 : 4), false), point(c + i * 4, c, i != 0); break;
                case 1: point(c + i * 4, c - j * 4 + 1, false); break;
                case 2: point(c + i * 4, c + j * 4 - 1, false); break;
                case 3: point(c - j * 4 + 1, c + i * 4, false); break;
                default: point(c + j * 4 - 1, c + i * 4, false); break;
            }
        }
    point(c, c, true);
    t.Contourner(Pal::Encre);
    return t;
}

void Boutons_Deplacement(Atelier& a) {
    constexpr int L = 28, Lignes = 5;
    Planche p(L, L, 18, Lignes);
    auto ressource = [](int r) {
        return Picto_Ressource(r < Param.NombreRessources ? Plier(Param.Ressources_Nom(r)) : "");
    };
    for (int col = 0; col < 18; ++col) {
        Toile motif, autre;   // the picture of row 0, and of row 1 when the button has a second state
        bool deuxEtats = false;
        switch (col) {
            case 0: motif = Picto_Insigne(Insigne::Chateau), autre = Compose(Insigne::Chateau, Insigne::Crane), deuxEtats = true; break;
            case 1: motif = Picto_Insigne(Insigne::Maison); break;
            case 10: motif = Compose(Insigne::Personne, Insigne::Epee); break;
            case 11: motif = Compose(Insigne::Chateau, Insigne::Epee); break;
            case 12: motif = Picto_Insigne(Insigne::Engrenage), autre = motif, deuxEtats = true; break;
            case 13: motif = Picto_Insigne(Insigne::Cor); break;
            case 14: motif = Picto_Insigne(Insigne::Main); break;
            case 15: motif = Picto_Insigne(Insigne::Drapeau); break;
            case 16: motif = Picto_Insigne(Insigne::Epee), autre = Picto_Insigne(Insigne::Bouclier), deuxEtats = true; break;
            case 17: break;
            default: motif = ressource(col - 2); break;
        }
        for (int ligne = 0; ligne < Lignes; ++ligne) {
            if (col == 17) {
                p.Poser(col, ligne, Bouton(L, L, ligne == 0 ? Etat::Normal : Etat::Enfonce, Formation(ligne)));
                continue;
            }
            const bool second = deuxEtats && ligne == 1;
            p.Poser(col, ligne, Bouton(L, L, second ? Etat::Enfonce : Etat::Normal, second ? autre : motif));
        }
    }
    a.Ecrire("Boutons/Deplacement.bmp", p.toile);
}

// ---------------------------------------------------------------- the info windows

// The wood of a frame, its grain along the side it belongs to.
Couleur Bois_Du_Cadre(int x, int y, int bord, bool horizontal) {
    if (bord == 1) return Pal::Bois[3];
    if (bord == 4) return Pal::Bois[0];
    const double n = Bruit(horizontal ? x / 5 : y / 5, horizontal ? y : x, 0xB015);
    return n < 0.35 ? Pal::Bois[1] : n < 0.85 ? Pal::Bois[2] : Pal::Bois[3];
}

// A sheet of parchment in a frame of dark wood with gold corners; the corners of the frame
// are cut round.
void Parchemin(Toile& t, int x0, int y0, int l, int h, uint32_t graine) {
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < l; ++x) {
            const int bord = std::min({x, y, l - 1 - x, h - 1 - y});
            if ((x < 2 || x > l - 3) && (y < 2 || y > h - 3) && bord == 0) continue;
            Couleur c;
            if (bord <= 5) {   // the wooden frame
                const bool horizontal = std::min(y, h - 1 - y) < std::min(x, l - 1 - x);
                c = bord == 0 || bord == 5 ? Pal::Encre : Bois_Du_Cadre(x, y, bord, horizontal);
            } else {
                c = Papier(x, y, graine);
                // Browner toward the edges of the sheet.
                if (bord < 14) c = Melanger(c, Pal::Parchemin[1], (14 - bord) / 22.0);
            }
            t.Point(x0 + x, y0 + y, c);
        }
    for (const auto& coin : {std::pair<int, int>{0, 0}, {l - 10, 0}, {0, h - 10}, {l - 10, h - 10}}) {
        t.Rectangle(x0 + coin.first + 1, y0 + coin.second + 1, 8, 8, Pal::Or[1]);
        t.Rectangle(x0 + coin.first + 2, y0 + coin.second + 2, 6, 6, Pal::Or[2]);
        t.Rectangle(x0 + coin.first + 3, y0 + coin.second + 3, 2, 2, Pal::Or[3]);
    }
}

// A sunken square where an object sits.
void Case_Objet(Toile& t, int x, int y, std::optional<Insigne> fantome) {
    t.Rectangle(x - 1, y - 1, 34, 34, Pal::Parchemin[0]);
    t.Rectangle(x, y, 33, 33, Pal::Parchemin[3]);
    t.Rectangle(x, y, 32, 32, Melanger(Pal::Parchemin[1], Pal::Parchemin[2], 0.5));
    if (fantome) {
        Toile ombre = Agrandir(Picto_Insigne(*fantome), 2);
        ombre.Transformer([](int, int, Couleur c) { return Melanger(Desaturer(c, 1.0), Pal::Parchemin[1], 0.72); });
        t.Coller(ombre, x + 2, y + 2);
    }
}

// The inventory: a figure with the nine places of what it wears, and the bag below.
void Inventaire(Toile& t, int x0, bool feminin) {
    // The silhouette behind the places of the head, body and feet.
    Apparence a;
    a.cheveuxLongs = feminin;
    a.jupe = feminin;
    Toile silhouette = Agrandir(Dessiner_Humanoide(a, 2, 0), 5);
    silhouette.Transformer([](int, int, Couleur c) { return Melanger(Desaturer(c, 1.0), Pal::Parchemin[2], 0.78); });
    t.Coller(silhouette, x0 + 153 - silhouette.Largeur() / 2, 26);
    struct Place {
        int x, y;
        Insigne signe;
    };
    // The nine places: two hands, body, head, feet, neck, two rings, back.
    const Place places[] = {{38, 124, Insigne::Epee},    {238, 124, Insigne::Bouclier}, {137, 88, Insigne::Personne},
                            {137, 39, Insigne::Casque},  {137, 166, Insigne::Botte},    {187, 88, Insigne::Collier},
                            {38, 162, Insigne::Anneau},  {238, 162, Insigne::Anneau},   {88, 104, Insigne::Cape}};
    for (const Place& p : places) Case_Objet(t, x0 + p.x, p.y, p.signe);
    for (int i = 0; i < Param.PersosNombreObjetsInventaire; ++i) Case_Objet(t, x0 + (i % 8 + 1) * 32, 208 + (i / 8) * 32, std::nullopt);
}

void Fenetres(Atelier& a) {
    const int L = a.largeurFenetre, H = a.hauteurFenetre;
    Toile t(3 * L, H);
    for (int f = 0; f < 3; ++f) {
        Parchemin(t, f * L, 0, L, H, 0xFE0 + f);
        if (f == 0) {   // a band under the title
            for (int x = 24; x < L - 24; ++x) t.Point(f * L + x, 48, (x % 6) < 4 ? Pal::Parchemin[0] : Pal::Parchemin[1]);
        } else {
            Inventaire(t, f * L, f == 2);
        }
    }
    a.Ecrire("Fenetres/Fenetres.bmp", t);
}

// ---------------------------------------------------------------- whole screens

// A valley at dusk: the sky, far mountains, hills, a castle on a hill. Periodic noise is not
// needed here; the period is the width of the picture.
void Paysage(Toile& t, int W, int H) {
    const int horizon = H * 62 / 100;
    for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x) {
            const double v = static_cast<double>(y) / horizon;
            Couleur c = v < 0.5 ? Melanger(Couleur{44, 40, 86}, Couleur{128, 72, 96}, v * 2)
                                : Melanger(Couleur{128, 72, 96}, Couleur{236, 156, 86}, std::min(1.0, (v - 0.5) * 2));
            // Banded dithering between the shades of the sky.
            if (Seuil_Bayer(x, y) < 0.5 && (y % 8) < 2) c = Melanger(c, Pal::Blanc, 0.04);
            t.Point(x, y, c);
        }
    // The sun, low.
    t.Ellipse(W * 0.72, H * 0.30, H * 0.07, H * 0.07, Couleur{250, 214, 130});
    t.Ellipse(W * 0.72, H * 0.30, H * 0.05, H * 0.05, Couleur{255, 238, 180});
    struct Plan {
        double base, ampleur;
        int pas;
        Couleur c;
        uint32_t graine;
    };
    const Plan plans[] = {{0.50, 0.16, 64, {112, 70, 100}, 11}, {0.58, 0.12, 48, {86, 58, 84}, 12},
                          {0.70, 0.08, 96, {66, 86, 54}, 13},   {0.80, 0.06, 64, {52, 74, 44}, 14}};
    for (const Plan& p : plans) {
        for (int x = 0; x < W; ++x) {
            const double n = Bruit_Lisse(x, 0, p.pas, p.pas * 64, p.graine) * 0.75 + Bruit_Lisse(x, 7, p.pas / 4, p.pas * 64, p.graine) * 0.25;
            const int sommet = static_cast<int>(H * (p.base - p.ampleur * n));
            for (int y = std::max(0, sommet); y < H; ++y) t.Point(x, y, y == sommet ? Melanger(p.c, Pal::Blanc, 0.12) : p.c);
        }
    }
    // The castle on the nearest hill, in shadow against the sunset.
    const Couleur ombre{40, 34, 48};
    const int cx = W * 30 / 100, sol = static_cast<int>(H * 0.72);
    const int u = std::max(2, H / 120);
    t.Ellipse(cx, sol + 2 * u, 26 * u, 7 * u, plans[3].c);   // the knoll it stands on
    t.Rectangle(cx - 14 * u, sol - 10 * u, 28 * u, 10 * u, ombre);
    for (int k = -14; k < 14; k += 4) t.Rectangle(cx + k * u, sol - 12 * u, 2 * u, 2 * u, ombre);
    t.Rectangle(cx - 5 * u, sol - 24 * u, 10 * u, 14 * u, ombre);
    t.Polygone({{cx - 6.0 * u, sol - 24.0 * u}, {cx + 6.0 * u, sol - 24.0 * u}, {cx + 0.0, sol - 32.0 * u}}, ombre);
    for (int cote : {-1, 1}) {
        t.Rectangle(cx + cote * 15 * u - 3 * u, sol - 18 * u, 6 * u, 18 * u, ombre);
        t.Polygone({{cx + cote * 15.0 * u - 4 * u, sol - 18.0 * u}, {cx + cote * 15.0 * u + 4 * u, sol - 18.0 * u}, {cx + cote * 15.0 * u, sol - 25.0 * u}}, ombre);
    }
    for (int k = 0; k < 3; ++k) t.Rectangle(cx - 3 * u + k * 3 * u, sol - 20 * u, u, u + 1, Pal::Feu[3]);
    t.Ligne(cx, sol - 32 * u, cx, sol - 38 * u, ombre);
    t.Rectangle(cx + 1, sol - 38 * u, 4 * u, 2 * u, Pal::DrapRouge[2]);
}

void Chargement(Atelier& a, const Resolution& r) {
    const int W = r.largeur, H = r.hauteur;
    Toile t(W, H);
    Paysage(t, W, H);
    const int echelle = std::max(3, W / 90);
    Ecrire_Titre_Centre(t, W / 2, H / 10, "Korvalis", Pal::Or, echelle);
    // The gauge: the game draws its bar under the picture, through the transparent slot.
    const int x0 = W / 10, x1 = W - W / 10, y0 = H - 70, y1 = H - 46;
    t.Rectangle(x0 - 6, y0 - 6, x1 - x0 + 12, y1 - y0 + 12, Pal::Bois[1]);
    t.Cadre(x0 - 6, y0 - 6, x1 - x0 + 12, y1 - y0 + 12, Pal::Encre);
    t.Cadre(x0 - 5, y0 - 5, x1 - x0 + 10, y1 - y0 + 10, Pal::Bois[3]);
    t.Rectangle(x0 - 2, y0 - 2, x1 - x0 + 4, y1 - y0 + 4, Pal::Or[1]);
    t.Rectangle(x0 - 1, y0 - 1, x1 - x0 + 2, y1 - y0 + 2, Pal::Encre);
    for (int y = y0; y < y1; ++y)
        for (int x = x0; x < x1; ++x) t.Effacer(x, y);
    const int echelleTexte = std::max(2, W / 400);
    Ecrire_Titre_Centre(t, W / 2, y0 - 14 - HauteurLigne * echelleTexte, "Chargement\u2026", Pal::Parchemin, echelleTexte);
    a.Ecrire("Fenetres/Chargement" + std::to_string(W) + ".bmp", t);
}

void Fond(Atelier& a, const Resolution& r) {
    const int W = r.largeur, H = r.hauteur;
    Toile t(W, H);
    for (int y = 0; y < H; ++y)
        for (int x = 0; x < W; ++x) {
            // Dark leather, lighter at the centre.
            const double dx = (x - W / 2.0) / W, dy = (y - H / 2.0) / H;
            const double v = 1.0 - std::min(1.0, std::sqrt(dx * dx + dy * dy) * 1.6);
            const double n = Bruit(x, y, 0xF0D) * 0.08;
            t.Point(x, y, Melanger(Couleur{34, 22, 20}, Pal::Cuir[1], std::clamp(v * 0.8 + n, 0.0, 1.0)));
        }
    const int echelle = std::max(3, W / 110);
    Ecrire_Titre_Centre(t, W / 2, H / 2 - HauteurLigne * echelle / 2, "Korvalis", Pal::Or, echelle);
    a.Ecrire("Fond" + std::to_string(W) + ".bmp", t);
}

// ---------------------------------------------------------------- the end of a game

// A branch of laurel along a curve from the foot of the wreath up one side.
void Laurier(Toile& t, double cx, double cy, double r, bool gauche) {
    for (int i = 0; i < 9; ++i) {
        const double a = gauche ? 3.1416 * (0.6 + i * 0.07) : 3.1416 * (0.4 - i * 0.07);
        const double x = cx + std::cos(a) * r, y = cy + std::sin(a) * r * 0.8;
        t.Ellipse(x, y, 3.2, 1.8, Pal::Feuillage[2 + i % 2]);
        t.Point(static_cast<int>(x) - 1, static_cast<int>(y) - 1, Pal::Feuillage[3]);
    }
}

// A banner hung across the half: gold on blue for the victory, ash on dark red for the defeat.
void Banniere(Toile& t, int y0, const Rampe& drap, const Rampe& lettres, const std::string& mot, bool victoire) {
    const int L = 320, x0 = 20, x1 = L - 21, haut = y0 + 50, bas = y0 + 130;
    t.Polygone({{x0 + 0.0, haut + 0.0}, {x1 + 0.0, haut + 0.0}, {x1 + 0.0, bas + 0.0}, {L / 2.0 + 40, bas + 0.0}, {L / 2.0, bas + 16.0},
                {L / 2.0 - 40, bas + 0.0}, {x0 + 0.0, bas + 0.0}},
               drap[2]);
    t.Rectangle(x0, haut, x1 - x0 + 1, 4, drap[3]);
    t.Rectangle(x0, bas - 3, x1 - x0 + 1, 3, drap[1]);
    for (int x = x0 + 6; x < x1; x += 12) t.Point(x, haut + 8, drap[1]);
    // The pole it hangs from.
    t.Rectangle(x0 - 12, haut - 6, x1 - x0 + 25, 5, Pal::Bois[2]);
    t.Rectangle(x0 - 12, haut - 6, x1 - x0 + 25, 1, Pal::Bois[3]);
    t.Ellipse(x0 - 13, haut - 3.5, 4, 4, Pal::Or[2]);
    t.Ellipse(x1 + 13, haut - 3.5, 4, 4, Pal::Or[2]);
    Ecrire_Titre_Centre(t, L / 2, haut + 16, mot, lettres, 5);
    if (victoire) {
        Laurier(t, L / 2.0, bas + 28, 44, true);
        Laurier(t, L / 2.0, bas + 28, 44, false);
        for (int i = 0; i < 5; ++i) {
            const double x = 60 + i * 50, y = y0 + 24 + (i % 2) * 8;
            t.Polygone({{x, y - 5}, {x + 1.5, y - 1.5}, {x + 5, y}, {x + 1.5, y + 1.5}, {x, y + 5}, {x - 1.5, y + 1.5}, {x - 5, y}, {x - 1.5, y - 1.5}}, Pal::Or[3]);
        }
    } else {
        // A broken sword under the banner.
        t.Trait(L / 2.0 - 40, bas + 40, L / 2.0 - 6, bas + 30, 3, Pal::Metal[1]);
        t.Trait(L / 2.0 + 4, bas + 27, L / 2.0 + 34, bas + 18, 3, Pal::Metal[1]);
        t.Trait(L / 2.0 - 46, bas + 34, L / 2.0 - 38, bas + 48, 3, Pal::Bois[1]);
        t.Trait(L / 2.0 - 52, bas + 44, L / 2.0 - 44, bas + 42, 3, Pal::Cuir[1]);
    }
    t.Contourner(Pal::Encre);
}

void Victoire_Defaite(Atelier& a) {
    Toile t(320, 400);
    Banniere(t, 0, Pal::DrapBleu, Pal::Or, "Victoire", true);
    Banniere(t, 200, Pal::DrapBordeaux, Pal::DrapGris, "D\u00e9faite", false);
    a.Ecrire("Fenetres/Victoire-Defaite.bmp", t);
}

}  // namespace

void Forger_Interface(Atelier& a) {
    Boutons_Construire(a);
    Boutons_Infos(a);
    Boutons_Action(a);
    Boutons_Deplacement(a);
    Boutons_Commerce(a);
    Boutons_Transfert(a);
    Boutons_Defilement(a);
    Fenetres(a);
    Victoire_Defaite(a);
    for (const Resolution& r : a.resolutions) {
        Fond(a, r);
        Chargement(a, r);
    }
}

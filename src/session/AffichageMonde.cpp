// The drawing of the world, one pass per kind of thing, in the order of a render. A world
// position (x, y) shows on the screen at (x - CameraX, y - CameraY).
//
// Each pass has two halves. What drawing moves on (effects' steps, houses catching fire,
// the houses' idle animation, comments expiring, the pointer's mode) runs at every render
// over every object, with or without a screen, so that a headless game is the same game.
// The pictures are put only on a screen, and only those that show on it.
#include <cmath>
#include <string>

#include "ai/TestPoint.h"
#include "platform/ClsPerEcran.h"
#include "presentation/Affichages.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "session/FrmMoteur2D.h"
#include "world/Globales.h"

namespace {

constexpr int32_t Blanc = 0xFFFFFF, Rouge = 255, Bleu = 0xFF0000, BleuFonce = 0xC00000, Vert = 49152;
constexpr int32_t EpaisseurBarre = 5;
constexpr int32_t TailleCurseur = 32;

const ClsJeuPerso& Heros() { return Persos[static_cast<std::size_t>(PersoActif)]; }

}  // namespace

bool FrmMoteur2D::Montrer(int32_t x, int32_t y, int32_t largeur, int32_t hauteur) {
    if (!Tampon || x >= EcranLargeur || y >= EcranHauteur || x + largeur <= 0 || y + hauteur <= 0) return false;
    ++SpritesDessines;
    return true;
}

// The whole ground in one call: it covers every pixel, so nothing else clears the buffer.
void FrmMoteur2D::Afficher_Terrain() {
    if (Tampon) AffTerrain.AfficheFast(CameraX, CameraY, EcranLargeur, EcranHauteur, *Tampon);
}

void FrmMoteur2D::Afficher_Ressources() {
    for (const ClsJeuRessources& g : Ressources) {
        const int32_t x = g.PositionX - CameraX, y = g.PositionY - CameraY;
        if (Montrer(x, y, LargeurGisement, HauteurGisement)) AffRessources.Afficher(x, y, g.TypeTerrain, *Tampon);
    }
}

void FrmMoteur2D::Afficher_Batiments() {
    for (std::size_t f = 0; f < Chateaux.size(); ++f) Afficher_Chateau(f);
    for (std::size_t i = 0; i < Maisons.size(); ++i) Afficher_Maison(i);
}

// Only people 0 has a castle by epoch: one row of its sheet per epoch. The health bar lies
// just below, while the castle is hurt.
void FrmMoteur2D::Afficher_Chateau(std::size_t f) {
    const ClsJeuBatiment& c = Chateaux[f];
    if (!c.Visible()) return;
    const int32_t x = c.PositionX - CameraX, y = c.PositionY - CameraY;
    const int32_t largeur = Param.ChateauxLargeur, hauteur = Param.ChateauxHauteur;
    if (!Montrer(x - 1, y, largeur + 2, hauteur + EpaisseurBarre + 1)) return;
    const ClsJeuFief& fief = Fiefs[f];
    AffChateaux.Afficher(x, y, fief.Peuple, fief.Peuple == 0 ? fief.Epoque : 0, *Tampon, largeur, hauteur, 0);
    if (c.Vie < c.MaxVie)
        Interface.Afficher_Barre_Statut(c.Vie, c.Definir_Vie(), static_cast<double>(c.MaxVie), x, y + hauteur, *Tampon,
                                        largeur, EpaisseurBarre, 0, false);
}

// The row of the sheet is how far the house has got, the column its idle animation, which
// steps at every render whether the house shows or not.
void FrmMoteur2D::Afficher_Maison(std::size_t i) {
    ClsJeuBatiment& m = Maisons[i];
    if (!m.Visible()) return;
    const int16_t colonne = m.Definir_NumeroAnimation(Param);
    const int32_t x = m.PositionX - CameraX, y = m.PositionY - CameraY;
    if (!Montrer(x - 1, y, m.Largeur + 2, m.Hauteur + EpaisseurBarre + 1)) return;
    AffMaisons.Afficher(x, y, m.Type, m.Etat(Param), *Tampon, m.Largeur, m.Hauteur, colonne);
    if (m.Definir_Vie() < m.MaxVie)
        Interface.Afficher_Barre_Statut(m.Vie, m.Definir_Vie(), static_cast<double>(m.MaxVie), x, y + m.Hauteur, *Tampon,
                                        m.Largeur, EpaisseurBarre, 0, false);
}

// A rounded frame around what holds the active hero: red in a fight, white when idle,
// dark blue otherwise.
void FrmMoteur2D::Afficher_Cadre_Actif() {
    if (!Tampon) return;
    const ClsJeuPerso& h = Heros();
    int32_t x = h.PositionX, y = h.PositionY, largeur = LargeurPerso, hauteur = HauteurPerso;
    auto autour = [&](const ClsJeuBatiment& b, int32_t l, int32_t ht) {
        x = b.PositionX;
        y = b.PositionY;
        largeur = l;
        hauteur = ht;
    };
    const ClsJeuBatiment& propre = Maisons[static_cast<std::size_t>(PersoActif)];
    if (h.DansSaMaison) autour(propre, propre.Largeur, propre.Hauteur);
    else if (h.DansMaison) {
        const ClsJeuBatiment& m = Maisons[static_cast<std::size_t>(h.MaisonCible)];
        autour(m, m.Largeur, m.Hauteur);
    } else if (h.DansSonChateau) autour(Chateaux[static_cast<std::size_t>(h.Fief)], Param.ChateauxLargeur, Param.ChateauxHauteur);
    else if (h.DansChateau)
        autour(Chateaux[static_cast<std::size_t>(h.ChateauCible)], Param.ChateauxLargeur, Param.ChateauxHauteur);
    Surface& s = *Tampon;
    s.Definir_Couleur_Trait(h.EnCombat() ? Rouge : h.Inactif() ? Blanc : BleuFonce);
    const int16_t remplissage = s.Remplissage;
    s.Definir_Style_Remplissage(RemplissageTransparent);
    s.Dessiner_Boite_Arrondie(x - CameraX, y - CameraY, x + largeur - CameraX, y + hauteur - CameraY, 10, 10);
    s.Definir_Style_Remplissage(remplissage);
    s.Definir_Couleur_Trait(0);
}

// The active hero's work, in white gauges: the raising of the dead above its castle, or what
// it harvests, makes or keeps.
void FrmMoteur2D::Afficher_Progression() {
    if (!Tampon) return;
    const ClsJeuPerso& h = Heros();
    if (!h.Vivant() && h.DansSonChateau) {
        const ClsJeuBatiment& c = Chateaux[static_cast<std::size_t>(h.Fief)];
        Interface.Afficher_Barre_Statut(100 - h.CompteResurrection, 0, 100, c.PositionX - CameraX,
                                        c.PositionY - CameraY - EpaisseurBarre, *Tampon, Param.ChateauxLargeur,
                                        EpaisseurBarre, Blanc, false);
        return;
    }
    const int32_t r = h.RessourceRecoltee;
    if (r >= 0 && h.Definir_Action() == 2)
        Interface.Afficher_Barre_Statut(h.Definir_Ressources(r), 0, h.Definir_MaxRessources(r), h.PositionX - CameraX,
                                        h.PositionY - CameraY - EpaisseurBarre, *Tampon, LargeurPerso, EpaisseurBarre,
                                        Blanc, false);
    Afficher_Progression_Maison();
}

// Gauges around the hero's own house: the object being made or the resource being worked
// above it, the raw material on its left, the house's stock on its right.
void FrmMoteur2D::Afficher_Progression_Maison() {
    const ClsJeuPerso& h = Heros();
    const ClsJeuBatiment& m = Maisons[static_cast<std::size_t>(PersoActif)];
    const int32_t x = m.PositionX - CameraX, y = m.PositionY - CameraY;
    const int32_t r = h.RessourceRecoltee;
    auto dessus = [&](double valeur, double maximum) {
        Interface.Afficher_Barre_Statut(valeur, 0, maximum, x, y - EpaisseurBarre, *Tampon, m.Largeur, EpaisseurBarre,
                                        Blanc, false);
    };
    if (r < 0 && h.Definir_Action() == 500) {
        const int16_t objet = m.Objet_De_Ligne(h.ObjetFabrique, Param);
        if (objet >= 0) dessus(h.ProgressionFabrication, Param.Objet_DureeFabrication(objet));
    }
    if (r >= 0 && h.Definir_Action() == 100) {
        dessus(h.Definir_Ressources(r), h.Definir_MaxRessources(r));
        const int32_t matiere = Param.Ressources_TypeMatierePremiere(r);
        if (matiere >= 0)
            Interface.Afficher_Barre_Statut(h.Definir_Ressources(matiere), 0, h.Definir_MaxRessources(matiere),
                                            x - EpaisseurBarre, y, *Tampon, EpaisseurBarre, m.Hauteur, Blanc, true);
    }
    if (h.DansSaMaison && m.MaxStock > 0)
        Interface.Afficher_Barre_Statut(m.Definir_Stock(), 0, m.MaxStock, x + m.Largeur, y, *Tampon, EpaisseurBarre,
                                        m.Hauteur, Blanc, true);
}

bool Perso_Affiche(std::size_t i) {
    const ClsJeuPerso& p = Persos[i];
    if (!p.Visible()) return false;
    if (p.Vivant()) return true;
    if (p.Invocation()) return false;
    return static_cast<int32_t>(i) == PersoActif || p.Fief == Heros().Fief;
}

// From the last to the first, so that the low indexes, the heroes among them, end on top.
// The dead are mixed half and half with what lies under them.
void FrmMoteur2D::Afficher_Persos() {
    if (!Tampon) return;
    for (std::size_t i = Persos.size(); i-- > 0;) {
        if (!Perso_Affiche(i)) continue;
        const ClsJeuPerso& p = Persos[i];
        const int32_t x = p.PositionX - CameraX, y = p.PositionY - CameraY;
        if (!Montrer(x - 1, y, LargeurPerso + 2, HauteurPerso + 3 * EpaisseurBarre + 1)) continue;
        if (p.Vivant()) Afficher_Barres_Perso(p, x, y + HauteurPerso);
        AffPerso.Afficher(x, y, p.EtapeAnimation, p.Direction, p.Apparence, p.Monstre, p.Feminin, *Tampon,
                          p.ApparenceFichier, !p.Vivant());
    }
}

// Under the feet, while something is short of its maximum: health, then attack in red and
// defence in blue.
void FrmMoteur2D::Afficher_Barres_Perso(const ClsJeuPerso& p, int32_t x, int32_t y) {
    const bool armes = p.Attaque.Valeur < p.Definir_MaxAttaque() || p.Defense.Valeur < p.Definir_MaxDefense();
    if (p.Vie.Valeur < p.Definir_MaxVie() || armes)
        Interface.Afficher_Barre_Statut(p.Vie.Valeur, p.Definir_Vie(), p.Definir_MaxVie(), x, y, *Tampon, LargeurPerso,
                                        EpaisseurBarre, 0, false);
    if (!armes) return;
    Interface.Afficher_Barre_Statut(p.Attaque.Valeur, 0, p.Definir_MaxAttaque(), x, y + EpaisseurBarre, *Tampon,
                                    LargeurPerso, EpaisseurBarre, Rouge, false);
    Interface.Afficher_Barre_Statut(p.Defense.Valeur, 0, p.Definir_MaxDefense(), x, y + 2 * EpaisseurBarre, *Tampon,
                                    LargeurPerso, EpaisseurBarre, Bleu, false);
}

// A finished house below half its health catches fire. Every playing effect moves on by one
// step per render, shown or not.
void FrmMoteur2D::Afficher_Effets() {
    for (std::size_t i = 0; i < Maisons.size(); ++i) {
        const ClsJeuBatiment& m = Maisons[i];
        if (m.Termine && m.Definir_Vie() < 0.5 * m.MaxVie)
            EffetsMaisons[i].Activer_Effet(Param.EffetMaisonEnFeu, m.PositionX, m.PositionY, m.Largeur, m.Hauteur, Param,
                                           false);
        Jouer_Effet(EffetsMaisons[i]);
    }
    for (ClsJeuEffet& e : EffetsPersos) Jouer_Effet(e);
}

void FrmMoteur2D::Jouer_Effet(ClsJeuEffet& e) {
    if (!e.Actif) return;
    const int16_t type = e.Type, etape = e.Etape_Effet();
    const int32_t x = e.PositionX - CameraX, y = e.PositionY - CameraY;
    if (Montrer(x, y, Param.Effet_Largeur(type), Param.Effet_Hauteur(type))) AffEffet.Afficher(type, etape, x, y, *Tampon);
}

// What the living say, beside them; then every comment that has stayed its time goes, the
// dead's too.
void FrmMoteur2D::Afficher_Commentaires() {
    if (Tampon && Commentaires.Definir_Afficher()) {
        Tampon->Definir_Couleur_Trait(Commentaires.Couleur);
        for (const ClsJeuPerso& p : Persos) {
            if (p.Commentaire.empty() || !p.Vivant()) continue;
            const int32_t x = p.PositionX - CameraX + Commentaires.DecalageX;
            const int32_t y = p.PositionY - CameraY + Commentaires.DecalageY;
            if (x < EcranLargeur && y < EcranHauteur && y + 16 > 0 && x + Largeur_Texte(p.Commentaire) > 0)
                Tampon->Dessiner_Texte(x, y, p.Commentaire);
        }
        Tampon->Definir_Couleur_Trait(0);
    }
    Expirer_Commentaires(TempsCourant);
}

// The pointer shows what a click would do: the mode of what lies under it, which the next
// click acts on. The interface's buttons and frame, which would show the plain arrow, come
// with the interface; until then the whole screen is world.
void FrmMoteur2D::Afficher_Souris() {
    const ClsJeuPerso& h = Heros();
    int32_t curseur = 0;
    if (h.Vivant()) {
        if ((AffSouris.Mode == 2 || AffSouris.Mode == 3) && CodeBouton > 0 && CodeBouton < 100)
            curseur = Curseur_Batiment();
        else
            curseur = Tester_Point(PersoActif, CameraX + SourisX, CameraY + SourisY, 0, 0, true);
    } else {
        // The dead can only go home to a temple, to their castle, or to a friendly temple.
        const int32_t m = Tester_Point(PersoActif, CameraX + SourisX, CameraY + SourisY, 0, 0, true);
        if (m == PointMaisonAReparer || m == PointMaisonEntiere)
            curseur = Maisons[static_cast<std::size_t>(h.Numero)].Service == 1 ? 5 : 0;
        else if (m == PointChateauPropre) curseur = 6;
        else if (m == PointMaisonAmieService1) curseur = 7;
    }
    AffSouris.Mode = ClsAffSouris::Mode_Affiche(curseur);
    if (Tampon) AffSouris.Afficher(SourisX, SourisY, curseur, *Tampon);
}

// A building in hand: its footprint in green where it can stand, in red where it cannot.
// A hero who can no longer pay for it drops it.
int32_t FrmMoteur2D::Curseur_Batiment() {
    const int16_t t = static_cast<int16_t>(CodeBouton - 1);
    if (!Heros().PeutConstruire_Maison(t, Param)) return 0;
    const int32_t w = Param.Batiment_Largeur(t), h = Param.Batiment_Hauteur(t);
    const double x0 = SourisX - w / 2.0 + TailleCurseur / 2 + CameraX;
    const double y0 = SourisY - h / 2.0 + TailleCurseur / 2 + CameraY;
    const bool mauvais =
        Tester_Point(PersoActif, Arrondir_En<int32_t>(x0), Arrondir_En<int32_t>(y0), w, h, false) != 0 || x0 < 0 ||
        y0 < 0 || w - TailleCurseur + CameraX + SourisX > Monde.Largeur * TailleCase ||
        h - TailleCurseur + CameraY + SourisY > Monde.Hauteur * TailleCase;
    if (Tampon) Afficher_Emprise_Batiment(SourisX, SourisY, t, !mauvais);
    return mauvais ? 3 : 2;
}

void FrmMoteur2D::Afficher_Emprise_Batiment(int32_t x, int32_t y, int16_t type, bool bon) {
    const double w = Param.Batiment_Largeur(type), h = Param.Batiment_Hauteur(type);
    const int32_t couleur = bon ? Vert : Rouge;
    Surface& s = *Tampon;
    s.Definir_Couleur_Remplissage(couleur);
    s.Definir_Couleur_Trait(couleur);
    s.Definir_Style_Remplissage(HachuresMontantes);
    s.Dessiner_Boite_Arrondie(Arrondir_En<int32_t>(x - w / 2 + 16), Arrondir_En<int32_t>(y - h / 2 + 16),
                              Arrondir_En<int32_t>(x + w / 2 + 16), Arrondir_En<int32_t>(y + h / 2 + 16), 10, 10);
    s.Definir_Style_Remplissage(RemplissageTransparent);
    s.Definir_Couleur_Trait(0);
}

// The bubble of the thing under the pointer: a deposit with what the hero carries of it,
// a house by its name, a character to attack by its name.
void FrmMoteur2D::Afficher_Info_Terrain(int32_t x, int32_t y) {
    if (!Tampon || !Interface.Definir_AfficherInfoBulleTerrain()) return;
    const ClsJeuPerso& h = Heros();
    const auto c = static_cast<std::size_t>(CibleSousPoint);
    std::string& texte = TexteBulle;
    switch (AffSouris.Mode) {
    case PointGisement: {
        const int32_t r = Ressources[c].TypeRessource;
        texte.assign(Param.Ressources_Nom(r)).append(" : ").append(Texte_Nombre(Int(h.Definir_Ressources(r))));
        texte.append(" / ").append(std::to_string(h.Definir_MaxRessources(r)));
        break;
    }
    case PointMaisonAReparer:
    case PointMaisonEntiere: texte.assign(Param.Batiment_Nom(Maisons[static_cast<std::size_t>(PersoActif)].Type)).append(" "); break;
    case PointMaisonAmieCommerce: texte.assign(Param.Batiment_Nom(Maisons[c].Type)).append(" "); break;
    case PointEnnemi: texte.assign(Persos[c].Nom.empty() ? std::string_view("Humain") : Persos[c].Nom).append(" "); break;
    default: return;
    }
    Interface.Afficher_Info_Bulles_Terrain(x, y, texte, *Tampon);
}

// The end picture, centred, once the game is won or lost.
void FrmMoteur2D::Afficher_Fin() {
    if (!Tampon || !(Victoire || Defaite)) return;
    ImageFin.Afficher(Arrondir_En<int32_t>((EcranLargeur - 320) / 2.0), Arrondir_En<int32_t>((EcranHauteur - 200) / 2.0),
                      *Tampon, true, false);
}

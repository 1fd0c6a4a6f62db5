// A leader's orders to its followers: charge, stop, take formation. They set actions,
// targets and offsets and say so; nobody moves before its own next step.
#include <cmath>

#include "characters/ModDialogue.h"
#include "characters/Paroles.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"
#include "world/Globales.h"

namespace {

ClsJeuPerso& Perso(int32_t i) { return Persos[static_cast<std::size_t>(i)]; }
int32_t Nombre() { return static_cast<int32_t>(Persos.size()); }

bool Suit(const ClsJeuPerso& f, int32_t chef) { return f.Chef == chef && f.Vivant(); }

// The kind and target of a charge given without one: what the leader itself attacks.
void Cible_Du_Chef(const ClsJeuPerso& l, int16_t& genre, int32_t& cible) {
    switch (l.Definir_Action()) {
    case 300:
        genre = 0;
        if (cible == -1) cible = l.PersoCible;
        break;
    case 301: genre = 1, cible = l.MaisonCible; break;
    case 302: genre = 2, cible = l.ChateauCible; break;
    default: break;
    }
}

// The nearest of those who fight the leader or attack its house; the first on equal
// distances, each distance rounded as it is kept.
int32_t Agresseur_Du_Chef(int32_t chef) {
    const ClsJeuPerso& l = Perso(chef);
    double meilleure = Monde.Longueur_Diagonale();
    int32_t agresseur = -1;
    for (int32_t q = 0; q < Nombre(); ++q) {
        const ClsJeuPerso& p = Perso(q);
        const bool contre = (p.Definir_Action() == 300 && p.PersoCible == chef) ||
                            (p.Definir_Action() == 301 && p.MaisonCible == chef);
        if (!contre) continue;
        const double d = std::hypot(static_cast<double>(p.PositionX - l.PositionX),
                                    static_cast<double>(p.PositionY - l.PositionY));
        if (d < meilleure) {
            meilleure = Arrondir(d);
            agresseur = q;
        }
    }
    return agresseur;
}

void Obeir(ClsJeuPerso& f, const ClsJeuPerso& l, int16_t genre, int32_t cible, int32_t agresseur) {
    switch (genre) {
    case 0: f.Attaquer_Perso(cible); break;
    case 1: f.Attaquer_Maison(cible); break;
    case 2: f.Attaquer_Chateau(cible); break;
    default:
        if (agresseur >= 0)
            f.Attaquer_Perso(agresseur);
        else
            f.Aller_A(l.DestinationX + f.DecalageChefX, l.DestinationY + f.DecalageChefY);
        break;
    }
}

int32_t Compte_Charge(int16_t genre, int32_t nombre, bool agresseur, bool enMouvement) {
    if (nombre < 1) return 32;
    switch (genre) {
    case 0: return nombre == 1 ? 25 : 26;
    case 1: return nombre == 1 ? 27 : 28;
    case 2: return nombre == 1 ? 29 : 30;
    default: return agresseur ? 24 : (enMouvement ? 23 : 22);
    }
}

int32_t Voulus(bool ctrl, bool shift) {
    if (shift) return ctrl ? 10 : 5;
    return ctrl ? 1 : Nombre();
}

}  // namespace

void Ordonner_Charge(int32_t chef, int16_t genre, int32_t cible, bool ctrl, bool shift, bool /*alt*/) {
    if (genre == -1) Cible_Du_Chef(Perso(chef), genre, cible);
    const int32_t voulus = Voulus(ctrl, shift);
    const int32_t agresseur = Agresseur_Du_Chef(chef);
    if (genre == -1 && agresseur < 0) Placer_Formation(chef, false, false);
    int32_t obeissants = 0;
    for (int32_t k = 0; k < Nombre() && obeissants < voulus; ++k) {
        ClsJeuPerso& f = Perso(k);
        if (!Suit(f, chef) || f.EnCombat()) continue;
        Obeir(f, Perso(chef), genre, cible, agresseur);
        if (Rnd() < 0.1) Dire(f, 31);
        ++obeissants;
    }
    ClsJeuPerso& l = Perso(chef);
    Dire_Aussitot(l, Compte_Charge(genre, obeissants, agresseur >= 0, l.EnMouvement));
}

void Ordonner_Arret(int32_t chef) {
    bool arretes = false;
    for (ClsJeuPerso& f : Persos) {
        if (!Suit(f, chef)) continue;
        f.Arreter();
        arretes = true;
    }
    if (arretes) Dire_Aussitot(Perso(chef), 21);
}

void Placer_Formation(int32_t chef, bool changer, bool silencieux) {
    ClsJeuPerso& l = Perso(chef);
    if (changer) l.Changer_Formation();
    // One place is a character's width on both axes: the grid is square.
    constexpr int32_t L = LargeurPerso;
    const auto k = Arrondir_En<int32_t>(Int(std::sqrt(static_cast<double>(l.NombreInvocations))) * 1.5);
    const int32_t m = l.Formation == 0 ? Arrondir_En<int32_t>(k / 1.5) : k;
    double x = l.Formation <= 2 ? m * L / 2.0 - L / 2.0 : 0;
    int32_t y = l.Formation == 0 ? Arrondir_En<int32_t>(m * L / 2.0 + L / 2.0)
                                 : (l.Formation >= 3 ? Arrondir_En<int32_t>(k * L / 2.0 - L / 2.0) : 0);
    int32_t t = 0;
    for (ClsJeuPerso& f : Persos) {
        if (!Suit(f, chef)) continue;
        const bool nouvelle = m == 0 || t % m == 0;
        if (l.Formation <= 2) {
            if (nouvelle) {
                y += l.Formation == 2 ? L : -L;
                x -= (m - 1) * L;
            } else {
                x += L;
            }
        } else if (nouvelle) {
            x += l.Formation == 4 ? L : -L;
            y -= (m - 1) * L;
        } else {
            y += L;
        }
        f.DecalageChefX = Arrondir_En<int32_t>(x);
        f.DecalageChefY = y;
        ++t;
    }
    if (!silencieux) Dire_Aussitot(l, l.EnMouvement ? 23 : 22);
}

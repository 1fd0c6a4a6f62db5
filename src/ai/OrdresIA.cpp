#include "ai/OrdresIA.h"

#include <algorithm>

#include "ai/Recherches.h"
#include "ai/TablesIA.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"
#include "world/Globales.h"

namespace {

ClsJeuPerso& Perso(int32_t i) { return Persos[static_cast<std::size_t>(i)]; }

void Action_A_Faire(int32_t i) { ActionFaite[static_cast<std::size_t>(i)] = 0; }

double Seuil_Argent(int32_t i, double parEpoque) {
    const ClsJeuFief& fief = Fiefs[static_cast<std::size_t>(Perso(i).Fief)];
    return (fief.Epoque + 1) * parEpoque;
}

// Within [0, limite], limite being the world's size less the sprite's.
int32_t Borner(double v, int32_t limite) {
    const auto x = Arrondir_En<int32_t>(v);
    return std::clamp(x, 0, std::max(limite, 0));
}

// A summoned creature goes back to its place around where its chief is heading; any other
// character to its castle.
void Revenir(int32_t i) {
    ClsJeuPerso& p = Perso(i);
    if (p.Invocation()) {
        const ClsJeuPerso& chef = Perso(p.Chef);
        p.Aller_A(chef.DestinationX + p.DecalageChefX, chef.DestinationY + p.DecalageChefY);
    } else {
        Aller_Au_Chateau(i);
    }
}

// The search runs first and the order follows at what it found: the target must not be read
// before the search has written it.
void Attaquer_Si(int32_t i, bool (*chercher)(int32_t, int32_t&), void (ClsJeuPerso::*ordre)(int32_t)) {
    int32_t cible = -1;
    if (chercher(i, cible)) (Perso(i).*ordre)(cible);
}

}  // namespace

void Rentrer_Chez_Soi(int32_t i) {
    Perso(i).Rentrer_Maison(Maisons[static_cast<std::size_t>(i)]);
    Action_A_Faire(i);
}

void Aller_Chez(int32_t i, int32_t maison) {
    if (maison == i) {
        Rentrer_Chez_Soi(i);
        return;
    }
    Perso(i).Aller_Maison(Maisons[static_cast<std::size_t>(maison)]);
    Action_A_Faire(i);
}

void Aller_Au_Chateau(int32_t i) {
    ClsJeuPerso& p = Perso(i);
    p.Rentrer_Chateau(Chateaux[static_cast<std::size_t>(p.Fief)], Param.ChateauxLargeur, Param.ChateauxHauteur);
    Action_A_Faire(i);
}

void Marquer_Action_Faite(int32_t i) { ActionFaite[static_cast<std::size_t>(i)] = 1; }

bool Perso_Pauvre(int32_t i) { return Seuil_Argent(i, 300) > Perso(i).Argent; }
bool Perso_Riche(int32_t i) { return Seuil_Argent(i, 500) < Perso(i).Argent; }

void Errer(int32_t i) {
    ClsJeuPerso& p = Perso(i);
    const double x = (static_cast<double>(Rnd()) * 128 - 64) * TailleCase + p.PositionX;
    const double y = (static_cast<double>(Rnd()) * 96 - 48) * TailleCase + p.PositionY;
    p.Aller_A(Borner(x, Monde.Largeur * TailleCase - LargeurPerso), Borner(y, Monde.Hauteur * TailleCase - HauteurPerso));
}

void Occuper_Inactif(int32_t i) {
    const float x = Rnd();
    if (Perso(i).IA_Pacifique) {
        if (x < 0.1)
            Revenir(i);
        else if (x < 0.2)
            Errer(i);
        return;
    }
    if (x < 0.05)
        Attaquer_Si(i, &Chercher_Chateau_Ennemi, &ClsJeuPerso::Attaquer_Chateau);
    else if (x < 0.1)
        Revenir(i);
    else if (x < 0.2)
        Errer(i);
    else if (x < 0.4)
        Attaquer_Si(i, &Chercher_Maison_Ennemie, &ClsJeuPerso::Attaquer_Maison);
    else
        Attaquer_Si(i, &Chercher_Ennemi, &ClsJeuPerso::Attaquer_Perso);
}

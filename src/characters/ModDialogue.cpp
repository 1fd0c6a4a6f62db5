#include "characters/ModDialogue.h"

#include "characters/Paroles.h"
#include "rules/Hasard.h"
#include "world/Globales.h"

namespace {

ClsJeuPerso& Perso(int32_t i) { return Persos[static_cast<std::size_t>(i)]; }

// Free to answer: a character at rest, walking, harvesting or building leaves it; one at
// work, inside a house or a castle, fighting or dead does not.
bool Disponible(const ClsJeuPerso& p, int32_t equipe) {
    return p.ModeAuto && !p.Invocation() && p.Equipe == equipe && p.CoefForme == 1 &&
           p.Vie.Valeur > 0.5 * p.Definir_MaxVie() && p.Definir_Action() < 102;
}

// The first character that fights n, or that attacks n's house and counts on a draw (a house
// under attack counts half of the time); -1 for none.
int32_t Chercher_Agresseur(int32_t n) {
    for (int32_t q = 0; q < static_cast<int32_t>(Persos.size()); ++q) {
        const ClsJeuPerso& p = Perso(q);
        if (p.Definir_Action() == 300 && p.PersoCible == n) return q;
        if (p.Definir_Action() == 301 && p.MaisonCible == n && Rnd() < 0.5) return q;
    }
    return -1;
}

// The helper goes for what the caller attacks, or, when the caller attacks nothing, for its
// attacker; with no attacker found it stays where it is, silent.
void Secourir(int32_t n, ClsJeuPerso& aide) {
    ClsJeuPerso& appelant = Perso(n);
    switch (appelant.Definir_Action()) {
    case 300:
        Dire_Aussitot(appelant, 6);
        aide.Attaquer_Perso(appelant.PersoCible);
        break;
    case 301:
        Dire_Aussitot(appelant, 7);
        aide.Attaquer_Maison(appelant.MaisonCible);
        break;
    case 302:
        Dire_Aussitot(appelant, 8);
        aide.Attaquer_Chateau(appelant.ChateauCible);
        break;
    default: {
        const int32_t agresseur = Chercher_Agresseur(n);
        if (agresseur < 0) return;
        Dire_Aussitot(appelant, 9);
        aide.Attaquer_Perso(agresseur);
    }
    }
    Dire(aide, 10);
}

}  // namespace

// Every character, the caller included, draws once, whether or not it could answer.
void Appeler_Aide(int32_t n) {
    const ClsJeuPerso& appelant = Perso(n);
    const int32_t equipe = appelant.Equipe;
    const double chance = 3.0 / (Fiefs[static_cast<std::size_t>(appelant.Fief)].NombreSujets + 1);
    for (ClsJeuPerso& p : Persos) {
        const bool tire = Rnd() < chance;
        if (Disponible(p, equipe) && tire) Secourir(n, p);
    }
}

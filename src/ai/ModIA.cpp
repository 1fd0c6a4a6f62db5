// The scheduler and the decision tree of one thought: the dead look for a resurrection,
// monsters follow their chief or live from their lair, villagers run their day.
#include "ai/ModIA.h"

#include "ai/IndexRecherches.h"
#include "ai/Journee.h"
#include "ai/OrdresIA.h"
#include "ai/Recherches.h"
#include "ai/TablesIA.h"
#include "rules/ClsJeuParam.h"
#include "rules/Hasard.h"
#include "world/Globales.h"

namespace {

// Looked up afresh after every call that could grow Persos.
ClsJeuPerso& Perso(int32_t i) { return Persos[static_cast<std::size_t>(i)]; }

bool Chateau_Debout(const ClsJeuPerso& p) { return Chateaux[static_cast<std::size_t>(p.Fief)].Visible(); }

// A dead character is raised in the house it stands in, else heads for a house of
// resurrection, or for its castle when it cannot pay or finds none.
void Penser_Mort(int32_t i) {
    ClsJeuPerso& p = Perso(i);
    if (p.Invocation()) return;
    if (p.DansMaison || p.DansSaMaison) {
        ClsJeuBatiment& maison = Maisons[static_cast<std::size_t>(p.MaisonCible)];
        if (maison.Service_Utilisable(p, Param)) {
            maison.Service_Utiliser(p, Param, 0);
            Marquer_Action_Faite(i);
            return;
        }
    }
    const int16_t action = p.Definir_Action();
    if (action == 201 || action == 1) return;
    int32_t maison = -1;
    const bool trouve = Chercher_Maison(i, i, 0, 0, 1, maison);
    if (Perso_Pauvre(i) || !trouve) {
        if (Chateau_Debout(p) && !p.DansSonChateau) Aller_Au_Chateau(i);
    } else {
        Aller_Chez(i, maison);
    }
}

// A creature with no one to follow: its needs, then what idle hands find to do.
void Vivre_Seul(int32_t i) {
    const int16_t action = Perso(i).Definir_Action();
    if (action != 500 && action != 3) Gerer_Besoins(i);
    if (Perso(i).Inactif()) Occuper_Inactif(i);
}

// Strikes what its chief strikes, else heads for its place around where the chief is going.
void Suivre_Chef(ClsJeuPerso& p, const ClsJeuPerso& chef) {
    if (p.EnCombat()) return;
    switch (chef.Definir_Action()) {
        case 300: p.Attaquer_Perso(chef.PersoCible); break;
        case 301: p.Attaquer_Maison(chef.MaisonCible); break;
        case 302: p.Attaquer_Chateau(chef.ChateauCible); break;
        default: p.Aller_A(chef.DestinationX + p.DecalageChefX, chef.DestinationY + p.DecalageChefY); break;
    }
}

// A summoned creature follows a living chief, unless the chief's attitude lets it go.
void Penser_Invocation(int32_t i) {
    ClsJeuPerso& p = Perso(i);
    const ClsJeuPerso& chef = Perso(p.Chef);
    if (chef.Vivant() && chef.Attitude != 1)
        Suivre_Chef(p, chef);
    else
        Vivre_Seul(i);
}

void Penser_Monstre(int32_t i) {
    if (Perso(i).Invocation()) {
        Penser_Invocation(i);
        return;
    }
    Ravitailler_Monstre(i);
    Riposter(i);
    if (!Perso(i).Inactif()) {
        // A busy monster gives up now and then.
        if (Rnd() > 0.99) Perso(i).Arreter();
        return;
    }
    Vivre_Seul(i);
}

// Villagers of a standing castle live their day; without one (a battle) a soldier fights
// what it was given and picks its own targets when idle.
void Penser_Villageois(int32_t i) {
    Vendre_Doublons(i);
    Humeur_Aleatoire(i);
    Riposter(i);
    Gerer_Besoins(i);
    Gerer_Achats(i);
    Approvisionner_Maison(i);
    if (Chateau_Debout(Perso(i))) {
        Gerer_Batiment_Perso(i);
    } else if (Perso(i).Inactif()) {
        Occuper_Inactif(i);
    } else if (Rnd() > 0.99) {
        Perso(i).Arreter();
    }
}

}  // namespace

void Executer_IA() {
    if (DernierPerso < 0) return;
    // The searches of this tick's thoughts go through an index of the world as it stands now.
    const TourDeRecherches tour;
    for (int32_t n = 0; n <= PersosParTrame; ++n) {
        if (++CurseurIA > DernierPerso) CurseurIA = 0;
        Penser_Perso(CurseurIA);
    }
}

void Penser_Perso(int32_t i) {
    if (!Perso(i).ModeAuto) return;
    if (!Perso(i).Vivant()) {
        Penser_Mort(i);
        return;
    }
    Equiper_Auto(i);
    if (Perso(i).IA_Berserk) {
        Foncer(i);
        return;
    }
    // A character with an AI script is driven by it; the scripts take over here when they come.
    if (Perso(i).IA) return;
    if (Perso(i).Peuple == 0)
        Penser_Villageois(i);
    else
        Penser_Monstre(i);
}

void Riposter(int32_t i) {
    ClsJeuPerso& p = Perso(i);
    const int16_t action = p.Definir_Action();
    if (action != 301 && action != 302) return;
    if (p.PersoCible < 0 || p.PersoCible > DernierPerso) return;
    const ClsJeuPerso& cible = Perso(p.PersoCible);
    if (!cible.Attaquable() || cible.Equipe == p.Equipe) return;
    p.Attaquer_Perso(p.PersoCible);
    p.Definir_Commentaires(Commentaires.Message(16));
}

void Ravitailler_Monstre(int32_t i) {
    ClsJeuPerso& p = Perso(i);
    if (ActionFaite[static_cast<std::size_t>(i)] || !p.DansSonChateau) return;
    const int m = p.Monstre - 1;
    for (int r = 0; r < Param.NombreRessources; ++r) {
        const double dotation = Param.Monstre_Ressource(m, r);
        if (p.Definir_Ressources(r) < dotation) p.Ressources[static_cast<std::size_t>(r)] = dotation;
    }
    for (int o = 0; o < Param.NombreObjets; ++o) {
        const auto type = static_cast<int16_t>(o);
        for (int32_t manque = Param.Monstre_Objet(m, o) - p.Objet_NombreType(type); manque > 0; --manque)
            p.Objet_Ajouter_Inventaire(type, Param, p.IA_Equiper);
    }
    // Healed fully over the coming ticks.
    for (Jauge* j : {&p.Vie, &p.Energie, &p.Magie, &p.Moral}) j->Reserve = j->Max - j->Valeur;
    Contribuer_Chateau(i);
    Marquer_Action_Faite(i);
}

void Foncer(int32_t i) {
    for (auto* attaquer : {&Attaquer_Perso_Proche, &Attaquer_Chateau_Proche, &Attaquer_Maison_Proche}) {
        if (Perso(i).EnCombat()) return;
        attaquer(i, false, false, false, false);
    }
    // Nothing left to fight: the berserker drops dead.
    if (!Perso(i).EnCombat()) Perso(i).Vivant(false);
}

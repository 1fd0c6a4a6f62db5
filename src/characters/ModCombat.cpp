#include "characters/ModCombat.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "ai/OrdresIA.h"
#include "characters/ModDialogue.h"
#include "characters/Paroles.h"
#include "rules/ClsJeuParam.h"
#include "rules/Hasard.h"
#include "world/Globales.h"

namespace {

ClsJeuPerso& Perso(int32_t i) { return Persos[static_cast<std::size_t>(i)]; }
int32_t Nombre(const auto& tableau) { return static_cast<int32_t>(tableau.size()); }

// What an invocation wins goes to its chief.
int32_t Beneficiaire(int32_t i) {
    const ClsJeuPerso& p = Perso(i);
    return p.Invocation() ? p.Chef : i;
}

int32_t Ecart(const ClsJeuPerso& a, const ClsJeuPerso& b) {
    return std::abs(a.PositionX - b.PositionX) + std::abs(a.PositionY - b.PositionY);
}

double Distance(const ClsJeuPerso& a, int32_t x, int32_t y) {
    return std::hypot(static_cast<double>(a.PositionX - x), static_cast<double>(a.PositionY - y));
}

double Niveau_Special(const ClsJeuPerso& p, int k) { return p.Definir_Niveau_CompetenceSpeciales(k); }

// An effect over a building always restarts its slot.
void Effet_Sur(int32_t slot, int16_t type, const ClsJeuBatiment& b) {
    EffetsMaisons[static_cast<std::size_t>(slot)].Activer_Effet(type, b.PositionX, b.PositionY, b.Largeur, b.Hauteur,
                                                                Param, true);
}

// The damage of a blow that lands: one point of health when the defence holds, else what the
// gauge has above the defence, halved; one time in twenty a hard blow, which grows with the
// striker's skill. The defence is worn down by the whole gauge, down to the armour.
void Blesser(ClsJeuPerso& a, ClsJeuPerso& t) {
    const double att = a.Attaque.Valeur, def = t.Defense.Valeur;
    if (att <= def) {
        t.Definir_Vie(t.Vie.Valeur - 1);
    } else if (Rnd() <= 0.05) {
        const double n = Niveau_Special(a, 2), depart = Param.PersosNiveauSpecialesDepart;
        t.Definir_Vie(t.Vie.Valeur - (2 * att - def) * 0.5 * n / depart);
        a.Gestion_Niveau_Comp_Speciale(2, 2 * att * 0.5 * n / depart, Param);
        Dire(a, 2);
    } else {
        t.Definir_Vie(t.Vie.Valeur - (att - def) * 0.5);
    }
    t.Definir_Defense(t.Defense.Valeur - att);
}

// A target out of the table is as good as none: any attacker is nearer.
bool Plus_Proche_Que_Sa_Cible(const ClsJeuPerso& a, const ClsJeuPerso& t) {
    if (t.PersoCible < 0 || t.PersoCible >= Nombre(Persos)) return true;
    return Ecart(a, t) < Ecart(Perso(t.PersoCible), t);
}

// Home if it stands finished, else the castle if it stands, else anywhere.
void Fuir(int32_t i) {
    ClsJeuPerso& p = Perso(i);
    const ClsJeuBatiment& maison = Maisons[static_cast<std::size_t>(i)];
    const ClsJeuBatiment& chateau = Chateaux[static_cast<std::size_t>(p.Fief)];
    if (maison.Termine)
        p.Rentrer_Maison(maison);
    else if (chateau.Visible())
        p.Rentrer_Chateau(chateau, Param.ChateauxLargeur, Param.ChateauxHauteur);
    else
        Errer(i);
}

// A victim that decides for itself turns on the nearer foe. Badly hurt and weaker than its
// attacker, it may call its team; only a caller, being weaker, may then run, if it is as
// quick as the attacker and not reckless.
void Riposter(int32_t ia, int32_t it) {
    ClsJeuPerso& a = Perso(ia);
    ClsJeuPerso& t = Perso(it);
    if (t.Definir_Action() != 300 || Plus_Proche_Que_Sa_Cible(a, t)) t.Attaquer_Perso(ia);
    const double vie = t.Vie.Valeur;
    if (!(vie < 0.5 * t.Definir_MaxVie() && vie < a.Vie.Valeur && !t.Invocation() && Rnd() > 0.2)) return;
    Appeler_Aide(it);
    if (Rnd() > 0.9 && t.LongueurPas >= a.LongueurPas && !t.IA_Temeraire) {
        Fuir(it);
        Dire(a, 13);
    }
}

// A victim under the player's orders turns only when it was idle or harvesting.
void Reagir(int32_t ia, int32_t it) {
    ClsJeuPerso& t = Perso(it);
    if (t.ModeAuto)
        Riposter(ia, it);
    else if (t.Inactif() || t.Definir_Action() == 2)
        t.Attaquer_Perso(ia);
}

// A kill ends the fight for both, counts in the killer's bestiary, and the spoils go to the
// killer, or to its chief.
void Achever(int32_t ia, int32_t it, int16_t actionVictime) {
    ClsJeuPerso& a = Perso(ia);
    ClsJeuPerso& t = Perso(it);
    a.Arreter();
    t.Arreter();
    a.Definir_Bestiaire(t.Monstre, a.Definir_Bestiaire(t.Monstre) + 1);
    Prendre_Butin(Beneficiaire(ia), it, actionVictime);
}

// The fellow of the winner that the victim was fighting hears of its death at once.
void Prevenir_Sa_Cible(const ClsJeuPerso& v, const ClsJeuPerso& d, int16_t actionVictime) {
    const int32_t c = d.PersoCible;
    if (actionVictime != 300 || c == v.Numero || c < 0 || c >= Nombre(Persos)) return;
    ClsJeuPerso& cible = Perso(c);
    if (cible.Fief == v.Fief) Dire_Aussitot(cible, 14);
}

// A quarter of the purse and of every resource; what the winner cannot carry is lost.
void Partager_Biens(ClsJeuPerso& v, ClsJeuPerso& d) {
    const double argent = d.Argent;
    v.Definir_Argent(v.Argent + argent / 4);
    d.Definir_Argent(argent * 0.75);
    for (int r = 0; r < Param.NombreRessources; ++r) {
        const double q = d.Definir_Ressources(r);
        v.Definir_Ressources(r, v.Definir_Ressources(r) + q / 4);
        d.Definir_Ressources(r, q * 0.75);
    }
}

// One object in four leaves the body, and half of those reach the winner's bag (worn at
// once if they fit); the rest is lost. True when the object was taken.
bool Prendre_Objet(ClsJeuPerso& v, ClsJeuObjet& objet) {
    if (objet.Type < 0 || Rnd() >= 0.25) return false;
    const int16_t type = objet.Type;
    objet.Decharger();
    if (Rnd() > 0.5) v.Objet_Ajouter_Inventaire(type, Param, true);
    return true;
}

// Worn objects first, then the bag. True when something worn was taken.
bool Prendre_Objets(ClsJeuPerso& v, ClsJeuPerso& d) {
    bool equipement = false;
    for (ClsJeuObjet& o : d.ObjetsEquipes) equipement = Prendre_Objet(v, o) || equipement;
    for (ClsJeuObjet& o : d.ObjetsInventaire) Prendre_Objet(v, o);
    return equipement;
}

// A winner whose own house is a finished barracks is paid for the victim's strength, more
// as its skill at the trade grows.
void Toucher_Prime(ClsJeuPerso& v, const ClsJeuPerso& d) {
    ClsJeuBatiment& caserne = Maisons[static_cast<std::size_t>(v.Numero)];
    if (!caserne.Termine || caserne.Service != 2) return;
    const double n = v.Definir_Niveau_CompetenceServices(1), e = Param.PersosNiveauServicesDepart;
    const double force = d.Definir_MaxDefense() + d.Definir_MaxAttaque() + d.Definir_MaxVie();
    caserne.Service_Utiliser(v, Param, force * Param.Service_Coefficient(2) * (n + e) / e);
}

// A house hit but standing: the blow shows on it, the striker loots it, and its owner, if it
// decides for itself, turns on the striker or, the house badly hurt, calls for help.
void Maison_Touchee(int32_t ia, ClsJeuBatiment& b, int32_t ip, double force) {
    ClsJeuPerso& proprietaire = Perso(ip);
    Effet_Sur(ip, Perso(ia).Effet_Attaque(Param), b);
    Piller_Batiment(Beneficiaire(ia), b, force);
    if (proprietaire.Vivant() && proprietaire.ModeAuto) {
        if (proprietaire.Definir_Action() != 300 && Rnd() > 0.75)
            proprietaire.Attaquer_Perso(ia);
        else if (b.Definir_Vie() < 0.5 * b.MaxVie && Rnd() > 0.65)
            Appeler_Aide(ip);
    }
    Dire(proprietaire, 4);
}

// A castle hit but standing: a few of its living people come out against the striker, a few
// cry out; a striker that decides for itself may call its own team.
void Chateau_Touche(int32_t ia, const ClsJeuBatiment& b, int32_t chateau) {
    ClsJeuPerso& a = Perso(ia);
    Effet_Sur(ia, a.Effet_Attaque(Param), b);
    for (ClsJeuPerso& p : Persos) {
        if (p.Fief != chateau || !p.Vivant() || p.Invocation()) continue;
        if (p.ModeAuto && Rnd() > 0.92) p.Attaquer_Perso(ia);
        if (Rnd() > 0.9) Dire(p, 11);
    }
    if (a.ModeAuto && Rnd() > 0.9) Appeler_Aide(ia);
}

// A fallen house changes its owner's look and grief; an owner that was inside is now in the
// open, and a striker that decides for itself usually goes for it.
void Maison_Tombee(int32_t ia, const ClsJeuBatiment& b, int32_t ip) {
    ClsJeuPerso& a = Perso(ia);
    ClsJeuPerso& proprietaire = Perso(ip);
    a.Arreter();
    proprietaire.Calculer_Apparence(b, Param);
    Dire_Aussitot(proprietaire, 5);
    Effet_Sur(b.Numero, Param.EffetMaisonDetruite, b);
    if (a.ModeAuto && proprietaire.DansSaMaison && Rnd() < 0.9) a.Attaquer_Perso(b.Numero);
}

void Chateau_Tombe(int32_t ia, const ClsJeuBatiment& b, int32_t chateau) {
    Perso(ia).Arreter();
    Effet_Sur(ia, Param.EffetChateauDetruit, b);
    for (ClsJeuPerso& p : Persos)
        if (p.Fief == chateau && p.Vivant() && Rnd() > 0.6) Dire_Aussitot(p, 12);
}

}  // namespace

void Frapper_Perso(int32_t attaquant, int32_t cible) {
    ClsJeuPerso& a = Perso(attaquant);
    ClsJeuPerso& t = Perso(cible);
    double prix = 20;
    if (Rnd() <= 0.05) {
        Dire(a, 3);
    } else {
        EffetsPersos[static_cast<std::size_t>(cible)].Activer_Effet(a.Effet_Attaque(Param), t.PositionX, t.PositionY,
                                                                    LargeurPerso, HauteurPerso, Param, false);
        t.DureeImmobilisation = 0;
        // What a kill needs: a striker with more keeps the rest of its gauge.
        prix = 2 * t.Vie.Valeur + t.Defense.Valeur - 1;
        const int16_t actionVictime = t.Definir_Action();
        Blesser(a, t);
        if (t.Vivant())
            Reagir(attaquant, cible);
        else
            Achever(attaquant, cible, actionVictime);
    }
    a.Definir_Attaque(a.Attaque.Valeur - prix);
}

void Prendre_Butin(int32_t vainqueur, int32_t victime, int16_t actionVictime) {
    ClsJeuPerso& v = Perso(vainqueur);
    ClsJeuPerso& d = Perso(victime);
    Prevenir_Sa_Cible(v, d, actionVictime);
    Partager_Biens(v, d);
    const bool equipement = Prendre_Objets(v, d);
    // The bounty weighs the victim as it fought, with what it wore; a body that lost what it
    // wore then has its bonuses and its look worked out again, ready for when it comes back.
    Toucher_Prime(v, d);
    if (!equipement) return;
    d.Actualiser_Bonus(Param);
    d.Calculer_Apparence(Maisons[static_cast<std::size_t>(d.Numero)], Param);
}

void Frapper_Batiment(int32_t attaquant, ClsJeuBatiment& batiment, int32_t proprietaire, int32_t chateau) {
    ClsJeuPerso& a = Perso(attaquant);
    const double force = std::min({20.0, batiment.Vie, a.Attaque.Valeur});
    batiment.Definir_Vie(batiment.Vie - Niveau_Special(a, 1) * force / Param.PersosNiveauSpecialesDepart);
    a.Attaque.Valeur -= force;   // spent, not lost: no experience for the gauge
    a.Gestion_Niveau_Comp_Speciale(1, force, Param);
    const bool maison = chateau < 0;
    if (batiment.Visible()) {
        if (maison)
            Maison_Touchee(attaquant, batiment, proprietaire, force);
        else
            Chateau_Touche(attaquant, batiment, chateau);
    } else {
        if (maison)
            Maison_Tombee(attaquant, batiment, proprietaire);
        else
            Chateau_Tombe(attaquant, batiment, chateau);
    }
}

void Piller_Batiment(int32_t pilleur, ClsJeuBatiment& batiment, double degats) {
    ClsJeuPerso& p = Perso(pilleur);
    const double part = degats / batiment.MaxVie;
    if (batiment.Argent > 0)
        batiment.Transfert_Argent_Prendre(part * batiment.Argent, Perso(Beneficiaire(pilleur)), false);
    // A shop's resource 0 is never looted.
    const int32_t r = Param.Batiment_RessourceFabrique(batiment.Type);
    if (batiment.Magasin && r > 0 && batiment.Stock > 0) {
        const double q = std::min(part * batiment.Stock, batiment.Stock);
        batiment.Stock -= q;
        p.Definir_Ressources(r, p.Definir_Ressources(r) + q);
    }
    if (!batiment.Fabrique || batiment.Stock <= 0) return;
    for (int n = 0; n < Nombre(batiment.StockObjets); ++n)
        if (Rnd() < part * batiment.Stock_Objets(n)) p.Objet_Ramasser_Maison(n, batiment, Param);
}

// Each target takes the full gauge: the gauge is put back after every blow, then emptied once.
void Frapper_Zone(int32_t attaquant, double rayon) {
    ClsJeuPerso& a = Perso(attaquant);
    const double plein = a.Attaque.Valeur;
    for (int32_t i = 0; i < Nombre(Persos); ++i) {
        const ClsJeuPerso& p = Perso(i);
        if (p.Equipe == a.Equipe || !p.Attaquable() || Distance(a, p.PositionX, p.PositionY) >= rayon) continue;
        Frapper_Perso(attaquant, i);
        a.Attaque.Valeur = plein;
    }
    for (int32_t k = 0; k < Nombre(Maisons); ++k) {
        ClsJeuBatiment& m = Maisons[static_cast<std::size_t>(k)];
        if (!m.Visible() || Perso(k).Equipe == a.Equipe || Distance(a, m.PositionX, m.PositionY) >= rayon) continue;
        Frapper_Batiment(attaquant, m, k, -1);
        a.Attaque.Valeur = plein;
    }
    for (int32_t f = 0; f < Nombre(Chateaux); ++f) {
        ClsJeuBatiment& c = Chateaux[static_cast<std::size_t>(f)];
        if (!c.Visible() || Fiefs[static_cast<std::size_t>(f)].Equipe == a.Equipe ||
            Distance(a, c.PositionX, c.PositionY) >= rayon)
            continue;
        Frapper_Batiment(attaquant, c, -1, f);
        a.Attaque.Valeur = plein;
    }
    a.Definir_Attaque(0);
}

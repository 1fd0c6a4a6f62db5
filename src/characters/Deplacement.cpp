// The tick of a character is one state machine over its action code. It walks until it
// stands on its destination, and from then on the arrival code of its action runs on every
// tick that it stands there: a harvester who has arrived harvests a little each tick, and
// stops only when given a new destination or action.
#include "characters/Deplacement.h"

#include <cstddef>
#include <vector>

#include "characters/ClsJeuPerso.h"
#include "characters/Coup.h"
#include "characters/Ordres.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "world/Globales.h"

namespace {

template <class T>
T* Element(std::vector<T>& tableau, int32_t i) {
    return i >= 0 && static_cast<std::size_t>(i) < tableau.size() ? &tableau[static_cast<std::size_t>(i)] : nullptr;
}

bool Debout(const ClsJeuBatiment* b) { return b != nullptr && b->Visible(); }

// The box of the character, inflated by its reach, overlaps the target's box.
bool Chevauche(const ClsJeuPerso& p, double tx, double ty, double tw, double th) {
    const double portee = p.PorteeAttaque;
    return p.PositionX - portee <= tx + tw && p.PositionY - portee <= ty + th &&
           p.PositionX + LargeurPerso + portee >= tx && p.PositionY + HauteurPerso + portee >= ty;
}

// A building under attack: the character aims its box at the building's centre.
void Viser_Batiment(ClsJeuPerso& p, const ClsJeuBatiment* b, double largeur, double hauteur) {
    if (!Debout(b)) {
        p.Arreter();
        return;
    }
    p.DestinationX = Coin_Pour_Centrer(b->PositionX, largeur, LargeurPerso);
    p.DestinationY = Coin_Pour_Centrer(b->PositionY, hauteur, HauteurPerso);
}

// A character under attack is followed. One that slips into a building is besieged there by
// a fighter that decides for itself; one under orders gives up.
void Viser_Perso(ClsJeuPerso& p, CiblesDeplacement& c, int32_t& commentaire) {
    const ClsJeuPerso* cible = c.Cible;
    if (cible == nullptr || !cible->Vivant()) {
        p.Arreter();
        return;
    }
    if (cible->Visible()) {
        p.DestinationX = cible->PositionX;
        p.DestinationY = cible->PositionY;
        return;
    }
    commentaire = 15;
    if (!p.ModeAuto) {
        p.Arreter();
        return;
    }
    if (cible->DansSaMaison)
        p.Attaquer_Maison(cible->Numero);
    else if (cible->DansMaison)
        p.Attaquer_Maison(cible->MaisonCible);
    else if (cible->DansSonChateau)
        p.Attaquer_Chateau(cible->Fief);
    else
        p.Attaquer_Chateau(cible->ChateauCible);
    c = Lire_Cibles(p);   // the rest of the tick measures the reach to the building
}

void Viser(ClsJeuPerso& p, CiblesDeplacement& c, int32_t& commentaire, const ClsJeuParam& param) {
    switch (p.Definir_Action()) {
    case 300: Viser_Perso(p, c, commentaire); break;
    case 301: {
        const ClsJeuBatiment* m = c.Maison;
        Viser_Batiment(p, m, m ? m->Largeur : 0, m ? m->Hauteur : 0);
        break;
    }
    case 302: Viser_Batiment(p, c.Chateau, param.ChateauxLargeur, param.ChateauxHauteur); break;
    default: break;
    }
}

// Only the target of the current action counts.
bool A_Portee(const ClsJeuPerso& p, const CiblesDeplacement& c, const ClsJeuParam& param) {
    switch (p.Definir_Action()) {
    case 300: return c.Cible && Chevauche(p, c.Cible->PositionX, c.Cible->PositionY, LargeurPerso, HauteurPerso);
    case 301:
        return c.Maison && Chevauche(p, c.Maison->PositionX, c.Maison->PositionY, c.Maison->Largeur,
                                     c.Maison->Hauteur);
    case 302:
        return c.Chateau && Chevauche(p, c.Chateau->PositionX, c.Chateau->PositionY, param.ChateauxLargeur,
                                      param.ChateauxHauteur);
    default: return false;
    }
}

// One whole step, north-south leg first, then east-west; a walker stops within half a step
// of its destination. Nothing on the way is looked at. False when it has arrived.
bool Marcher(ClsJeuPerso& p) {
    const int32_t pas = p.LongueurPas;
    const double demi = pas / 2.0;
    if (p.PositionY - demi > p.DestinationY) {
        p.PositionY -= pas;
        p.Direction = 1;
    } else if (p.PositionY + demi < p.DestinationY) {
        p.PositionY += pas;
        p.Direction = 3;
    } else if (p.PositionX - demi > p.DestinationX) {
        p.PositionX -= pas;
        p.Direction = 4;
    } else if (p.PositionX + demi < p.DestinationX) {
        p.PositionX += pas;
        p.Direction = 2;
    } else {
        return false;
    }
    p.Visible(true);
    p.EnMouvement = true;
    return true;
}

// Gauges written back to themselves take their limits; a gain earns nothing.
void Reprendre_Forces(ClsJeuPerso& p, double vie, double energie, double magie, double moral) {
    p.Definir_Vie(p.Vie.Valeur + p.Vie.Max * vie);
    p.Definir_Energie(p.Energie.Valeur + p.Energie.Max * energie);
    p.Definir_Magie(p.Magie.Valeur + p.Magie.Max * magie);
    p.Definir_Moral(p.Moral.Valeur + p.Moral.Max * moral);
}

// A character waiting outdoors is no longer inside what has fallen behind it.
void Sortir_Des_Ruines(ClsJeuPerso& p, const CiblesDeplacement& c) {
    if (!Debout(c.SonChateau)) p.DansSonChateau = false;
    if (!Debout(c.Chateau)) p.DansChateau = false;
}

void Attendre_Dehors(ClsJeuPerso& p, const CiblesDeplacement& c) {
    p.RessourceRecoltee = -1;
    if (!(Debout(c.Maison) && c.Maison->Termine)) p.DansMaison = false;
    Reprendre_Forces(p, 0.00005, 0.00005, 0.00005, 0);
}

// Resting at home is twice as fast as waiting outdoors, and adds morale.
void Reposer_Chez_Soi(ClsJeuPerso& p, const CiblesDeplacement& c) {
    p.DansSaMaison = Debout(c.Maison);
    if (p.DansSaMaison) p.RessourceRecoltee = -1;
    Reprendre_Forces(p, 0.0001, 0.0001, 0.0001, 0.000025);
}

// At home, at its trade: the house's resource is harvested, else its service prepared; a
// house with neither rests its owner.
void Travailler(ClsJeuPerso& p, const CiblesDeplacement& c, int32_t& commentaire, const ClsJeuParam& param) {
    if (!Debout(c.Maison)) {
        p.DansSaMaison = false;
        p.Arreter();
        return;
    }
    p.DansSaMaison = true;
    const int32_t r = param.Batiment_RessourceFabrique(c.Maison->Type);
    p.RessourceRecoltee = r;
    if (r >= 0) {
        p.Definir_Action_Metier(r);
        p.Recolter_Ressources(r, *c.Maison, commentaire, param);
    } else if (c.Maison->Service != 0) {
        p.Preparer_Service(*c.Maison, commentaire, param);
    } else {
        p.Arreter();
    }
}

// A deposit is harvested into the carrier, then into its own house if it stands in it.
void Recolter_Gisement(ClsJeuPerso& p, const CiblesDeplacement& c, int32_t& commentaire, const ClsJeuParam& param) {
    p.RessourceRecoltee = c.Ressource ? c.Ressource->TypeRessource : -1;
    if (c.SaMaison) p.Recolter_Ressources(p.RessourceRecoltee, *c.SaMaison, commentaire, param);
    p.DansMaison = false;
}

void Batir(ClsJeuPerso& p, const CiblesDeplacement& c, const ClsJeuParam& param) {
    if (!Debout(c.Maison) || c.Fief == nullptr || c.SonChateau == nullptr) {
        p.Arreter();
        return;
    }
    p.RessourceRecoltee = -1;
    c.Maison->EnConstruction = true;
    p.Batir_Maison(*c.Fief, *c.SonChateau, *c.Maison, param);
}

// A finished object counts in its fief's figures.
void Fabriquer(ClsJeuPerso& p, const CiblesDeplacement& c, int32_t& commentaire, const ClsJeuParam& param) {
    if (!Debout(c.Maison) || c.SaMaison == nullptr) {
        p.DansSaMaison = false;
        p.Arreter();
        return;
    }
    if (p.Fabriquer_Objet(param, *c.SaMaison, commentaire) && c.Fief) c.Fief->ObjetsFabriques += 1;
}

// What a character does on its destination, living or dead, on every tick it stands there.
void Agir_Sur_Place(ClsJeuPerso& p, const CiblesDeplacement& c, int32_t& commentaire, const ClsJeuParam& param) {
    const bool vivant = p.Vivant();
    switch (p.Definir_Action()) {
    case 0:
        Sortir_Des_Ruines(p, c);
        if (vivant) Attendre_Dehors(p, c);
        break;
    case 2:
        if (vivant) Recolter_Gisement(p, c, commentaire, param);
        break;
    case 6:
        if (vivant) Batir(p, c, param);
        break;
    case 100:
        if (vivant)
            Reposer_Chez_Soi(p, c);
        else
            p.DansSaMaison = Debout(c.Maison);
        break;
    case 101:
    case 102:
        if (vivant) {
            Travailler(p, c, commentaire, param);
        } else {
            p.DansSaMaison = Debout(c.Maison);
            p.Arreter();
        }
        break;
    case 201:
        p.DansMaison = Debout(c.Maison) && c.Maison->Termine;
        p.Arreter();
        break;
    case 202:
        p.DansSonChateau = Debout(c.SonChateau);
        p.Definir_Action(0);
        break;
    case 203:
        if (!vivant) break;
        p.DansChateau = Debout(c.Chateau);
        p.Definir_Action(0);
        break;
    case 500:
        if (vivant) Fabriquer(p, c, commentaire, param);
        break;
    case 600:
        if (vivant) Travailler(p, c, commentaire, param);
        break;
    default: p.RessourceRecoltee = -1; break;
    }
}

// Arrived: it stands (a flyer hovers), its destination is pinned to where it is, a walk
// gives way to what it was for, and that is done.
void Arriver(ClsJeuPerso& p, const CiblesDeplacement& c, int32_t& commentaire, const ClsJeuParam& param) {
    p.Direction = p.Volant ? 3 : 0;
    p.EnMouvement = p.Volant;
    p.DestinationX = p.PositionX;
    p.DestinationY = p.PositionY;
    const int16_t code = p.Definir_Action();
    if (code < 100 && code % 2 == 1) p.Definir_Action(static_cast<int16_t>(code - 1));
    Agir_Sur_Place(p, c, commentaire, param);
}

// After a step, or a hovering arrival: a building site that fell is given up, a character
// at home that moves is on its way back, and moving tires the living.
void Apres_Mouvement(ClsJeuPerso& p, const CiblesDeplacement& c) {
    const int16_t code = p.Definir_Action();
    if (code == 7 && !Debout(c.Maison))
        p.Arreter();
    else if (code >= 100 && code < 200 && code % 2 == 0)
        p.Definir_Action(static_cast<int16_t>(code + 1));
    if (c.Maison) c.Maison->EnConstruction = false;
    p.RessourceRecoltee = -1;
    if (p.Vivant()) {
        p.Definir_Energie(p.Energie.Valeur - 0.001);
        p.Definir_Moral(p.Moral.Valeur);
    }
}

// Four walking frames; a flyer beats its wings even when it hovers.
void Animer(ClsJeuPerso& p) {
    if (p.Direction == 0 && !p.Volant) return;
    p.EtapeAnimation = static_cast<int16_t>(p.EtapeAnimation >= 3 ? 0 : p.EtapeAnimation + 1);
}

}  // namespace

CiblesDeplacement Lire_Cibles(const ClsJeuPerso& p) {
    CiblesDeplacement c;
    c.Ressource = Element(Ressources, p.RessourceCible);
    c.Cible = Element(Persos, p.PersoCible);
    c.Maison = Element(Maisons, p.MaisonCible);
    c.SaMaison = Element(Maisons, p.Numero);
    c.Chateau = Element(Chateaux, p.ChateauCible);
    c.SonChateau = Element(Chateaux, p.Fief);
    c.Fief = Element(Fiefs, p.Fief);
    return c;
}

void ClsJeuPerso::Calculer_Longueur_Pas() {
    if (!Vivant()) {
        LongueurPas = 6;
        return;
    }
    const double pas = Int(Vitesse * CoefForme);
    LongueurPas = pas > 0 ? static_cast<int32_t>(pas) : 1;
}

void ClsJeuPerso::Deplacement(CiblesDeplacement& cibles, int32_t& commentaire, const ClsJeuParam& param) {
    if (Vivant()) Calculer_CoefForme();
    Calculer_Longueur_Pas();
    if (EnCombat()) Viser(*this, cibles, commentaire, param);
    if (A_Portee(*this, cibles, param)) {
        Porter_Coup(*this, cibles, commentaire, param);   // in reach, the fighter stands
        if (!Volant) Direction = 0;
    } else if (DureeImmobilisation > 0) {
        DureeImmobilisation -= 1;
        return;   // held: it neither walks nor stirs
    } else {
        if (!Marcher(*this)) Arriver(*this, cibles, commentaire, param);
        if (Direction > 0) Apres_Mouvement(*this, cibles);
    }
    Animer(*this);
}

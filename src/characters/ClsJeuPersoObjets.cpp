// Objects carried and worn. Categories: 0 one hand (slot 0, else 1), 1 both hands (slots 0
// and 1), 6 and 7 a pair (slot 6, else 7), any other the slot of that number.
#include <algorithm>
#include <vector>

#include "characters/ClsJeuCommentaires.h"
#include "characters/ClsJeuPerso.h"
#include "rules/ClsJeuParam.h"
#include "world/Globales.h"

namespace {

bool Occupe(const std::vector<ClsJeuObjet>& rangee, std::size_t slot) {
    return slot < rangee.size() && rangee[slot].Actif();
}

// A write of a slot by a loader, with no rule; a number outside the row does nothing.
void Charger_Slot(std::vector<ClsJeuObjet>& rangee, int slot, int16_t type) {
    if (slot >= 0 && static_cast<std::size_t>(slot) < rangee.size()) rangee[static_cast<std::size_t>(slot)].Charger(type);
}

void Vider(std::vector<ClsJeuObjet>& rangee, int slot) {
    if (ClsJeuObjet* o = Objet_Tenu(rangee, slot)) o->Decharger();
}

bool Deux_Mains(const std::vector<ClsJeuObjet>& rangee, const ClsJeuParam& param) {
    return !rangee.empty() && rangee[0].Type >= 0 && param.Objet_Categorie(rangee[0].Type) == 1;
}

// The equipment slot an object of this category goes to, once room is made.
std::size_t Slot_Cible(const std::vector<ClsJeuObjet>& rangee, int16_t categorie) {
    switch (categorie) {
        case 0: return Occupe(rangee, 0) ? 1 : 0;
        case 1: return 0;
        case 6:
        case 7: return Occupe(rangee, 6) ? 7 : 6;
        default: return static_cast<std::size_t>(categorie);
    }
}

// The highest equipment slot an object of this category may need; a row too short for it
// (rules that ask for more slots than characters have) cannot wear it.
std::size_t Dernier_Slot(int16_t categorie) {
    switch (categorie) {
        case 0:
        case 1: return 1;
        case 6:
        case 7: return 7;
        default: return static_cast<std::size_t>(categorie);
    }
}

}  // namespace

bool ClsJeuPerso::Inventaire_Plein() const {
    for (const ClsJeuObjet& o : ObjetsInventaire)
        if (!o.Actif()) return false;
    return true;
}

void ClsJeuPerso::Objet_Ajouter_Inventaire(int16_t type, const ClsJeuParam& param, bool equiper) {
    for (std::size_t slot = 0; slot < ObjetsInventaire.size(); ++slot) {
        if (ObjetsInventaire[slot].Actif()) continue;
        ObjetsInventaire[slot].Charger(type);
        if (equiper && !param.Objet_Utilisable(type) && Objet_Emplacement_Libre(type, param))
            Objet_Porter(static_cast<int>(slot), param);
        return;
    }
}

bool ClsJeuPerso::Objet_Emplacement_Libre(int16_t type, const ClsJeuParam& param) const {
    const auto& e = ObjetsEquipes;
    switch (const int16_t categorie = param.Objet_Categorie(type)) {
        case 0: return !(Deux_Mains(e, param) || (Occupe(e, 0) && Occupe(e, 1)));
        case 1: return !Occupe(e, 0) && !Occupe(e, 1);
        case 6:
        case 7: return !(Occupe(e, 6) && Occupe(e, 7));
        default: return !Occupe(e, static_cast<std::size_t>(categorie));
    }
}

void ClsJeuPerso::Objet_Porter(int slot, const ClsJeuParam& param) {
    ClsJeuObjet& source = ObjetsInventaire[static_cast<std::size_t>(slot)];
    const int16_t type = source.Type;
    const int16_t categorie = param.Objet_Categorie(type);
    if (categorie < 0 || Dernier_Slot(categorie) >= ObjetsEquipes.size()) return;

    // Make room, remembering what comes off, slot 0's first.
    int16_t retires[2] = {-1, -1};
    int n = 0;
    auto retirer = [&](std::size_t s) {
        if (!Occupe(ObjetsEquipes, s)) return;
        retires[n++] = ObjetsEquipes[s].Type;
        ObjetsEquipes[s].Decharger();
    };
    if (!Objet_Emplacement_Libre(type, param)) {
        if (categorie == 1) {
            retirer(0);
            retirer(1);
        } else if (categorie == 6 || categorie == 7) {
            retirer(7);
        } else {
            retirer(static_cast<std::size_t>(categorie));
        }
    }
    ObjetsEquipes[Slot_Cible(ObjetsEquipes, categorie)].Charger(type);
    source.Decharger();
    for (int i = 0; i < n; ++i)
        if (retires[i] >= 0) Objet_Ajouter_Inventaire(retires[i], param, false);
    if (Deux_Mains(ObjetsEquipes, param) && ObjetsEquipes.size() > 1) ObjetsEquipes[1].Decharger();
    Actualiser_Equipement(param);
}

void ClsJeuPerso::Actualiser_Equipement(const ClsJeuParam& param) {
    Actualiser_Bonus(param);
    if (Numero >= 0 && static_cast<std::size_t>(Numero) < Maisons.size())
        Calculer_Apparence(Maisons[static_cast<std::size_t>(Numero)], param);
}

// A used object: paid for by the gauges, and its effect comes on the next tick.
void ClsJeuPerso::Objet_Equiper(int slot, const ClsJeuParam& param, const ClsJeuCommentaires& commentaires) {
    ClsJeuObjet* objet = Objet_Tenu(ObjetsInventaire, slot);
    if (objet == nullptr) return;
    const int16_t o = objet->Type;
    if (!param.Objet_Utilisable(o)) {
        Objet_Porter(slot, param);
        return;
    }
    if (!Vivant() || ObjetUtilise >= 0) return;
    const Jauge* jauges[] = {&Vie, &Energie, &Magie, &Moral};
    const double pertes[] = {param.Objet_PerteVie(o), param.Objet_PerteEnergie(o), param.Objet_PerteMagie(o),
                             param.Objet_PerteMoral(o)};
    for (int k = 0; k < 4; ++k) {
        if (jauges[k]->Valeur > pertes[k]) continue;
        Definir_Commentaires(commentaires.Message(17 + k));
        return;
    }
    ObjetUtilise = o;
    Competence& c = CompetencesObjets[static_cast<std::size_t>(param.Objet_Competence(o))];
    Ajouter_Experience(c, param.Objet_Experience(o), GenreObjet);
    Definir_Vie(Vie.Valeur - pertes[0]);
    Definir_Energie(Energie.Valeur - pertes[1]);
    Definir_Magie(Magie.Valeur - pertes[2]);
    Definir_Moral(Moral.Valeur - pertes[3]);
    if (param.Objet_UtilisationUnique(o)) objet->Decharger();
}

// Taken off, the object's bonuses go and the gauges shrink with their maxima.
void ClsJeuPerso::Objet_Ranger(int slot, const ClsJeuParam& param) {
    ClsJeuObjet* objet = Objet_Tenu(ObjetsEquipes, slot);
    if (objet == nullptr || Inventaire_Plein()) return;
    const int16_t o = objet->Type;
    objet->Decharger();
    Objet_Ajouter_Inventaire(o, param, false);
    Actualiser_Equipement(param);
    Attaque.Valeur = std::min(Attaque.Valeur, static_cast<double>(Attaque.Max));
    Defense.Valeur = std::min(Defense.Valeur, static_cast<double>(Defense.Max));
}

void ClsJeuPerso::Objet_Ranger_Armes(const ClsJeuParam& param) {
    Arreter();
    for (int slot : {0, 1})
        if (Objet_Tenu(ObjetsEquipes, slot)) Objet_Ranger(slot, param);
}

void ClsJeuPerso::Objet_Inventaire_Detruire(int slot) { Vider(ObjetsInventaire, slot); }
void ClsJeuPerso::Objet_Equipes_Detruire(int slot) { Vider(ObjetsEquipes, slot); }
void ClsJeuPerso::Objet_Equipes_Vider_Tout() {
    for (ClsJeuObjet& o : ObjetsEquipes) o.Decharger();
}
void ClsJeuPerso::Objet_Inventaire_Vider_Tout() {
    for (ClsJeuObjet& o : ObjetsInventaire) o.Decharger();
}

int32_t ClsJeuPerso::Objet_NombreType(int16_t type) const {
    int32_t n = 0;
    for (const auto* rangee : {&ObjetsEquipes, &ObjetsInventaire})
        for (const ClsJeuObjet& o : *rangee) n += o.Type == type;
    return n;
}

bool ClsJeuPerso::Objet_Equipes_2_Mains(const ClsJeuParam& param) const { return Deux_Mains(ObjetsEquipes, param); }

void ClsJeuPerso::Objet_Equipe_Charger(int slot, int16_t type) { Charger_Slot(ObjetsEquipes, slot, type); }
void ClsJeuPerso::Objet_Inventaire_Charger(int slot, int16_t type) { Charger_Slot(ObjetsInventaire, slot, type); }

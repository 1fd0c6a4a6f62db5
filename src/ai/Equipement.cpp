// What a character does with its objects by itself: a few inventory slots a thought are
// looked at, things to consume are used (those used once kept for a fight), and a thing to
// wear is put on when it is worth at least what it would replace; price is the only measure.
// At a castle it sells what it holds beyond two of category 0 and one of anything else.
#include <cstddef>

#include "ai/ModIA.h"
#include "ai/TablesIA.h"
#include "rules/ClsJeuParam.h"
#include "world/Globales.h"

namespace {

ClsJeuPerso& Perso(int32_t i) { return Persos[static_cast<std::size_t>(i)]; }

// The shared cursor falls back to 0 past this character's last slot, so a character with
// fewer slots than the one before starts again at its first.
void Borner_Curseur(const ClsJeuPerso& p) {
    if (CurseurInventaire < 0 || static_cast<std::size_t>(CurseurInventaire) >= p.ObjetsInventaire.size())
        CurseurInventaire = 0;
}

// Worth wearing instead of what equipment slot `slot` holds: always when it is free.
bool Vaut_Mieux(ClsJeuPerso& p, int16_t type, int slot) {
    const ClsJeuObjet* porte = Objet_Tenu(p.ObjetsEquipes, slot);
    return porte == nullptr || Param.Objet_PrixVente(type) >= Param.Objet_PrixVente(porte->Type);
}

bool A_Porter(ClsJeuPerso& p, int16_t type) {
    const int16_t categorie = Param.Objet_Categorie(type);
    switch (categorie) {
        // One hand: a free hand takes it; with both full, it must match the weapon in slot 0.
        case 0: return Objet_Tenu(p.ObjetsEquipes, 1) == nullptr || Vaut_Mieux(p, type, 0);
        case 1: return Vaut_Mieux(p, type, 0);
        default: return Vaut_Mieux(p, type, categorie);
    }
}

void Examiner_Slot(ClsJeuPerso& p, int slot) {
    const ClsJeuObjet* objet = Objet_Tenu(p.ObjetsInventaire, slot);
    if (objet == nullptr) return;
    const int16_t type = objet->Type;
    const bool garder_pour_combat = Param.Objet_UtilisationUnique(type) && !p.EnCombat();
    const bool equiper = Param.Objet_Utilisable(type) ? !garder_pour_combat : A_Porter(p, type);
    if (equiper) p.Objet_Equiper(slot, Param, Commentaires);
}

}  // namespace

void Equiper_Auto(int32_t i) {
    ClsJeuPerso& p = Perso(i);
    if (!p.IA_Equiper || p.ObjetsInventaire.empty()) return;
    const int examens = p.EnCombat() ? 6 : 2;
    Borner_Curseur(p);
    for (int n = 0; n < examens; ++n) {
        Examiner_Slot(p, CurseurInventaire);
        ++CurseurInventaire;
        Borner_Curseur(p);
    }
}

void Vendre_Doublons(int32_t i) {
    ClsJeuPerso& p = Perso(i);
    if (!p.DansSonChateau && !p.DansChateau) return;
    for (auto slot = static_cast<int>(p.ObjetsInventaire.size()) - 1; slot >= 0; --slot) {
        const ClsJeuObjet* objet = Objet_Tenu(p.ObjetsInventaire, slot);
        if (objet == nullptr || Param.Objet_UtilisationUnique(objet->Type)) continue;
        const int32_t garde = Param.Objet_Categorie(objet->Type) == 0 ? 2 : 1;
        if (p.Objet_NombreType(objet->Type) > garde) p.Objet_Vendre_Chateau(slot, Param);
    }
}

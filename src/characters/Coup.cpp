#include "characters/Coup.h"

#include <cstddef>

#include "characters/ClsJeuPerso.h"
#include "characters/Deplacement.h"
#include "characters/ModCombat.h"
#include "rules/ClsJeuParam.h"

namespace {

// The object held in hand slot 0 or 1, -1 for none.
int16_t En_Main(const ClsJeuPerso& p, std::size_t slot) {
    return slot < p.ObjetsEquipes.size() ? p.ObjetsEquipes[slot].Type : int16_t{-1};
}

// A blow with this object costs something: a gauge or ammunition.
bool A_Une_Perte(int16_t o, const ClsJeuParam& param) {
    return param.Objet_PerteVie(o) > 0 || param.Objet_PerteEnergie(o) > 0 || param.Objet_PerteMagie(o) > 0 ||
           param.Objet_PerteMoral(o) > 0 ||
           (param.Objet_PerteRessourceIndice(o) >= 0 && param.Objet_PerteRessourceQuantite(o) > 0);
}

bool Arme_Couteuse(const ClsJeuPerso& p, const ClsJeuParam& param) {
    for (std::size_t slot : {0u, 1u})
        if (const int16_t o = En_Main(p, slot); o >= 0 && A_Une_Perte(o, param)) return true;
    return false;
}

// Ready: a full gauge, a fresh order, or a blow on a character that would already kill it;
// a weapon that costs something waits for a gauge that kills for sure.
bool Pret(const ClsJeuPerso& p, const ClsJeuPerso* cible, const ClsJeuParam& param) {
    if (p.Attaque.Valeur == p.Definir_MaxAttaque() || p.AttaqueImmediate) return true;
    if (p.Definir_Action() != 300 || cible == nullptr) return false;
    const double a = p.Attaque.Valeur, vie = cible->Vie.Valeur, defense = cible->Defense.Valeur;
    return Arme_Couteuse(p, param) ? a >= 2 * vie + defense : a > vie + defense + 1;
}

// The comment of the first cost the fighter cannot meet, -1 when it meets them all. A gauge
// must stay above its cost, so a fighter without magic cannot strike even bare-handed.
int32_t Manque(const ClsJeuPerso& p) {
    const Jauge* jauges[] = {&p.Vie, &p.Energie, &p.Magie, &p.Moral};
    for (int k = 0; k < 4; ++k)
        if (!(jauges[k]->Valeur > p.SeuilsArme[k])) return 17 + k;
    if (p.Definir_Ressources(p.PerteRessourceIndice) < p.PerteRessourceQuantite) return 34;
    return -1;
}

// With an area, every enemy around the fighter; else the target of its action.
void Frapper(const ClsJeuPerso& p, const CiblesDeplacement& c) {
    if (p.SurfaceAttaque >= 1) {
        Frapper_Zone(p.Numero, p.SurfaceAttaque);
        return;
    }
    switch (p.Definir_Action()) {
    case 300: Frapper_Perso(p.Numero, p.PersoCible); break;
    case 301: Frapper_Batiment(p.Numero, *c.Maison, p.MaisonCible, -1); break;
    case 302: Frapper_Batiment(p.Numero, *c.Chateau, -1, p.ChateauCible); break;
    default: break;
    }
}

// A weapon in hand costs each gauge what the two hands' objects cost it together.
void Payer(ClsJeuPerso& p, const ClsJeuParam& param) {
    if (En_Main(p, 0) >= 0) {
        double cout[4] = {0, 0, 0, 0};
        for (std::size_t slot : {0u, 1u}) {
            const int16_t o = En_Main(p, slot);
            if (o < 0) continue;
            cout[0] += param.Objet_PerteVie(o);
            cout[1] += param.Objet_PerteEnergie(o);
            cout[2] += param.Objet_PerteMagie(o);
            cout[3] += param.Objet_PerteMoral(o);
        }
        p.Definir_Vie(p.Vie.Valeur - cout[0]);
        p.Definir_Energie(p.Energie.Valeur - cout[1]);
        p.Definir_Magie(p.Magie.Valeur - cout[2]);
        p.Definir_Moral(p.Moral.Valeur - cout[3]);
    }
    p.AttaqueImmediate = false;
    const int r = p.PerteRessourceIndice;
    if (r >= 0) p.Definir_Ressources(r, p.Definir_Ressources(r) - p.PerteRessourceQuantite);
    if (p.Kamikaze && p.Vivant()) p.Vivant(false);
}

}  // namespace

void Porter_Coup(ClsJeuPerso& p, const CiblesDeplacement& cibles, int32_t& commentaire, const ClsJeuParam& param) {
    if (!Pret(p, cibles.Cible, param)) return;   // it stands, and its gauge goes on charging
    if (const int32_t manque = Manque(p); manque >= 0) {
        commentaire = manque;
        p.Objet_Ranger_Armes(param);
        return;
    }
    Frapper(p, cibles);
    Payer(p, param);
}

// Needs and purchases: a character eats from its bag as its gauges run low, goes to a shop
// of its fief for food or for its weapon's resource (or gathers it when it cannot pay),
// and goes to buy objects when it is well off.
#include <cstddef>

#include "ai/ModIA.h"
#include "ai/OrdresIA.h"
#include "ai/Recherches.h"
#include "rules/ClsJeuParam.h"
#include "world/Globales.h"

namespace {

ClsJeuPerso& Perso(int32_t i) { return Persos[static_cast<std::size_t>(i)]; }

bool Libre_De_Sortir(const ClsJeuPerso& p) { return !p.EnCombat() && !p.DansMaison; }

bool Sous_La_Moitie(int32_t max, double valeur) { return max * 0.5 > valeur; }

// A shop selling the resource (or food for the need) when the character can pay, else the
// nearest deposit to gather it from.
void Acheter_Ou_Recolter(int32_t i, int16_t ressource, int16_t besoin, int32_t recolte) {
    if (!Perso_Pauvre(i)) {
        int32_t maison = -1;
        if (Chercher_Maison(i, i, ressource, besoin, 0, maison) && maison >= 0) {
            Aller_Chez(i, maison);
            return;
        }
    }
    Aller_Recolter(i, recolte);
}

// Magic and morale are bought only: the search runs at every thought so that its cursor
// moves on, and the character goes when it can pay and the gauge is under half.
void Acheter_Seulement(int32_t i, int16_t besoin, bool manque) {
    int32_t maison = -1;
    const bool trouve = Chercher_Maison(i, i, 0, besoin, 0, maison);
    if (!Perso_Pauvre(i) && manque && Libre_De_Sortir(Perso(i)) && trouve && maison >= 0) Aller_Chez(i, maison);
}

void Manger(int32_t i) {
    ClsJeuPerso& p = Perso(i);
    p.Recuperer_AutoVie(Param);
    if (p.Definir_Vie() < p.Definir_MaxVie() && Libre_De_Sortir(p) && p.Inactif()) Acheter_Ou_Recolter(i, 0, 1, 0);

    p.Recuperer_AutoEnergie(Param);
    if (Sous_La_Moitie(p.Definir_MaxEnergie(), p.Definir_Energie()) && Libre_De_Sortir(p))
        Acheter_Ou_Recolter(i, 0, 2, 1);

    p.Recuperer_AutoMagie(Param);
    Acheter_Seulement(i, 3, Sous_La_Moitie(p.Definir_MaxMagie(), p.Definir_Magie()));

    p.Recuperer_AutoMoral(Param);
    Acheter_Seulement(i, 4, Sous_La_Moitie(p.Definir_MaxMoral(), p.Definir_Moral()));
}

// The resource that the worn weapon uses up at each blow, when too little of it is left for
// one more. Index -1 reads 0 held and 0 needed, so nothing.
void Munitions(int32_t i) {
    const ClsJeuPerso& p = Perso(i);
    const int16_t r = p.PerteRessourceIndice;
    const double requis = r < 0 ? 0 : p.PerteRessourceQuantite;
    if (p.Definir_Ressources(r) < requis && Libre_De_Sortir(p) && p.Inactif()) Acheter_Ou_Recolter(i, r, 0, r);
}

}  // namespace

void Gerer_Besoins(int32_t i) {
    if (Perso(i).IA_Manger) Manger(i);
    Munitions(i);
}

void Gerer_Achats(int32_t i) {
    int32_t maison = -1;
    const bool trouve = Chercher_Maison(i, i, 0, 5, 0, maison);
    const ClsJeuPerso& p = Perso(i);
    const bool repose = !Sous_La_Moitie(p.Definir_MaxEnergie(), p.Definir_Energie()) &&
                        !Sous_La_Moitie(p.Definir_MaxMoral(), p.Definir_Moral());
    const bool place = !p.ObjetsInventaire.empty() && !p.ObjetsInventaire.back().Actif();
    if (repose && Perso_Riche(i) && p.Definir_Vie() == p.Definir_MaxVie() && place && !p.DansMaison &&
        p.Inactif() && trouve && maison >= 0)
        Aller_Chez(i, maison);
}

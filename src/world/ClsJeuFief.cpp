#include "world/ClsJeuFief.h"

#include <algorithm>
#include <cmath>

#include "characters/ClsJeuPerso.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "world/ClsJeuBatiment.h"

namespace {

double Bonus_Vie_Chateau(int epoque, const ClsJeuParam& param) {
    return Convertir_Souple(param.Epoque_BonusVieChateau(epoque));
}

// A quantity that shrank below nothing moves nothing.
double Entier_Positif(double q) { return std::max(Int(q), 0.0); }

}  // namespace

void ClsJeuFief::Init(const ClsJeuParam& param) {
    Ressources.assign(static_cast<std::size_t>(std::max<int16_t>(param.NombreRessources, 0)), 0.0);
}

double ClsJeuFief::Definir_Ressources(int r) const {
    if (r < 0) return 0;
    return Ressources[static_cast<std::size_t>(r)];
}

void ClsJeuFief::Definir_Ressources(int r, double quantite) {
    Ressources[static_cast<std::size_t>(r)] = std::max(quantite, 0.0);
}

// The epoch itself changes only when the castle has taken in its new health (Restauration).
void ClsJeuFief::Changer_Epoque(ClsJeuBatiment& chateau, const ClsJeuParam& param) {
    if (!chateau.Visible() || ChangementEpoque || Epoque >= param.NombreEpoques - 1) return;
    const double b = Bonus_Vie_Chateau(Epoque + 1, param);
    ChangementEpoque = true;
    chateau.MaxVie = Arrondir_En<int32_t>(chateau.MaxVie + b);
    chateau.ReserveVie += b + 1;
}

// Low is looked for among the resources of the fief's epochs, High among all; both searches
// start from resource 0 whatever its epoch and keep the first of equal whole stocks, so a
// resource of a later epoch never gains unless it is resource 0.
void ClsJeuFief::Transaction_Ressources(const ClsJeuParam& param) {
    const int n = static_cast<int>(Ressources.size());
    if (n == 0) return;
    int bas = 0, haut = 0;
    for (int r = 1; r < n; ++r) {
        const double entier = Int(Ressources[r]);
        if (param.Ressources_Epoque(r) <= Epoque && entier < Int(Ressources[bas])) bas = r;
        if (entier > Int(Ressources[haut])) haut = r;
    }
    if (std::fabs(Ressources[haut] - Ressources[bas]) > 0.02) {
        Ressources[bas] += 0.02;
        Ressources[haut] -= 0.02;
    }
}

void ClsJeuFief::Restaurer_Chateau(double q, ClsJeuPerso& perso, bool tout) {
    const double argent = perso.Definir_Argent();
    if (q > argent || tout) q = argent;
    TresorRestauration += q;
    perso.Definir_Argent(argent - q);
}

// One point of castle health costs 5 money; the treasure pays for what is missing plus one.
void ClsJeuFief::Restauration(ClsJeuBatiment& chateau) {
    if (chateau.MaxVie > chateau.Definir_Vie()) {
        const double n = std::min(chateau.MaxVie - chateau.Definir_Vie() + 1, TresorRestauration * 0.2);
        chateau.ReserveVie += n;
        TresorRestauration -= n / 0.2;
    }
    if (chateau.Visible() && chateau.ReserveVie == 0 && ChangementEpoque) {
        ++Epoque;
        ChangementEpoque = false;
    }
}

// The market has no money of its own and does not bargain.
void ClsJeuFief::Vendre(int r, double q, ClsJeuPerso& perso, const ClsJeuParam& param, bool tout) {
    const double porte = perso.Definir_Ressources(r);
    if (q > porte || tout) q = porte;
    q = Entier_Positif(q);
    perso.Definir_Ressources(r, porte - q);
    Ressources[static_cast<std::size_t>(r)] += q;
    perso.Definir_Argent(perso.Definir_Argent() + param.Ressources_PrixVente(r) * q);
}

// A unit price of 0 puts no money limit: with tout the buyer takes all that fits.
void ClsJeuFief::Acheter(int r, double q, ClsJeuPerso& perso, const ClsJeuParam& param, bool tout) {
    const double u = param.Ressources_PrixVente(r) * param.CoefficientAchat;
    const double argent = perso.Definir_Argent();
    double& stock = Ressources[static_cast<std::size_t>(r)];
    if (u > 0 && (u * q > argent || tout)) {
        q = argent / u;
    } else if (tout) {
        q = stock;
    }
    q = std::min(q, stock);
    q = Entier_Positif(std::min(q, perso.Definir_MaxRessources(r) - perso.Definir_Ressources(r)));
    perso.Definir_Ressources(r, perso.Definir_Ressources(r) + q);
    stock -= q;
    perso.Definir_Argent(argent - u * q);
}

void ClsJeuFief::Empreindre(Empreinte& e) const {
    e.Ajouter(Equipe);
    e.Ajouter(Peuple);
    e.Ajouter(Epoque);
    e.Ajouter(ChangementEpoque);
    e.Ajouter(NombreSujets);
    e.Ajouter(NombreMorts);
    e.Ajouter(TresorRestauration);
    e.Ajouter(Ressources);
    e.Ajouter(ObjetsFabriques);
}

// Monster fiefs have no epochs to their castle: only a human fief adds the bonuses.
void Initialiser_Chateau(ClsJeuBatiment& chateau, const ClsJeuFief& fief, const ClsJeuParam& param) {
    chateau.Largeur = param.ChateauxLargeur;
    chateau.Hauteur = param.ChateauxHauteur;
    double maxVie = param.ChateauxMaxVie;
    if (fief.Peuple == 0)
        for (int e = 0; e <= fief.Epoque; ++e) maxVie += Bonus_Vie_Chateau(e, param);
    chateau.MaxVie = Arrondir_En<int32_t>(maxVie);
    chateau.Definir_Vie(chateau.MaxVie);
}

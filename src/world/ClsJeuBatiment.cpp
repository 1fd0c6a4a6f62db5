#include "world/ClsJeuBatiment.h"

#include <algorithm>

#include "characters/ClsJeuPerso.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "world/Globales.h"

namespace {

// A quantity that shrank below nothing moves nothing.
double Entier_Positif(double q) { return std::max(Int(q), 0.0); }

void Ajouter_Ressource(ClsJeuPerso& perso, int r, double q) {
    perso.Definir_Ressources(r, perso.Definir_Ressources(r) + q);
}

void Ajouter_Argent(ClsJeuPerso& perso, double q) { perso.Definir_Argent(perso.Definir_Argent() + q); }

int16_t Prix_Service(const ClsJeuPerso& perso, int16_t service, const ClsJeuParam& param) {
    return perso.Prix_Marchandee(param.Service_Prix(service), param);
}

}  // namespace

void ClsJeuBatiment::Creer(int32_t x, int32_t y, int16_t type, ClsJeuPerso& constructeur,
                           const ClsJeuParam& param) {
    if (Termine) Demolir(constructeur, param);
    PositionX = x;
    PositionY = y;
    Largeur = param.Batiment_Largeur(type);
    Hauteur = param.Batiment_Hauteur(type);
    EntreePositionX = Arrondir_En<int16_t>(param.Batiment_EntreePositionX(type));
    EntreePositionY = Arrondir_En<int16_t>(param.Batiment_EntreePositionY(type));
    Termine = false;
    MaxVie = param.Batiment_MaxVie(type);
    Vie = MaxVie * 0.09;
    Argent = 0;
    Stock = 0;
    // A better builder gets a bigger store.
    const double niveau = constructeur.Definir_Niveau_CompetenceSpeciales(0);
    MaxStock = Int(niveau * param.Batiment_MaxStockVente(type) / param.PersosNiveauSpecialesDepart);
    Type = type;
    Magasin = param.Batiment_Magasin(type);
    Fabrique = param.Batiment_Fabrique(type);
    Service = param.Batiment_Service(type);
    Definir_Nombre_Stock_Objet(Fabrique ? param.Batiment_NombreObjetsFabriques(type) : 1);
    for (int r = 0; r < param.NombreRessources; ++r) Ajouter_Ressource(constructeur, r, -param.Batiment_Prix(type, r));
    constructeur.Visible(true);
    MaisonsCreees.push_back(Numero);
}

void ClsJeuBatiment::Demolir(ClsJeuPerso& proprietaire, const ClsJeuParam& param) {
    // An empty slot (no maximum) has nothing to give back.
    for (int r = 0; r < param.NombreRessources && MaxVie > 0; ++r) {
        const int32_t prix = param.Batiment_Prix(Type, r);
        if (prix > 0) Ajouter_Ressource(proprietaire, r, prix * 0.5 * Vie / MaxVie);
    }
    Definir_Vie(0);
    if (proprietaire.DansSaMaison) {
        proprietaire.DansSaMaison = false;
        proprietaire.Definir_Action(0);
    }
    proprietaire.Calculer_Apparence(*this, param);
}

void ClsJeuBatiment::Restauration() {
    if (ReserveVie < 0.1) {
        ReserveVie = 0;
        return;
    }
    ReserveVie -= 0.1;
    Definir_Vie(Vie + 0.1);
}

double ClsJeuBatiment::Definir_Vie() const { return std::min(static_cast<double>(MaxVie), Vie + ReserveVie); }

// The first full health finishes a building; later damage and repair leave it finished
// until it falls to 0.
void ClsJeuBatiment::Definir_Vie(double v) {
    Vie = v;
    if (v >= MaxVie) {
        Vie = MaxVie;
        Termine = true;
        EnConstruction = false;
    } else if (v <= 0) {
        Termine = false;
        EnConstruction = false;
        ReserveVie = 0;
    } else {
        EnConstruction = true;
    }
}

int16_t ClsJeuBatiment::Etat(const ClsJeuParam& param) const {
    const int16_t n = param.Batiment_NombreEtapeFabrication(Type);
    if (!Termine) return static_cast<int16_t>(Int(Vie / MaxVie * n));
    if ((Magasin || Fabrique) && Stock < 1) return static_cast<int16_t>(n - 1);
    return n;
}

int16_t ClsJeuBatiment::Definir_NumeroAnimation(const ClsJeuParam& param) {
    ++NumeroAnimation;
    if (NumeroAnimation > param.Batiment_NombreEtapeAnimation(Type) - 1) NumeroAnimation = 0;
    return NumeroAnimation;
}

void ClsJeuBatiment::Definir_Stock(double valeur) { Stock = std::min(valeur, MaxStock); }

void ClsJeuBatiment::Stock_Objets(int n, double valeur) {
    double& ligne = StockObjets[static_cast<std::size_t>(n)];
    Stock += valeur - ligne;
    ligne = valeur;
}

// A line must be in the rules' list of the type and in the house's stock alike.
int16_t ClsJeuBatiment::Objet_De_Ligne(int n, const ClsJeuParam& param) const {
    const int lignes = std::min<int>(param.Batiment_NombreObjetsFabriques(Type), static_cast<int>(StockObjets.size()));
    return n >= 0 && n < lignes ? param.Batiment_ObjetFabrique(Type, n) : int16_t{-1};
}

void ClsJeuBatiment::Definir_Nombre_Stock_Objet(int32_t nombre) {
    StockObjets.assign(static_cast<std::size_t>(std::max(nombre, 0)), 0.0);
}

void ClsJeuBatiment::Transfert_Argent_Prendre(double q, ClsJeuPerso& perso, bool tout) {
    if (tout) q = Argent;
    q = std::min(q, Argent);
    Ajouter_Argent(perso, q);
    Argent -= q;
}

void ClsJeuBatiment::Transfert_Argent_Deposer(double q, ClsJeuPerso& perso, bool tout) {
    if (tout) q = perso.Definir_Argent();
    q = std::min(q, perso.Definir_Argent());
    Ajouter_Argent(perso, -q);
    Argent += q;
}

void ClsJeuBatiment::Transfert_Stock_Prendre(double q, ClsJeuPerso& perso, const ClsJeuParam& param, bool tout) {
    const int r = param.Batiment_RessourceFabrique(Type);
    if (r < 0) return;
    if (tout) q = Stock;
    q = std::min(q, Stock);
    q = Entier_Positif(std::min(q, perso.Definir_MaxRessources(r) - perso.Definir_Ressources(r)));
    Ajouter_Ressource(perso, r, q);
    Stock -= q;
}

void ClsJeuBatiment::Transfert_Stock_Deposer(double q, ClsJeuPerso& perso, const ClsJeuParam& param, bool tout) {
    const int r = param.Batiment_RessourceFabrique(Type);
    if (r < 0) return;
    const double porte = perso.Definir_Ressources(r);
    if (tout) q = porte;
    q = std::min(q, porte);
    q = Entier_Positif(std::min(q, MaxStock - Stock));
    Ajouter_Ressource(perso, r, -q);
    Stock += q;
}

// The unit price and the total are 16-bit integers, as the price arithmetic has always
// been. The room is measured against the whole units carried, so the last unit bought may
// be cut by the capacity and still be paid. A unit price of 0 puts no money limit: with
// tout the buyer takes all that fits.
void ClsJeuBatiment::Acheter(double q, ClsJeuPerso& perso, const ClsJeuParam& param, bool tout) {
    const int r = param.Batiment_RessourceFabrique(Type);
    if (r < 0) return;
    const int16_t u = perso.Prix_Marchandee(param.Ressources_PrixVente(r) * param.CoefficientAchat, param);
    const double argent = perso.Definir_Argent();
    if (u > 0 && (u * q > argent || tout)) {
        q = argent / u;
    } else if (tout) {
        q = Stock;
    }
    q = std::min(q, Stock);
    q = Entier_Positif(std::min(q, perso.Definir_MaxRessources(r) - Int(perso.Definir_Ressources(r))));
    Ajouter_Ressource(perso, r, q);
    Stock -= q;
    const int16_t p = Arrondir_En<int16_t>(u * q);
    Ajouter_Argent(perso, -p);
    Argent += p;
    perso.Gestion_Niveau_Comp_Speciale(3, p, param);
}

// The owner uses its own service for nothing; resurrection (service 1) is for the dead only.
bool ClsJeuBatiment::Service_Utilisable(const ClsJeuPerso& perso, const ClsJeuParam& param) const {
    if (Stock < 1) return false;
    if (perso.Numero != Numero && perso.Definir_Argent() < Prix_Service(perso, Service, param)) return false;
    return !(Service == 1 && perso.Vivant());
}

void ClsJeuBatiment::Service_Utiliser(ClsJeuPerso& perso, const ClsJeuParam& param, double montant) {
    if (Service == 1) {
        perso.Vivant(true);
        perso.Vie.Valeur = perso.Definir_MaxVie() * param.Service_Coefficient(1);
        Stock -= 1;
    }
    if (Service == 2) {
        // The bounty of a kill goes into the till of the killer's own house.
        Argent += montant;
        perso.Gestion_Niveau_Prime(montant, param);
    }
    if (perso.Numero != Numero) {
        const int16_t p = Prix_Service(perso, Service, param);
        Ajouter_Argent(perso, -p);
        Argent += p;
        perso.Gestion_Niveau_Comp_Speciale(3, p, param);
    }
    const int16_t effet = Souple_En<int16_t>(param.Service_Effet(Service));
    if (effet >= 0)
        EffetsMaisons[static_cast<std::size_t>(Numero)].Activer_Effet(effet, PositionX, PositionY, Largeur, Hauteur,
                                                                      param, false);
}

void ClsJeuBatiment::Empreindre(Empreinte& e) const {
    e.Ajouter(Numero);
    e.Ajouter(PositionX);
    e.Ajouter(PositionY);
    e.Ajouter(Largeur);
    e.Ajouter(Hauteur);
    e.Ajouter(EntreePositionX);
    e.Ajouter(EntreePositionY);
    e.Ajouter(Termine);
    e.Ajouter(EnConstruction);
    e.Ajouter(Vie);
    e.Ajouter(ReserveVie);
    e.Ajouter(MaxVie);
    e.Ajouter(Argent);
    e.Ajouter(MaxStock);
    e.Ajouter(Magasin);
    e.Ajouter(Fabrique);
    e.Ajouter(Service);
    e.Ajouter(Type);
    e.Ajouter(Stock);
    e.Ajouter(StockObjets);
    e.Ajouter(NumeroAnimation);
}

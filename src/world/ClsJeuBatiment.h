// A house or a castle; the array that holds it (Maisons or Chateaux) tells which. House slot
// i belongs to character i, castle f to fief f. A slot whose Vie is 0 holds no building.
//
// The operations never refuse: a quantity that does not fit shrinks, down to nothing. The
// callers (interface, AI) test Service_Utilisable and the like beforehand.
#pragma once

#include <cstdint>
#include <vector>

#include "rules/Empreinte.h"

class ClsJeuParam;
class ClsJeuPerso;

class ClsJeuBatiment {
public:
    int32_t Numero = 0;    // own index, which is also the owner's: a character, or a fief
    int32_t PositionX = 0;  // top-left corner, in metres
    int32_t PositionY = 0;
    int16_t Largeur = 0;
    int16_t Hauteur = 0;
    int16_t EntreePositionX = 0;  // door, as an offset from the centre
    int16_t EntreePositionY = 0;
    bool Termine = false;         // reached full health once and has not fallen since
    bool EnConstruction = false;  // kept in world files only
    double Vie = 0;
    double ReserveVie = 0;        // health still to come in, 0.1 a tick
    int32_t MaxVie = 0;
    double Argent = 0;            // the till
    double MaxStock = 0;
    bool Magasin = false;         // sells what it makes
    bool Fabrique = false;        // makes objects
    int16_t Service = 0;          // 0 for none
    int16_t Type = 0;             // building type of a house
    double Stock = 0;             // resource or service units; for a workshop, the sum of StockObjets
    std::vector<double> StockObjets;  // one count per object the type makes
    int16_t NumeroAnimation = 0;  // frame of the idle animation

    // Builds a new house of this type at (x, y), paid in full now by the builder. A finished
    // house in the slot is torn down first, with its refund.
    void Creer(int32_t x, int32_t y, int16_t type, ClsJeuPerso& constructeur, const ClsJeuParam& param);
    // Tears the house down; the owner gets back half the price, less if it was damaged.
    void Demolir(ClsJeuPerso& proprietaire, const ClsJeuParam& param);
    // Moves 0.1 of the reserve into health; a reserve under 0.1 is dropped.
    void Restauration();

    bool Visible() const { return Vie > 0; }

    // Read: health with the reserve, within MaxVie. Write: sets the health, finishes the
    // building at MaxVie and clears it at 0.
    double Definir_Vie() const;
    void Definir_Vie(double v);

    // Row of the construction picture: 0 … n, n - 1 being the finished but empty shop.
    int16_t Etat(const ClsJeuParam& param) const;
    // Steps the idle animation and returns the frame.
    int16_t Definir_NumeroAnimation(const ClsJeuParam& param);

    double Definir_Stock() const { return Stock; }
    void Definir_Stock(double valeur);   // at most MaxStock

    // One line of a workshop's stock; the write keeps Stock the sum of the lines.
    double Stock_Objets(int n) const { return StockObjets[static_cast<std::size_t>(n)]; }
    void Stock_Objets(int n, double valeur);

    // The object of line n of the house's list; -1 when the house has no such line.
    int16_t Objet_De_Ligne(int n, const ClsJeuParam& param) const;

    // Read: the last index of StockObjets. Write: the number of lines, all at 0.
    int32_t Definir_Nombre_Stock_Objet() const { return static_cast<int32_t>(StockObjets.size()) - 1; }
    void Definir_Nombre_Stock_Objet(int32_t nombre);

    // Money between the till and a character; tout moves everything there is.
    void Transfert_Argent_Prendre(double q, ClsJeuPerso& perso, bool tout);
    void Transfert_Argent_Deposer(double q, ClsJeuPerso& perso, bool tout);
    // The house's resource between its stock and a character, in whole units.
    void Transfert_Stock_Prendre(double q, ClsJeuPerso& perso, const ClsJeuParam& param, bool tout);
    void Transfert_Stock_Deposer(double q, ClsJeuPerso& perso, const ClsJeuParam& param, bool tout);
    // A character buys the house's resource at its bargained price.
    void Acheter(double q, ClsJeuPerso& perso, const ClsJeuParam& param, bool tout);

    bool Service_Utilisable(const ClsJeuPerso& perso, const ClsJeuParam& param) const;
    // montant is the bounty of service 2.
    void Service_Utiliser(ClsJeuPerso& perso, const ClsJeuParam& param, double montant);

    void Empreindre(Empreinte& e) const;
};

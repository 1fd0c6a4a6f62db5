// The one record behind every living thing: villager, soldier, hero or monster.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "rules/Empreinte.h"

class ClsJeuParam;

// Every character stands in a box of 24 × 32 metres.
inline constexpr int32_t LargeurPerso = 24;
inline constexpr int32_t HauteurPerso = 32;

class ClsJeuPerso {
public:
    // Identity and side
    int32_t Numero = 0;          // own index in Persos
    std::string Nom;
    int32_t Joueur = 0;          // above 0 for a hero kept in a character file
    int32_t Fief = 0;
    int32_t Equipe = 0;
    int16_t Peuple = 0;          // 0 human, anything else a monster people
    bool Feminin = false;

    // Looks
    int16_t ApparenceBase = 0;
    bool ApparenceFichier = false;
    std::string FichierApparence;

    // Place and targets
    int32_t PositionX = 0, PositionY = 0;
    int32_t DestinationX = 0, DestinationY = 0;
    int32_t PersoCible = 0, MaisonCible = 0, RessourceCible = 0, ChateauCible = 0;
    int32_t Chef = -1;
    int16_t ObjetUtilise = -1;

    // Behaviour
    bool ModeAuto = false;
    bool IA = false;
    std::string FichierIA;
    int16_t EtapeIA = 0;
    bool Parole = true, Progresse = true, Volant = false, Kamikaze = false;
    bool IA_Equiper = true, IA_Manger = true, IA_Pacifique = false, IA_Temeraire = false, IA_Berserk = false;

    // Goods
    double Argent = 0;
    std::vector<double> Ressources;   // carried quantities, one per resource

    void Init(int32_t numero, const ClsJeuParam& param);

    // Current action as its numeric code.
    int16_t Definir_Action() const { return CodeAction; }
    void Definir_Action(int16_t code) { CodeAction = code; }

    double Definir_Argent() const { return Argent; }
    void Definir_Argent(double valeur);
    double Definir_Ressources(int r) const;
    void Definir_Ressources(int r, double quantite);

    void Empreindre(Empreinte& e) const;

private:
    int16_t CodeAction = 0;
};

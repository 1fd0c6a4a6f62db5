// What one tick of a character looks at besides itself: the things that its target
// indices name, looked up in the world arrays at the start of its tick. An index outside
// its array names nothing. These pointers live for one call of Deplacement: never keep
// them, since the arrays may grow between ticks.
#pragma once

class ClsJeuPerso;
class ClsJeuBatiment;
class ClsJeuFief;
class ClsJeuRessources;

struct CiblesDeplacement {
    ClsJeuRessources* Ressource = nullptr;   // Ressources[RessourceCible]
    ClsJeuPerso* Cible = nullptr;            // Persos[PersoCible]
    ClsJeuBatiment* Maison = nullptr;        // Maisons[MaisonCible]
    ClsJeuBatiment* SaMaison = nullptr;      // Maisons[Numero]: its own, where harvest overflows
    ClsJeuBatiment* Chateau = nullptr;       // Chateaux[ChateauCible]
    ClsJeuBatiment* SonChateau = nullptr;    // Chateaux[Fief]
    ClsJeuFief* Fief = nullptr;              // Fiefs[Fief]
};

CiblesDeplacement Lire_Cibles(const ClsJeuPerso& p);

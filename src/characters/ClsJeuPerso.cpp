#include "characters/ClsJeuPerso.h"

#include <algorithm>

#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"

void ClsJeuPerso::Init(int32_t numero, const ClsJeuParam& param) {
    ApparenceBase = static_cast<int16_t>(Int(Rnd() * param.PersosNombreApparences));
    ApparenceFichier = false;
    FichierApparence.clear();

    Numero = numero;
    PersoCible = numero;
    ChateauCible = Fief;
    Chef = -1;
    RessourceCible = 0;
    ObjetUtilise = -1;

    Parole = Progresse = true;
    IA_Equiper = IA_Manger = true;
    Volant = IA = IA_Pacifique = IA_Temeraire = IA_Berserk = Kamikaze = false;

    Ressources.assign(static_cast<std::size_t>(std::max<int16_t>(param.NombreRessources, 0)), 0.0);
    CodeAction = 0;
}

void ClsJeuPerso::Definir_Argent(double valeur) { Argent = std::max(valeur, 0.0); }

double ClsJeuPerso::Definir_Ressources(int r) const {
    if (r < 0) return 0;
    return Ressources[static_cast<std::size_t>(r)];
}

void ClsJeuPerso::Definir_Ressources(int r, double quantite) {
    Ressources[static_cast<std::size_t>(r)] = std::max(quantite, 0.0);
}

void ClsJeuPerso::Empreindre(Empreinte& e) const {
    e.Ajouter(Numero);
    e.Ajouter(Nom);
    e.Ajouter(Joueur);
    e.Ajouter(Fief);
    e.Ajouter(Equipe);
    e.Ajouter(Peuple);
    e.Ajouter(Feminin);
    e.Ajouter(ApparenceBase);
    e.Ajouter(ApparenceFichier);
    e.Ajouter(FichierApparence);
    for (int32_t v : {PositionX, PositionY, DestinationX, DestinationY, PersoCible, MaisonCible,
                      RessourceCible, ChateauCible, Chef})
        e.Ajouter(v);
    e.Ajouter(ObjetUtilise);
    e.Ajouter(ModeAuto);
    e.Ajouter(IA);
    e.Ajouter(FichierIA);
    e.Ajouter(EtapeIA);
    for (bool b : {Parole, Progresse, Volant, Kamikaze, IA_Equiper, IA_Manger, IA_Pacifique,
                   IA_Temeraire, IA_Berserk})
        e.Ajouter(b);
    e.Ajouter(Argent);
    e.Ajouter(Ressources);
    e.Ajouter(CodeAction);
}

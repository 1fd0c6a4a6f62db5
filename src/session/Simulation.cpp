#include "session/Simulation.h"

#include <ostream>

#include "ai/TablesIA.h"
#include "platform/ClsPerEcran.h"
#include "platform/Peripheriques.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"
#include "rules/Horloge.h"
#include "session/ModMain.h"
#include "session/ScriptOrdres.h"
#include "world/Globales.h"
#include "world/ModGenererMonde.h"

void Creer_Heros_Actif() {
    Persos.assign(1, ClsJeuPerso{});
    Maisons.assign(1, ClsJeuBatiment{});
    PersoActif = 0;
    Persos[0].Fief = 0;
    Persos[0].Init(0, Param);
}

ChoixPartie Preparer_Session(std::optional<uint64_t> graine) {
    Reinitialiser_Globales();
    FenetreMuette fenetre;
    Demarrer_Programme(fenetre);
    if (graine) Definir_Graine(*graine);
    ChoixPartie choix = Lire_Ini_Partie();
    Creer_Heros_Actif();
    return choix;
}

Simulateur::Simulateur() : moteur_(Peripheriques{fenetre_, ecran_, souris_, clavier_}) {}

bool Simulateur::Ouvrir(const ChoixPartie& choix) {
    Piloter_Horloge(0);
    return moteur_.Ouvrir(choix);
}

void Simulateur::Passe(ScriptOrdres* script) {
    if (script != nullptr) script->Appliquer(moteur_.NombreTours);
    Avancer_Horloge(1.5f / static_cast<float>(Jeu.Definir_Vitesse()));
    moteur_.Passe();
}

bool Simulateur::Capturer(const std::filesystem::path& fichier) {
    const ClsPerEcran reglages;
    if (!ecran_.Affiche() && !ecran_.Allumer(reglages.Width(), reglages.Height())) return false;
    moteur_.Charger_Images();
    moteur_.Centrer_Camera();
    moteur_.Rendu();
    return ecran_.Enregistrer_BMP(fichier);
}

std::optional<int64_t> Simuler(const ChoixPartie& choix, int64_t ticks, ScriptOrdres* script) {
    Simulateur simulateur;
    if (!simulateur.Ouvrir(choix)) return std::nullopt;
    while (simulateur.Ticks() < ticks && !FinPartie) simulateur.Passe(script);
    return simulateur.Ticks();
}

uint64_t Empreinte_Etat() {
    Empreinte e;
    Empreindre_Monde(e);
    Empreindre_IA(e);
    e.Ajouter(Etat_Hasard());
    return e.Valeur();
}

void Ecrire_Fiefs(std::ostream& sortie) {
    for (std::size_t f = 0; f < Fiefs.size(); ++f) {
        const ClsJeuFief& fief = Fiefs[f];
        double argent = 0;
        int32_t batiments = 0;   // houses finished and standing
        for (std::size_t i = 0; i < Persos.size(); ++i) {
            const ClsJeuPerso& p = Persos[i];
            if (p.Fief != static_cast<int32_t>(f)) continue;
            argent += p.Argent;
            if (i < Maisons.size() && Maisons[i].Termine && Maisons[i].Visible()) ++batiments;
        }
        double stock = 0;
        for (double q : fief.Ressources) stock += q;
        sortie << "fief=" << f << " epoque=" << fief.Epoque << " vivants=" << fief.NombreSujets - fief.NombreMorts
               << " morts=" << fief.NombreMorts << " argent=" << Texte_Nombre(argent)
               << " stock=" << Texte_Nombre(stock) << " batiments=" << batiments
               << " objets=" << fief.ObjetsFabriques << '\n';
    }
}

void Ecrire_Etat(std::ostream& sortie) {
    for (std::size_t i = 0; i < Persos.size(); ++i) {
        const ClsJeuPerso& p = Persos[i];
        sortie << "perso=" << i << " fief=" << p.Fief << " peuple=" << p.Peuple << " x=" << p.PositionX
               << " y=" << p.PositionY << " action=" << p.Definir_Action() << " vie=" << Texte_Nombre(p.Definir_Vie())
               << " energie=" << Texte_Nombre(p.Definir_Energie()) << " magie=" << Texte_Nombre(p.Definir_Magie())
               << " moral=" << Texte_Nombre(p.Definir_Moral()) << '\n';
    }
    for (std::size_t k = 0; k < Ressources.size(); ++k) {
        const ClsJeuRessources& g = Ressources[k];
        sortie << "gisement=" << k << " type=" << g.TypeTerrain << " x=" << g.PositionX << " y=" << g.PositionY
               << " quantite=" << Texte_Nombre(g.Quantite) << '\n';
    }
    for (std::size_t f = 0; f < Chateaux.size(); ++f) {
        const ClsJeuBatiment& c = Chateaux[f];
        sortie << "chateau=" << f << " x=" << c.PositionX << " y=" << c.PositionY << " vie=" << Texte_Nombre(c.Vie)
               << '\n';
    }
}

void Ecrire_Abandons(std::ostream& sortie) {
    sortie << "abandons=chateaux:" << Abandons.Chateaux << ",gisements:" << Abandons.Gisements << '\n';
}

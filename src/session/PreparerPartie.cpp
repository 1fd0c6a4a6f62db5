#include "session/PreparerPartie.h"

#include <string>

#include "rules/BoiteMessage.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"
#include "world/Globales.h"
#include "world/ModGenererMonde.h"

namespace {

std::size_t Taille(int32_t n) { return static_cast<std::size_t>(n < 0 ? 0 : n); }

// A people chosen in a list whose last entry means "at random".
int16_t Peuple_Choisi(int16_t choix) {
    if (choix > Param.NombrePeuples - 1) return static_cast<int16_t>(Int(Rnd() * Param.NombrePeuples));
    return choix;
}

// Every house slot and effect slot follows the characters' bounds.
void Dimensionner_Emplacements() {
    const std::size_t n = Persos.size();
    Maisons.assign(n, ClsJeuBatiment{});
    EffetsPersos.assign(n, ClsJeuEffet{});
    EffetsMaisons.assign(n, ClsJeuEffet{});
    for (std::size_t i = 0; i < n; ++i) Maisons[i].Numero = static_cast<int32_t>(i);
}

void Creer_Fiefs(std::size_t n) {
    Fiefs.assign(n, ClsJeuFief{});
    Chateaux.assign(n, ClsJeuBatiment{});
    for (std::size_t f = 0; f < n; ++f) Chateaux[f].Numero = static_cast<int32_t>(f);
}

// Creates the character of slot i, unless it is the hero, who comes ready from the dialog.
void Creer_Perso(int32_t i, int32_t fief) {
    if (i == PersoActif) return;
    ClsJeuPerso& p = Persos[static_cast<std::size_t>(i)];
    p = ClsJeuPerso{};
    p.Fief = fief;
    p.Init(i, Param);
}

// Villagers belong to the fiefs in order: the first row's villagers, then the second's.
void Repartir_Villageois(const ChoixPartie& choix) {
    int32_t fief = 0;
    int32_t restants = choix.Fiefs.empty() ? 0 : choix.Fiefs[0].Sujets;
    for (int32_t i = 0; i < static_cast<int32_t>(Persos.size()); ++i) {
        if (restants == 0 && fief + 1 < static_cast<int32_t>(choix.Fiefs.size())) {
            ++fief;
            restants = choix.Fiefs[static_cast<std::size_t>(fief)].Sujets;
        }
        --restants;
        if (i == PersoActif) continue;
        Creer_Perso(i, fief);
        Persos[static_cast<std::size_t>(i)].Changer_Race(Fiefs[static_cast<std::size_t>(fief)].Peuple, Param, -1, -1, false);
    }
}

void Doter_Fiefs(int16_t epoque) {
    for (ClsJeuFief& f : Fiefs) {
        f.Init(Param);
        f.Epoque = epoque;
        if (f.Peuple != 0) continue;
        for (int r = 0; r < Param.NombreRessources; ++r)
            if (Param.Ressources_Epoque(r) <= f.Epoque)
                f.Definir_Ressources(r, Param.Epoque_ChateauxRessourcesDepart(f.Epoque));
    }
}

void Doter_Villageois() {
    for (ClsJeuPerso& p : Persos) {
        const ClsJeuFief& fief = Fiefs[static_cast<std::size_t>(p.Fief)];
        if (p.Peuple == 0) {
            for (int r = 0; r < Param.NombreRessources; ++r) {
                if (Param.Ressources_Epoque(r) <= fief.Epoque && Param.Ressources_NecessairePourConstruire(r))
                    p.Definir_Ressources(r, Param.Epoque_PersosRessourcesDepart(fief.Epoque));
                p.Definir_Argent(Param.Epoque_PersosArgentDepart(fief.Epoque));
            }
        }
        p.Equipe = fief.Equipe;
    }
}

void Nouveau_Monde(const ChoixPartie& choix) {
    Creer_Fiefs(choix.Fiefs.size());
    for (std::size_t i = 0; i < choix.Fiefs.size(); ++i) {
        Fiefs[i].Equipe = choix.Fiefs[i].Equipe;
        Fiefs[i].Peuple = Peuple_Choisi(choix.Fiefs[i].Peuple);
        Fiefs[i].NombreSujets = choix.Fiefs[i].Sujets;
    }
    Persos.resize(Taille(choix.Total_Villageois()));
    Dimensionner_Emplacements();
    Repartir_Villageois(choix);
    Doter_Fiefs(choix.Epoque);
    Doter_Villageois();
    Monde.Generer_Monde();
    Abandons.Chateaux = Placer_Chateaux();
    Abandons.Gisements = Placer_Ressources();
    Placer_Persos();
}

// Soldier i of a battle: army 0 stands in columns from x = 640, army 1 1000 metres to the
// right; columns are 20 deep and the counters run on from one army to the other. Each
// soldier's target is a soldier of the other army, wrapped when that army is smaller.
void Placer_Soldat(ClsJeuPerso& p, int32_t i, int32_t n0, int32_t n1, int32_t ligne, int32_t colonne) {
    if (i > n0 - 1) {
        p.Fief = 1;
        p.PositionX = LargeurPerso * colonne + 1640;
        p.PositionY = HauteurPerso * ligne + 640;
        p.PersoCible = i - n0;
        while (p.PersoCible >= n0) p.PersoCible -= n0;
    } else {
        p.PositionX = LargeurPerso * colonne + 640;
        p.PositionY = HauteurPerso * ligne + 640;
        p.Fief = 0;
        p.PersoCible = i + n0;
        while (p.PersoCible >= n0 + n1) p.PersoCible -= n1;
    }
    const int16_t peuple = Fiefs[static_cast<std::size_t>(p.Fief)].Peuple;
    if (peuple > 0) p.Changer_Race(peuple, Param, -1, -1, false);
    p.Definir_Action(300);
    p.DestinationX = p.PositionX;
    p.DestinationY = p.PositionY;
    if (i != PersoActif) {
        p.Gestion_Tous_Niveaux();
        p.Ajuster_Bonus();
    }
    p.Definir_Attaque(p.Definir_MaxAttaque());
    p.Definir_Defense(p.Definir_MaxDefense());
}

// The hero takes the place of the soldier in the middle of army 0, and the targets that
// named either of them are swapped.
void Echanger_Heros(int32_t n0) {
    const int32_t m = static_cast<int32_t>(Arrondir(n0 / 2.0));
    ClsJeuPerso& heros = Persos[static_cast<std::size_t>(PersoActif)];
    ClsJeuPerso& milieu = Persos[static_cast<std::size_t>(m)];
    const int32_t cibleHeros = heros.PersoCible;
    heros.PositionX = milieu.PositionX;
    heros.PositionY = milieu.PositionY;
    heros.PersoCible = milieu.PersoCible;
    milieu.PositionX = heros.DestinationX;
    milieu.PositionY = heros.DestinationY;
    milieu.PersoCible = cibleHeros;
    for (ClsJeuPerso& p : Persos) {
        if (p.PersoCible == PersoActif)
            p.PersoCible = m;
        else if (p.PersoCible == m)
            p.PersoCible = PersoActif;
    }
}

void Nouvelle_Bataille(const ChoixPartie& choix) {
    const int32_t n0 = choix.Armees[0].Sujets;
    const int32_t n1 = choix.Armees[1].Sujets;
    Creer_Fiefs(2);
    Persos.resize(Taille(n0 + n1));
    for (ClsJeuFief& f : Fiefs) f.Init(Param);
    Fiefs[0].Epoque = choix.Epoque;
    Fiefs[0].Peuple = 0;
    Fiefs[0].NombreMorts = 0;
    Fiefs[0].NombreSujets = n0;
    Fiefs[0].Equipe = 0;
    Fiefs[1].Peuple = Peuple_Choisi(choix.Armees[1].Peuple);
    Fiefs[1].NombreMorts = 0;
    Fiefs[1].NombreSujets = n1;
    Fiefs[1].Equipe = 1;
    Ressources.assign(Ressources.size(), ClsJeuRessources{});
    Dimensionner_Emplacements();

    int32_t ligne = 0, colonne = 0;
    for (int32_t i = 0; i < n0 + n1; ++i) {
        Creer_Perso(i, 0);
        ClsJeuPerso& p = Persos[static_cast<std::size_t>(i)];
        Placer_Soldat(p, i, n0, n1, ligne, colonne);
        if (++ligne % 20 == 0) {
            ligne = 0;
            ++colonne;
        }
        p.Equipe = Fiefs[static_cast<std::size_t>(p.Fief)].Equipe;
    }
    Echanger_Heros(n0);
    Monde.Generer_Monde();
    Abandons.Gisements = Placer_Ressources();
}

// Half the human villagers of a new world follow an AI script drawn at random.
void Attribuer_IA(const ChoixPartie& choix) {
    const bool nouveauMonde = choix.Page == PageNouveauMonde;
    for (int32_t i = 0; i < static_cast<int32_t>(Persos.size()); ++i) {
        ClsJeuPerso& p = Persos[static_cast<std::size_t>(i)];
        p.ModeAuto = i != PersoActif;
        if (p.Peuple != 0 || !nouveauMonde || p.Joueur != 0 || p.IA) continue;
        p.IA = Rnd() < 0.5f;
        const auto n = static_cast<double>(choix.FichiersIA.size());
        const auto k = static_cast<std::size_t>(Int(n * Rnd()));
        p.FichierIA = k < choix.FichiersIA.size() ? choix.FichiersIA[k] : std::string();
    }
}

}  // namespace

bool Preparer_Partie(const ChoixPartie& choix) {
    Monde.Largeur = choix.Largeur;
    Monde.Hauteur = choix.Hauteur;
    Ressources.assign(Taille(choix.Gisements + 1), ClsJeuRessources{});
    Abandons = {};

    if (choix.Page == PageNouveauMonde) {
        Nouveau_Monde(choix);
    } else if (choix.Page == PageNouvelleBataille) {
        Nouvelle_Bataille(choix);
    } else {
        Boite_Message("Erreur", "Ce monde ne peut pas encore être chargé : " + choix.FichierMonde,
                      GenreMessage::Critique);
        return false;
    }

    Persos[static_cast<std::size_t>(PersoActif)].Joueur = 1;
    Attribuer_IA(choix);
    return true;
}

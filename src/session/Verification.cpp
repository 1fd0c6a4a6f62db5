#include "session/Verification.h"

#include <set>

#include "rules/ClsFicINI.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "rules/VerificationParam.h"

namespace {

// Reads the keys of one file and records what is wrong with them.
class Controle {
public:
    Controle(std::string fichier, Problemes& problemes) : problemes_(problemes) { ini_.Fichier = std::move(fichier); }

    void Section(std::string section) { ini_.Section = std::move(section); }

    void Signaler(const std::string& cle, const std::string& quoi) {
        problemes_.push_back(ini_.Fichier + ":" + ini_.Section + ":" + cle + ": " + quoi);
    }

    // A key that must hold a whole number; 0 after a report when it does not.
    int64_t Entier(const std::string& cle) {
        const std::string texte = ini_.Parametre(cle);
        if (texte.empty()) {
            Signaler(cle, "clé absente ou vide");
            return 0;
        }
        const auto n = Convertir_Strict_Entier(texte);
        if (!n) Signaler(cle, "« " + texte + " » n'est pas un entier");
        return n.value_or(0);
    }

    double Reel(const std::string& cle) {
        const std::string texte = ini_.Parametre(cle);
        const auto x = Convertir_Strict_Reel(texte);
        if (!x) Signaler(cle, "« " + texte + " » n'est pas un nombre");
        return x.value_or(0);
    }

    std::string Texte(const std::string& cle) { return ini_.Parametre(cle); }

    void Intervalle(const std::string& cle, int64_t valeur, int64_t min, int64_t max) {
        if (valeur < min || valeur > max)
            Signaler(cle, std::to_string(valeur) + " hors de [" + std::to_string(min) + ", " + std::to_string(max) + "]");
    }

    // Min, Val and Max of one slider; the value must lie between the limits.
    int64_t Curseur(const std::string& min, const std::string& val, const std::string& max) {
        const int64_t bas = Entier(min), haut = Entier(max), v = Entier(val);
        if (bas > haut) Signaler(min, "au-dessus de " + max);
        Intervalle(val, v, bas, haut);
        return v;
    }

private:
    ClsFicINI ini_;
    Problemes& problemes_;
};

void Verifier_Rythme(Controle& c, const std::string& nom) {
    const int64_t min = c.Entier(nom + "Min"), max = c.Entier(nom + "Max"), v = c.Entier(nom);
    if (min <= 0) c.Signaler(nom + "Min", "doit être au-dessus de 0");
    c.Intervalle(nom, v, std::max<int64_t>(min, 1), max);
}

void Verifier_Tailles(Controle& c) {
    const int64_t tailles = c.Entier("NombreTailles");
    if (tailles < 1) c.Signaler("NombreTailles", "il faut au moins une taille");
    for (int64_t t = 1; t <= tailles; ++t) {
        const std::string n = "Taille" + std::to_string(t);
        if (c.Texte(n + "Nom").empty()) c.Signaler(n + "Nom", "nom vide");
        const std::string dimensions = c.Texte(n + "Dimensions");
        const auto etoile = dimensions.find('*');
        if (etoile == std::string::npos || !Convertir_Strict_Entier(dimensions.substr(0, etoile)) ||
            !Convertir_Strict_Entier(dimensions.substr(etoile + 1)))
            c.Signaler(n + "Dimensions", "« " + dimensions + " » n'est pas largeur*hauteur");
        c.Entier(n + "Ressources");
        if (c.Entier(n + "Fiefs") < 2) c.Signaler(n + "Fiefs", "il faut au moins deux fiefs");
    }
    c.Intervalle("TailleChoisie", c.Entier("TailleChoisie"), 1, tailles);
    const int64_t quantites = c.Entier("NombreRessources");
    for (int64_t r = 1; r <= quantites; ++r) c.Reel("Ressources" + std::to_string(r) + "Multiplicateur");
    c.Intervalle("RessourceChoisie", c.Entier("RessourceChoisie"), 1, quantites);
}

void Verifier_Monde(Controle& c) {
    c.Section("Monde");
    c.Intervalle("TypePartie", c.Entier("TypePartie"), 0, 2);
    Verifier_Tailles(c);
    c.Intervalle("EpoqueChoisie", c.Entier("EpoqueChoisie"), 1, Param.NombreEpoques);
    c.Curseur("MinLargeur", "ValLargeur", "MaxLargeur");
    c.Curseur("MinHauteur", "ValHauteur", "MaxHauteur");
    if (c.Entier("MinLargeur") <= 10) c.Signaler("MinLargeur", "une carte doit dépasser 10 cases");
    if (c.Entier("MinHauteur") <= 10) c.Signaler("MinHauteur", "une carte doit dépasser 10 cases");
    c.Curseur("MinQuantitéRessources", "ValQuantitéRessources", "MaxQuantitéRessources");
}

void Verifier_Fiefs(Controle& c) {
    c.Section("Fiefs");
    const int64_t fiefs = c.Curseur("MinFiefs", "ValFiefs", "MaxFiefs");
    if (c.Entier("MinFiefs") < 2) c.Signaler("MinFiefs", "il faut au moins deux fiefs");
    const int64_t maxFiefs = c.Entier("MaxFiefs");
    const int64_t minV = c.Entier("MinVillageoisFief"), maxV = c.Entier("MaxVillageoisFief");
    std::set<int64_t> equipes;
    for (int64_t i = 1; i <= maxFiefs; ++i) {
        const std::string n = std::to_string(i);
        c.Intervalle("ValVillageoisFief" + n, c.Entier("ValVillageoisFief" + n), minV, maxV);
        c.Intervalle("PeupleFief" + n, c.Entier("PeupleFief" + n), 1, Param.NombrePeuples + 1);
        const int64_t equipe = c.Entier("EquipeFief" + n);
        c.Intervalle("EquipeFief" + n, equipe, 1, maxFiefs);
        if (i <= fiefs) equipes.insert(equipe);
    }
    if (equipes.size() < 2) c.Signaler("EquipeFief1", "les fiefs par défaut forment une seule équipe");
}

void Verifier_Armees(Controle& c) {
    for (int a = 1; a <= 2; ++a) {
        c.Section(Section_Numerotee("Armée_", a));
        c.Curseur("MinSoldats", "ValSoldats", "MaxSoldats");
        c.Intervalle("Peuple", c.Entier("Peuple"), 1, Param.NombrePeuples + 1);
    }
}

}  // namespace

void Verifier_Ini_Jeu(Problemes& problemes) {
    Controle c("Ini_Jeu", problemes);
    c.Section("Vitesse");
    Verifier_Rythme(c, "FPS");
    Verifier_Rythme(c, "Vitesse");
}

void Verifier_Ini_Partie(Problemes& problemes) {
    Controle c("Ini_Partie", problemes);
    Verifier_Monde(c);
    Verifier_Fiefs(c);
    Verifier_Armees(c);
}

Problemes Verifier_Dossier_Jeu() {
    Problemes problemes = Verifier_Param();
    const bool reglesSaines = problemes.empty();
    Verifier_Ini_Jeu(problemes);
    if (reglesSaines) {
        Param.Reinitialiser();
        for (int groupe = 0; groupe < 7; ++groupe) Param.Init(groupe);
        Verifier_Ini_Partie(problemes);
    }
    return problemes;
}

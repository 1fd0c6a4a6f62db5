// What the code and the AI take for granted of the rule tables, beyond reading them: fixed
// roles of some resources, a ladder of building levels, epochs that can be climbed, prices
// that fit the 16-bit market arithmetic, blows that always have an effect, and so on.
//
// The checks run on a rule book loaded in check mode, which may hold anything: every index
// is tested before it is used. Each problem goes to the report as
// "file:section:key: what is wrong", naming the value to change.
#pragma once

#include <climits>
#include <string>
#include <string_view>
#include <vector>

class ClsJeuParam;
class RapportParam;

// Every check below, in the order of the rule files.
void Controler_Regles(const ClsJeuParam& p, RapportParam& rapport);

inline constexpr std::string_view FichierPersos = "Ini_Parametres_Persos.ini";
inline constexpr std::string_view FichierFiefs = "Ini_Parametres_Fiefs.ini";
inline constexpr std::string_view FichierRessources = "Ini_Parametres_Ressources.ini";
inline constexpr std::string_view FichierBatiments = "Ini_Parametres_Batiments.ini";
inline constexpr std::string_view FichierObjets = "Ini_Parametres_Objets.ini";
inline constexpr std::string_view FichierMonstres = "Ini_Parametres_Monstres.ini";
inline constexpr std::string_view FichierEffets = "Ini_Parametres_Effets.ini";

// The report as the checks see it. A file reported absent has empty tables, and saying so
// once is enough: nothing more is said about it.
class ControleRegles {
public:
    ControleRegles(const ClsJeuParam& param, RapportParam& rapport) : P(param), rapport_(rapport) {}

    const ClsJeuParam& P;

    void Signaler(std::string_view fichier, std::string_view section, std::string_view cle, std::string_view quoi);
    // Section of entry n (0-based) of a table: prefixe + (n + 1), as in "Batiment_3".
    void Signaler(std::string_view fichier, std::string_view prefixe, int n, std::string_view cle,
                  std::string_view quoi);

private:
    RapportParam& rapport_;
};

// One group of checks per rule file (ControlePersos.cpp, ControleRessources.cpp …).
void Controler_Persos(ControleRegles& c);
void Controler_Ressources(ControleRegles& c);
void Controler_Batiments(ControleRegles& c);
void Controler_Objets(ControleRegles& c);
void Controler_Monstres(ControleRegles& c);

// First epoch (0-based) at which each resource can be had: harvested from a deposit from
// its own epoch, or made by a building type of that epoch from a raw material already to be
// had. JamaisObtenue when neither ever happens.
inline constexpr int JamaisObtenue = INT_MAX;
std::vector<int> Epoques_Obtention(const ClsJeuParam& p);

// An index inside a table of n entries.
inline bool Dans_Table(int i, int n) { return i >= 0 && i < n; }

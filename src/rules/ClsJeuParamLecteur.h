// Reading of the rule files, shared by the game and the checker.
//
// LecteurParam wraps one ClsFicINI and converts each key as the rule tables say: strict
// (an empty or non-numeric text is a failure) or lenient (the leading number, else 0),
// plain or minus 1, rounded to the field's type. What happens on a failure depends on the
// report: without one the program ends with the loading message; with one the problem is
// written down and the value reads as 0, so that a single pass finds every problem.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "rules/ClsFicINI.h"

class ClsJeuParam;

// The tables a rule key may point into.
enum class TableParam { Epoques, Ressources, Services, CompetencesObjets, Objets, Peuples, Monstres, Effets };

// What values a pointing key may hold besides an entry of its table.
enum class GenreRenvoi {
    Obligatoire,   // an entry, nothing else
    NegatifAucun,  // an entry, or a negative value for none
    ZeroAucun,     // an entry from 1 up, or 0 for none (services)
    Numero,        // an epoch counted from 1, 0 being allowed as "from the start"
};

// Problems found while loading in check mode, each "file:section:key: what is wrong".
class RapportParam {
public:
    std::vector<std::string> Problemes;

    void Signaler(std::string_view lieu, std::string_view quoi);
    // Remembers a key that points into a table; checked once every table is loaded.
    void Noter_Renvoi(std::string lieu, int64_t valeur, TableParam table, GenreRenvoi genre);
    void Verifier_Renvois(const ClsJeuParam& param);

private:
    struct Renvoi {
        std::string Lieu;
        int64_t Valeur;
        TableParam Table;
        GenreRenvoi Genre;
    };
    std::vector<Renvoi> renvois_;
};

class LecteurParam {
public:
    // rapport null: game mode, a failure ends the program.
    LecteurParam(std::string_view fichier, RapportParam* rapport);

    void Section(std::string section) { ini_.Section = std::move(section); }

    std::string Texte(std::string_view cle);
    // T is int16_t, int32_t or double; integers must be written as plain integers that fit.
    template <class T> T Strict(std::string_view cle);
    // T is int16_t, int32_t, double or bool.
    template <class T> T Souple(std::string_view cle);
    // Lenient values of the numbered keys prefixe(1) … prefixe(n).
    template <class T> std::vector<T> Liste(std::string_view prefixe, int n);
    // A table size: strict i16, never negative.
    int16_t Taille(std::string_view cle);
    // Keys that store entry + 1 and point into a table; the value comes back 0-based.
    template <class T> T Index(std::string_view cle, TableParam table, GenreRenvoi genre);
    template <class T> T Index_Strict(std::string_view cle, TableParam table);
    // A value read plainly that points into a table (checked in check mode only).
    void Renvoi(std::string_view cle, int64_t valeur, TableParam table, GenreRenvoi genre);

    // A failure of the load: in the game, the message and the end of the program.
    void Echec(std::string_view cle, std::string_view quoi);

private:
    ClsFicINI ini_;
    RapportParam* rapport_;
    bool fichier_absent_ = false;

    std::string Lieu(std::string_view cle) const;
    template <class T> T Entier_Strict(std::string_view cle, int64_t decalage);
    template <class T> T Entier_Souple(std::string_view cle, double decalage);
};

// The checks that the invariants of a live world are made of. A Constat keeps the first fault
// it is told of, as a text that names the record and its field; it builds that text only then.
// A value that is not a number fails every bound, and an amount must be finite.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>

// A field of one record, "Persos[12].Vie", or one entry of it, "Persos[12].Ressources[3]"; with
// no name, the entry of a plain table, "BatimentVoulu[12]".
struct Champ {
    std::string_view Tableau;
    std::size_t Indice;
    std::string_view Nom;
    int64_t Entree = -1;   // none
};

inline std::ostream& operator<<(std::ostream& s, const Champ& c) {
    s << c.Tableau << '[' << c.Indice << ']';
    if (!c.Nom.empty()) s << '.' << c.Nom;
    if (c.Entree >= 0) s << '[' << c.Entree << ']';
    return s;
}

class Constat {
public:
    bool Rompu() const { return texte_.has_value(); }
    std::optional<std::string> Texte() && { return std::move(texte_); }

    // Notes the fault unless tenu, and unless one is already noted; the parts make its text.
    template <class... Parties>
    void Exiger(bool tenu, const Parties&... parties) {
        if (tenu || texte_) return;
        std::ostringstream s;
        (s << ... << parties);
        texte_ = s.str();
    }

    // A gauge rescaled to a new maximum keeps its fill up to a rounding, so a bound is passed
    // by a few units in the last place without any rule being broken.
    static bool Au_Plus(double v, double haut) { return v <= haut + Marge(haut); }
    static bool Au_Moins(double v, double bas) { return v >= bas - Marge(bas); }

    void Entre(const Champ& c, double v, double bas, double haut) {
        Exiger(Au_Moins(v, bas) && Au_Plus(v, haut), c, " = ", v, " hors de [", bas, ", ", haut, "]");
    }
    void Positif(const Champ& c, double v) {
        Exiger(std::isfinite(v), c, " = ", v, " n'est pas un nombre fini");
        Exiger(Au_Moins(v, 0), c, " = ", v, " est négatif");
    }
    // An index into an array of taille entries, or -1 when aucun allows none.
    void Indice(const Champ& c, int64_t v, std::string_view tableau, std::size_t taille, bool aucun = false) {
        Exiger((aucun && v == -1) || (v >= 0 && static_cast<std::size_t>(v) < taille), c, " = ", v,
               " ne désigne rien dans ", tableau, " (", taille, " entrées)");
    }
    void Egal(const Champ& c, int64_t v, int64_t attendu) {
        Exiger(v == attendu, c, " = ", v, " au lieu de ", attendu);
    }
    // A row of a record that has one entry per line of a table of the rules.
    void Entrees(const Champ& c, std::size_t n, std::size_t attendu) {
        Exiger(n == attendu, c, " a ", n, " entrées au lieu de ", attendu);
    }
    // Two arrays that go together: a has as many entries as b.
    void Taille(std::string_view a, std::size_t na, std::string_view b, std::size_t nb) {
        Exiger(na == nb, a, " a ", na, " entrées et ", b, " ", nb);
    }

private:
    std::optional<std::string> texte_;

    static double Marge(double borne) { return 1e-9 * std::max(1.0, std::fabs(borne)); }
};

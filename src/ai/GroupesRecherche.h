// The groups the index of the searches files things by: the teams and fiefs met, and the
// genres of the houses.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

class ClsJeuBatiment;
struct Course;

// The distinct values met in a field (teams, fiefs), each the number of its group.
class Valeurs {
public:
    void Vider() { valeurs_.clear(); }
    int32_t Groupe_De(int32_t v) {
        const int32_t g = Trouver(v);
        if (g >= 0) return g;
        valeurs_.push_back(v);
        return Nombre() - 1;
    }
    int32_t Trouver(int32_t v) const {
        const auto it = std::find(valeurs_.begin(), valeurs_.end(), v);
        return it == valeurs_.end() ? -1 : static_cast<int32_t>(it - valeurs_.begin());
    }
    int32_t Nombre() const { return static_cast<int32_t>(valeurs_.size()); }
    int32_t operator[](int32_t g) const { return valeurs_[static_cast<std::size_t>(g)]; }

private:
    std::vector<int32_t> valeurs_;
};

// What a house is, as stored in it: all Chercher_Maison asks of it beyond place and state.
struct Genre {
    int16_t Type = 0;
    bool Magasin = false, Fabrique = false;
    int16_t Service = 0;
    bool operator==(const Genre&) const = default;
};

// The genres met among the houses. Genre t is the one a house of type t gets from Creer;
// any other (an empty slot, a house read from an odd file) comes after them.
class Genres {
public:
    // Only the genres of the types of the rules.
    void Vider();
    int32_t Numero_De(const ClsJeuBatiment& b);
    int32_t Nombre() const { return static_cast<int32_t>(genres_.size()); }
    int16_t Type(int32_t g) const { return genres_[static_cast<std::size_t>(g)].Type; }
    // Whether a house of genre g may answer the errand.
    bool Convient(int32_t g, const Course& c) const;

private:
    std::vector<Genre> genres_;
    int32_t types_ = 0;
};

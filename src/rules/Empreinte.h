// 64-bit FNV-1a hash of the whole game state, for the simulator's "empreinte" and the
// determinism tests. Every record feeds every field through Ajouter.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

class Empreinte {
public:
    void Octets(const void* donnees, std::size_t taille) {
        const auto* p = static_cast<const unsigned char*>(donnees);
        for (std::size_t i = 0; i < taille; ++i) {
            valeur_ ^= p[i];
            valeur_ *= 0x100000001b3ULL;
        }
    }
    template <class T>
        requires std::is_arithmetic_v<T>
    void Ajouter(T x) {
        if constexpr (std::is_same_v<T, bool>) {
            const unsigned char b = x ? 1 : 0;
            Octets(&b, 1);
        } else {
            Octets(&x, sizeof x);
        }
    }
    void Ajouter(std::string_view texte) {
        Ajouter(static_cast<uint64_t>(texte.size()));
        Octets(texte.data(), texte.size());
    }
    void Ajouter(const std::string& texte) { Ajouter(std::string_view(texte)); }
    template <class T>
    void Ajouter(const std::vector<T>& v) {
        Ajouter(static_cast<uint64_t>(v.size()));
        for (const auto& x : v) Ajouter(x);
    }
    uint64_t Valeur() const { return valeur_; }

private:
    uint64_t valeur_ = 0xcbf29ce484222325ULL;
};

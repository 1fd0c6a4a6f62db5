#include "rules/Conversions.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

#include <locale.h>

namespace {

bool Est_Espace(char c) { return c == ' ' || c == '\t'; }
bool Est_Chiffre(char c) { return c >= '0' && c <= '9'; }

std::string_view Sans_Espaces(std::string_view t) {
    while (!t.empty() && Est_Espace(t.front())) t.remove_prefix(1);
    while (!t.empty() && Est_Espace(t.back())) t.remove_suffix(1);
    return t;
}

std::size_t Compter_Chiffres(std::string_view t, std::size_t i) {
    std::size_t n = 0;
    while (i + n < t.size() && Est_Chiffre(t[i + n])) ++n;
    return n;
}

// Length of the longest decimal number at the start of t: [sign] digits [. digits]
// [e [sign] digits], with at least one digit before the exponent; 0 if there is none.
std::size_t Longueur_Nombre(std::string_view t) {
    std::size_t i = (!t.empty() && (t[0] == '+' || t[0] == '-')) ? 1 : 0;
    std::size_t chiffres = Compter_Chiffres(t, i);
    i += chiffres;
    if (i < t.size() && t[i] == '.') {
        const std::size_t decimales = Compter_Chiffres(t, i + 1);
        chiffres += decimales;
        i += 1 + decimales;
    }
    if (chiffres == 0) return 0;
    if (i < t.size() && (t[i] == 'e' || t[i] == 'E')) {
        std::size_t j = i + 1;
        if (j < t.size() && (t[j] == '+' || t[j] == '-')) ++j;
        const std::size_t exposant = Compter_Chiffres(t, j);
        if (exposant > 0) i = j + exposant;
    }
    return i;
}

// Value of a text that Longueur_Nombre accepted whole. Beyond double's range it is what
// strtod gives (infinity or zero), read with the point whatever the process locale.
double Valeur_Nombre(std::string_view t) {
    if (t[0] == '+') t.remove_prefix(1);   // from_chars takes no '+'
    double x = 0;
    if (std::from_chars(t.data(), t.data() + t.size(), x).ec == std::errc()) return x;
    static const locale_t c = newlocale(LC_ALL_MASK, "C", nullptr);
    return strtod_l(std::string(t).c_str(), nullptr, c);
}

}  // namespace

std::optional<double> Convertir_Strict_Reel(std::string_view texte) {
    const std::string_view t = Sans_Espaces(texte);
    if (t.empty() || Longueur_Nombre(t) != t.size()) return std::nullopt;
    const double x = Valeur_Nombre(t);
    if (std::isinf(x)) return std::nullopt;   // too large for a double
    return x;
}

std::optional<int64_t> Convertir_Strict_Entier(std::string_view texte) {
    std::string_view t = Sans_Espaces(texte);
    const bool plus = !t.empty() && t[0] == '+';   // from_chars takes '-' but no '+'
    if (plus) t.remove_prefix(1);
    if (t.empty() || (plus && t[0] == '-')) return std::nullopt;
    int64_t n = 0;
    const auto [fin, erreur] = std::from_chars(t.data(), t.data() + t.size(), n);
    if (erreur != std::errc() || fin != t.data() + t.size()) return std::nullopt;
    return n;
}

std::optional<bool> Convertir_Strict_Booleen(std::string_view texte) {
    const std::string_view t = Sans_Espaces(texte);
    auto mot = [t](std::string_view m) {
        if (t.size() != m.size()) return false;
        for (std::size_t i = 0; i < t.size(); ++i)
            if ((t[i] | 0x20) != m[i]) return false;
        return true;
    };
    if (mot("true")) return true;
    if (mot("false")) return false;
    const auto x = Convertir_Strict_Reel(t);
    if (!x) return std::nullopt;
    return *x != 0;
}

double Convertir_Souple(std::string_view texte) {
    while (!texte.empty() && Est_Espace(texte.front())) texte.remove_prefix(1);
    const std::string_view nombre = texte.substr(0, Longueur_Nombre(texte));
    return nombre.empty() ? 0 : Valeur_Nombre(nombre);
}

double Int(double x) { return std::floor(x); }

double Arrondir(double x) { return std::nearbyint(x); }

template <class T>
T Arrondir_En(double x) {
    using Limites = std::numeric_limits<T>;
    if (std::isnan(x)) return 0;
    const double r = Arrondir(x);
    // For int64_t, max() as a double is 2^63, one past the range: ">=" keeps the cast defined.
    if (r >= static_cast<double>(Limites::max())) return Limites::max();
    if (r <= static_cast<double>(Limites::min())) return Limites::min();
    return static_cast<T>(r);
}

template int16_t Arrondir_En<int16_t>(double);
template int32_t Arrondir_En<int32_t>(double);
template int64_t Arrondir_En<int64_t>(double);

bool Souple_Booleen(std::string_view texte) { return Convertir_Souple(texte) != 0; }

std::string Texte_Nombre(double x) {
    // Whole numbers print as integers ("100000", not "1e+05"); 2^63 bounds the exact cast.
    if (x == std::floor(x) && std::fabs(x) < 0x1p63) return std::to_string(static_cast<int64_t>(x));
    char tampon[32];
    const auto fin = std::to_chars(tampon, tampon + sizeof tampon, x).ptr;
    return std::string(tampon, fin);
}

std::string Section_Numerotee(std::string_view prefixe, int numero) {
    return std::string(prefixe) + std::to_string(numero);
}

std::string Cle_Numerotee(std::string_view prefixe, int numero) {
    return std::string(prefixe) + "(" + std::to_string(numero) + ")";
}

// Conversions of INI text into numbers, shared by every reader of the game's files.
//
// Strict: the whole text (spaces around it allowed) is one decimal number with a point;
// an empty or non-numeric text fails. Integer targets accept only a plain integer that
// fits the type.
// Lenient: the longest number at the start of the text, 0 if there is none
// ("12abc" -> 12, "" -> 0, "-3.5e" -> -3.5). The decimal mark is always the point.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

std::optional<double> Convertir_Strict_Reel(std::string_view texte);
std::optional<int64_t> Convertir_Strict_Entier(std::string_view texte);
// Strict conversion to a boolean: a number (0 false, anything else true) or the words
// True / False in any case.
std::optional<bool> Convertir_Strict_Booleen(std::string_view texte);

double Convertir_Souple(std::string_view texte);

// Largest whole number not above x.
double Int(double x);

// Rounding to nearest, ties to even, as a plain store of a real into an integer does.
double Arrondir(double x);

// A real stored into an integer field: rounded ties to even, then limited to the type's range
// (where the original store would overflow, we keep the nearest value the type holds).
template <class T>
T Arrondir_En(double x);

// Lenient reading of a key stored into an integer field.
template <class T>
T Souple_En(std::string_view texte) { return Arrondir_En<T>(Convertir_Souple(texte)); }

// Lenient boolean: any non-zero number is true.
bool Souple_Booleen(std::string_view texte);

// Text of a number as the game writes it into its files: integers without a decimal part,
// reals with the shortest form that reads back to the same value.
std::string Texte_Nombre(double x);

// Numbered records: ("Ressource_", 12) -> "Ressource_12"; numbered keys: ("PrixRessources", 3)
// -> "PrixRessources(3)".
std::string Section_Numerotee(std::string_view prefixe, int numero);
std::string Cle_Numerotee(std::string_view prefixe, int numero);

extern template int16_t Arrondir_En<int16_t>(double);
extern template int32_t Arrondir_En<int32_t>(double);
extern template int64_t Arrondir_En<int64_t>(double);

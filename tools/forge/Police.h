// The forge's own pixel font: capitals 7 pixels high, small letters with ascenders and
// descenders, digits, French accents and a little punctuation. Text is UTF-8.
//
// A line is HauteurLigne font pixels high: accents of capitals on rows 0-1, capitals on rows
// 2-8 (the baseline is row 8), descenders on rows 9-10. Each font pixel is drawn as a block
// of echelle x echelle screen pixels.
#pragma once

#include <string_view>

#include "Pinceau.h"

inline constexpr int HauteurLigne = 11;
inline constexpr int LigneDeBase = 8;

// Width of the text in screen pixels at this scale.
int Largeur_Texte(std::string_view texte, int echelle = 1);

// Plain text, top left at (x, y): rows of the line as described above.
void Ecrire_Texte(Toile& toile, int x, int y, std::string_view texte, Couleur c, int echelle = 1);

// Title lettering: each row of the letters takes its shade from the ramp (light on top),
// with an outline of ink and a shadow one block down and right.
void Ecrire_Titre(Toile& toile, int x, int y, std::string_view texte, const Rampe& rampe, int echelle);

// The same, centred on the column cx.
void Ecrire_Titre_Centre(Toile& toile, int cx, int y, std::string_view texte, const Rampe& rampe, int echelle);
void Ecrire_Texte_Centre(Toile& toile, int cx, int y, std::string_view texte, Couleur c, int echelle = 1);

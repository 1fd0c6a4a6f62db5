// Checks of a game folder, for korvalis-verifier: every problem as
// "file:section:key: what is wrong".
#pragma once

#include <string>
#include <vector>

using Problemes = std::vector<std::string>;

// Every check of the game folder (Dossier_Jeu). The set-up of "Ini_Partie" is checked
// against the rule book only when the rule files themselves are sound.
Problemes Verifier_Dossier_Jeu();

// The pace of "Ini_Jeu": every rate above 0 and within its bounds.
void Verifier_Ini_Jeu(Problemes& problemes);

// Every picture the rules or the program name, with the size its sprite family needs:
// terrain, castles, houses, deposits, pointer, effects, objects, characters, monsters, hero
// looks, buttons, windows, backgrounds per screen width and the end picture. A problem names
// the rule that names the picture ("Ini_Parametres_Batiments.ini:Batiment_3:Nom: …"); a
// picture that the program names itself is placed as "Images:<folder>:<file>". Needs the
// rule book.
void Verifier_Images(Problemes& problemes);

// The remembered set-up of "Ini_Partie": presets, sliders within their limits, lists within
// their entries, at least two fiefs and two teams. Needs the rule book for the counts of
// peoples and epochs.
void Verifier_Ini_Partie(Problemes& problemes);

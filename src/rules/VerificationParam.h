// The rule book in check mode, for korvalis-verifier and the tests of the data.
#pragma once

#include <string>
#include <vector>

// Loads the seven rule files of the game folder (Dossier_Jeu) into a private rule book,
// without ever ending the program, and lists every problem found, in the form
// "file:section:key: what is wrong": each value that cannot be read, each index outside its
// table, and what the rest of the game needs of the tables (non-empty epochs, resources and
// peoples, a skill name for each resource, peoples whose monster counts match the
// monsters), then what the code and the AI take for granted of them (ControleRegles.h).
// Problems of loading come first. An empty list means the rule files are sound. The global
// Param is untouched.
std::vector<std::string> Verifier_Param();

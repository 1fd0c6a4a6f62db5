// forge DONNEES JEU: draws every picture of the default game from the rule files of DONNEES
// into JEU/Images. Same rules, same bytes.
#include <chrono>
#include <iostream>

#include "Forge.h"

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage : forge DOSSIER_DONNEES DOSSIER_JEU\n";
        return 2;
    }
    const auto debut = std::chrono::steady_clock::now();
    const bool reussi = Forger(argv[1], argv[2]);
    const auto duree = std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();
    std::cout << "forge : images écrites dans " << argv[2] << "/Images en " << duree << " s\n";
    return reussi ? 0 : 1;
}

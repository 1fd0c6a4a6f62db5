// korvalis-verifier [DIR]: checks a game folder and prints one line per problem as
// "file:section:key: what is wrong". Exits 1 if there is any, 0 otherwise.
#include <iostream>
#include <optional>

#include "session/ModMain.h"
#include "session/Verification.h"

int main(int argc, char** argv) {
    std::optional<std::filesystem::path> dossier;
    if (argc > 1) dossier = argv[1];
    if (!Trouver_Dossier_Jeu(dossier)) return 1;

    const Problemes problemes = Verifier_Dossier_Jeu();
    for (const std::string& p : problemes) std::cout << p << '\n';
    return problemes.empty() ? 0 : 1;
}

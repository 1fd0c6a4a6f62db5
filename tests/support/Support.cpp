#include "Support.h"

#include <fstream>
#include <random>
#include <sstream>

#include "rules/Chemins.h"

namespace fs = std::filesystem;

DossierTemporaire::DossierTemporaire() {
    // The name only has to be unique among concurrent test processes.
    std::random_device alea;
    chemin_ = fs::temp_directory_path() / ("korvalis-test-" + std::to_string(alea()) + std::to_string(alea()));
    fs::create_directories(chemin_);
    Definir_Dossier_Jeu(chemin_);
}

DossierTemporaire::~DossierTemporaire() {
    std::error_code ignore;
    fs::remove_all(chemin_, ignore);
}

void DossierTemporaire::Ecrire(std::string_view relatif, std::string_view contenu) const {
    const fs::path fichier = chemin_ / fs::path(relatif);
    fs::create_directories(fichier.parent_path());
    std::ofstream f(fichier, std::ios::binary);
    f.write(contenu.data(), static_cast<std::streamsize>(contenu.size()));
}

std::string DossierTemporaire::Lire(std::string_view relatif) const {
    std::ifstream f(chemin_ / fs::path(relatif), std::ios::binary);
    std::ostringstream s;
    s << f.rdbuf();
    return s.str();
}

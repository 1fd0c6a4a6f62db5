#include "rules/Chemins.h"

#include <algorithm>

#include "rules/ClsFicINI.h"

namespace fs = std::filesystem;

namespace {

fs::path& Dossier() {
    static fs::path dossier;
    return dossier;
}

bool Finit_Par_Sans_Casse(std::string_view nom, std::string_view fin) {
    return nom.size() >= fin.size() && Egal_Sans_Casse(nom.substr(nom.size() - fin.size()), fin);
}

bool Est_Du_Genre(const fs::directory_entry& entree, GenreEntree genre) {
    std::error_code erreur;
    return genre == GenreEntree::Dossiers ? entree.is_directory(erreur) : entree.is_regular_file(erreur);
}

}  // namespace

void Definir_Dossier_Jeu(const fs::path& dossier) { Dossier() = dossier; }

const fs::path& Dossier_Jeu() { return Dossier(); }

fs::path Chemin_Jeu(std::string_view relatif) {
    std::string texte(relatif);
    std::replace(texte.begin(), texte.end(), '\\', '/');
    // A leading separator still means the game folder, never the filesystem root.
    const auto debut = texte.find_first_not_of('/');
    return debut == std::string::npos ? Dossier_Jeu() : Dossier_Jeu() / texte.substr(debut);
}

std::vector<std::string> Lister_Dossier(const fs::path& dossier, GenreEntree genre,
                                        std::string_view extension) {
    std::vector<std::string> noms;
    std::error_code erreur;
    for (fs::directory_iterator it(dossier, erreur), fin; !erreur && it != fin; it.increment(erreur)) {
        std::string nom = it->path().filename().string();
        if (nom.front() == '.' || !Est_Du_Genre(*it, genre) || !Finit_Par_Sans_Casse(nom, extension))
            continue;
        noms.push_back(std::move(nom));
    }
    std::sort(noms.begin(), noms.end());   // std::string compares its bytes as unsigned
    return noms;
}

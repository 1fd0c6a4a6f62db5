#include "platform/Ouvrir.h"

#include <cerrno>
#include <cstdlib>
#include <optional>
#include <string_view>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "rules/BoiteMessage.h"

namespace {

bool Executable(const std::string& chemin) {
    struct stat s {};
    return stat(chemin.c_str(), &s) == 0 && S_ISREG(s.st_mode) && access(chemin.c_str(), X_OK) == 0;
}

// A name with a '/' is a path; any other is looked up on PATH, as a shell would.
std::optional<std::string> Trouver_Programme(const std::string& nom) {
    if (nom.empty()) return std::nullopt;
    if (nom.find('/') != std::string::npos) return Executable(nom) ? std::optional(nom) : std::nullopt;
    const char* variable = std::getenv("PATH");
    const std::string_view chemins = variable ? variable : "/usr/local/bin:/usr/bin:/bin";
    for (std::size_t debut = 0; debut <= chemins.size();) {
        const std::size_t fin = std::min(chemins.find(':', debut), chemins.size());
        const std::string_view dossier = chemins.substr(debut, fin - debut);
        const std::string candidat = std::string(dossier.empty() ? "." : dossier) + "/" + nom;
        if (Executable(candidat)) return candidat;
        debut = fin + 1;
    }
    return std::nullopt;
}

// "code --wait" in $EDITOR is a program and its options.
std::vector<std::string> Mots(std::string_view texte) {
    std::vector<std::string> mots;
    for (std::size_t i = texte.find_first_not_of(" \t"); i != std::string_view::npos;) {
        const std::size_t fin = std::min(texte.find_first_of(" \t", i), texte.size());
        mots.emplace_back(texte.substr(i, fin - i));
        i = texte.find_first_not_of(" \t", fin);
    }
    return mots;
}

// A middle child forks the program and leaves at once, so the program is adopted by init and
// never lingers as our zombie. The pipe is closed on exec: reading it to the end tells whether
// the exec went through (nothing read) or failed (its errno read).
bool Lancer_Detache(const std::vector<std::string>& arguments) {
    std::vector<char*> argv;
    for (const auto& a : arguments) argv.push_back(const_cast<char*>(a.c_str()));
    argv.push_back(nullptr);
    int tube[2];
    if (pipe2(tube, O_CLOEXEC) != 0) return false;
    const pid_t milieu = fork();
    if (milieu == 0) {
        const pid_t programme = fork();
        if (programme == 0) {
            setsid();
            execv(argv[0], argv.data());
        }
        if (programme > 0) _exit(0);
        const int erreur = errno;   // the exec or the second fork failed
        (void)!write(tube[1], &erreur, sizeof erreur);
        _exit(127);
    }
    close(tube[1]);
    int erreur = 0;
    ssize_t lu;
    do lu = read(tube[0], &erreur, sizeof erreur);
    while (lu < 0 && errno == EINTR);
    close(tube[0]);
    if (milieu < 0) return false;
    while (waitpid(milieu, nullptr, 0) < 0 && errno == EINTR) {}
    return lu == 0;
}

void Ouvrir_Ou_Prevenir(std::vector<std::vector<std::string>> essais, std::string_view message) {
    for (auto& arguments : essais)
        if (Lancer_Programme(std::move(arguments))) return;
    Boite_Message("Korvalis", message, GenreMessage::Exclamation);
}

}  // namespace

bool Lancer_Programme(std::vector<std::string> arguments) {
    if (arguments.empty()) return false;
    const auto programme = Trouver_Programme(arguments[0]);
    if (!programme) return false;
    arguments[0] = *programme;
    return Lancer_Detache(arguments);
}

void Ouvrir_Bloc_Notes(const std::filesystem::path& fichier) {
    std::vector<std::vector<std::string>> essais;
    if (const char* variable = std::getenv("EDITOR"); variable && !Mots(variable).empty()) {
        essais.push_back(Mots(variable));
        essais.back().push_back(fichier.string());
    }
    essais.push_back({"xdg-open", fichier.string()});
    Ouvrir_Ou_Prevenir(std::move(essais), "Logiciel Notepad introuvable");
}

void Ouvrir_Explorateur(const std::filesystem::path& dossier) {
    Ouvrir_Ou_Prevenir({{"xdg-open", dossier.string()}}, "Logiciel Explorer introuvable");
}

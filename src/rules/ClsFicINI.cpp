#include "rules/ClsFicINI.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "rules/Chemins.h"

namespace fs = std::filesystem;

namespace {

constexpr std::string_view BOM = "\xEF\xBB\xBF";

// Folds case over ASCII and the Latin-1 capitals written in UTF-8 (C3 80..C3 9E, × excepted),
// which sit 0x20 below their small letters. The length never changes.
std::string Plier(std::string_view texte) {
    std::string plie(texte);
    for (std::size_t i = 0; i < plie.size(); ++i) {
        const auto c = static_cast<unsigned char>(plie[i]);
        if (c >= 'A' && c <= 'Z') {
            plie[i] = static_cast<char>(c + 0x20);
        } else if (c == 0xC3 && i + 1 < plie.size()) {
            const auto d = static_cast<unsigned char>(plie[++i]);
            if (d >= 0x80 && d <= 0x9E && d != 0x97) plie[i] = static_cast<char>(d + 0x20);
        }
    }
    return plie;
}

std::string_view Sans_Espaces(std::string_view t) {
    const auto debut = t.find_first_not_of(" \t");
    if (debut == std::string_view::npos) return {};
    return t.substr(debut, t.find_last_not_of(" \t") + 1 - debut);
}

// A read gives at most LongueurMaxValeurINI bytes, without a broken UTF-8 sequence at the end.
std::string Couper(std::string_view valeur) {
    if (valeur.size() <= LongueurMaxValeurINI) return std::string(valeur);
    std::size_t fin = LongueurMaxValeurINI;
    while (fin > 0 && (static_cast<unsigned char>(valeur[fin]) & 0xC0) == 0x80) --fin;
    return std::string(valeur.substr(0, fin));
}

struct CleINI {
    std::string valeur;
    std::size_t debut_valeur;   // the value as written spans [debut_valeur, fin_ligne) of the text
    std::size_t fin_ligne;
};

struct SectionINI {
    std::unordered_map<std::string, CleINI> cles;   // by folded key, first one only
    std::size_t fin = 0;                            // just after its last non-blank line
};

// A file as read, with the first section of each name and the first key of each name in it.
struct FichierINI {
    std::string texte;
    std::string fin_ligne = "\n";
    std::unordered_map<std::string, SectionINI> sections;

    const SectionINI* Section(std::string_view nom) const {
        const auto it = sections.find(Plier(nom));
        return it == sections.end() ? nullptr : &it->second;
    }
    const CleINI* Cle(const SectionINI& section, std::string_view cle) const {
        const auto it = section.cles.find(Plier(cle));
        return it == section.cles.end() ? nullptr : &it->second;
    }
};

void Analyser_Ligne(FichierINI& f, SectionINI*& courante, std::size_t debut, std::size_t fin,
                    std::size_t suivante) {
    const std::string_view t = Sans_Espaces(std::string_view(f.texte).substr(debut, fin - debut));
    if (t.empty()) return;
    const auto crochet = t.rfind(']');
    if (t.front() == '[' && crochet != std::string_view::npos) {
        const auto [it, nouvelle] = f.sections.try_emplace(Plier(Sans_Espaces(t.substr(1, crochet - 1))));
        courante = nouvelle ? &it->second : nullptr;   // a repeated section is not looked into
    }
    if (!courante) return;
    courante->fin = suivante;
    const auto egal = t.find('=');
    if (t.front() == ';' || t.front() == '[' || egal == std::string_view::npos) return;
    const std::string_view valeur = Sans_Espaces(t.substr(egal + 1));
    const std::size_t debut_valeur =
        valeur.empty() ? fin : static_cast<std::size_t>(valeur.data() - f.texte.data());
    courante->cles.try_emplace(Plier(Sans_Espaces(t.substr(0, egal))),
                               CleINI{Couper(valeur), debut_valeur, fin});
}

FichierINI Analyser(std::string texte) {
    FichierINI f;
    f.texte = std::move(texte);
    const std::size_t n = f.texte.size();
    const auto premiere = f.texte.find('\n');
    if (premiere != std::string::npos && premiere > 0 && f.texte[premiere - 1] == '\r') f.fin_ligne = "\r\n";
    SectionINI* courante = nullptr;
    for (std::size_t debut = f.texte.starts_with(BOM) ? BOM.size() : 0; debut < n;) {
        const auto saut = f.texte.find('\n', debut);
        const std::size_t suivante = saut == std::string::npos ? n : saut + 1;
        std::size_t fin = saut == std::string::npos ? n : saut;
        if (fin > debut && f.texte[fin - 1] == '\r') --fin;
        Analyser_Ligne(f, courante, debut, fin, suivante);
        debut = suivante;
    }
    return f;
}

// What tells that a file changed since it was read: a write through a temporary file gives a
// new inode, another writer changes the time or the size.
struct Identite {
    dev_t appareil;
    ino_t inode;
    off_t taille;
    time_t secondes;
    long nanosecondes;
    bool operator==(const Identite&) const = default;
};

Identite Identite_De(const struct stat& s) {
    return {s.st_dev, s.st_ino, s.st_size, s.st_mtim.tv_sec, s.st_mtim.tv_nsec};
}

bool Lire_Fichier(const fs::path& chemin, std::string& texte, Identite& identite) {
    const int fd = open(chemin.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return false;
    struct stat s {};
    bool ok = fstat(fd, &s) == 0 && S_ISREG(s.st_mode);
    if (ok) {
        texte.resize(static_cast<std::size_t>(s.st_size));
        std::size_t lu = 0;
        while (lu < texte.size()) {
            const ssize_t r = read(fd, texte.data() + lu, texte.size() - lu);
            ok = r >= 0;
            if (r <= 0) break;
            lu += static_cast<std::size_t>(r);
        }
        texte.resize(lu);
        identite = Identite_De(s);
    }
    close(fd);
    return ok;
}

// The last files read, most recent first. The rule book reads thousands of keys from a handful
// of files; each read costs one stat() as long as the file is unchanged.
class CacheINI {
public:
    const FichierINI* Lire(const fs::path& chemin) {
        struct stat s {};
        if (stat(chemin.c_str(), &s) != 0 || !S_ISREG(s.st_mode)) return nullptr;
        const auto it = Trouver(chemin.native());
        if (it != entrees_.end() && it->identite == Identite_De(s)) return &Avancer(it).fichier;
        std::string texte;
        Identite identite{};
        if (!Lire_Fichier(chemin, texte, identite)) return nullptr;
        return Garder(chemin, identite, Analyser(std::move(texte)));
    }

    const FichierINI* Garder(const fs::path& chemin, const Identite& identite, FichierINI fichier) {
        auto it = Trouver(chemin.native());
        if (it == entrees_.end()) {
            if (entrees_.size() == Capacite) entrees_.pop_back();
            it = entrees_.insert(entrees_.end(), Entree{chemin.native(), identite, {}});
        }
        Entree& e = Avancer(it);
        e.identite = identite;
        e.fichier = std::move(fichier);
        return &e.fichier;
    }

private:
    static constexpr std::size_t Capacite = 16;
    struct Entree {
        std::string chemin;
        Identite identite;
        FichierINI fichier;
    };
    std::vector<Entree> entrees_;

    std::vector<Entree>::iterator Trouver(const std::string& chemin) {
        return std::find_if(entrees_.begin(), entrees_.end(), [&](const Entree& e) { return e.chemin == chemin; });
    }
    Entree& Avancer(std::vector<Entree>::iterator it) {
        std::rotate(entrees_.begin(), it, it + 1);
        return entrees_.front();
    }
};

CacheINI& Cache() {
    static CacheINI cache;
    return cache;
}

// The new text of a file once cle holds valeur in section, everything else kept byte for byte.
std::string Texte_Modifie(const FichierINI& f, std::string_view section, std::string_view cle,
                          std::string_view valeur) {
    std::string texte = f.texte;
    const std::string ligne = std::string(cle) + "=" + std::string(valeur) + f.fin_ligne;
    const SectionINI* s = f.Section(section);
    if (!s) {
        if (!texte.empty() && texte != BOM) {
            if (!texte.ends_with('\n')) texte += f.fin_ligne;
            texte += f.fin_ligne;   // a blank line between sections
        }
        return texte + "[" + std::string(section) + "]" + f.fin_ligne + ligne;
    }
    if (const CleINI* k = f.Cle(*s, cle)) return texte.replace(k->debut_valeur, k->fin_ligne - k->debut_valeur, valeur);
    const bool sans_saut = s->fin > 0 && texte[s->fin - 1] != '\n';
    return texte.insert(s->fin, (sans_saut ? f.fin_ligne : std::string()) + ligne);
}

bool Ecrire_Tout(int fd, std::string_view texte) {
    while (!texte.empty()) {
        const ssize_t r = write(fd, texte.data(), texte.size());
        if (r <= 0) return false;
        texte.remove_prefix(static_cast<std::size_t>(r));
    }
    return true;
}

// Writes the whole text beside the target, then renames it over the target: the old file
// stays whole until the new one is complete. A process crash cannot leave half a file; we do
// not fsync, since a character file is written one key at a time.
bool Remplacer_Fichier(const fs::path& chemin, const fs::path& temporaire, std::string_view texte) {
    struct stat ancien {};
    const bool existe = stat(chemin.c_str(), &ancien) == 0;
    const int fd = open(temporaire.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (fd < 0) return false;
    bool ok = Ecrire_Tout(fd, texte);
    if (ok && existe) ok = fchmod(fd, ancien.st_mode & 07777) == 0;
    ok = close(fd) == 0 && ok;
    ok = ok && rename(temporaire.c_str(), chemin.c_str()) == 0;
    if (!ok) unlink(temporaire.c_str());
    return ok;
}

}  // namespace

bool Egal_Sans_Casse(std::string_view a, std::string_view b) {
    return a.size() == b.size() && Plier(a) == Plier(b);
}

fs::path ClsFicINI::Chemin() const { return Chemin_Jeu(Fichier + Extension); }

fs::path ClsFicINI::Chemin_Temporaire() const {
    const fs::path chemin = Chemin();
    std::string nom = ".";
    nom += chemin.filename().string();
    nom += ".tmp";
    return chemin.parent_path() / nom;
}

std::string ClsFicINI::Parametre(std::string_view cle) {
    std::string valeur;
    if (const FichierINI* f = Cache().Lire(Chemin()))
        if (const SectionINI* s = f->Section(Section))
            if (const CleINI* k = f->Cle(*s, cle)) valeur = k->valeur;
    DerniereLigne = std::string(cle) + "=" + valeur;
    return valeur;
}

void ClsFicINI::Parametre(std::string_view cle, std::string_view valeur) {
    valeur = valeur.substr(0, valeur.find_first_of("\r\n"));   // a value is one line
    const fs::path chemin = Chemin();
    const FichierINI* f = Cache().Lire(chemin);
    std::string texte;
    if (f) {
        texte = Texte_Modifie(*f, Section, cle, valeur);
    } else {
        texte = Texte_Modifie(FichierINI{}, Section, cle, valeur);
        std::error_code ignore;
        fs::create_directories(chemin.parent_path(), ignore);
    }
    if (!Remplacer_Fichier(chemin, Chemin_Temporaire(), texte)) return;
    struct stat s {};
    if (stat(chemin.c_str(), &s) == 0) Cache().Garder(chemin, Identite_De(s), Analyser(std::move(texte)));
}

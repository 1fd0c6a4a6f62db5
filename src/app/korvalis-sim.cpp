// korvalis-sim: a headless game from a seed and plain choices. Prints key=value lines:
// the seed, the ticks done, the time taken, a hash of the whole state and per-fief figures.
// With --ordres, a script of orders drives characters at the ticks it names; a script that
// does not read, or names what the world does not have, stops the simulator before it runs.
// With --invariants, the world is checked after every tick and the first broken invariant
// stops the simulator with status 3. --serie plays a run of seeds with the same choices and
// follows their fiefs; --banc times the benchmark worlds.
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "platform/Peripheriques.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"
#include "session/Banc.h"
#include "session/CarteMonde.h"
#include "session/Invariants.h"
#include "session/ModMain.h"
#include "session/ScriptOrdres.h"
#include "session/Simulation.h"
#include "session/SuiviFiefs.h"
#include "world/Globales.h"

namespace {

constexpr const char* Usage =
    "usage : korvalis-sim [--dossier DIR] [--graine N] [--ticks T] [--monde nouveau|bataille]\n"
    "        [--fiefs N] [--villageois N] [--equipes E1,E2,…] [--peuples P1,P2,…] [--soldats N1,N2]\n"
    "        [--epoque E] [--largeur W] [--hauteur H] [--gisements N] [--etat]\n"
    "        [--carte FICHIER.pgm|FICHIER.ppm] [--ordres FICHIER] [--capture FICHIER.bmp]\n"
    "        [--invariants] [--serie A-B [--jalons T1,T2,…]] [--banc]\n"
    "--carte écrit l'image du monde à la fin, un pixel par case (PPM en couleur, PGM en gris).\n"
    "--capture écrit à la fin l'image que le jeu montrerait, autour du héros, à la taille\n"
    "  d'écran de Ini_Ecran (il faut les images du dossier du jeu).\n"
    "--ordres donne des ordres aux personnages, une ligne « TOUR PERSO ORDRE [ARGUMENTS] » :\n"
    "  batir TYPE DX DY, recolter R, rentrer, chateau, aller X Y, arreter, fabriquer LIGNE,\n"
    "  ramasser LIGNE, acheter MAISON LIGNE, vendre EMPL, equiper EMPL, ranger EMPL,\n"
    "  deposer EMPL, manger R ; « ; » ou « # » commence un commentaire.\n"
    "--invariants vérifie le monde après chaque tour ; au premier invariant rompu, écrit\n"
    "  « invariant=TOUR:TEXTE » et s'arrête avec le statut 3.\n"
    "--serie joue les graines A à B avec les mêmes choix et écrit, à chaque jalon (par défaut\n"
    "  10000,36000,72000, --ticks étant le dernier), l'époque, les vivants et les morts de chaque\n"
    "  fief, puis un bilan par jalon : fiefs à l'époque 2 ou plus, fiefs dont tout le peuple\n"
    "  est mort à un moment.\n"
    "--banc mesure les tours par seconde de mondes d'environ 1 000, 10 000 et 50 000\n"
    "  personnages et d'une bataille de 2 × 5 000 soldats (seules --dossier et --graine comptent).\n"
    "Les équipes, peuples, époques, personnages, types, lignes et emplacements comptent\n"
    "à partir de 0. Sans option, les valeurs viennent de Ini_Partie du dossier du jeu.\n";

struct Options {
    std::optional<std::string> dossier, monde, carte, ordres, capture;
    std::optional<uint64_t> graine;
    std::optional<int64_t> ticks;
    std::optional<int32_t> fiefs, villageois, epoque, largeur, hauteur, gisements;
    std::vector<int32_t> equipes, peuples, soldats;
    std::vector<int64_t> jalons;
    std::optional<std::pair<uint64_t, uint64_t>> serie;   // first and last seed
    bool etat = false, invariants = false, banc = false;
};

[[noreturn]] void Refuser(const std::string& raison) {
    std::cerr << "korvalis-sim : " << raison << '\n' << Usage;
    std::exit(2);
}

int64_t Entier(const std::string& cle, const std::string& texte) {
    const auto n = Convertir_Strict_Entier(texte);
    if (!n) Refuser(cle + " attend un entier, pas « " + texte + " »");
    return *n;
}

template <class T = int32_t>
std::vector<T> Liste(const std::string& cle, const std::string& texte) {
    std::vector<T> valeurs;
    std::stringstream flux(texte);
    for (std::string morceau; std::getline(flux, morceau, ',');)
        valeurs.push_back(static_cast<T>(Entier(cle, morceau)));
    return valeurs;
}

// "A-B", or "A" for one seed.
std::pair<uint64_t, uint64_t> Graines(const std::string& texte) {
    const auto tiret = texte.find('-');
    const int64_t a = Entier("--serie", texte.substr(0, tiret));
    const int64_t b = tiret == std::string::npos ? a : Entier("--serie", texte.substr(tiret + 1));
    if (a < 0 || b < a) Refuser("--serie attend deux graines A-B avec A ≤ B, pas « " + texte + " »");
    return {static_cast<uint64_t>(a), static_cast<uint64_t>(b)};
}

// What a series or the benchmark cannot do: one script, map or picture belongs to one game.
void Verifier_Combinaisons(const Options& o) {
    const bool unique = o.ordres || o.carte || o.capture || o.etat;
    if (o.serie && unique) Refuser("--serie ne se combine pas avec --ordres, --carte, --capture ni --etat");
    if (o.banc && (unique || o.serie || o.invariants)) Refuser("--banc ne se combine qu'avec --dossier et --graine");
    if (!o.jalons.empty() && !o.serie) Refuser("--jalons va avec --serie");
    for (std::size_t j = 0; j < o.jalons.size(); ++j)
        if (o.jalons[j] <= 0 || (j > 0 && o.jalons[j] <= o.jalons[j - 1]))
            Refuser("--jalons attend des tours croissants, au-dessus de 0");
}

Options Lire_Options(int argc, char** argv) {
    Options o;
    for (int i = 1; i < argc; ++i) {
        const std::string cle = argv[i];
        if (cle == "--etat") { o.etat = true; continue; }
        if (cle == "--invariants") { o.invariants = true; continue; }
        if (cle == "--banc") { o.banc = true; continue; }
        if (cle == "--aide" || cle == "--help") { std::cout << Usage; std::exit(0); }
        if (i + 1 >= argc) Refuser(cle + " attend une valeur");
        const std::string v = argv[++i];
        auto entier = [&] { return static_cast<int32_t>(Entier(cle, v)); };
        if (cle == "--dossier") o.dossier = v;
        else if (cle == "--graine") o.graine = static_cast<uint64_t>(Entier(cle, v));
        else if (cle == "--ticks") o.ticks = Entier(cle, v);
        else if (cle == "--monde") o.monde = v;
        else if (cle == "--fiefs") o.fiefs = entier();
        else if (cle == "--villageois") o.villageois = entier();
        else if (cle == "--equipes") o.equipes = Liste(cle, v);
        else if (cle == "--peuples") o.peuples = Liste(cle, v);
        else if (cle == "--soldats") o.soldats = Liste(cle, v);
        else if (cle == "--epoque") o.epoque = entier();
        else if (cle == "--largeur") o.largeur = entier();
        else if (cle == "--hauteur") o.hauteur = entier();
        else if (cle == "--gisements") o.gisements = entier();
        else if (cle == "--carte") o.carte = v;
        else if (cle == "--ordres") o.ordres = v;
        else if (cle == "--capture") o.capture = v;
        else if (cle == "--serie") o.serie = Graines(v);
        else if (cle == "--jalons") o.jalons = Liste<int64_t>(cle, v);
        else Refuser("option inconnue " + cle);
    }
    if (o.monde && *o.monde != "nouveau" && *o.monde != "bataille") Refuser("--monde vaut nouveau ou bataille");
    Verifier_Combinaisons(o);
    return o;
}

// The options override the remembered choices; a fief row added by --fiefs takes the
// villagers of the last row and a team of its own.
void Appliquer(const Options& o, ChoixPartie& choix) {
    if (o.monde) choix.Page = *o.monde == "bataille" ? PageNouvelleBataille : PageNouveauMonde;
    if (o.largeur) choix.Largeur = *o.largeur;
    if (o.hauteur) choix.Hauteur = *o.hauteur;
    if (o.gisements) choix.Gisements = *o.gisements;
    if (o.epoque) choix.Epoque = static_cast<int16_t>(*o.epoque);
    if (o.fiefs) {
        const ChoixFief modele = choix.Fiefs.empty() ? ChoixFief{0, 0, 1} : choix.Fiefs.back();
        const auto ancien = choix.Fiefs.size();
        choix.Fiefs.resize(static_cast<std::size_t>(*o.fiefs), modele);
        for (std::size_t f = ancien; f < choix.Fiefs.size(); ++f) choix.Fiefs[f].Equipe = static_cast<int32_t>(f);
    }
    for (std::size_t f = 0; f < choix.Fiefs.size(); ++f) {
        if (o.villageois) choix.Fiefs[f].Sujets = *o.villageois;
        if (f < o.equipes.size()) choix.Fiefs[f].Equipe = o.equipes[f];
        if (f < o.peuples.size()) choix.Fiefs[f].Peuple = static_cast<int16_t>(o.peuples[f]);
    }
    for (std::size_t a = 0; a < 2; ++a) {
        if (a < o.soldats.size()) choix.Armees[a].Sujets = o.soldats[a];
        if (a < o.peuples.size() && choix.Page == PageNouvelleBataille)
            choix.Armees[a].Peuple = static_cast<int16_t>(o.peuples[a]);
    }
}

// Stops the simulator at the first broken invariant: its tick and its text, status 3.
void Controler(int64_t tick) {
    if (const auto faute = Invariant_Rompu()) {
        std::cout << "invariant=" << tick << ':' << *faute << std::endl;
        std::exit(3);
    }
}

// Plays on to ticks ticks, or until the game ends; with the invariants, the world is checked
// after every tick (not as it opens: an army drawn up for battle keeps the gauges of the objects
// it wears above the maxima without them until its first tick writes them back). suivi, if
// any, sees every tick.
void Derouler(Simulateur& simulateur, int64_t ticks, ScriptOrdres* ordres, bool invariants,
              SuiviFiefs* suivi = nullptr) {
    while (simulateur.Ticks() < ticks && !FinPartie) {
        simulateur.Passe(ordres);
        if (invariants) Controler(simulateur.Ticks());
        if (suivi) suivi->Observer(simulateur.Ticks());
    }
}

std::string Hexa(uint64_t valeur) {
    std::ostringstream s;
    s << std::hex << std::setw(16) << std::setfill('0') << valeur;
    return s.str();
}

// The milestones of a series: those asked for, or 10,000 and 36,000 and the last tick (72,000
// unless --ticks says otherwise), none past the last tick, which always ends them.
std::vector<int64_t> Jalons(const Options& o) {
    std::vector<int64_t> jalons = o.jalons.empty() ? std::vector<int64_t>{10000, 36000} : o.jalons;
    const int64_t fin = o.ticks.value_or(o.jalons.empty() ? 72000 : o.jalons.back());
    std::erase_if(jalons, [fin](int64_t t) { return t >= fin; });
    jalons.push_back(fin);
    return jalons;
}

int Jouer_Serie(const Options& o) {
    const std::vector<int64_t> jalons = Jalons(o);
    BilanSerie bilan(jalons);
    for (uint64_t graine = o.serie->first; graine <= o.serie->second; ++graine) {
        ChoixPartie choix = Preparer_Session(graine);
        Appliquer(o, choix);
        const auto debut = std::chrono::steady_clock::now();
        Simulateur simulateur;
        if (!simulateur.Ouvrir(choix)) return 1;
        std::cout << "graine=" << graine << " personnages=" << Persos.size() << " fiefs=" << Fiefs.size() << std::endl;
        SuiviFiefs suivi(jalons, graine, std::cout);
        Derouler(simulateur, jalons.back(), nullptr, o.invariants, &suivi);
        suivi.Ecrire_Extinctions();
        const double secondes = std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();
        std::cout << "graine=" << graine << " ticks=" << simulateur.Ticks() << " secondes=" << secondes
                  << " empreinte=" << Hexa(Empreinte_Etat()) << "\n\n";
        bilan.Ajouter(suivi);
    }
    bilan.Ecrire(std::cout);
    return 0;
}

int Jouer_Banc(const Options& o) {
#ifndef NDEBUG
    std::cerr << "korvalis-sim : construction sans optimisation, les mesures ne valent rien\n";
#endif
    return Executer_Banc(o.graine.value_or(1), std::cout) ? 0 : 1;
}

// A picture or map of the end of the game, when asked; false if it cannot be written.
bool Ecrire_Images(const Options& o, Simulateur& simulateur) {
    if (o.carte) {
        if (!Ecrire_Carte(Dessiner_Carte(), *o.carte)) {
            std::cerr << "korvalis-sim : impossible d'écrire la carte " << *o.carte << '\n';
            return false;
        }
        std::cout << "carte=" << *o.carte << '\n';
    }
    // Last, as its render moves on the effects and animations that the figures above count.
    if (o.capture) {
        if (!simulateur.Capturer(*o.capture)) {
            std::cerr << "korvalis-sim : impossible d'écrire la capture " << *o.capture << '\n';
            return false;
        }
        std::cout << "capture=" << *o.capture << '\n';
    }
    return true;
}

// A script refused: its message, and the simulator stops before any tick.
[[noreturn]] void Refuser_Ordres(const std::string& message) {
    std::cerr << "korvalis-sim : " << message << '\n';
    std::exit(2);
}

int Jouer_Partie(const Options& o) {
    std::optional<ScriptOrdres> script;
    if (o.ordres) {
        std::string erreur;
        script = ScriptOrdres::Lire(*o.ordres, erreur);
        if (!script) Refuser_Ordres(erreur);
    }
    ChoixPartie choix = Preparer_Session(o.graine);
    const uint64_t graine = Graine();
    Appliquer(o, choix);

    // The time counts the building of the world, as it always has.
    const auto debut = std::chrono::steady_clock::now();
    Simulateur simulateur;
    if (!simulateur.Ouvrir(choix)) return 1;
    if (script)
        if (const auto faute = script->Verifier()) Refuser_Ordres(*faute);
    Derouler(simulateur, o.ticks.value_or(0), script ? &*script : nullptr, o.invariants);
    const int64_t ticks = simulateur.Ticks();
    const double secondes = std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();

    std::cout << "graine=" << graine << '\n'
              << "ticks=" << ticks << '\n'
              << "secondes=" << secondes << '\n'
              << "ticks_par_seconde=" << (secondes > 0 ? static_cast<double>(ticks) / secondes : 0.0) << '\n'
              << "personnages=" << Persos.size() << '\n'
              << "empreinte=" << Hexa(Empreinte_Etat()) << '\n'
              << "gisements=" << Ressources.size() << '\n';
    if (script) std::cout << "ordres=" << script->Donnes() << '/' << script->Ordres().size() << '\n';
    Ecrire_Fiefs(std::cout);
    if (o.etat) Ecrire_Etat(std::cout);
    Ecrire_Abandons(std::cout);
    return Ecrire_Images(o, simulateur) ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    const Options o = Lire_Options(argc, argv);
    if (!Trouver_Dossier_Jeu(o.dossier)) return 1;
    if (o.banc) return Jouer_Banc(o);
    if (o.serie) return Jouer_Serie(o);
    return Jouer_Partie(o);
}

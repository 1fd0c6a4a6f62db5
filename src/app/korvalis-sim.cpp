// korvalis-sim: a headless game from a seed and plain choices. Prints key=value lines:
// the seed, the ticks done, the time taken, a hash of the whole state and per-fief figures.
// With --ordres, a script of orders drives characters at the ticks it names; a script that
// does not read, or names what the world does not have, stops the simulator before it runs.
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
#include "session/ModMain.h"
#include "session/CarteMonde.h"
#include "session/ScriptOrdres.h"
#include "session/Simulation.h"
#include "world/Globales.h"

namespace {

constexpr const char* Usage =
    "usage : korvalis-sim [--dossier DIR] [--graine N] [--ticks T] [--monde nouveau|bataille]\n"
    "        [--fiefs N] [--villageois N] [--equipes E1,E2,…] [--peuples P1,P2,…] [--soldats N1,N2]\n"
    "        [--epoque E] [--largeur W] [--hauteur H] [--gisements N] [--etat]\n"
    "        [--carte FICHIER.pgm|FICHIER.ppm] [--ordres FICHIER] [--capture FICHIER.bmp]\n"
    "--carte écrit l'image du monde à la fin, un pixel par case (PPM en couleur, PGM en gris).\n"
    "--capture écrit à la fin l'image que le jeu montrerait, autour du héros, à la taille\n"
    "  d'écran de Ini_Ecran (il faut les images du dossier du jeu).\n"
    "--ordres donne des ordres aux personnages, une ligne « TOUR PERSO ORDRE [ARGUMENTS] » :\n"
    "  batir TYPE DX DY, recolter R, rentrer, chateau, aller X Y, arreter, fabriquer LIGNE,\n"
    "  ramasser LIGNE, acheter MAISON LIGNE, vendre EMPL, equiper EMPL, ranger EMPL,\n"
    "  deposer EMPL, manger R ; « ; » ou « # » commence un commentaire.\n"
    "Les équipes, peuples, époques, personnages, types, lignes et emplacements comptent\n"
    "à partir de 0. Sans option, les valeurs viennent de Ini_Partie du dossier du jeu.\n";

struct Options {
    std::optional<std::string> dossier, monde, carte, ordres, capture;
    std::optional<uint64_t> graine;
    int64_t ticks = 0;
    std::optional<int32_t> fiefs, villageois, epoque, largeur, hauteur, gisements;
    std::vector<int32_t> equipes, peuples, soldats;
    bool etat = false;
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

std::vector<int32_t> Liste(const std::string& cle, const std::string& texte) {
    std::vector<int32_t> valeurs;
    std::stringstream flux(texte);
    for (std::string morceau; std::getline(flux, morceau, ',');)
        valeurs.push_back(static_cast<int32_t>(Entier(cle, morceau)));
    return valeurs;
}

Options Lire_Options(int argc, char** argv) {
    Options o;
    for (int i = 1; i < argc; ++i) {
        const std::string cle = argv[i];
        if (cle == "--etat") { o.etat = true; continue; }
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
        else Refuser("option inconnue " + cle);
    }
    if (o.monde && *o.monde != "nouveau" && *o.monde != "bataille") Refuser("--monde vaut nouveau ou bataille");
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

}  // namespace

// A script refused: its message, and the simulator stops before any tick.
[[noreturn]] void Refuser_Ordres(const std::string& message) {
    std::cerr << "korvalis-sim : " << message << '\n';
    std::exit(2);
}

int main(int argc, char** argv) {
    const Options o = Lire_Options(argc, argv);
    std::optional<ScriptOrdres> script;
    if (o.ordres) {
        std::string erreur;
        script = ScriptOrdres::Lire(*o.ordres, erreur);
        if (!script) Refuser_Ordres(erreur);
    }
    if (!Trouver_Dossier_Jeu(o.dossier)) return 1;
    FenetreMuette fenetre;
    Demarrer_Programme(fenetre);
    if (o.graine) Definir_Graine(*o.graine);
    const uint64_t graine = Graine();

    ChoixPartie choix = Lire_Ini_Partie();
    Appliquer(o, choix);
    Creer_Heros_Actif();

    // The time counts the building of the world, as it always has.
    const auto debut = std::chrono::steady_clock::now();
    Simulateur simulateur;
    if (!simulateur.Ouvrir(choix)) return 1;
    if (script)
        if (const auto faute = script->Verifier()) Refuser_Ordres(*faute);
    ScriptOrdres* ordres = script ? &*script : nullptr;
    while (simulateur.Ticks() < o.ticks && !FinPartie) simulateur.Passe(ordres);
    const int64_t ticks = simulateur.Ticks();
    const double secondes = std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();

    std::cout << "graine=" << graine << '\n'
              << "ticks=" << ticks << '\n'
              << "secondes=" << secondes << '\n'
              << "ticks_par_seconde=" << (secondes > 0 ? static_cast<double>(ticks) / secondes : 0.0) << '\n'
              << "personnages=" << Persos.size() << '\n'
              << "empreinte=" << std::hex << std::setw(16) << std::setfill('0') << Empreinte_Etat() << std::dec << '\n'
              << "gisements=" << Ressources.size() << '\n';
    if (script) std::cout << "ordres=" << script->Donnes() << '/' << script->Ordres().size() << '\n';
    Ecrire_Fiefs(std::cout);
    if (o.etat) Ecrire_Etat(std::cout);
    Ecrire_Abandons(std::cout);
    if (o.carte) {
        if (!Ecrire_Carte(Dessiner_Carte(), *o.carte)) {
            std::cerr << "korvalis-sim : impossible d'écrire la carte " << *o.carte << '\n';
            return 1;
        }
        std::cout << "carte=" << *o.carte << '\n';
    }
    // Last, as its render moves on the effects and animations that the figures above count.
    if (o.capture) {
        if (!simulateur.Capturer(*o.capture)) {
            std::cerr << "korvalis-sim : impossible d'écrire la capture " << *o.capture << '\n';
            return 1;
        }
        std::cout << "capture=" << *o.capture << '\n';
    }
    return 0;
}

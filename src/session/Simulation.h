// A headless game: the set-up the dialog would make, the real frame loop with a driven
// clock and the null screen, and the figures the simulator prints.
#pragma once

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <optional>

#include "platform/EcranHorsEcran.h"
#include "platform/Peripheriques.h"
#include "session/ChoixPartie.h"
#include "session/FrmMoteur2D.h"

class ScriptOrdres;

// What the dialog does before a game: the active hero at index 0, a plain human of fief 0.
void Creer_Heros_Actif();

// A headless game's start from a fresh process state: the program brought up from the game
// folder already found, the seed given (else the one the clock drew), the active hero created.
// Returns the choices remembered in "Ini_Partie". Run before every game of one process, it
// gives each the state that a process of its own would have.
ChoixPartie Preparer_Session(std::optional<uint64_t> graine);

// A headless game driven pass by pass: the real frame loop over the null devices, the
// clock moved by hand.
class Simulateur {
public:
    Simulateur();
    // Builds the world; false when it could not be built.
    bool Ouvrir(const ChoixPartie& choix);
    // One pass: the clock moves on by one and a half periods of the tick rate, so that
    // a tick and a render run. The script's orders due by the coming tick are given first.
    void Passe(ScriptOrdres* script = nullptr);
    // Ticks done since Ouvrir.
    int64_t Ticks() const { return moteur_.NombreTours; }

    // One image of the world as the game would show it at the screen size of "Ini_Ecran",
    // to a BMP file: the screen comes on, the pictures load, the camera finds the hero and one
    // render runs (moving on what a render moves on). False if the file cannot be written.
    bool Capturer(const std::filesystem::path& fichier);

    EcranHorsEcran& Ecran() { return ecran_; }

private:
    FenetreMuette fenetre_;
    EcranHorsEcran ecran_;   // dark, as the null screen, until a capture
    SourisMuette souris_;
    ClavierMuet clavier_;
    FrmMoteur2D moteur_;
};

// Runs ticks ticks of a game set up from choix, with the orders of script if there is one.
// Returns the ticks done, nothing when the world could not be built. The script should be
// checked against the world (ScriptOrdres::Verifier) by whoever needs to refuse it.
std::optional<int64_t> Simuler(const ChoixPartie& choix, int64_t ticks, ScriptOrdres* script = nullptr);

// Hash of the whole state: every record of the world and the random stream.
uint64_t Empreinte_Etat();

// One line per fief (epoch, living, dead, money, market stock, finished houses of its
// people, objects they made), and with etat one per character, one per deposit and one per castle.
void Ecrire_Fiefs(std::ostream& sortie);
void Ecrire_Etat(std::ostream& sortie);
// What the world generation dropped for want of room: "abandons=chateaux:C,gisements:G".
void Ecrire_Abandons(std::ostream& sortie);

// korvalis: the game. Comes up in its start-up order, then plays a new world made from the
// choices remembered in "Ini_Partie", until it is told to stop.
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <string>

#include "platform/Peripheriques.h"
#include "platform/Plateforme.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"
#include "session/FrmMoteur2D.h"
#include "session/ModMain.h"
#include "session/Simulation.h"
#include "world/Globales.h"

namespace {

volatile std::sig_atomic_t Arret = 0;

// Until the play window exists, the only way out of a game is an interrupt.
class ClavierInterruptible final : public PeripheriqueClavier {
public:
    int16_t Pression_Clavier(bool& ctrl, bool& maj, bool& alt) override {
        ctrl = maj = alt = false;
        if (Arret) FinPartie = true;
        return 0;
    }
};

}  // namespace

int main(int argc, char** argv) {
    std::optional<std::filesystem::path> dossier;
    std::optional<uint64_t> graine;
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string cle = argv[i];
        if (cle == "--dossier") dossier = argv[i + 1];
        else if (cle == "--graine") graine = static_cast<uint64_t>(Convertir_Souple(argv[i + 1]));
    }
    Installer_Plateforme();
    if (!Trouver_Dossier_Jeu(dossier)) return 1;

    FenetreMuette fenetre;
    Demarrer_Programme(fenetre);
    if (graine) Definir_Graine(*graine);

    std::signal(SIGINT, [](int) { Arret = 1; });
    std::signal(SIGTERM, [](int) { Arret = 1; });
    EcranNul ecran;
    SourisMuette souris;
    ClavierInterruptible clavier;
    FrmMoteur2D moteur(Peripheriques{fenetre, ecran, souris, clavier});
    Creer_Heros_Actif();
    std::cout << "Korvalis : partie lancée (graine " << Graine() << "), Ctrl+C pour quitter.\n";
    moteur.MoteurJeu(Lire_Ini_Partie());
    std::cout << "Korvalis : " << moteur.NombreTours << " tours joués.\n";
    return 0;
}

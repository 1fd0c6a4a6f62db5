// korvalis: the game. Comes up in its start-up order, then plays a new world made from the
// choices remembered in "Ini_Partie" in the window of "Ini_Ecran", the camera on the hero,
// until the player leaves. With --capture it shows nothing: it plays --ticks ticks without a
// screen and writes the image the game would show then.
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <string>

#include "platform/ClsPerClavier.h"
#include "platform/ClsPerEcran.h"
#include "platform/ClsPerSouris.h"
#include "platform/Evenements.h"
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
constexpr int16_t ToucheEchap = 1;

// Until the key commands of play stand, Escape ends the game; their key table takes this
// over. Every other key goes on as read.
class ClavierDeJeu final : public PeripheriqueClavier {
public:
    explicit ClavierDeJeu(ClsPerClavier& clavier) : clavier_(clavier) {}
    int16_t Pression_Clavier(bool& ctrl, bool& maj, bool& alt) override {
        const int16_t touche = clavier_.Pression_Clavier(ctrl, maj, alt);
        if (touche == ToucheEchap) FinPartie = true;
        return touche;
    }
    void Init() override { clavier_.Init(); }

private:
    ClsPerClavier& clavier_;
};

// The screen of play, which also ends the game when the window is asked to close or the
// process to stop: the pump runs at every render, even while the mouse is not held and the
// keyboard is therefore not read.
class EcranDeJeu final : public PeripheriqueEcran {
public:
    explicit EcranDeJeu(ClsPerEcran& ecran) : ecran_(ecran) {}
    bool Affiche() const override { return ecran_.Affiche(); }
    void Presenter_Image() override { ecran_.Presenter_Image(); }
    void Pomper_Evenements() override {
        ecran_.Pomper_Evenements();
        if (Evenements().Fermeture || Arret) FinPartie = true;
    }
    bool Init() override { return ecran_.Init(); }
    void Fermer_Ecran() override { ecran_.Fermer_Ecran(); }
    Surface* Tampon() override { return ecran_.Tampon(); }

private:
    ClsPerEcran& ecran_;
};

struct Options {
    std::optional<std::filesystem::path> dossier, capture;
    std::optional<uint64_t> graine;
    int64_t ticks = 0;
};

Options Lire_Options(int argc, char** argv) {
    Options o;
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string cle = argv[i];
        if (cle == "--dossier") o.dossier = argv[i + 1];
        else if (cle == "--graine") o.graine = static_cast<uint64_t>(Convertir_Souple(argv[i + 1]));
        else if (cle == "--capture") o.capture = argv[i + 1];
        else if (cle == "--ticks") o.ticks = static_cast<int64_t>(Convertir_Souple(argv[i + 1]));
    }
    return o;
}

int Capturer(const ChoixPartie& choix, const Options& o) {
    Simulateur simulateur;
    if (!simulateur.Ouvrir(choix)) return 1;
    while (simulateur.Ticks() < o.ticks && !FinPartie) simulateur.Passe();
    if (!simulateur.Capturer(*o.capture)) {
        std::cerr << "Korvalis : impossible d'écrire la capture " << o.capture->string() << '\n';
        return 1;
    }
    std::cout << "Korvalis : capture écrite dans " << o.capture->string() << " après " << simulateur.Ticks()
              << " tours.\n";
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const Options o = Lire_Options(argc, argv);
    Installer_Plateforme();
    if (!Trouver_Dossier_Jeu(o.dossier)) return 1;

    FenetreMuette fenetre;
    Demarrer_Programme(fenetre);
    if (o.graine) Definir_Graine(*o.graine);
    Creer_Heros_Actif();
    if (o.capture) return Capturer(Lire_Ini_Partie(), o);

    std::signal(SIGINT, [](int) { Arret = 1; });
    std::signal(SIGTERM, [](int) { Arret = 1; });
    ClsPerEcran ecran;
    ClsPerSouris souris(ecran);
    ClsPerClavier clavier;
    EcranDeJeu ecranDeJeu(ecran);
    ClavierDeJeu clavierDeJeu(clavier);
    FrmMoteur2D moteur(Peripheriques{fenetre, ecranDeJeu, souris, clavierDeJeu});
    std::cout << "Korvalis : partie lancée (graine " << Graine() << "), Échap pour quitter.\n";
    moteur.MoteurJeu(Lire_Ini_Partie());
    std::cout << "Korvalis : " << moteur.NombreTours << " tours joués.\n";
    return 0;
}

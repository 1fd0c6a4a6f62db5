#include "session/FrmMoteur2D.h"

#include <cmath>

#include "presentation/Affichages.h"
#include "ai/ModIA.h"
#include "ai/ModIA2.h"
#include "ai/TablesIA.h"
#include "characters/Deplacement.h"
#include "platform/ClsPerEcran.h"
#include "rules/ClsJeuParam.h"
#include "rules/Hasard.h"
#include "rules/Horloge.h"
#include "session/PreparerPartie.h"
#include "world/GestionFiefs.h"
#include "world/Globales.h"

bool Periode_Ecoulee(float ecart, int16_t rythme) {
    const float periode = 1.0f / static_cast<float>(rythme);
    return periode < ecart || -periode > ecart;
}

void FrmMoteur2D::MoteurJeu(const ChoixPartie& choix) {
    if (Ouvrir(choix))
        while (!FinPartie) Passe();
    P.Ecran.Fermer_Ecran();
}

// A script that is not found turns the character's AI off.
static void Attacher_Scripts_IA() {
    for (ClsJeuPerso& p : Persos) {
        if (!p.IA) continue;
        p.EtapeIA = static_cast<int16_t>(Numero_Script_IA(p.FichierIA));
        if (p.EtapeIA < 0) p.IA = false;
    }
}

// A hero with a picture of its own finds it among the hero files; then every character takes
// its look. The files are only listed, so this runs as well without a screen.
static void Calculer_Apparences() {
    for (ClsJeuPerso& p : Persos) {
        if (!p.ApparenceFichier) continue;
        int32_t indice = 0;
        AffPerso.Charger_Hero(p.FichierApparence, p.Feminin, indice);
        p.ApparenceBase = static_cast<int16_t>(indice);
    }
    for (std::size_t i = 0; i < Persos.size(); ++i) Persos[i].Calculer_Apparence(Maisons[i], Param);
}

bool FrmMoteur2D::Ouvrir(const ChoixPartie& choix) {
    // Without a screen there is no game; its messages have been shown.
    if (!P.Ecran.Init()) return false;
    P.Fenetre.Pomper_Evenements();
    P.Souris.Init();
    P.Souris.Centrer_curseur(SourisX, SourisY);
    P.Clavier.Init();
    if (!Preparer_Partie(choix)) return false;
    Attacher_Scripts_IA();
    Calculer_Apparences();
    Charger_Images();
    DernierTemps = TempsCourant = Horloge();
    DebutSeconde = TempsCourant;
    Centrer_Camera();
    Initialiser_IA();
    FinPartie = Victoire = Defaite = false;
    return true;
}

void FrmMoteur2D::Passe() {
    TempsCourant = Horloge();
    Ecart = TempsCourant - DernierTemps;
    Lire_Peripheriques();
    if (CliqueGauche || CliqueDroit || Touche != 0) Cliquer();
    if (Periode_Ecoulee(Ecart, Jeu.Definir_Vitesse()) && !Jeu.Pause) Tour();
    if (Periode_Ecoulee(Ecart, Jeu.Definir_FPS())) Rendu();
    if (!Victoire && !Defaite) Verifier_Fin();
}

void FrmMoteur2D::Lire_Peripheriques() {
    Touche = P.Souris.Active() ? P.Clavier.Pression_Clavier(ToucheCtrl, ToucheMaj, ToucheAlt) : 0;
    P.Souris.Positions(SourisX, SourisY, SourisZ);
    CliqueGauche = P.Souris.Clique(0);
    CliqueDroit = P.Souris.Clique(1);
    // Only the wheel's sign scrolls, one line a pass; the windows that scroll come with the
    // interface.
    SourisZ = 0;
}

// One tick of the world: Executer_IA, Gerer_Fiefs, Centrer_Camera, Deplacer_Persos and
// Appliquer_Objets_Utilises, in that order.
void FrmMoteur2D::Tour() {
    Executer_IA();
    Gerer_Fiefs();
    Centrer_Camera();
    Deplacer_Persos();
    ++NombreTours;
}

// Every character in index order: what it does this tick, then its recovery, then what it
// says about it. A character acts on positions that lower-numbered ones have already
// changed in the same tick. The hero always speaks; others one time in a hundred.
void Deplacer_Persos() {
    for (std::size_t i = 0; i < Persos.size(); ++i) {
        int32_t commentaire = -1;
        CiblesDeplacement cibles = Lire_Cibles(Persos[i]);
        Persos[i].Deplacement(cibles, commentaire, Param);
        ClsJeuPerso& p = Persos[i];
        p.Recuperation(Fiefs[static_cast<std::size_t>(p.Fief)]);
        if (commentaire < 0) continue;
        // The draw is made for the hero too, so the random stream does not depend on who
        // is the active character.
        const bool tirage = Rnd() > 0.99;
        if (static_cast<int32_t>(i) == PersoActif || tirage) p.Definir_Commentaires(Commentaires.Message(commentaire));
    }
}

// The pictures of play, only when there is a screen to show them on.
void FrmMoteur2D::Charger_Images() {
    if (!P.Ecran.Tampon()) return;
    Interface.Charger(EcranLargeur);
    Charger_Affichages(Param);
    ImageFin.Charger("Fenetres/Victoire-Defaite");
}

void FrmMoteur2D::Rendu() {
    ++NombreImages;
    Tampon = P.Ecran.Tampon();
    SpritesDessines = 0;
    Afficher_Terrain();
    Afficher_Ressources();
    Afficher_Batiments();
    Afficher_Cadre_Actif();
    Afficher_Progression();
    Afficher_Persos();
    Afficher_Effets();
    Afficher_Commentaires();
    // The message log and the interface, when they come, are drawn here, under the pointer.
    Afficher_Souris();
    Afficher_Info_Terrain(SourisX, SourisY);
    Mesurer_FPS();
    if (Tampon) Interface.Afficher_FPS(FPSMesure, *Tampon);
    Afficher_Fin();
    Tampon = nullptr;
    P.Ecran.Presenter_Image();
    P.Ecran.Pomper_Evenements();
    DernierTemps = TempsCourant;
}

void FrmMoteur2D::Mesurer_FPS() {
    ++ImagesSeconde;
    if (std::fabs(TempsCourant - DebutSeconde) > 1.0f) {
        FPSMesure = ImagesSeconde;
        ImagesSeconde = 0;
        DebutSeconde = TempsCourant;
    }
}

// Won when every enemy fief has lost its castle and all its subjects; lost when the hero's
// own fief has. With no enemy fief at all the game is won at once.
void FrmMoteur2D::Verifier_Fin() {
    const ClsJeuPerso& heros = Persos[static_cast<std::size_t>(PersoActif)];
    auto debout = [](std::size_t f) {
        return Chateaux[f].Visible() || Fiefs[f].NombreMorts < Fiefs[f].NombreSujets;
    };
    Victoire = true;
    for (std::size_t f = 0; f < Fiefs.size(); ++f) {
        if (Fiefs[f].Equipe != heros.Equipe && debout(f)) {
            Victoire = false;
            break;
        }
    }
    if (Victoire) {
        ImageFin.Selection(0, 199, 0, 319);
        return;
    }
    Defaite = !debout(static_cast<std::size_t>(heros.Fief));
    if (Defaite) ImageFin.Selection(200, 399, 0, 319);
}

#include "characters/Ordres.h"

#include <array>
#include <utility>

#include "characters/ClsJeuPerso.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "world/ClsJeuBatiment.h"
#include "world/ClsJeuRessources.h"

namespace {

// The numbering carries meaning: an odd code below 100 walks towards the even code below
// it (1 → 0, 3 → 2, 7 → 6); an even code from 100 to 199 that walks becomes the odd one
// above it (100 → 101).
constexpr std::array<std::pair<int16_t, std::string_view>, 18> TableActions{{
    {0, "En attente"},
    {1, "Se déplacer"},
    {2, "Récolter ressources"},
    {3, "Aller à"},
    {6, "Construire"},
    {7, "Aller construire"},
    {100, "En repos"},
    {101, "Rentrer à la maison"},
    {102, "Au travail"},
    {201, "Entrer dans"},
    {202, "Retourner château"},
    {203, "Aller château"},
    {300, "Attaquer"},
    {301, "Détruire maison"},
    {302, "Détruire château"},
    {400, "Préparer resurrection"},
    {500, "Fabriquer"},
    {600, "Préparer Service"},
}};

constexpr int16_t CodeAuTravail = 102;

}  // namespace

std::optional<std::string_view> Texte_Code_Action(int16_t code) {
    for (const auto& [c, texte] : TableActions)
        if (c == code) return texte;
    return std::nullopt;
}

std::optional<int16_t> Code_Texte_Action(std::string_view texte) {
    for (const auto& [c, t] : TableActions)
        if (t == texte) return c;
    return std::nullopt;
}

int32_t Coin_Pour_Centrer(double position, double taille, double taillePerso) {
    return Arrondir_En<int32_t>(taille / 2 + position - taillePerso / 2);
}

void ClsJeuPerso::Definir_Action(int16_t code) {
    CodeAction = Texte_Code_Action(code) ? code : CodeAuTravail;
    MetierAction = -1;
}

void ClsJeuPerso::Definir_Action_Metier(int32_t r) {
    CodeAction = CodeAuTravail;
    MetierAction = static_cast<int16_t>(r);
}

std::string_view ClsJeuPerso::Texte_Action(const ClsJeuParam& param) const {
    if (MetierAction >= 0) return param.Ressources_NomCompetence(MetierAction);
    return *Texte_Code_Action(CodeAction);
}

void ClsJeuPerso::Definir_Action_Texte(std::string_view texte, const ClsJeuParam& param) {
    if (const auto code = Code_Texte_Action(texte)) {
        Definir_Action(*code);
        return;
    }
    Definir_Action(CodeAuTravail);
    for (int r = 0; r < param.NombreRessources; ++r) {
        if (param.Ressources_NomCompetence(r) == texte) {
            MetierAction = static_cast<int16_t>(r);
            return;
        }
    }
}

void ClsJeuPerso::Aller_A(int32_t x, int32_t y) {
    DestinationX = x;
    DestinationY = y;
    Definir_Action(1);
}

void ClsJeuPerso::Arreter() {
    DestinationX = PositionX;
    DestinationY = PositionY;
    Definir_Action(DansSaMaison ? 100 : 0);
    RessourceRecoltee = -1;
}

// A deposit is aimed at even when it is empty: the ground stays where it is.
void ClsJeuPerso::Aller_Ressource(const ClsJeuRessources& ressource, int32_t numero, int32_t largeur,
                                  int32_t hauteur, int32_t w, int32_t h) {
    DestinationX = Coin_Pour_Centrer(ressource.PositionX, largeur, w);
    DestinationY = Coin_Pour_Centrer(ressource.PositionY, hauteur, h);
    RessourceCible = numero;
    Definir_Action(3);
}

namespace {

// The door of a house, as a destination: its offsets are measured from the house's centre.
void Viser_Porte(ClsJeuPerso& p, const ClsJeuBatiment& maison, int32_t w, int32_t h) {
    p.DestinationX = Coin_Pour_Centrer(maison.PositionX + maison.EntreePositionX, maison.Largeur, w);
    p.DestinationY = Coin_Pour_Centrer(maison.PositionY + maison.EntreePositionY, maison.Hauteur, h);
}

}  // namespace

void ClsJeuPerso::Rentrer_Maison(const ClsJeuBatiment& maison, int32_t w, int32_t h) {
    if (!maison.Visible()) return;
    Viser_Porte(*this, maison, w, h);
    MaisonCible = maison.Numero;
    if (!Vivant() || (maison.Termine && maison.Definir_Vie() == maison.MaxVie)) {
        Definir_Action(101);
    } else {
        Definir_Action(7);
        DansSaMaison = false;
    }
}

void ClsJeuPerso::Aller_Maison(const ClsJeuBatiment& maison, int32_t w, int32_t h) {
    if (!maison.Visible()) return;
    Viser_Porte(*this, maison, w, h);
    MaisonCible = maison.Numero;
    Definir_Action(201);
}

void ClsJeuPerso::Rentrer_Chateau(const ClsJeuBatiment& chateau, int32_t largeur, int32_t hauteur, int32_t w,
                                  int32_t h) {
    if (!chateau.Visible()) return;
    DestinationX = Coin_Pour_Centrer(chateau.PositionX, largeur, w);
    DestinationY = Coin_Pour_Centrer(chateau.PositionY, hauteur, h);
    Definir_Action(202);
}

void ClsJeuPerso::Aller_Chateau(const ClsJeuBatiment& chateau, int32_t numero, int32_t largeur, int32_t hauteur,
                                int32_t w, int32_t h) {
    if (!chateau.Visible()) return;
    Rentrer_Chateau(chateau, largeur, hauteur, w, h);
    ChateauCible = numero;
    Definir_Action(203);
}

namespace {

void Attaquer(ClsJeuPerso& p, int16_t action, int32_t& cible, int32_t n) {
    p.Definir_Action(action);
    cible = n;
    p.Visible(true);
    p.AttaqueImmediate = true;
}

}  // namespace

void ClsJeuPerso::Attaquer_Perso(int32_t n) { Attaquer(*this, 300, PersoCible, n); }
void ClsJeuPerso::Attaquer_Maison(int32_t n) { Attaquer(*this, 301, MaisonCible, n); }
void ClsJeuPerso::Attaquer_Chateau(int32_t n) { Attaquer(*this, 302, ChateauCible, n); }

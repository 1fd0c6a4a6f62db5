#include "interface/ClsIntMonde.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <vector>

#include "platform/Police.h"
#include "platform/Surface.h"
#include "rules/ClsFicINI.h"
#include "rules/Conversions.h"

namespace {

constexpr int32_t HauteurLigne = 16;

// The characters of a text, so that positions count letters and not bytes.
std::vector<char32_t> Caracteres(std::string_view texte) {
    std::vector<char32_t> c;
    for (std::size_t i = 0; i < texte.size();) c.push_back(Lire_Caractere(texte, i));
    return c;
}

// A part of a gauge, from the left or from the bottom; nothing when it has no size.
void Partie(Surface& ecran, int32_t x, int32_t y, int32_t largeur, int32_t hauteur, double ratio, bool vertical,
            int32_t couleur) {
    Rectangle r{x, y, Arrondir_En<int32_t>(largeur * ratio + x), y + hauteur};
    if (vertical) r = {x, Arrondir_En<int32_t>(y - hauteur * ratio + hauteur), x + largeur, y + hauteur};
    ecran.Remplir(couleur, &r);
}

}  // namespace

int32_t Couleur_Jauge(double ratio) {
    if (ratio < 0.1) return 128;
    if (ratio < 0.25) return 255;
    if (ratio < 0.5) return 33023;
    return 49152;
}

void Mesurer_Bulle(std::string_view texte, int32_t& largeur, int32_t& lignes) {
    const std::vector<char32_t> c = Caracteres(texte);
    largeur = lignes = 0;
    std::size_t debut = 0;
    while (debut < c.size()) {
        auto premier = [&](char32_t s) -> int32_t {
            for (std::size_t k = debut; k < c.size(); ++k)
                if (c[k] == s) return static_cast<int32_t>(k - debut + 1);
            return 0;
        };
        const int32_t p = premier(U'#'), q = premier(U'\r');
        largeur = std::max({largeur, p, q});
        ++lignes;
        if (p > 0) debut += static_cast<std::size_t>(p);
        else if (q > 0) debut += static_cast<std::size_t>(q);
        else {
            largeur = std::max(largeur, static_cast<int32_t>(c.size() - debut));
            debut = c.size();
        }
    }
}

void ClsIntMonde::Charger(int32_t largeurEcran) {
    ClsFicINI ini;
    ini.Fichier = "Ini_Boutons";
    ini.Section = "Boutons";
    if (std::filesystem::exists(ini.Chemin())) {
        AfficherInfoBulle = Souple_Booleen(ini.Parametre("AfficherInfoBulle"));
        InfoBulleDecalageX = Souple_En<int16_t>(ini.Parametre("InfoBulleDecalageX"));
        InfoBulleDecalageY = Souple_En<int16_t>(ini.Parametre("InfoBulleDecalageY"));
        CouleurInfoBulle = Souple_En<int32_t>(ini.Parametre("CouleurInfoBulle"));
        CouleurRectangleFond = Souple_En<int32_t>(ini.Parametre("CouleurRectangleFond"));
        BordureRectangleFond = Souple_En<int16_t>(ini.Parametre("BordureRectangleFond"));
    }
    ini.Fichier = "Ini_Interface" + std::to_string(largeurEcran);
    ini.Section = "Interface";
    fichierInterface_.clear();
    if (!std::filesystem::exists(ini.Chemin())) {
        // Without a layout, the frame rate sits in the top right corner, clear of the pointer.
        FPSPositionX = static_cast<int16_t>(std::max(0, largeurEcran - 80));
        return;
    }
    fichierInterface_ = ini.Fichier;
    AfficherFPS = Souple_Booleen(ini.Parametre("AfficherFPS"));
    FPSCouleur = Souple_En<int32_t>(ini.Parametre("FPSCouleur"));
    FPSMessage = ini.Parametre("FPSMessage");
    FPSPositionX = Souple_En<int16_t>(ini.Parametre("FPSPositionX"));
    FPSPositionY = Souple_En<int16_t>(ini.Parametre("FPSPositionY"));
    AfficherInfoBulleTerrain = Souple_Booleen(ini.Parametre("AfficherInfoBulleTerrain"));
}

void ClsIntMonde::Definir_AfficherInfoBulleTerrain(bool afficher) {
    AfficherInfoBulleTerrain = afficher;
    if (fichierInterface_.empty()) return;
    ClsFicINI ini;
    ini.Fichier = fichierInterface_;
    ini.Section = "Interface";
    ini.Parametre("AfficherInfoBulleTerrain", afficher ? "1" : "0");
}

void ClsIntMonde::Afficher_Barre_Statut(double valeur, double potentiel, double maximum, int32_t x, int32_t y,
                                       Surface& ecran, int32_t largeur, int32_t hauteur, int32_t couleur,
                                       bool vertical) const {
    const Rectangle fond{x - 1, y - 1, x + largeur + 1, y + hauteur + 1};
    ecran.Remplir(0, &fond);
    if (potentiel > 0) Partie(ecran, x, y, largeur, hauteur, potentiel / maximum, vertical, 0xFFFFFF);
    const double ratio = valeur / maximum;
    Partie(ecran, x, y, largeur, hauteur, ratio, vertical, couleur != 0 ? couleur : Couleur_Jauge(ratio));
}

void ClsIntMonde::Afficher_Info_Bulles_Terrain(int32_t x, int32_t y, std::string_view texte, Surface& surface) const {
    Afficher_Info_Bulle(x, y, texte, surface, true);
}

void ClsIntMonde::Afficher_Info_Bulle(int32_t x, int32_t y, std::string_view texte, Surface& ecran, bool forcer) const {
    if ((texte.empty() || !AfficherInfoBulle) && !forcer) return;
    int32_t colonnes = 0, lignes = 0;
    Mesurer_Bulle(texte, colonnes, lignes);
    const int32_t largeur = Avance_Caractere() * colonnes, hauteur = HauteurLigne * lignes;
    const int32_t b = BordureRectangleFond;
    int32_t tx = x + InfoBulleDecalageX, ty = y + InfoBulleDecalageY;
    if (tx < 0) tx = 0;
    else if (tx + b + largeur > ecran.Largeur()) tx = ecran.Largeur() - b - largeur;
    if (ty < 0) ty = 0;
    else if (ty + b + hauteur > ecran.Hauteur()) ty = ecran.Hauteur() - b - hauteur;
    const Rectangle fond{tx - b, ty - b, tx + largeur + b, ty + hauteur + b};
    ecran.Remplir(CouleurRectangleFond, &fond);
    const int32_t trait = ecran.CouleurTrait;
    ecran.Definir_Couleur_Trait(CouleurInfoBulle);
    std::size_t debut = 0;
    for (int32_t ligne = 0; debut < texte.size(); ++ligne) {
        std::size_t fin = debut;
        while (fin < texte.size() && texte[fin] != '#' && texte[fin] != '\r') ++fin;
        ecran.Dessiner_Texte(tx, ty + ligne * HauteurLigne, texte.substr(debut, fin - debut));
        debut = fin + 1;
    }
    ecran.Definir_Couleur_Trait(trait);
}

void ClsIntMonde::Afficher_FPS(int32_t fps, Surface& ecran) const {
    if (!AfficherFPS) return;
    char chiffres[16];
    std::snprintf(chiffres, sizeof chiffres, "%02d", static_cast<int>(fps));
    const int32_t trait = ecran.CouleurTrait;
    ecran.Definir_Couleur_Trait(FPSCouleur);
    texteFPS_.assign(FPSMessage).append(chiffres);
    ecran.Dessiner_Texte(FPSPositionX, FPSPositionY, texteFPS_);
    ecran.Definir_Couleur_Trait(trait);
}

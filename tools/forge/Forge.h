// The forge: every picture of the default game, drawn from the rule book into the game
// folder's Images/ tree. One function per family of pictures; each writes its own files.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "Pinceau.h"

struct Resolution {
    int largeur = 0, hauteur = 0;
};

// Where the pictures go and what the families share.
struct Atelier {
    std::filesystem::path images;          // <game folder>/Images
    std::vector<Resolution> resolutions;   // screen sizes of "Ini_Ecran"
    int largeurFenetre = 320, hauteurFenetre = 360;   // one info window picture
    int fichiers = 0;
    bool reussi = true;

    // Writes Images/<relatif>; relatif uses '/'.
    void Ecrire(std::string_view relatif, const Toile& toile);
};

// Loads the rule book of `donnees` and writes every picture under `jeu`/Images.
// False if a picture could not be written.
bool Forger(const std::filesystem::path& donnees, const std::filesystem::path& jeu);

// The screen sizes the game offers when "Ini_Ecran" gives none.
std::vector<Resolution> Resolutions_Par_Defaut();

// The finished house of building type b at work, for the build buttons.
Toile Image_Batiment(int b);
// The 32 x 32 icon of object o.
Toile Icone_Objet(int o);

void Forger_Terrain(Atelier& a);
void Forger_Decors(Atelier& a);
void Forger_Batiments(Atelier& a);
void Forger_Chateaux(Atelier& a);
void Forger_Persos(Atelier& a);
void Forger_Monstres(Atelier& a);
void Forger_Objets(Atelier& a);
void Forger_Effets(Atelier& a);
void Forger_Curseurs(Atelier& a);
void Forger_Interface(Atelier& a);

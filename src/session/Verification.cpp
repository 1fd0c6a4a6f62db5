#include "session/Verification.h"

#include <algorithm>
#include <filesystem>
#include <set>

#include "presentation/ClsAffBatiment.h"
#include "presentation/ClsAffBouton.h"
#include "presentation/ClsAffObjets.h"
#include "presentation/ClsAffPerso.h"
#include "presentation/ClsAffRessources.h"
#include "presentation/ClsAffSouris.h"
#include "presentation/ClsAffTerrain.h"
#include "rules/Chemins.h"
#include "rules/ClsFicINI.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "rules/TailleBmp.h"
#include "rules/VerificationParam.h"

namespace {

// Reads the keys of one file and records what is wrong with them.
class Controle {
public:
    Controle(std::string fichier, Problemes& problemes) : problemes_(problemes) { ini_.Fichier = std::move(fichier); }

    void Section(std::string section) { ini_.Section = std::move(section); }

    void Signaler(const std::string& cle, const std::string& quoi) {
        problemes_.push_back(ini_.Fichier + ":" + ini_.Section + ":" + cle + ": " + quoi);
    }

    // A key that must hold a whole number; 0 after a report when it does not.
    int64_t Entier(const std::string& cle) {
        const std::string texte = ini_.Parametre(cle);
        if (texte.empty()) {
            Signaler(cle, "clé absente ou vide");
            return 0;
        }
        const auto n = Convertir_Strict_Entier(texte);
        if (!n) Signaler(cle, "« " + texte + " » n'est pas un entier");
        return n.value_or(0);
    }

    double Reel(const std::string& cle) {
        const std::string texte = ini_.Parametre(cle);
        const auto x = Convertir_Strict_Reel(texte);
        if (!x) Signaler(cle, "« " + texte + " » n'est pas un nombre");
        return x.value_or(0);
    }

    std::string Texte(const std::string& cle) { return ini_.Parametre(cle); }

    void Intervalle(const std::string& cle, int64_t valeur, int64_t min, int64_t max) {
        if (valeur < min || valeur > max)
            Signaler(cle, std::to_string(valeur) + " hors de [" + std::to_string(min) + ", " + std::to_string(max) + "]");
    }

    // Min, Val and Max of one slider; the value must lie between the limits.
    int64_t Curseur(const std::string& min, const std::string& val, const std::string& max) {
        const int64_t bas = Entier(min), haut = Entier(max), v = Entier(val);
        if (bas > haut) Signaler(min, "au-dessus de " + max);
        Intervalle(val, v, bas, haut);
        return v;
    }

private:
    ClsFicINI ini_;
    Problemes& problemes_;
};

void Verifier_Rythme(Controle& c, const std::string& nom) {
    const int64_t min = c.Entier(nom + "Min"), max = c.Entier(nom + "Max"), v = c.Entier(nom);
    if (min <= 0) c.Signaler(nom + "Min", "doit être au-dessus de 0");
    c.Intervalle(nom, v, std::max<int64_t>(min, 1), max);
}

void Verifier_Tailles(Controle& c) {
    const int64_t tailles = c.Entier("NombreTailles");
    if (tailles < 1) c.Signaler("NombreTailles", "il faut au moins une taille");
    for (int64_t t = 1; t <= tailles; ++t) {
        const std::string n = "Taille" + std::to_string(t);
        if (c.Texte(n + "Nom").empty()) c.Signaler(n + "Nom", "nom vide");
        const std::string dimensions = c.Texte(n + "Dimensions");
        const auto etoile = dimensions.find('*');
        if (etoile == std::string::npos || !Convertir_Strict_Entier(dimensions.substr(0, etoile)) ||
            !Convertir_Strict_Entier(dimensions.substr(etoile + 1)))
            c.Signaler(n + "Dimensions", "« " + dimensions + " » n'est pas largeur*hauteur");
        c.Entier(n + "Ressources");
        if (c.Entier(n + "Fiefs") < 2) c.Signaler(n + "Fiefs", "il faut au moins deux fiefs");
    }
    c.Intervalle("TailleChoisie", c.Entier("TailleChoisie"), 1, tailles);
    const int64_t quantites = c.Entier("NombreRessources");
    for (int64_t r = 1; r <= quantites; ++r) c.Reel("Ressources" + std::to_string(r) + "Multiplicateur");
    c.Intervalle("RessourceChoisie", c.Entier("RessourceChoisie"), 1, quantites);
}

void Verifier_Monde(Controle& c) {
    c.Section("Monde");
    c.Intervalle("TypePartie", c.Entier("TypePartie"), 0, 2);
    Verifier_Tailles(c);
    c.Intervalle("EpoqueChoisie", c.Entier("EpoqueChoisie"), 1, Param.NombreEpoques);
    c.Curseur("MinLargeur", "ValLargeur", "MaxLargeur");
    c.Curseur("MinHauteur", "ValHauteur", "MaxHauteur");
    if (c.Entier("MinLargeur") <= 10) c.Signaler("MinLargeur", "une carte doit dépasser 10 cases");
    if (c.Entier("MinHauteur") <= 10) c.Signaler("MinHauteur", "une carte doit dépasser 10 cases");
    c.Curseur("MinQuantitéRessources", "ValQuantitéRessources", "MaxQuantitéRessources");
}

void Verifier_Fiefs(Controle& c) {
    c.Section("Fiefs");
    const int64_t fiefs = c.Curseur("MinFiefs", "ValFiefs", "MaxFiefs");
    if (c.Entier("MinFiefs") < 2) c.Signaler("MinFiefs", "il faut au moins deux fiefs");
    const int64_t maxFiefs = c.Entier("MaxFiefs");
    const int64_t minV = c.Entier("MinVillageoisFief"), maxV = c.Entier("MaxVillageoisFief");
    std::set<int64_t> equipes;
    for (int64_t i = 1; i <= maxFiefs; ++i) {
        const std::string n = std::to_string(i);
        c.Intervalle("ValVillageoisFief" + n, c.Entier("ValVillageoisFief" + n), minV, maxV);
        c.Intervalle("PeupleFief" + n, c.Entier("PeupleFief" + n), 1, Param.NombrePeuples + 1);
        const int64_t equipe = c.Entier("EquipeFief" + n);
        c.Intervalle("EquipeFief" + n, equipe, 1, maxFiefs);
        if (i <= fiefs) equipes.insert(equipe);
    }
    if (equipes.size() < 2) c.Signaler("EquipeFief1", "les fiefs par défaut forment une seule équipe");
}

void Verifier_Armees(Controle& c) {
    for (int a = 1; a <= 2; ++a) {
        c.Section(Section_Numerotee("Armée_", a));
        c.Curseur("MinSoldats", "ValSoldats", "MaxSoldats");
        c.Intervalle("Peuple", c.Entier("Peuple"), 1, Param.NombrePeuples + 1);
    }
}

// ---- pictures ----

// A picture that must be there: the rule that names it, its path in the game folder, and the
// size its family reads (at least that much, or exactly that for a back buffer).
struct ImageAttendue {
    std::string lieu;
    std::string chemin;
    int largeur = 1, hauteur = 1;
    bool exacte = false;
    bool facultative = false;
};

std::string Lieu(const std::string& fichier, const std::string& section, const std::string& cle) {
    return fichier + ".ini:" + section + ":" + cle;
}

// Where a picture that no rule names is reported: its folder and its file.
std::string Lieu_Image(const std::string& chemin) {
    const auto barre = chemin.rfind('/');
    const std::string dossier = chemin.substr(0, barre), fichier = chemin.substr(barre + 1);
    const auto premier = dossier.find('/');
    return premier == std::string::npos ? dossier + "::" + fichier
                                        : dossier.substr(0, premier) + ":" + dossier.substr(premier + 1) + ":" + fichier;
}

// How many looks the humans' sheet must hold: the random ones and every trade and garment.
int Apparences_Humaines() {
    int n = Param.PersosNombreApparences;
    for (int b = 0; b < Param.NombreTypeBatiments; ++b) n = std::max(n, Param.Batiment_ApparencePerso(b) + 1);
    for (int o = 0; o < Param.NombreObjets; ++o) n = std::max(n, Param.Objet_ApparencePerso(o) + 1);
    return std::max(n, 1);
}

// The sizes come from the sprite families, so that what is checked is what they read.
constexpr int CellulePersoL = 3 * ClsAffPerso::Largeur(), CellulePersoH = 4 * ClsAffPerso::Hauteur();

// The file of the picture a family loads by the name nom.
std::string Image(const std::string& nom) { return ClsAffSprite::CheminImage() + nom + ClsAffSprite::Extension_Image(); }

// A button sheet of `colonnes` buttons in `lignes` states, in the cells of its family.
ImageAttendue Boutons(const std::string& lieu, int famille, int colonnes, int lignes) {
    const ClsAffBouton::Famille& f = ClsAffBouton::Familles[famille];
    return {lieu, Image(std::string("Boutons/") + f.fichier), colonnes * f.largeur, lignes * f.hauteur};
}

void Images_Des_Regles(std::vector<ImageAttendue>& l) {
    const std::string B = "Ini_Parametres_Batiments", M = "Ini_Parametres_Monstres", O = "Ini_Parametres_Objets";
    const std::string E = "Ini_Parametres_Effets", R = "Ini_Parametres_Ressources";
    for (int p = 0; p < Param.NombrePeuples; ++p) {
        const int lignes = p == 0 ? Param.NombreEpoques : 1;
        l.push_back({Lieu(M, Section_Numerotee("Peuple_", p + 1), "Nom"), Image(ClsAffBatiment::Chemin_Chateau(p)), Param.ChateauxLargeur,
                     lignes * Param.ChateauxHauteur});
    }
    for (int b = 0; b < Param.NombreTypeBatiments; ++b)
        l.push_back({Lieu(B, Section_Numerotee("Batiment_", b + 1), "Nom"), Image(ClsAffBatiment::Chemin_Maison(b, Param)),
                     Param.Batiment_NombreEtapeAnimation(b) * Param.Batiment_Largeur(b),
                     (Param.Batiment_NombreEtapeFabrication(b) + 1) * Param.Batiment_Hauteur(b)});
    l.push_back({Lieu(R, "Terrain_Ressources", "NombreTerrainRessource"), "Images/Decors/Ressources.bmp",
                 ClsAffRessources::Largeur() * Param.NombreTerrainRessource, ClsAffRessources::Hauteur()});
    for (int e = 0; e < Param.NombreEffets; ++e)
        l.push_back({Lieu(E, Section_Numerotee("Effet_", e + 1), "Fichier"), "Images/Effets/" + Param.Effet_Fichier(e) + ".bmp",
                     Param.Effet_NombreEtapes(e) * Param.Effet_Largeur(e), Param.Effet_Hauteur(e)});
    for (int o = 0; o < Param.NombreObjets; ++o)
        l.push_back({Lieu(O, Section_Numerotee("Objet_", o + 1), "Nom"), "Images/Objets/" + Param.Objet_Nom(o) + ".bmp",
                     ClsAffObjets::Largeur(), ClsAffObjets::Hauteur()});
    if (Param.NombrePeuples > 0)
        l.push_back({Lieu(M, "Peuple_1", "Nom"), "Images/Persos/" + Param.Peuples_Nom(0) + ".bmp", 2 * Apparences_Humaines() * CellulePersoL, CellulePersoH});
    for (int m = 0; m < Param.NombreTotalMonstres; ++m)
        l.push_back({Lieu(M, Section_Numerotee("Monstre_", m + 1), "Nom"), "Images/Persos/Monstres/" + Param.Monstre_Nom(m) + ".bmp",
                     (Param.Monstre_Apparence(m) + 1) * CellulePersoL, CellulePersoH});
    l.push_back(Boutons(Lieu(B, "Batiments", "NombreTypeBatiments"), 0, Param.NombreTypeBatiments + 1, 3));
}

// The pictures of the program itself: fixed layouts, and those sized by the screen files.
void Images_Du_Programme(std::vector<ImageAttendue>& l) {
    auto fixe = [&l](const std::string& chemin, int largeur, int hauteur) { l.push_back({Lieu_Image(chemin), chemin, largeur, hauteur}); };
    auto boutons = [&l](int famille, int colonnes, int lignes) {
        ImageAttendue i = Boutons("", famille, colonnes, lignes);
        i.lieu = Lieu_Image(i.chemin);
        l.push_back(i);
    };
    const ClsAffTerrain terrain;   // the 17 tile values of a map cell, 0 to 16
    fixe("Images/terrains/Plaine.bmp", 17 * terrain.LargeurCase, terrain.HauteurCase);
    fixe("Images/Curseurs/ArrowCursor.bmp", ClsAffSouris::NombreModes * ClsAffSouris::Largeur(), ClsAffSouris::Hauteur());
    boutons(2, 7, 2);   // Action
    boutons(4, 9, 2);   // Commerce
    boutons(5, 6, 1);   // Transfert
    boutons(6, 2, 1);   // Defilement
    fixe("Images/Fenetres/Victoire-Defaite.bmp", 320, 400);
    fixe("Images/Fenetres/Fenetres.bmp", 1, 1);
    ClsFicINI ecran;
    ecran.Fichier = "Ini_Ecran";
    ecran.Section = "Ecran";
    const int resolutions = Souple_En<int32_t>(ecran.Parametre("NombreResolution"));
    bool interface = false;
    for (int n = 1; n <= resolutions; ++n) {
        ecran.Section = Section_Numerotee("Resolution_", n);
        const int largeur = Souple_En<int32_t>(ecran.Parametre("Largeur")), hauteur = Souple_En<int32_t>(ecran.Parametre("Hauteur"));
        if (largeur <= 0 || hauteur <= 0) continue;
        const std::string w = std::to_string(largeur);
        l.push_back({Lieu("Ini_Ecran", ecran.Section, "Largeur"), "Images/Fond" + w + ".bmp", largeur, hauteur, true});
        l.push_back({Lieu("Ini_Ecran", ecran.Section, "Largeur"), "Images/Fenetres/Chargement" + w + ".bmp", largeur, hauteur, false, true});
        // What the layout of this screen width asks of the button and window pictures.
        ClsFicINI disposition;
        disposition.Fichier = "Ini_Interface" + w;
        disposition.Section = "Interface";
        if (!std::filesystem::exists(disposition.Chemin())) continue;
        interface = true;
        auto cle = [&](const char* nom) { return Souple_En<int32_t>(disposition.Parametre(nom)); };
        const int infos = cle("NombreBoutonsInfos"), deplacement = cle("NombreBoutonsDeplacement");
        l.push_back(Boutons(Lieu(disposition.Fichier, "Interface", "NombreBoutonsInfos"), 1, std::max(infos, 1), 2));
        l.push_back(Boutons(Lieu(disposition.Fichier, "Interface", "NombreBoutonsDeplacement"), 3, std::max(deplacement, 1),
                            deplacement > 17 ? 5 : 2));
        l.push_back({Lieu(disposition.Fichier, "Interface", "LargeurFenetres"), "Images/Fenetres/Fenetres.bmp", 3 * cle("LargeurFenetres"),
                     cle("HauteurFenetres")});
        if (cle("AfficherCadre") != 0)
            l.push_back({Lieu(disposition.Fichier, "Interface", "AfficherCadre"), "Images/Fenetres/Cadre.bmp", largeur, hauteur});
    }
    if (!interface) {
        boutons(1, 6, 2);    // Infos
        boutons(3, 18, 5);   // Deplacement
    }
}

// Every file of the hero folders is a look of one block. What the game loads for it is the
// file's name cut at its first '.', with the picture extension: "Archer.old.png" asks for
// "Archer.bmp", and that is the picture checked, reported at the file that asks for it.
void Images_Des_Heros(std::vector<ImageAttendue>& l) {
    for (const bool feminin : {true, false})
        for (const std::string& nom : Lister_Dossier(ClsAffPerso::Dossier_Heros(feminin))) {
            const std::string fichier = ClsAffSprite::CheminImage() + ClsAffPerso::CheminHeros(feminin) + nom;
            l.push_back({Lieu_Image(fichier), Image(ClsAffPerso::Nom_Heros(feminin, nom)), CellulePersoL, CellulePersoH});
        }
}

std::string Taille(int largeur, int hauteur) { return std::to_string(largeur) + " × " + std::to_string(hauteur); }

void Controler_Image(const ImageAttendue& i, Problemes& problemes) {
    const std::filesystem::path chemin = Chemin_Jeu(i.chemin);
    std::error_code erreur;
    if (!std::filesystem::exists(chemin, erreur)) {
        if (!i.facultative) problemes.push_back(i.lieu + ": " + i.chemin + " manque");
        return;
    }
    const auto taille = Lire_Taille_Bmp(chemin);
    if (!taille) {
        problemes.push_back(i.lieu + ": " + i.chemin + " n'est pas une image BMP lisible");
    } else if (i.exacte ? (taille->largeur != i.largeur || taille->hauteur != i.hauteur)
                        : (taille->largeur < i.largeur || taille->hauteur < i.hauteur)) {
        problemes.push_back(i.lieu + ": " + i.chemin + " fait " + Taille(taille->largeur, taille->hauteur) + (i.exacte ? ", il faut " : ", il faut au moins ") +
                            Taille(i.largeur, i.hauteur));
    }
}

}  // namespace

void Verifier_Ini_Jeu(Problemes& problemes) {
    Controle c("Ini_Jeu", problemes);
    c.Section("Vitesse");
    Verifier_Rythme(c, "FPS");
    Verifier_Rythme(c, "Vitesse");
}

void Verifier_Images(Problemes& problemes) {
    std::vector<ImageAttendue> images;
    Images_Des_Regles(images);
    Images_Du_Programme(images);
    Images_Des_Heros(images);
    for (const ImageAttendue& i : images) Controler_Image(i, problemes);
}

void Verifier_Ini_Partie(Problemes& problemes) {
    Controle c("Ini_Partie", problemes);
    Verifier_Monde(c);
    Verifier_Fiefs(c);
    Verifier_Armees(c);
}

Problemes Verifier_Dossier_Jeu() {
    Problemes problemes = Verifier_Param();
    const bool reglesSaines = problemes.empty();
    Verifier_Ini_Jeu(problemes);
    if (reglesSaines) {
        Param.Reinitialiser();
        for (int groupe = 0; groupe < 7; ++groupe) Param.Init(groupe);
        Verifier_Ini_Partie(problemes);
        Verifier_Images(problemes);
    }
    return problemes;
}

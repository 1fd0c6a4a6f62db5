// The humans' sheet and the hero looks.
//
// The sheet of people 0 holds every look that a rule names: the looks drawn at random for a
// new villager (0 to PersosNombreApparences - 1), then the outfits of the trades (the
// ApparencePerso of buildings) and of worn garments (that of objects). Look k is block 2k for
// a man and 2k + 1 for a woman. Heroes have a file each, one block, in HerosF/ and HerosM/.
#include <algorithm>
#include <string>

#include "Bruit.h"
#include "Forge.h"
#include "Humanoide.h"
#include "rules/ClsJeuParam.h"

namespace {

struct Tenue {
    Rampe haut, bas;
    Coiffe coiffeH, coiffeF;
    Rampe coiffeCouleur;
    bool tablier = false;
    Rampe tablierCouleur = Pal::Cuir;
    bool robe = false;          // to the feet for both sexes
    bool manchesNues = false;
    Armure armure = Armure::Aucune;
    bool galons = false;
    Tenu main = Tenu::Rien;
};

// The outfits by look number: four everyday ones, then the trades, then the garments.
const Tenue Tenues[] = {
    {Pal::DrapOcre, Pal::DrapBrun, Coiffe::Aucune, Coiffe::Aucune, Pal::DrapBrun},                      // 0
    {Pal::DrapVert, Pal::DrapBrun, Coiffe::Aucune, Coiffe::Foulard, Pal::DrapBlanc},                    // 1
    {Pal::DrapBleu, Pal::DrapGris, Coiffe::Aucune, Coiffe::Aucune, Pal::DrapBrun},                      // 2
    {Pal::DrapRouge, Pal::DrapBrun, Coiffe::Bonnet, Coiffe::Aucune, Pal::DrapBrun},                     // 3
    {Pal::DrapGris, Pal::DrapBrun, Coiffe::Bonnet, Coiffe::Foulard, Pal::DrapBrun, true, Pal::Cuir},    // 4 worker
    {Pal::DrapBlanc, Pal::DrapBrun, Coiffe::Paille, Coiffe::Paille, Pal::Chaume},                        // 5 peasant
    {Pal::DrapSarcelle, Pal::DrapBrun, Coiffe::Aucune, Coiffe::Foulard, Pal::DrapOcre, true, Pal::Cuir, false, true},  // 6 craftsman
    {Pal::DrapBrun, Pal::DrapBrun, Coiffe::Capuche, Coiffe::Voile, Pal::DrapBrun, false, Pal::Cuir, true},            // 7 religious
    {Pal::DrapRouge, Pal::DrapBrun, Coiffe::Casque, Coiffe::Casque, Pal::Metal, false, Pal::Cuir, false, false, Armure::Aucune, false, Tenu::Lance},  // 8 soldier
    {Pal::DrapViolet, Pal::DrapGris, Coiffe::Chaperon, Coiffe::Aucune, Pal::DrapBordeaux, false, Pal::Cuir, false, false, Armure::Aucune, true},        // 9 notable
    {Pal::DrapBleu, Pal::DrapBleu, Coiffe::Pointu, Coiffe::Pointu, Pal::DrapBleu, false, Pal::Cuir, true, false, Armure::Aucune, true, Tenu::Baton},   // 10 mage
    {Pal::DrapBlanc, Pal::DrapBrun, Coiffe::Aucune, Coiffe::Aucune, Pal::DrapBrun},                      // 11 tunic
    {Pal::Metal, Pal::DrapBrun, Coiffe::Aucune, Coiffe::Aucune, Pal::Metal, false, Pal::Cuir, false, false, Armure::Mailles},                          // 12 mail
    {Pal::Metal, Pal::Metal, Coiffe::Aucune, Coiffe::Aucune, Pal::Metal, false, Pal::Cuir, false, false, Armure::Plaques},                             // 13 plate
    {Pal::DrapViolet, Pal::DrapViolet, Coiffe::Capuche, Coiffe::Capuche, Pal::DrapViolet, false, Pal::Cuir, true, false, Armure::Aucune, true},        // 14 mage's robe
};
constexpr int NombreTenues = static_cast<int>(std::size(Tenues));

const Rampe Chevelures[] = {Pal::CheveuxBruns, Pal::CheveuxBlonds, Pal::CheveuxRoux, Pal::CheveuxNoirs, Pal::CheveuxBruns};
const Rampe Teintes[] = {Pal::DrapOcre, Pal::DrapVert, Pal::DrapBleu, Pal::DrapRouge, Pal::DrapSarcelle, Pal::DrapViolet};

Apparence Apparence_Villageois(int look, bool feminin) {
    const Tenue& t = Tenues[look % NombreTenues];
    Apparence a;
    a.haut = t.haut;
    a.bas = t.bas;
    // Looks past the table take the outfit of an earlier one in another colour.
    if (look >= NombreTenues) a.haut = Teintes[look % std::size(Teintes)];
    const uint32_t h = Hacher(look, feminin, 0xC0F);
    a.cheveux = Chevelures[h % std::size(Chevelures)];
    a.peau = (h >> 8) % 4 == 0 ? Pal::PeauMate : Pal::Peau;
    a.cheveuxLongs = feminin;
    a.barbe = !feminin && (h >> 12) % 3 == 0 && t.coiffeH != Coiffe::Casque;
    a.jupe = feminin ? t.armure == Armure::Aucune : t.robe;
    a.coiffe = feminin ? t.coiffeF : t.coiffeH;
    a.coiffeCouleur = t.coiffeCouleur;
    a.tablier = t.tablier;
    a.tablierCouleur = t.tablierCouleur;
    a.manchesNues = t.manchesNues;
    a.armure = t.armure;
    a.galons = t.galons;
    a.main = t.main;
    if (t.robe) a.ceintureCouleur = Pal::Chaume;
    if (feminin && look < 4) a.tablier = look % 2 == 0, a.tablierCouleur = Pal::DrapBlanc;
    return a;
}

// How many looks the rules name: the random ones, and every outfit of a trade or a garment.
int Nombre_Apparences() {
    int n = Param.PersosNombreApparences;
    for (int b = 0; b < Param.NombreTypeBatiments; ++b) n = std::max(n, Param.Batiment_ApparencePerso(b) + 1);
    for (int o = 0; o < Param.NombreObjets; ++o) n = std::max(n, Param.Objet_ApparencePerso(o) + 1);
    return std::max(n, 1);
}

struct Heros {
    const char* nom;
    bool feminin;
    Apparence a;
};

Apparence Heros_Base(bool feminin, Rampe cheveux) {
    Apparence a;
    a.cheveux = cheveux;
    a.cheveuxLongs = feminin;
    return a;
}

std::vector<Heros> Les_Heros() {
    std::vector<Heros> h;
    for (bool f : {true, false}) {
        Apparence archer = Heros_Base(f, f ? Pal::CheveuxRoux : Pal::CheveuxBlonds);
        archer.haut = Pal::DrapVert;
        archer.bas = Pal::DrapBrun;
        archer.armure = Armure::Cuir;
        archer.coiffe = Coiffe::Capuche;
        archer.coiffeCouleur = Pal::DrapVert;
        archer.dos = Tenu::Arc;
        archer.main = Tenu::Dague;
        h.push_back({f ? "Archère" : "Archer", f, archer});

        Apparence chevalier = Heros_Base(f, f ? Pal::CheveuxBlonds : Pal::CheveuxBruns);
        chevalier.armure = Armure::Plaques;
        chevalier.cape = true;
        chevalier.capeCouleur = f ? Pal::DrapBleu : Pal::DrapRouge;
        chevalier.coiffe = f ? Coiffe::Aucune : Coiffe::Heaume;
        chevalier.coiffeCouleur = Pal::Metal;
        chevalier.plumet = !f;
        chevalier.main = Tenu::Epee;
        h.push_back({f ? "Chevalière" : "Chevalier", f, chevalier});

        Apparence guerrier = Heros_Base(f, f ? Pal::CheveuxNoirs : Pal::CheveuxRoux);
        guerrier.haut = Pal::DrapBordeaux;
        guerrier.armure = Armure::Cuir;
        guerrier.manchesNues = true;
        guerrier.barbe = !f;
        guerrier.coiffe = f ? Coiffe::Aucune : Coiffe::Cornes;
        guerrier.coiffeCouleur = Pal::Metal;
        guerrier.main = Tenu::Hache;
        guerrier.cape = true;
        guerrier.capeCouleur = Pal::DrapBrun;
        h.push_back({f ? "Guerrière" : "Guerrier", f, guerrier});

        Apparence mage = Heros_Base(f, f ? Pal::CheveuxBlonds : Pal::CheveuxGris);
        mage.haut = f ? Pal::DrapViolet : Pal::DrapBleu;
        mage.jupe = true;
        mage.galons = true;
        mage.barbe = !f;
        mage.coiffe = Coiffe::Pointu;
        mage.coiffeCouleur = mage.haut;
        mage.main = Tenu::Baton;
        mage.ceintureCouleur = Pal::Or;
        h.push_back({f ? "Magicienne" : "Mage", f, mage});

        Apparence pretre = Heros_Base(f, f ? Pal::CheveuxBruns : Pal::CheveuxBruns);
        pretre.haut = f ? Pal::DrapBlanc : Pal::DrapBrun;
        pretre.jupe = true;
        pretre.chauve = !f;
        pretre.coiffe = f ? Coiffe::Couronne : Coiffe::Aucune;
        pretre.main = Tenu::Baton;
        pretre.ceintureCouleur = f ? Pal::Or : Pal::Chaume;
        pretre.cape = f;
        pretre.capeCouleur = Pal::DrapOcre;
        h.push_back({f ? "Prêtresse" : "Moine", f, pretre});
    }
    return h;
}

}  // namespace

void Forger_Persos(Atelier& a) {
    const int looks = Nombre_Apparences();
    Toile planche(2 * looks * 3 * LargeurPerso, 4 * HauteurPerso);
    for (int look = 0; look < looks; ++look)
        for (int f = 0; f < 2; ++f)
            planche.Coller(Bloc_Perso(Apparence_Villageois(look, f == 1)), (2 * look + f) * 3 * LargeurPerso, 0);
    a.Ecrire("Persos/" + Param.Peuples_Nom(0) + ".bmp", planche);

    for (const Heros& h : Les_Heros())
        a.Ecrire(std::string("Persos/") + (h.feminin ? "HerosF/" : "HerosM/") + h.nom + ".bmp", Bloc_Perso(h.a));
}

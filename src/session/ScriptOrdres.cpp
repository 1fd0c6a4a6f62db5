#include "session/ScriptOrdres.h"

#include <algorithm>
#include <fstream>
#include <limits>
#include <sstream>

#include "ai/TestPoint.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"
#include "world/Globales.h"

namespace {

// What an argument names, which decides the range it must lie in.
enum class Genre : uint8_t {
    Libre,           // a position or an offset in metres: any whole number
    TypeBatiment,
    Ressource,
    Maison,          // a house slot, that is a character's number
    LigneObjet,      // a line of a workshop's objects
    SacInventaire,   // an inventory slot
    SacEquipement,   // an equipment slot
};

struct Forme {
    Verbe Ordre;
    std::string_view Mot;
    std::string_view Accentue;   // the same word written with its accent, also accepted
    int Nombre;                  // arguments
    std::array<Genre, 3> Genres;
    std::string_view Usage;      // the arguments, as the messages show them
};

constexpr Genre L = Genre::Libre;
constexpr int64_t MetresMax = 1'000'000;

constexpr std::array<Forme, 14> Formes{{
    {Verbe::Batir, "batir", "bâtir", 3, {Genre::TypeBatiment, L, L}, "TYPE DX DY"},
    {Verbe::Recolter, "recolter", "récolter", 1, {Genre::Ressource, L, L}, "RESSOURCE"},
    {Verbe::Rentrer, "rentrer", "", 0, {L, L, L}, ""},
    {Verbe::Chateau, "chateau", "château", 0, {L, L, L}, ""},
    {Verbe::Aller, "aller", "", 2, {L, L, L}, "X Y"},
    {Verbe::Arreter, "arreter", "arrêter", 0, {L, L, L}, ""},
    {Verbe::Fabriquer, "fabriquer", "", 1, {Genre::LigneObjet, L, L}, "LIGNE"},
    {Verbe::Ramasser, "ramasser", "", 1, {Genre::LigneObjet, L, L}, "LIGNE"},
    {Verbe::Acheter, "acheter", "", 2, {Genre::Maison, Genre::LigneObjet, L}, "MAISON LIGNE"},
    {Verbe::Vendre, "vendre", "", 1, {Genre::SacInventaire, L, L}, "EMPLACEMENT"},
    {Verbe::Equiper, "equiper", "équiper", 1, {Genre::SacInventaire, L, L}, "EMPLACEMENT"},
    {Verbe::Ranger, "ranger", "", 1, {Genre::SacEquipement, L, L}, "EMPLACEMENT"},
    {Verbe::Deposer, "deposer", "déposer", 1, {Genre::SacInventaire, L, L}, "EMPLACEMENT"},
    {Verbe::Manger, "manger", "", 1, {Genre::Ressource, L, L}, "RESSOURCE"},
}};

const Forme* Trouver_Forme(std::string_view mot) {
    for (const Forme& f : Formes)
        if (mot == f.Mot || (!f.Accentue.empty() && mot == f.Accentue)) return &f;
    return nullptr;
}

const Forme& Forme_De(Verbe v) {
    for (const Forme& f : Formes)
        if (f.Ordre == v) return f;
    return Formes[0];
}

// The words of a line, comment cut off. All are counted; the first MotsMax are kept, which is
// more than the longest order needs.
constexpr std::size_t MotsMax = 6;

bool Blanc(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\v' || c == '\f'; }

std::size_t Decouper(std::string_view ligne, std::array<std::string_view, MotsMax>& mots) {
    const std::size_t commentaire = ligne.find_first_of(";#");
    if (commentaire != std::string_view::npos) ligne = ligne.substr(0, commentaire);
    std::size_t n = 0;
    std::size_t i = 0;
    while (i < ligne.size()) {
        while (i < ligne.size() && Blanc(ligne[i])) ++i;
        const std::size_t debut = i;
        while (i < ligne.size() && !Blanc(ligne[i])) ++i;
        if (i == debut) break;
        if (n < MotsMax) mots[n] = ligne.substr(debut, i - debut);
        ++n;
    }
    return n;
}

std::string Guillemets(std::string_view texte) { return "« " + std::string(texte) + " »"; }

// The last index allowed for an argument of that kind, from the rules and the world in memory.
int64_t Borne(Genre g) {
    switch (g) {
    case Genre::TypeBatiment: return Param.NombreTypeBatiments - 1;
    case Genre::Ressource: return Param.NombreRessources - 1;
    case Genre::Maison: return static_cast<int64_t>(Maisons.size()) - 1;
    case Genre::LigneObjet: {
        int64_t lignes = 0;
        for (int b = 0; b < Param.NombreTypeBatiments; ++b)
            lignes = std::max<int64_t>(lignes, Param.Batiment_NombreObjetsFabriques(b));
        return lignes - 1;
    }
    case Genre::SacInventaire: return Param.PersosNombreObjetsInventaire - 1;
    case Genre::SacEquipement: return Param.PersosNombreObjetsEquipes - 1;
    case Genre::Libre: break;
    }
    return std::numeric_limits<int32_t>::max();
}

std::string_view Nom_Genre(Genre g) {
    switch (g) {
    case Genre::TypeBatiment: return "type de bâtiment";
    case Genre::Ressource: return "ressource";
    case Genre::Maison: return "maison";
    case Genre::LigneObjet: return "ligne d'objets";
    case Genre::SacInventaire: return "emplacement du sac";
    case Genre::SacEquipement: return "emplacement d'équipement";
    case Genre::Libre: break;
    }
    return "nombre";
}

template <class T>
T* Element(std::vector<T>& tableau, int32_t i) {
    return i >= 0 && static_cast<std::size_t>(i) < tableau.size() ? &tableau[static_cast<std::size_t>(i)] : nullptr;
}

// The deposit of resource r whose centre is nearest the character's; -1 if none lies on the map.
int32_t Gisement_Proche(const ClsJeuPerso& p, int32_t r) {
    int32_t meilleur = -1;
    double distance = 0;
    const double px = p.PositionX + LargeurPerso / 2.0, py = p.PositionY + HauteurPerso / 2.0;
    for (std::size_t k = 0; k < Ressources.size(); ++k) {
        const ClsJeuRessources& g = Ressources[k];
        if (!g.Visible() || g.TypeRessource != r) continue;
        const double dx = g.PositionX + LargeurGisement / 2.0 - px;
        const double dy = g.PositionY + HauteurGisement / 2.0 - py;
        const double d = dx * dx + dy * dy;
        if (meilleur < 0 || d < distance) {
            meilleur = static_cast<int32_t>(k);
            distance = d;
        }
    }
    return meilleur;
}

}  // namespace

std::optional<ScriptOrdres> ScriptOrdres::Lire(const std::filesystem::path& chemin, std::string& erreur) {
    std::error_code code;
    std::ifstream fichier;
    if (std::filesystem::is_regular_file(chemin, code)) fichier.open(chemin, std::ios::binary);
    std::ostringstream contenu;
    if (fichier.is_open()) contenu << fichier.rdbuf();
    if (!fichier.is_open() || fichier.bad()) {
        erreur = chemin.string() + " : impossible de lire le fichier d'ordres";
        return std::nullopt;
    }
    return Lire_Texte(contenu.str(), chemin.string(), erreur);
}

std::optional<ScriptOrdres> ScriptOrdres::Lire_Texte(std::string_view texte, std::string_view nom,
                                                     std::string& erreur) {
    ScriptOrdres script;
    script.nom_ = nom;
    if (texte.substr(0, 3) == "\xEF\xBB\xBF") texte.remove_prefix(3);   // a byte-order mark
    int32_t numero = 0;
    auto faute = [&](const std::string& probleme) {
        erreur = std::string(nom) + ", ligne " + std::to_string(numero) + " : " + probleme;
        return std::nullopt;
    };
    while (!texte.empty()) {
        ++numero;
        const std::size_t fin = texte.find('\n');
        const std::string_view ligne = texte.substr(0, fin);
        texte.remove_prefix(fin == std::string_view::npos ? texte.size() : fin + 1);

        std::array<std::string_view, MotsMax> mots{};
        const std::size_t n = Decouper(ligne, mots);
        if (n == 0) continue;
        if (n < 3) return faute("une ligne d'ordre s'écrit « TOUR PERSO ORDRE [ARGUMENTS] »");

        OrdreScript o;
        o.Ligne = numero;
        const auto tour = Convertir_Strict_Entier(mots[0]);
        if (!tour) return faute("le tour " + Guillemets(mots[0]) + " n'est pas un nombre entier");
        if (*tour < 0) return faute("le tour " + std::to_string(*tour) + " est négatif");
        if (!script.ordres_.empty() && *tour < script.ordres_.back().Tour)
            return faute("le tour " + std::to_string(*tour) + " précède celui de la ligne " +
                         std::to_string(script.ordres_.back().Ligne) + " (" +
                         std::to_string(script.ordres_.back().Tour) + ")");
        o.Tour = *tour;
        const auto perso = Convertir_Strict_Entier(mots[1]);
        if (!perso) return faute("le personnage " + Guillemets(mots[1]) + " n'est pas un nombre entier");
        if (*perso < 0 || *perso > std::numeric_limits<int32_t>::max())
            return faute("le personnage " + std::to_string(*perso) + " n'existe pas");
        o.Perso = static_cast<int32_t>(*perso);

        const Forme* forme = Trouver_Forme(mots[2]);
        if (forme == nullptr) return faute("ordre inconnu " + Guillemets(mots[2]));
        o.Ordre = forme->Ordre;
        const int donnes = static_cast<int>(n) - 3;
        if (donnes != forme->Nombre) {
            std::string attendu = forme->Nombre == 0 ? std::string("aucun argument")
                                                      : std::to_string(forme->Nombre) + " argument" +
                                                            (forme->Nombre > 1 ? "s" : "") + " (" +
                                                            std::string(forme->Usage) + ")";
            return faute(Guillemets(forme->Mot) + " attend " + attendu + ", pas " + std::to_string(donnes));
        }
        for (int a = 0; a < forme->Nombre; ++a) {
            const std::string_view mot = mots[static_cast<std::size_t>(3 + a)];
            const auto v = Convertir_Strict_Entier(mot);
            if (!v) return faute(Guillemets(mot) + " n'est pas un nombre entier");
            const Genre g = forme->Genres[static_cast<std::size_t>(a)];
            // A position or an offset stays far inside 32 bits, so that adding it to a
            // position cannot overflow.
            const int64_t bas = g == Genre::Libre ? -MetresMax : 0;
            const int64_t haut = g == Genre::Libre ? MetresMax : std::numeric_limits<int32_t>::max();
            if (*v < bas || *v > haut)
                return faute(std::string(Nom_Genre(g)) + " " + std::to_string(*v) + " hors limites");
            o.Arguments[static_cast<std::size_t>(a)] = static_cast<int32_t>(*v);
        }
        script.ordres_.push_back(o);
    }
    return script;
}

std::string ScriptOrdres::Situer(const OrdreScript& o) const {
    return nom_ + ", ligne " + std::to_string(o.Ligne) + " : ";
}

std::optional<std::string> ScriptOrdres::Verifier() const {
    for (const OrdreScript& o : ordres_) {
        if (static_cast<std::size_t>(o.Perso) >= Persos.size())
            return Situer(o) + "le personnage " + std::to_string(o.Perso) + " n'existe pas (0 à " +
                   std::to_string(static_cast<int64_t>(Persos.size()) - 1) + ")";
        const Forme& forme = Forme_De(o.Ordre);
        for (int a = 0; a < forme.Nombre; ++a) {
            const Genre g = forme.Genres[static_cast<std::size_t>(a)];
            const int64_t borne = Borne(g);
            const int32_t v = o.Arguments[static_cast<std::size_t>(a)];
            if (g == Genre::Libre || v <= borne) continue;
            std::string message = Situer(o) + std::string(Nom_Genre(g)) + " " + std::to_string(v) + " hors limites";
            message += borne < 0 ? " (il n'y en a aucun)" : " (0 à " + std::to_string(borne) + ")";
            return message;
        }
    }
    return std::nullopt;
}

void ScriptOrdres::Appliquer(int64_t tour) {
    while (prochain_ < ordres_.size() && ordres_[prochain_].Tour <= tour) Donner_Ordre(ordres_[prochain_++]);
}

// An order that the character cannot carry out (price not carried, no deposit of the kind,
// no such line in its house) does nothing, as a click would.
void Donner_Ordre(const OrdreScript& o) {
    ClsJeuPerso* perso = Element(Persos, o.Perso);
    ClsJeuBatiment* sienne = Element(Maisons, o.Perso);
    if (perso == nullptr || sienne == nullptr) return;
    ClsJeuPerso& p = *perso;
    ClsJeuBatiment& maison = *sienne;
    const auto& a = o.Arguments;
    switch (o.Ordre) {
    case Verbe::Batir: {
        const ClsJeuBatiment* chateau = Element(Chateaux, p.Fief);
        if (chateau == nullptr || !p.PeutConstruire_Maison(a[0], Param)) return;
        maison.Creer(chateau->PositionX + a[1], chateau->PositionY + a[2], static_cast<int16_t>(a[0]), p, Param);
        p.Rentrer_Maison(maison);
        return;
    }
    case Verbe::Recolter: {
        const int32_t k = Gisement_Proche(p, a[0]);
        if (k >= 0) p.Aller_Ressource(Ressources[static_cast<std::size_t>(k)], k, LargeurGisement, HauteurGisement);
        return;
    }
    case Verbe::Rentrer: p.Rentrer_Maison(maison); return;
    case Verbe::Chateau:
        if (const ClsJeuBatiment* chateau = Element(Chateaux, p.Fief))
            p.Rentrer_Chateau(*chateau, Param.ChateauxLargeur, Param.ChateauxHauteur);
        return;
    case Verbe::Aller: p.Aller_A(a[0], a[1]); return;
    case Verbe::Arreter: p.Arreter(); return;
    case Verbe::Fabriquer:
        if (p.PeutConstruire_Objet(a[0], maison, Param))
            p.Creer_Objet(a[0]);
        return;
    case Verbe::Ramasser:
        p.Objet_Ramasser_Maison(a[0], maison, Param);
        return;
    case Verbe::Acheter: {
        ClsJeuBatiment* vendeuse = Element(Maisons, a[0]);
        if (vendeuse != nullptr && vendeuse->Visible())
            p.Objet_Acheter_Maison(a[1], *vendeuse, Param);
        return;
    }
    case Verbe::Vendre: p.Objet_Vendre_Chateau(a[0], Param); return;
    case Verbe::Equiper: p.Objet_Equiper(a[0], Param, Commentaires); return;
    case Verbe::Ranger: p.Objet_Ranger(a[0], Param); return;
    case Verbe::Deposer:
        if (maison.Visible()) p.Objet_Deposer_Maison(a[0], maison, Param);
        return;
    case Verbe::Manger: p.Manger_Ressources(a[0], Param); return;
    }
}

#include "rules/ClsJeuParamLecteur.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <limits>

#include "rules/BoiteMessage.h"
#include "rules/ClsJeuParam.h"
#include "rules/Conversions.h"

namespace {

template <class T>
std::string Bornes_Type() {
    std::string bornes = "[";
    bornes += std::to_string(std::numeric_limits<T>::min());
    bornes += ", ";
    bornes += std::to_string(std::numeric_limits<T>::max());
    bornes += "]";
    return bornes;
}

std::string Cite(std::string_view valeur) { return "« " + std::string(valeur) + " »"; }

const char* Nom_Table(TableParam table) {
    switch (table) {
        case TableParam::Epoques: return "époques";
        case TableParam::Ressources: return "ressources";
        case TableParam::Services: return "services";
        case TableParam::CompetencesObjets: return "compétences d'objets";
        case TableParam::Objets: return "objets";
        case TableParam::Peuples: return "peuples";
        case TableParam::Monstres: return "monstres";
        case TableParam::Effets: return "effets";
    }
    return "?";
}

int64_t Taille_Table(const ClsJeuParam& p, TableParam table) {
    switch (table) {
        case TableParam::Epoques: return p.NombreEpoques;
        case TableParam::Ressources: return p.NombreRessources;
        case TableParam::Services: return p.NombreServices;
        case TableParam::CompetencesObjets: return p.NombreCompetencesObjets;
        case TableParam::Objets: return p.NombreObjets;
        case TableParam::Peuples: return p.NombrePeuples;
        case TableParam::Monstres: return p.NombreTotalMonstres;
        case TableParam::Effets: return p.NombreEffets;
    }
    return 0;
}

bool Renvoi_Valide(int64_t v, int64_t n, GenreRenvoi genre) {
    switch (genre) {
        case GenreRenvoi::Obligatoire: return v >= 0 && v < n;
        case GenreRenvoi::NegatifAucun: return v < n;
        case GenreRenvoi::ZeroAucun: return v >= 0 && (v == 0 || v < n);
        case GenreRenvoi::Numero: return v >= 0 && v <= n;
    }
    return false;
}

}  // namespace

void RapportParam::Signaler(std::string_view lieu, std::string_view quoi) {
    // One problem per key: the first one found says enough.
    const std::string debut = std::string(lieu) + ": ";
    for (const std::string& p : Problemes)
        if (p.starts_with(debut)) return;
    Problemes.push_back(debut + std::string(quoi));
}

void RapportParam::Noter_Renvoi(std::string lieu, int64_t valeur, TableParam table, GenreRenvoi genre) {
    renvois_.push_back({std::move(lieu), valeur, table, genre});
}

void RapportParam::Verifier_Renvois(const ClsJeuParam& param) {
    for (const Renvoi& r : renvois_) {
        const int64_t n = Taille_Table(param, r.Table);
        if (!Renvoi_Valide(r.Valeur, n, r.Genre))
            Signaler(r.Lieu, std::string("renvoie hors de la table des ") + Nom_Table(r.Table) + " (" +
                                 std::to_string(n) + " entrées)");
    }
    renvois_.clear();
}

LecteurParam::LecteurParam(std::string_view fichier, RapportParam* rapport) : rapport_(rapport) {
    ini_.Fichier = fichier;
    fichier_absent_ = !std::filesystem::exists(ini_.Chemin());
    // One line for a missing file rather than one per key in it.
    if (rapport_ && fichier_absent_) rapport_->Signaler(ini_.Fichier + ini_.Extension, "fichier absent");
}

std::string LecteurParam::Lieu(std::string_view cle) const {
    return ini_.Fichier + ini_.Extension + ":" + ini_.Section + ":" + std::string(cle);
}

void LecteurParam::Echec(std::string_view cle, std::string_view quoi) {
    if (rapport_) {
        if (!fichier_absent_) rapport_->Signaler(Lieu(cle), quoi);
        return;
    }
    // Nothing was read from a missing file: the message names no key.
    const std::string derniere = fichier_absent_ ? std::string() : ini_.DerniereLigne;
    Boite_Message("Erreur",
                  "Une erreur s'est produit pendant le chargement de :" + derniere + "(" + ini_.Fichier + ").",
                  GenreMessage::Critique);
    std::exit(1);
}

std::string LecteurParam::Texte(std::string_view cle) { return ini_.Parametre(cle); }

template <class T>
T LecteurParam::Entier_Strict(std::string_view cle, int64_t decalage) {
    const std::string texte = ini_.Parametre(cle);
    const std::optional<int64_t> n = Convertir_Strict_Entier(texte);
    if (!n) {
        Echec(cle, Cite(texte) + " n'est pas un nombre entier");
        return 0;
    }
    // Compared before the subtraction, which therefore cannot overflow.
    if (*n < std::numeric_limits<T>::min() + decalage || *n > std::numeric_limits<T>::max() + decalage) {
        Echec(cle, Cite(texte) + " sort des bornes " + Bornes_Type<T>());
        return 0;
    }
    return static_cast<T>(*n - decalage);
}

template <class T>
T LecteurParam::Entier_Souple(std::string_view cle, double decalage) {
    const std::string texte = ini_.Parametre(cle);
    const double x = Convertir_Souple(texte) - decalage;
    const double arrondi = Arrondir(x);
    if (rapport_ && !(arrondi >= std::numeric_limits<T>::min() && arrondi <= std::numeric_limits<T>::max()))
        rapport_->Signaler(Lieu(cle), Cite(texte) + " sort des bornes " + Bornes_Type<T>());
    return Arrondir_En<T>(x);
}

template <class T>
T LecteurParam::Strict(std::string_view cle) {
    if constexpr (std::is_same_v<T, double>) {
        const std::string texte = ini_.Parametre(cle);
        if (const std::optional<double> x = Convertir_Strict_Reel(texte)) return *x;
        Echec(cle, Cite(texte) + " n'est pas un nombre");
        return 0;
    } else {
        return Entier_Strict<T>(cle, 0);
    }
}

template <class T>
T LecteurParam::Souple(std::string_view cle) {
    if constexpr (std::is_same_v<T, double>)
        return Convertir_Souple(ini_.Parametre(cle));
    else if constexpr (std::is_same_v<T, bool>)
        return Souple_Booleen(ini_.Parametre(cle));
    else
        return Entier_Souple<T>(cle, 0);
}

template <class T>
std::vector<T> LecteurParam::Liste(std::string_view prefixe, int n) {
    std::vector<T> valeurs(std::max(n, 0));
    for (int k = 0; k < n; ++k) valeurs[k] = Souple<T>(Cle_Numerotee(prefixe, k + 1));
    return valeurs;
}

int16_t LecteurParam::Taille(std::string_view cle) {
    const int16_t n = Strict<int16_t>(cle);
    if (n >= 0) return n;
    Echec(cle, "une taille de table ne peut pas être négative");
    return 0;
}

template <class T>
T LecteurParam::Index(std::string_view cle, TableParam table, GenreRenvoi genre) {
    const T v = Entier_Souple<T>(cle, 1);
    Renvoi(cle, v, table, genre);
    return v;
}

template <class T>
T LecteurParam::Index_Strict(std::string_view cle, TableParam table) {
    const T v = Entier_Strict<T>(cle, 1);
    Renvoi(cle, v, table, GenreRenvoi::Obligatoire);
    return v;
}

void LecteurParam::Renvoi(std::string_view cle, int64_t valeur, TableParam table, GenreRenvoi genre) {
    if (rapport_ && !fichier_absent_) rapport_->Noter_Renvoi(Lieu(cle), valeur, table, genre);
}

template int16_t LecteurParam::Strict<int16_t>(std::string_view);
template int32_t LecteurParam::Strict<int32_t>(std::string_view);
template double LecteurParam::Strict<double>(std::string_view);
template int16_t LecteurParam::Souple<int16_t>(std::string_view);
template int32_t LecteurParam::Souple<int32_t>(std::string_view);
template double LecteurParam::Souple<double>(std::string_view);
template bool LecteurParam::Souple<bool>(std::string_view);
template std::vector<int16_t> LecteurParam::Liste<int16_t>(std::string_view, int);
template std::vector<int32_t> LecteurParam::Liste<int32_t>(std::string_view, int);
template std::vector<double> LecteurParam::Liste<double>(std::string_view, int);
template int16_t LecteurParam::Index<int16_t>(std::string_view, TableParam, GenreRenvoi);
template int32_t LecteurParam::Index<int32_t>(std::string_view, TableParam, GenreRenvoi);
template int16_t LecteurParam::Index_Strict<int16_t>(std::string_view, TableParam);

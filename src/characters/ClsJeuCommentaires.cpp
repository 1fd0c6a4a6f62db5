#include "characters/ClsJeuCommentaires.h"

#include <algorithm>
#include <cmath>

#include "rules/ClsFicINI.h"
#include "rules/Conversions.h"
#include "rules/Hasard.h"
#include "world/Globales.h"

namespace {

constexpr const char* FichierCommentaires = "Ini_Commentaires";
constexpr const char* SectionCommentaires = "Commentaires";

const std::string TexteVide;

ClsFicINI Fichier_Commentaires() {
    ClsFicINI ini;
    ini.Fichier = FichierCommentaires;
    ini.Section = SectionCommentaires;
    return ini;
}

int16_t Lire_Nombre(ClsFicINI& ini, const char* cle, int16_t limite) {
    return std::clamp<int16_t>(Souple_En<int16_t>(ini.Parametre(cle)), 0, limite);
}

// Letters of a UTF-8 text: every byte that does not continue a sequence.
std::size_t Nombre_Lettres(const std::string& texte) {
    std::size_t n = 0;
    for (const char c : texte) n += (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    return n;
}

}  // namespace

void ClsJeuCommentaires::Charger() {
    ClsFicINI ini = Fichier_Commentaires();
    Afficher = Souple_Booleen(ini.Parametre("Afficher"));
    Duree = Convertir_Souple(ini.Parametre("Duree"));
    Couleur = Souple_En<int32_t>(ini.Parametre("Couleur"));
    DecalageX = Souple_En<int16_t>(ini.Parametre("DecalageX"));
    DecalageY = Souple_En<int16_t>(ini.Parametre("DecalageY"));
    NombreTypeMessages = Lire_Nombre(ini, "NombreTypeMessages", INT16_MAX);
    NombreMaxMessagesParType = Lire_Nombre(ini, "NombreMaxMessagesParType", INT16_MAX);

    NombreMessages.assign(static_cast<std::size_t>(NombreTypeMessages), 0);
    Messages.assign(NombreMessages.size() * static_cast<std::size_t>(NombreMaxMessagesParType), std::string());
    for (int t = 0; t < NombreTypeMessages; ++t) {
        ini.Section = Section_Numerotee("Commentaires_", t + 1);
        // A type never holds more phrases than the table has room for.
        const int16_t n = Lire_Nombre(ini, "NombreMessages", NombreMaxMessagesParType);
        NombreMessages[static_cast<std::size_t>(t)] = n;
        for (int k = 0; k < n; ++k)
            Messages[Indice(t, k)] = ini.Parametre(Cle_Numerotee("Message", k + 1));
    }
}

int16_t ClsJeuCommentaires::Nombre_Messages(int32_t type) const {
    return Type_Valide(type) ? NombreMessages[static_cast<std::size_t>(type)] : int16_t{0};
}

const std::string& ClsJeuCommentaires::Phrase(int32_t type, int32_t k) const {
    if (k < 0 || k >= Nombre_Messages(type)) return TexteVide;
    return Messages[Indice(type, k)];
}

// No draw is spent on a type without phrases.
const std::string& ClsJeuCommentaires::Message(int32_t type) const {
    const int16_t n = Nombre_Messages(type);
    if (n == 0) return TexteVide;
    return Phrase(type, static_cast<int32_t>(Int(static_cast<double>(Rnd()) * n)));
}

void ClsJeuCommentaires::Definir_Afficher(bool afficher) {
    Afficher = afficher;
    Fichier_Commentaires().Parametre("Afficher", afficher ? "1" : "0");
}

bool ClsJeuCommentaires::Expire(const std::string& texte, double date, double temps) const {
    return static_cast<double>(Nombre_Lettres(texte)) * Duree < std::fabs(temps - date);
}

void Expirer_Commentaires(double temps) {
    if (!Commentaires.Definir_Afficher()) return;
    for (ClsJeuPerso& p : Persos) {
        if (!p.Commentaire.empty() && Commentaires.Expire(p.Commentaire, p.DateCommentaire, temps))
            p.Commentaire.clear();
    }
}

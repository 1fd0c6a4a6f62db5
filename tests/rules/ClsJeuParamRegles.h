// The default game folder (data/) copied into a temporary one, where a test sets the few
// rule keys it is about through ClsFicINI writes.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "Support.h"
#include "rules/ClsFicINI.h"
#include "rules/ClsJeuParam.h"
#include "rules/ControleRegles.h"

// A key of a rule file; the file is named with its extension, as FichierPersos.
struct CleRegle {
    std::string_view Fichier;
    const char* Section;
    const char* Cle;

    // "file:section:key", as the checks report it.
    std::string Lieu() const { return std::string(Fichier) + ":" + Section + ":" + Cle; }
};

class ReglesCopiees {
public:
    ReglesCopiees() { std::filesystem::copy(KORVALIS_DATA, dossier.Chemin(), std::filesystem::copy_options::recursive); }

    void Modifier(const CleRegle& c, std::string_view valeur) const {
        ClsFicINI ini;
        ini.Fichier = std::filesystem::path(c.Fichier).stem().string();
        ini.Section = c.Section;
        ini.Parametre(c.Cle, valeur);
    }

    DossierTemporaire dossier;
};

// Loads groups 0 to dernier into the global rule book.
inline void Charger_Groupes(int dernier = 6) {
    for (int g = 0; g <= dernier; ++g) Param.Init(g);
}

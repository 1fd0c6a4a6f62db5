#include "ai/ModIA2.h"

#include <string>

#include "rules/Chemins.h"
#include "rules/ClsFicINI.h"

int Numero_Script_IA(std::string_view nom) {
    if (nom.empty()) return -1;
    const auto fichiers = Lister_Dossier(Chemin_Jeu(DossierIAs));
    for (std::size_t i = 0; i < fichiers.size(); ++i)
        if (Egal_Sans_Casse(fichiers[i], nom)) return static_cast<int>(i);
    return -1;
}

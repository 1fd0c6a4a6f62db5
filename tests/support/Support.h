// Helpers shared by the tests: a temporary game folder written by the test itself.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "rules/BoiteMessage.h"

// A fresh folder under the system's temporary directory, removed when the object goes.
// While it lives, it is the game folder (Dossier_Jeu).
class DossierTemporaire {
public:
    DossierTemporaire();
    ~DossierTemporaire();
    DossierTemporaire(const DossierTemporaire&) = delete;
    DossierTemporaire& operator=(const DossierTemporaire&) = delete;

    const std::filesystem::path& Chemin() const { return chemin_; }
    // Writes a file (relative path, folders created) with exactly this content.
    void Ecrire(std::string_view relatif, std::string_view contenu) const;
    std::string Lire(std::string_view relatif) const;

private:
    std::filesystem::path chemin_;
};

// Records the text of every message box shown while the object lives, instead of showing it.
class MessagesVus {
public:
    MessagesVus() {
        Definir_Afficheur_Message([this](std::string_view, std::string_view texte, GenreMessage, BoutonsMessage) {
            textes.emplace_back(texte);
            return ReponseMessage::OK;
        });
    }
    ~MessagesVus() { Definir_Afficheur_Message(nullptr); }
    MessagesVus(const MessagesVus&) = delete;
    MessagesVus& operator=(const MessagesVus&) = delete;
    std::vector<std::string> textes;
};

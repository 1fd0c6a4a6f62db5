// Message boxes as the logic sees them. The platform installs an SDL box when a display
// exists; without one (and by default) the title and text go to stderr and the default
// answer is given.
#pragma once

#include <functional>
#include <string_view>

enum class GenreMessage { Critique, Exclamation, Information, Question };
enum class BoutonsMessage { OK, OKAnnuler, OuiNon };
enum class ReponseMessage { OK, Annuler, Oui, Non };

using AfficheurMessage =
    std::function<ReponseMessage(std::string_view titre, std::string_view texte, GenreMessage, BoutonsMessage)>;

ReponseMessage Boite_Message(std::string_view titre, std::string_view texte,
                             GenreMessage genre = GenreMessage::Information,
                             BoutonsMessage boutons = BoutonsMessage::OK);
// An empty afficheur puts the stderr one back.
void Definir_Afficheur_Message(AfficheurMessage afficheur);

// The afficheur used without a display: writes to stderr, answers OK / Oui.
ReponseMessage Message_Sur_Erreur_Standard(std::string_view titre, std::string_view texte,
                                           GenreMessage genre, BoutonsMessage boutons);

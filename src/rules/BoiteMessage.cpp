#include "rules/BoiteMessage.h"

#include <iostream>

namespace {

AfficheurMessage& Afficheur() {
    static AfficheurMessage afficheur = Message_Sur_Erreur_Standard;
    return afficheur;
}

}  // namespace

ReponseMessage Boite_Message(std::string_view titre, std::string_view texte, GenreMessage genre,
                             BoutonsMessage boutons) {
    return Afficheur()(titre, texte, genre, boutons);
}

void Definir_Afficheur_Message(AfficheurMessage afficheur) {
    Afficheur() = afficheur ? std::move(afficheur) : Message_Sur_Erreur_Standard;
}

ReponseMessage Message_Sur_Erreur_Standard(std::string_view titre, std::string_view texte, GenreMessage,
                                           BoutonsMessage boutons) {
    std::cerr << titre << ": " << texte << std::endl;
    return boutons == BoutonsMessage::OuiNon ? ReponseMessage::Oui : ReponseMessage::OK;
}

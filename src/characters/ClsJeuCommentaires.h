// The phrase book of the characters: short texts that float beside a character when it does
// something notable. A rule picks a type of situation; the book gives a random phrase of that
// type, which the character keeps (ClsJeuPerso::Definir_Commentaires) until it expires.
//
// Read once at start from "Ini_Commentaires": section Commentaires (Afficher, Duree, Couleur,
// DecalageX, DecalageY, NombreTypeMessages, NombreMaxMessagesParType), then type t in section
// Commentaires_<t + 1> (NombreMessages, Message(1) ... Message(K)).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class ClsJeuCommentaires {
public:
    double Duree = 0;          // seconds a comment stays, per letter
    int32_t Couleur = 0;       // text colour
    int16_t DecalageX = 0;     // text offset from the character's position
    int16_t DecalageY = 0;

    // Reads the book. A missing file, section or key leaves that part empty (0, no phrase).
    void Charger();

    // A phrase of the type, each phrase equally likely; the empty text for a negative type,
    // a type the book does not hold, or a type without phrases.
    const std::string& Message(int32_t type) const;
    int16_t Nombre_Messages(int32_t type) const;
    // Phrase k (from 0) of a type; the empty text outside what the type holds.
    const std::string& Phrase(int32_t type, int32_t k) const;
    int16_t Nombre_Types() const { return NombreTypeMessages; }

    // Whether comments are drawn; a write is stored in the file at once.
    bool Definir_Afficher() const { return Afficher; }
    void Definir_Afficher(bool afficher);

    // True when a comment set at `date` has stayed its time at `temps` (clock readings):
    // Duree seconds for each letter of the text.
    bool Expire(const std::string& texte, double date, double temps) const;

private:
    bool Afficher = false;
    int16_t NombreTypeMessages = 0;
    int16_t NombreMaxMessagesParType = 0;
    std::vector<int16_t> NombreMessages;   // by type
    std::vector<std::string> Messages;     // phrase k of type t at t × NombreMaxMessagesParType + k

    bool Type_Valide(int32_t type) const { return type >= 0 && type < NombreTypeMessages; }
    std::size_t Indice(int32_t type, int32_t k) const {
        return static_cast<std::size_t>(type) * static_cast<std::size_t>(NombreMaxMessagesParType) +
               static_cast<std::size_t>(k);
    }
};

// The state half of the comments pass, run at every render with or without a screen: every
// character's comment that has stayed its time is cleared, dead or alive. Nothing happens
// while comments are not drawn.
void Expirer_Commentaires(double temps);

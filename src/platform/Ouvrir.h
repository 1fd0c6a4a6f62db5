// Handing a file or a folder to the desktop: the text editor, the file browser.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

// Opens a text file in $EDITOR if it is set and can be started, else through xdg-open.
// If neither starts: the message "Logiciel Notepad introuvable".
void Ouvrir_Bloc_Notes(const std::filesystem::path& fichier);

// Opens a folder in the file browser through xdg-open; failing that, "Logiciel Explorer introuvable".
void Ouvrir_Explorateur(const std::filesystem::path& dossier);

// Starts a program (a path, or a name looked up on PATH) with its arguments, detached from the
// game and without a shell. False if it is not found or cannot be run; the wait ends as soon
// as the program has started.
bool Lancer_Programme(std::vector<std::string> arguments);

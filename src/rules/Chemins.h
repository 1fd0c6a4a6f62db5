// The game folder and every path into it. Names keep their exact case; '\' in data
// becomes '/', and a path that starts with a separator is relative to the game folder.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

void Definir_Dossier_Jeu(const std::filesystem::path& dossier);
const std::filesystem::path& Dossier_Jeu();

// Joins the game folder and a relative path written with '/' or '\'.
std::filesystem::path Chemin_Jeu(std::string_view relatif);

// Names of the entries of a folder (files only, or folders only), sorted by bytes, hidden
// names (leading '.') skipped; an extension filter such as ".ia" is compared without case.
// A missing folder lists nothing.
enum class GenreEntree { Fichiers, Dossiers };
std::vector<std::string> Lister_Dossier(const std::filesystem::path& dossier,
                                        GenreEntree genre = GenreEntree::Fichiers,
                                        std::string_view extension = {});

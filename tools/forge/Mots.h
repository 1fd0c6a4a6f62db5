// Names of the rule files read as keywords: lower case, accents folded, so that
// "Bûcheron", "bucheron" and "BÛCHERON" all contain "bucheron".
#pragma once

#include <vector>
#include <string>
#include <string_view>

std::string Plier(std::string_view texte);

// True if the folded text holds one of the words (written folded).
bool Contient(const std::string& plie, const std::vector<std::string_view>& mots);

// The same, but each word must begin a word of the text ("or" in "filon d'or", not in "forêt").
bool Contient_Mot(const std::string& plie, const std::vector<std::string_view>& mots);

// Pictures on disk: 24-bit uncompressed Windows bitmaps, rows bottom-up, each row padded to
// four bytes. The writer makes the folders it needs.
#pragma once

#include <filesystem>
#include <optional>

#include "Pinceau.h"

// Writes the canvas; false (with a message on stderr) if the file cannot be written.
bool Ecrire_Bmp(const std::filesystem::path& chemin, const Toile& toile);

// Reads back a 24-bit uncompressed bitmap such as the writer makes (either row order);
// nothing for any other file.
std::optional<Toile> Lire_Bmp(const std::filesystem::path& chemin);

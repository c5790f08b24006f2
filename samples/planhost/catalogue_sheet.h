#pragma once

#include "catalogue.h"

/// Draws every symbol into a cell of its own, category by category and sorted by name, and writes the sheet as PNG.
/// folder: the catalogue that the symbols' files are from.
void DrawCatalogueSheet(_CSymbolColl& symbols, const std::filesystem::path& folder,
                        const std::filesystem::path& picture);

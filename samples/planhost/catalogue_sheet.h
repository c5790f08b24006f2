#pragma once

#include "catalogue.h"

/// Draws every symbol of the catalogue into a cell of its own, sorted by name, and writes the sheet as PNG.
void DrawCatalogueSheet(_CSymbolColl& catalogue, const std::filesystem::path& picture);

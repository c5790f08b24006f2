#pragma once

#include "com.h"
#include "millimetres.h"

#include <QSymbol.h>

#include <filesystem>

/// Loads all binary symbols of a folder and its subfolders into one collection, sorted by name. The subfolders are
/// the categories; a name may come once in all of them.
Ptr<_CSymbolColl> OpenCatalogue(const std::filesystem::path& folder);

/// Reads every import file (wsc) of a folder into a catalogue of its own. A file that cannot be imported is
/// shown to the user by the library and left out.
Ptr<_CSymbolColl> ImportFolder(const std::filesystem::path& folder);

/// Writes every text symbol of a folder and its subfolders as binary symbol into another folder, which gets the
/// same subfolders.
/// Returns the number of symbols.
int ConvertFolder(const std::filesystem::path& textFolder, const std::filesystem::path& catalogueFolder);

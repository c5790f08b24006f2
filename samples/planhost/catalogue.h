#pragma once

#include "com.h"

#include <QSymbol.h>

#include <filesystem>

/// The world unit of the libraries' fonts and files.
constexpr int kUnitsPerMillimetre = 100;

/// Loads all binary symbols of a folder.
Ptr<_CSymbolColl> OpenCatalogue(const std::filesystem::path& folder);

/// Writes every text symbol of a folder as binary symbol into another folder, which is made when missing.
/// Returns the number of symbols.
int ConvertFolder(const std::filesystem::path& textFolder, const std::filesystem::path& catalogueFolder);

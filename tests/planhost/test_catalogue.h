#pragma once

#include "catalogue.h"

/// The sample catalogue. The libraries must be registered, and this program be started in the checkout's top folder.
inline Ptr<_CSymbolColl> TestCatalogue() {
    static const ComThread com;
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / L"Planhost-Katalog";
    ConvertFolder(L"samples\\katalog", folder);
    return OpenCatalogue(folder);
}

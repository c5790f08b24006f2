#pragma once

#include "com/com_ptr.h"

#include <QSymbol.h>

#include <string>
#include <vector>

/// All text symbols of a folder and its subfolders, read through the library.
std::vector<com::ComPtr<_CSymbol>> LoadSymbols(const std::wstring& folder);

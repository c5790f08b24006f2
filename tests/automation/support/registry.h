#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace support {

/// A text value; "(none)" when it is not there. No name stands for the default value of the key.
std::wstring ReadRegistry(HKEY root, const std::wstring& key, const wchar_t* name = nullptr);

bool HasKey(HKEY root, const std::wstring& key);

/// The keys in which classes, interfaces, type libraries and their names are entered, for the machine and for
/// the user, sorted.
std::vector<std::wstring> ClassKeys();

} // namespace support

#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace support {

/// A text value; "(none)" when it is not there. No name stands for the default value of the key.
std::wstring ReadRegistry(HKEY root, const std::wstring& key, const wchar_t* name = nullptr);

/// `view` is KEY_WOW64_64KEY, KEY_WOW64_32KEY or 0, the process' own one; so below.
bool HasKey(HKEY root, const std::wstring& key, REGSAM view = 0);

/// Enters a key with a text as its default value.
void WriteRegistry(HKEY root, const std::wstring& key, const std::wstring& text, REGSAM view = 0);

/// Removes a key with everything below it.
void RemoveRegistry(HKEY root, const std::wstring& key, REGSAM view = 0);

/// True where programs of each bitness see classes of their own: on a system that runs both, but under Wine not
/// in the user's part.
bool HasTwoViews(HKEY root);

/// The keys in which classes, interfaces, type libraries and their names are entered, for the machine and for
/// the user, sorted.
std::vector<std::wstring> ClassKeys();

} // namespace support

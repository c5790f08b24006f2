#pragma once

#include <windows.h>

#include <objbase.h>

#include <string>

namespace com {

/// "{B71F0260-…}", as the registry has it.
inline std::wstring GuidText(const GUID& guid) {
    wchar_t text[40];
    StringFromGUID2(guid, text, 40);
    return text;
}

} // namespace com

#pragma once

#include <windows.h>

#include <oaidl.h>

#include <string>
#include <vector>

namespace com {

/// What a type library says about itself.
struct LibraryAttributes {
    GUID id;
    WORD major;
    WORD minor;
    LCID locale;
    WORD flags;
    std::wstring help;
};

LibraryAttributes AttributesOf(ITypeLib& library);

/// An interface that the system's own marshaller can carry to another apartment.
struct AutomationInterface {
    GUID id;
    std::wstring name;
};

/// The automation interfaces that a type library itself defines.
std::vector<AutomationInterface> InterfacesOf(ITypeLib& library);

} // namespace com

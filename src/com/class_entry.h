#pragma once

#include <unknwn.h>

namespace com {

/// A class that clients may create.
struct ClassEntry {
    const CLSID* clsid;
    const wchar_t* name;        ///< "CSymbol"; the ProgID is library name, full stop, this name
    const wchar_t* description; ///< shown by object browsers
    HRESULT (*create)(REFIID iid, void** object);
};

} // namespace com

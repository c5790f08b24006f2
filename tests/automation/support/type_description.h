#pragma once

#include "support/ref.h"

#include <windows.h>

#include <oaidl.h>

#include <string>
#include <vector>

namespace support {

/// The registered type library of a DLL; empty when there is none.
Ref<ITypeLib> RegisteredLibrary(const GUID& id, WORD major, WORD minor);

/// The description of a name in a library; empty when there is none.
Ref<ITypeInfo> TypeNamed(ITypeLib* library, const wchar_t* name);

/// TYPEATTR as a value.
TYPEATTR Attributes(ITypeInfo* type);

/// The vtable half of a dual interface.
Ref<ITypeInfo> VtableOf(ITypeInfo* dispatch);

/// The members of a vtable interface in slot order, one line each, for example
/// `8 Draw(long lLogX, IDispatch ctrl, ref long lMarkColor = -1)` or `1 get Text() As BSTR`.
/// A line tells dispid, kind, name, parameters and result. A member that is not in the slot of its place in
/// the list begins with its slot in brackets.
std::vector<std::string> Members(ITypeInfo* interfaceType);

} // namespace support

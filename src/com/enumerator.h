#pragma once

#include "com/com_ptr.h"

#include <windows.h>

#include <oaidl.h>

#include <cstdint>
#include <functional>

namespace com {

/// Gives the item that follows a cursor (0 at the start) and moves the cursor onto it; false at the end.
using NextItem = std::function<bool(std::uint64_t& cursor, ComPtr<IDispatch>& item)>;

/// A live enumerator for For Each: it sees removals and additions, and keeps the collection alive.
ComPtr<IEnumVARIANT> NewEnumerator(ComPtr<IUnknown> collection, NextItem next, std::uint64_t cursor = 0);

} // namespace com

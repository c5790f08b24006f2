#pragma once

#include "support/ref.h"
#include "support/value.h"

#include <windows.h>

#include <oaidl.h>

#include <vector>

namespace support {

/// The For Each enumerator of a collection, asked for late bound as every client does; empty when there
/// is none.
Ref<IEnumVARIANT> EnumeratorOf(IDispatch* collection);

/// The next item of an enumerator; an empty value at the end.
Value NextOf(IEnumVARIANT* enumerator);

/// Everything that is left of an enumerator.
std::vector<Value> RestOf(IEnumVARIANT* enumerator);

} // namespace support

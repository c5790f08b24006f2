#pragma once

#include "com/com_ptr.h"

#include <windows.h>

#include <oaidl.h>

namespace com {

/// A type that a description refers to. One of the sibling library is found through the registration or in
/// the sibling's DLL beside this one; where neither is there, the error names that DLL.
ComPtr<ITypeInfo> ReferencedType(ITypeInfo* info, HREFTYPE reference);

} // namespace com

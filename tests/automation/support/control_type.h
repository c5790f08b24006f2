#pragma once

#include "support/ref.h"

#include <windows.h>

#include <oaidl.h>

#include <string>

namespace support {

/// A type description of that name, as a host's own type library would hold it for a control.
Ref<ITypeInfo> MakeControlType(const std::wstring& name);

} // namespace support

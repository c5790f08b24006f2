#pragma once

#include "com/class_entry.h"

namespace com {

/// DllGetClassObject over the module's class table.
HRESULT GetClassObject(REFCLSID clsid, REFIID iid, void** object);

} // namespace com

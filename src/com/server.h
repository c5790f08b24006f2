#pragma once

#include "com/module.h"

namespace com {

/// DllMain of an automation DLL: tells the module who it is.
BOOL ServerMain(HINSTANCE instance, DWORD reason, void* reserved, const Module::Identity& identity);

} // namespace com

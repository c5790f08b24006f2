#pragma once

#include <windows.h>

#include <oaidl.h>

/// True when the object's automation type is the host's printer: `Printer`, a leading underscore aside.
bool IsPrinter(IDispatch& control);

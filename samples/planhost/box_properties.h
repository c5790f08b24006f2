#pragma once

#include "com.h"

/// Sets a property of a picture box by its name, as a script or the libraries do.
void PutProperty(IDispatch& box, const wchar_t* name, LONG value);

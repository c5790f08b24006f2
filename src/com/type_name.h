#pragma once

#include <windows.h>

#include <oaidl.h>

#include <string>

namespace com {

/// What the object's automation type is called, without the underscore of an interface; "Object" when it does
/// not tell.
std::u16string TypeName(IDispatch& object);

} // namespace com

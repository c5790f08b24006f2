#pragma once

#include <unknwn.h>

/// The class objects of the sibling library QMath: of the registered one or, failing that, of the QMath.dll
/// beside this DLL. Asking the system for one costs far more than an object, so a thread holds them as long
/// as it has an object of this DLL.
namespace math_library {

enum class Class { Pt, PtList, Rect, Settings, Trans };

/// Held by this thread; errors of getting it are passed on. Only during a call of an object of this DLL.
IClassFactory& ClassObject(Class wanted);

/// Gives up what this thread holds; when its last object of this DLL goes.
void GiveUp() noexcept;

/// Unloads the DLL beside this one, where it was needed and nothing of it lives any more. False while
/// something does: then this DLL has to stay as well.
bool Unload() noexcept;

} // namespace math_library

#pragma once

#include <windows.h>

#include <string>

namespace platform {

/// Full path of a module of this process, nullptr standing for the program itself; empty when the system does
/// not tell.
std::wstring ModulePath(HINSTANCE module);

/// Its folder, with a backslash at the end.
std::wstring ModuleFolder(HINSTANCE module);

} // namespace platform

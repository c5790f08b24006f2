#pragma once

#include <windows.h>

#include <vector>

namespace support {

/// True in a multi-threaded apartment: its objects live in one that the system provides, with a thread and class objects
/// that the system keeps there.
bool IsMultithreaded();

/// The threads on which the libraries may show something to this one: itself, or in a multi-threaded apartment all of the
/// process, as the system does not tell which one has the objects.
std::vector<DWORD> ThreadsOfObjects();

} // namespace support

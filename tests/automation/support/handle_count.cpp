#include "support/handle_count.h"

#include <windows.h>

#include <algorithm>
#include <vector>

namespace support {

namespace {

/// More than the holes that earlier objects left in the tables.
constexpr int kProbes = 300;
constexpr LONG_PTR kGdiPlace = 0xFFFF; // a GDI handle: its place in the low half, a count of uses above
constexpr LONG_PTR kHandleStep = 4;

long HighestGdiPlace() {
    std::vector<HGDIOBJ> probes;
    LONG_PTR highest = 0;
    for (int i = 0; i < kProbes; ++i) {
        probes.push_back(CreateSolidBrush(RGB(1, 2, 3)));
        highest = std::max(highest, reinterpret_cast<LONG_PTR>(probes.back()) & kGdiPlace);
    }
    for (const HGDIOBJ probe : probes)
        DeleteObject(probe);
    return static_cast<long>(highest);
}

long HighestHandle() {
    std::vector<HANDLE> probes;
    LONG_PTR highest = 0;
    for (int i = 0; i < kProbes; ++i) {
        probes.push_back(CreateEventW(nullptr, FALSE, FALSE, nullptr));
        highest = std::max(highest, reinterpret_cast<LONG_PTR>(probes.back()) / kHandleStep);
    }
    for (const HANDLE probe : probes)
        CloseHandle(probe);
    return static_cast<long>(highest);
}

} // namespace

long HandleCount::Gdi() {
    GdiFlush();
    const DWORD objects = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    return objects != 0 ? static_cast<long>(objects) : HighestGdiPlace();
}

HandleCount HandleCount::Now() {
    DWORD handles = 0;
    GetProcessHandleCount(GetCurrentProcess(), &handles);
    return {Gdi(), handles != 0 ? static_cast<long>(handles) : HighestHandle()};
}

} // namespace support

#include "palette.h"

#include "palette_window.h"

std::unique_ptr<PaletteStrip> MakePalette(HWND parent, PaletteHost& host) {
    return std::make_unique<PaletteWindow>(parent, host);
}

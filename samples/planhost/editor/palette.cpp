#include "palette.h"

std::unique_ptr<PaletteStrip> MakePalette(HWND, PaletteHost&) {
    return nullptr;
}

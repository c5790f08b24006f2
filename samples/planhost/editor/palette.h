#pragma once

#include "palette_host.h"

#include <memory>

/// The palette of an editor window; none where there is no palette. host: lives longer.
std::unique_ptr<PaletteStrip> MakePalette(HWND parent, PaletteHost& host);

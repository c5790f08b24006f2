#pragma once

#include "palette_host.h"

#include <memory>

/// The palette of an editor window: symbols to choose from, with a filter and categories. host: lives longer.
std::unique_ptr<PaletteStrip> MakePalette(HWND parent, PaletteHost& host);

#pragma once

#include "qmath/rect.h"

#include <windows.h>

#include <optional>

/// The pixels that a device context can show; nothing where it does not tell, as one that records.
std::optional<qmath::Rect> VisiblePixels(HDC context);

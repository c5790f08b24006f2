#pragma once

#include "qplan/plan/plan.h"

#include <cstdint>
#include <string>

/// Writes the whole plan, its sheet or else what is drawn, as a picture so many pixels wide, in the format of the extension; a
/// metafile keeps lines and texts. Any error leaves the old file.
///
/// Error 5 for a width below 1, another extension, and a plan without sheet and symbols; errors of drawing, of
/// platform::MemoryBitmap and of base::WriteBeside.
void WritePlanPicture(const qplan::Plan& plan, std::int32_t width, const std::u16string& path);

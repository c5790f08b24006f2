#include "platform/win32/gdi_text_measure.h"

#include "base/checked.h"

#include <string>

namespace platform {

GdiTextMeasure::GdiTextMeasure() : context_(CreateCompatibleDC(nullptr)) {
    if (context_ == nullptr)
        base::Raise(base::RunTimeError::OutOfMemory);
}

GdiTextMeasure::~GdiTextMeasure() {
    font_.Release();
    DeleteDC(context_);
}

base::TextSize GdiTextMeasure::Measure(const base::FontRequest& font, std::u16string_view text) const {
    base::FontRequest upright = font;
    upright.escapement = 0;
    font_.Select(context_, upright);
    const std::string bytes = codePage_.Encode(text);
    SIZE size{};
    TEXTMETRICW metrics{};
    if (!GetTextExtentPoint32A(context_, bytes.data(), base::Narrow<int>(bytes.size()), &size) ||
        !GetTextMetricsW(context_, &metrics))
        base::Raise(base::RunTimeError::InvalidCall);
    return {.width = static_cast<double>(size.cx),
            .ascent = static_cast<double>(metrics.tmAscent),
            .descent = static_cast<double>(metrics.tmDescent)};
}

} // namespace platform

#pragma once

#include "base/text_measure.h"
#include "platform/win32/ansi_code_page.h"
#include "platform/win32/selected_font.h"

namespace platform {

/// Measures texts as the GDI sets them, on a device context of its own.
class GdiTextMeasure final : public base::TextMeasure {
public:
    GdiTextMeasure();
    ~GdiTextMeasure() override;
    GdiTextMeasure(const GdiTextMeasure&) = delete;
    GdiTextMeasure& operator=(const GdiTextMeasure&) = delete;

    /// In the bytes of the ANSI code page, as texts are drawn. Error 5 when the GDI refuses.
    base::TextSize Measure(const base::FontRequest& font, std::u16string_view text) const override;

private:
    HDC context_;
    AnsiCodePage codePage_;
    mutable SelectedFont font_;
};

} // namespace platform

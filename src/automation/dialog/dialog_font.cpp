#include "automation/dialog/dialog_font.h"

#include "automation/dialog/system_dpi.h"
#include "platform/wide/wide_text.h"

namespace dialog {

namespace {

constexpr std::u16string_view kLetters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

} // namespace

DialogFont::~DialogFont() {
    DeleteObject(font_);
}

void DialogFont::CreateFor(HWND window) {
    const LOGFONTW description = WindowMetrics(window).lfMessageFont;
    DeleteObject(font_);
    font_ = CreateFontIndirectW(&description);
    if (font_ == nullptr)
        font_ = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
}

TextMeter::TextMeter(HWND window, HFONT font)
    : window_(window), context_(GetDC(window)), previous_(SelectObject(context_, font)) {
    GetTextMetricsW(context_, &metrics_);
}

TextMeter::~TextMeter() {
    SelectObject(context_, previous_);
    ReleaseDC(window_, context_);
}

int TextMeter::Width(std::u16string_view text) const {
    SIZE size{};
    GetTextExtentPoint32W(context_, platform::Wide(text.data()), static_cast<int>(text.size()), &size);
    return size.cx;
}

int TextMeter::CaptionWidth(std::u16string_view caption) const {
    RECT box{};
    DrawTextW(context_, platform::Wide(caption.data()), static_cast<int>(caption.size()), &box,
              DT_CALCRECT | DT_SINGLELINE);
    return box.right - box.left;
}

int TextMeter::AverageWidth() const {
    const int letters = static_cast<int>(kLetters.size());
    return (2 * Width(kLetters) / letters + 1) / 2;
}

} // namespace dialog

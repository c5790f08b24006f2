#include "palette_look.h"

#include "dpi.h"

#include <initializer_list>

namespace {

/// The desktop's font for messages, for a screen of so many dots to the inch.
LOGFONTW MessageFont(UINT dots) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    LOGFONTW font = metrics.lfMessageFont;
    font.lfHeight = MulDiv(font.lfHeight, static_cast<int>(dots), static_cast<int>(DotsOf(nullptr)));
    font.lfQuality = CLEARTYPE_QUALITY;
    return font;
}

int LineHeightOf(HFONT font) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ previous = SelectObject(dc, font);
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    SelectObject(dc, previous);
    DeleteDC(dc);
    return static_cast<int>(metrics.tmHeight);
}

} // namespace

PaletteLook::PaletteLook(UINT dots) : dots_(dots) {
    LOGFONTW font = MessageFont(dots);
    font_ = CreateFontIndirectW(&font);
    font.lfWeight = FW_BOLD;
    bold_ = CreateFontIndirectW(&font);
    font.lfWeight = FW_NORMAL;
    font.lfHeight = font.lfHeight * 7 / 8;
    small_ = CreateFontIndirectW(&font);
    lineHeight_ = LineHeightOf(font_);
    smallLineHeight_ = LineHeightOf(small_);
}

PaletteLook::~PaletteLook() {
    for (const HFONT font : {font_, bold_, small_})
        DeleteObject(font);
}

int PaletteLook::Pixels(int length) const {
    return Scaled(length, dots_);
}

COLORREF PaletteLook::Mixed(COLORREF one, COLORREF other, int hundredths) {
    const auto part = [&](int a, int b) {
        return static_cast<BYTE>((a * hundredths + b * (100 - hundredths)) / 100);
    };
    return RGB(part(GetRValue(one), GetRValue(other)), part(GetGValue(one), GetGValue(other)),
               part(GetBValue(one), GetBValue(other)));
}

#include "palette_look.h"

#include "dialog_support.h"
#include "dpi.h"

#include <initializer_list>

PaletteLook::PaletteLook(UINT dots) : dots_(dots) {
    LOGFONTW font = MessageFont(dots);
    font.lfQuality = CLEARTYPE_QUALITY;
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

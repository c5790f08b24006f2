#include "platform/win32/selected_font.h"

#include "base/error.h"

namespace platform {

namespace {

HFONT CreateGdiFont(const FontSpec& spec) {
    LOGFONTW font{};
    font.lfHeight = -spec.height; // negative: the height of the characters, not of their cell
    font.lfEscapement = spec.escapement;
    font.lfOrientation = spec.escapement;
    font.lfWeight = spec.bold ? FW_BOLD : FW_NORMAL;
    font.lfItalic = spec.italic ? TRUE : FALSE;
    font.lfUnderline = spec.underline ? TRUE : FALSE;
    font.lfStrikeOut = spec.strikethrough ? TRUE : FALSE;
    font.lfCharSet = DEFAULT_CHARSET;
    // A turned text needs a scalable font.
    font.lfOutPrecision = OUT_TT_PRECIS;
    const std::size_t length = spec.name.size() < LF_FACESIZE - 1 ? spec.name.size() : LF_FACESIZE - 1;
    for (std::size_t i = 0; i < length; ++i)
        font.lfFaceName[i] = static_cast<wchar_t>(spec.name[i]);
    return CreateFontIndirectW(&font);
}

} // namespace

void SelectedFont::Select(HDC context, const FontSpec& spec) {
    if (font_ != nullptr && context == context_ && spec == spec_)
        return;
    Release();
    const HFONT font = CreateGdiFont(spec);
    if (font == nullptr)
        base::Raise(base::RunTimeError::InvalidCall);
    const HGDIOBJ previous = SelectObject(context, font);
    if (previous == nullptr) {
        DeleteObject(font);
        base::Raise(base::RunTimeError::InvalidCall);
    }
    context_ = context;
    font_ = font;
    previous_ = previous;
    spec_ = spec;
}

void SelectedFont::Release() {
    if (font_ == nullptr)
        return;
    SelectObject(context_, previous_);
    DeleteObject(font_);
    font_ = nullptr;
}

} // namespace platform

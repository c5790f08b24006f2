#include "platform/win32/selected_font.h"

#include "base/error.h"

namespace platform {

namespace {

HFONT CreateGdiFont(const base::FontRequest& request) {
    LOGFONTW font{};
    font.lfHeight = -request.height; // negative: the height of the characters, not of their cell
    font.lfEscapement = request.escapement;
    font.lfOrientation = request.escapement;
    font.lfWeight = request.bold ? FW_BOLD : FW_NORMAL;
    font.lfItalic = request.italic ? TRUE : FALSE;
    font.lfUnderline = request.underline ? TRUE : FALSE;
    font.lfStrikeOut = request.strikethrough ? TRUE : FALSE;
    font.lfCharSet = DEFAULT_CHARSET;
    // A raster font cannot turn, whatever its name.
    font.lfOutPrecision = OUT_TT_ONLY_PRECIS;
    const std::size_t length = request.name.size() < LF_FACESIZE - 1 ? request.name.size() : LF_FACESIZE - 1;
    for (std::size_t i = 0; i < length; ++i)
        font.lfFaceName[i] = static_cast<wchar_t>(request.name[i]);
    return CreateFontIndirectW(&font);
}

} // namespace

void SelectedFont::Select(HDC context, const base::FontRequest& request) {
    if (font_ != nullptr && context == context_ && request == request_)
        return;
    Release();
    request_ = request; // what can fail, before there is a font
    const HFONT font = CreateGdiFont(request);
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
}

void SelectedFont::Release() {
    if (font_ == nullptr)
        return;
    SelectObject(context_, previous_);
    DeleteObject(font_);
    font_ = nullptr;
}

} // namespace platform

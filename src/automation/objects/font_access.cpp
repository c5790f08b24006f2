#include "automation/objects/font_access.h"

#include "com/error_info.h"
#include "com/late_bound.h"
#include "com/object_call.h"
#include "platform/wide/wide_text.h"

#include <cmath>

namespace {

constexpr double kCurrencyUnits = 10000; // a font's size is a currency value: points with four decimals

bool GetFlag(IDispatch& font, const wchar_t* name) {
    com::Variant value;
    com::LateBoundMember(font, name).Get(VT_BOOL, value);
    return V_BOOL(value.Get()) != VARIANT_FALSE;
}

qsymbol::FontRecord GetStandardFont(IFont& font) {
    return {.name = com::GetText(font, &IFont::get_Name),
            .size = static_cast<double>(com::Get(font, &IFont::get_Size).int64) / kCurrencyUnits,
            .bold = com::Get(font, &IFont::get_Bold) != FALSE,
            .italic = com::Get(font, &IFont::get_Italic) != FALSE,
            .strikethrough = com::Get(font, &IFont::get_Strikethrough) != FALSE,
            .underline = com::Get(font, &IFont::get_Underline) != FALSE};
}

} // namespace

qsymbol::FontRecord GetFont(IFontDisp* font) {
    IFontDisp& source = com::Required(font);
    com::ComPtr<IFont> standard;
    if (SUCCEEDED(source.QueryInterface(IID_IFont, standard.PutVoid())))
        return GetStandardFont(*standard.Get());
    // Another object with a font's properties.
    return {.name = com::LateBoundMember(source, L"Name").GetText(),
            .size = com::LateBoundMember(source, L"Size").GetDouble(),
            .bold = GetFlag(source, L"Bold"),
            .italic = GetFlag(source, L"Italic"),
            .strikethrough = GetFlag(source, L"Strikethrough"),
            .underline = GetFlag(source, L"Underline")};
}

com::ComPtr<IFontDisp> NewStdFont(const qsymbol::FontRecord& record) {
    std::u16string name = record.name;
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = platform::Wide(name.data());
    const double size = record.size * kCurrencyUnits;
    if (!(std::fabs(size) < 9e15))
        base::Raise(base::RunTimeError::Overflow);
    description.cySize.int64 = std::llround(size);
    description.sWeight = record.bold ? FW_BOLD : FW_NORMAL;
    description.sCharset = DEFAULT_CHARSET;
    description.fItalic = record.italic ? TRUE : FALSE;
    description.fUnderline = record.underline ? TRUE : FALSE;
    description.fStrikethrough = record.strikethrough ? TRUE : FALSE;
    com::ComPtr<IFontDisp> font;
    com::Check(OleCreateFontIndirect(&description, IID_IFontDisp, font.PutVoid()));
    return font;
}

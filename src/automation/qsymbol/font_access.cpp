#include "automation/qsymbol/font_access.h"

#include "base/checked.h"
#include "com/bstr.h"
#include "com/error_info.h"
#include "com/late_bound.h"

#include <cmath>

namespace {

constexpr double kCurrencyUnits = 10000; // a font's size is a currency value: points with four decimals

bool GetFlag(IDispatch& font, const wchar_t* name) {
    com::Variant value;
    com::LateBoundMember(font, name).Get(VT_BOOL, value);
    return V_BOOL(value.Get()) != VARIANT_FALSE;
}

qsymbol::FontRecord GetStandardFont(IFont& font) {
    com::Bstr name;
    CY size{};
    BOOL bold = FALSE;
    BOOL italic = FALSE;
    BOOL strikethrough = FALSE;
    BOOL underline = FALSE;
    com::Check(font.get_Name(name.Put()));
    com::Check(font.get_Size(&size));
    com::Check(font.get_Bold(&bold));
    com::Check(font.get_Italic(&italic));
    com::Check(font.get_Strikethrough(&strikethrough));
    com::Check(font.get_Underline(&underline));
    return {.name = std::u16string(name.View()),
            .size = static_cast<double>(size.int64) / kCurrencyUnits,
            .bold = bold != FALSE,
            .italic = italic != FALSE,
            .strikethrough = strikethrough != FALSE,
            .underline = underline != FALSE};
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
    description.lpstrName = reinterpret_cast<wchar_t*>(name.data());
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

#include "support/shapes.h"

#include "support/automation_test.h"
#include "support/text.h"

#include <cmath>

bool operator==(const POINT& a, const POINT& b) {
    return a.x == b.x && a.y == b.y;
}

namespace support {

bool operator==(const FontSpec& a, const FontSpec& b) {
    return a.name == b.name && a.size == b.size && a.bold == b.bold && a.italic == b.italic &&
           a.underline == b.underline && a.strikethrough == b.strikethrough;
}

bool operator==(const ElementSpec& a, const ElementSpec& b) {
    return a.type == b.type && a.points == b.points && a.lineWidth == b.lineWidth && a.closed == b.closed &&
           a.fillColor == b.fillColor && a.mainColor == b.mainColor && a.radius == b.radius &&
           a.text == b.text && a.font == b.font && a.textAngle == b.textAngle && a.textAlign == b.textAlign &&
           a.textBkMode == b.textBkMode;
}

std::ostream& operator<<(std::ostream& out, const ElementSpec& spec) {
    out << "type " << spec.type << " width " << spec.lineWidth << " closed " << spec.closed << " fill "
        << spec.fillColor << " colour " << spec.mainColor << " radius " << spec.radius << " angle "
        << spec.textAngle << " align " << spec.textAlign << " background " << spec.textBkMode << " text \""
        << Narrow(spec.text) << "\" points";
    for (const POINT& point : spec.points)
        out << " (" << point.x << ", " << point.y << ')';
    if (!spec.font)
        return out << " no font";
    return out << " font \"" << Narrow(spec.font->name) << "\" " << spec.font->size << " bold "
               << spec.font->bold << " italic " << spec.font->italic << " underline " << spec.font->underline
               << " struck " << spec.font->strikethrough;
}

namespace {

constexpr int kCurrencyUnits = 10000;

/// Reads one property through its accessor.
template <class T, class Interface>
T Get(Interface* object, HRESULT (STDMETHODCALLTYPE Interface::*accessor)(T*)) {
    T value{};
    EXPECT_OK((object->*accessor)(&value));
    return value;
}

FontSpec Describe(IFontDisp* object) {
    const auto font = Ref<IFontDisp>(object).As<IFont>();
    FontSpec spec;
    Bstr name;
    EXPECT_OK(font->get_Name(name.Put()));
    spec.name = name.Text();
    // A standard font rounds its size to pixels, so 10 comes back as 9.75.
    spec.size = static_cast<int>(
        std::lround(static_cast<double>(Get(font.Get(), &IFont::get_Size).int64) / kCurrencyUnits));
    spec.bold = Get(font.Get(), &IFont::get_Bold) != FALSE;
    spec.italic = Get(font.Get(), &IFont::get_Italic) != FALSE;
    spec.underline = Get(font.Get(), &IFont::get_Underline) != FALSE;
    spec.strikethrough = Get(font.Get(), &IFont::get_Strikethrough) != FALSE;
    return spec;
}

} // namespace

Ref<_CPt> NewPt(LONG x, LONG y) {
    const auto pt = Create<CPt, _CPt>();
    EXPECT_OK(pt->put_X(x));
    EXPECT_OK(pt->put_Y(y));
    return pt;
}

Ref<_CPtList> NewPtList(const std::vector<POINT>& points) {
    const auto list = Create<CPtList, _CPtList>();
    for (const POINT& point : points)
        EXPECT_OK(list->AddPoint(NewPt(point.x, point.y).Get()));
    return list;
}

Ref<_CTrans> NewTrans(double scale, LONG offsetX, LONG offsetY) {
    const auto trans = Create<CTrans, _CTrans>();
    EXPECT_OK(trans->SetScale(scale));
    EXPECT_OK(trans->SetOffsetX(offsetX));
    EXPECT_OK(trans->SetOffsetY(offsetY));
    return trans;
}

Ref<IFontDisp> NewFont(const FontSpec& spec) {
    std::wstring name = spec.name;
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = name.data();
    description.cySize.int64 = spec.size * kCurrencyUnits;
    description.sWeight = spec.bold ? FW_BOLD : FW_NORMAL;
    description.sCharset = DEFAULT_CHARSET;
    description.fItalic = spec.italic ? TRUE : FALSE;
    description.fUnderline = spec.underline ? TRUE : FALSE;
    description.fStrikethrough = spec.strikethrough ? TRUE : FALSE;
    Ref<IFontDisp> font;
    EXPECT_OK(OleCreateFontIndirect(&description, IID_IFontDisp, font.PutVoid()));
    return font;
}

Ref<_CSymElement> NewElement(const ElementSpec& spec) {
    const auto element = Create<CSymElement, _CSymElement>();
    EXPECT_OK(element->put_ElementType(static_cast<SymElementTypeConstants>(spec.type)));
    EXPECT_OK(element->putref_PtList(NewPtList(spec.points).Get()));
    EXPECT_OK(element->put_LineWidth(spec.lineWidth));
    EXPECT_OK(element->put_LineClosed(spec.closed ? VARIANT_TRUE : VARIANT_FALSE));
    EXPECT_OK(element->put_FillColor(spec.fillColor));
    EXPECT_OK(element->put_MainColor(spec.mainColor));
    EXPECT_OK(element->put_Radius(spec.radius));
    EXPECT_OK(element->put_Text(Bstr(spec.text)));
    EXPECT_OK(element->put_TxtAngle(spec.textAngle));
    EXPECT_OK(element->put_TxtAlign(spec.textAlign));
    EXPECT_OK(element->put_TxtBkMode(spec.textBkMode));
    if (spec.font) {
        EXPECT_OK(element->putref_TxtFont(NewFont(*spec.font).Get()));
    }
    return element;
}

Ref<_CSymElementColl> NewElements(const std::vector<ElementSpec>& specs) {
    const auto elements = Create<CSymElementColl, _CSymElementColl>();
    for (const ElementSpec& spec : specs) {
        Ref<_CSymElement> element = NewElement(spec);
        EXPECT_OK(elements->AppendRef(element.InOut()));
    }
    return elements;
}

Ref<_CSymbol> NewSymbol() {
    return Create<CSymbol, _CSymbol>();
}

Ref<_CSymbol> NewSymbol(LONG refX, LONG refY, LONG width, LONG height,
                        const std::vector<ElementSpec>& specs) {
    const Ref<_CSymbol> symbol = NewSymbol();
    EXPECT_OK(symbol->CreateNew(refX, refY, width, height, NewElements(specs).Get()));
    return symbol;
}

Ref<_CSymbol> NewSymbolAt(const std::wstring& path) {
    const Ref<_CSymbol> symbol = NewSymbol();
    EXPECT_OK(symbol->put_FilePath(Bstr(path)));
    return symbol;
}

POINT At(_CPt* pt) {
    return {Get(pt, &_CPt::get_X), Get(pt, &_CPt::get_Y)};
}

std::vector<POINT> PointsOf(_CPtList* list) {
    std::vector<POINT> points;
    const LONG count = Get(list, &_CPtList::get_Count);
    for (LONG i = 1; i <= count; ++i) {
        Ref<_CPt> pt;
        EXPECT_OK(list->get_Item(i, pt.Put()));
        points.push_back(At(pt.Get()));
    }
    return points;
}

ElementSpec Describe(_CSymElement* element) {
    ElementSpec spec;
    spec.type = Get(element, &_CSymElement::get_ElementType);
    spec.lineWidth = Get(element, &_CSymElement::get_LineWidth);
    spec.closed = Get(element, &_CSymElement::get_LineClosed) != VARIANT_FALSE;
    spec.fillColor = Get(element, &_CSymElement::get_FillColor);
    spec.mainColor = Get(element, &_CSymElement::get_MainColor);
    spec.radius = Get(element, &_CSymElement::get_Radius);
    spec.textAngle = Get(element, &_CSymElement::get_TxtAngle);
    spec.textAlign = Get(element, &_CSymElement::get_TxtAlign);
    spec.textBkMode = Get(element, &_CSymElement::get_TxtBkMode);
    Bstr text;
    EXPECT_OK(element->get_Text(text.Put()));
    spec.text = text.Text();
    Ref<_CPtList> list;
    EXPECT_OK(element->get_PtList(list.Put()));
    if (list)
        spec.points = PointsOf(list.Get());
    Ref<IFontDisp> font;
    EXPECT_OK(element->get_TxtFont(font.Put()));
    if (font)
        spec.font = Describe(font.Get());
    return spec;
}

std::vector<ElementSpec> DescribeAll(_CSymElementColl* elements) {
    std::vector<ElementSpec> specs;
    const LONG count = Get(elements, &_CSymElementColl::get_Count);
    for (LONG i = 1; i <= count; ++i) {
        Ref<_CSymElement> element;
        EXPECT_OK(elements->get_ItemByPos(i, element.Put()));
        specs.push_back(Describe(element.Get()));
    }
    return specs;
}

std::vector<ElementSpec> ElementsOf(_CSymbol* symbol) {
    Ref<_CSymElementColl> elements;
    EXPECT_OK(symbol->GetSymElements(elements.Put()));
    return elements ? DescribeAll(elements.Get()) : std::vector<ElementSpec>();
}

std::wstring NameOf(_CSymbol* symbol) {
    Bstr name;
    EXPECT_OK(symbol->get_Name(name.Put()));
    return name.Text();
}

} // namespace support

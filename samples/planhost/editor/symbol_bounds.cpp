#include "symbol_bounds.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr LONG kFarthest = 2'000'000'000; // of the 32 bits
constexpr double kUnitsPerPoint = 25.4 / 72 * kUnitsPerMillimetre;
constexpr RECT kNothing{kFarthest, kFarthest, -kFarthest, -kFarthest};

LONG Limited(double value) {
    return static_cast<LONG>(std::clamp<double>(value, -kFarthest, kFarthest));
}

bool IsEmpty(const RECT& rect) {
    return rect.left > rect.right;
}

/// The square around a point.
RECT Square(POINT middle, double half) {
    return {Limited(middle.x - half), Limited(middle.y - half), Limited(middle.x + half),
            Limited(middle.y + half)};
}

template <class Type, class Object>
Type Read(Object& object, HRESULT (STDMETHODCALLTYPE Object::*property)(Type*)) {
    Type value{};
    Check((object.*property)(&value));
    return value;
}

POINT PointAt(_CPtList& points, LONG position) {
    Ptr<_CPt> point;
    Check(points.get_Item(position, point.Put()));
    return {Read(*point.Get(), &_CPt::get_X), Read(*point.Get(), &_CPt::get_Y)};
}

/// How far a text may reach in any direction: no letter is wider than high.
double Reach(_CSymElement& text) {
    Bstr letters;
    Check(text.get_Text(letters.Put()));
    Ptr<IFontDisp> font;
    Check(text.get_TxtFont(font.Put()));
    CY size{};
    Ptr<IFont> form;
    if (font && SUCCEEDED(font->QueryInterface(IID_IFont, reinterpret_cast<void**>(form.Put()))))
        form->get_Size(&size);
    return static_cast<double>(std::max<std::size_t>(letters.Text().size(), 2)) *
           (static_cast<double>(size.int64) / 10'000) * kUnitsPerPoint;
}

void Take(_CSymElement& element, SymbolBounds& bounds) {
    const SymElementTypeConstants type = Read(element, &_CSymElement::get_ElementType);
    Ptr<_CPtList> points;
    Check(element.get_PtList(points.Put()));
    const LONG count = points ? Read(*points.Get(), &_CPtList::get_Count) : 0;
    double around = std::abs(static_cast<double>(Read(element, &_CSymElement::get_LineWidth))) / 2;
    if (type == symText)
        around = Reach(element);
    else if (type != symPoly)
        around += std::abs(static_cast<double>(Read(element, &_CSymElement::get_Radius)));
    // Of circles, arcs and texts the first point counts; what else an arc has only tells where it ends.
    for (LONG position = 1; position <= (type == symPoly ? count : std::min(count, 1L)); ++position) {
        const RECT square = Square(PointAt(*points.Get(), position), around);
        bounds.drawn = Joined(bounds.drawn, square);
        if (type != symText)
            bounds.figure = Joined(bounds.figure, square);
    }
}

SymbolBounds Measure(_CSymbol& symbol) {
    SymbolBounds bounds{kNothing, kNothing};
    Ptr<_CSymElementColl> elements;
    Check(symbol.GetSymElements(elements.Put()));
    const LONG count = elements ? Read(*elements.Get(), &_CSymElementColl::get_Count) : 0;
    for (LONG position = 1; position <= count; ++position) {
        Ptr<_CSymElement> element;
        Check(elements->get_ItemByPos(position, element.Put()));
        Take(*element.Get(), bounds);
    }
    const RECT nominal{0, 0, Read(symbol, &_CSymbol::get_Width), Read(symbol, &_CSymbol::get_Height)};
    if (IsEmpty(bounds.figure))
        bounds.figure = nominal;
    bounds.drawn = Joined(bounds.drawn, Joined(bounds.figure, nominal)); // hit in the nominal size
    const LONG x = Read(symbol, &_CSymbol::get_RefX);
    const LONG y = Read(symbol, &_CSymbol::get_RefY);
    for (RECT* rect : {&bounds.figure, &bounds.drawn}) {
        *rect = {Limited(static_cast<double>(rect->left) - x), Limited(static_cast<double>(rect->top) - y),
                 Limited(static_cast<double>(rect->right) - x),
                 Limited(static_cast<double>(rect->bottom) - y)};
    }
    return bounds;
}

} // namespace

const SymbolBounds& BoundsOfSymbols::Of(const std::wstring& name, _CSymbol& symbol) {
    const auto known = known_.find(name);
    return known != known_.end() ? known->second : known_.emplace(name, Measure(symbol)).first->second;
}

std::array<POINT, 4> PlacedCorners(const RECT& bounds, const PlacedSymbol& placed) {
    const double sine = std::sin(Radians(placed));
    const double cosine = std::cos(Radians(placed));
    const auto place = [&](double x, double y) {
        return POINT{Limited(placed.at.x + x * cosine + y * sine),
                     Limited(placed.at.y - x * sine + y * cosine)};
    };
    return {place(bounds.left, bounds.top), place(bounds.right, bounds.top),
            place(bounds.right, bounds.bottom), place(bounds.left, bounds.bottom)};
}

RECT Around(const std::array<POINT, 4>& points) {
    const auto [left, right] = std::ranges::minmax(points, {}, &POINT::x);
    const auto [top, bottom] = std::ranges::minmax(points, {}, &POINT::y);
    return {left.x, top.y, right.x, bottom.y};
}

RECT Joined(const RECT& one, const RECT& other) {
    return {std::min(one.left, other.left), std::min(one.top, other.top), std::max(one.right, other.right),
            std::max(one.bottom, other.bottom)};
}

bool Touch(const RECT& one, const RECT& other) {
    return one.left <= other.right && other.left <= one.right && one.top <= other.bottom &&
           other.top <= one.bottom;
}

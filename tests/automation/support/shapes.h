#pragma once

#include "support/ref.h"

#include <QSymbol.h>
#include <olectl.h>

#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace support {

struct FontSpec {
    std::wstring name = L"Arial";
    int size = 6;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
};

/// An element as a test writes it down; what is left out keeps the start value of the class.
struct ElementSpec {
    LONG type = symUndefined;
    std::vector<POINT> points = {};
    LONG lineWidth = 0;
    bool closed = false;
    LONG fillColor = -1;
    LONG mainColor = 0;
    LONG radius = 0;
    std::wstring text = {};
    std::optional<FontSpec> font = {};
    double textAngle = 0;
    LONG textAlign = 0;
    LONG textBkMode = 1;
};

/// All of these make new objects through the registered classes.
Ref<_CPt> NewPt(LONG x, LONG y);
Ref<_CPtList> NewPtList(const std::vector<POINT>& points);
Ref<_CTrans> NewTrans(double scale = 1, LONG offsetX = 0, LONG offsetY = 0);
Ref<IFontDisp> NewFont(const FontSpec& spec);
Ref<_CSymElement> NewElement(const ElementSpec& spec);
Ref<_CSymElementColl> NewElements(const std::vector<ElementSpec>& specs);
Ref<_CSymbol> NewSymbol();
Ref<_CSymbol> NewSymbol(LONG refX, LONG refY, LONG width, LONG height, const std::vector<ElementSpec>& specs);
/// A symbol without elements, known by its path.
Ref<_CSymbol> NewSymbolAt(const std::wstring& path);

/// What the objects hold.
POINT At(_CPt* pt);
std::vector<POINT> PointsOf(_CPtList* list);
ElementSpec Describe(_CSymElement* element);
std::vector<ElementSpec> DescribeAll(_CSymElementColl* elements);
std::vector<ElementSpec> ElementsOf(_CSymbol* symbol);
std::wstring NameOf(_CSymbol* symbol);

} // namespace support

/// For comparisons in tests.
bool operator==(const POINT& a, const POINT& b);
namespace support {
bool operator==(const FontSpec& a, const FontSpec& b);
bool operator==(const ElementSpec& a, const ElementSpec& b);
std::ostream& operator<<(std::ostream& out, const ElementSpec& spec);
} // namespace support

#include "base/font_request.h"
#include "qmath/rect.h"
#include "qmath/vector.h"
#include "qsymbol/compare/change.h"
#include "qsymbol/model/symbol.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

/// Values that are compared to tell whether anything has changed: each of their fields tells two of them apart.

namespace {

template <class Value>
void ExpectEachTellsApart(const std::vector<std::function<void(Value&)>>& changes) {
    EXPECT_TRUE(Value() == Value());
    for (std::size_t i = 0; i < changes.size(); ++i) {
        Value other{};
        changes[i](other);
        EXPECT_FALSE(other == Value()) << "field " << i;
    }
}

TEST(Equality, OfRectanglesAndVectors) {
    ExpectEachTellsApart<qmath::Rect>({[](auto& rect) { rect.left = 1; }, [](auto& rect) { rect.top = 1; },
                                       [](auto& rect) { rect.right = 1; },
                                       [](auto& rect) { rect.bottom = 1; }});
    ExpectEachTellsApart<qmath::Vector>({[](auto& at) { at.x = 1; }, [](auto& at) { at.y = 1; }});
}

TEST(Equality, OfFonts) {
    ExpectEachTellsApart<base::FontRequest>(
        {[](auto& font) { font.height = 2; }, [](auto& font) { font.escapement = 1; },
         [](auto& font) { font.bold = true; }, [](auto& font) { font.italic = true; },
         [](auto& font) { font.underline = true; }, [](auto& font) { font.strikethrough = true; },
         [](auto& font) { font.name = u"Arial"; }});
    ExpectEachTellsApart<qsymbol::FontRecord>(
        {[](auto& font) { font.name = u"Courier"; }, [](auto& font) { font.size = 7; },
         [](auto& font) { font.bold = true; }, [](auto& font) { font.italic = true; },
         [](auto& font) { font.strikethrough = true; }, [](auto& font) { font.underline = true; }});
}

TEST(Equality, OfElementsAndSymbols) {
    ExpectEachTellsApart<qsymbol::ElementRecord>(
        {[](auto& element) { element.type = qsymbol::ElementType::Poly; },
         [](auto& element) { element.lineClosed = true; }, [](auto& element) { element.lineWidth = 1; },
         [](auto& element) { element.textAlign = 2; }, [](auto& element) { element.textBkMode = 2; },
         [](auto& element) { element.textAngle = 1; }, [](auto& element) { element.radius = 1; },
         [](auto& element) { element.mainColor = 1; }, [](auto& element) { element.fillColor = 1; },
         [](auto& element) { element.text = u"WC"; },
         [](auto& element) {
             element.points = {{0, 0}};
         },
         [](auto& element) { element.font.emplace(); }});
    ExpectEachTellsApart<qsymbol::Symbol>(
        {[](auto& symbol) { symbol.elements.emplace_back(); }, [](auto& symbol) { symbol.refX = 1; },
         [](auto& symbol) { symbol.refY = 1; }, [](auto& symbol) { symbol.width = 1; },
         [](auto& symbol) { symbol.height = 1; }, [](auto& symbol) { symbol.filePath = u"a.syb"; },
         [](auto& symbol) { symbol.etagenbreite = 1; }});
}

TEST(Equality, OfChanges) {
    using qsymbol::FieldValue;
    ExpectEachTellsApart<FieldValue>(
        {[](auto& value) { value.kind = FieldValue::Kind::Flag; }, [](auto& value) { value.flag = true; },
         [](auto& value) { value.number = 1; }, [](auto& value) { value.decimal = 1; },
         [](auto& value) {
             value.point = {1, 0};
         },
         [](auto& value) {
             value.point = {0, 1};
         },
         [](auto& value) { value.text = u"a"; }});
    ExpectEachTellsApart<qsymbol::Change>({[](auto& change) { change.field = "width"; },
                                           [](auto& change) { change.from = qsymbol::ValueOf(1); },
                                           [](auto& change) { change.to = qsymbol::ValueOf(1); },
                                           [](auto& change) { change.point = 1; }});
}

} // namespace

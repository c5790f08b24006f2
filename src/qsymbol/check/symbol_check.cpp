#include "qsymbol/check/symbol_check.h"

#include "base/utf8.h"
#include "qsymbol/check/millimetres.h"
#include "qsymbol/export/colour_table.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>
#include <utility>

namespace qsymbol {

namespace {

using Found = std::vector<Finding>;

Finding Warning(std::string_view code, std::string_view message,
                std::optional<std::size_t> element = std::nullopt) {
    return {code, Severity::Warning, element, std::nullopt, base::FromUtf8(message)};
}

std::string Rounded(double units) {
    return Millimetres(std::llround(units));
}

std::string Size(double width, double height) {
    return Rounded(width) + " x " + Rounded(height) + " mm";
}

// What each rule has to say of an element: "" when it is in order.

std::string Undefinedness(const ElementRecord& element) {
    return IsKnown(element.type) ? "" : "the element has no kind and is not drawn";
}

std::string Degeneration(const ElementRecord& element) {
    const auto& points = element.points;
    switch (element.type) {
    case ElementType::Poly:
        if (points.size() < 2)
            return "a line of fewer than two points is not drawn";
        return std::all_of(points.begin(), points.end(), [&](qmath::Point p) { return p == points[0]; })
                   ? "the line has no length"
                   : "";
    case ElementType::Circle:
        return points.empty()        ? "a circle without a centre is not drawn"
               : element.radius == 0 ? "no radius"
                                     : "";
    case ElementType::Arc:
        return points.size() < 3     ? "an arc of fewer than three points is not drawn"
               : element.radius == 0 ? "no radius"
                                     : "";
    case ElementType::Text: return points.empty() || element.text.empty() ? "the text draws nothing" : "";
    default: return "";
    }
}

std::string StrangeColour(const ElementRecord& element) {
    const std::int32_t colour = element.mainColor;
    if (!IsKnown(element.type) || ColourOfNumber(NumberOfColour(colour), ColourUse::Plan) == colour)
        return {};
    return "no colour number has the colour " + std::to_string(colour) + "; DXF files show the foreground's";
}

std::string LineBreak(const ElementRecord& element) {
    const bool has =
        element.type == ElementType::Text && element.text.find_first_of(u"\r\n") != std::u16string::npos;
    return has ? "the text has a line break, but is drawn in one line" : "";
}

/// How high DXF files make a text.
double HeightInDxf(const ElementRecord& element) {
    // They say a thirtieth of the size in points, which plans take as centimetres; the size in hundredths is written
    // as it stands.
    constexpr double kUnitsPerPoint = 1000.0 / 30;
    return std::nearbyint(element.font ? element.font->size : FontRecord().size) * kUnitsPerPoint;
}

void CheckSizeMismatch(const Symbol& symbol, const qmath::Box& drawn, Found& found) {
    const double width = symbol.width;
    const double height = symbol.height;
    if (drawn.IsEmpty() || (width == 0 && height == 0))
        return;
    constexpr double kTolerance = 0.05;
    const double allowed = kTolerance * std::max(width, height);
    if (std::abs(drawn.Width() - width) > allowed || std::abs(drawn.Height() - height) > allowed)
        found.push_back(Warning("size-mismatch", "the nominal size is " + Size(width, height) +
                                                     ", what is drawn measures " +
                                                     Size(drawn.Width(), drawn.Height())));
}

void CheckReference(const Symbol& symbol, const qmath::Box& drawn, Found& found) {
    if (drawn.IsEmpty())
        return;
    const double x = symbol.refX;
    const double y = symbol.refY;
    const double distance = std::hypot(std::max({drawn.left - x, x - drawn.right, 0.0}),
                                       std::max({drawn.top - y, y - drawn.bottom, 0.0}));
    if (distance > std::max(drawn.Width(), drawn.Height()))
        found.push_back(Warning("reference-far", "the reference point is " + Rounded(distance) +
                                                     " mm away from what is drawn, which measures " +
                                                     Size(drawn.Width(), drawn.Height())));
}

void Add(Found& found, std::string_view code, const std::string& message, std::size_t element) {
    if (!message.empty())
        found.push_back(Warning(code, message, element));
}

} // namespace

void SymbolCheck::Look(const ElementRecord& element) {
    ++number_;
    Add(undefined_, "undefined-element", Undefinedness(element), number_);
    Add(degenerate_, "degenerate-element", Degeneration(element), number_);
    Add(colours_, "colour-not-in-table", StrangeColour(element), number_);
    Add(lineBreaks_, "text-line-break", LineBreak(element), number_);
    if (element.type == ElementType::Text) {
        texts_.push_back({number_, HeightInDxf(element)});
    } else if (const qmath::Box box = ExtentOf({&element, 1}).drawn; !box.IsEmpty()) {
        drawn_.Include(box);
    }
}

std::vector<Finding> SymbolCheck::Findings(const Symbol& symbol) {
    Found found;
    const auto take = [&](Found& more) { std::ranges::move(more, std::back_inserter(found)); };
    if (number_ == 0)
        found.push_back(Warning("empty", "the symbol has no elements"));
    take(undefined_);
    take(degenerate_);
    if (symbol.width == 0 && symbol.height == 0)
        found.push_back(Warning("zero-size", "width and height are 0"));
    CheckSizeMismatch(symbol, drawn_, found);
    CheckReference(symbol, drawn_, found);
    take(colours_);
    take(lineBreaks_);
    const double height = symbol.height <= 0 && !drawn_.IsEmpty() ? drawn_.Height() : symbol.height;
    for (const Text& text : texts_)
        if (height > 0 && text.height > height)
            found.push_back(Warning("dxf-text-size",
                                    "in DXF files the text is " + Rounded(text.height) +
                                        " mm high, higher than the symbol with " + Rounded(height) + " mm",
                                    text.number));
    return found;
}

std::vector<Finding> CheckSymbol(const Symbol& symbol) {
    SymbolCheck check;
    for (const ElementRecord& element : symbol.elements)
        check.Look(element);
    return check.Findings(symbol);
}

} // namespace qsymbol

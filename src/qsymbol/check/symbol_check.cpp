#include "qsymbol/check/symbol_check.h"

#include "base/utf8.h"
#include "qsymbol/check/drawn_extent.h"
#include "qsymbol/check/millimetres.h"
#include "qsymbol/export/colour_table.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace qsymbol {

namespace {

/// What a rule sees.
struct Subject {
    const Symbol& symbol;
    qmath::Box drawn; ///< what lines reach to
};

using Found = std::vector<Finding>;

void Warn(Found& found, std::string_view code, std::string_view message,
          std::optional<std::size_t> element = std::nullopt) {
    found.push_back({code, Severity::Warning, element, std::nullopt, base::FromUtf8(message)});
}

/// A warning for each element for which the rule has something to say.
template <class Rule>
void WarnOfElements(Found& found, std::string_view code, const Symbol& symbol, Rule rule) {
    for (std::size_t i = 0; i < symbol.elements.size(); ++i)
        if (const std::string message = rule(symbol.elements[i]); !message.empty())
            Warn(found, code, message, i + 1);
}

std::string Rounded(double units) {
    return Millimetres(std::llround(units));
}

std::string Size(double width, double height) {
    return Rounded(width) + " x " + Rounded(height) + " mm";
}

void CheckEmpty(const Subject& subject, Found& found) {
    if (subject.symbol.elements.empty())
        Warn(found, "empty", "the symbol has no elements");
}

void CheckUndefined(const Subject& subject, Found& found) {
    WarnOfElements(found, "undefined-element", subject.symbol, [](const ElementRecord& element) {
        return IsKnown(element.type) ? std::string() : "the element has no kind and is not drawn";
    });
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

void CheckDegenerate(const Subject& subject, Found& found) {
    WarnOfElements(found, "degenerate-element", subject.symbol, Degeneration);
}

void CheckZeroSize(const Subject& subject, Found& found) {
    if (subject.symbol.width == 0 && subject.symbol.height == 0)
        Warn(found, "zero-size", "width and height are 0");
}

void CheckSizeMismatch(const Subject& subject, Found& found) {
    const double width = subject.symbol.width;
    const double height = subject.symbol.height;
    if (subject.drawn.IsEmpty() || (width == 0 && height == 0))
        return;
    constexpr double kTolerance = 0.05;
    const double allowed = kTolerance * std::max(width, height);
    const qmath::Box& drawn = subject.drawn;
    if (std::abs(drawn.Width() - width) > allowed || std::abs(drawn.Height() - height) > allowed)
        Warn(found, "size-mismatch",
             "the nominal size is " + Size(width, height) + ", what is drawn measures " +
                 Size(drawn.Width(), drawn.Height()));
}

void CheckReference(const Subject& subject, Found& found) {
    if (subject.drawn.IsEmpty())
        return;
    const qmath::Box& drawn = subject.drawn;
    const double x = subject.symbol.refX;
    const double y = subject.symbol.refY;
    const double distance = std::hypot(std::max({drawn.left - x, x - drawn.right, 0.0}),
                                       std::max({drawn.top - y, y - drawn.bottom, 0.0}));
    if (distance > std::max(drawn.Width(), drawn.Height()))
        Warn(found, "reference-far",
             "the reference point is " + Rounded(distance) + " mm away from what is drawn, which measures " +
                 Size(drawn.Width(), drawn.Height()));
}

void CheckColours(const Subject& subject, Found& found) {
    WarnOfElements(
        found, "colour-not-in-table", subject.symbol, [](const ElementRecord& element) -> std::string {
            const std::int32_t colour = element.mainColor;
            if (!IsKnown(element.type) || ColourOfNumber(NumberOfColour(colour), ColourUse::Plan) == colour)
                return {};
            return "no colour number has the colour " + std::to_string(colour) +
                   "; DXF files show the foreground's";
        });
}

void CheckLineBreaks(const Subject& subject, Found& found) {
    WarnOfElements(found, "text-line-break", subject.symbol, [](const ElementRecord& element) {
        return element.type == ElementType::Text &&
                       element.text.find_first_of(u"\r\n") != std::u16string::npos
                   ? std::string("the text has a line break, but is drawn in one line")
                   : std::string();
    });
}

void CheckTextSizes(const Subject& subject, Found& found) {
    // DXF files say a thirtieth of the size in points, which plans take as centimetres; the size in hundredths
    // is written as it stands.
    constexpr double kUnitsPerPoint = 1000.0 / 30;
    double height = subject.symbol.height;
    if (height <= 0 && !subject.drawn.IsEmpty())
        height = subject.drawn.Height();
    if (height <= 0)
        return;
    WarnOfElements(found, "dxf-text-size", subject.symbol, [&](const ElementRecord& element) -> std::string {
        const double size =
            std::nearbyint(element.font ? element.font->size : FontRecord().size) * kUnitsPerPoint;
        if (element.type != ElementType::Text || size <= height)
            return {};
        return "in DXF files the text is " + Rounded(size) + " mm high, higher than the symbol with " +
               Rounded(height) + " mm";
    });
}

} // namespace

std::vector<Finding> CheckSymbol(const Symbol& symbol) {
    const Subject subject{symbol, DrawnExtent(symbol)};
    Found found;
    for (const auto rule : {CheckEmpty, CheckUndefined, CheckDegenerate, CheckZeroSize, CheckSizeMismatch,
                            CheckReference, CheckColours, CheckLineBreaks, CheckTextSizes})
        rule(subject, found);
    return found;
}

} // namespace qsymbol

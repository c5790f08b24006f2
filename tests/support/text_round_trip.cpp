#include "support/text_round_trip.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <numbers>

namespace support {

using qsymbol::ElementRecord;
using qsymbol::ElementType;
using qsymbol::Symbol;

namespace {

bool HasTextForm(ElementType type) {
    return type == ElementType::Poly || type == ElementType::Circle || type == ElementType::Arc ||
           type == ElementType::Text;
}

std::u16string InCodePage(const std::u16string& text, const base::CodePage& codePage) {
    return codePage.Decode(codePage.Encode(text));
}

/// The second field of a STRING line, one quote at each end taken away.
std::u16string TextField(const std::u16string& text) {
    std::u16string field = u'"' + text + u'"';
    field = field.substr(1, field.find(u';') - 1);
    if (field.ends_with(u'"'))
        field.pop_back();
    return field;
}

ElementRecord AfterText(const ElementRecord& element, const base::CodePage& codePage) {
    ElementRecord result;
    result.type = element.type;
    result.mainColor = element.mainColor;
    result.points = element.points;
    if (element.type == ElementType::Text) {
        result.textAngle = element.textAngle;
        result.textAlign = element.textAlign;
        result.textBkMode = element.textBkMode;
        result.lineClosed = element.lineClosed;
        result.points.resize(1);
        result.text = TextField(InCodePage(element.text, codePage));
        result.font = element.font;
        result.font->name = InCodePage(element.font->name, codePage);
        result.font->size = std::round(element.font->size);
        return result;
    }
    result.lineWidth = element.lineWidth;
    if (element.type == ElementType::Poly)
        result.lineClosed = element.lineClosed;
    else
        result.radius = element.radius;
    if (element.type == ElementType::Arc)
        result.points.resize(3);
    else
        result.fillColor = element.fillColor;
    if (element.type == ElementType::Circle)
        result.points.resize(1);
    if (result.lineClosed && result.points.size() == 2) {
        const qmath::Point a = result.points[0];
        const qmath::Point b = result.points[1];
        result.points = {a, {a.x, b.y}, b, {b.x, a.y}};
    }
    return result;
}

bool IsRefused(const ElementRecord& element, const base::CodePage& codePage) {
    if (!HasTextForm(element.type))
        return false;
    if (element.points.empty() || (element.type == ElementType::Arc && element.points.size() > 3))
        return true;
    if (element.type != ElementType::Text)
        return false;
    return !element.font || !(std::fabs(element.textAngle) * 180 / std::numbers::pi <= DBL_MAX) ||
           !(std::fabs(std::round(element.font->size) + 0.5) <= 32767.5) ||
           codePage.Encode(element.text).find('\n') != std::string::npos ||
           codePage.Encode(element.font->name).find_first_of(";\n") != std::string::npos;
}

} // namespace

bool IsRefusedAsText(const Symbol& symbol, const base::CodePage& codePage) {
    return std::any_of(symbol.elements.begin(), symbol.elements.end(),
                       [&](const ElementRecord& element) { return IsRefused(element, codePage); });
}

bool IsRefusedAsBinary(const Symbol& symbol, const base::CodePage& codePage) {
    constexpr std::size_t kLongest = 65535;
    return std::any_of(symbol.elements.begin(), symbol.elements.end(), [&](const ElementRecord& element) {
        return codePage.Encode(element.text).size() > kLongest ||
               (element.font && (codePage.Encode(element.font->name).size() > kLongest ||
                                 !(std::fabs(std::nearbyint(element.font->size) + 0.5) <= 2147483647.5)));
    });
}

Symbol AfterText(const Symbol& symbol, const base::CodePage& codePage) {
    Symbol result = symbol;
    result.elements.clear();
    for (const ElementRecord& element : symbol.elements)
        if (HasTextForm(element.type))
            result.elements.push_back(AfterText(element, codePage));
    result.elements.resize(symbol.elements.size());
    return result;
}

bool EqualInText(const Symbol& a, const Symbol& b) {
    if (a.elements.size() != b.elements.size())
        return false;
    Symbol aligned = a;
    for (std::size_t i = 0; i < a.elements.size(); ++i) {
        double& angle = aligned.elements[i].textAngle;
        const double other = b.elements[i].textAngle;
        const double half = 0.0050001 * std::numbers::pi / 180;
        if (std::fabs(angle - other) <= half + 1e-13 * std::fabs(other))
            angle = other;
    }
    return aligned == b;
}

bool AnglesAreModest(const Symbol& symbol) {
    return std::all_of(symbol.elements.begin(), symbol.elements.end(),
                       [](const ElementRecord& element) { return std::fabs(element.textAngle) < 1e8; });
}

} // namespace support

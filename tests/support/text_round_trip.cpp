#include "support/text_round_trip.h"

#include <algorithm>
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

ElementRecord AfterText(ElementRecord element) {
    if (element.type != ElementType::Text) {
        element.text.clear();
        element.font.reset();
    }
    if (element.type == ElementType::Poly && element.lineClosed && element.points.size() == 2) {
        const qmath::Point a = element.points[0];
        const qmath::Point b = element.points[1];
        element.points = {a, {a.x, b.y}, b, {b.x, a.y}};
    }
    if (element.type == ElementType::Arc)
        element.points.resize(3);
    if (element.type == ElementType::Circle)
        element.points.resize(1);
    return element;
}

} // namespace

bool IsLostInText(const Symbol& symbol) {
    return symbol.elements.empty() ||
           std::any_of(symbol.elements.begin(), symbol.elements.end(), [](const ElementRecord& element) {
               return (element.type == ElementType::Poly && element.points.empty()) ||
                      (element.type == ElementType::Arc && element.points.size() > 3);
           });
}

Symbol AfterText(const Symbol& symbol) {
    Symbol result = symbol;
    result.elements.clear();
    for (const ElementRecord& element : symbol.elements)
        if (HasTextForm(element.type))
            result.elements.push_back(AfterText(element));
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

#include "golden/com_elements.h"

#include "support/text.h"

namespace golden {

using support::Narrow;
using support::Widen;

support::ElementSpec SpecOf(const std::string& line) {
    const Element element = ElementOf(line);
    support::ElementSpec spec;
    spec.type = element.type;
    for (const Spot& point : element.points)
        spec.points.push_back({point.x, point.y});
    spec.closed = element.closed;
    spec.lineWidth = element.lineWidth;
    spec.fillColor = element.fillColor;
    spec.mainColor = element.mainColor;
    spec.radius = element.radius;
    spec.text = Widen(element.text);
    spec.textAngle = element.angle;
    spec.textAlign = element.align;
    spec.textBkMode = element.mode;
    if (element.font)
        spec.font = support::FontSpec{Widen(element.font->name), static_cast<int>(element.font->size),
                                      element.font->bold,        element.font->italic,
                                      element.font->underline,   element.font->strikethrough};
    return spec;
}

Element ElementOf(const support::ElementSpec& spec) {
    Element element;
    element.type = spec.type;
    for (const POINT& point : spec.points)
        element.points.push_back({static_cast<std::int32_t>(point.x), static_cast<std::int32_t>(point.y)});
    element.closed = spec.closed;
    element.lineWidth = spec.lineWidth;
    element.fillColor = spec.fillColor;
    element.mainColor = spec.mainColor;
    element.radius = spec.radius;
    element.text = Narrow(spec.text);
    element.angle = spec.textAngle;
    element.align = spec.textAlign;
    element.mode = spec.textBkMode;
    if (spec.font)
        element.font = Font{Narrow(spec.font->name), static_cast<double>(spec.font->size),
                            spec.font->bold,         spec.font->italic,
                            spec.font->underline,    spec.font->strikethrough};
    return element;
}

std::vector<support::ElementSpec> SpecsOf(const Lines& lines) {
    std::vector<support::ElementSpec> specs;
    for (const std::string& line : lines)
        specs.push_back(SpecOf(line));
    return specs;
}

} // namespace golden

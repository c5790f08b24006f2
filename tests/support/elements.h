#pragma once

#include "qsymbol/model/element_record.h"

#include <string>
#include <utility>
#include <vector>

/// Elements for tests: a line of width 20 in colour 11, not filled, unless said otherwise.
namespace support {

inline qsymbol::ElementRecord Element(qsymbol::ElementType type, std::vector<qmath::Point> points) {
    qsymbol::ElementRecord element;
    element.type = type;
    element.lineWidth = 20;
    element.mainColor = 11;
    element.points = std::move(points);
    return element;
}

inline qsymbol::ElementRecord Poly(std::vector<qmath::Point> points, bool closed = false,
                                   std::int32_t fill = -1) {
    qsymbol::ElementRecord element = Element(qsymbol::ElementType::Poly, std::move(points));
    element.lineClosed = closed;
    element.fillColor = fill;
    return element;
}

inline qsymbol::ElementRecord Circle(qmath::Point centre, std::int32_t radius, std::int32_t fill = -1) {
    qsymbol::ElementRecord element = Element(qsymbol::ElementType::Circle, {centre});
    element.radius = radius;
    element.fillColor = fill;
    return element;
}

inline qsymbol::ElementRecord Arc(qmath::Point centre, std::int32_t radius, qmath::Point start,
                                  qmath::Point end) {
    qsymbol::ElementRecord element = Element(qsymbol::ElementType::Arc, {centre, start, end});
    element.radius = radius;
    return element;
}

/// With the standard font: "Arial", size 6.
inline qsymbol::ElementRecord Text(qmath::Point anchor, std::u16string text) {
    qsymbol::ElementRecord element = Element(qsymbol::ElementType::Text, {anchor});
    element.text = std::move(text);
    element.font = qsymbol::FontRecord();
    return element;
}

} // namespace support

#pragma once

#include "qmath/point.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace qsymbol {

/// What a field held; nothing for a point that is new or gone.
struct FieldValue {
    enum class Kind { None, Flag, Number, Decimal, Text, Point };

    Kind kind = Kind::None;
    bool flag = false;
    std::int32_t number = 0;
    double decimal = 0;
    qmath::Point point{};
    std::u16string text{};

    friend bool operator==(const FieldValue&, const FieldValue&) = default;
};

inline FieldValue ValueOf(bool flag) {
    return {.kind = FieldValue::Kind::Flag, .flag = flag};
}
inline FieldValue ValueOf(std::int32_t number) {
    return {.kind = FieldValue::Kind::Number, .number = number};
}
inline FieldValue ValueOf(double decimal) {
    return {.kind = FieldValue::Kind::Decimal, .decimal = decimal};
}
inline FieldValue ValueOf(qmath::Point point) {
    return {.kind = FieldValue::Kind::Point, .point = point};
}
inline FieldValue ValueOf(const std::u16string& text) {
    return {.kind = FieldValue::Kind::Text, .text = text};
}

/// A field that holds something else than before.
struct Change {
    std::string_view field; ///< "width", "lineWidth", "textAngle", "points" …
    FieldValue from;
    FieldValue to;
    std::size_t point = 0; ///< of "points": which one, from 1

    friend bool operator==(const Change&, const Change&) = default;
};

} // namespace qsymbol

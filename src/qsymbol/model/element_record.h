#pragma once

#include "qmath/point.h"
#include "qsymbol/model/element_type.h"
#include "qsymbol/model/font_record.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qsymbol {

/// One element of a symbol in the compact form in which the symbol keeps it. Lengths in logical units.
///
/// Points by type: a polyline's vertices; a circle's centre; an arc's centre, start and end; a text's anchor.
struct ElementRecord {
    ElementType type = ElementType::Undefined;
    bool lineClosed = false; ///< polyline is closed; of a text: its font size is in hundredths
    std::int32_t lineWidth = 0;
    std::int32_t textAlign = 0;  ///< the GDI's text alignment flags
    std::int32_t textBkMode = 1; ///< the GDI's background mode: 1 transparent, 2 opaque
    std::int32_t radius = 0;
    double textAngle = 0;        ///< radians, counter-clockwise
    std::int32_t mainColor = 0;  ///< packed RGB
    std::int32_t fillColor = -1; ///< packed RGB, negative: not filled
    std::u16string text;
    std::vector<qmath::Point> points;
    std::optional<FontRecord> font;

    friend bool operator==(const ElementRecord&, const ElementRecord&) = default;
};

} // namespace qsymbol

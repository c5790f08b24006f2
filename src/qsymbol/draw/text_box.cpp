#include "qsymbol/draw/text_box.h"

#include "base/checked.h"
#include "qsymbol/draw/font_size.h"
#include "qsymbol/draw/surface_constants.h"

#include <cmath>

namespace qsymbol {

namespace {

/// Large, so that the hinting of small letters does not count.
constexpr std::int32_t kMeasuredHeight = 1000;
constexpr double kMillimetresToAPoint = 25.4 / 72;

/// The height of the font in world units.
double FontHeight(const ElementRecord& text) {
    const double height = base::RoundToInteger(text.font->size) * kMillimetresToAPoint * kFontFactor;
    return HasFlaggedSize(text) ? height / kFlaggedSizeDivisor : height;
}

} // namespace

void IncludeText(qmath::Box& box, const ElementRecord& text, const base::TextMeasure& measure) {
    if (text.text.empty() || text.points.empty() || !text.font)
        return;
    const FontRecord& font = *text.font;
    const base::TextSize size = measure.Measure({.height = kMeasuredHeight,
                                                 .bold = font.bold,
                                                 .italic = font.italic,
                                                 .underline = font.underline,
                                                 .strikethrough = font.strikethrough,
                                                 .name = font.name},
                                                text.text);
    const double unit = FontHeight(text) / kMeasuredHeight;
    const double width = size.width * unit;
    const double ascent = size.ascent * unit;
    const double descent = size.descent * unit;

    double left = 0;
    if ((text.textAlign & kTextAlignCenter) == kTextAlignCenter)
        left = -width / 2;
    else if ((text.textAlign & kTextAlignRight) != 0)
        left = -width;
    double top = 0;
    if ((text.textAlign & kTextAlignBaseline) == kTextAlignBaseline)
        top = -ascent;
    else if ((text.textAlign & kTextAlignBottom) != 0)
        top = -ascent - descent;

    const double sine = std::sin(text.textAngle);
    const double cosine = std::cos(text.textAngle);
    for (const double x : {left, left + width})
        for (const double y : {top, top + ascent + descent}) // y grows downwards, angles count the other way
            box.Include(text.points[0].x + x * cosine + y * sine, text.points[0].y - x * sine + y * cosine);
}

} // namespace qsymbol

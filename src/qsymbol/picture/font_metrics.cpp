#include "qsymbol/picture/font_metrics.h"

#include "base/letter_case.h"
#include "base/utf16_unit.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace qsymbol {

namespace {

constexpr FontMetrics kArial{
    .family = u"arial", .ascent = 0.905, .descent = 0.212, .capital = 0.716, .file = "arial"};

/// The families that plans are lettered in; all others count as Arial.
constexpr std::array kFamilies = {
    kArial,
    FontMetrics{.family = u"times new roman",
                .ascent = 0.891,
                .descent = 0.216,
                .capital = 0.662,
                .serif = true,
                .file = "times"},
    FontMetrics{.family = u"courier new",
                .ascent = 0.833,
                .descent = 0.300,
                .capital = 0.571,
                .fixedPitch = true,
                .file = "cour"},
    FontMetrics{.family = u"verdana",
                .ascent = 1.005,
                .descent = 0.210,
                .capital = 0.727,
                .file = "verdana",
                .boldFile = "b",
                .boldItalicFile = "z"},
    FontMetrics{.family = u"tahoma", .ascent = 1.000, .descent = 0.207, .capital = 0.727, .file = "tahoma"},
    FontMetrics{.family = u"segoe ui",
                .ascent = 1.079,
                .descent = 0.251,
                .capital = 0.700,
                .file = "segoeui",
                .boldFile = "b",
                .boldItalicFile = "z"},
    FontMetrics{.family = u"calibri",
                .ascent = 0.952,
                .descent = 0.269,
                .capital = 0.644,
                .file = "calibri",
                .boldFile = "b",
                .boldItalicFile = "z"},
    FontMetrics{.family = u"georgia",
                .ascent = 0.917,
                .descent = 0.219,
                .capital = 0.692,
                .serif = true,
                .file = "georgia",
                .boldFile = "b",
                .boldItalicFile = "z"},
};

/// Advance widths of U+0020 to U+007E in thousandths of the em size.
constexpr std::array<std::uint16_t, 95> kAdvances = {
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};

constexpr double kFixedAdvance = 600;
constexpr double kBoldFactor = 1.06;
/// Wide scripts, of which nothing is known here, are as wide as they are high.
constexpr double kWideAdvance = 1000;
constexpr double kOtherAdvance = 600;

double AdvanceOf(char16_t unit) {
    if (unit < 0x20 || unit == 0x7F || base::IsLowSurrogate(unit))
        return 0;
    if (unit < 0x7F)
        return kAdvances[unit - 0x20U];
    return unit >= 0x1100 ? kWideAdvance : kOtherAdvance;
}

} // namespace

const FontMetrics& MetricsOf(std::u16string_view family) {
    const std::u16string wanted = base::LowerCase(family);
    const auto* const found = std::find_if(kFamilies.begin(), kFamilies.end(),
                                           [&](const FontMetrics& known) { return known.family == wanted; });
    return found == kFamilies.end() ? kFamilies.front() : *found;
}

double TextWidth(std::u16string_view text, const base::FontRequest& font) {
    const bool fixedPitch = MetricsOf(font.name).fixedPitch;
    double thousandths = 0;
    for (const char16_t unit : text) {
        const double advance = AdvanceOf(unit);
        thousandths += fixedPitch && advance > 0 ? kFixedAdvance : advance;
    }
    if (font.bold && !fixedPitch)
        thousandths *= kBoldFactor;
    return thousandths / 1000 * font.height;
}

} // namespace qsymbol

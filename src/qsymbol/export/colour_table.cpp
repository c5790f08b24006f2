#include "qsymbol/export/colour_table.h"

#include "base/checked.h"

#include <algorithm>
#include <array>

namespace qsymbol {

namespace {

constexpr std::int32_t kNumbers = 256;
constexpr std::int32_t kForegroundNumber = 7;
constexpr std::int32_t kWhite = 0xFFFFFF;

using Table = std::array<std::int32_t, kNumbers>;

constexpr std::int32_t Rgb(std::int32_t red, std::int32_t green, std::int32_t blue) {
    return red + 256 * green + 65536 * blue;
}

constexpr std::int32_t Channel(double factor) {
    return base::RoundToLong(factor * 255.0);
}

constexpr std::int32_t RgbFactors(double red, double green, double blue) {
    return Rgb(Channel(red), Channel(green), Channel(blue));
}

constexpr std::int32_t WithBlue(std::int32_t colour, std::int32_t blue) {
    return colour % 65536 + 65536 * blue;
}

/// The regular colour of the numbers 10 to 249: 24 hues of 15 degrees, each in five degrees of brightness,
/// full and pale.
constexpr std::int32_t HueColour(std::int32_t number) {
    constexpr std::array kBrightness = {1.0, 0.65, 0.5, 0.3, 0.15};
    constexpr std::int32_t kHuesInSector = 4;
    const std::int32_t k = number - 10;
    const std::int32_t hue = k / 10;
    const double v = kBrightness[static_cast<std::size_t>(k % 10 / 2)];
    const double s = k % 2 == 0 ? 1.0 : 0.5;
    const double f = hue % kHuesInSector / static_cast<double>(kHuesInSector);
    const double p = v * (1 - s);
    const double q = v * (1 - s * f);
    const double t = v * (1 - s * (1 - f));
    switch (hue / kHuesInSector) {
    case 0: return RgbFactors(v, t, p);
    case 1: return RgbFactors(q, v, p);
    case 2: return RgbFactors(p, v, t);
    case 3: return RgbFactors(p, q, v);
    case 4: return RgbFactors(t, p, v);
    default: return RgbFactors(v, p, q);
    }
}

constexpr Table MakeTable(ColourUse use) {
    const bool editor = use == ColourUse::SymbolEditor;
    Table table{};
    table[1] = Rgb(255, 0, 0);
    table[2] = Rgb(255, 255, 0);
    table[3] = Rgb(0, 255, 0);
    table[4] = Rgb(0, 255, 255);
    table[5] = Rgb(0, 0, 255);
    table[6] = Rgb(255, 0, 255);
    // The foreground colour; the two greys of the common table are left out on purpose.
    table[7] = table[8] = table[9] = editor ? kWhite : 0;
    for (std::int32_t number = 10; number < 250; ++number)
        table[static_cast<std::size_t>(number)] = HueColour(number);

    // Hosts know these numbers by colours off the pattern, and existing plans rely on them.
    table[14] = Rgb(0, 128, 0);
    table[46] = RgbFactors(0.3, 0.255, 0);
    for (const std::size_t number : {69U, 79U, 89U, 99U, 106U})
        table[number] = WithBlue(table[number], Channel(0.75));
    table[101] = WithBlue(table[101], 64);
    table[108] = WithBlue(table[108], Channel(0.375));
    table[111] = WithBlue(table[111], 160);

    table[250] = editor ? 0 : Rgb(88, 88, 88);
    table[251] = RgbFactors(0.464, 0.464, 0.464);
    table[252] = RgbFactors(0.598, 0.598, 0.595);
    table[253] = RgbFactors(0.732, 0.732, 0.732);
    table[254] = Rgb(192, 192, 192);
    table[255] = editor ? kWhite : 0;
    return table;
}

constexpr Table kPlan = MakeTable(ColourUse::Plan);
constexpr Table kEditor = MakeTable(ColourUse::SymbolEditor);

struct NumberedColour {
    std::int32_t colour = 0;
    std::int32_t number = 0;
};

/// The plan colours of the numbers 1 to 255, sorted by colour and then by number.
constexpr auto kByColour = [] {
    std::array<NumberedColour, kNumbers - 1> sorted{};
    for (std::int32_t i = 0; i < kNumbers - 1; ++i)
        sorted[static_cast<std::size_t>(i)] = {kPlan[static_cast<std::size_t>(i) + 1], i + 1};
    std::sort(sorted.begin(), sorted.end(), [](const NumberedColour& a, const NumberedColour& b) {
        return a.colour != b.colour ? a.colour < b.colour : a.number < b.number;
    });
    return sorted;
}();

} // namespace

std::int32_t ColourOfNumber(std::int32_t number, ColourUse use) {
    if (number < 0 || number >= kNumbers)
        return 0;
    return (use == ColourUse::Plan ? kPlan : kEditor)[static_cast<std::size_t>(number)];
}

std::int32_t NumberOfColour(std::int32_t colour) {
    const auto* const at = std::lower_bound(
        kByColour.begin(), kByColour.end(), colour,
        [](const NumberedColour& entry, std::int32_t wanted) { return entry.colour < wanted; });
    return at != kByColour.end() && at->colour == colour ? at->number : kForegroundNumber;
}

} // namespace qsymbol

#pragma once

#include <cmath>
#include <cstdint>
#include <map>

namespace colours {

constexpr std::int32_t Packed(double red, double green, double blue) {
    return static_cast<std::int32_t>(red + 256 * green + 65536 * blue);
}

/// Hue in degrees, saturation and value through chroma, another construction than the library's.
inline std::int32_t FromHsv(double hue, double saturation, double value) {
    const double chroma = value * saturation;
    const double position = hue / 60;
    const double second = chroma * (1 - std::fabs(std::fmod(position, 2) - 1));
    const double base = value - chroma;
    double red = 0;
    double green = 0;
    double blue = 0;
    if (position < 1) {
        red = chroma;
        green = second;
    } else if (position < 2) {
        red = second;
        green = chroma;
    } else if (position < 3) {
        green = chroma;
        blue = second;
    } else if (position < 4) {
        green = second;
        blue = chroma;
    } else if (position < 5) {
        red = second;
        blue = chroma;
    } else {
        red = chroma;
        blue = second;
    }
    const auto channel = [&](double part) { return std::nearbyint((part + base) * 255); };
    return Packed(channel(red), channel(green), channel(blue));
}

/// All numbers whose colours are given one by one; worked out by hand.
inline const std::map<int, std::int32_t>& Departures() {
    static const std::map<int, std::int32_t> table = {
        {14, Packed(0, 128, 0)},     {46, Packed(76, 65, 0)},   {69, Packed(33, 38, 191)},
        {79, Packed(29, 38, 191)},   {89, Packed(24, 38, 191)}, {99, Packed(19, 38, 191)},
        {101, Packed(128, 255, 64)}, {106, Packed(0, 76, 191)}, {108, Packed(0, 38, 96)},
        {111, Packed(128, 255, 160)}};
    return table;
}

/// The colour that a number must have; worked out apart from the library.
inline std::int32_t ExpectedColour(int number, bool editor) {
    const std::int32_t white = Packed(255, 255, 255);
    switch (number) {
    case 1: return FromHsv(0, 1, 1);
    case 2: return FromHsv(60, 1, 1);
    case 3: return FromHsv(120, 1, 1);
    case 4: return FromHsv(180, 1, 1);
    case 5: return FromHsv(240, 1, 1);
    case 6: return FromHsv(300, 1, 1);
    case 7:
    case 8:
    case 9:
    case 255: return editor ? white : 0;
    case 250: return editor ? 0 : Packed(88, 88, 88);
    case 251: return Packed(118, 118, 118);
    case 252: return Packed(152, 152, 152);
    case 253: return Packed(187, 187, 187);
    case 254: return Packed(192, 192, 192);
    default: break;
    }
    if (number < 10 || number > 255)
        return 0;
    if (Departures().contains(number))
        return Departures().at(number);
    static constexpr double kValues[] = {1.0, 0.65, 0.5, 0.3, 0.15};
    const int row = (number - 10) / 10;
    const int column = number % 10;
    return FromHsv(15.0 * row, column % 2 == 0 ? 1.0 : 0.5, kValues[column / 2]);
}

} // namespace colours

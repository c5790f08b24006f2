#pragma once

#include "golden/script.h"

#include <optional>

namespace golden {

struct Font {
    std::string name = "Arial";
    double size = 6;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
};

struct Spot {
    std::int32_t x = 0;
    std::int32_t y = 0;
};

/// An element as a line of a golden case:
///   poly 0,0 300,0 closed width 25 color 1 fill 3
///   circle 150,100 radius 50          arc 0,0 50,0 0,50 radius 50          undefined          type 17 0,0
///   text 0,0 says "Bett" angle 90 align 24 mode 2 font "Times" 12 bius           text 0,0 says "x" nofont
/// What is left out has its start value; a text has Arial 6.
struct Element {
    std::int32_t type = 0;
    std::vector<Spot> points;
    bool closed = false;
    std::int32_t lineWidth = 0;
    std::int32_t fillColor = -1;
    std::int32_t mainColor = 0;
    std::int32_t radius = 0;
    std::string text; ///< UTF-8
    std::optional<Font> font;
    double angle = 0; ///< radians
    std::int32_t align = 0;
    std::int32_t mode = 1;
};

Element ElementOf(const std::string& line);
std::string TextOf(const Element& element);

/// "90": an angle in radians, told in degrees with up to nine decimals.
std::string DegreesText(double angle);

} // namespace golden

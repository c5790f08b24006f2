#include "golden/element_text.h"

#include <cmath>
#include <cstdio>
#include <iterator>
#include <stdexcept>

namespace golden {

namespace {

constexpr const char* kTypes[] = {"undefined", "poly", "circle", "arc", "text"};
constexpr std::int32_t kText = 4;

std::int32_t TypeOf(const std::string& word) {
    for (std::size_t i = 0; i < std::size(kTypes); ++i)
        if (word == kTypes[i])
            return static_cast<std::int32_t>(i);
    throw std::runtime_error("no such element: " + word);
}

std::string Flags(const Font& font) {
    return std::string(font.bold ? "b" : "") + (font.italic ? "i" : "") + (font.underline ? "u" : "") +
           (font.strikethrough ? "s" : "");
}

std::string Number(double value) {
    char text[40];
    std::snprintf(text, sizeof text, "%.12g", value + 0.0);
    return text;
}

} // namespace

Element ElementOf(const std::string& line) {
    const Lines words = WordsOf(line);
    Element element;
    std::size_t i = 1;
    element.type = words[0] == "type" ? Long(words.at(i++)) : TypeOf(words[0]);
    if (element.type == kText)
        element.font = Font();
    for (; i < words.size(); ++i) {
        const std::string& word = words[i];
        const auto comma = word.find(',');
        if (word == "closed")
            element.closed = true;
        else if (word == "nofont")
            element.font.reset();
        else if (word == "width")
            element.lineWidth = Long(words.at(++i));
        else if (word == "color")
            element.mainColor = Long(words.at(++i));
        else if (word == "fill")
            element.fillColor = Long(words.at(++i));
        else if (word == "radius")
            element.radius = Long(words.at(++i));
        else if (word == "align")
            element.align = Long(words.at(++i));
        else if (word == "mode")
            element.mode = Long(words.at(++i));
        else if (word == "angle")
            element.angle = Radians(words.at(++i));
        else if (word == "says")
            element.text = Unescaped(words.at(++i));
        else if (word == "font") {
            const std::string flags = i + 3 < words.size() ? words[i + 3] : "";
            const auto has = [&](char flag) { return flags.find(flag) != std::string::npos; };
            element.font =
                Font{words.at(i + 1), std::stod(words.at(i + 2)), has('b'), has('i'), has('u'), has('s')};
            i = words.size();
        } else if (comma != std::string::npos)
            element.points.push_back({Long(word.substr(0, comma)), Long(word.substr(comma + 1))});
        else
            throw std::runtime_error("not understood: " + word + " in " + line);
    }
    return element;
}

std::string TextOf(const Element& element) {
    const bool known = element.type >= 0 && element.type <= kText;
    std::string text = known ? kTypes[element.type] : "type " + std::to_string(element.type);
    for (const Spot& point : element.points)
        text += " " + std::to_string(point.x) + "," + std::to_string(point.y);
    const auto put = [&](const char* name, std::int32_t value, std::int32_t start) {
        if (value != start)
            text += std::string(" ") + name + " " + std::to_string(value);
    };
    if (element.closed)
        text += " closed";
    put("width", element.lineWidth, 0);
    put("color", element.mainColor, 0);
    put("fill", element.fillColor, -1);
    put("radius", element.radius, 0);
    put("align", element.align, 0);
    put("mode", element.mode, 1);
    if (element.angle != 0)
        text += " angle " + DegreesText(element.angle);
    if (!element.text.empty())
        text += " says \"" + Escaped(element.text) + "\"";
    if (!element.font)
        return element.type == kText ? text + " nofont" : text;
    const std::string flags = Flags(*element.font);
    if (element.font->name != "Arial" || element.font->size != 6 || !flags.empty())
        text += " font \"" + element.font->name + "\" " + Number(element.font->size) +
                (flags.empty() ? "" : " " + flags);
    return text;
}

std::string DegreesText(double angle) {
    return Number(std::round(angle / Radians("180") * 180 * 1e9) / 1e9);
}

} // namespace golden

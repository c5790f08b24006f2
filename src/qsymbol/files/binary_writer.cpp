#include "qsymbol/files/binary_writer.h"

#include "qsymbol/files/binary_output.h"

namespace qsymbol {

namespace {

/// The index of the last of so many items: -1 for none.
std::int32_t LastIndex(std::size_t count) {
    return base::Narrow<std::int32_t>(count) - 1;
}

void PutFont(BinaryOutput& output, const FontRecord& font, const base::CodePage& codePage) {
    output.Bool(font.bold);
    output.Bool(font.italic);
    output.String(codePage.Encode(font.name));
    output.I32(base::RoundToLong(font.size));
    output.Bool(font.strikethrough);
    output.Bool(font.underline);
}

void PutElement(BinaryOutput& output, const ElementRecord& element, const base::CodePage& codePage) {
    output.I32(static_cast<std::int32_t>(element.type));
    output.Bool(element.lineClosed);
    output.I32(element.lineWidth);
    output.I32(element.textAlign);
    output.I32(element.textBkMode);
    output.F64(element.textAngle);
    output.I32(element.radius);
    output.I32(element.mainColor);
    output.I32(element.fillColor);
    output.String(codePage.Encode(element.text));
    output.I32(LastIndex(element.points.size()));
    for (const qmath::Point& point : element.points) {
        output.I32(point.x);
        output.I32(point.y);
    }
    output.Bool(element.font.has_value());
    if (element.font)
        PutFont(output, *element.font, codePage);
}

} // namespace

std::string ComposeBinary(const Symbol& symbol, const FormatRules& rules) {
    BinaryOutput output;
    output.String(binary_format::kTag);
    output.I32(symbol.width);
    output.I32(symbol.height);
    output.I32(symbol.refX);
    output.I32(symbol.refY);
    output.I32(LastIndex(symbol.elements.size()));
    for (const ElementRecord& element : symbol.elements)
        PutElement(output, element, rules.codePage);
    return output.Release();
}

} // namespace qsymbol

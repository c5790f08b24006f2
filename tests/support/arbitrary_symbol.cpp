#include "support/arbitrary_symbol.h"

#include <bit>
#include <cstdint>

namespace support {

namespace {

/// Takes values from bytes; behind their end everything is 0.
class Source {
public:
    explicit Source(std::string_view bytes) : rest_(bytes) {}

    unsigned Byte() {
        if (rest_.empty())
            return 0;
        const unsigned byte = static_cast<unsigned char>(rest_[0]);
        rest_.remove_prefix(1);
        return byte;
    }
    std::uint64_t Word(int size) {
        std::uint64_t word = 0;
        for (int i = 0; i < size; ++i)
            word |= std::uint64_t{Byte()} << (8 * i);
        return word;
    }
    bool Flag() { return Byte() % 2 != 0; }
    /// Small as a rule, sometimes any.
    std::int32_t Long() {
        const unsigned first = Byte();
        return first < 200 ? static_cast<std::int32_t>(first) - 100 : static_cast<std::int32_t>(Word(4));
    }
    double Real() {
        const unsigned first = Byte();
        return first < 200 ? first / 16.0 : std::bit_cast<double>(Word(8));
    }
    std::u16string Text() {
        std::u16string text;
        for (unsigned left = Byte() % 32; left > 0; --left) {
            const unsigned unit = Byte();
            text += static_cast<char16_t>(unit < 0xF0 ? unit : Word(2));
        }
        // Once in a while more than a file can keep.
        return text.size() == 31 && text[0] == u'L' ? std::u16string(70000, text[1]) : text;
    }

private:
    std::string_view rest_;
};

qsymbol::ElementRecord Element(Source& source) {
    qsymbol::ElementRecord element;
    const unsigned kind = source.Byte();
    element.type = static_cast<qsymbol::ElementType>(kind < 250 ? static_cast<int>(kind % 5) : source.Long());
    element.lineClosed = source.Flag();
    element.lineWidth = source.Long();
    element.textAlign = source.Long();
    element.textBkMode = source.Long();
    element.textAngle = source.Real();
    element.radius = source.Long();
    element.mainColor = source.Long();
    element.fillColor = source.Long();
    element.text = source.Text();
    for (unsigned left = source.Byte() % 6; left > 0; --left) {
        const std::int32_t x = source.Long();
        element.points.push_back({x, source.Long()});
    }
    if (source.Byte() % 8 != 0) {
        qsymbol::FontRecord& font = element.font.emplace();
        font.name = source.Text();
        font.size = source.Real();
        font.bold = source.Flag();
        font.italic = source.Flag();
        font.underline = source.Flag();
        font.strikethrough = source.Flag();
    }
    return element;
}

} // namespace

qsymbol::Symbol ArbitrarySymbol(std::string_view bytes) {
    Source source(bytes);
    qsymbol::Symbol symbol;
    symbol.width = source.Long();
    symbol.height = source.Long();
    symbol.refX = source.Long();
    symbol.refY = source.Long();
    for (unsigned left = source.Byte() % 17; left > 0; --left)
        symbol.elements.push_back(Element(source));
    return symbol;
}

} // namespace support

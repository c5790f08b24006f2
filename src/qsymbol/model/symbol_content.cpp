#include "qsymbol/model/symbol_content.h"

#include <cstdint>
#include <cstring>
#include <type_traits>

namespace qsymbol {

namespace {

/// Another number for every change of what follows.
constexpr std::uint32_t kForm = 1;

class Packer {
public:
    static constexpr bool kReads = false;

    template <class T>
    bool Value(T& value) {
        static_assert(std::is_arithmetic_v<T> || std::is_enum_v<T>);
        bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
        return true;
    }
    bool Flag(bool flag) {
        char byte = flag ? 1 : 0;
        return Value(byte);
    }
    bool Text(std::u16string& text) {
        std::uint64_t size = text.size();
        Value(size);
        bytes.append(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(char16_t));
        return true;
    }

    std::string bytes;
};

class Unpacker {
public:
    static constexpr bool kReads = true;

    explicit Unpacker(std::string_view bytes) : left_(bytes) {}

    template <class T>
    bool Value(T& value) {
        return Take(&value, sizeof value);
    }
    bool Flag(bool& flag) {
        char byte = 0;
        const bool isThere = Value(byte);
        flag = byte != 0;
        return isThere;
    }
    bool Text(std::u16string& text) {
        std::uint64_t size = 0;
        if (!Value(size) || size > left_.size() / sizeof(char16_t))
            return false;
        text.resize(static_cast<std::size_t>(size));
        return Take(text.data(), text.size() * sizeof(char16_t));
    }
    std::size_t Left() const { return left_.size(); }

private:
    bool Take(void* place, std::size_t size) {
        if (left_.size() < size)
            return false;
        std::memcpy(place, left_.data(), size);
        left_.remove_prefix(size);
        return true;
    }

    std::string_view left_;
};

/// The number of items; a list that is read gets as many.
template <class Stream, class List>
bool Count(Stream& stream, List& list) {
    std::uint64_t count = list.size();
    if (!stream.Value(count))
        return false;
    if constexpr (Stream::kReads) {
        if (count > stream.Left()) // every item takes a byte at least
            return false;
        list.resize(static_cast<std::size_t>(count));
    }
    return true;
}

template <class Stream>
bool Pass(Stream& stream, FontRecord& font) {
    return stream.Text(font.name) && stream.Value(font.size) && stream.Flag(font.bold) &&
           stream.Flag(font.italic) && stream.Flag(font.strikethrough) && stream.Flag(font.underline);
}

template <class Stream>
bool Pass(Stream& stream, ElementRecord& element) {
    bool hasFont = element.font.has_value();
    if (!(stream.Value(element.type) && stream.Flag(element.lineClosed) && stream.Value(element.lineWidth) &&
          stream.Value(element.textAlign) && stream.Value(element.textBkMode) &&
          stream.Value(element.textAngle) && stream.Value(element.radius) &&
          stream.Value(element.mainColor) && stream.Value(element.fillColor) && stream.Text(element.text) &&
          stream.Flag(hasFont) && Count(stream, element.points)))
        return false;
    for (qmath::Point& point : element.points)
        if (!(stream.Value(point.x) && stream.Value(point.y)))
            return false;
    return !hasFont || Pass(stream, element.font ? *element.font : element.font.emplace());
}

/// One list of all fields for both ways.
template <class Stream>
bool Pass(Stream& stream, Symbol& symbol) {
    std::uint32_t form = kForm;
    if (!(stream.Value(form) && form == kForm && stream.Value(symbol.refX) && stream.Value(symbol.refY) &&
          stream.Value(symbol.width) && stream.Value(symbol.height) && stream.Text(symbol.filePath) &&
          stream.Value(symbol.etagenbreite) && Count(stream, symbol.elements)))
        return false;
    for (ElementRecord& element : symbol.elements)
        if (!Pass(stream, element))
            return false;
    return true;
}

} // namespace

std::string PackSymbol(const Symbol& symbol) {
    Packer packer;
    Symbol copy = symbol; // the list of fields takes what it could also fill
    Pass(packer, copy);
    return std::move(packer.bytes);
}

std::optional<Symbol> UnpackSymbol(std::string_view bytes) {
    Unpacker unpacker(bytes);
    Symbol symbol;
    if (!Pass(unpacker, symbol) || unpacker.Left() != 0)
        return std::nullopt;
    return symbol;
}

} // namespace qsymbol

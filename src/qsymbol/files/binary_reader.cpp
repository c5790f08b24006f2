#include "qsymbol/files/binary_reader.h"

#include "qsymbol/files/binary_format.h"
#include "qsymbol/files/binary_input.h"
#include "qsymbol/files/library_error.h"
#include "qsymbol/files/memory_budget.h"

#include <algorithm>

namespace qsymbol {

namespace {

/// Turns the stored last index into a count; -1 stands for none and gives 0. Error 9 below that.
std::uint32_t CountOf(std::int32_t lastIndex) {
    if (lastIndex < -1)
        base::Raise(base::RunTimeError::SubscriptOutOfRange);
    return static_cast<std::uint32_t>(lastIndex) + 1U;
}

bool TakeTag(BinaryInput& input) {
    const std::size_t length = input.U16();
    return length == binary_format::kTag.size() && input.Take(length) == binary_format::kTag;
}

class BinaryReader {
public:
    BinaryReader(std::string_view bytes, const FormatRules& rules)
        : input_(bytes), budget_(bytes.size()), rules_(rules) {}

    void Read(Symbol& symbol) {
        if (!TakeTag(input_))
            Raise(LibraryError::NotASymbolFile, u"CSymbol.ReadFromBinFile", rules_.strings);
        symbol.width = input_.I32();
        symbol.height = input_.I32();
        symbol.refX = input_.I32();
        symbol.refY = input_.I32();
        const std::uint32_t count = CountOf(input_.I32());
        // A table cannot be sized to no elements: that is this format's way, not an oversight.
        if (count == 0)
            base::Raise(base::RunTimeError::SubscriptOutOfRange);
        budget_.Charge(count, sizeof(ElementRecord));
        symbol.elements = ElementList(count);
        for (ElementRecord& element : symbol.elements)
            ReadElement(element);
    }

private:
    void ReadElement(ElementRecord& element) {
        element.type = static_cast<ElementType>(input_.I32());
        element.lineClosed = input_.Bool();
        element.lineWidth = input_.I32();
        element.textAlign = input_.I32();
        element.textBkMode = input_.I32();
        input_.F64(element.textAngle);
        element.radius = input_.I32();
        element.mainColor = input_.I32();
        element.fillColor = input_.I32();
        ReadText(element.text);
        ReadPoints(element.points);
        ReadFont(element.font.emplace());
    }

    void ReadPoints(std::vector<qmath::Point>& points) {
        const std::uint32_t count = CountOf(input_.I32());
        if (count == 0)
            return;
        budget_.Charge(count, sizeof(qmath::Point));
        points.resize(count);
        // Also of a list that is cut short everything that is there is kept.
        const std::size_t whole = std::min<std::size_t>(count, input_.Left() / binary_format::kPointSize);
        const char* at = input_.Take(whole * binary_format::kPointSize).data();
        for (std::size_t i = 0; i < whole; ++i, at += binary_format::kPointSize)
            points[i] = {BinaryInput::LittleI32(at), BinaryInput::LittleI32(at + 4)};
        if (whole < count)
            base::Raise(base::RunTimeError::InputPastEnd);
    }

    void ReadFont(FontRecord& font) {
        if (!input_.Bool())
            return;
        font.bold = input_.Bool();
        font.italic = input_.Bool();
        ReadText(font.name);
        font.size = input_.I32();
        font.strikethrough = input_.Bool();
        font.underline = input_.Bool();
    }

    void ReadText(std::u16string& text) {
        const std::string_view bytes = input_.String();
        if (bytes.empty())
            text.clear();
        else
            text = rules_.codePage.Decode(bytes);
    }

    BinaryInput input_;
    MemoryBudget budget_;
    const FormatRules& rules_;
};

} // namespace

std::u16string ParseBinary(Symbol& symbol, std::string_view bytes, const FormatRules& rules) {
    BinaryReader(bytes, rules).Read(symbol);
    return {};
}

std::uint64_t BinaryReach(std::string_view beginning) {
    BinaryInput input(beginning);
    try {
        if (!TakeTag(input))
            return beginning.size();
        input.Take(binary_format::kSizesSize);
        for (std::uint32_t left = CountOf(input.I32()); left > 0; --left) {
            input.Take(binary_format::kFieldsSize);
            input.String();
            for (std::uint32_t points = CountOf(input.I32()); points > 0; --points)
                input.Take(binary_format::kPointSize);
            if (input.Bool()) {
                input.Take(binary_format::kFontStart);
                input.String();
                input.Take(binary_format::kFontEnd);
            }
        }
    } catch (const base::Error& error) {
        const bool tooShort = error.Number() == static_cast<std::int32_t>(base::RunTimeError::InputPastEnd);
        return beginning.size() + (tooShort ? 1 : 0);
    }
    return beginning.size() - input.Left();
}

} // namespace qsymbol

#include "qsymbol/files/binary_reader.h"

#include "qsymbol/files/binary_format.h"
#include "qsymbol/files/binary_input.h"
#include "qsymbol/files/binary_survey.h"
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

/// Makes records of a file's elements.
class ElementReader {
public:
    ElementReader(BinaryInput& input, MemoryBudget& budget, const base::CodePage& codePage)
        : input_(input), budget_(budget), codePage_(codePage) {}

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

private:
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
            text = codePage_.Decode(bytes);
    }

    BinaryInput& input_;
    MemoryBudget& budget_;
    const base::CodePage& codePage_;
};

/// PackedElements::Unpack of this format. A whole file is so much longer than its records that no budget is missing.
std::vector<ElementRecord> Unpack(std::string_view bytes, std::size_t count, const base::CodePage& codePage) {
    BinaryInput input(bytes);
    MemoryBudget budget(bytes.size());
    ElementReader reader(input, budget, codePage);
    std::vector<ElementRecord> elements(count);
    for (ElementRecord& element : elements)
        reader.ReadElement(element);
    return elements;
}

/// Makes records at once, of a file that is not whole: up to where it fails.
void ReadElements(ElementList& elements, std::uint32_t count, BinaryInput& input, MemoryBudget& budget,
                  const base::CodePage& codePage) {
    budget.Charge(count, sizeof(ElementRecord));
    elements = ElementList(count);
    ElementReader reader(input, budget, codePage);
    for (ElementRecord& element : elements)
        reader.ReadElement(element);
}

} // namespace

std::u16string ParseBinary(Symbol& symbol, std::string_view bytes, const FormatRules& rules) {
    BinaryInput input(bytes);
    if (!TakeTag(input))
        Raise(LibraryError::NotASymbolFile, u"CSymbol.ReadFromBinFile", rules.strings);
    symbol.width = input.I32();
    symbol.height = input.I32();
    symbol.refX = input.I32();
    symbol.refY = input.I32();
    const std::uint32_t count = CountOf(input.I32());
    // A table cannot be sized to no elements: that is this format's way, not an oversight.
    if (count == 0)
        base::Raise(base::RunTimeError::SubscriptOutOfRange);
    const BinarySurvey survey = SurveyBinary(bytes);
    if (survey.result == BinarySurvey::Result::Whole) {
        const std::string_view elements =
            bytes.substr(survey.elementsBegin, survey.elementsEnd - survey.elementsBegin);
        symbol.elements = PackedElements(elements, count, rules.codePage, Unpack);
    } else {
        MemoryBudget budget(bytes.size());
        ReadElements(symbol.elements, count, input, budget, rules.codePage);
    }
    return {};
}

std::uint64_t BinaryReach(std::string_view beginning) {
    const BinarySurvey survey = SurveyBinary(beginning);
    switch (survey.result) {
    case BinarySurvey::Result::Whole: return survey.elementsEnd;
    case BinarySurvey::Result::CutOff: return beginning.size() + 1;
    case BinarySurvey::Result::Broken: break;
    }
    return beginning.size();
}

} // namespace qsymbol

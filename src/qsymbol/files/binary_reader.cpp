#include "qsymbol/files/binary_reader.h"

#include "qsymbol/files/binary_element_reader.h"
#include "qsymbol/files/binary_format.h"
#include "qsymbol/files/binary_input.h"
#include "qsymbol/files/binary_survey.h"
#include "qsymbol/files/library_error.h"
#include "qsymbol/files/memory_budget.h"

namespace qsymbol {

namespace {

bool TakeTag(BinaryInput& input) {
    const std::size_t length = input.U16();
    return length == binary_format::kTag.size() && input.Take(length) == binary_format::kTag;
}

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
    const std::uint32_t count = LastIndexToCount(input.I32());
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

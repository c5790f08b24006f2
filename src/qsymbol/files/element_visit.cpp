#include "qsymbol/files/element_visit.h"

#include "qsymbol/files/binary_element_reader.h"
#include "qsymbol/files/binary_reader.h"
#include "qsymbol/files/binary_survey.h"
#include "qsymbol/files/symbol_format.h"

namespace qsymbol {

namespace {

/// The elements' bytes of a whole binary file; empty for any other.
std::string_view BinaryElements(const Symbol& symbol, std::string_view bytes) {
    const SymbolFormat* const format = FormatOf(symbol.filePath);
    if (format == nullptr || format->parse != ParseBinary)
        return {};
    const BinarySurvey survey = SurveyBinary(bytes);
    return survey.result == BinarySurvey::Result::Whole
               ? bytes.substr(survey.elementsBegin, survey.elementsEnd - survey.elementsBegin)
               : std::string_view();
}

} // namespace

void VisitElements(const Symbol& symbol, std::string_view bytes, const FormatRules& rules,
                   const ElementWork& work) {
    const std::string_view packed = BinaryElements(symbol, bytes);
    if (packed.empty()) {
        for (const ElementRecord& element : symbol.elements)
            work(element);
        return;
    }
    BinaryInput input(packed);
    MemoryBudget budget(packed.size());
    ElementReader reader(input, budget, rules.codePage);
    ElementRecord element;
    for (std::size_t i = 0; i < symbol.elements.size(); ++i) {
        reader.ReadElement(element);
        work(element);
    }
}

} // namespace qsymbol

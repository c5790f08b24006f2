#pragma once

#include "base/code_page.h"
#include "base/number_reader.h"
#include "qsymbol/files/memory_budget.h"
#include "qsymbol/model/element_record.h"

#include <cstdint>
#include <string_view>

namespace qsymbol {

/// Puts the keyed fields of a text file's element lines into a record. Keys unknown to the record type are
/// ignored.
///
/// Errors 13 and 6 for numbers, 9 for a point count that makes no list, 7 past the memory bound.
class TextElementFields {
public:
    TextElementFields(const base::NumberReader& numbers, const base::CodePage& codePage, MemoryBudget& budget)
        : numbers_(numbers), codePage_(codePage), budget_(budget) {}

    void SetPolyField(ElementRecord& element, std::string_view field) const;
    void SetCircleField(ElementRecord& element, std::string_view field) const;
    void SetArcField(ElementRecord& element, std::string_view field) const;
    /// The element has a font.
    void SetTextField(ElementRecord& element, std::string_view field) const;

    /// Gives the element so many points at (0, 0) instead of those it has.
    void SizePoints(ElementRecord& element, std::int32_t count) const;

private:
    const base::NumberReader& numbers_;
    const base::CodePage& codePage_;
    MemoryBudget& budget_;
};

} // namespace qsymbol

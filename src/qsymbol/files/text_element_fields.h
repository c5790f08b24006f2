#pragma once

#include "base/code_page.h"
#include "base/number_reader.h"
#include "qsymbol/files/memory_budget.h"
#include "qsymbol/model/element_record.h"

#include <cstddef>
#include <string_view>

namespace qsymbol {

/// Puts the keyed fields of a text file's element lines into a record. Keys unknown to the record type
/// are ignored.
///
/// Errors 13 and 6 for numbers, 9 for a point count that makes no list, 7 past the memory bound.
class TextElementFields {
public:
    TextElementFields(const base::NumberReader& numbers, const base::CodePage& codePage, MemoryBudget& budget)
        : numbers_(numbers), codePage_(codePage), budget_(budget) {}

    /// A point count is kept until SizePoly: a list sized at each count would let one line take endless time.
    void SetPolyField(ElementRecord& element, std::string_view field);
    void SetCircleField(ElementRecord& element, std::string_view field);
    void SetArcField(ElementRecord& element, std::string_view field);
    /// The element has a font.
    void SetTextField(ElementRecord& element, std::string_view field);

    /// Gives a new polyline the points that its line counted last, if it did.
    void SizePoly(ElementRecord& element);
    /// Gives a new element so many points at (0, 0).
    void SizePoints(ElementRecord& element, std::size_t count);

private:
    const base::NumberReader& numbers_;
    const base::CodePage& codePage_;
    MemoryBudget& budget_;
    std::size_t polyPoints_ = 0; ///< counted on the line that is being read
};

} // namespace qsymbol

#pragma once

#include "base/code_page.h"
#include "qsymbol/files/binary_format.h"
#include "qsymbol/files/binary_input.h"
#include "qsymbol/files/memory_budget.h"
#include "qsymbol/model/element_record.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qsymbol {

/// Turns the stored last index into a count; -1 stands for none and gives 0. Error 9 below that.
inline std::uint32_t LastIndexToCount(std::int32_t lastIndex) {
    if (lastIndex < -1)
        base::Raise(base::RunTimeError::SubscriptOutOfRange);
    return static_cast<std::uint32_t>(lastIndex) + 1U;
}

/// Makes records of a binary file's elements; a record that is used again keeps the room of its lists.
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
        const std::uint32_t count = LastIndexToCount(input_.I32());
        if (count == 0)
            return points.clear();
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

} // namespace qsymbol

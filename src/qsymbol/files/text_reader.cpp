#include "qsymbol/files/text_reader.h"

#include "base/error.h"
#include "base/number_reader.h"
#include "qsymbol/files/field_cursor.h"
#include "qsymbol/files/library_error.h"
#include "qsymbol/files/line_cursor.h"
#include "qsymbol/files/memory_budget.h"
#include "qsymbol/files/text_element_fields.h"
#include "qsymbol/files/text_format.h"

#include <charconv>

namespace qsymbol {

namespace {

class TextReader {
public:
    TextReader(Symbol& symbol, std::size_t fileSize, const FormatRules& rules)
        : symbol_(symbol), rules_(rules), numbers_(rules.regional), budget_(fileSize),
          fields_(numbers_, rules.codePage, budget_) {}

    void Read(std::string_view bytes) {
        LineCursor lines(bytes);
        for (std::string_view line; lines.Next(line);) {
            if (line.empty())
                continue;
            FieldCursor fields(line, text_format::kSeparator);
            std::string_view type;
            fields.Next(type);
            if (headerExpected_)
                ReadHeader(line, fields);
            else if (type == text_format::kPoint)
                ReadPoint(fields);
            else if (type == text_format::kString)
                ReadString(fields);
            else
                OpenElement(type, fields);
        }
    }

private:
    [[noreturn]] void Refuse(LibraryError number) const {
        Raise(number, u"CSymbol.ReadFromTxtFile", rules_.strings);
    }

    void ReadHeader(std::string_view line, FieldCursor& fields) {
        headerExpected_ = false;
        if (!text_format::IsHeader(line))
            Refuse(LibraryError::NotASymbolFile);
        std::size_t known = 0;
        for (std::string_view field; fields.Next(field);)
            known += SetHeaderField(field) ? 1 : 0;
        if (known < text_format::kHeaderKeys)
            Refuse(LibraryError::FaultyHeader);
    }

    /// False for a key that the header does not have.
    bool SetHeaderField(std::string_view field) {
        const std::string_view value = text_format::Value(field);
        switch (Key(field)) {
        case Key("CNT"): SizeElements(numbers_.Long(value)); return true;
        case Key("WID"): symbol_.width = numbers_.Hundredths(value); return true;
        case Key("HEI"): symbol_.height = numbers_.Hundredths(value); return true;
        case Key("RPX"): symbol_.refX = numbers_.Hundredths(value); return true;
        case Key("RPY"): symbol_.refY = numbers_.Hundredths(value); return true;
        default: return false;
        }
    }

    void SizeElements(std::int32_t count) {
        if (count <= 0)
            base::Raise(base::RunTimeError::SubscriptOutOfRange);
        if (!symbol_.elements.empty()) {
            budget_.Release(symbol_.elements.size(), sizeof(ElementRecord));
            symbol_.elements = ElementList();
        }
        const auto size = static_cast<std::size_t>(count);
        budget_.Charge(size, sizeof(ElementRecord));
        symbol_.elements = ElementList(size);
    }

    void ReadPoint(FieldCursor& fields) {
        std::vector<qmath::Point>& points = CurrentElement().points;
        if (nextPoint_ >= points.size())
            base::Raise(base::RunTimeError::SubscriptOutOfRange);
        qmath::Point& point = points[nextPoint_++];
        std::string_view field;
        fields.Next(field);
        point.x = numbers_.HundredthsOrZero(field);
        fields.Next(field);
        point.y = numbers_.HundredthsOrZero(field);
        if (points.size() == 2 && nextPoint_ == 2 && element_->lineClosed)
            WidenToRectangle(points);
    }

    /// Two opposite corners of a closed polyline stand for the axis-parallel rectangle between them.
    void WidenToRectangle(std::vector<qmath::Point>& points) {
        budget_.Charge(4, sizeof(qmath::Point));
        const qmath::Point first = points[0];
        const qmath::Point second = points[1];
        points = {first, {first.x, second.y}, second, {second.x, first.y}};
        budget_.Release(2, sizeof(qmath::Point));
    }

    void ReadString(FieldCursor& fields) {
        ElementRecord& element = CurrentElement();
        std::string_view text;
        fields.Next(text);
        if (text.starts_with('"'))
            text.remove_prefix(1);
        if (text.ends_with('"'))
            text.remove_suffix(1);
        element.text += rules_.codePage.Decode(text);
    }

    void OpenElement(std::string_view type, FieldCursor& fields) {
        if (nextElement_ >= symbol_.elements.size())
            base::Raise(base::RunTimeError::SubscriptOutOfRange);
        element_ = &symbol_.elements[nextElement_++];
        nextPoint_ = 0;
        if (type == text_format::kPoly) {
            element_->type = ElementType::Poly;
            SetFields(fields, &TextElementFields::SetPolyField);
            fields_.SizePoly(*element_);
        } else if (type == text_format::kCircle) {
            element_->type = ElementType::Circle;
            fields_.SizePoints(*element_, 1);
            SetFields(fields, &TextElementFields::SetCircleField);
        } else if (type == text_format::kArc) {
            element_->type = ElementType::Arc;
            fields_.SizePoints(*element_, text_format::kArcPoints);
            SetFields(fields, &TextElementFields::SetArcField);
            nextPoint_ = 1; // the centre came with the fields
        } else if (type == text_format::kText) {
            element_->type = ElementType::Text;
            fields_.SizePoints(*element_, 1);
            element_->font.emplace();
            SetFields(fields, &TextElementFields::SetTextField);
        }
        // Any other type leaves the record as it is: an undefined element.
    }

    void SetFields(FieldCursor& fields, void (TextElementFields::*set)(ElementRecord&, std::string_view)) {
        for (std::string_view field; fields.Next(field);)
            (fields_.*set)(*element_, field);
    }

    ElementRecord& CurrentElement() {
        if (element_ == nullptr)
            base::Raise(base::RunTimeError::SubscriptOutOfRange);
        return *element_;
    }

    Symbol& symbol_;
    const FormatRules& rules_;
    base::NumberReader numbers_;
    MemoryBudget budget_;
    TextElementFields fields_;
    bool headerExpected_ = true;
    ElementRecord* element_ = nullptr; ///< the one that the last element line opened
    std::size_t nextElement_ = 0;
    std::size_t nextPoint_ = 0;
};

/// The header's count of elements where it is written plainly, else more than any file has.
std::size_t CountIn(std::string_view header) {
    constexpr std::size_t kPlainDigits = 9;
    std::size_t count = SIZE_MAX;
    FieldCursor fields(header, text_format::kSeparator);
    for (std::string_view field; fields.Next(field);) {
        if (Key(field) != Key("CNT"))
            continue;
        const std::string_view value = text_format::Value(field);
        const char* const end = value.data() + value.size();
        if (value.size() > kPlainDigits || std::from_chars(value.data(), end, count).ptr != end)
            return SIZE_MAX;
    }
    return count;
}

/// True when a line, of whatever may follow it, opens an element: it is not empty and no point or string.
bool OpensElement(std::string_view line, bool ends) {
    if (line.ends_with('\r') && !ends)
        line.remove_suffix(1); // of the line's end
    const std::size_t separator = line.find(text_format::kSeparator);
    const std::string_view type = line.substr(0, separator);
    for (const std::string_view other : {text_format::kPoint, text_format::kString}) {
        const bool mayBecome = !ends && separator == std::string_view::npos && other.starts_with(type);
        if (type == other || mayBecome)
            return false;
    }
    return !line.empty();
}

/// True when these lines open more elements than are counted, which is where reading ends.
bool OpensMoreThan(std::size_t count, LineCursor lines) {
    for (std::string_view line; lines.Next(line);)
        if (OpensElement(line, !lines.AtEnd()) && count-- == 0)
            return true;
    return false;
}

} // namespace

std::u16string ParseText(Symbol& symbol, std::string_view bytes, const FormatRules& rules) {
    TextReader(symbol, bytes.size(), rules).Read(bytes);
    return {};
}

std::uint64_t TextReach(std::string_view beginning) {
    LineCursor lines(beginning);
    std::string_view line;
    while (lines.Next(line) && line.empty()) {
    }
    const bool ends = line.data() + line.size() != beginning.data() + beginning.size();
    // Where the beginning ends in the line, the line may still become a header.
    const std::string_view header(text_format::kHeader);
    const bool refused =
        ends ? !text_format::IsHeader(line) : !line.starts_with(header) && !header.starts_with(line);
    if (refused && !line.empty())
        return beginning.size();
    return ends && OpensMoreThan(CountIn(line), lines) ? beginning.size() : UINT64_MAX;
}

} // namespace qsymbol

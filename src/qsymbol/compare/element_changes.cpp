#include "qsymbol/compare/element_changes.h"

#include "qmath/math_util.h"

#include <algorithm>
#include <cmath>

namespace qsymbol {

namespace {

class Comparison {
public:
    explicit Comparison(Precision precision) : precision_(precision) {}

    template <class Value>
    void Field(std::string_view field, const Value& before, const Value& after) {
        if (before != after)
            changes.push_back({field, ValueOf(before), ValueOf(after)});
    }

    /// Two decimals or none are what text files keep of an angle in degrees and of a font's size.
    void Decimal(std::string_view field, double before, double after, double steps) {
        const bool same = precision_ == Precision::Text
                              ? std::round(before * steps) == std::round(after * steps)
                              : before == after || (std::isnan(before) && std::isnan(after));
        if (!same)
            changes.push_back({field, ValueOf(before), ValueOf(after)});
    }

    /// Text files keep one point of a circle and of a text, and these are drawn from no other.
    void Points(const std::vector<qmath::Point>& before, const std::vector<qmath::Point>& after,
                bool isDrawnFromOne) {
        std::size_t count = std::max(before.size(), after.size());
        if (isDrawnFromOne && precision_ == Precision::Text)
            count = std::min<std::size_t>(count, 1);
        for (std::size_t i = 0; i < count; ++i) {
            const FieldValue from = i < before.size() ? ValueOf(before[i]) : FieldValue();
            const FieldValue to = i < after.size() ? ValueOf(after[i]) : FieldValue();
            if (!(from == to))
                changes.push_back({"points", from, to, i + 1});
        }
    }

    void Font(const FontRecord& before, const FontRecord& after) {
        Field("fontName", before.name, after.name);
        Decimal("fontSize", before.size, after.size, 1);
        Field("bold", before.bold, after.bold);
        Field("italic", before.italic, after.italic);
        Field("underline", before.underline, after.underline);
        Field("strikethrough", before.strikethrough, after.strikethrough);
    }

    std::vector<Change> changes;

private:
    Precision precision_;
};

} // namespace

std::vector<Change> ElementChanges(const ElementRecord& before, const ElementRecord& after,
                                   Precision precision) {
    Comparison compare(precision);
    const ElementType type = before.type;
    const bool isText = type == ElementType::Text;
    const bool hasLine = type == ElementType::Poly || type == ElementType::Circle || type == ElementType::Arc;
    if (!isText && !hasLine)
        return {};
    compare.Field("mainColor", before.mainColor, after.mainColor);
    if (hasLine)
        compare.Field("lineWidth", before.lineWidth, after.lineWidth);
    if (type == ElementType::Poly)
        compare.Field("lineClosed", before.lineClosed, after.lineClosed);
    if (type == ElementType::Poly || type == ElementType::Circle)
        compare.Field("fillColor", before.fillColor, after.fillColor);
    if (type == ElementType::Circle || type == ElementType::Arc)
        compare.Field("radius", before.radius, after.radius);
    if (isText) {
        compare.Field("text", before.text, after.text);
        compare.Decimal("textAngle", qmath::RadToDeg(before.textAngle), qmath::RadToDeg(after.textAngle),
                        100);
        compare.Field("textAlign", before.textAlign, after.textAlign);
        compare.Field("textBkMode", before.textBkMode, after.textBkMode);
        compare.Field("sizeInHundredths", before.lineClosed, after.lineClosed);
        compare.Font(before.font.value_or(FontRecord()), after.font.value_or(FontRecord()));
    }
    compare.Points(before.points, after.points, isText || type == ElementType::Circle);
    return std::move(compare.changes);
}

bool SameElement(const ElementRecord& before, const ElementRecord& after, Precision precision) {
    return before.type == after.type && ElementChanges(before, after, precision).empty();
}

} // namespace qsymbol

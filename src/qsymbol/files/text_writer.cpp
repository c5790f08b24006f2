#include "qsymbol/files/text_writer.h"

#include "base/checked.h"
#include "base/number_format.h"
#include "qmath/math_util.h"
#include "qsymbol/files/text_format.h"

#include <cmath>
#include <utility>

namespace qsymbol {

namespace {

class TextWriter {
public:
    explicit TextWriter(const FormatRules& rules)
        : codePage_(rules.codePage), decimal_(rules.regional.decimal) {}

    std::string Compose(const Symbol& symbol) {
        out_ += text_format::kHeader;
        PutLong("CNT", base::Narrow<std::int32_t>(symbol.elements.size()));
        PutLength("WID", symbol.width);
        PutLength("HEI", symbol.height);
        PutLength("RPX", symbol.refX);
        PutLength("RPY", symbol.refY);
        EndLine();
        for (const ElementRecord& element : symbol.elements)
            PutElement(element);
        return std::move(out_);
    }

private:
    void PutElement(const ElementRecord& element) {
        switch (element.type) {
        case ElementType::Poly: PutPoly(element); break;
        case ElementType::Circle: PutCircle(element); break;
        case ElementType::Arc: PutArc(element); break;
        case ElementType::Text: PutText(element); break;
        default: break; // counted in the header all the same
        }
    }

    void PutPoly(const ElementRecord& element) {
        FirstPoint(element); // a list of none cannot be read
        out_ += text_format::kPoly;
        PutLong("CNT", base::Narrow<std::int32_t>(element.points.size()));
        PutLong("COL", element.mainColor);
        PutLength("WID", element.lineWidth);
        PutBool("CLS", element.lineClosed);
        PutLong("FIL", element.fillColor);
        EndLine();
        for (const qmath::Point& point : element.points)
            PutPoint(point);
    }

    void PutCircle(const ElementRecord& element) {
        out_ += text_format::kCircle;
        PutCentreFields(element);
        PutLong("FIL", element.fillColor);
        EndLine();
    }

    void PutArc(const ElementRecord& element) {
        if (element.points.size() > text_format::kArcPoints)
            base::Raise(base::RunTimeError::SubscriptOutOfRange);
        out_ += text_format::kArc;
        PutCentreFields(element);
        EndLine();
        for (std::size_t i = 1; i < element.points.size(); ++i)
            PutPoint(element.points[i]);
    }

    void PutText(const ElementRecord& element) {
        if (!element.font)
            base::Raise(base::RunTimeError::ObjectNotSet);
        const FontRecord& font = *element.font;
        out_ += text_format::kText;
        PutLong("COL", element.mainColor);
        PutDecimals("ANG", qmath::RadToDeg(element.textAngle), 2);
        PutKey("NAM");
        PutWithout("\n;", font.name);
        PutFontSize(font.size);
        PutBool("BOL", font.bold);
        PutBool("ITA", font.italic);
        PutBool("UND", font.underline);
        PutBool("STR", font.strikethrough);
        PutLong("ALI", element.textAlign);
        PutLong("BKM", element.textBkMode);
        if (element.lineClosed)
            out_ += ";FKT=100"; // readers look at the key only
        EndLine();
        PutPoint(FirstPoint(element));
        out_ += text_format::kString;
        out_ += ";\"";
        PutWithout("\n", element.text);
        out_ += '"';
        EndLine();
    }

    /// What circle and arc have in common.
    void PutCentreFields(const ElementRecord& element) {
        const qmath::Point centre = FirstPoint(element);
        PutLong("COL", element.mainColor);
        PutLength("WID", element.lineWidth);
        PutLength("MPX", centre.x);
        PutLength("MPY", centre.y);
        PutLength("RAD", element.radius);
    }

    static qmath::Point FirstPoint(const ElementRecord& element) {
        if (element.points.empty())
            base::Raise(base::RunTimeError::SubscriptOutOfRange);
        return element.points.front();
    }

    void PutPoint(const qmath::Point& point) {
        out_ += text_format::kPoint;
        out_ += text_format::kSeparator;
        base::AppendHundredths(out_, point.x, decimal_);
        out_ += text_format::kSeparator;
        base::AppendHundredths(out_, point.y, decimal_);
        EndLine();
    }

    /// A text, unless one of these characters in it would end its field. Error 5.
    void PutWithout(std::string_view ends, std::u16string_view text) {
        const std::string bytes = codePage_.Encode(text);
        if (bytes.find_first_of(ends) != std::string::npos)
            base::Raise(base::RunTimeError::InvalidCall);
        out_ += bytes;
    }

    void PutFontSize(double size) {
        base::Narrow<std::int16_t>(base::RoundToLong(std::round(size)));
        PutDecimals("HEI", size, 0);
    }

    void PutKey(std::string_view key) {
        out_ += text_format::kSeparator;
        out_ += key;
        out_ += '=';
    }

    void PutLong(std::string_view key, std::int32_t value) {
        PutKey(key);
        base::AppendLong(out_, value);
    }

    void PutLength(std::string_view key, std::int32_t value) {
        PutKey(key);
        base::AppendHundredths(out_, value, decimal_);
    }

    void PutDecimals(std::string_view key, double value, int decimals) {
        PutKey(key);
        base::AppendDecimals(out_, value, decimals, decimal_);
    }

    void PutBool(std::string_view key, bool value) {
        PutKey(key);
        out_ += value ? text_format::kTrue : text_format::kFalse;
    }

    void EndLine() { out_ += "\r\n"; }

    const base::CodePage& codePage_;
    const std::string& decimal_;
    std::string out_;
};

} // namespace

std::string ComposeText(const Symbol& symbol, const FormatRules& rules) {
    return TextWriter(rules).Compose(symbol);
}

} // namespace qsymbol

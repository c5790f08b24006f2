#include "qsymbol/files/text_element_fields.h"

#include "base/error.h"
#include "qmath/math_util.h"
#include "qsymbol/files/text_format.h"

namespace qsymbol {

using text_format::Value;

namespace {

bool IsTrue(std::string_view value) {
    return value == text_format::kTrue;
}

/// Error 9 for a count that makes no list.
std::size_t PointCount(std::int32_t count) {
    if (count <= 0)
        base::Raise(base::RunTimeError::SubscriptOutOfRange);
    return static_cast<std::size_t>(count);
}

} // namespace

void TextElementFields::SizePoints(ElementRecord& element, std::size_t count) {
    budget_.Charge(count, sizeof(qmath::Point));
    element.points = std::vector<qmath::Point>(count);
}

void TextElementFields::SizePoly(ElementRecord& element) {
    if (polyPoints_ > 0)
        SizePoints(element, polyPoints_);
    polyPoints_ = 0;
}

void TextElementFields::SetPolyField(ElementRecord& element, std::string_view field) {
    const std::string_view value = Value(field);
    switch (Key(field)) {
    case Key("CNT"): polyPoints_ = PointCount(numbers_.Long(value)); break;
    case Key("COL"): element.mainColor = numbers_.Long(value); break;
    case Key("WID"): element.lineWidth = numbers_.Hundredths(value); break;
    case Key("CLS"): element.lineClosed = IsTrue(value); break;
    case Key("FIL"): element.fillColor = numbers_.Long(value); break;
    default: break;
    }
}

void TextElementFields::SetCircleField(ElementRecord& element, std::string_view field) {
    if (Key(field) == Key("FIL"))
        element.fillColor = numbers_.Long(Value(field));
    else
        SetArcField(element, field);
}

void TextElementFields::SetArcField(ElementRecord& element, std::string_view field) {
    const std::string_view value = Value(field);
    switch (Key(field)) {
    case Key("COL"): element.mainColor = numbers_.Long(value); break;
    case Key("WID"): element.lineWidth = numbers_.Hundredths(value); break;
    case Key("MPX"): element.points.front().x = numbers_.Hundredths(value); break;
    case Key("MPY"): element.points.front().y = numbers_.Hundredths(value); break;
    case Key("RAD"): element.radius = numbers_.Hundredths(value); break;
    default: break;
    }
}

void TextElementFields::SetTextField(ElementRecord& element, std::string_view field) {
    const std::string_view value = Value(field);
    FontRecord& font = *element.font;
    switch (Key(field)) {
    case Key("COL"): element.mainColor = numbers_.Long(value); break;
    case Key("ANG"): element.textAngle = qmath::DegToRad(numbers_.Decimal(value)); break;
    case Key("NAM"): font.name = codePage_.Decode(value); break;
    case Key("HEI"): font.size = numbers_.Integer(value); break;
    case Key("BOL"): font.bold = IsTrue(value); break;
    case Key("ITA"): font.italic = IsTrue(value); break;
    case Key("UND"): font.underline = IsTrue(value); break;
    case Key("STR"): font.strikethrough = IsTrue(value); break;
    case Key("ALI"): element.textAlign = numbers_.Long(value); break;
    case Key("BKM"): element.textBkMode = numbers_.Long(value); break;
    case Key("FKT"): element.lineClosed = true; break;
    default: break;
    }
}

} // namespace qsymbol

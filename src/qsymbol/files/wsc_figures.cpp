#include "qsymbol/files/wsc_figures.h"

#include "base/checked.h"

#include <algorithm>

namespace qsymbol {

using base::RunTimeError;

namespace {

/// Points that a continuation line with so many fields carries: one, two, three or none.
std::size_t PointsOf(std::size_t fieldCount) {
    return fieldCount == 3 || fieldCount == 5 || fieldCount == 7 ? fieldCount / 2 : 0;
}

/// Most points that a continuation line can carry; the counter always grows by them.
constexpr std::size_t kPointsOfLine = 3;

} // namespace

ElementRecord& WscFigures::OpenElement(ElementType type) {
    pie_ = false;
    if (opened_ >= symbol_.elements.size())
        base::Raise(RunTimeError::SubscriptOutOfRange);
    ElementRecord& element = symbol_.elements[opened_++];
    element.type = type;
    return element;
}

ElementRecord& WscFigures::Current() {
    if (opened_ == 0)
        base::Raise(RunTimeError::SubscriptOutOfRange);
    return symbol_.elements[opened_ - 1];
}

void WscFigures::OpenLine(FieldCursor fields) {
    OpenPolyline(fields, 2);
}

void WscFigures::OpenChain(FieldCursor fields) {
    OpenPolyline(fields, 3);
    counter_ = 4;
}

void WscFigures::OpenPolyline(FieldCursor& fields, std::size_t points) {
    ElementRecord& element = OpenElement(ElementType::Poly);
    Resize(element.points, points);
    ReadKeys(fields, wsc_format::kLineKeys, Colour::Line);
    for (qmath::Point& point : element.points)
        point = ToSymbol(ReadPlace(fields), symbol_.height);
}

void WscFigures::OpenArea(FieldCursor fields) {
    OpenElement(ElementType::Poly).lineClosed = true;
    for (std::string_view field; fields.Next(field);)
        ReadKey(field, Colour::LineAndFill);
    counter_ = 1;
}

void WscFigures::OpenEllipse(FieldCursor fields, bool filled) {
    ElementRecord& element = OpenElement(ElementType::Undefined);
    if (filled)
        ReadKeys(fields, wsc_format::kFilledKeys, Colour::LineAndFill);
    else
        ReadKeys(fields, wsc_format::kLineKeys, Colour::Line);
    ReadBox(fields);
    if (box_.IsSquare()) {
        element.type = ElementType::Circle;
        MakeCircle(element);
        return;
    }
    element.type = ElementType::Poly;
    element.lineClosed = filled; // only closed polylines are filled
    Resize(element.points, WscBox::kEllipsePoints);
    box_.Ellipse(std::span<qmath::Point, WscBox::kEllipsePoints>(element.points), symbol_.height);
}

bool WscFigures::OpenArc(FieldCursor fields) {
    ElementRecord& element = OpenElement(ElementType::Undefined);
    ReadKeys(fields, wsc_format::kLineKeys, Colour::Line);
    ReadBox(fields);
    if (!box_.IsSquare())
        return false;
    element.type = ElementType::Arc;
    MakeCircle(element);
    return true;
}

void WscFigures::OpenPie(FieldCursor fields) {
    OpenElement(ElementType::Poly).lineClosed = true;
    ReadKeys(fields, wsc_format::kFilledKeys, Colour::LineAndFill);
    ReadBox(fields);
    pie_ = true;
}

void WscFigures::AddPoints(FieldCursor fields, std::size_t fieldCount) {
    std::vector<qmath::Point>& points = Current().points;
    const std::size_t start = counter_;
    const std::size_t count = PointsOf(fieldCount);
    counter_ += kPointsOfLine;
    Resize(points, points.size() + count);
    for (std::size_t i = start; i < start + count; ++i) {
        // After a line with fewer points than three the counter is ahead of the list.
        if (i < 1 || i > points.size())
            base::Raise(RunTimeError::SubscriptOutOfRange);
        points[i - 1] = ToSymbol(ReadPlace(fields), symbol_.height);
    }
}

void WscFigures::SetArcEnds(FieldCursor fields) {
    std::vector<qmath::Point>& points = Current().points;
    Resize(points, 3);
    points[1] = ToSymbol(ReadPlace(fields), symbol_.height);
    points[2] = ToSymbol(ReadPlace(fields), symbol_.height);
}

void WscFigures::SetPieOutline(FieldCursor fields) {
    ElementRecord& element = Current();
    if (!pie_)
        base::Raise(RunTimeError::SubscriptOutOfRange);
    Resize(element.points, WscBox::kSectorPoints);
    const WscPlace from = ReadPlace(fields);
    const WscPlace to = ReadPlace(fields);
    box_.Sector(from, to, std::span<qmath::Point, WscBox::kSectorPoints>(element.points), symbol_.height);
}

void WscFigures::ReadKeys(FieldCursor& fields, int count, Colour colour) {
    for (std::string_view field; count > 0 && fields.Next(field); --count)
        ReadKey(field, colour);
}

void WscFigures::ReadKey(std::string_view field, Colour colour) {
    FieldCursor parts(field, wsc_format::kKeySeparator);
    std::string_view letter;
    std::string_view value;
    parts.Next(letter);
    parts.Next(value);
    ElementRecord& element = Current();
    if (letter == "F") {
        element.mainColor = numbers_.Whole(value);
        if (colour == Colour::LineAndFill)
            element.fillColor = element.mainColor;
    } else if (letter == "D") {
        element.lineWidth = numbers_.Hundredths(value);
    }
}

WscPlace WscFigures::ReadPlace(FieldCursor& fields) {
    std::string_view field;
    fields.Next(field);
    const double x = numbers_.Coordinate(field);
    fields.Next(field);
    return {x, numbers_.Coordinate(field)};
}

void WscFigures::ReadBox(FieldCursor& fields) {
    box_.first = ReadPlace(fields);
    box_.second = ReadPlace(fields);
}

void WscFigures::MakeCircle(ElementRecord& element) {
    Resize(element.points, 1);
    element.points[0] = ToSymbol(box_.Centre(), symbol_.height);
    element.radius = base::RoundToLong(box_.RadiusX());
}

void WscFigures::Resize(std::vector<qmath::Point>& points, std::size_t size) {
    const std::size_t room = points.capacity();
    if (size > room) {
        const std::size_t wanted = room == 0 ? size : std::max(size, 2 * room);
        budget_.Charge(wanted, sizeof(qmath::Point));
        points.reserve(wanted);
        if (room != 0)
            budget_.Release(room, sizeof(qmath::Point));
    }
    points.resize(size);
}

} // namespace qsymbol

#include "qsymbol/files/wsc_figures.h"

#include "base/checked.h"

#include <algorithm>
#include <array>

namespace qsymbol {

using base::RunTimeError;

namespace {

/// Room that a list gets at least when a continuation line makes it grow; after that it doubles.
constexpr std::size_t kLeastGrowth = 8;

/// Most points that a continuation line can carry; the counter always grows by them.
constexpr std::size_t kPointsOfLine = 3;

/// What stands behind the separator of a field that begins with a letter and it, up to the next one.
std::string_view ValueOf(std::string_view field) {
    const std::string_view value = field.substr(std::min<std::size_t>(field.size(), 2));
    return value.substr(0, value.find(wsc_format::kKeySeparator));
}

} // namespace

ElementRecord& WscFigures::OpenElement(ElementType type) {
    pie_ = false;
    current_ = &symbol_.elements[opened_++];
    current_->type = type;
    return *current_;
}

ElementRecord& WscFigures::Current() {
    if (current_ == nullptr)
        base::Raise(RunTimeError::SubscriptOutOfRange);
    return *current_;
}

void WscFigures::OpenLine(WscFields fields) {
    OpenPolyline(fields, 2, 0);
}

void WscFigures::OpenChain(WscFields fields, std::size_t continuations) {
    OpenPolyline(fields, 3, kPointsOfLine * continuations);
    counter_ = 4;
}

void WscFigures::OpenPolyline(WscFields& fields, std::size_t points, std::size_t more) {
    ElementRecord& element = OpenElement(ElementType::Poly);
    Reserve(element.points, points + more);
    element.points.resize(points);
    ReadKeys(fields, wsc_format::kLineKeys, Colour::Line);
    for (qmath::Point& point : element.points)
        point = ToSymbol(fields.Place(), symbol_.height);
}

void WscFigures::OpenArea(WscFields fields, std::size_t continuations) {
    ElementRecord& element = OpenElement(ElementType::Poly);
    element.lineClosed = true;
    for (std::string_view field; fields.Next(field);)
        ReadKey(field, Colour::LineAndFill);
    Reserve(element.points, kPointsOfLine * continuations);
    counter_ = 1;
}

void WscFigures::OpenEllipse(WscFields fields, bool filled) {
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

bool WscFigures::OpenArc(WscFields fields) {
    ElementRecord& element = OpenElement(ElementType::Undefined);
    ReadKeys(fields, wsc_format::kLineKeys, Colour::Line);
    ReadBox(fields);
    if (!box_.IsSquare())
        return false;
    element.type = ElementType::Arc;
    MakeCircle(element);
    return true;
}

void WscFigures::OpenPie(WscFields fields) {
    OpenElement(ElementType::Poly).lineClosed = true;
    ReadKeys(fields, wsc_format::kFilledKeys, Colour::LineAndFill);
    ReadBox(fields);
    pie_ = true;
}

void WscFigures::AddPoints(WscFields fields) {
    std::vector<qmath::Point>& points = Current().points;
    std::array<double, 2 * kPointsOfLine> values; // NOLINT: only the first `given` are read
    std::size_t given = 0;
    while (given < values.size() && fields.More())
        values[given++] = fields.Coordinate();
    const std::size_t count = fields.More() || given % 2 != 0 ? 0 : given / 2;
    const std::size_t start = counter_;
    counter_ += kPointsOfLine;
    const std::size_t size = points.size() + count;
    if (size > points.capacity())
        Reserve(points, std::max({size, 2 * points.capacity(), kLeastGrowth}));
    Resize(points, size);
    for (std::size_t i = 0; i < count; ++i) {
        // After a line with fewer points than three the counter is ahead of the list.
        const std::size_t place = start + i;
        if (place < 1 || place > points.size())
            base::Raise(RunTimeError::SubscriptOutOfRange);
        points[place - 1] = ToSymbol({values[2 * i], values[2 * i + 1]}, symbol_.height);
    }
}

void WscFigures::SetArcEnds(WscFields fields) {
    std::vector<qmath::Point>& points = Current().points;
    Resize(points, 3);
    points[1] = ToSymbol(fields.Place(), symbol_.height);
    points[2] = ToSymbol(fields.Place(), symbol_.height);
}

void WscFigures::SetPieOutline(WscFields fields) {
    ElementRecord& element = Current();
    if (!pie_)
        base::Raise(RunTimeError::SubscriptOutOfRange);
    Resize(element.points, WscBox::kSectorPoints);
    const WscPlace from = fields.Place();
    const WscPlace to = fields.Place();
    box_.Sector(from, to, std::span<qmath::Point, WscBox::kSectorPoints>(element.points), symbol_.height);
}

void WscFigures::ReadKeys(WscFields& fields, int count, Colour colour) {
    for (std::string_view field; count > 0 && fields.Next(field); --count)
        ReadKey(field, colour);
}

void WscFigures::ReadKey(std::string_view field, Colour colour) {
    if (field.empty() || (field.size() > 1 && field[1] != wsc_format::kKeySeparator))
        return;
    ElementRecord& element = Current();
    if (field[0] == 'F') {
        element.mainColor = numbers_.Whole(ValueOf(field));
        if (colour == Colour::LineAndFill)
            element.fillColor = element.mainColor;
    } else if (field[0] == 'D') {
        element.lineWidth = numbers_.Hundredths(ValueOf(field));
    }
}

void WscFigures::ReadBox(WscFields& fields) {
    box_.first = fields.Place();
    box_.second = fields.Place();
}

void WscFigures::MakeCircle(ElementRecord& element) {
    Resize(element.points, 1);
    element.points[0] = ToSymbol(box_.Centre(), symbol_.height);
    element.radius = base::RoundToLong(box_.RadiusX());
}

void WscFigures::Resize(std::vector<qmath::Point>& points, std::size_t size) {
    Reserve(points, size);
    points.resize(size);
}

void WscFigures::Reserve(std::vector<qmath::Point>& points, std::size_t size) {
    const std::size_t room = points.capacity();
    if (size <= room)
        return;
    budget_.Charge(size, sizeof(qmath::Point));
    points.reserve(size);
    if (room != 0)
        budget_.Release(room, sizeof(qmath::Point));
}

} // namespace qsymbol

#include "qsymbol/drawing/dxf_surface.h"

#include "base/utf16_unit.h"
#include "qmath/math_util.h"
#include "qsymbol/drawing/drawing_text.h"
#include "qsymbol/drawing/line_weight.h"
#include "qsymbol/picture/font_metrics.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace qsymbol {

namespace {

/// Some readers take at most 1,023 bytes as a line; a character takes up to seven.
constexpr std::size_t kLongestPiece = 140;

qmath::Vector Exact(qmath::Point point) {
    return {static_cast<double>(point.x), static_cast<double>(point.y)};
}

/// Drawings hold a true colour with red in the high byte.
std::int32_t TrueColour(std::int32_t packed) {
    return (packed & 0xFF) << 16 | (packed & 0xFF00) | (packed >> 16 & 0xFF);
}

double PartLeftOf(TextSide side) {
    return side == TextSide::Left ? 0 : side == TextSide::Centre ? 0.5 : 1;
}

double DegreesOf(double radians) {
    return std::fmod(qmath::RadToDeg(radians), 360);
}

} // namespace

DxfSurface::DxfSurface(DrawingContext& context, DxfHandle owner, std::string layer, DxfColours colours)
    : context_(context), owner_(owner), layer_(std::move(layer)), colours_(colours) {}

void DxfSurface::OnPoly(std::span<const qmath::Point> points, bool closed, const Paint& paint) {
    if (paint.fill && points.size() > 2) {
        BeginHatch(*paint.fill, false, points.size());
        for (const qmath::Point point : points)
            PutVertex(Exact(point));
        EndHatch();
    }
    if (!paint.line)
        return;
    if (points.size() == 2 && LineWeightOf(paint.width)) {
        BeginLine("LINE", paint);
        out_.Text(100, "AcDbLine");
        PutPoint(10, Exact(points[0]));
        PutPoint(11, Exact(points[1]));
        return;
    }
    const double width = BeginLine("LWPOLYLINE", paint);
    out_.Text(100, "AcDbPolyline");
    out_.Whole(90, static_cast<std::int64_t>(points.size()));
    out_.Whole(70, closed ? 1 : 0);
    out_.Real(43, context_.Length(width));
    for (const qmath::Point point : points)
        PutVertex(Exact(point));
}

void DxfSurface::OnCircle(qmath::Vector centre, double radius, const Paint& paint) {
    if (paint.fill) {
        BeginHatch(*paint.fill, true, 2);
        for (const double side : {-1.0, 1.0}) {
            PutVertex({centre.x + side * radius, centre.y});
            out_.Real(42, 1); // a half turn
        }
        EndHatch();
    }
    if (!paint.line)
        return;
    if (!LineWeightOf(paint.width))
        return OnArc(centre, radius, 0, qmath::kTwoPi, paint);
    BeginLine("CIRCLE", paint);
    PutCircle(centre, radius);
}

void DxfSurface::OnArc(qmath::Vector centre, double radius, double start, double sweep, const Paint& paint) {
    const bool wholeTurn = sweep >= qmath::kTwoPi;
    if (LineWeightOf(paint.width)) {
        BeginLine(wholeTurn ? "CIRCLE" : "ARC", paint);
        PutCircle(centre, radius);
        if (wholeTurn)
            return;
        out_.Text(100, "AcDbArc");
        out_.Real(50, DegreesOf(start));
        out_.Real(51, DegreesOf(start + sweep));
        return;
    }
    const double width = BeginLine("LWPOLYLINE", paint);
    constexpr int kParts = 2; // a bulge cannot say a whole turn
    const int vertices = wholeTurn ? kParts : kParts + 1;
    out_.Text(100, "AcDbPolyline");
    out_.Whole(90, vertices);
    out_.Whole(70, wholeTurn ? 1 : 0);
    out_.Real(43, context_.Length(width));
    for (int i = 0; i < vertices; ++i) {
        const double angle = start + sweep * i / kParts;
        PutVertex({centre.x + radius * std::cos(angle), centre.y - radius * std::sin(angle)});
        if (i < kParts)
            out_.Real(42, std::tan(sweep / kParts / 4));
    }
}

void DxfSurface::OnText(const PictureText& text) {
    if (text.text.size() <= kLongestPiece)
        return PutTextPiece(text, text.side, 0, text.width, text.text);
    // Too long for a line of the file: in pieces, one behind the other.
    double offset = -PartLeftOf(text.side) * text.width;
    for (std::size_t at = 0; at < text.text.size();) {
        std::size_t count = std::min(kLongestPiece, text.text.size() - at);
        if (base::IsHighSurrogate(text.text[at + count - 1]) && count > 1)
            --count;
        const std::u16string_view piece = text.text.substr(at, count);
        const double width = TextWidth(piece, *text.font);
        PutTextPiece(text, TextSide::Left, offset, width, piece);
        offset += width;
        at += count;
    }
}

void DxfSurface::PutTextPiece(const PictureText& text, TextSide side, double offset, double width,
                              std::u16string_view piece) {
    const base::FontRequest& font = *text.font;
    const double angle = qmath::DegToRad(text.degrees);
    const auto along = [&](double distance) {
        return qmath::Vector{text.baseline.x + distance * std::cos(angle),
                             text.baseline.y - distance * std::sin(angle)};
    };
    std::string value = font.underline ? "%%u" : "";
    value += font.strikethrough ? "%%k" : "";
    value += ShownDrawingText(piece);

    Begin("TEXT", text.colour);
    out_.Text(100, "AcDbText");
    // Readers that know no alignment put the left end here.
    PutPoint(10, along(offset - PartLeftOf(side) * width));
    out_.Real(40, context_.Length(MetricsOf(font.name).capital * font.height));
    out_.Text(1, value);
    out_.Real(50, text.degrees);
    out_.Text(7, context_.styles.StyleFor(font));
    if (side != TextSide::Left) {
        out_.Whole(72, side == TextSide::Centre ? 1 : 2);
        PutPoint(11, along(offset));
    }
    out_.Text(100, "AcDbText");
}

void DxfSurface::Begin(std::string_view type, std::int32_t colour) {
    out_.Text(0, type);
    out_.Handle(5, context_.NewHandle());
    out_.Handle(330, owner_);
    out_.Text(100, "AcDbEntity");
    out_.Text(8, layer_);
    if (colours_ == DxfColours::OfLayer)
        return;
    out_.Whole(62, context_.colours.NearestTo(colour));
    out_.Whole(420, TrueColour(colour));
}

double DxfSurface::BeginLine(std::string_view type, const Paint& paint) {
    Begin(type, *paint.line);
    const std::optional<int> weight = LineWeightOf(paint.width);
    out_.Whole(370, weight.value_or(0));
    return weight ? 0 : paint.width;
}

void DxfSurface::BeginHatch(std::int32_t colour, bool bulged, std::size_t vertices) {
    constexpr int kPolyline = 2;
    constexpr int kExternal = 1;
    Begin("HATCH", colour);
    out_.Text(100, "AcDbHatch");
    out_.Place(10, 0, 0);
    out_.Real(210, 0);
    out_.Real(220, 0);
    out_.Real(230, 1);
    out_.Text(2, "SOLID");
    out_.Whole(70, 1); // solid
    out_.Whole(71, 0);
    out_.Whole(91, 1); // boundary paths
    out_.Whole(92, kPolyline | kExternal);
    out_.Whole(72, bulged ? 1 : 0);
    out_.Whole(73, 1); // closed
    out_.Whole(93, static_cast<std::int64_t>(vertices));
}

void DxfSurface::EndHatch() {
    out_.Whole(97, 0); // objects of the boundary
    out_.Whole(75, 0); // every second area, as screens fill
    out_.Whole(76, 1);
    out_.Whole(98, 0); // seed points
}

void DxfSurface::PutCircle(qmath::Vector centre, double radius) {
    out_.Text(100, "AcDbCircle");
    PutPoint(10, centre);
    out_.Real(40, context_.Length(radius));
}

void DxfSurface::PutPoint(int code, qmath::Vector point) {
    out_.Place(code, X(point.x), Y(point.y));
}

void DxfSurface::PutVertex(qmath::Vector point) {
    out_.Real(10, X(point.x));
    out_.Real(20, Y(point.y));
}

} // namespace qsymbol

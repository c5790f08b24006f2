#include "qsymbol/export/entity_writer.h"

#include "base/checked.h"
#include "qmath/math_util.h"
#include "qsymbol/export/arc_geometry.h"
#include "qsymbol/export/colour_table.h"
#include "qsymbol/export/dxf_text.h"

#include <string_view>

namespace qsymbol {

namespace {

constexpr std::string_view kLayer = "SYMBOLE";
constexpr std::string_view kZero = "0.0";

/// Font points to one drawing unit of text height.
constexpr double kPointsPerUnit = 30.0;
/// Tenths in the hundred-thousandths that the sink takes.
constexpr std::int64_t kTenth = 10000;

} // namespace

void EntityWriter::Write(const ElementRecord& element) {
    switch (element.type) {
    case ElementType::Poly: return WritePoly(element);
    case ElementType::Circle:
    case ElementType::Arc: return WriteRound(element);
    case ElementType::Text: return WriteText(element);
    case ElementType::Undefined: return;
    }
}

void EntityWriter::WritePoly(const ElementRecord& element) {
    if (element.points.size() >= 2) {
        out_.Text("  0", "POLYLINE");
        out_.Text("  8", kLayer);
        out_.Whole("62", NumberOfColour(element.mainColor));
        out_.Text("66", "     1");
        out_.Text(" 10", kZero);
        out_.Text(" 20", kZero);
        out_.Text(" 30", kZero);
        for (const qmath::Point& point : element.points)
            WriteVertex(point);
        // Closed by its first point again; the entity has no flag for it.
        if (element.lineClosed)
            WriteVertex(element.points.front());
    }
    // In every case: a polyline too short to be written leaves a bare end.
    out_.Text("  0", "SEQEND");
    out_.Text("  8", kLayer);
}

void EntityWriter::WriteVertex(qmath::Point point) {
    const qmath::Point placed = placement_.Map(point);
    out_.Text("  0", "VERTEX");
    out_.Text("  8", kLayer);
    out_.Fixed(" 10", placed.x);
    out_.Fixed(" 20", base::CheckedSub(etagenbreite_, placed.y));
    out_.Text(" 30", kZero);
}

void EntityWriter::WriteRound(const ElementRecord& element) {
    const std::optional<ArcGeometry> arc = PlacedArc(element, placement_);
    if (!arc)
        return;
    out_.Text("0", "ARC");
    out_.Text("8", kLayer);
    out_.Text("6", "CONTINUOUS");
    out_.Whole("62", NumberOfColour(element.mainColor));
    out_.Fixed("10", arc->centre.x);
    // A mirrored centre may leave the 32-bit range, unlike a mirrored point.
    out_.Fixed("20", std::int64_t{etagenbreite_} - arc->centre.y);
    out_.Text("30", kZero);
    out_.Fixed("40", arc->radius);
    out_.Real("50", arc->startDegrees);
    out_.Real("51", arc->endDegrees);
}

void EntityWriter::WriteText(const ElementRecord& element) {
    if (element.points.empty())
        return;
    if (!element.font)
        base::Raise(base::RunTimeError::ObjectNotSet);
    const qmath::Point anchor = placement_.Map(element.points.front());
    // The geometry is turned by minus the angle, the text by plus: y grows upwards in the file.
    const double degrees = qmath::RadToDeg(placement_.Angle() + element.textAngle);
    out_.Text("0", "TEXT");
    out_.Text("8", kLayer);
    out_.Fixed("10", anchor.x);
    out_.Fixed("20", base::CheckedSub(etagenbreite_, anchor.y));
    out_.Text("30", kZero);
    out_.Real("40", base::RoundToLong(element.font->size) / kPointsPerUnit);
    out_.Text("1", DxfText(element.text, codePage_));
    out_.Whole("62", NumberOfColour(element.mainColor));
    out_.Fixed("50", base::RoundToLong(degrees * 10.0) * kTenth);
}

} // namespace qsymbol

#include "qsymbol/svg/svg_surface.h"

#include "qmath/math_util.h"
#include "qsymbol/picture/font_metrics.h"
#include "qsymbol/picture/short_number.h"
#include "qsymbol/svg/xml_text.h"

#include <array>
#include <cmath>

namespace qsymbol {

namespace {

void AppendColour(std::string& out, std::int32_t colour) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    out += '#';
    // Packed with red in the low byte.
    for (const int shift : {4, 0, 12, 8, 20, 16})
        out += kDigits[static_cast<std::size_t>(colour >> shift & 15)];
}

/// A family's name as it may stand quoted in a list of families.
std::u16string FamilyName(std::u16string_view name) {
    std::u16string kept;
    for (const char16_t unit : name)
        if (unit >= 0x20 && unit != u'\'' && unit != u'"' && unit != u'\\' && unit != u'<' && unit != u'&')
            kept += unit;
    return kept;
}

std::string_view GenericFamily(const FontMetrics& metrics) {
    if (metrics.fixedPitch)
        return "monospace";
    return metrics.serif ? "serif" : "sans-serif";
}

/// SVG knows the ends of a line in the direction of its script.
std::string_view AnchorOf(const PictureText& text) {
    switch (text.side) {
    case TextSide::Centre: return "middle";
    case TextSide::Left: return text.rightToLeft ? "end" : "start";
    case TextSide::Right: return text.rightToLeft ? "start" : "end";
    }
    return "start"; // GCOVR_EXCL_LINE: every side has its case
}

} // namespace

std::string_view SvgSurface::Elements() {
    EndPath();
    return out_;
}

void SvgSurface::OnPoly(std::span<const qmath::Point> points, bool closed, const Paint& paint) {
    BeginPath(paint);
    for (std::size_t i = 0; i < points.size(); ++i)
        PutPoint(i == 0 ? 'M' : 'L', {static_cast<double>(points[i].x), static_cast<double>(points[i].y)});
    out_ += closed ? "Z" : "";
}

void SvgSurface::OnCircle(qmath::Vector centre, double radius, const Paint& paint) {
    EndPath();
    out_ += "<circle";
    PutAttribute("cx", centre.x);
    PutAttribute("cy", centre.y);
    PutAttribute("r", radius);
    PutPaint(paint);
    out_ += "/>\n";
}

void SvgSurface::OnArc(qmath::Vector centre, double radius, double start, double sweep, const Paint& paint) {
    // Two arcs, because one whose ends fall together would not be drawn.
    const auto at = [&](double angle) {
        return qmath::Vector{centre.x + radius * std::cos(angle), centre.y - radius * std::sin(angle)};
    };
    BeginPath(paint);
    PutPoint('M', at(start));
    constexpr double kSafe = 1.9 * qmath::kPi;
    const int parts = sweep > kSafe ? 2 : 1;
    for (int part = 1; part <= parts; ++part) {
        out_ += 'A';
        PutLength(radius);
        out_ += ' ';
        PutLength(radius);
        out_ += sweep / parts > qmath::kPi ? " 0 1 0 " : " 0 0 0 ";
        const qmath::Vector to = at(start + sweep * part / parts);
        PutLength(to.x);
        out_ += ' ';
        PutLength(to.y);
    }
}

void SvgSurface::OnText(const PictureText& text) {
    EndPath();
    const base::FontRequest& font = *text.font;
    out_ += "<text";
    PutAttribute("x", text.baseline.x);
    PutAttribute("y", text.baseline.y);
    if (text.degrees != 0) {
        out_ += " transform=\"rotate(";
        AppendShort(out_, -text.degrees, 1);
        out_ += ' ';
        PutLength(text.baseline.x);
        out_ += ' ';
        PutLength(text.baseline.y);
        out_ += ")\"";
    }
    out_ += " font-family=\"'";
    AppendXmlText(out_, FamilyName(font.name));
    out_ += "',";
    out_ += GenericFamily(MetricsOf(font.name));
    out_ += '"';
    PutAttribute("font-size", font.height);
    if (font.bold)
        out_ += R"( font-weight="bold")";
    if (font.italic)
        out_ += R"( font-style="italic")";
    if (font.underline || font.strikethrough) {
        out_ += " text-decoration=\"";
        out_ += font.underline ? "underline" : "";
        out_ += font.underline && font.strikethrough ? " " : "";
        out_ += font.strikethrough ? "line-through" : "";
        out_ += '"';
    }
    if (const std::string_view anchor = AnchorOf(text); anchor != "start") {
        out_ += " text-anchor=\"";
        out_ += anchor;
        out_ += '"';
    }
    if (text.rightToLeft)
        out_ += R"( direction="rtl" unicode-bidi="embed")";
    if (text.opaque) {
        hasOpaqueText_ = true;
        out_ += R"~( filter="url(#qsymbol-opaque)")~";
    }
    out_ += R"( xml:space="preserve" fill=")";
    AppendColour(out_, text.colour);
    out_ += "\">";
    AppendXmlText(out_, text.text);
    out_ += "</text>\n";
}

void SvgSurface::BeginPath(const Paint& paint) {
    if (pathIsOpen_ && open_ == paint && !paint.fill)
        return;
    EndPath();
    out_ += "<path";
    PutPaint(paint);
    out_ += " d=\"";
    open_ = paint;
    pathIsOpen_ = true;
}

void SvgSurface::EndPath() {
    if (pathIsOpen_)
        out_ += "\"/>\n";
    pathIsOpen_ = false;
}

void SvgSurface::PutPaint(const Paint& paint) {
    if (paint.fill) {
        out_ += " fill=\"";
        AppendColour(out_, *paint.fill);
        out_ += '"';
    }
    if (!paint.line)
        return;
    out_ += " stroke=\"";
    AppendColour(out_, *paint.line);
    out_ += '"';
    if (paint.width > 0)
        PutAttribute("stroke-width", paint.width);
    else
        out_ += R"( vector-effect="non-scaling-stroke")"; // one pixel, which is the width's initial value
}

void SvgSurface::PutPoint(char command, qmath::Vector point) {
    out_ += command;
    PutLength(point.x);
    out_ += ' ';
    PutLength(point.y);
}

void SvgSurface::PutLength(double units) {
    AppendShort(out_, units / kUnitsPerMillimetre, kDecimals);
}

void SvgSurface::PutAttribute(std::string_view name, double value) {
    out_ += ' ';
    out_ += name;
    out_ += "=\"";
    PutLength(value);
    out_ += '"';
}

} // namespace qsymbol

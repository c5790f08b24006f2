#include "qsymbol/svg/svg_document.h"

#include "qsymbol/draw/symbol_drawing.h"
#include "qsymbol/geometry/plain_transformation.h"
#include "qsymbol/picture/short_number.h"
#include "qsymbol/svg/xml_text.h"

#include <algorithm>

namespace qsymbol {

namespace {

constexpr double kSmallestSide = 1;

/// Brings a side to its least length, to both sides alike.
void Widen(double& from, double& length) {
    const double missing = std::max(0.0, kSmallestSide - length);
    from -= missing / 2;
    length += missing;
}

std::string Number(double value) {
    std::string text;
    AppendShort(text, value, SvgSurface::kDecimals);
    return text;
}

} // namespace

void DrawToSvg(const Symbol& symbol, SvgSurface& surface) {
    DrawSymbol(symbol, {.at = Reference(symbol), .angle = 0}, surface,
               PlainTransformation(qmath::Transform()), kUnscaled);
}

SvgView ViewOf(const SvgSurface& surface, double emptyWidth, double emptyHeight) {
    const qmath::Box& bounds = surface.Bounds();
    SvgView view{.width = emptyWidth, .height = emptyHeight};
    if (!bounds.IsEmpty())
        view = {bounds.left, bounds.top, bounds.Width(), bounds.Height()};
    for (double* value : {&view.left, &view.top, &view.width, &view.height})
        *value /= SvgSurface::kUnitsPerMillimetre;
    Widen(view.left, view.width);
    Widen(view.top, view.height);
    return view;
}

std::string ViewBox(const SvgView& view) {
    return Number(view.left) + ' ' + Number(view.top) + ' ' + Number(view.width) + ' ' + Number(view.height);
}

std::string SvgHead(const SvgView& view, std::u16string_view title) {
    std::string out = R"(<?xml version="1.0" encoding="UTF-8"?>)"
                      "\n"
                      R"(<svg xmlns="http://www.w3.org/2000/svg" version="1.1" width=")";
    out += Number(view.width) + "mm\" height=\"" + Number(view.height) + "mm\" viewBox=\"" + ViewBox(view);
    out += "\" overflow=\"visible\">\n<title>"; // a hairline on the edge is seen whole where there is room
    AppendXmlText(out, title);
    out += "</title>\n";
    return out;
}

std::string SvgDocument(SvgSurface& surface, const SvgView& view, std::u16string_view title) {
    std::string out = SvgHead(view, title);
    const std::string_view elements = surface.Elements();
    if (surface.HasOpaqueText()) {
        out += "<defs>";
        out += kOpaqueTextFilter;
        out += "</defs>\n";
    }
    out += "<g ";
    out += kSvgGroupAttributes;
    out += ">\n";
    out += elements;
    out += "</g>\n</svg>\n";
    return out;
}

std::string SymbolSvg(const Symbol& symbol) {
    SvgSurface surface;
    DrawToSvg(symbol, surface);
    return SvgDocument(surface, ViewOf(surface, symbol.width, symbol.height), Name(symbol));
}

} // namespace qsymbol

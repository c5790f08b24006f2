#pragma once

#include "qsymbol/model/symbol.h"
#include "qsymbol/svg/svg_surface.h"

#include <string>
#include <string_view>

namespace qsymbol {

/// Draws a symbol as it stands in its file, angle 0 and unscaled, as every other surface shows it.
/// Errors of DrawSymbol.
void DrawToSvg(const Symbol& symbol, SvgSurface& surface);

/// What a picture shows: its drawing's extent in millimetres, or a box of the symbol's nominal size when
/// nothing is drawn. A side without length becomes a millimetre, for a picture without size shows nothing.
struct SvgView {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};
SvgView ViewOf(const SvgSurface& surface, double emptyWidth = 0, double emptyHeight = 0);

/// "left top width height", for a viewBox.
std::string ViewBox(const SvgView& view);

/// The beginning of an SVG file up to its title; the group of elements and the end are to follow.
std::string SvgHead(const SvgView& view, std::u16string_view title);

/// A whole SVG file, true to scale: its width and height are those of what was drawn. No script, nothing
/// from outside.
std::string SvgDocument(SvgSurface& surface, const SvgView& view, std::u16string_view title);

/// The file of one symbol under its name.
std::string SymbolSvg(const Symbol& symbol);

} // namespace qsymbol

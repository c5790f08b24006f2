#include "qsymbol/drawing/dxf_sections.h"

namespace qsymbol {

namespace {

void Variable(DxfTags& out, std::string_view name, int code, std::string_view value) {
    out.Text(9, name);
    out.Text(code, value);
}

void Variable(DxfTags& out, std::string_view name, int value) {
    out.Text(9, name);
    out.Whole(70, value);
}

void Corner(DxfTags& out, std::string_view name, double x, double y, bool flat) {
    out.Text(9, name);
    out.Real(10, x);
    out.Real(20, y);
    if (!flat)
        out.Real(30, 0);
}

} // namespace

void AppendHeader(DxfTags& out, const DxfContents& contents, const DxfHandles& handles) {
    qmath::Box bounds = contents.bounds;
    if (bounds.IsEmpty())
        bounds.Include(0, 0);
    out.Text(0, "SECTION");
    out.Text(2, "HEADER");
    Variable(out, "$ACADVER", 1, "AC1018");
    Variable(out, "$DWGCODEPAGE", 3, "ANSI_1252");
    out.Text(9, "$HANDSEED");
    out.Handle(5, handles.Next());
    Variable(out, "$INSUNITS", InsertionUnits(contents.unit));
    Variable(out, "$MEASUREMENT", 1); // metric
    Variable(out, "$LUNITS", 2);      // decimal
    Variable(out, "$AUNITS", 0);      // degrees
    Variable(out, "$LWDISPLAY", 1);
    Variable(out, "$FILLMODE", 1);
    Variable(out, "$PSTYLEMODE", 1); // plotted by colour, without named styles
    Variable(out, "$TEXTSTYLE", 7, "Standard");
    Variable(out, "$CLAYER", 8, "0");
    Corner(out, "$INSBASE", 0, 0, false);
    Corner(out, "$EXTMIN", bounds.left, bounds.top, false);
    Corner(out, "$EXTMAX", bounds.right, bounds.bottom, false);
    Corner(out, "$LIMMIN", bounds.left, bounds.top, true);
    Corner(out, "$LIMMAX", bounds.right, bounds.bottom, true);
    out.Text(0, "ENDSEC");
    out.Text(0, "SECTION");
    out.Text(2, "CLASSES");
    out.Text(0, "ENDSEC");
}

} // namespace qsymbol

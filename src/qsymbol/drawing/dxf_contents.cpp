#include "qsymbol/drawing/dxf_contents.h"

#include "qsymbol/drawing/dxf_sections.h"

namespace qsymbol {

void ComposeDxf(const DxfContents& contents, const base::ByteSink& sink) {
    DxfHandles handles(contents.lastHandle);
    // The header comes first and has the next free handle, so it is made last.
    const DxfLayouts layouts = NewLayouts(handles);
    DxfTags body;
    AppendTables(body, contents, layouts, handles);
    AppendBlocks(body, contents, handles);
    body.Text(0, "SECTION");
    body.Text(2, "ENTITIES");
    DxfTags rest;
    rest.Text(0, "ENDSEC");
    AppendObjects(rest, contents, layouts, handles);
    rest.Text(0, "EOF");
    DxfTags header;
    AppendHeader(header, contents, handles);
    sink(header.Bytes());
    sink(body.Bytes());
    contents.modelSpace(sink);
    sink(rest.Bytes());
}

} // namespace qsymbol

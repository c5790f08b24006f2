#include "qsymbol/drawing/dxf_contents.h"

#include "qsymbol/drawing/dxf_sections.h"

namespace qsymbol {

std::string ComposeDxf(const DxfContents& contents) {
    DxfHandles handles(contents.lastHandle);
    // The header comes first and has the next free handle, so it is written last.
    DxfTags body;
    const DxfLayouts layouts = NewLayouts(handles);
    AppendTables(body, contents, layouts, handles);
    AppendBlocks(body, contents, handles);
    AppendEntities(body, contents);
    AppendObjects(body, contents, layouts, handles);
    DxfTags file;
    AppendHeader(file, contents, handles);
    file.Append(body);
    file.Text(0, "EOF");
    return file.Bytes();
}

} // namespace qsymbol

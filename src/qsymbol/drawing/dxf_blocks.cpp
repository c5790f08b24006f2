#include "qsymbol/drawing/dxf_sections.h"

namespace qsymbol {

namespace {

void BeginEntity(DxfTags& out, std::string_view type, DxfHandle handle, DxfHandle owner, bool onPaper) {
    out.Text(0, type);
    out.Handle(5, handle);
    out.Handle(330, owner);
    out.Text(100, "AcDbEntity");
    if (onPaper)
        out.Whole(67, 1);
    out.Text(8, "0");
}

void AppendBlock(DxfTags& out, const DxfBlock& block, bool onPaper, DxfHandles& handles) {
    BeginEntity(out, "BLOCK", handles.New(), block.record, onPaper);
    out.Text(100, "AcDbBlockBegin");
    out.Text(2, block.name);
    out.Whole(70, 0);
    out.Place(10, block.baseX, block.baseY);
    out.Text(3, block.name);
    out.Text(1, "");
    out.Append(block.entities);
    BeginEntity(out, "ENDBLK", handles.New(), block.record, onPaper);
    out.Text(100, "AcDbBlockEnd");
}

DxfBlock Space(std::string_view name, DxfHandle record) {
    DxfBlock block;
    block.name = name;
    block.record = record;
    return block;
}

} // namespace

void AppendBlocks(DxfTags& out, const DxfContents& contents, DxfHandles& handles) {
    out.Text(0, "SECTION");
    out.Text(2, "BLOCKS");
    AppendBlock(out, Space("*Model_Space", contents.modelRecord), false, handles);
    AppendBlock(out, Space("*Paper_Space", contents.paperRecord), true, handles);
    for (const DxfBlock& block : contents.blocks)
        AppendBlock(out, block, false, handles);
    out.Text(0, "ENDSEC");
}

} // namespace qsymbol

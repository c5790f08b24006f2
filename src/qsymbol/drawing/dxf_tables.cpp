#include "qsymbol/drawing/dxf_sections.h"

#include <algorithm>
#include <initializer_list>

namespace qsymbol {

namespace {

/// Writes one table: its head, its records, its end.
class Table {
public:
    Table(DxfTags& out, DxfHandles& handles, std::string_view name, std::size_t count)
        : out_(out), handles_(handles), name_(name), handle_(handles.New()) {
        out_.Text(0, "TABLE");
        out_.Text(2, name_);
        out_.Handle(5, handle_);
        out_.Handle(330, 0);
        out_.Text(100, "AcDbSymbolTable");
        out_.Whole(70, static_cast<std::int64_t>(count));
    }
    ~Table() { out_.Text(0, "ENDTAB"); }
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;

    DxfHandle Record(std::string_view subclass, std::string_view name) {
        const DxfHandle handle = handles_.New();
        Record(subclass, name, handle);
        return handle;
    }
    void Record(std::string_view subclass, std::string_view name, DxfHandle handle) {
        out_.Text(0, name_);
        out_.Handle(name_ == "DIMSTYLE" ? 105 : 5, handle);
        out_.Handle(330, handle_);
        out_.Text(100, "AcDbSymbolTableRecord");
        out_.Text(100, subclass);
        out_.Text(2, name);
    }

private:
    DxfTags& out_;
    DxfHandles& handles_;
    std::string_view name_;
    DxfHandle handle_;
};

/// The window in which the whole drawing is seen first.
void AppendViewport(DxfTags& out, const qmath::Box& bounds, DxfHandles& handles) {
    constexpr double kAround = 1.05;
    const bool empty = bounds.IsEmpty();
    const double aspect = 1.6;
    const double height = empty ? 1000 : std::max({bounds.Height(), bounds.Width() / aspect, 1e-6}) * kAround;
    Table table(out, handles, "VPORT", 1);
    table.Record("AcDbViewportTableRecord", "*Active");
    out.Whole(70, 0);
    const auto pair = [&](int code, double x, double y) {
        out.Real(code, x);
        out.Real(code + 10, y);
    };
    pair(10, 0, 0);
    pair(11, 1, 1);
    pair(12, empty ? 0 : (bounds.left + bounds.right) / 2, empty ? 0 : (bounds.top + bounds.bottom) / 2);
    pair(13, 0, 0);
    pair(14, 10, 10);
    pair(15, 10, 10);
    out.Real(16, 0);
    out.Real(26, 0);
    out.Real(36, 1);
    out.Place(17, 0, 0);
    out.Real(40, height);
    out.Real(41, aspect);
    out.Real(42, 50);
    out.Real(43, 0);
    out.Real(44, 0);
    out.Real(50, 0);
    out.Real(51, 0);
    for (const int code : {71, 73, 75, 76, 77, 78})
        out.Whole(code, 0);
    out.Whole(72, 1000);
    out.Whole(74, 1);
}

void AppendLineTypes(DxfTags& out, DxfHandles& handles) {
    Table table(out, handles, "LTYPE", 3);
    for (const std::string_view name : {"ByBlock", "ByLayer", "Continuous"}) {
        table.Record("AcDbLinetypeTableRecord", name);
        out.Whole(70, 0);
        out.Text(3, "");
        out.Whole(72, 65);
        out.Whole(73, 0);
        out.Real(40, 0);
    }
}

void AppendLayers(DxfTags& out, const std::vector<std::string>& layers, DxfHandles& handles) {
    constexpr int kForeground = 7;
    constexpr int kStandardWeight = -3;
    Table table(out, handles, "LAYER", layers.size());
    for (const std::string& name : layers) {
        table.Record("AcDbLayerTableRecord", name);
        out.Whole(70, 0);
        out.Whole(62, kForeground);
        out.Text(6, "Continuous");
        out.Whole(370, kStandardWeight);
    }
}

void AppendStyle(DxfTags& out, const TextStyles::Style& style) {
    out.Whole(70, 0);
    out.Real(40, 0); // each text says its own height
    out.Real(41, 1);
    out.Real(50, 0);
    out.Whole(71, 0);
    out.Real(42, 2.5);
    out.Text(3, style.file);
    out.Text(4, "");
    out.Text(1001, "ACAD");
    out.Text(1000, style.family);
    out.Whole(1071, FontFlags(style));
}

void AppendStyles(DxfTags& out, const std::vector<TextStyles::Style>& styles, DxfHandles& handles) {
    Table table(out, handles, "STYLE", styles.size() + 1);
    constexpr std::string_view kSubclass = "AcDbTextStyleTableRecord";
    table.Record(kSubclass, "Standard");
    AppendStyle(out, {.name = {}, .family = "Arial", .file = "arial.ttf"});
    for (const TextStyles::Style& style : styles) {
        table.Record(kSubclass, style.name);
        AppendStyle(out, style);
    }
}

void AppendDimensionStyles(DxfTags& out, DxfHandles& handles) {
    Table table(out, handles, "DIMSTYLE", 1);
    table.Record("AcDbDimStyleTableRecord", "Standard");
    out.Whole(70, 0);
}

void AppendBlockRecords(DxfTags& out, const DxfContents& contents, const DxfLayouts& layouts,
                        DxfHandles& handles) {
    Table table(out, handles, "BLOCK_RECORD", contents.blocks.size() + 2);
    constexpr std::string_view kSubclass = "AcDbBlockTableRecord";
    table.Record(kSubclass, "*Model_Space", contents.modelRecord);
    out.Handle(340, layouts.model);
    table.Record(kSubclass, "*Paper_Space", contents.paperRecord);
    out.Handle(340, layouts.paper);
    for (const DxfBlock& block : contents.blocks) {
        table.Record(kSubclass, block.name, block.record);
        out.Handle(340, 0);
    }
}

} // namespace

void AppendTables(DxfTags& out, const DxfContents& contents, const DxfLayouts& layouts, DxfHandles& handles) {
    out.Text(0, "SECTION");
    out.Text(2, "TABLES");
    AppendViewport(out, contents.bounds, handles);
    AppendLineTypes(out, handles);
    AppendLayers(out, contents.layers, handles);
    AppendStyles(out, contents.styles, handles);
    { const Table views(out, handles, "VIEW", 0); }
    { const Table systems(out, handles, "UCS", 0); }
    {
        Table applications(out, handles, "APPID", 1);
        applications.Record("AcDbRegAppTableRecord", "ACAD");
        out.Whole(70, 0);
    }
    AppendDimensionStyles(out, handles);
    AppendBlockRecords(out, contents, layouts, handles);
    out.Text(0, "ENDSEC");
}

} // namespace qsymbol

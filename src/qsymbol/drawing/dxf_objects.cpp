#include "qsymbol/drawing/dxf_sections.h"

namespace qsymbol {

namespace {

struct Member {
    std::string_view name;
    DxfHandle handle;
};

void AppendDictionary(DxfTags& out, DxfHandle handle, DxfHandle owner,
                      std::initializer_list<Member> members) {
    out.Text(0, "DICTIONARY");
    out.Handle(5, handle);
    out.Handle(330, owner);
    out.Text(100, "AcDbDictionary");
    out.Whole(281, 1); // of two with one name the first is kept
    for (const Member& member : members) {
        out.Text(3, member.name);
        out.Handle(350, member.handle);
    }
}

struct Layout {
    std::string_view name;
    DxfHandle handle = 0;
    DxfHandle record = 0;
    int tab = 0;
    int flags = 0;
    qmath::Box bounds;
};

void AppendLayout(DxfTags& out, const Layout& layout, DxfHandle owner) {
    constexpr double kPaperWidth = 420; // A3
    constexpr double kPaperHeight = 297;
    const qmath::Box& bounds = layout.bounds;
    out.Text(0, "LAYOUT");
    out.Handle(5, layout.handle);
    out.Handle(330, owner);
    out.Text(100, "AcDbPlotSettings");
    out.Text(1, "");
    out.Text(2, "none_device");
    out.Text(4, "");
    out.Text(6, "");
    for (const int code : {40, 41, 42, 43, 46, 47, 48, 49, 140, 141})
        out.Real(code, 0);
    out.Real(44, kPaperWidth);
    out.Real(45, kPaperHeight);
    out.Real(142, 1);
    out.Real(143, 1);
    out.Whole(70, layout.flags);
    out.Whole(72, 1); // millimetres of paper
    out.Whole(73, 0);
    out.Whole(74, 1); // plots the extent
    out.Text(7, "");
    out.Whole(75, 0); // scaled to fit
    out.Real(147, 1);
    out.Real(148, 0);
    out.Real(149, 0);
    out.Text(100, "AcDbLayout");
    out.Text(1, layout.name);
    out.Whole(70, 1);
    out.Whole(71, layout.tab);
    const bool empty = bounds.IsEmpty();
    const double right = empty ? kPaperWidth : bounds.right;
    const double top = empty ? kPaperHeight : bounds.bottom;
    const double left = empty ? 0 : bounds.left;
    const double bottom = empty ? 0 : bounds.top;
    out.Real(10, left);
    out.Real(20, bottom);
    out.Real(11, right);
    out.Real(21, top);
    out.Place(12, 0, 0);
    out.Place(14, left, bottom);
    out.Place(15, right, top);
    out.Real(146, 0);
    out.Place(13, 0, 0);
    out.Place(16, 1, 0);
    out.Place(17, 0, 1);
    out.Whole(76, 0);
    out.Handle(330, layout.record);
}

} // namespace

void AppendObjects(DxfTags& out, const DxfContents& contents, const DxfLayouts& layouts,
                   DxfHandles& handles) {
    constexpr int kModelFlags = 1024 + 128; // a layout of the model; plots line weights
    constexpr int kPaperFlags = 128;
    const DxfHandle root = handles.New();
    const DxfHandle groups = handles.New();
    const DxfHandle all = handles.New();
    out.Text(0, "SECTION");
    out.Text(2, "OBJECTS");
    AppendDictionary(out, root, 0, {{"ACAD_GROUP", groups}, {"ACAD_LAYOUT", all}});
    AppendDictionary(out, groups, root, {});
    AppendDictionary(out, all, root, {{"Layout1", layouts.paper}, {"Model", layouts.model}});
    AppendLayout(out,
                 {.name = "Model",
                  .handle = layouts.model,
                  .record = contents.modelRecord,
                  .tab = 0,
                  .flags = kModelFlags,
                  .bounds = contents.bounds},
                 all);
    AppendLayout(out,
                 {.name = "Layout1",
                  .handle = layouts.paper,
                  .record = contents.paperRecord,
                  .tab = 1,
                  .flags = kPaperFlags,
                  .bounds = {}},
                 all);
    out.Text(0, "ENDSEC");
}

} // namespace qsymbol

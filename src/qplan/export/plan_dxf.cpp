#include "qplan/export/plan_dxf.h"

#include "base/whole_file.h"
#include "qplan/draw/sheet_drawing.h"
#include "qsymbol/drawing/dxf_drawing.h"
#include "qsymbol/geometry/plain_transformation.h"

#include <optional>
#include <vector>

namespace qplan {

void ComposePlanDxf(const Plan& plan, qsymbol::DrawingUnit unit, const base::ByteSink& sink) {
    // What the host's symbols do to the plan meanwhile is no matter of this drawing.
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
    const Plan own = plan;
    using qsymbol::DxfDrawing;
    DxfDrawing drawing(unit);
    const qsymbol::PlainTransformation whole{qmath::Transform()};
    DrawFloors(own.Sheet(), drawing.Draw(drawing.AddLayer(u"BOEDEN")), whole);
    DrawWalls(own.Sheet(), drawing.Draw(drawing.AddLayer(u"WAENDE")), whole);

    const DxfDrawing::Layer layer = drawing.AddLayer(u"SYMBOLE");
    std::vector<std::optional<DxfDrawing::Block>> blocks;
    for (const Placement* next = own.NextAfter(0); next != nullptr; next = own.NextAfter(next->id)) {
        const Placement& placement = *next;
        if (placement.symbol >= blocks.size())
            blocks.resize(placement.symbol + 1);
        std::optional<DxfDrawing::Block>& block = blocks[placement.symbol];
        if (!block)
            block = drawing.AddBlock(own.NameOf(placement), *own.SymbolOf(placement)->Value());
        drawing.Insert(*block, layer, placement.position);
    }
    DrawLettering(own.Sheet(), drawing.Draw(drawing.AddLayer(u"RAEUME")), whole);
    drawing.Compose(sink);
}

void WritePlanDxf(const Plan& plan, qsymbol::DrawingUnit unit, base::FileSystem& files,
                  const std::u16string& path) {
    base::WriteBeside(files, path, [&](const base::ByteSink& sink) { ComposePlanDxf(plan, unit, sink); });
}

} // namespace qplan

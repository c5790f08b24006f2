#include "qsymbol/drawing/dxf_drawing.h"

#include "base/letter_case.h"
#include "qmath/math_util.h"
#include "qsymbol/draw/symbol_drawing.h"
#include "qsymbol/drawing/drawing_text.h"
#include "qsymbol/drawing/dxf_contents.h"
#include "qsymbol/geometry/placed_box.h"
#include "qsymbol/geometry/plain_transformation.h"

#include <algorithm>
#include <utility>

namespace qsymbol {

namespace {

/// Entities of a block on this layer take the layer of the insert.
constexpr const char* kLayerOfInsert = "0";

} // namespace

DxfDrawing::DxfDrawing(DrawingUnit unit)
    : context_(std::make_unique<DrawingContext>(unit)), modelRecord_(context_->NewHandle()),
      paperRecord_(context_->NewHandle()) {
    AddLayer(u"0");
}

DxfDrawing::Layer DxfDrawing::AddLayer(std::u16string_view name) {
    const std::u16string legal = LegalDxfName(name);
    std::u16string key = base::UpperCase(legal);
    const auto known = std::find_if(layers_.begin(), layers_.end(),
                                    [&](const LayerEntry& layer) { return layer.key == key; });
    if (known != layers_.end())
        return static_cast<Layer>(known - layers_.begin());
    layers_.push_back({std::move(key), DrawingText(legal)});
    return layers_.size() - 1;
}

DxfDrawing::Block DxfDrawing::AddBlock(std::u16string_view name, const Symbol& symbol) {
    BlockEntry block;
    block.record = context_->NewHandle();
    block.base = Reference(symbol);
    block.surface = std::make_unique<DxfSurface>(*context_, block.record, kLayerOfInsert);
    DrawSymbol(symbol, {.at = block.base, .angle = 0}, *block.surface,
               PlainTransformation(qmath::Transform()), kUnscaled);
    block.name = blockNames_.Take(name);
    blocks_.push_back(std::move(block));
    return blocks_.size() - 1;
}

void DxfDrawing::Insert(Block block, Layer layer, const SymbolPosition& position) {
    if (modelSpace_.empty() || modelSpace_.back().surface != nullptr)
        modelSpace_.emplace_back();
    modelSpace_.back().inserts.push_back({.position = position,
                                          .block = static_cast<std::uint32_t>(block),
                                          .layer = static_cast<std::uint32_t>(layer),
                                          .handle = context_->NewHandle()});
    const BlockEntry& entry = blocks_[block];
    inserted_.Include(PlacedBox(SeenFrom(entry.base, entry.surface->Bounds()), position));
}

void DxfDrawing::Append(DxfTags& out, const PlacedBlock& insert) const {
    const SymbolPosition& position = insert.position;
    out.Text(0, "INSERT");
    out.Handle(5, insert.handle);
    out.Handle(330, modelRecord_);
    out.Text(100, "AcDbEntity");
    out.Text(8, layers_[insert.layer].name);
    out.Text(100, "AcDbBlockReference");
    out.Text(2, DrawingText(blocks_[insert.block].name));
    out.Place(10, context_->Length(position.at.x), context_->Length(-static_cast<double>(position.at.y)));
    if (position.angle != 0)
        out.Real(50, qmath::RadToDeg(position.angle));
}

void DxfDrawing::ComposeModelSpace(const base::ByteSink& sink) const {
    constexpr std::size_t kPiece = 1 << 16;
    for (const Part& part : modelSpace_) {
        if (part.surface)
            sink(part.surface->Entities().Bytes());
        DxfTags inserts;
        for (const PlacedBlock& insert : part.inserts) {
            Append(inserts, insert);
            if (inserts.Bytes().size() < kPiece)
                continue;
            sink(inserts.Bytes());
            inserts = {};
        }
        sink(inserts.Bytes());
    }
}

VectorSurface& DxfDrawing::Draw(Layer layer, DxfColours colours) {
    auto surface = std::make_unique<DxfSurface>(*context_, modelRecord_, layers_[layer].name, colours);
    VectorSurface& drawn = *surface;
    modelSpace_.emplace_back().surface = std::move(surface);
    return drawn;
}

std::string DxfDrawing::Compose() const {
    std::string bytes;
    Compose([&](std::string_view piece) { bytes += piece; });
    return bytes;
}

void DxfDrawing::Compose(const base::ByteSink& sink) const {
    DxfContents contents;
    contents.unit = context_->unit;
    contents.styles = context_->styles.All();
    contents.modelRecord = modelRecord_;
    contents.paperRecord = paperRecord_;
    contents.lastHandle = context_->lastHandle;
    for (const LayerEntry& layer : layers_)
        contents.layers.push_back(layer.name);
    for (const BlockEntry& block : blocks_)
        contents.blocks.push_back({.name = DrawingText(block.name),
                                   .record = block.record,
                                   .baseX = context_->Length(block.base.x),
                                   .baseY = context_->Length(-static_cast<double>(block.base.y)),
                                   .entities = block.surface->Entities()});
    qmath::Box bounds = inserted_;
    for (const Part& part : modelSpace_)
        if (part.surface)
            bounds.Include(part.surface->Bounds());
    contents.modelSpace = [this](const base::ByteSink& out) { ComposeModelSpace(out); };
    if (!bounds.IsEmpty()) {
        contents.bounds.Include(context_->Length(bounds.left), context_->Length(-bounds.bottom));
        contents.bounds.Include(context_->Length(bounds.right), context_->Length(-bounds.top));
    }
    ComposeDxf(contents, sink);
}

} // namespace qsymbol

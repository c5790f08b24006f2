#pragma once

#include "base/byte_sink.h"
#include "qsymbol/drawing/drawing_context.h"
#include "qsymbol/drawing/drawing_names.h"
#include "qsymbol/drawing/dxf_surface.h"
#include "qsymbol/geometry/symbol_position.h"
#include "qsymbol/model/symbol.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qsymbol {

/// A complete drawing file (AC1018) of symbols as blocks and of what stands in its model space.
///
/// Logical coordinates (1/100 mm, y downwards) become (x, -y) in the drawing's unit.
class DxfDrawing {
public:
    using Block = std::size_t;
    using Layer = std::size_t;

    explicit DxfDrawing(DrawingUnit unit);

    /// A layer of this name; the same one for the same name in any case of letters.
    Layer AddLayer(std::u16string_view name);

    /// Adds a symbol as a block in its own coordinates whose base point is the reference point. Its name is
    /// made legal and unique. Errors of DrawSymbol; the drawing is as before then.
    Block AddBlock(std::u16string_view name, const Symbol& symbol);
    /// The name that the block has got.
    const std::u16string& NameOf(Block block) const { return blocks_[block].name; }
    /// Around the block's drawing in the symbol's own coordinates.
    const qmath::Box& BoundsOf(Block block) const { return blocks_[block].surface->Bounds(); }

    /// Places a block in the model space, on top of what stands there.
    void Insert(Block block, Layer layer, const SymbolPosition& position);

    /// A surface that draws into the model space on a layer, on top of what stands there. It goes with
    /// the drawing.
    VectorSurface& Draw(Layer layer, DxfColours colours = DxfColours::Own);

    /// The file's bytes, in code page 1252.
    std::string Compose() const;
    void Compose(const base::ByteSink& sink) const;

private:
    struct BlockEntry {
        std::u16string name;
        DxfHandle record = 0;
        qmath::Point base;
        std::unique_ptr<DxfSurface> surface;
    };
    struct LayerEntry {
        std::u16string key; ///< upper case
        std::string name;   ///< encoded
    };
    /// A placed block; it becomes text when the file is composed, for there may be many.
    struct PlacedBlock {
        SymbolPosition position;
        std::uint32_t block = 0;
        std::uint32_t layer = 0;
        DxfHandle handle = 0;
    };
    /// A stretch of the model space: what a surface drew, or inserts.
    struct Part {
        std::unique_ptr<DxfSurface> surface;
        std::vector<PlacedBlock> inserts;
    };

    void Append(DxfTags& out, const PlacedBlock& insert) const;
    void ComposeModelSpace(const base::ByteSink& sink) const;

    /// Surfaces refer to the context, so it stays where it is when the drawing moves.
    std::unique_ptr<DrawingContext> context_;
    DrawingNames blockNames_;
    std::vector<BlockEntry> blocks_;
    std::vector<LayerEntry> layers_;
    std::vector<Part> modelSpace_;
    qmath::Box inserted_;
    DxfHandle modelRecord_ = 0;
    DxfHandle paperRecord_ = 0;
};

} // namespace qsymbol

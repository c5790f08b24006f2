#pragma once

#include "base/byte_sink.h"
#include "qmath/box.h"
#include "qsymbol/drawing/drawing_unit.h"
#include "qsymbol/drawing/dxf_tags.h"
#include "qsymbol/drawing/text_styles.h"

#include <string>
#include <vector>

namespace qsymbol {

/// A block as it stands in the file; names are encoded, coordinates those of the file.
struct DxfBlock {
    std::string name;
    DxfHandle record = 0;
    double baseX = 0;
    double baseY = 0;
    DxfTags entities;
};

/// Everything of a drawing that is not the same in every file.
struct DxfContents {
    DrawingUnit unit = DrawingUnit::Millimetre;
    qmath::Box bounds; ///< in the drawing's unit, y upwards
    std::vector<std::string> layers;
    std::vector<TextStyles::Style> styles;
    std::vector<DxfBlock> blocks;
    DxfHandle modelRecord = 0;
    DxfHandle paperRecord = 0;
    base::Composer modelSpace; ///< its entities
    DxfHandle lastHandle = 0;  ///< the highest one that is in use
};

/// The whole file: header, tables, blocks, entities, objects.
void ComposeDxf(const DxfContents& contents, const base::ByteSink& sink);

} // namespace qsymbol

#include "qsymbol/export/dxf_export.h"

#include "qsymbol/export/entity_writer.h"
#include "qsymbol/geometry/draw_factors.h"
#include "qsymbol/geometry/placement.h"

namespace qsymbol {

void ExportSymbol(const Symbol& symbol, const SymbolPosition& position, double factor,
                  const base::CodePage& codePage, TagSink& out) {
    const Placement placement({symbol.refX, symbol.refY}, position, factor);
    EntityWriter writer(out, codePage, placement, symbol.etagenbreite);
    for (const ElementRecord& element : symbol.elements)
        writer.Write(element);
}

std::unique_ptr<base::File> AppendToDxfFile(const Symbol& symbol, const SymbolPosition& position,
                                            const std::u16string& path, base::FileSystem& files,
                                            const base::CodePage& codePage) {
    std::unique_ptr<base::File> file = files.Open(path, base::OpenMode::Append);
    if (symbol.elements.empty())
        return file;
    TagSink out;
    ExportSymbol(symbol, position, FactorOrOne(LastDrawFactors().screen), codePage, out);
    if (!out.Bytes().empty())
        file->Write(out.Bytes().data(), out.Bytes().size());
    file->Close();
    return nullptr;
}

} // namespace qsymbol

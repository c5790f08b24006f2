#include "qsymbol/export/dxf_export.h"

#include "qsymbol/export/entity_writer.h"
#include "qsymbol/geometry/placement.h"

namespace qsymbol {

void ExportSymbol(const Symbol& symbol, const SymbolPosition& position, double screenFactor,
                  const base::CodePage& codePage, TagSink& out) {
    const Placement placement = SurfaceFreePlacement(Reference(symbol), position, screenFactor);
    EntityWriter writer(out, codePage, placement, symbol.etagenbreite);
    for (const ElementRecord& element : symbol.elements)
        writer.Write(element);
}

std::unique_ptr<base::File> AppendToDxfFile(const Symbol& symbol, const SymbolPosition& position,
                                            double screenFactor, const std::u16string& path,
                                            base::FileSystem& files, const base::CodePage& codePage) {
    std::unique_ptr<base::File> file = files.Open(path, base::OpenMode::Append);
    if (IsEmpty(symbol))
        return file;
    TagSink out;
    ExportSymbol(symbol, position, screenFactor, codePage, out);
    if (!out.Bytes().empty())
        file->Write(out.Bytes().data(), out.Bytes().size());
    file->Close();
    return nullptr;
}

} // namespace qsymbol

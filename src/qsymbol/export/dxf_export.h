#pragma once

#include "base/code_page.h"
#include "base/file_system.h"
#include "qsymbol/export/tag_sink.h"
#include "qsymbol/geometry/symbol_position.h"
#include "qsymbol/model/symbol.h"

#include <memory>
#include <string>

namespace qsymbol {

/// Writes all elements of a placed symbol as DXF entities, scaled by the factor unless it is 0. Errors
/// of EntityWriter::Write.
void ExportSymbol(const Symbol& symbol, const SymbolPosition& position, double screenFactor,
                  const base::CodePage& codePage, TagSink& out);

/// Appends a placed symbol to a DXF file in one write, scaled by the factor unless it is 0.
///
/// A symbol without elements writes nothing, and its file stays open: it is handed to the caller, who may
/// keep it until the symbol goes. Otherwise the file is closed and nullptr returned. Errors of
/// FileSystem::Open, File::Write and File::Close, and of ExportSymbol, which then has appended nothing.
[[nodiscard]] std::unique_ptr<base::File> AppendToDxfFile(const Symbol& symbol,
                                                          const SymbolPosition& position, double screenFactor,
                                                          const std::u16string& path, base::FileSystem& files,
                                                          const base::CodePage& codePage);

} // namespace qsymbol

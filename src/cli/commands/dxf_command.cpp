#include "base/utf8.h"
#include "cli/commands/command.h"
#include "cli/commands/drawing_units.h"
#include "cli/for_each.h"
#include "cli/paths.h"
#include "cli/symbol_files.h"
#include "cli/symbol_io.h"
#include "cli/targets.h"
#include "qsymbol/drawing/catalogue_drawing.h"

#include <memory>

namespace cli {

namespace {

struct DxfArguments {
    std::vector<std::string> paths; ///< the drawing last
    qsymbol::DrawingUnit unit = qsymbol::DrawingUnit::Millimetre;
};

void WriteDrawing(DxfArguments arguments, Run& run) {
    const std::u16string path = base::FromUtf8(arguments.paths.back());
    arguments.paths.pop_back();
    if (Extension(path) != u"dxf")
        WrongUsage("dxf: the drawing's name must end in .dxf");
    Targets targets(run);
    bool claimed = false;
    run.Try(path, [&] {
        targets.Claim(path);
        claimed = true;
    });
    if (!claimed)
        return;
    qsymbol::CatalogueDrawing drawing(arguments.unit);
    std::size_t count = 0;
    const std::vector<SourceFile> files = SymbolFiles(arguments.paths, run.options.recursive);
    ForEach(files, run, [&](const SourceFile& source) {
        const qsymbol::Symbol symbol = ReadSymbol(source.path, run);
        drawing.Add(Name(symbol), source.folder, symbol);
        ++count;
    });
    if (count == 0 && !files.empty())
        return; // all of them failed
    run.Try(path, [&] { targets.Write(path, drawing.Compose()); });
    run.Remark(std::to_string(count) + (count == 1 ? " block\n" : " blocks\n"));
}

} // namespace

void AddDxf(CLI::App& application, Run& run) {
    CLI::App& command =
        AddSubcommand(application, run, "dxf", "Write symbols as the blocks of a complete DXF drawing");
    const auto arguments = std::make_shared<DxfArguments>();
    command.add_option("PATH", arguments->paths, "Symbol files and folders, then the drawing to write")
        ->required()
        ->expected(2, -1);
    AddUnits(command, arguments->unit);
    command.callback([arguments, &run] { WriteDrawing(*arguments, run); });
}

} // namespace cli

#include "base/utf8.h"
#include "cli/commands/command.h"
#include "cli/commands/drawing_units.h"
#include "cli/one_target.h"
#include "cli/paths.h"
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
    qsymbol::CatalogueDrawing drawing(arguments.unit);
    WriteOneTarget(
        {.path = path,
         .add = [&](const SourceFile& source,
                    const qsymbol::Symbol& symbol) { drawing.Add(Name(symbol), source.folder, symbol); },
         .compose = [&] { return drawing.Compose(); },
         .noun = "block"},
        arguments.paths, run);
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

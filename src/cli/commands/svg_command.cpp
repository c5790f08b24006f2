#include "base/utf8.h"
#include "cli/commands/command.h"
#include "cli/for_each.h"
#include "cli/shown.h"
#include "cli/symbol_files.h"
#include "cli/symbol_io.h"
#include "cli/targets.h"
#include "qsymbol/svg/svg_document.h"

#include <memory>

namespace cli {

namespace {

void WritePictures(std::vector<std::string> paths, Run& run) {
    const std::u16string folder = base::FromUtf8(paths.back());
    paths.pop_back();
    Targets targets(run);
    std::size_t written = 0;
    ForEach(SymbolFiles(paths, run), run, [&](const SourceFile& source) {
        const Target picture = targets.Claim(TargetIn(folder, source, u"svg"));
        targets.Write(picture, qsymbol::SymbolSvg(ReadSymbol(source.path, run)));
        ++written;
    });
    run.Remark(Counted(written, "picture") + " written\n");
}

} // namespace

void AddSvg(CLI::App& application, Run& run) {
    CLI::App& command =
        AddSubcommand(application, run, "svg", "Draw symbols as SVG pictures, true to scale, a file each");
    const auto paths = std::make_shared<std::vector<std::string>>();
    command.add_option("PATH", *paths, "Symbol files and folders, then the folder for the pictures")
        ->required()
        ->expected(2, -1);
    command.callback([paths, &run] { WritePictures(*paths, run); });
}

} // namespace cli

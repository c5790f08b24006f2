#include "base/utf8.h"
#include "cli/commands/command.h"
#include "cli/commands/json_output.h"
#include "cli/commands/table.h"
#include "cli/for_each.h"
#include "cli/paths.h"
#include "cli/shown.h"
#include "cli/symbol_files.h"
#include "cli/symbol_io.h"
#include "qsymbol/check/millimetres.h"
#include "qsymbol/check/symbol_summary.h"

#include <filesystem>
#include <memory>

namespace cli {

namespace {

struct InfoArguments {
    std::vector<std::string> paths;
    bool json = false;
};

Json SymbolAsJson(const qsymbol::Symbol& symbol) {
    const qsymbol::SymbolSummary summary = Summarise(symbol);
    return {{"path", base::ToUtf8(symbol.filePath)},
            {"name", base::ToUtf8(Name(symbol))},
            {"format", base::ToUtf8(Extension(symbol.filePath))},
            {"width", symbol.width},
            {"height", symbol.height},
            {"refX", symbol.refX},
            {"refY", symbol.refY},
            {"elements",
             {{"poly", summary.poly},
              {"circle", summary.circle},
              {"arc", summary.arc},
              {"text", summary.text},
              {"undefined", summary.undefined}}},
            {"points", summary.points},
            {"bytes", std::filesystem::file_size(std::filesystem::path(symbol.filePath))}};
}

Table::Line AsLine(const qsymbol::Symbol& symbol) {
    using qsymbol::Millimetres;
    const qsymbol::SymbolSummary summary = Summarise(symbol);
    return {Shown(Name(symbol)),
            base::ToUtf8(Extension(symbol.filePath)),
            Millimetres(symbol.width) + " x " + Millimetres(symbol.height),
            Millimetres(symbol.refX) + ", " + Millimetres(symbol.refY),
            std::to_string(summary.poly),
            std::to_string(summary.circle),
            std::to_string(summary.arc),
            std::to_string(summary.text),
            std::to_string(summary.undefined),
            std::to_string(summary.points)};
}

void Info(const InfoArguments& arguments, Run& run) {
    const std::vector<SourceFile> files = SymbolFiles(arguments.paths, run.options.recursive);
    if (arguments.json) {
        JsonArray array(run);
        ForEach(files, run,
                [&](const SourceFile& file) { array.Add(SymbolAsJson(ReadSymbol(file.path, run))); });
        return;
    }
    Table table;
    table.Add({"Name", "Format", "Size in mm", "Reference", "Poly", "Circle", "Arc", "Text", "Undefined",
               "Points"});
    ForEach(files, run, [&](const SourceFile& file) { table.Add(AsLine(ReadSymbol(file.path, run))); });
    constexpr std::size_t kNameAndFormat = 2;
    run.Print(table.Text(kNameAndFormat));
}

} // namespace

void AddInfo(CLI::App& application, Run& run) {
    CLI::App& command = AddSubcommand(application, run, "info", "Tell what is in symbol files and folders");
    const auto arguments = std::make_shared<InfoArguments>();
    command.add_option("PATH", arguments->paths, "Symbol files (syt, syb, wsc) and folders of them")
        ->required();
    command.add_flag("--json", arguments->json, "As JSON, lengths in 1/100 mm");
    command.callback([arguments, &run] { Info(*arguments, run); });
}

} // namespace cli

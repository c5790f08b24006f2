#include "base/utf8.h"
#include "cli/commands/command.h"
#include "cli/commands/json_line.h"
#include "cli/commands/json_output.h"
#include "cli/commands/table.h"
#include "cli/for_each.h"
#include "cli/paths.h"
#include "cli/shown.h"
#include "cli/symbol_files.h"
#include "cli/symbol_io.h"
#include "qsymbol/check/millimetres.h"
#include "qsymbol/check/symbol_summary.h"

#include <memory>

namespace cli {

namespace {

struct InfoArguments {
    std::vector<std::string> paths;
    bool json = false;
};

std::string AsJson(const Reading& reading, const qsymbol::SymbolSummary& summary) {
    const qsymbol::Symbol& symbol = reading.symbol;
    JsonLine elements;
    elements.Put("poly", summary.poly);
    elements.Put("circle", summary.circle);
    elements.Put("arc", summary.arc);
    elements.Put("text", summary.text);
    elements.Put("undefined", summary.undefined);
    JsonLine line;
    line.Put("path", base::ToUtf8(symbol.filePath));
    line.Put("name", base::ToUtf8(Name(symbol)));
    line.Put("format", base::ToUtf8(Extension(symbol.filePath)));
    line.Put("width", symbol.width);
    line.Put("height", symbol.height);
    line.Put("refX", symbol.refX);
    line.Put("refY", symbol.refY);
    line.Put("elements", elements);
    line.Put("points", summary.points);
    line.Put("bytes", reading.bytes);
    return line.Text();
}

Table::Line AsLine(const qsymbol::Symbol& symbol, const qsymbol::SymbolSummary& summary) {
    using qsymbol::Millimetres;
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
    const std::vector<SourceFile> files = SymbolFiles(arguments.paths, run);
    const base::RegionalSettings settings = run.Settings();
    const auto forEach = [&](const auto& put) {
        ForEach(files, run, [&](const SourceFile& file) {
            qsymbol::SymbolSummary summary;
            const Reading reading =
                ReadWholeSymbolFile(file.path, settings, run.OnSystem(),
                                    [&](const qsymbol::ElementRecord& element) { summary.Count(element); });
            put(reading, summary);
        });
    };
    if (arguments.json) {
        JsonArray array(run);
        forEach([&](const Reading& reading, const qsymbol::SymbolSummary& summary) {
            array.AddText(AsJson(reading, summary));
        });
        return;
    }
    Table table;
    table.Add({"Name", "Format", "Size in mm", "Reference", "Poly", "Circle", "Arc", "Text", "Undefined",
               "Points"});
    forEach([&](const Reading& reading, const qsymbol::SymbolSummary& summary) {
        table.Add(AsLine(reading.symbol, summary));
    });
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

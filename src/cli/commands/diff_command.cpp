#include "base/file_content.h"
#include "base/utf8.h"
#include "cli/commands/command.h"
#include "cli/commands/difference_text.h"
#include "cli/commands/json_output.h"
#include "cli/for_each.h"
#include "cli/paths.h"
#include "cli/symbol_files.h"
#include "cli/symbol_io.h"
#include "qmath/str_util.h"
#include "qsymbol/compare/catalogue_difference.h"
#include "qsymbol/compare/decimal_separator.h"

#include <memory>

namespace cli {

namespace {

using qsymbol::CatalogueDifference;
using qsymbol::CatalogueSymbol;

struct DiffArguments {
    std::string before;
    std::string after;
    bool json = false;
};

/// What git names where a file is new or gone.
constexpr std::string_view kNoFile = "/dev/null";

/// The conventions of a file: those of --decimal, else the separator that the file itself holds.
base::RegionalSettings SettingsFor(const std::u16string& path, const Run& run) {
    if (run.options.decimal != Decimal::User || Extension(path) != u"syt")
        return run.Settings();
    const std::string bytes = base::FileContent(run.OnSystem().files, path).Release();
    return qsymbol::DecimalSeparatorOf(bytes) == ',' ? CommaSettings() : PointSettings();
}

std::vector<CatalogueSymbol> ReadSide(const std::string& path, Run& run) {
    std::vector<CatalogueSymbol> side;
    if (path == kNoFile)
        return side;
    ForEach(SymbolFiles({path}, run.options.recursive), run, [&](const SourceFile& file) {
        const std::u16string name(qmath::NameWithoutExtension(qmath::FileNamePart(file.path)));
        side.push_back({file.folder.empty() ? name : Join(file.folder, name), Extension(file.path) == u"syt",
                        ReadSymbol(file.path, SettingsFor(file.path, run), run.OnSystem())});
    });
    return side;
}

/// Two files are one symbol, whatever their names are.
std::vector<CatalogueDifference> CompareFiles(const std::vector<CatalogueSymbol>& before,
                                              const std::vector<CatalogueSymbol>& after) {
    if (before.empty() || after.empty())
        return Compare(before, after);
    qsymbol::SymbolDifference changes =
        Compare(before[0].symbol, after[0].symbol, PrecisionOf(before[0], after[0]));
    if (changes.IsEmpty())
        return {};
    return {{after[0].name, after[0].name, std::move(changes)}};
}

/// What is compared; a path under which there is nothing is told of when it is read.
bool BothAreFolders(const DiffArguments& arguments) {
    const std::u16string before = base::FromUtf8(arguments.before);
    const std::u16string after = base::FromUtf8(arguments.after);
    if (IsFolder(before) != IsFolder(after) && Exists(before) && Exists(after))
        WrongUsage("diff: both must be files, or both folders");
    return IsFolder(before) && IsFolder(after);
}

void Diff(const DiffArguments& arguments, Run& run) {
    const bool folders = BothAreFolders(arguments);
    const std::vector<CatalogueSymbol> before = ReadSide(arguments.before, run);
    const std::vector<CatalogueSymbol> after = ReadSide(arguments.after, run);
    std::vector<CatalogueDifference> differences;
    if (folders)
        differences = Compare(before, after);
    else if (!run.Failed())
        differences = CompareFiles(before, after);
    if (!differences.empty())
        run.Found();
    std::optional<JsonArray> array;
    if (arguments.json)
        array.emplace(run);
    for (const CatalogueDifference& difference : differences) {
        if (!array)
            run.Print(AsText(difference));
        else
            for (const Json& item : AsJson(difference))
                array->Add(item);
    }
}

} // namespace

void AddDiff(CLI::App& application, Run& run) {
    CLI::App& command =
        AddSubcommand(application, run, "diff", "Tell what changed between two symbols or two catalogues");
    const auto arguments = std::make_shared<DiffArguments>();
    command.add_option("OLD", arguments->before, "A symbol file or a folder")->required();
    command.add_option("NEW", arguments->after, "A symbol file or a folder")->required();
    command.add_flag("--json", arguments->json, "As JSON, lengths in 1/100 mm");
    command.callback([arguments, &run] { Diff(*arguments, run); });
}

} // namespace cli

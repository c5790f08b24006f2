#include "base/file_content.h"
#include "base/letter_case.h"
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
#include <unordered_set>
#include <utility>

namespace cli {

namespace {

using qsymbol::CatalogueDifference;
using qsymbol::CatalogueSymbol;

using Names = std::unordered_set<std::u16string>; ///< in upper case

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

/// A symbol's name with its subfolder.
std::u16string NameOf(const SourceFile& file) {
    return Join(file.folder, qmath::NameWithoutExtension(qmath::FileNamePart(file.path)));
}

/// The symbols of a path; the names of those that failed go into `failed`.
std::vector<CatalogueSymbol> ReadSide(const std::string& path, Run& run, Names& failed) {
    std::vector<CatalogueSymbol> side;
    if (path == kNoFile)
        return side;
    ForEach(
        SymbolFiles({path}, run), run,
        [&](const SourceFile& file) {
            const base::RegionalSettings settings = SettingsFor(file.path, run);
            side.push_back({NameOf(file), Extension(file.path) == u"syt",
                            ReadWholeSymbolFile(file.path, settings, run.OnSystem()).symbol});
        },
        [&](const SourceFile& file, const base::Error&) { failed.insert(base::UpperCase(NameOf(file))); });
    return side;
}

/// What is there on the other side but could not be read is neither new nor gone on this one.
void LeaveOut(std::vector<CatalogueSymbol>& side, Names failed, const std::vector<CatalogueSymbol>& other) {
    for (const CatalogueSymbol& symbol : other)
        failed.erase(base::UpperCase(symbol.name));
    std::erase_if(
        side, [&](const CatalogueSymbol& symbol) { return failed.contains(base::UpperCase(symbol.name)); });
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
    Names failedBefore;
    Names failedAfter;
    std::vector<CatalogueSymbol> before = ReadSide(arguments.before, run, failedBefore);
    std::vector<CatalogueSymbol> after = ReadSide(arguments.after, run, failedAfter);
    LeaveOut(before, std::move(failedAfter), after);
    LeaveOut(after, std::move(failedBefore), before);
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

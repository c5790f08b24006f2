#include "base/utf8.h"
#include "cli/commands/command.h"
#include "cli/for_each.h"
#include "cli/paths.h"
#include "cli/shown.h"
#include "cli/symbol_files.h"
#include "cli/symbol_io.h"
#include "cli/targets.h"

#include <memory>

namespace cli {

namespace {

struct ConvertArguments {
    std::string source;
    std::string target;
    std::string to; ///< "syt", "syb", or "" for a file
};

void Convert(const ConvertArguments& arguments, Run& run) {
    const std::u16string target = base::FromUtf8(arguments.target);
    const std::u16string to = base::FromUtf8(arguments.to);
    const bool fromFolder = IsFolder(base::FromUtf8(arguments.source));
    if (fromFolder && to.empty())
        WrongUsage("convert: a folder needs --to syt or --to syb");
    // A file goes under the target's name, or under its own into a folder that is there or ends with a separator.
    const bool isFolder = IsFolder(target) || (!target.empty() && FolderOf(target) == target);
    const bool intoFolder = fromFolder || (!to.empty() && isFolder);
    if (!intoFolder && !to.empty() && Extension(target) != to && Exists(base::FromUtf8(arguments.source)))
        WrongUsage("convert: --to and the target's extension differ");
    Targets targets(run);
    std::size_t written = 0;
    ForEach(SymbolFiles({arguments.source}, run), run, [&](const SourceFile& source) {
        const std::u16string path = intoFolder ? TargetIn(target, source, to) : target;
        if (!IsWritable(path))
            throw FailureOf(path, UnusableExtension());
        const Target claimed = targets.Claim(path);
        targets.Write(claimed, Compose(ReadSymbol(source.path, run), path, run));
        ++written;
    });
    run.Remark(Counted(written, "file") + " written\n");
}

} // namespace

void AddConvert(CLI::App& application, Run& run) {
    CLI::App& command =
        AddSubcommand(application, run, "convert", "Convert a file, or all files of a folder");
    const auto arguments = std::make_shared<ConvertArguments>();
    command.add_option("SOURCE", arguments->source, "A symbol file or a folder")->required();
    command
        .add_option("TARGET", arguments->target, "The file to write, or the folder for the files of a folder")
        ->required();
    command.add_option("--to", arguments->to, "The format to write for a folder")
        ->check(CLI::IsMember({"syt", "syb"}).description(""))
        ->type_name("syt|syb");
    command.callback([arguments, &run] { Convert(*arguments, run); });
}

} // namespace cli

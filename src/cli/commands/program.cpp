#include "cli/commands/program.h"

#include "cli/commands/choice.h"
#include "cli/commands/command.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>
#include <array>

namespace cli {

namespace {

constexpr int kWrongUsage = 2;

constexpr std::array kCommands = {AddInfo,    AddCheck, AddConvert, AddSvg,
                                  AddGallery, AddDxf,   AddPlan,    AddDiff};

void AddCommonOptions(CLI::App& application, Options& options) {
    application.add_flag("-r,--recursive", options.recursive, "Also the subfolders of folders");
    application.add_flag("-f,--force", options.overwrite, "Overwrite existing targets");
    application.add_flag("-q,--quiet", options.quiet, "Failures and asked-for results only");
    AddChoice<Decimal>(application, "--decimal", options.decimal,
                       {{"comma", Decimal::Comma}, {"point", Decimal::Point}},
                       "The decimal separator in text files; else what the user's settings say");
}

void Put(std::FILE* stream, std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), stream);
}

} // namespace

CLI::App& AddSubcommand(CLI::App& application, Run& run, const char* name, const char* description) {
    CLI::App& command = *application.add_subcommand(name, description);
    AddCommonOptions(command, run.options);
    return command;
}

void WrongUsage(const std::string& text) {
    throw CLI::ValidationError(text, kWrongUsage);
}

int RunProgram(const std::vector<std::string>& arguments, const System& system) {
    Run run(system);
    CLI::App application("Looks after catalogues of plan symbols.", "qsymbol");
    application.allow_windows_style_options(false);
    application.set_version_flag("--version", [&] { return std::string("qsymbol ") += system.version; });
    application.require_subcommand(1);
    application.get_formatter()->label("REQUIRED", "");
    application.get_formatter()->label("TEXT", "");
    AddCommonOptions(application, run.options);
    for (const AddCommand add : kCommands)
        add(application, run);
    try {
        std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
        application.parse(std::move(reversed));
    } catch (const CLI::CallForHelp&) {
        run.Print(application.help()); // of the subcommand that was named, if one was
    } catch (const CLI::CallForVersion& version) {
        run.Print(version.what());
        run.Print("\n");
    } catch (const CLI::ParseError& error) {
        Put(system.errors, "qsymbol: ");
        Put(system.errors, error.what());
        Put(system.errors, "\nRun \"qsymbol --help\" or \"qsymbol COMMAND --help\".\n");
        return kWrongUsage;
    }
    return run.Finish();
}

} // namespace cli

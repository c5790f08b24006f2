#include "cli/commands/program.h"
#include "cli/host.h"

#include <exception>

int main(int count, char** values) {
    try {
        cli::PrepareStreams();
        const auto files = cli::SystemFiles();
        const auto codePage = cli::SystemCodePage();
        const cli::System system{*files,         *codePage, cli::UserSettings(),
                                 stdout,         stderr,    cli::ErrorsGoToATerminal(),
                                 QSYMBOL_VERSION};
        return cli::RunProgram(cli::Arguments(count, values), system);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "qsymbol: %s\n", error.what());
        return 1;
    }
}

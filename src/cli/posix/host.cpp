#include "cli/host.h"

#include "platform/posix/environment_settings.h"
#include "platform/posix/posix_file_system.h"
#include "platform/posix/windows_1252.h"

#include <unistd.h>

namespace cli {

std::vector<std::string> Arguments(int count, char** values) {
    return {values + (count > 0 ? 1 : 0), values + count};
}

void PrepareStreams() {}

bool ErrorsGoToATerminal() {
    return isatty(STDERR_FILENO) == 1;
}

std::unique_ptr<base::FileSystem> SystemFiles() {
    return std::make_unique<platform::PosixFileSystem>();
}

std::unique_ptr<base::CodePage> SystemCodePage() {
    return std::make_unique<platform::Windows1252>();
}

base::RegionalSettings UserSettings() {
    return platform::EnvironmentSettings();
}

} // namespace cli

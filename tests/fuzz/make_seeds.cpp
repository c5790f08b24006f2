#include "platform/posix/fixed_regional_settings.h"
#include "platform/posix/posix_file_system.h"
#include "platform/posix/windows_1252.h"
#include "qsymbol/files/binary_writer.h"
#include "qsymbol/files/symbol_file.h"
#include "support/command_oracle.h"
#include "support/silent_prompt.h"
#include "support/string_table.h"
#include "support/temp_folder.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kSeeds = 12;

/// The smallest files of a folder and its subfolders with this extension: a fuzzer does best with small seeds.
std::vector<fs::path> Smallest(const fs::path& folder, const char* extension) {
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder))
        if (entry.path().extension() == extension)
            files.push_back(entry.path());
    const auto smaller = [](const fs::path& a, const fs::path& b) {
        return std::pair(fs::file_size(a), a.filename()) < std::pair(fs::file_size(b), b.filename());
    };
    std::sort(files.begin(), files.end(), smaller);
    files.resize(std::min(files.size(), kSeeds));
    return files;
}

void Write(const fs::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

void MakeNumbers(const fs::path& folder) {
    constexpr std::array kNumbers = {"0",           "-1,50",
                                     "+1.234,56",   " 12 ",
                                     "21474836,47", "1e400",
                                     "-2,5E-3",     "0,125",
                                     "99999999,9",  "1,7976931348623157e308",
                                     ",5",          "123456789012345678",
                                     "5e-324"};
    fs::create_directories(folder);
    for (std::size_t i = 0; i < kNumbers.size(); ++i)
        Write(folder / ("number-" + std::to_string(i)), kNumbers[i]);
}

void MakeSymbols(const fs::path& folder) {
    fs::create_directories(folder);
    std::mt19937 random(1);
    for (std::size_t i = 0; i < kSeeds; ++i) {
        std::string bytes(20 + 30 * i, '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(random() % 256);
        Write(folder / ("symbol-" + std::to_string(i)), bytes);
    }
}

/// A small file of each format for each command; the first byte chooses, as support::BrokenCommandPromise says.
void MakeCommands(const fs::path& seeds) {
    constexpr std::array kFormats = {"text_reader", "binary_reader", "import_reader"};
    fs::create_directories(seeds / "command");
    for (std::size_t choice = 0; choice < kFormats.size() * support::CommandCount(); ++choice) {
        const std::size_t command = choice / kFormats.size();
        const fs::path symbol =
            seeds / kFormats[choice % kFormats.size()] / ("symbol-" + std::to_string(command % kSeeds));
        Write(seeds / "command" / ("file-" + std::to_string(choice)),
              static_cast<char>(choice) + support::BytesOf(symbol));
    }
}

/// Stretches of the sample plan behind its first record, and some odd ones.
void MakePlans(const fs::path& samples, const fs::path& folder) {
    fs::create_directories(folder);
    std::ifstream plan(samples / "planhost/wohnung.plan");
    std::vector<std::string> lines;
    for (std::string line; std::getline(plan, line);)
        if (!line.starts_with("PLAN;"))
            lines.push_back(line);
    const std::size_t stretch = lines.size() / kSeeds;
    for (std::size_t i = 0; i < kSeeds; ++i) {
        std::string bytes = i % 3 == 0 ? "\xEF\xBB\xBF" : "";
        const std::string end = i % 2 == 0 ? "\n" : "\r\n";
        bytes += "PLAN;Haus;16700;13800" + end;
        for (std::size_t line = i * stretch; line < (i + 1) * stretch; ++line)
            bytes += lines[line] + end;
        bytes += "SYMBOL;Ofen;-0.5;21474836.47;" + std::to_string(0.1 * static_cast<double>(i)) +
                 (i % 4 == 0 ? "" : end);
        Write(folder / ("plan-" + std::to_string(i)), bytes);
    }
}

} // namespace

/// make_seeds SAMPLES SEEDS: what the fuzzers start from, out of the sample symbols.
int main(int count, char** arguments) {
    if (count != 3) {
        std::fputs("usage: make_seeds SAMPLES SEEDS\n", stderr);
        return 2;
    }
    const fs::path samples = arguments[1];
    const fs::path seeds = arguments[2];
    platform::PosixFileSystem files;
    const platform::Windows1252 codePage;
    const support::StringTable strings;
    support::SilentPrompt prompt;
    const qsymbol::FileEnvironment environment{files, codePage, platform::GermanSettings(), strings, prompt};

    fs::create_directories(seeds / "text_reader");
    fs::create_directories(seeds / "binary_reader");
    fs::create_directories(seeds / "import_reader");
    int number = 0;
    for (const fs::path& path : Smallest(samples / "katalog", ".syt")) {
        const std::string name = "symbol-" + std::to_string(number++);
        fs::copy_file(path, seeds / "text_reader" / name, fs::copy_options::overwrite_existing);
        qsymbol::Symbol symbol;
        symbol.filePath = path.u16string();
        ReadFromFile(symbol, environment);
        Write(seeds / "binary_reader" / name, ComposeBinary(symbol, environment));
    }
    number = 0;
    for (const fs::path& path : Smallest(samples / "wsc", ".wsc"))
        fs::copy_file(path, seeds / "import_reader" / ("symbol-" + std::to_string(number++)),
                      fs::copy_options::overwrite_existing);
    MakeNumbers(seeds / "number_reader");
    MakeSymbols(seeds / "symbol_writer");
    MakeCommands(seeds);
    MakePlans(samples, seeds / "plan_reader");
    return 0;
}

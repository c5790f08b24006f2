#include "support/command_oracle.h"

#include "cli/commands/program.h"
#include "cli/symbol_io.h"
#include "platform/posix/fixed_regional_settings.h"
#include "platform/posix/posix_file_system.h"
#include "platform/posix/windows_1252.h"
#include "support/allocation_counter.h"
#include "support/temp_folder.h"
#include "support/text_round_trip.h"
#include "support/xml_fault.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>

namespace support {

namespace fs = std::filesystem;

namespace {

using Fault = std::string (*)(std::string_view);

/// What one run of the program gave.
struct Outcome {
    int status = 0;
    std::string output;
    std::string errors;
    std::size_t memory = 0; ///< most that it held
};

/// A stream into memory.
class MemoryStream {
public:
    MemoryStream() : stream_(open_memstream(&bytes_, &size_)) {}
    MemoryStream(const MemoryStream&) = delete;
    MemoryStream& operator=(const MemoryStream&) = delete;
    ~MemoryStream() {
        std::fclose(stream_);
        std::free(bytes_);
    }
    std::FILE* Stream() { return stream_; }
    std::string Text() {
        std::fflush(stream_);
        return {bytes_, size_};
    }

private:
    char* bytes_ = nullptr;
    std::size_t size_ = 0;
    std::FILE* stream_;
};

Outcome RunProgram(const std::vector<std::string>& arguments) {
    platform::PosixFileSystem files;
    const platform::Windows1252 codePage;
    MemoryStream output;
    MemoryStream errors;
    const cli::System system{files, codePage, platform::GermanSettings(), output.Stream(), errors.Stream(),
                             false, "0.0.0"};
    Outcome outcome;
    {
        const AllocationCounter memory;
        outcome.status = cli::RunProgram(arguments, system);
        outcome.memory = memory.Peak();
    }
    outcome.output = output.Text();
    outcome.errors = errors.Text();
    return outcome;
}

std::string JsonFault(std::string_view text) {
    return nlohmann::json::accept(text) ? "" : "JSON";
}

std::string TextFault(std::string_view text) {
    return IsUtf8(text) ? "" : "UTF-8";
}

/// The pictures in a page; around them is a template and texts, which show no bracket of their own.
std::string PageFault(std::string_view page) {
    std::size_t pictures = 0;
    for (std::size_t at = page.find("<li data-w"); at != std::string_view::npos;
         at = page.find("<li data-w", at + 1)) {
        const std::size_t end = page.find("</li>", at);
        if (end == std::string_view::npos)
            return "card without an end";
        if (std::string fault = XmlFault(page.substr(at, end + 5 - at)); !fault.empty())
            return "page: " + fault;
        ++pictures;
    }
    return pictures == 1 ? TextFault(page) : "cards";
}

/// Codes and values line by line, from the first section to the end of the file.
std::string DrawingFault(std::string_view drawing) {
    std::string_view last;
    while (!drawing.empty()) {
        std::array<std::string_view, 2> pair;
        for (std::string_view& line : pair) {
            const std::size_t end = drawing.find('\n');
            if (end == std::string_view::npos)
                return "drawing: a line without an end";
            line = drawing.substr(0, end);
            if (line.ends_with('\r'))
                line.remove_suffix(1);
            drawing.remove_prefix(end + 1);
        }
        std::string_view digits = pair[0];
        digits.remove_prefix(std::min(digits.find_first_not_of(' '), digits.size()));
        int code = -1;
        const char* const end = digits.data() + digits.size();
        if (std::from_chars(digits.data(), end, code).ptr != end || code < 0 || code > 1071)
            return "drawing: code " + std::string(pair[0]);
        const auto control = [](char byte) { return static_cast<unsigned char>(byte) < 0x20; };
        if (std::any_of(pair[1].begin(), pair[1].end(), control))
            return "drawing: a control character";
        last = code == 0 ? pair[1] : "";
    }
    return last == "EOF" ? "" : "drawing without an end";
}

/// One way to send a file through the program. IN, OUT and PLAIN stand for paths.
struct Command {
    std::vector<std::string> words;
    Fault output = TextFault; ///< of the standard output
    const char* target = "";  ///< the file that is written, below the folder of targets
    Fault written = nullptr;  ///< of that file
    bool mayDiffer = false;   ///< status 1 without a failure
};

std::string NoFault(std::string_view) {
    return {};
}

const std::vector<Command>& Commands() {
    static const std::vector<Command> commands = {
        {.words = {"info", "IN"}},
        {.words = {"info", "--json", "IN"}, .output = JsonFault},
        {.words = {"check", "IN"}, .mayDiffer = true},
        {.words = {"check", "--json", "IN"}, .output = JsonFault, .mayDiffer = true},
        {.words = {"convert", "IN", "OUT/x.syt"}, .target = "x.syt", .written = NoFault},
        {.words = {"convert", "IN", "OUT/x.syb"}, .target = "x.syb", .written = NoFault},
        {.words = {"svg", "IN", "OUT"}, .target = "in.svg", .written = XmlFault},
        {.words = {"gallery", "FOLDER", "OUT/x.html"}, .target = "x.html", .written = PageFault},
        {.words = {"dxf", "IN", "OUT/x.dxf"}, .target = "x.dxf", .written = DrawingFault},
        {.words = {"diff", "--json", "IN", "IN"}, .output = JsonFault},
        {.words = {"diff", "IN", "PLAIN"}, .mayDiffer = true},
        {.words = {"diff", "--json", "PLAIN", "IN"}, .output = JsonFault, .mayDiffer = true},
    };
    return commands;
}

/// Where the files of all runs lie, one after the other.
struct Workplace {
    TempFolder folder;
    fs::path source = folder.Path() / "source";
    fs::path target = folder.Path() / "target";
    fs::path plain = folder.Path() / "plain.syt";

    Workplace() {
        PutBytes(plain, "SYM;CNT=1;WID=1,00;HEI=1,00;RPX=0,00;RPY=0,00\r\nCIRCLE;COL=0;WID=0,00;MPX=1,00;MPY="
                        "1,00;RAD=1,00;FIL=-1\r\n");
    }
    std::string PathOf(const std::string& word, const fs::path& in) const {
        if (word == "IN")
            return in.string();
        if (word == "FOLDER")
            return source.string();
        if (word == "PLAIN")
            return plain.string();
        return word.starts_with("OUT") ? target.string() + word.substr(3) : word;
    }
};

/// Every line of the error stream is a failure of a file with an error of the formats.
std::string FailuresFault(std::string_view errors) {
    constexpr std::array<std::string_view, 7> kNumbers = {"6", "7", "9", "13", "62", "3501", "3502"};
    if (!IsUtf8(errors))
        return "UTF-8 of failures";
    while (!errors.empty()) {
        const std::size_t end = errors.find('\n');
        const std::string_view line = errors.substr(0, end);
        const std::size_t at = line.find(": error ");
        if (!line.starts_with("qsymbol: ") || at == std::string_view::npos || end == std::string_view::npos)
            return "failure: " + std::string(line);
        const std::string_view number = line.substr(at + 8, line.find(':', at + 8) - at - 8);
        if (std::find(kNumbers.begin(), kNumbers.end(), number) == kNumbers.end())
            return "failure: " + std::string(line);
        errors.remove_prefix(end + 1);
    }
    return {};
}

/// True for a symbol that text cannot keep: of two corners that are closed it makes a rectangle, a text ends at a semicolon.
bool LosesAsText(const qsymbol::Symbol& symbol) {
    const qsymbol::Symbol kept = support::AfterText(symbol, platform::Windows1252());
    return !std::equal(symbol.elements.begin(), symbol.elements.end(), kept.elements.begin(),
                       [](const auto& a, const auto& b) {
                           return a.points == b.points && a.text == b.text && a.type == b.type;
                       });
}

/// Whatever the formats, what was converted is the same symbol. One without elements is written, but its format may
/// want some: error 9.
std::string ConversionFault(const fs::path& in, const fs::path& out) {
    const Outcome outcome = RunProgram({"diff", in.string(), out.string()});
    platform::PosixFileSystem files;
    const platform::Windows1252 codePage;
    const cli::System system{files, codePage, platform::GermanSettings(), stdout, stderr, false, ""};
    const qsymbol::Symbol symbol =
        cli::ReadWholeSymbolFile(in.u16string(), system.userSettings, system).symbol;
    const bool refused = symbol.elements.empty() && outcome.errors.find(": error 9: ") != std::string::npos;
    const bool lost = out.extension() == ".syt" && LosesAsText(symbol);
    return outcome.status == 0 || refused || lost
               ? ""
               : "converted and different: " + outcome.output + outcome.errors;
}

} // namespace

std::size_t CommandCount() {
    return Commands().size();
}

std::string BrokenCommandPromise(std::size_t number, std::string_view extension, std::string_view bytes) {
    static const Workplace place;
    const Command& command = Commands()[number];
    for (const fs::path& folder : {place.source, place.target}) {
        fs::remove_all(folder);
        fs::create_directory(folder);
    }
    const fs::path in = place.source / ("in." + std::string(extension));
    PutBytes(in, bytes);
    std::vector<std::string> words;
    for (const std::string& word : command.words)
        words.push_back(place.PathOf(word, in));

    const Outcome outcome = RunProgram(words);
    const bool failed = !outcome.errors.empty();
    if (outcome.status != 0 && outcome.status != 1)
        return "status " + std::to_string(outcome.status);
    if ((failed && outcome.status == 0) || (!failed && outcome.status == 1 && !command.mayDiffer))
        return "status " + std::to_string(outcome.status) + ": " + outcome.output + outcome.errors;
    // A picture of all points that memory may hold takes several times as much in words.
    if (outcome.memory > (std::size_t{1} << 30) + 64 * bytes.size())
        return "memory bound: " + std::to_string(outcome.memory);
    for (const std::string& fault : {FailuresFault(outcome.errors), command.output(outcome.output)})
        if (!fault.empty())
            return fault;

    const bool writes = command.written != nullptr;
    const auto there = std::distance(fs::directory_iterator(place.target), fs::directory_iterator());
    if (there != (writes && !failed ? 1 : 0))
        return std::to_string(there) + " files written";
    if (there == 0)
        return {};
    const fs::path target = place.target / command.target;
    if (std::string fault = command.written(BytesOf(target)); !fault.empty())
        return fault;
    return command.words[0] == "convert" ? ConversionFault(in, target) : "";
}

std::string BrokenCommandPromise(std::string_view input) {
    constexpr std::array<std::string_view, 3> kExtensions = {"syt", "syb", "wsc"};
    if (input.empty())
        return {};
    const std::size_t choice = static_cast<unsigned char>(input[0]) % (kExtensions.size() * CommandCount());
    return BrokenCommandPromise(choice / kExtensions.size(), kExtensions[choice % kExtensions.size()],
                                input.substr(1));
}

} // namespace support

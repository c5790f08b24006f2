#include "support/file_oracles.h"

#include "base/error.h"
#include "platform/posix/fixed_regional_settings.h"
#include "platform/posix/windows_1252.h"
#include "qmath/str_util.h"
#include "qsymbol/files/binary_reader.h"
#include "qsymbol/files/binary_writer.h"
#include "qsymbol/files/symbol_format.h"
#include "qsymbol/files/text_reader.h"
#include "qsymbol/files/text_writer.h"
#include "qsymbol/files/wsc_reader.h"
#include "support/allocation_counter.h"
#include "support/string_table.h"
#include "support/text_round_trip.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace support {

using qsymbol::Symbol;

namespace {

using Parse = decltype(qsymbol::SymbolFormat::parse);

struct World {
    platform::Windows1252 codePage;
    StringTable strings;
    base::RegionalSettings regional = platform::GermanSettings();
    qsymbol::FormatRules rules{codePage, regional, strings};
};

struct Reading {
    Symbol symbol;
    std::int32_t error = 0;
    std::u16string notice;
    std::string broken; ///< the promise that was not kept
};

/// Reads, holding the reading against the memory bound and against the errors that the format has.
Reading Read(Parse parse, std::string_view bytes, World& world, std::initializer_list<std::int32_t> errors) {
    Reading reading;
    const AllocationCounter memory;
    try {
        reading.notice = parse(reading.symbol, bytes, world.rules);
    } catch (const base::Error& error) {
        reading.error = error.Number();
    }
    // The file's own bytes belong to the bound and are held by the caller here.
    if (memory.Peak() + bytes.size() > (std::size_t{64} << 20) + 64 * bytes.size())
        reading.broken = "memory bound";
    else if (reading.error != 0 && std::find(errors.begin(), errors.end(), reading.error) == errors.end())
        reading.broken = "error " + std::to_string(reading.error);
    return reading;
}

/// False for a symbol that a few bytes made large by their counts alone: writing it out would take seconds.
bool IsSmall(const Symbol& symbol) {
    std::size_t items = symbol.elements.size();
    for (const qsymbol::ElementRecord& element : symbol.elements)
        items += element.points.size();
    return items <= 20000;
}

base::RegionalSettings SettingsFor(std::string_view bytes) {
    return bytes.size() % 2 == 0 ? platform::GermanSettings() : platform::EnglishSettings();
}

/// What ComposeText and then ParseText make of the symbol. An error of either reaches the caller.
Symbol ThroughText(const Symbol& symbol, std::string& text, const World& world) {
    text = ComposeText(symbol, world.rules);
    Symbol back;
    ParseText(back, text, world.rules);
    return back;
}

std::string BrokenTextRoundTrip(const Symbol& symbol, const World& world) {
    std::string first;
    if (IsLostInText(symbol)) {
        try {
            ThroughText(symbol, first, world);
        } catch (const base::Error& error) {
            return error.Number() == 9 ? "" : "an unreadable text form with the wrong error";
        }
        return "a text form that should not read back";
    }
    Symbol expected = AfterText(symbol);
    const Symbol back = ThroughText(symbol, first, world);
    if (!EqualInText(back, expected))
        return "text round trip";
    if (!AnglesAreModest(symbol))
        return "";
    std::string second;
    if (ThroughText(back, second, world) != back)
        return "second text round trip";
    return second == first || expected.elements != symbol.elements ? "" : "bytes of the second text";
}

std::string BrokenBinaryRoundTrip(const Symbol& symbol, const World& world) {
    const std::string first = ComposeBinary(symbol, world.rules);
    Symbol back;
    ParseBinary(back, first, world.rules);
    Symbol expected = symbol;
    for (qsymbol::ElementRecord& element : expected.elements)
        if (!element.font)
            element.font.emplace();
    // Bytes and not values are compared, for an angle may be no number.
    return ComposeBinary(back, world.rules) == ComposeBinary(expected, world.rules) ? ""
                                                                                    : "binary round trip";
}

std::size_t FigureLines(std::string_view bytes) {
    constexpr std::array<std::string_view, 7> kFigures = {"EFL", "STR", "STF", "FLA", "ELL", "EBO", "PIE"};
    std::size_t count = 0;
    while (!bytes.empty()) {
        const std::size_t end = std::min(bytes.find('\n'), bytes.size());
        std::string_view line = bytes.substr(0, end);
        if (end < bytes.size() && line.ends_with('\r'))
            line.remove_suffix(1);
        const std::string_view keyword = line.substr(0, line.find(' '));
        count += std::find(kFigures.begin(), kFigures.end(), keyword) != kFigures.end() ? 1 : 0;
        bytes.remove_prefix(std::min(end + 1, bytes.size()));
    }
    return count;
}

} // namespace

std::string BrokenTextPromise(std::string_view bytes) {
    World world;
    world.regional = SettingsFor(bytes);
    const Reading reading = Read(qsymbol::ParseText, bytes, world, {6, 7, 9, 13, 3501, 3502});
    if (!reading.broken.empty() || reading.error != 0 || !IsSmall(reading.symbol))
        return reading.broken;
    return BrokenTextRoundTrip(reading.symbol, world);
}

std::string BrokenBinaryPromise(std::string_view bytes) {
    World world;
    const Reading reading = Read(qsymbol::ParseBinary, bytes, world, {7, 9, 62, 3501});
    if (!reading.broken.empty() || reading.error != 0 || !IsSmall(reading.symbol))
        return reading.broken;
    return BrokenBinaryRoundTrip(reading.symbol, world);
}

std::string BrokenImportPromise(std::string_view bytes) {
    World world;
    world.regional = SettingsFor(bytes);
    const Reading reading = Read(qsymbol::ParseWsc, bytes, world, {6, 7, 9, 13, 62, 3501});
    if (!reading.broken.empty())
        return reading.broken;
    const Symbol& symbol = reading.symbol;
    if (reading.error != 0)
        return "";
    if (symbol.elements.empty())
        return !reading.notice.empty() && symbol == Symbol() ? "" : "an empty symbol without a notice";
    if (symbol.elements.size() != FigureLines(bytes) || symbol.refX != 5000 || symbol.refY != 5000)
        return "an element for each figure line";
    const std::string broken = BrokenBinaryRoundTrip(symbol, world);
    return broken.empty() ? BrokenTextRoundTrip(symbol, world) : broken;
}

} // namespace support

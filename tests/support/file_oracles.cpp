#include "support/file_oracles.h"

#include "base/error.h"
#include "platform/posix/fixed_regional_settings.h"
#include "platform/posix/windows_1252.h"
#include "qmath/str_util.h"
#include "qsymbol/files/binary_reader.h"
#include "qsymbol/files/binary_writer.h"
#include "qsymbol/files/symbol_file.h"
#include "qsymbol/files/symbol_format.h"
#include "qsymbol/files/text_reader.h"
#include "qsymbol/files/text_writer.h"
#include "support/allocation_counter.h"
#include "support/arbitrary_symbol.h"
#include "support/string_table.h"
#include "support/text_round_trip.h"

#include <algorithm>
#include <array>
#include <functional>
#include <initializer_list>

namespace support {

using qsymbol::Symbol;

namespace {

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

/// False for a symbol that a few bytes made large by their counts alone: writing it out would take seconds.
bool IsSmall(const Symbol& symbol) {
    std::size_t items = symbol.elements.size();
    for (const qsymbol::ElementRecord& element : symbol.elements)
        items += element.points.size();
    return items <= 20000;
}

/// Old content that no file can have: its characters are in no code page, its numbers depend on the file.
Symbol OldContent(const char16_t* path, std::string_view bytes) {
    Symbol old;
    const auto number = static_cast<std::int32_t>(std::hash<std::string_view>()(bytes) | 1U << 30);
    old.refX = old.refY = old.width = old.height = old.etagenbreite = number;
    old.elements.resize(3);
    for (qsymbol::ElementRecord& element : old.elements) {
        element.text = u"\uE000";
        element.font.emplace().name = u"\uE000";
    }
    old.filePath = path;
    return old;
}

bool HoldsOldContent(const Symbol& symbol, const Symbol& old) {
    const auto isOld = [](const qsymbol::ElementRecord& element) {
        return element.text == u"\uE000" || (element.font && element.font->name == u"\uE000");
    };
    return symbol.refX == old.refX || symbol.refY == old.refY || symbol.width == old.width ||
           symbol.height == old.height || std::any_of(symbol.elements.begin(), symbol.elements.end(), isOld);
}

std::int32_t Decode(Reading& reading, std::string_view bytes, const World& world) {
    try {
        reading.notice = DecodeSymbol(reading.symbol, bytes, world.rules);
        return 0;
    } catch (const base::Error& error) {
        return error.Number();
    }
}

/// Of a file of which its reader wants no more than this beginning, the beginning reads like all of it.
bool ReachIsFarEnough(std::string_view bytes, const Reading& whole, const World& world) {
    const qsymbol::SymbolFormat& format = *qsymbol::FormatOf(whole.symbol.filePath);
    const std::string_view beginning =
        bytes.substr(0, std::hash<std::string_view>()(bytes) % (bytes.size() + 1));
    if (format.reach(beginning) > beginning.size())
        return true;
    Reading part;
    part.symbol.filePath = whole.symbol.filePath;
    part.symbol.etagenbreite = whole.symbol.etagenbreite;
    const std::int32_t error = Decode(part, beginning, world);
    // How much memory a file may take depends on its size.
    const bool memory = error == 7 || whole.error == 7;
    return memory || (error == whole.error && part.notice == whole.notice &&
                      ComposeBinary(part.symbol, world.rules) == ComposeBinary(whole.symbol, world.rules));
}

/// Reads into a symbol that is filled, holding the reading against the memory bound, the errors that the
/// format has, and the old content.
Reading Read(const char16_t* path, std::string_view bytes, World& world,
             std::initializer_list<std::int32_t> errors) {
    const Symbol old = OldContent(path, bytes);
    Reading reading;
    reading.symbol = old;
    {
        const AllocationCounter memory;
        reading.error = Decode(reading, bytes, world);
        // The file's own bytes belong to the bound and are held by the caller here.
        if (memory.Peak() + bytes.size() > (std::size_t{64} << 20) + 64 * bytes.size())
            reading.broken = "memory bound";
    }
    if (reading.error != 0 && std::find(errors.begin(), errors.end(), reading.error) == errors.end())
        reading.broken = "error " + std::to_string(reading.error);
    if (HoldsOldContent(reading.symbol, old))
        reading.broken = "old content";
    if (reading.symbol.filePath != old.filePath || reading.symbol.etagenbreite != old.etagenbreite)
        reading.broken = "path and mirror value";
    if (IsSmall(reading.symbol) && !ReachIsFarEnough(bytes, reading, world))
        reading.broken = "reach";
    reading.symbol.filePath.clear();
    reading.symbol.etagenbreite = 0;
    return reading;
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
    try {
        const Symbol back = ThroughText(symbol, first, world);
        if (IsRefusedAsText(symbol, world.codePage))
            return "a text form that should be refused";
        const Symbol expected = AfterText(symbol, world.codePage);
        if (!EqualInText(back, expected))
            return "text round trip";
        if (!AnglesAreModest(symbol))
            return "";
        std::string second;
        if (ThroughText(back, second, world) != back)
            return "second text round trip";
        return second == first || expected.elements != symbol.elements ? "" : "bytes of the second text";
    } catch (const base::Error& error) {
        if (!first.empty()) // written, but not read
            return symbol.elements.empty() && error.Number() == 9 ? "" : "a text that does not read back";
        return IsRefusedAsText(symbol, world.codePage) ? "" : "a symbol refused without a reason";
    }
}

std::string BrokenBinaryRoundTrip(const Symbol& symbol, const World& world) {
    std::string first;
    try {
        first = ComposeBinary(symbol, world.rules);
    } catch (const base::Error& error) {
        return IsRefusedAsBinary(symbol, world.codePage) && error.Number() == 6
                   ? ""
                   : "a symbol refused without a reason";
    }
    Symbol back;
    try {
        ParseBinary(back, first, world.rules);
    } catch (const base::Error& error) {
        return symbol.elements.empty() && error.Number() == 9 ? "" : "a binary file that does not read back";
    }
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
    const Reading reading = Read(u"a.syt", bytes, world, {6, 7, 9, 13, 3501, 3502});
    if (!reading.broken.empty() || reading.error != 0 || !IsSmall(reading.symbol))
        return reading.broken;
    return BrokenTextRoundTrip(reading.symbol, world);
}

std::string BrokenBinaryPromise(std::string_view bytes) {
    World world;
    const Reading reading = Read(u"a.SYB", bytes, world, {7, 9, 62, 3501});
    if (!reading.broken.empty() || reading.error != 0 || !IsSmall(reading.symbol))
        return reading.broken;
    return BrokenBinaryRoundTrip(reading.symbol, world);
}

std::string BrokenImportPromise(std::string_view bytes) {
    World world;
    world.regional = SettingsFor(bytes);
    const Reading reading = Read(u"a.Wsc", bytes, world, {6, 7, 9, 13, 62, 3501});
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

std::string BrokenSymbolPromise(std::string_view bytes) {
    World world;
    world.regional = SettingsFor(bytes);
    const Symbol symbol = ArbitrarySymbol(bytes);
    const std::string broken = BrokenBinaryRoundTrip(symbol, world);
    return broken.empty() ? BrokenTextRoundTrip(symbol, world) : broken;
}

} // namespace support

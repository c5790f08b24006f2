#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// Recorded interactions: what a host does with a placing tool, and after each event the state and the
/// accesses to the surface that it must lead to.
///
/// One text file each; the first line is its caption. A line begins with
///   #   a comment
///   *   set-up: "tool input|group", "scale 10", "pen MODE WIDTH STYLE COLOUR FILLSTYLE", "symbol NAME" with its
///       elements behind it, "ref ID DX DY DEGREES SYMBOL"
///   :   a name for some accesses: "NAME = ACCESS | ACCESS | …"; names may be used in what follows
///   >   an event: the member's name and its arguments
///   -   accesses that the last event makes, in order; several lines follow each other
///   =   what the last event answers or, for an event without an answer, the tool's state
///   !   the error that the last event ends with: number, then "raised", "silent" or the source it is shown under
namespace interactions {

using Words = std::vector<std::string>;

struct Event {
    int line = 0; ///< in the file
    Words words = {};
    std::vector<std::string> accesses = {};
    std::optional<std::string> state = {}; ///< as written; nothing: not looked at
    Words error = {};                      ///< number and way; empty: none
};

struct Script {
    std::string name; ///< the file's, without extension
    std::string caption;
    std::vector<Words> setup;
    std::vector<Event> events;
};

/// Splits at blanks.
Words WordsOf(const std::string& text);

/// A whole number as a word of a script, and one of 16 bits.
std::int32_t Long(const std::string& word);
std::int16_t Short(const std::string& word);

/// Throws std::runtime_error for what it does not understand.
Script ReadScript(const std::filesystem::path& file);

/// All scripts of a folder, by name.
std::vector<std::filesystem::path> ScriptsIn(const std::filesystem::path& folder);

} // namespace interactions

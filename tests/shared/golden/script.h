#pragma once

#include <cstdint>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

/// Golden cases: what is done with a symbol and its files, and what must come of it. Written once, they are played natively,
/// through the vtable and by name.
///
/// One text file for a topic; the first line is its caption. What is not indented is
///   #              a comment
///   == CAPTION     the start of a case, in a world of its own
///   name NAME = …  a name for several outputs, for the rest of the file
///   = OUTPUT       a further output of the last command; outputs are parted by " | "
///   COMMAND …      a command with its words and, behind "->", its outputs; none means that there must be none
/// and indented lines are what the last command works on: elements, lines of a file. `host.h` tells the commands.
namespace golden {

using Lines = std::vector<std::string>;

/// A file in short, and what must come of it.
struct Row {
    std::string text;
    Lines lines;
    Lines outputs;
};

struct Step {
    int line = 0;               ///< in the file
    Lines words = {};           ///< of the command; quotes keep blanks together and are gone
    Lines payload = {};         ///< the indented lines
    std::vector<Row> rows = {}; ///< the same of the command "rows"
    Lines outputs = {};         ///< that must come
};

struct Case {
    std::string file; ///< without folder and extension
    std::string caption;
    std::vector<Step> steps;
};

/// How a failing test names it.
inline void PrintTo(const Case& one, std::ostream* out) {
    *out << one.file << ": " << one.caption;
}

/// All cases of all files of a folder. Throws std::runtime_error for what it does not understand.
std::vector<Case> CasesIn(const std::filesystem::path& folder);

/// A name for a parameterised test: file and caption in letters and digits.
std::string TestName(const Case& one);

/// Splits at blanks outside quotes.
Lines WordsOf(const std::string& text);
/// Splits at " | ".
Lines PartsOf(const std::string& text);

/// A number as a word.
std::int32_t Long(const std::string& word);
double Radians(const std::string& degrees);

/// Text with \xHH, \r, \n, \t and \\ for the bytes that they stand for, and back.
std::string Unescaped(const std::string& text);
std::string Escaped(const std::string& text);

/// What is written in the short form for binary data, as bytes: 32-bit numbers, 'texts' with their length (no blanks), f… doubles,
/// w… 16-bit numbers, x… single bytes in hexadecimal.
std::string BinaryOf(const Lines& words);

/// The entities of a DXF text, one a line: "__0=VERTEX __8=SYMBOLE _10=0.0"; codes with "_" for their blanks.
Lines EntitiesOf(const std::string& bytes);

} // namespace golden

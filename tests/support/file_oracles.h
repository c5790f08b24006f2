#pragma once

#include <string>
#include <string_view>

/// What must hold for every file, however broken. Each function reads the bytes and gives the promise that
/// was not kept, "" when all were. The fuzzers and the replay of their findings share them.
namespace support {

/// Reading replaces old content, stays within the memory bound and raises no other errors than the format's
/// own; a beginning that is enough for the reader reads like the whole file. What reads without
/// an error can be written; reading that again gives what AfterText says, and writing once more changes no
/// byte; symbols of more than 20,000 elements and points are not written. Bytes of odd number are read under
/// English settings, the others under German ones.
std::string BrokenTextPromise(std::string_view bytes);

/// As for text, but the round trip gives back every bit.
std::string BrokenBinaryPromise(std::string_view bytes);

/// As for text, and there are as many elements as figure lines, at most one notice, and no element at all
/// after a line that cannot be processed. What was imported survives both other formats.
std::string BrokenImportPromise(std::string_view bytes);

/// Of the symbol that the bytes stand for: writing refuses it, and only what the format cannot hold, or
/// reading gives back what the format promises.
std::string BrokenSymbolPromise(std::string_view bytes);

} // namespace support

#pragma once

#include "base/byte_sink.h"
#include "base/file_system.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace base {

/// Says from a file's beginning how many of its bytes count. More than it was given: it has to see more.
using Reach = std::uint64_t (*)(std::string_view beginning);

/// The file's bytes, closed again. Of a large file only what counts by `reach` is read, and a little more.
/// Errors of FileSystem::Open and File::Read, 7 for a file that memory cannot hold.
std::string ReadWholeFile(FileSystem& files, const std::u16string& path, Reach reach = nullptr);

/// Writes bytes that come piece by piece and closes the file. Errors of FileSystem::Open, File and `compose`.
void WriteWholeFile(FileSystem& files, const std::u16string& path, OpenMode mode, const Composer& compose);

/// What becomes of that part of an old file that is longer than the new content.
enum class Tail { Cut, Keep };

/// Writes the bytes into the file, which stays the file it was; it is created when there is none.
///
/// What the file grows by is written first: until there is room for all of it, an error leaves the old
/// content as it was, and no file where none was. Errors of FileSystem::Open and File.
void WriteInPlace(FileSystem& files, const std::u16string& path, std::string_view bytes, Tail tail);

/// Writes the bytes into a new file beside, which then takes the name: any error leaves the old file whole.
/// Errors of FileSystem and File.
void WriteBeside(FileSystem& files, const std::u16string& path, std::string_view bytes);
/// The same for bytes that come piece by piece. Errors of `compose` too.
void WriteBeside(FileSystem& files, const std::u16string& path, const Composer& compose);

} // namespace base

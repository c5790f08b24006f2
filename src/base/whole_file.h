#pragma once

#include "base/byte_sink.h"
#include "base/file_system.h"

#include <string>
#include <string_view>

namespace base {

/// What becomes of that part of an old file that is longer than the new content.
enum class Tail { Cut, Keep };

/// Writes the bytes into the file, which stays the file it was; it is created when there is none.
///
/// What the file grows by is written first: until there is room for all of it, an error leaves the old
/// content as it was, and no file where none was. Errors of FileSystem::Open and File.
void WriteInPlace(FileSystem& files, const std::u16string& path, std::string_view bytes, Tail tail);

/// Whether a file is handed to the device before it counts as written; that takes a while for each.
enum class Flush { Yes, No };

/// Writes the bytes into a new file beside, which then takes the name: any error leaves the old file whole.
/// Errors of FileSystem and File.
void WriteBeside(FileSystem& files, const std::u16string& path, std::string_view bytes);
/// The same for bytes that come piece by piece. Errors of `compose` too.
void WriteBeside(FileSystem& files, const std::u16string& path, const Composer& compose,
                 Flush flush = Flush::Yes);

} // namespace base

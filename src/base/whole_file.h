#pragma once

#include "base/file_system.h"

#include <string>
#include <string_view>

namespace base {

/// The file's bytes, read in one go and closed again. Errors of FileSystem::Open and File::Read.
std::string ReadWholeFile(FileSystem& files, const std::u16string& path);

/// Writes the bytes in one go and closes the file. Errors of FileSystem::Open, File::Write and File::Close.
void WriteWholeFile(FileSystem& files, const std::u16string& path, OpenMode mode, std::string_view bytes);

} // namespace base

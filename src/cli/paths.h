#pragma once

#include "base/error.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

/// Paths of the program: UTF-16 as in the library, with the system's separators.
namespace cli {

/// Whether paths are those of Windows.
inline constexpr bool kIsWindows = std::filesystem::path::preferred_separator == '\\';

/// The kinds of symbol file that can be written; import files can be read as well.
bool IsReadable(std::u16string_view path);
bool IsWritable(std::u16string_view path);

/// The extension in lower case.
std::u16string Extension(std::u16string_view path);

/// The path under a folder.
std::u16string Join(std::u16string_view folder, std::u16string_view name);

/// The path up to its name, the separator included; "" for a name alone.
std::u16string_view FolderOf(std::u16string_view path);

/// One spelling for all ways to write a folder, there or not: from the root, links followed, without a separator at
/// its end; in one case where the system's files have none. It costs some calls of the system.
std::u16string PlaceOf(std::u16string_view folder);
/// The same for a name in a place.
std::u16string InPlace(const std::u16string& place, std::u16string_view name);

/// What stands under a path.
enum class Kind { Missing, File, Folder, Other };

/// Looks through links. Error 70 where the way there may not be searched.
Kind KindOf(const std::u16string& path);

/// False also for what cannot be looked at.
bool Exists(const std::u16string& path);
bool IsFolder(const std::u16string& path);

/// A run-time error with its text.
base::Error RunTime(base::RunTimeError number);

/// Error 3503, "Keine gültige Extension für eine Symboldatei."
base::Error UnusableExtension();

/// The run-time error that says what the operating system said.
base::Error ErrorOf(std::error_code code);

} // namespace cli

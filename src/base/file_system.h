#pragma once

#include "base/file.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace base {

enum class OpenMode {
    Read,    ///< existing file; others may read, write and delete it meanwhile
    Replace, ///< created, or emptied when it exists
    Overlay, ///< created, or written over from its start; what lies behind the new content stays
    Append,  ///< created, or continued at its end
};

/// One file of a folder listing.
struct FolderEntry {
    std::u16string path;
    std::size_t nameStart = 0; ///< where in the path the name begins

    std::u16string_view Name() const { return std::u16string_view(path).substr(nameStart); }
};

/// Seam: the file system. Paths are UTF-16 with the platform's separators.
///
/// Errors of what takes a file: 53 no such file, 76 no such folder, 70 access denied or in use, 75 a folder, a
/// device, a pipe or anything else that is no disk file, 52 a name that no file can have, 61 disk full, 57
/// any other failure. No call waits for another program.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    virtual std::unique_ptr<File> Open(const std::u16string& path, OpenMode mode) = 0;
    /// True for a disk file, not for a folder or a device.
    virtual bool FileExists(const std::u16string& path) = 0;
    virtual bool FolderExists(const std::u16string& path) = 0;
    /// The files of a folder in the order in which the system lists them; folders are left out. Error 76.
    virtual std::vector<FolderEntry> ListFiles(const std::u16string& folder) = 0;
    /// The path from the root, without "." and ".."; the path itself where the system has none.
    virtual std::u16string FullPath(const std::u16string& path) = 0;
    /// Gives a file another name in its folder, in place of the file that has it, in one step.
    virtual void Rename(const std::u16string& from, const std::u16string& to) = 0;
    virtual void Remove(const std::u16string& path) = 0;
};

} // namespace base

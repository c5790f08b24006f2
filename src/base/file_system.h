#pragma once

#include "base/file.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace base {

enum class OpenMode {
    Read,    ///< existing file, shared with other readers
    Replace, ///< created, or emptied when it exists
    Overlay, ///< created, or written over from its start; what lies behind the new content stays
    Append,  ///< created, or continued at its end
};

/// One file of a folder listing.
struct FolderEntry {
    std::u16string name;
    std::u16string path;
};

/// Seam: the file system. Paths are UTF-16 with the platform's separators.
///
/// Errors of Open: 53 no such file, 76 no such folder, 70 access denied or in use, 75 a folder or
/// another thing that is no file (when it is opened to be read perhaps only on its first Read), 52 a name
/// that no file can have, 61 disk full, 57 any other failure.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    virtual std::unique_ptr<File> Open(const std::u16string& path, OpenMode mode) = 0;
    /// True for a file, not for a folder.
    virtual bool FileExists(const std::u16string& path) = 0;
    virtual bool FolderExists(const std::u16string& path) = 0;
    /// The files of a folder in the order in which the system lists them; folders are left out. Error 76.
    virtual std::vector<FolderEntry> ListFiles(const std::u16string& folder) = 0;
};

} // namespace base

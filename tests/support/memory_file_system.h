#pragma once

#include "base/error.h"
#include "base/file_system.h"

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace support {

/// A file system in memory whose operations fail on demand. Separators are "/" and "\".
class MemoryFileSystem final : public base::FileSystem {
public:
    std::map<std::u16string, std::string> files;
    std::set<std::u16string> folders;
    std::vector<std::u16string>
        listing; ///< paths that ListFiles gives, in this order; empty: those of `files`

    std::optional<base::RunTimeError> openError;
    std::optional<base::RunTimeError> readError;
    std::optional<base::RunTimeError> writeError;
    std::optional<base::RunTimeError> closeError;
    std::size_t readAtMost = SIZE_MAX;          ///< bytes that one Read gives
    std::size_t writeBeforeError = 0;           ///< bytes that still arrive when writeError is set
    std::size_t room = SIZE_MAX;                ///< bytes of one file on this disk; past that error 61
    std::optional<std::uint64_t> announcedSize; ///< what Size says instead of the truth
    /// The operation on the file system or a file that fails, counted from 0 (Open, Size, Read,
    /// Write, Seek, Cut, Flush, Close, Rename, Remove, as they come), and what it fails with.
    std::optional<int> failingStep;
    base::RunTimeError stepError = base::RunTimeError::DeviceIo;
    int steps = 0; ///< operations so far

    std::function<void()> onOpen; ///< called before every Open

    int opened = 0;      ///< files opened so far
    int openNow = 0;     ///< files open at the moment
    int existsAsked = 0; ///< questions whether a file exists

    /// Counts an operation and lets it fail when it is its turn.
    void Step();

    std::unique_ptr<base::File> Open(const std::u16string& path, base::OpenMode mode) override;
    bool FileExists(const std::u16string& path) override;
    bool FolderExists(const std::u16string& path) override { return folders.contains(path); }
    std::vector<base::FolderEntry> ListFiles(const std::u16string& folder) override;
    std::u16string FullPath(const std::u16string& path) override { return path; }
    void Rename(const std::u16string& from, const std::u16string& to) override;
    void Remove(const std::u16string& path) override;
};

} // namespace support

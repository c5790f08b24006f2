#pragma once

#include "base/file_system.h"
#include "platform/posix/listed_folder.h"

namespace platform {

/// The file system of the native build. Paths are taken as UTF-8.
class PosixFileSystem final : public base::FileSystem {
public:
    std::unique_ptr<base::File> Open(const std::u16string& path, base::OpenMode mode) override;
    bool FileExists(const std::u16string& path) override;
    bool FolderExists(const std::u16string& path) override;
    std::vector<base::FolderEntry> ListFiles(const std::u16string& folder) override;
    std::u16string FullPath(const std::u16string& path) override;
    void Rename(const std::u16string& from, const std::u16string& to) override;
    void Remove(const std::u16string& path) override;

private:
    ListedFolder listed_;
};

} // namespace platform

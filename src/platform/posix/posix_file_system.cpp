#include "platform/posix/posix_file_system.h"

#include "base/error.h"
#include "base/utf8.h"

#include <cerrno>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace platform {

using base::RunTimeError;

namespace {

bool IsFolder(const std::string& path) {
    struct stat info {};
    return stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

std::string ParentFolder(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

[[noreturn]] void RaiseOpenFailure(int error, const std::string& path) {
    switch (error) {
    case ENOENT:
        base::Raise(path.empty()                   ? RunTimeError::BadFileName
                    : IsFolder(ParentFolder(path)) ? RunTimeError::FileNotFound
                                                   : RunTimeError::PathNotFound);
    case ENOTDIR: base::Raise(RunTimeError::PathNotFound);
    case ENAMETOOLONG:
    case EINVAL: base::Raise(RunTimeError::BadFileName);
    case EISDIR:
    case ENXIO: // a pipe that nobody reads, a socket, a device that is not there
    case ENODEV: base::Raise(RunTimeError::PathFileAccess);
    case EACCES:
    case EPERM:
    case EROFS:
    case ETXTBSY: base::Raise(RunTimeError::PermissionDenied);
    case ENOSPC:
    case EDQUOT: base::Raise(RunTimeError::DiskFull);
    case ENOMEM: base::Raise(RunTimeError::OutOfMemory);
    default: base::Raise(RunTimeError::DeviceIo);
    }
}

[[noreturn]] void RaiseTransferFailure(int error) {
    switch (error) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG: base::Raise(RunTimeError::DiskFull);
    case EISDIR:
    case EAGAIN: // a pipe or a device that has nothing for us now
        base::Raise(RunTimeError::PathFileAccess);
    default: base::Raise(RunTimeError::DeviceIo);
    }
}

int OpenFlags(base::OpenMode mode) {
    switch (mode) {
    case base::OpenMode::Read: return O_RDONLY;
    case base::OpenMode::Replace: return O_WRONLY | O_CREAT | O_TRUNC;
    case base::OpenMode::Overlay: return O_WRONLY | O_CREAT;
    case base::OpenMode::Append: return O_WRONLY | O_CREAT | O_APPEND;
    }
    return O_RDONLY;
}

class PosixFile final : public base::File {
public:
    PosixFile() = default;
    PosixFile(const PosixFile&) = delete;
    PosixFile& operator=(const PosixFile&) = delete;
    ~PosixFile() override {
        if (handle_ >= 0)
            close(handle_);
    }

    /// Takes over what an opening has given, negative where that has failed.
    void Take(int handle) { handle_ = handle; }
    bool IsOpen() const { return handle_ >= 0; }

    std::uint64_t Size() override {
        if (!size_) {
            struct stat info {};
            if (fstat(handle_, &info) != 0 || !S_ISREG(info.st_mode))
                base::Raise(RunTimeError::PathFileAccess);
            size_ = static_cast<std::uint64_t>(info.st_size);
        }
        return *size_;
    }

    std::size_t Read(char* buffer, std::size_t count) override {
        ssize_t got = -1;
        do
            got = read(handle_, buffer, count);
        while (got < 0 && errno == EINTR);
        if (got < 0)
            RaiseTransferFailure(errno);
        return static_cast<std::size_t>(got);
    }

    void Write(const char* bytes, std::size_t count) override {
        while (count > 0) {
            const ssize_t put = write(handle_, bytes, count);
            if (put < 0 && errno == EINTR)
                continue;
            if (put < 0)
                RaiseTransferFailure(errno);
            bytes += put;
            count -= static_cast<std::size_t>(put);
        }
    }

    void Seek(std::uint64_t position) override {
        if (lseek(handle_, static_cast<off_t>(position), SEEK_SET) < 0)
            RaiseTransferFailure(errno);
    }

    void Cut(std::uint64_t size) override {
        if (ftruncate(handle_, static_cast<off_t>(size)) != 0)
            RaiseTransferFailure(errno);
    }

    void Flush() override {
        // Some file systems have nothing to flush and say so.
        if (fsync(handle_) != 0 && errno != EINVAL && errno != ENOSYS)
            RaiseTransferFailure(errno);
    }

    void Close() override {
        const int handle = handle_;
        handle_ = -1;
        if (handle >= 0 && close(handle) != 0)
            RaiseTransferFailure(errno);
    }

private:
    int handle_ = -1;
    std::optional<std::uint64_t> size_; ///< when it was asked for first
};

} // namespace

std::unique_ptr<base::File> PosixFileSystem::Open(const std::u16string& path, base::OpenMode mode) {
    auto file = std::make_unique<PosixFile>(); // before there is a handle that a lack of memory would lose
    if (mode == base::OpenMode::Read)
        file->Take(listed_.OpenToRead(path));
    if (file->IsOpen())
        return file; // the listing said that it is a disk file
    const std::string name = base::ToUtf8(path);
    if (name.find('\0') != std::string::npos)
        base::Raise(RunTimeError::BadFileName);
    // A pipe under that name must not hold the program until somebody opens its other end.
    file->Take(open(name.c_str(), OpenFlags(mode) | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666));
    if (!file->IsOpen())
        RaiseOpenFailure(errno, name);
    file->Size(); // there is none of anything but a disk file
    return file;
}

bool PosixFileSystem::FileExists(const std::u16string& path) {
    struct stat info {};
    return stat(base::ToUtf8(path).c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

bool PosixFileSystem::FolderExists(const std::u16string& path) {
    return IsFolder(base::ToUtf8(path));
}

std::vector<base::FolderEntry> PosixFileSystem::ListFiles(const std::u16string& folder) {
    const std::string name = base::ToUtf8(folder);
    const std::u16string prefix = folder.ends_with(u'/') ? folder : folder + u"/";
    DIR* const handle = listed_.Open(name, prefix);
    if (handle == nullptr)
        base::Raise(errno == EACCES ? RunTimeError::PermissionDenied : RunTimeError::PathNotFound);
    std::vector<base::FolderEntry> entries;
    while (const dirent* entry = readdir(handle)) {
        const bool unclear = entry->d_type == DT_UNKNOWN || entry->d_type == DT_LNK;
        if (unclear ? IsFolder(name + "/" + entry->d_name) : entry->d_type == DT_DIR)
            continue;
        if (entry->d_type != DT_REG)
            listed_.NoteOtherThanFiles();
        entries.push_back({prefix + base::FromUtf8(entry->d_name), prefix.size()});
    }
    return entries;
}

std::u16string PosixFileSystem::FullPath(const std::u16string& path) {
    char* const full = realpath(base::ToUtf8(path).c_str(), nullptr);
    const std::unique_ptr<char, decltype(&std::free)> owner(full, &std::free);
    return full != nullptr ? base::FromUtf8(full) : path;
}

void PosixFileSystem::Rename(const std::u16string& from, const std::u16string& to) {
    const std::string name = base::ToUtf8(to);
    struct stat old {};
    const bool replaces = stat(name.c_str(), &old) == 0;
    if (replaces && !S_ISREG(old.st_mode))
        base::Raise(RunTimeError::PathFileAccess);
    // The new file is what the old one was to everybody; one that may not be written stays.
    if (replaces && access(name.c_str(), W_OK) != 0)
        base::Raise(RunTimeError::PermissionDenied);
    if (replaces && chmod(base::ToUtf8(from).c_str(), old.st_mode & 07777) != 0)
        RaiseOpenFailure(errno, name);
    if (rename(base::ToUtf8(from).c_str(), name.c_str()) != 0)
        RaiseOpenFailure(errno, name);
}

void PosixFileSystem::Remove(const std::u16string& path) {
    const std::string name = base::ToUtf8(path);
    if (unlink(name.c_str()) != 0)
        RaiseOpenFailure(errno, name);
}

} // namespace platform

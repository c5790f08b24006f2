#include "platform/win32/win32_file_system.h"

#include "base/error.h"
#include "base/letter_case.h"
#include "platform/wide/wide_text.h"
#include "platform/win32/win32_file.h"

namespace platform {

using base::RunTimeError;

namespace {

DWORD Attributes(const std::u16string& path) {
    return path.empty() || path.find(u'\0') != std::u16string::npos ? INVALID_FILE_ATTRIBUTES
                                                                    : GetFileAttributesW(Wide(path));
}

/// A file, not a folder, that is marked read-only.
bool IsReadOnlyFile(DWORD attributes) {
    return attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) == FILE_ATTRIBUTE_READONLY;
}

std::u16string FullPathOf(const std::u16string& path) {
    std::u16string full(MAX_PATH, u'\0');
    for (;;) {
        const auto room = static_cast<DWORD>(full.size());
        const DWORD length = GetFullPathNameW(Wide(path), room, Wide(full.data()), nullptr);
        full.resize(length);
        if (length == 0)
            return path;
        if (length < room)
            return full;
    }
}

bool IsFolder(DWORD attributes) {
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

/// True for the old names of devices (NUL, AUX, COM1, with any extension), for a device itself and a pipe.
bool IsDevice(const std::u16string& path) {
    constexpr std::u16string_view kDevices = u"\\\\.\\";
    const std::u16string full = FullPathOf(path);
    if (!full.starts_with(kDevices))
        return false;
    const std::u16string_view name = std::u16string_view(full).substr(kDevices.size());
    const std::u16string_view first = name.substr(0, name.find(u'\\'));
    return first.size() == name.size() || base::LowerCase(first) == u"pipe";
}

[[noreturn]] void RaiseOpenFailure(DWORD error, const std::u16string& path) {
    // The system answers "access denied" for a folder.
    if (IsFolder(Attributes(path)))
        base::Raise(RunTimeError::PathFileAccess);
    switch (error) {
    case ERROR_FILE_NOT_FOUND: base::Raise(RunTimeError::FileNotFound);
    case ERROR_PATH_NOT_FOUND:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_INVALID_DRIVE:
    case ERROR_DIRECTORY: base::Raise(RunTimeError::PathNotFound);
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT: base::Raise(RunTimeError::PermissionDenied);
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
    case ERROR_BUFFER_OVERFLOW: base::Raise(RunTimeError::BadFileName);
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL: base::Raise(RunTimeError::DiskFull);
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY: base::Raise(RunTimeError::OutOfMemory);
    default: base::Raise(RunTimeError::DeviceIo);
    }
}

struct OpenFlags {
    DWORD access;
    DWORD share;
    DWORD creation;
};

/// With a sync client, a virus scanner, a backup.
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

OpenFlags FlagsFor(base::OpenMode mode) {
    switch (mode) {
    case base::OpenMode::Read: return {GENERIC_READ, kShareAll, OPEN_EXISTING};
    case base::OpenMode::Replace: return {GENERIC_WRITE, 0, CREATE_ALWAYS};
    case base::OpenMode::Overlay: return {GENERIC_WRITE, 0, OPEN_ALWAYS};
    // Appending leaves the file open to the host, which goes on appending on its own.
    case base::OpenMode::Append: return {FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_ALWAYS};
    }
    return {GENERIC_READ, kShareAll, OPEN_EXISTING};
}

} // namespace

std::unique_ptr<base::File> Win32FileSystem::Open(const std::u16string& path, base::OpenMode mode) {
    if (path.empty() || path.find(u'\0') != std::u16string::npos)
        base::Raise(RunTimeError::BadFileName);
    // Not even opened: a serial port or a pipe may notice.
    if (IsDevice(path))
        base::Raise(RunTimeError::PathFileAccess);
    // Windows refuses this itself; Wine lets a privileged user write all the same.
    if (mode != base::OpenMode::Read && IsReadOnlyFile(Attributes(path)))
        base::Raise(RunTimeError::PermissionDenied);
    auto file = std::make_unique<Win32File>(); // before there is a handle that a lack of memory would lose
    const OpenFlags flags = FlagsFor(mode);
    const HANDLE handle = CreateFileW(Wide(path), flags.access, flags.share, nullptr, flags.creation,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        RaiseOpenFailure(GetLastError(), path);
    file->Take(handle);
    if (GetFileType(handle) != FILE_TYPE_DISK)
        base::Raise(RunTimeError::PathFileAccess);
    return file;
}

bool Win32FileSystem::FileExists(const std::u16string& path) {
    const DWORD attributes = Attributes(path);
    return attributes != INVALID_FILE_ATTRIBUTES && !IsFolder(attributes) && !IsDevice(path);
}

bool Win32FileSystem::FolderExists(const std::u16string& path) {
    return IsFolder(Attributes(path));
}

std::vector<base::FolderEntry> Win32FileSystem::ListFiles(const std::u16string& folder) {
    const std::u16string prefix =
        !folder.empty() && (folder.back() == u'\\' || folder.back() == u'/') ? folder : folder + u"\\";
    const std::u16string pattern = prefix + u"*";
    WIN32_FIND_DATAW found{};
    const HANDLE search =
        FindFirstFileExW(Wide(pattern), FindExInfoBasic, &found, FindExSearchNameMatch, nullptr, 0);
    if (search == INVALID_HANDLE_VALUE) {
        if (GetLastError() == ERROR_FILE_NOT_FOUND)
            return {};
        base::Raise(GetLastError() == ERROR_ACCESS_DENIED ? RunTimeError::PermissionDenied
                                                          : RunTimeError::PathNotFound);
    }
    const std::unique_ptr<void, decltype(&FindClose)> owner(search, &FindClose);
    std::vector<base::FolderEntry> entries;
    do {
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
            continue;
        entries.push_back({prefix + std::u16string(Utf16(found.cFileName)), prefix.size()});
    } while (FindNextFileW(search, &found) != FALSE);
    return entries;
}

std::u16string Win32FileSystem::FullPath(const std::u16string& path) {
    return FullPathOf(path);
}

void Win32FileSystem::Rename(const std::u16string& from, const std::u16string& to) {
    if (MoveFileExW(Wide(from), Wide(to), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == FALSE)
        RaiseOpenFailure(GetLastError(), to);
}

void Win32FileSystem::Remove(const std::u16string& path) {
    if (DeleteFileW(Wide(path)) == FALSE)
        RaiseOpenFailure(GetLastError(), path);
}

} // namespace platform

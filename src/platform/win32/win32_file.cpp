#include "platform/win32/win32_file.h"

#include "base/error.h"

#include <algorithm>

namespace platform {

namespace {

constexpr std::size_t kLargestTransfer = 1U << 30;

[[noreturn]] void RaiseTransferFailure(DWORD error) {
    switch (error) {
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL: base::Raise(base::RunTimeError::DiskFull);
    case ERROR_ACCESS_DENIED:
    case ERROR_LOCK_VIOLATION:
    case ERROR_SHARING_VIOLATION: base::Raise(base::RunTimeError::PermissionDenied);
    default: base::Raise(base::RunTimeError::DeviceIo);
    }
}

} // namespace

Win32File::~Win32File() {
    if (handle_ != INVALID_HANDLE_VALUE)
        CloseHandle(handle_);
}

std::uint64_t Win32File::Size() {
    LARGE_INTEGER size{};
    if (GetFileSizeEx(handle_, &size) == FALSE)
        RaiseTransferFailure(GetLastError());
    return static_cast<std::uint64_t>(size.QuadPart);
}

std::size_t Win32File::Read(char* buffer, std::size_t count) {
    DWORD got = 0;
    if (ReadFile(handle_, buffer, static_cast<DWORD>(std::min(count, kLargestTransfer)), &got, nullptr) ==
        FALSE)
        RaiseTransferFailure(GetLastError());
    return got;
}

void Win32File::Write(const char* bytes, std::size_t count) {
    while (count > 0) {
        DWORD put = 0;
        if (WriteFile(handle_, bytes, static_cast<DWORD>(std::min(count, kLargestTransfer)), &put, nullptr) ==
            FALSE)
            RaiseTransferFailure(GetLastError());
        if (put == 0)
            RaiseTransferFailure(ERROR_DISK_FULL);
        bytes += put;
        count -= put;
    }
}

void Win32File::Seek(std::uint64_t position) {
    LARGE_INTEGER place{};
    place.QuadPart = static_cast<LONGLONG>(position);
    if (SetFilePointerEx(handle_, place, nullptr, FILE_BEGIN) == FALSE)
        RaiseTransferFailure(GetLastError());
}

void Win32File::Cut(std::uint64_t size) {
    Seek(size);
    if (SetEndOfFile(handle_) == FALSE)
        RaiseTransferFailure(GetLastError());
}

void Win32File::Flush() {
    if (FlushFileBuffers(handle_) != FALSE)
        return;
    // Some network disks have nothing to flush and say so.
    const DWORD error = GetLastError();
    if (error != ERROR_INVALID_FUNCTION && error != ERROR_NOT_SUPPORTED)
        RaiseTransferFailure(error);
}

void Win32File::Close() {
    const HANDLE handle = handle_;
    handle_ = INVALID_HANDLE_VALUE;
    if (handle != INVALID_HANDLE_VALUE && CloseHandle(handle) == FALSE)
        RaiseTransferFailure(GetLastError());
}

} // namespace platform

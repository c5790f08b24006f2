#pragma once

#include "base/file.h"

#include <windows.h>

namespace platform {

/// An open disk file of Windows; owns the handle.
class Win32File final : public base::File {
public:
    Win32File() = default;
    Win32File(const Win32File&) = delete;
    Win32File& operator=(const Win32File&) = delete;
    ~Win32File() override;

    /// Takes over what an opening has given, INVALID_HANDLE_VALUE where that has failed.
    void Take(HANDLE handle) { handle_ = handle; }

    std::uint64_t Size() override;
    std::size_t Read(char* buffer, std::size_t count) override;
    void Write(const char* bytes, std::size_t count) override;
    void Seek(std::uint64_t position) override;
    void Cut(std::uint64_t size) override;
    void Flush() override;
    void Close() override;

private:
    HANDLE handle_ = INVALID_HANDLE_VALUE;
};

} // namespace platform

#pragma once

#include <cstddef>
#include <cstdint>

namespace base {

/// Seam: an open disk file. Closed by its destructor at the latest, then without reporting an error.
///
/// Error 61 on a full disk, 57 when the device fails.
class File {
public:
    virtual ~File() = default;

    /// Size in bytes when it was asked, or when the file was opened. Error 75 for what turns out to be no disk file.
    virtual std::uint64_t Size() = 0;
    /// Reads up to count bytes; the number read, 0 at the end.
    virtual std::size_t Read(char* buffer, std::size_t count) = 0;
    /// Writes all bytes where the last access ended.
    virtual void Write(const char* bytes, std::size_t count) = 0;
    /// Goes to a position at or before the end of the file.
    virtual void Seek(std::uint64_t position) = 0;
    /// Takes away what lies behind so many bytes.
    virtual void Cut(std::uint64_t size) = 0;
    /// Hands what was written to the device, which reports now what it would have reported later.
    virtual void Flush() = 0;
    /// Closes and reports what was still pending.
    virtual void Close() = 0;
};

} // namespace base

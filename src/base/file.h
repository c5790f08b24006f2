#pragma once

#include <cstddef>
#include <cstdint>

namespace base {

/// Seam: an open file. Closed by its destructor at the latest, then without reporting an error.
class File {
public:
    virtual ~File() = default;

    /// Size in bytes when it was asked.
    virtual std::uint64_t Size() = 0;
    /// Reads up to count bytes; the number read, 0 at the end. Error 57 when the device fails.
    virtual std::size_t Read(char* buffer, std::size_t count) = 0;
    /// Writes all bytes. Error 61 on a full disk, 57 when the device fails.
    virtual void Write(const char* bytes, std::size_t count) = 0;
    /// Closes and reports what was still pending (61, 57).
    virtual void Close() = 0;
};

} // namespace base

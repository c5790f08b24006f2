#pragma once

#include "base/file_system.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace base {

/// Says from a file's beginning how many of its bytes count. More than it was given: it has to see more.
using Reach = std::uint64_t (*)(std::string_view beginning);

/// A file's bytes for as long as somebody looks at them; the file is closed again. A small file, as most symbols are, takes
/// no memory of the heap.
class FileContent {
public:
    /// Of a large file only what counts by `reach` is read, and a little more. Errors of FileSystem::Open and File::Read,
    /// 7 for a file that memory cannot hold.
    explicit FileContent(FileSystem& files, const std::u16string& path, Reach reach = nullptr);
    FileContent(const FileContent&) = delete;
    FileContent& operator=(const FileContent&) = delete;
    ~FileContent() = default;

    std::string_view Bytes() const { return bytes_; }
    /// The bytes to keep.
    std::string Release();

private:
    static constexpr std::size_t kSmall = 1U << 14;

    std::array<char, kSmall> small_; ///< filled as far as bytes_ says
    std::string large_;
    std::string_view bytes_; ///< in one of the two
};

} // namespace base

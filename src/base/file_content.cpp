#include "base/file_content.h"

#include "base/error.h"

#include <algorithm>
#include <utility>

namespace base {

namespace {

/// A file up to this size is read at once; of a larger one so much is its beginning.
constexpr std::uint64_t kBeginning = 1U << 20;

/// Reads on until the place is full or the file ends; how much of it is filled then.
std::size_t Fill(File& file, char* place, std::size_t filled, std::size_t size) {
    while (filled < size) {
        const std::size_t got = file.Read(place + filled, size - filled);
        if (got == 0)
            break;
        filled += got;
    }
    return filled;
}

/// Reads on until there are so many bytes or the file ends. False at its end.
bool ReadUpTo(File& file, std::string& bytes, std::uint64_t size) {
    if (size > SIZE_MAX / 2)
        Raise(RunTimeError::OutOfMemory);
    const std::size_t used = bytes.size();
    bytes.resize(static_cast<std::size_t>(size));
    const std::size_t filled = Fill(file, bytes.data(), used, bytes.size());
    const bool all = filled == bytes.size();
    bytes.resize(filled);
    return all;
}

/// Goes on with a file whose beginning is already there.
void ReadLarge(File& file, std::string& bytes, Reach reach) {
    const std::uint64_t size = std::max<std::uint64_t>(file.Size(), bytes.size());
    bool more = ReadUpTo(file, bytes, reach == nullptr ? size : std::min(size, kBeginning));
    while (reach != nullptr && more && bytes.size() < size) {
        const std::uint64_t needed = reach(bytes);
        if (needed <= bytes.size())
            break;
        more = ReadUpTo(file, bytes, std::min(size, std::max<std::uint64_t>(needed, 2 * bytes.size())));
    }
}

} // namespace

// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): clearing the place would cost more than reading a small file
FileContent::FileContent(FileSystem& files, const std::u16string& path, Reach reach) {
    const std::unique_ptr<File> file = files.Open(path, OpenMode::Read);
    // Its size is asked for when it matters only: that costs as much as reading a small file does.
    const std::size_t filled = Fill(*file, small_.data(), 0, kSmall);
    bytes_ = {small_.data(), filled};
    if (filled == 0)
        file->Size(); // an empty file, or none at all
    if (filled == kSmall) {
        large_ = bytes_;
        ReadLarge(*file, large_, reach);
        bytes_ = large_;
    }
    file->Close();
}

std::string FileContent::Release() {
    return bytes_.data() == large_.data() ? std::move(large_) : std::string(bytes_);
}

} // namespace base

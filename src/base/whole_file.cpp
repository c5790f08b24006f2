#include "base/whole_file.h"

#include "base/checked.h"

#include <algorithm>
#include <array>

namespace base {

namespace {

/// Reads until the buffer is full or the file ends; the number of bytes read.
std::size_t Fill(File& file, char* buffer, std::size_t count) {
    std::size_t used = 0;
    while (used < count) {
        const std::size_t got = file.Read(buffer + used, count - used);
        if (got == 0)
            break;
        used += got;
    }
    return used;
}

} // namespace

std::string ReadWholeFile(FileSystem& files, const std::u16string& path) {
    const std::unique_ptr<File> file = files.Open(path, OpenMode::Read);
    // A small file, as most symbols are, is there before its size needs to be asked.
    std::array<char, 4096> start; // NOLINT: only what was read into it is looked at
    const std::size_t begun = Fill(*file, start.data(), start.size());
    std::string bytes(start.data(), begun);
    if (begun == start.size()) {
        const std::uint64_t size = std::max<std::uint64_t>(file->Size(), begun);
        if (size > SIZE_MAX / 2)
            Raise(RunTimeError::OutOfMemory);
        bytes.resize(static_cast<std::size_t>(size));
        bytes.resize(begun + Fill(*file, bytes.data() + begun, bytes.size() - begun));
    }
    file->Close();
    return bytes;
}

void WriteWholeFile(FileSystem& files, const std::u16string& path, OpenMode mode, std::string_view bytes) {
    const std::unique_ptr<File> file = files.Open(path, mode);
    if (!bytes.empty())
        file->Write(bytes.data(), bytes.size());
    file->Close();
}

} // namespace base

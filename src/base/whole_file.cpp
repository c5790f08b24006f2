#include "base/whole_file.h"

#include "base/checked.h"

namespace base {

std::string ReadWholeFile(FileSystem& files, const std::u16string& path) {
    const std::unique_ptr<File> file = files.Open(path, OpenMode::Read);
    const std::uint64_t size = file->Size();
    if (size > SIZE_MAX / 2)
        Raise(RunTimeError::OutOfMemory);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    std::size_t used = 0;
    while (used < bytes.size()) {
        const std::size_t got = file->Read(bytes.data() + used, bytes.size() - used);
        if (got == 0)
            break;
        used += got;
    }
    bytes.resize(used);
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

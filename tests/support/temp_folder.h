#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace support {

/// A new folder of its own that goes away with all it holds.
class TempFolder {
public:
    TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder();

    const std::filesystem::path& Path() const { return path_; }
    /// The path of a file in it, for the library.
    std::u16string File(const std::filesystem::path& name) const { return (path_ / name).u16string(); }

private:
    std::filesystem::path path_;
};

/// A file's bytes as the operating system gives them, for comparing.
std::string BytesOf(const std::filesystem::path& path);
/// Makes a file of these bytes.
void PutBytes(const std::filesystem::path& path, std::string_view bytes);

} // namespace support

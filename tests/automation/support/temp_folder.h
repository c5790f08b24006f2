#pragma once

#include <string>
#include <vector>

namespace support {

/// A folder of a test's own, removed with everything in it.
class TempFolder {
public:
    TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder();

    /// Without a backslash at its end.
    const std::wstring& Path() const { return path_; }
    std::wstring operator/(const std::wstring& name) const { return path_ + L'\\' + name; }
    std::vector<std::wstring> Files() const;

private:
    std::wstring path_;
};

bool FileExists(const std::wstring& path);
std::string ReadBytes(const std::wstring& path);
void WriteBytes(const std::wstring& path, const std::string& bytes);
/// Lines with the line ends of the format.
void WriteLines(const std::wstring& path, const std::vector<std::string>& lines);

} // namespace support

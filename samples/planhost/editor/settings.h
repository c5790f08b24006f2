#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// What the editor remembers for its user from one start to the next: an ini file in the user's application data, or the
/// file that the environment variable PLANHOST_INI names. What cannot be read is as if it had never been written; what
/// cannot be written is forgotten.
class Settings {
public:
    Settings();
    explicit Settings(std::filesystem::path file) : file_(std::move(file)) {}

    /// Where files of the user's own may be kept beside it.
    std::filesystem::path Folder() const { return file_.parent_path(); }

    std::wstring Text(const std::wstring& section, const std::wstring& key,
                      const std::wstring& otherwise = {}) const;
    void SetText(const std::wstring& section, const std::wstring& key, const std::wstring& text);

    long Number(const std::wstring& section, const std::wstring& key, long otherwise) const;
    void SetNumber(const std::wstring& section, const std::wstring& key, long number);

    bool Flag(const std::wstring& section, const std::wstring& key, bool otherwise) const;
    void SetFlag(const std::wstring& section, const std::wstring& key, bool isSet);

    /// A section that holds nothing but a list, the first entry first.
    std::vector<std::wstring> List(const std::wstring& section) const;
    void SetList(const std::wstring& section, const std::vector<std::wstring>& entries);
    /// Puts an entry in front, where it stands once, and keeps the list that short.
    void PutFirst(const std::wstring& section, const std::wstring& entry, std::size_t longest);

private:
    void RequireFile() const;

    std::filesystem::path file_;
};

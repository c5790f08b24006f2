#include "settings.h"

#include <windows.h>

#include <algorithm>
#include <cwchar>
#include <fstream>

namespace fs = std::filesystem;

namespace {

constexpr DWORD kLongestText = 2048;

std::wstring Environment(const wchar_t* name) {
    wchar_t text[kLongestText];
    const DWORD length = GetEnvironmentVariableW(name, text, kLongestText);
    return length < kLongestText ? std::wstring(text, length) : std::wstring();
}

fs::path UsersFile() {
    if (const std::wstring chosen = Environment(L"PLANHOST_INI"); !chosen.empty())
        return fs::absolute(chosen); // a bare name would be looked for in the folder of Windows
    return fs::path(Environment(L"APPDATA")) / L"Planhost" / L"planhost.ini";
}

} // namespace

Settings::Settings() : file_(UsersFile()) {}

/// Windows keeps all characters only in a file that is UTF-16 already.
void Settings::RequireFile() const {
    std::error_code ignored;
    if (fs::exists(file_, ignored))
        return;
    fs::create_directories(file_.parent_path(), ignored);
    std::ofstream(file_, std::ios::binary) << "\xFF\xFE";
}

std::wstring Settings::Text(const std::wstring& section, const std::wstring& key,
                            const std::wstring& otherwise) const {
    wchar_t text[kLongestText];
    const DWORD length = GetPrivateProfileStringW(section.c_str(), key.c_str(), otherwise.c_str(), text,
                                                  kLongestText, file_.c_str());
    return {text, length};
}

void Settings::SetText(const std::wstring& section, const std::wstring& key, const std::wstring& text) {
    RequireFile();
    WritePrivateProfileStringW(section.c_str(), key.c_str(), text.c_str(), file_.c_str());
}

long Settings::Number(const std::wstring& section, const std::wstring& key, long otherwise) const {
    const std::wstring text = Text(section, key);
    wchar_t* end = nullptr;
    const long number = std::wcstol(text.c_str(), &end, 10);
    return text.empty() || *end != L'\0' ? otherwise : number;
}

void Settings::SetNumber(const std::wstring& section, const std::wstring& key, long number) {
    SetText(section, key, std::to_wstring(number));
}

bool Settings::Flag(const std::wstring& section, const std::wstring& key, bool otherwise) const {
    return Number(section, key, otherwise ? 1 : 0) != 0;
}

void Settings::SetFlag(const std::wstring& section, const std::wstring& key, bool isSet) {
    SetNumber(section, key, isSet ? 1 : 0);
}

std::vector<std::wstring> Settings::List(const std::wstring& section) const {
    std::vector<std::wstring> entries;
    for (std::wstring entry; !(entry = Text(section, std::to_wstring(entries.size() + 1))).empty();)
        entries.push_back(entry);
    return entries;
}

void Settings::SetList(const std::wstring& section, const std::vector<std::wstring>& entries) {
    RequireFile();
    WritePrivateProfileStringW(section.c_str(), nullptr, nullptr, file_.c_str()); // the whole section goes
    for (std::size_t i = 0; i < entries.size(); ++i)
        SetText(section, std::to_wstring(i + 1), entries[i]);
}

void Settings::PutFirst(const std::wstring& section, const std::wstring& entry, std::size_t longest) {
    std::vector<std::wstring> entries = List(section);
    std::erase(entries, entry);
    entries.insert(entries.begin(), entry);
    entries.resize(std::min(entries.size(), longest));
    SetList(section, entries);
}

#include "golden/com_files.h"

#include "support/automation_test.h"
#include "support/text.h"

#include <algorithm>

namespace golden {

namespace {

std::string InCodePage(UINT from, UINT to, const std::string& text) {
    std::wstring wide(text.size(), L'\0');
    wide.resize(static_cast<std::size_t>(MultiByteToWideChar(
        from, 0, text.data(), static_cast<int>(text.size()), wide.data(), static_cast<int>(wide.size()))));
    std::string bytes(wide.size() * 3, '\0');
    bytes.resize(static_cast<std::size_t>(
        WideCharToMultiByte(to, 0, wide.data(), static_cast<int>(wide.size()), bytes.data(),
                            static_cast<int>(bytes.size()), nullptr, nullptr)));
    return bytes;
}
std::string ToAnsi(const std::string& text) {
    return InCodePage(CP_UTF8, CP_ACP, text);
}
std::string FromAnsi(const std::string& bytes) {
    return InCodePage(CP_ACP, CP_UTF8, bytes);
}

} // namespace

ComFiles::~ComFiles() {
    for (const std::wstring& inner : inner_)
        RemoveDirectoryW(inner.c_str());
}

std::wstring ComFiles::PathOf(const std::string& name) const {
    if (name == ".")
        return folder_.Path();
    std::wstring path = folder_ / support::Widen(name);
    std::replace(path.begin(), path.end(), L'/', L'\\');
    return path;
}

std::wstring ComFiles::WithoutFolder(std::wstring text) const {
    const std::wstring folder = folder_.Path() + L'\\';
    for (auto at = text.find(folder); at != std::wstring::npos; at = text.find(folder))
        text.erase(at, folder.size());
    return text;
}

bool ComFiles::Do(const Step& step, Lines& outputs) {
    const Lines& words = step.words;
    const std::string& command = words[0];
    if (command == "settings") {
        settings_.reset();
        if (words.at(1) == "german")
            settings_.emplace(L",", L".");
        else
            settings_.emplace(L".", L",");
    } else if (command == "file" || command == "bytes") {
        std::string bytes;
        for (const std::string& line : step.payload)
            bytes += Unescaped(ToAnsi(line)) + (command == "file" ? "\r\n" : "");
        support::WriteBytes(PathOf(words.at(1)), bytes);
    } else if (command == "binary") {
        std::string bytes;
        for (const std::string& line : step.payload)
            bytes += BinaryOf(WordsOf(ToAnsi(line)));
        support::WriteBytes(PathOf(words.at(1)), bytes);
    } else if (command == "folder") {
        inner_.push_back(PathOf(words.at(1)));
        EXPECT_NE(CreateDirectoryW(inner_.back().c_str(), nullptr), FALSE);
    } else if (command == "text" && !support::FileExists(PathOf(words.at(1)))) {
        outputs.emplace_back("missing");
    } else if (command == "text") {
        outputs = FileLines(FromAnsi(support::ReadBytes(PathOf(words.at(1)))));
    } else if (command == "same") {
        const bool same = support::ReadBytes(PathOf(words.at(1))) == support::ReadBytes(PathOf(words.at(2)));
        outputs.emplace_back(same ? "same" : "different");
    } else if (command == "entities") {
        outputs = EntitiesOf(FromAnsi(support::ReadBytes(PathOf(words.at(1)))));
    } else {
        return false;
    }
    return true;
}

} // namespace golden

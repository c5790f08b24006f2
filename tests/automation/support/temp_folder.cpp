#include "support/temp_folder.h"

#include "support/text.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace support {

TempFolder::TempFolder() {
    static int counter = 0;
    wchar_t base[MAX_PATH];
    GetTempPathW(MAX_PATH, base);
    do {
        path_ = std::wstring(base) + L"qsymbol " + std::to_wstring(GetCurrentProcessId()) + L"-" +
                std::to_wstring(++counter);
    } while (CreateDirectoryW(path_.c_str(), nullptr) == FALSE && GetLastError() == ERROR_ALREADY_EXISTS);
}

TempFolder::~TempFolder() {
    for (const std::wstring& name : Files()) {
        SetFileAttributesW((*this / name).c_str(), FILE_ATTRIBUTE_NORMAL);
        DeleteFileW((*this / name).c_str());
    }
    EXPECT_NE(RemoveDirectoryW(path_.c_str()), FALSE) << "a file of " << Narrow(path_) << " is still open";
}

std::vector<std::wstring> TempFolder::Files() const {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW((path_ + L"\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return names;
    do {
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
            names.emplace_back(found.cFileName);
    } while (FindNextFileW(search, &found) != FALSE);
    FindClose(search);
    std::sort(names.begin(), names.end());
    return names;
}

bool FileExists(const std::wstring& path) {
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::string ReadBytes(const std::wstring& path) {
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(file, INVALID_HANDLE_VALUE) << Narrow(path);
    std::string bytes(GetFileSize(file, nullptr), '\0');
    DWORD got = 0;
    ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &got, nullptr);
    CloseHandle(file);
    bytes.resize(got);
    return bytes;
}

void WriteBytes(const std::wstring& path, const std::string& bytes) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    EXPECT_NE(file, INVALID_HANDLE_VALUE) << Narrow(path);
    DWORD put = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &put, nullptr);
    EXPECT_EQ(put, bytes.size());
    CloseHandle(file);
}

void WriteLines(const std::wstring& path, const std::vector<std::string>& lines) {
    std::string bytes;
    for (const std::string& line : lines)
        bytes += line + "\r\n";
    WriteBytes(path, bytes);
}

} // namespace support

#include "support/host_program.h"

#include "support/servers.h"

#include <windows.h>

#include <gtest/gtest.h>

namespace support {

namespace {

/// A file that a started process writes into.
HANDLE InheritableFile(const std::wstring& path) {
    SECURITY_ATTRIBUTES inheritable{sizeof inheritable, nullptr, TRUE};
    return CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inheritable, CREATE_ALWAYS, 0, nullptr);
}

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines(1);
    for (const char c : text) {
        if (c == '\n')
            lines.emplace_back();
        else if (c != '\r')
            lines.back() += c;
    }
    lines.pop_back();
    return lines;
}

} // namespace

HostProgram::HostProgram(const std::wstring& calledAs, const std::wstring& program)
    : program_(folder_ / calledAs) {
    EXPECT_NE(CopyFileW((ProgramFolder() + program).c_str(), program_.c_str(), TRUE), FALSE);
}

void HostProgram::AddResources(const std::wstring& variant, const std::wstring& calledAs) const {
    const std::wstring library = ProgramFolder() + L"resources\\QRes_" + variant + L".dll";
    EXPECT_NE(CopyFileW(library.c_str(), (folder_ / calledAs).c_str(), TRUE), FALSE);
}

std::vector<std::string> HostProgram::Run(const std::wstring& scenario) const {
    const std::wstring outputPath = folder_ / L"output.txt";
    const HANDLE output = InheritableFile(outputPath);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = output;
    start.hStdError = output;
    PROCESS_INFORMATION process{};
    std::wstring command = L"\"" + program_ + L"\" " + scenario;
    const BOOL started = CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                        folder_.Path().c_str(), &start, &process);
    EXPECT_NE(started, FALSE);
    DWORD code = 99;
    if (started != FALSE) {
        WaitForSingleObject(process.hProcess, INFINITE);
        GetExitCodeProcess(process.hProcess, &code);
        CloseHandle(process.hProcess);
        CloseHandle(process.hThread);
    }
    CloseHandle(output);
    const std::string text = ReadBytes(outputPath);
    EXPECT_EQ(code, 0U) << text;
    return Lines(text);
}

} // namespace support

#pragma once

#include "support/temp_folder.h"

#include <string>
#include <vector>

namespace support {

/// A host program of its own in a folder of its own, for what holds for a whole process.
class HostProgram {
public:
    /// `program` is one of the hosts beside the tests; it runs under the name `calledAs`.
    explicit HostProgram(const std::wstring& calledAs, const std::wstring& program = L"automation_host.exe");

    const TempFolder& Folder() const { return folder_; }
    /// Puts one of the tests' resource libraries into the folder.
    void AddResources(const std::wstring& variant, const std::wstring& calledAs = L"QRes.dll") const;
    /// Runs it in its folder; the lines that it wrote.
    std::vector<std::string> Run(const std::wstring& scenario) const;

private:
    TempFolder folder_;
    std::wstring program_;
};

} // namespace support

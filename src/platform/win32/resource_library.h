#pragma once

#include "messages/resource_strings.h"

#include <windows.h>

#include <string>

namespace platform {

/// The resource-string object: message texts from a resource library, which is loaded as data only.
class ResourceLibrary final : public messages::ResourceStrings {
public:
    ResourceLibrary() = default;
    ResourceLibrary(const ResourceLibrary&) = delete;
    ResourceLibrary& operator=(const ResourceLibrary&) = delete;

    /// Looks for the file in the given folder (with a backslash at its end), then beside the host program.
    /// A library that is not there leaves every string empty.
    void OpenResourceFile(const std::wstring& folder, const wchar_t* fileName);

    std::u16string LoadResString(std::int32_t id) const override;

private:
    HMODULE library_ = nullptr; ///< lives as long as the process
};

} // namespace platform

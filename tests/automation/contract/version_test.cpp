#include "support/automation_test.h"
#include "support/servers.h"
#include "support/text.h"

#include <gmock/gmock.h>

namespace {

/// A text of a file's version resource.
std::string VersionText(const std::wstring& path, const std::wstring& name) {
    DWORD ignored = 0;
    std::vector<char> block(GetFileVersionInfoSizeW(path.c_str(), &ignored));
    void* text = nullptr;
    UINT length = 0;
    if (block.empty() ||
        GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(block.size()), block.data()) == FALSE ||
        VerQueryValueW(block.data(), (L"\\StringFileInfo\\040904B0\\" + name).c_str(), &text, &length) ==
            FALSE)
        return {};
    return support::Narrow(static_cast<const wchar_t*>(text));
}

using Versions = support::AutomationTest;

TEST_F(Versions, AllDllsAreOfOneBuildAndTellWhatTheyAre) {
    const std::string version = VersionText(support::QSymbolServer().Path(), L"FileVersion");
    EXPECT_THAT(version, testing::MatchesRegex("4\\.1\\.0\\.\\d+"));
    const std::pair<const support::Server*, const char*> kDlls[] = {
        {&support::QMathServer(), "Tessera - Geometrie"},
        {&support::QSymbolServer(), "Tessera - Symbolbibliothek"},
        {&support::QPlanServer(), "Tessera - Planbibliothek"}};
    for (const auto& [server, description] : kDlls) {
        EXPECT_EQ(VersionText(server->Path(), L"FileDescription"), description);
        EXPECT_EQ(VersionText(server->Path(), L"FileVersion"), version) << description;
    }
}

} // namespace

#include "support/automation_test.h"
#include "tools/com_tool_host.h"

namespace {

using tools::Road;

/// The scripts lie beside the program.
std::filesystem::path Folder() {
    wchar_t path[MAX_PATH];
    const std::filesystem::path program(std::wstring(path, GetModuleFileNameW(nullptr, path, MAX_PATH)));
    return program.parent_path() / L"interactions";
}

class Interaction : public support::AutomationTest,
                    public testing::WithParamInterface<std::tuple<std::filesystem::path, Road>> {};

TEST_P(Interaction, GoesAsRecorded) {
    const auto& [file, road] = GetParam();
    tools::ComToolHost host(road);
    interactions::Play(interactions::ReadScript(file), host);
}

INSTANTIATE_TEST_SUITE_P(All, Interaction,
                         testing::Combine(testing::ValuesIn(interactions::ScriptsIn(Folder())),
                                          testing::Values(Road::VirtualTable, Road::LateBound)),
                         [](const auto& test) {
                             return std::get<0>(test.param).stem().string() +
                                    (std::get<1>(test.param) == Road::LateBound ? "_late" : "_vtable");
                         });

/// Scripts that nobody finds would prove nothing.
TEST(Interactions, AreThere) {
    EXPECT_GE(interactions::ScriptsIn(Folder()).size(), 10U);
}

} // namespace

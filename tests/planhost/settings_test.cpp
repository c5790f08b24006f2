#include "editor/settings.h"

#include <gtest/gtest.h>

TEST(Settings, AreThereNextTime) {
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() / L"Planhost-Probe" / L"neu.ini";
    std::filesystem::remove_all(file.parent_path());
    Settings(file).SetText(L"Plan", L"Zuletzt", L"C:\\Küche ≤ 90.plan");
    Settings(file).SetNumber(L"Fenster", L"Links", -12);
    Settings(file).SetFlag(L"Ansicht", L"Raster", true);
    for (const wchar_t* entry : {L"a", L"b", L"c", L"a", L"d"})
        Settings(file).PutFirst(L"Liste", entry, 3);
    const Settings settings(file);
    EXPECT_EQ(settings.Text(L"Plan", L"Zuletzt"), L"C:\\Küche ≤ 90.plan");
    EXPECT_EQ(settings.Number(L"Fenster", L"Links", 0), -12);
    EXPECT_EQ(settings.Number(L"Plan", L"Zuletzt", 7), 7); // no number
    EXPECT_TRUE(settings.Flag(L"Ansicht", L"Raster", false));
    EXPECT_EQ(settings.List(L"Liste"), (std::vector<std::wstring>{L"d", L"a", L"c"}));
    EXPECT_EQ(settings.Text(L"Nie", L"da", L"sonst"), L"sonst");
    std::filesystem::remove_all(file.parent_path());
}

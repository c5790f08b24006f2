#include "editor/picture_folder.h"

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

TEST(PictureFolder, IsThePlansUnlessItCannotBePassed) {
    EXPECT_EQ(PictureFolder(L"C:\\Haus\\Wohnung.plan"), L"C:\\Haus");
    EXPECT_EQ(PictureFolder({}), fs::current_path().wstring());
    const fs::path folder = fs::temp_directory_path() / L"Haus + Hof";
    fs::create_directories(folder);
    const std::wstring replaced = PictureFolder(folder / L"Wohnung.plan");
    EXPECT_EQ(replaced.find(L'+'), std::wstring::npos);
    EXPECT_TRUE(fs::is_directory(replaced));
    fs::remove(folder);
    const std::wstring standIn = PictureFolder(folder / L"Wohnung.plan");
    EXPECT_TRUE(fs::is_directory(standIn)) << "a folder that is gone has no short name";
    EXPECT_EQ(standIn.find(L'+'), std::wstring::npos);
}

TEST(DialogRequest, HasTwoFields) {
    EXPECT_EQ(DialogRequest(L"Sofa", L"C:\\Haus"), L"Sofa+C:\\Haus");
    EXPECT_EQ(DialogRequest(L"Sofa + Tisch", L"C:\\Haus"), L"+C:\\Haus");
}

} // namespace

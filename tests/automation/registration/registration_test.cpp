#include "support/automation_test.h"
#include "support/registry.h"
#include "support/servers.h"
#include "support/type_description.h"

#include <gmock/gmock.h>

namespace {

using support::Bstr;
using support::QMathServer;
using support::QSymbolServer;
using support::ReadRegistry;
using support::Ref;

const std::wstring kSymbolClass = L"CLSID\\{B71F0260-8646-41BD-808D-53C653890CA0}";
const std::wstring kLibrary = L"TypeLib\\{4DBEBC97-50A7-4D1C-8E5B-53D64F24067B}";
const std::wstring kSymbolInterface = L"Interface\\{85CB3679-2135-48E9-BC23-74F466223F78}";

/// Tests that take the registration away put it back.
class Registration : public support::AutomationTest {
protected:
    void TearDown() override {
        EXPECT_OK(QMathServer().Install(false, L"user"));
        EXPECT_OK(QSymbolServer().Install(false, L"user"));
        EXPECT_OK(QMathServer().Register());
        EXPECT_OK(QSymbolServer().Register());
    }
    static bool CanCreate() {
        Ref<IUnknown> object;
        return SUCCEEDED(
            CoCreateInstance(CLSID_CSymbol, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, object.PutVoid()));
    }
};

TEST_F(Registration, EntersTheClass) {
    EXPECT_EQ(ReadRegistry(HKEY_CLASSES_ROOT, kSymbolClass), L"QSymbol.CSymbol");
    EXPECT_EQ(ReadRegistry(HKEY_CLASSES_ROOT, kSymbolClass + L"\\InprocServer32"), QSymbolServer().Path());
    EXPECT_EQ(ReadRegistry(HKEY_CLASSES_ROOT, kSymbolClass + L"\\InprocServer32", L"ThreadingModel"),
              L"Apartment");
    EXPECT_EQ(ReadRegistry(HKEY_CLASSES_ROOT, kSymbolClass + L"\\ProgID"), L"QSymbol.CSymbol");
    EXPECT_EQ(ReadRegistry(HKEY_CLASSES_ROOT, kSymbolClass + L"\\TypeLib"),
              L"{4DBEBC97-50A7-4D1C-8E5B-53D64F24067B}");
    EXPECT_EQ(ReadRegistry(HKEY_CLASSES_ROOT, kSymbolClass + L"\\Version"), L"4.1");
    EXPECT_EQ(ReadRegistry(HKEY_CLASSES_ROOT, L"QSymbol.CSymbol\\CLSID"),
              L"{B71F0260-8646-41BD-808D-53C653890CA0}");
}

TEST_F(Registration, EntersTheTypeLibraryAndTheInterfaces) {
    EXPECT_EQ(ReadRegistry(HKEY_CLASSES_ROOT, kLibrary + L"\\4.1"), L"Tessera - Symbolbibliothek");
    Bstr path;
    ASSERT_OK(QueryPathOfRegTypeLib(LIBID_QSymbol, 4, 1, 0x409, path.Put()));
    EXPECT_EQ(std::wstring(path.Text().c_str()), QSymbolServer().Path());
    EXPECT_EQ(ReadRegistry(HKEY_CLASSES_ROOT, kSymbolInterface), L"_CSymbol");
    EXPECT_EQ(ReadRegistry(HKEY_CLASSES_ROOT, kSymbolInterface + L"\\TypeLib"),
              L"{4DBEBC97-50A7-4D1C-8E5B-53D64F24067B}");
}

TEST_F(Registration, LeavesNothingBehind) {
    ASSERT_OK(QSymbolServer().Unregister());
    ASSERT_OK(QMathServer().Unregister());
    const std::vector<std::wstring> without = support::ClassKeys();
    ASSERT_OK(QMathServer().Register());
    ASSERT_OK(QSymbolServer().Register());
    EXPECT_GT(support::ClassKeys().size(), without.size());
    ASSERT_OK(QSymbolServer().Unregister());
    ASSERT_OK(QMathServer().Unregister());
    EXPECT_THAT(support::ClassKeys(), testing::ElementsAreArray(without));

    EXPECT_FALSE(CanCreate());
    for (const HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
        for (const std::wstring& key : {kSymbolClass, kLibrary, kSymbolInterface,
                                        std::wstring(L"QSymbol.CSymbol"), std::wstring(L"QMath.CPt")})
            EXPECT_FALSE(support::HasKey(root, L"Software\\Classes\\" + key))
                << std::string(key.begin(), key.end());
    }
}

TEST_F(Registration, MayBeTakenAwayTwice) {
    EXPECT_OK(QSymbolServer().Unregister());
    EXPECT_OK(QSymbolServer().Unregister());
    EXPECT_OK(QSymbolServer().Register());
    EXPECT_OK(QSymbolServer().Register());
    EXPECT_TRUE(CanCreate());
}

TEST_F(Registration, ForTheUserAlone) {
    ASSERT_OK(QSymbolServer().Unregister());
    ASSERT_FALSE(CanCreate());
    ASSERT_OK(QSymbolServer().Install(true, L"user"));
    EXPECT_TRUE(support::HasKey(HKEY_CURRENT_USER, L"Software\\Classes\\" + kSymbolClass));
    // Wine enters type libraries for the machine only.
    const HKEY root = support::RunsUnderWine() ? HKEY_CLASSES_ROOT : HKEY_CURRENT_USER;
    const std::wstring prefix = support::RunsUnderWine() ? L"" : L"Software\\Classes\\";
    EXPECT_TRUE(support::HasKey(root, prefix + kLibrary + L"\\4.1"));
    EXPECT_FALSE(support::HasKey(HKEY_LOCAL_MACHINE, L"Software\\Classes\\" + kSymbolClass));
    // Wine does not look for classes in the user's part.
    EXPECT_NE(CanCreate(), support::RunsUnderWine());
    EXPECT_TRUE(support::RegisteredLibrary(LIBID_QSymbol, 4, 1));

    ASSERT_OK(QSymbolServer().Install(false, L"user"));
    EXPECT_FALSE(support::HasKey(HKEY_CURRENT_USER, L"Software\\Classes\\" + kSymbolClass));
    EXPECT_FALSE(support::HasKey(HKEY_CURRENT_USER, L"Software\\Classes\\" + kLibrary));
    EXPECT_FALSE(CanCreate());
}

TEST_F(Registration, TheSymbolInputHasNoClassOfItsOwn) {
    EXPECT_FALSE(support::HasKey(HKEY_CLASSES_ROOT, L"CLSID\\{CBCDF685-39C4-4111-8F95-E60601E89049}"));
    EXPECT_FALSE(support::HasKey(HKEY_CLASSES_ROOT, L"QSymbol.CSymInput"));
}

} // namespace

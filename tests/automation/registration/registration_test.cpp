#include "support/automation_test.h"
#include "support/import_patch.h"
#include "support/registry.h"
#include "support/servers.h"
#include "support/type_description.h"

#include <gmock/gmock.h>

namespace {

using support::Bstr;
using support::QMathServer;
using support::QPlanServer;
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
        EXPECT_OK(QPlanServer().Install(false, L"user"));
        EXPECT_OK(QMathServer().Register());
        EXPECT_OK(QSymbolServer().Register());
        EXPECT_OK(QPlanServer().Register());
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

TEST_F(Registration, TheTypeLibrariesAreFoundInEveryLocale) {
    for (const LCID locale : {0x0U, 0x7U, 0x9U, 0x407U, 0x409U, 0x809U, 0x400U, 0x800U}) {
        Ref<ITypeLib> library;
        EXPECT_OK(LoadRegTypeLib(LIBID_QSymbol, 4, 1, locale, library.Put())) << std::hex << locale;
        EXPECT_OK(LoadRegTypeLib(LIBID_QMath, 1, 0, locale, library.Put())) << std::hex << locale;
        EXPECT_OK(LoadRegTypeLib(LIBID_QPlan, 1, 0, locale, library.Put())) << std::hex << locale;
    }
}

TEST_F(Registration, LeavesNothingBehind) {
    ASSERT_OK(QPlanServer().Unregister());
    ASSERT_OK(QSymbolServer().Unregister());
    ASSERT_OK(QMathServer().Unregister());
    const std::vector<std::wstring> without = support::ClassKeys();
    ASSERT_OK(QMathServer().Register());
    ASSERT_OK(QSymbolServer().Register());
    ASSERT_OK(QPlanServer().Register());
    EXPECT_GT(support::ClassKeys().size(), without.size());
    ASSERT_OK(QPlanServer().Unregister());
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
    EXPECT_TRUE(support::HasKey(HKEY_CURRENT_USER, L"Software\\Classes\\" + kLibrary + L"\\4.1"));
    EXPECT_FALSE(support::HasKey(HKEY_LOCAL_MACHINE, L"Software\\Classes\\" + kSymbolClass));
    EXPECT_FALSE(support::HasKey(HKEY_LOCAL_MACHINE, L"Software\\Classes\\" + kLibrary));
    // Wine does not look for classes and type libraries in the user's part.
    EXPECT_NE(CanCreate(), support::RunsUnderWine());
    EXPECT_NE(static_cast<bool>(support::RegisteredLibrary(LIBID_QSymbol, 4, 1)), support::RunsUnderWine());

    ASSERT_OK(QSymbolServer().Install(false, L"user"));
    EXPECT_FALSE(support::HasKey(HKEY_CURRENT_USER, L"Software\\Classes\\" + kSymbolClass));
    EXPECT_FALSE(support::HasKey(HKEY_CURRENT_USER, L"Software\\Classes\\" + kLibrary));
    EXPECT_FALSE(CanCreate());
}

/// The registry as a process without the machine's rights meets it, whoever runs the tests.
LSTATUS WINAPI RefuseWriting(HKEY root, LPCWSTR path, DWORD options, REGSAM access, HKEY* key) {
    if (root == HKEY_LOCAL_MACHINE && (access & KEY_SET_VALUE) != 0)
        return ERROR_ACCESS_DENIED;
    return RegOpenKeyExW(root, path, options, access, key);
}
LSTATUS WINAPI RefuseRemoving(HKEY parent, LPCWSTR name) {
    return support::HasKey(parent, name) ? ERROR_ACCESS_DENIED : ERROR_FILE_NOT_FOUND;
}

TEST_F(Registration, TellsWhatItMayNotRemove) {
    {
        const support::ImportPatch write(L"QSymbol.dll", "RegOpenKeyExW",
                                         reinterpret_cast<void*>(RefuseWriting));
        const support::ImportPatch remove(L"QSymbol.dll", "RegDeleteTreeW",
                                          reinterpret_cast<void*>(RefuseRemoving));
        EXPECT_EQ(QSymbolServer().Unregister(), HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED));
        EXPECT_NE(support::TakeErrorInfo().description, L"");
    }
    EXPECT_TRUE(CanCreate());
    EXPECT_OK(QSymbolServer().Unregister());
    EXPECT_FALSE(CanCreate());
}

TEST_F(Registration, TheSymbolInputHasNoClassOfItsOwn) {
    EXPECT_FALSE(support::HasKey(HKEY_CLASSES_ROOT, L"CLSID\\{CBCDF685-39C4-4111-8F95-E60601E89049}"));
    EXPECT_FALSE(support::HasKey(HKEY_CLASSES_ROOT, L"QSymbol.CSymInput"));
}

} // namespace

#include "support/automation_test.h"
#include "support/registry.h"
#include "support/servers.h"

namespace {

using support::QSymbolServer;

constexpr bool kIs64 = sizeof(void*) == 8;
constexpr REGSAM kOtherView = kIs64 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
const std::wstring kOwnPlatform = kIs64 ? L"win64" : L"win32";
const std::wstring kOtherPlatform = kIs64 ? L"win32" : L"win64";

const std::wstring kClasses = L"Software\\Classes\\";
const std::wstring kClass = kClasses + L"CLSID\\{B71F0260-8646-41BD-808D-53C653890CA0}";
const std::wstring kProgId = kClasses + L"QSymbol.CSymbol";
const std::wstring kInterface = kClasses + L"Interface\\{85CB3679-2135-48E9-BC23-74F466223F78}";
const std::wstring kLibraryKey = kClasses + L"TypeLib\\{4DBEBC97-50A7-4D1C-8E5B-53D64F24067B}";
const std::wstring kVersion = kLibraryKey + L"\\4.1";

/// What the DLL of the other bitness enters and takes away, as far as the two meet. Where both see the same classes that is the
/// type library with its interfaces alone.
struct OtherBitness {
    HKEY root;
    bool hasViews = support::HasTwoViews(root);

    void Register() const {
        if (hasViews)
            support::WriteRegistry(root, kClass + L"\\InprocServer32", L"C:\\andere\\QSymbol.dll",
                                   kOtherView);
        support::WriteRegistry(root, kProgId + L"\\CLSID", L"{B71F0260-8646-41BD-808D-53C653890CA0}");
        for (const wchar_t* const locale : {L"\\0\\", L"\\409\\"})
            support::WriteRegistry(root, kVersion + locale + kOtherPlatform, L"C:\\andere\\QSymbol.dll");
        for (const REGSAM view : {KEY_WOW64_32KEY, KEY_WOW64_64KEY})
            support::WriteRegistry(root, kInterface + L"\\TypeLib", L"{4DBEBC97-50A7-4D1C-8E5B-53D64F24067B}",
                                   view);
    }
    void Unregister() const {
        if (hasViews)
            support::RemoveRegistry(root, kClass, kOtherView);
        for (const wchar_t* const locale : {L"\\0\\", L"\\409\\"})
            support::RemoveRegistry(root, kVersion + locale + kOtherPlatform);
    }
    bool Works() const {
        return hasViews ? Works(kOtherView, kOtherPlatform) : HasLibrary(kOtherView, kOtherPlatform);
    }
    bool OwnWorks() const { return Works(0, kOwnPlatform); }
    /// True when one bitness finds all that it needs; of that, classes and interfaces are apart in two views.
    bool Works(REGSAM view, const std::wstring& platform) const {
        return support::HasKey(root, kClass + L"\\InprocServer32", view) &&
               support::HasKey(root, kProgId + L"\\CLSID") && HasLibrary(view, platform);
    }
    bool HasLibrary(REGSAM view, const std::wstring& platform) const {
        return support::HasKey(root, kVersion + L"\\0\\" + platform) &&
               support::HasKey(root, kVersion + L"\\409\\" + platform) &&
               support::HasKey(root, kInterface + L"\\TypeLib", view);
    }
    bool NothingIsLeft() const {
        for (const REGSAM view : {KEY_WOW64_32KEY, KEY_WOW64_64KEY}) {
            if (support::HasKey(root, kClass, view) || support::HasKey(root, kInterface, view))
                return false;
        }
        return !support::HasKey(root, kProgId) && !support::HasKey(root, kLibraryKey);
    }
};

struct Order {
    const char* name;
    bool user;
    bool ownFirstIn;
    bool ownFirstOut;
};

void PrintTo(const Order& order, std::ostream* out) {
    *out << order.name;
}

class BothBitnesses : public support::AutomationTest, public testing::WithParamInterface<Order> {
protected:
    void SetUp() override {
        ASSERT_OK(QSymbolServer().Unregister());
        ASSERT_TRUE(other.NothingIsLeft());
    }
    void TearDown() override {
        other.Unregister();
        EXPECT_OK(QSymbolServer().Unregister());
        EXPECT_OK(QSymbolServer().Register());
    }
    HRESULT Own(bool install) const {
        if (GetParam().user)
            return QSymbolServer().Install(install, L"user");
        return install ? QSymbolServer().Register() : QSymbolServer().Unregister();
    }

    OtherBitness other{GetParam().user ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE};
};

INSTANTIATE_TEST_SUITE_P(Orders, BothBitnesses,
                         testing::Values(Order{"MachineOwnInFirstOwnOutFirst", false, true, true},
                                         Order{"MachineOwnInFirstOtherOutFirst", false, true, false},
                                         Order{"MachineOtherInFirstOwnOutFirst", false, false, true},
                                         Order{"MachineOtherInFirstOtherOutFirst", false, false, false},
                                         Order{"UserOwnInFirstOwnOutFirst", true, true, true},
                                         Order{"UserOwnInFirstOtherOutFirst", true, true, false},
                                         Order{"UserOtherInFirstOwnOutFirst", true, false, true},
                                         Order{"UserOtherInFirstOtherOutFirst", true, false, false}),
                         [](const auto& tested) { return tested.param.name; });

TEST_P(BothBitnesses, OneMayGoWithoutTheOther) {
    if (!GetParam().ownFirstIn)
        other.Register();
    ASSERT_OK(Own(true));
    if (GetParam().ownFirstIn)
        other.Register();
    EXPECT_TRUE(other.Works());
    EXPECT_TRUE(other.OwnWorks());

    if (GetParam().ownFirstOut) {
        ASSERT_OK(Own(false));
        EXPECT_FALSE(support::HasKey(other.root, kClass));
        EXPECT_TRUE(other.Works());
        ASSERT_OK(Own(true)); // back, to see below what goes with the last one
    }
    other.Unregister();
    EXPECT_TRUE(other.OwnWorks());
    ASSERT_OK(Own(false));
    EXPECT_TRUE(other.NothingIsLeft());
}

} // namespace

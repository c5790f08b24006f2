#include "dialog/dialog_fixture.h"
#include "support/handle_count.h"
#include "support/temp_folder.h"

/// Nothing is left behind, neither by pictures nor by dialogs.

namespace {

using namespace dialog;
using namespace support;

/// What a few pictures or dialogs may leave in the system's own stores.
constexpr long kSlack = 60;

class Leaks : public DialogTest {
protected:
    void Export(int times) {
        user.Do([](const SelectionDialog& dialog) {
            // Small pictures, and off the screen, where nothing needs painting: both take time only.
            SetWindowPos(dialog.Window(), nullptr, -5000, -5000, 1, 1, SWP_NOZORDER);
        });
        for (int i = 0; i < times; ++i) {
            user.Press(kExport);
            user.WaitUntil([](const SelectionDialog& dialog) { return !dialog.IsShown(kProgress); });
        }
        user.Press(IDCANCEL);
        EXPECT_EQ(Choose(L"+" + folder.Path()), L"");
    }
    static void ExpectNoMoreThan(const HandleCount& before) {
        const HandleCount after = HandleCount::Now();
        EXPECT_LE(after.gdi, before.gdi + kSlack);
        EXPECT_LE(after.system, before.system + kSlack);
    }

    MessageBoxes none;
    TempFolder folder;
};

/// The probe itself: what it counts goes up with what is left behind.
TEST_F(Leaks, AreSeen) {
    const HandleCount before = HandleCount::Now();
    std::vector<HGDIOBJ> pens;
    std::vector<HANDLE> events;
    for (int i = 0; i < 1000; ++i) {
        pens.push_back(CreatePen(PS_SOLID, 1, 0));
        events.push_back(CreateEventW(nullptr, FALSE, FALSE, nullptr));
    }
    const HandleCount leaking = HandleCount::Now();
    EXPECT_GE(leaking.gdi, before.gdi + 1000 - kSlack);
    EXPECT_GE(leaking.system, before.system + 1000 - kSlack);
    for (const HGDIOBJ pen : pens)
        DeleteObject(pen);
    for (const HANDLE event : events)
        CloseHandle(event);
}

TEST_F(Leaks, TenThousandPictures) {
    std::vector<std::wstring> names;
    for (int i = 0; i < 500; ++i)
        names.push_back(L"S" + std::to_wstring(i));
    Add(names);
    Export(1);
    EXPECT_EQ(folder.Files().size(), 500U);
    const HandleCount before = HandleCount::Now();
    Export(20);
    ExpectNoMoreThan(before);
}

TEST_F(Leaks, ManyDialogs) {
    Add({L"Bett", L"Tisch"});
    const auto open = [&](int times) {
        for (int i = 0; i < times; ++i) {
            user.Key(VK_DOWN).Press(IDOK);
            EXPECT_EQ(Choose(), L"Tisch");
        }
    };
    open(5);
    const HandleCount before = HandleCount::Now();
    open(100);
    ExpectNoMoreThan(before);
}

} // namespace

#include "dialog/dialog_fixture.h"

/// The dialog before its owner, and hosts that do something while it is open.

namespace {

using namespace dialog;
using namespace support;

/// A window of the host, active.
class HostWindow {
public:
    HostWindow()
        : window_(CreateWindowExW(0, L"STATIC", L"Planer", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 80, 500,
                                  400, nullptr, nullptr, nullptr, nullptr)) {
        SetActiveWindow(window_);
        EXPECT_EQ(GetActiveWindow(), window_);
    }
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;
    ~HostWindow() { Destroy(); }

    HWND Get() const { return window_; }
    void Destroy() { DestroyWindow(std::exchange(window_, nullptr)); }

private:
    HWND window_;
};

int g_seen = 0;

LRESULT CALLBACK CountMessages(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    g_seen += message == WM_APP ? 1 : 0;
    return DefWindowProcW(window, message, wParam, lParam);
}

class Modality : public DialogTest {
protected:
    Modality() { Add({L"Bett", L"Tisch"}); }

    MessageBoxes none;
    HostWindow host;
};

TEST_F(Modality, TheActiveWindowIsTheOwner) {
    user.Do([&](const SelectionDialog& dialog) {
        EXPECT_EQ(GetWindow(dialog.Window(), GW_OWNER), host.Get());
        EXPECT_FALSE(IsWindowEnabled(host.Get()));
        EXPECT_EQ(GetActiveWindow(), dialog.Window());
    });
    user.Press(IDOK);
    EXPECT_EQ(Choose(), L"Bett");
    EXPECT_TRUE(IsWindowEnabled(host.Get()));
    EXPECT_EQ(GetActiveWindow(), host.Get());
}

TEST_F(Modality, OpensOverTheMiddleOfItsOwner) {
    user.Do([&](const SelectionDialog& dialog) {
        RECT owner{};
        RECT window{};
        GetWindowRect(host.Get(), &owner);
        GetWindowRect(dialog.Window(), &window);
        RECT work{};
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
        EXPECT_GE(window.left, work.left);
        EXPECT_GE(window.top, work.top);
        EXPECT_LE(window.right, work.right);
        EXPECT_LE(window.bottom, work.bottom);
        EXPECT_NEAR(window.left + window.right, owner.left + owner.right, 2);
        EXPECT_NEAR(window.top + window.bottom, owner.top + owner.bottom, 2);
    });
    user.Press(IDCANCEL);
    EXPECT_EQ(Choose(), L"");
}

TEST_F(Modality, AnOwnerThatWasDisabledStaysSo) {
    EnableWindow(host.Get(), FALSE);
    SetActiveWindow(host.Get());
    user.Press(IDCANCEL);
    EXPECT_EQ(Choose(), L"");
    EXPECT_FALSE(IsWindowEnabled(host.Get()));
}

TEST_F(Modality, TheEndOfTheProgramIsNotSwallowed) {
    user.Do([](const SelectionDialog&) { PostQuitMessage(7); });
    EXPECT_EQ(Choose(), L"");
    MSG message{};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7U);
    EXPECT_TRUE(IsWindowEnabled(host.Get()));
}

TEST_F(Modality, TheOwnerMayGo) {
    user.Do([&](const SelectionDialog&) { host.Destroy(); });
    EXPECT_EQ(Choose(), L"");
}

TEST_F(Modality, TheCatalogueMayChange) {
    user.Do([&](const SelectionDialog& dialog) {
        EXPECT_OK(catalogue->Clear());
        Add(L"Tisch", 4400, 100, {{.type = symUndefined}});
        dialog.Key(VK_DOWN);
    });
    user.Do([](const SelectionDialog& dialog) {
        EXPECT_EQ(dialog.Entries().size(), 2U) << "the list is of the time when the dialog opened";
        EXPECT_EQ(dialog.Text(kWidth), L"44.00") << "the symbol is the catalogue's";
    });
    user.Press(IDOK);
    EXPECT_EQ(Choose(), L"Tisch");
}

TEST_F(Modality, TheHostMayLetGoOfTheCatalogue) {
    user.Do([&](const SelectionDialog& dialog) {
        catalogue.Reset();
        dialog.Key(VK_DOWN);
    });
    user.Press(IDOK);
    Bstr name;
    _CSymbolColl* const onlyReference = catalogue.Get();
    EXPECT_OK(onlyReference->SelectSymNameDlg(Bstr(L""), name.Put()));
    EXPECT_EQ(name.Text(), L"Tisch");
}

TEST_F(Modality, AnotherDialogMayOpenInside) {
    std::wstring inner;
    user.Do([&](const SelectionDialog& outer) {
        user.Do([&](const SelectionDialog& dialog) {
            EXPECT_NE(dialog.Window(), outer.Window());
            EXPECT_FALSE(IsWindowEnabled(outer.Window()));
            EXPECT_EQ(GetWindow(dialog.Window(), GW_OWNER), outer.Window());
        });
        user.Press(IDOK);
        inner = Choose(L"Tisch");
        EXPECT_TRUE(IsWindowEnabled(outer.Window()));
        user.Press(IDOK);
    });
    EXPECT_EQ(Choose(), L"Bett");
    EXPECT_EQ(inner, L"Tisch");
    EXPECT_EQ(user.Dialogs(), 2U);
}

TEST_F(Modality, MessagesOfTheHostAreHandled) {
    g_seen = 0;
    SetWindowLongPtrW(host.Get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CountMessages));
    user.Do([&](const SelectionDialog&) { PostMessageW(host.Get(), WM_APP, 0, 0); });
    user.Do([&](const SelectionDialog&) { EXPECT_EQ(g_seen, 1); });
    user.Press(IDCANCEL);
    EXPECT_EQ(Choose(), L"");
}

} // namespace

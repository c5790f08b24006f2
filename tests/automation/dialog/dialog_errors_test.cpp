#include "dialog/dialog_fixture.h"

#include <gmock/gmock.h>

/// What goes wrong in the dialog is shown and goes no further; the dialog stays.

namespace {

using namespace dialog;
using namespace support;
using testing::ElementsAre;

const Failure kFailure{Numbered(481), L"Gastgeber", L"Ungültiges Bild"};

class DialogErrors : public DialogTest {
protected:
    void Expect(MessageBoxes& boxes, const std::vector<std::wstring>& texts) const {
        std::vector<Box> expected;
        for (const std::wstring& text : texts)
            expected.push_back(ErrorBox(text));
        EXPECT_EQ(boxes.Seen(), expected);
    }
};

TEST_F(DialogErrors, ANameThatCannotBeReadEndsTheList) {
    Add({L"Bett"});
    AddForeign(L"Fremd")->Fail("Name", kFailure);
    Add({L"Tür"});
    MessageBoxes boxes{IDOK};
    user.Do([](const SelectionDialog& dialog) {
        EXPECT_THAT(dialog.Entries(), ElementsAre(L"Bett"));
        EXPECT_EQ(dialog.Selected(), -1);
        EXPECT_FALSE(dialog.IsEnabled(IDOK));
        dialog.Key(VK_DOWN);
    });
    user.Do([](const SelectionDialog& dialog) {
        EXPECT_TRUE(dialog.IsEnabled(IDOK)) << "what there is can be chosen";
    });
    user.Press(IDOK);
    EXPECT_EQ(Choose(), L"Bett");
    Expect(boxes, {L"frmSymSelect.SetSymColl\r\nUngültiges Bild"});
}

TEST_F(DialogErrors, ADrawingThatFails) {
    Add({L"Bett"});
    AddForeign(L"Fremd")->Fail("Draw2PBox", kFailure);
    MessageBoxes boxes{IDOK, IDOK};
    user.Key(VK_DOWN);
    user.Do([](const SelectionDialog& dialog) {
        EXPECT_TRUE(dialog.IsEnabled(IDOK)) << "the symbol is there";
        EXPECT_EQ(dialog.Text(kWidth), L"");
        dialog.Key(VK_UP);
        dialog.Key(VK_DOWN);
    });
    user.Press(IDOK);
    EXPECT_EQ(Choose(), L"Fremd");
    Expect(boxes, std::vector<std::wstring>(2, L"frmSymSelect.lbSymbole_Click\r\nUngültiges Bild"));
}

TEST_F(DialogErrors, ASizeThatCannotBeRead) {
    for (const char* member : {"Width", "Height"}) {
        EXPECT_OK(catalogue->Clear());
        const Ref<ForeignSymbol> symbol = AddForeign(L"Fremd");
        symbol->Fail(member, kFailure);
        MessageBoxes boxes{IDOK};
        user.Do([&](const SelectionDialog& dialog) {
            EXPECT_EQ(symbol->Fits(), 1) << "it is drawn all the same";
            EXPECT_EQ(dialog.Text(kWidth), L"");
            EXPECT_EQ(dialog.Text(kHeight), L"");
        });
        user.Press(IDOK);
        EXPECT_EQ(Choose(), L"Fremd");
        Expect(boxes, {L"frmSymSelect.lbSymbole_Click\r\nUngültiges Bild"});
    }
}

/// Draw2PBox of the library's own symbols shows its errors itself.
TEST_F(DialogErrors, ASymbolThatCannotBeDrawnAtThatScale) {
    Add(L"Riese", 10, 10,
        {{.type = symPoly, .points = {{0, 0}, {2147483647, 0}, {-2147483647, 5}}, .closed = false}});
    MessageBoxes boxes{IDOK};
    user.Do([](const SelectionDialog& dialog) { EXPECT_EQ(dialog.Text(kWidth), L"0.10"); });
    user.Press(IDOK);
    EXPECT_EQ(Choose(), L"Riese");
    Expect(boxes, {L"CSymbol.Draw2PBox\r\nÜberlauf"});
}

TEST_F(DialogErrors, TheBoxBelongsToTheDialog) {
    Add({L"Bett"});
    AddForeign(L"Fremd")->Fail("Draw2PBox", kFailure);
    MessageBoxes boxes{IDOK};
    HWND dialogWindow = nullptr;
    HWND owner = nullptr;
    boxes.whileOpen = [&] { owner = OwnerOfMessageBox(); };
    user.Do([&](const SelectionDialog& dialog) {
        dialogWindow = dialog.Window();
        dialog.Key(VK_DOWN);
    });
    user.Do([&](const SelectionDialog& dialog) {
        EXPECT_EQ(owner, dialogWindow);
        EXPECT_EQ(GetActiveWindow(), dialog.Window()) << "the dialog is active again";
    });
    user.Press(IDCANCEL);
    EXPECT_EQ(Choose(), L"");
}

} // namespace

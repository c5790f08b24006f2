#include "dialog/dialog_fixture.h"

#include <gmock/gmock.h>

/// Which entry is selected when the dialog opens, and what the host gets.

namespace {

using namespace dialog;
using testing::ElementsAre;
using testing::IsEmpty;

class Selecting : public DialogTest {
protected:
    support::MessageBoxes none; ///< each box that is shown is a failure
};

TEST_F(Selecting, TheListHasTheCataloguesOrder) {
    Add({L"Zaun", L"Bett", L"ärmlich", L"Tür"});
    user.Do([](const SelectionDialog& dialog) {
        EXPECT_THAT(dialog.Entries(), ElementsAre(L"Zaun", L"Bett", L"ärmlich", L"Tür"));
        EXPECT_EQ(dialog.Selected(), 0);
    });
    user.Press(IDOK);
    EXPECT_EQ(Choose(), L"Zaun");
}

TEST_F(Selecting, AnEmptyCatalogueHasNothingToAccept) {
    user.Do([](const SelectionDialog& dialog) {
        EXPECT_THAT(dialog.Entries(), IsEmpty());
        EXPECT_EQ(dialog.Selected(), -1);
        EXPECT_FALSE(dialog.IsEnabled(IDOK));
        EXPECT_EQ(dialog.Text(support::kWidth), L"");
        EXPECT_EQ(dialog.Text(support::kHeight), L"");
    });
    user.Key(VK_RETURN); // the default button is disabled
    user.Do([](const SelectionDialog& dialog) { EXPECT_FALSE(dialog.IsEnabled(IDOK)); });
    user.Press(IDCANCEL);
    EXPECT_EQ(Choose(L"Bett+C:\\Bilder"), L"");
}

TEST_F(Selecting, TheOldNameIsSelected) {
    Add({L"Bett", L"Tisch", L"Tür"});
    user.Do([](const SelectionDialog& dialog) { EXPECT_EQ(dialog.SelectedEntry(), L"Tür"); });
    user.Press(IDOK);
    EXPECT_EQ(Choose(L"Tür+C:\\Bilder"), L"Tür");
}

TEST_F(Selecting, AnUnknownOldNameLeavesTheFirstEntry) {
    Add({L"Bett", L"Tisch", L"Tür"});
    user.Press(IDOK);
    EXPECT_EQ(Choose(L"Tis+"), L"Bett");
}

TEST_F(Selecting, CaseIsMinded) {
    Add({L"Bett", L"TISCH"});
    user.Press(IDOK);
    EXPECT_EQ(Choose(L"Tisch"), L"Bett");
}

/// Symbols of the host's own may change their names after they were added.
TEST_F(Selecting, TheFirstOfEqualEntriesIsSelected) {
    Add({L"Bett", L"Tisch", L"Tür"});
    for (const LONG place : {2, 3}) {
        Ref<_CSymbol> symbol;
        EXPECT_OK(catalogue->get_ItemByPos(place, symbol.Put()));
        EXPECT_OK(symbol->put_FilePath(support::Bstr(L"Gleich.syb")));
    }
    user.Do([](const SelectionDialog& dialog) {
        EXPECT_THAT(dialog.Entries(), ElementsAre(L"Bett", L"Gleich", L"Gleich"));
        EXPECT_EQ(dialog.Selected(), 1);
        EXPECT_FALSE(dialog.IsEnabled(IDOK)) << "the catalogue does not know that name";
    });
    user.Press(IDCANCEL);
    EXPECT_EQ(Choose(L"Gleich"), L"");
}

TEST_F(Selecting, AnEmptyNameAndAMissingOneSelectTheFirstEntry) {
    Add({L"Bett", L"Tisch"});
    for (const wchar_t* old : {L"", L"+", L"+C:\\Bilder"}) {
        user.Press(IDOK);
        EXPECT_EQ(Choose(old), L"Bett") << old;
    }
    support::Bstr name;
    user.Press(IDOK);
    EXPECT_OK(catalogue->SelectSymNameDlg(nullptr, name.Put()));
    EXPECT_EQ(name.Text(), L"Bett");
}

TEST_F(Selecting, TheKeyboardMovesThroughTheList) {
    Add({L"Bett", L"Tisch", L"Tür"});
    user.Key(VK_DOWN).Key(VK_DOWN).Key(VK_UP).Key(VK_RETURN);
    EXPECT_EQ(Choose(), L"Tisch");
}

TEST_F(Selecting, SeveralLettersLeadToAnEntry) {
    Add({L"Bett", L"Tisch", L"Tür", L"Tür rechts"});
    user.Do([](const SelectionDialog& dialog) { dialog.Type(L"tÜR r"); });
    user.Do([](const SelectionDialog& dialog) {
        EXPECT_EQ(dialog.SelectedEntry(), L"Tür rechts");
        EXPECT_EQ(dialog.Text(support::kWidth).substr(0, 2), L"20") << "and it is shown";
    });
    user.Press(IDOK);
    EXPECT_EQ(Choose(), L"Tür rechts");
}

TEST_F(Selecting, AClickSelectsAndOkAccepts) {
    Add({L"Bett", L"Tisch", L"Tür"});
    user.Do([](const SelectionDialog& dialog) { dialog.ClickEntry(2); });
    user.Press(IDOK);
    EXPECT_EQ(Choose(), L"Tür");
}

TEST_F(Selecting, ADoubleClickAccepts) {
    Add({L"Bett", L"Tisch", L"Tür"});
    user.Do([](const SelectionDialog& dialog) { dialog.DoubleClickEntry(1); });
    EXPECT_EQ(Choose(), L"Tisch");
}

TEST_F(Selecting, CancelEscapeAndClosingGiveNothing) {
    Add({L"Bett"});
    user.Press(IDCANCEL);
    EXPECT_EQ(Choose(), L"");
    user.Key(VK_ESCAPE);
    EXPECT_EQ(Choose(), L"");
    user.Do([](const SelectionDialog& dialog) { dialog.Close(); });
    EXPECT_EQ(Choose(), L"");
    EXPECT_EQ(user.Dialogs(), 3U);
}

TEST_F(Selecting, ASymbolThatIsGoneCannotBeAccepted) {
    Add({L"Bett", L"Tisch"});
    user.Do([&](const SelectionDialog& dialog) {
        EXPECT_OK(catalogue->RemoveOnIndex(support::Bstr(L"Tisch")));
        dialog.Key(VK_DOWN);
    });
    user.Do([](const SelectionDialog& dialog) {
        EXPECT_EQ(dialog.SelectedEntry(), L"Tisch");
        EXPECT_FALSE(dialog.IsEnabled(IDOK));
        dialog.DoubleClickEntry(1);
    });
    user.Key(VK_RETURN).Key(VK_UP);
    user.Do([](const SelectionDialog& dialog) { EXPECT_TRUE(dialog.IsEnabled(IDOK)); });
    user.Press(IDOK);
    EXPECT_EQ(Choose(), L"Bett");
}

/// A button that is disabled with the focus on it would take the keyboard away.
TEST_F(Selecting, TheFocusLeavesOkWhenItIsDisabled) {
    Add({L"Bett", L"Tisch"});
    user.Do([&](const SelectionDialog& dialog) {
        EXPECT_OK(catalogue->RemoveOnIndex(support::Bstr(L"Tisch")));
        SetFocus(dialog.Control(IDOK));
        dialog.ClickEntry(1);
    });
    user.Do([](const SelectionDialog& dialog) {
        EXPECT_FALSE(dialog.IsEnabled(IDOK));
        EXPECT_EQ(GetFocus(), dialog.Control(support::kList));
    });
    user.Press(IDCANCEL);
    EXPECT_EQ(Choose(), L"");
}

TEST_F(Selecting, WorksLateBound) {
    Add({L"Bett", L"Tisch"});
    user.Press(IDOK);
    const support::Answer answer = support::Dispatch(catalogue).Call(L"SelectSymNameDlg", {L"Tisch+C:\\"});
    EXPECT_OK(answer.status);
    EXPECT_EQ(answer.value.Text(), L"Tisch");
}

TEST_F(Selecting, NoPlaceForTheResultOpensNothing) {
    EXPECT_EQ(catalogue->SelectSymNameDlg(support::Bstr(L""), nullptr), E_POINTER);
    EXPECT_EQ(user.Dialogs(), 0U);
}

TEST_F(Selecting, LongNamesCanBeScrolled) {
    const std::wstring longName(300, L'W');
    Add({L"Bett", longName});
    user.Do([](const SelectionDialog& dialog) {
        const auto extent = SendMessageW(dialog.Control(support::kList), LB_GETHORIZONTALEXTENT, 0, 0);
        RECT list{};
        GetClientRect(dialog.Control(support::kList), &list);
        EXPECT_GT(extent, list.right);
    });
    user.Key(VK_DOWN).Press(IDOK);
    EXPECT_EQ(Choose(), longName);
}

} // namespace

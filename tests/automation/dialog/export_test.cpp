#include "dialog/dialog_fixture.h"
#include "support/jpeg_picture.h"
#include "support/temp_folder.h"
#include "support/text.h"

#include <commctrl.h>
#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>

/// JPEG pictures of the whole list.

namespace {

using namespace dialog;
using namespace support;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class Exporting : public DialogTest {
protected:
    void AddMany(int count) {
        std::vector<std::wstring> names;
        for (int i = 1; i <= count; ++i)
            names.push_back(L"Symbol " + std::to_wstring(i));
        Add(names);
    }
    std::wstring ChooseWithFolder(const std::wstring& name = L"") {
        return Choose(name + L"+" + folder.Path());
    }
    /// Waits for the end of an export that was begun.
    void Finish() {
        user.WaitUntil([](const SelectionDialog& dialog) { return !dialog.IsShown(kProgress); });
    }
    static bool Runs(const SelectionDialog& dialog) { return dialog.IsShown(kProgress); }

    TempFolder folder;
};

TEST_F(Exporting, WritesAPictureOfEachEntry) {
    const MessageBoxes none;
    Add({L"Bett", L"Tür links", L"Öl.tank"});
    SIZE area{};
    user.Do([&](const SelectionDialog& dialog) { area = PreviewSize(dialog); });
    user.Press(kExport);
    Finish();
    user.Press(IDCANCEL);
    EXPECT_EQ(ChooseWithFolder(), L"");
    EXPECT_THAT(folder.Files(), UnorderedElementsAre(L"Bett.JPG", L"Tür links.JPG", L"Öl.tank.JPG"));
    for (const std::wstring& name : folder.Files()) {
        const JpegPicture picture = ReadJpeg(folder / name);
        EXPECT_EQ(picture.status, 0) << Narrow(name);
        EXPECT_TRUE(picture.isJpeg);
        EXPECT_EQ(picture.width, area.cx - 2) << "the preview inside its border";
        EXPECT_EQ(picture.height, area.cy - 2);
        EXPECT_LT(picture.DarkestGrey(), 100) << "a frame is drawn";
    }
}

TEST_F(Exporting, ThePictureIsThePreviewOnWhite) {
    const MessageBoxes none;
    Add(L"Fläche", 1000, 1000,
        {{.type = symPoly,
          .points = {{0, 0}, {1000, 0}, {1000, 1000}, {0, 1000}},
          .closed = true,
          .fillColor = RGB(0, 0, 255)}});
    std::vector<std::uint32_t> preview;
    SIZE area{};
    user.Press(kExport);
    Finish();
    user.Do([&](const SelectionDialog& dialog) {
        area = PreviewSize(dialog);
        Canvas shown(area.cx, area.cy);
        PaintPreview(dialog, shown);
        preview = shown.Pixels();
    });
    user.Press(IDCANCEL);
    EXPECT_EQ(ChooseWithFolder(), L"");
    const JpegPicture picture = ReadJpeg(folder / L"Fläche.JPG");
    ASSERT_EQ(picture.pixels.size(), static_cast<std::size_t>((area.cx - 2) * (area.cy - 2)));
    int farthest = 0;
    for (LONG y = 0; y < area.cy - 2; ++y)
        for (LONG x = 0; x < area.cx - 2; ++x) {
            const std::uint32_t saved = picture.pixels[static_cast<std::size_t>(y * (area.cx - 2) + x)];
            const std::uint32_t shown = preview[static_cast<std::size_t>((y + 1) * area.cx + x + 1)];
            for (const int shift : {0, 8, 16})
                farthest = std::max(farthest, std::abs(static_cast<int>(saved >> shift & 0xFF) -
                                                       static_cast<int>(shown >> shift & 0xFF)));
        }
    EXPECT_LT(farthest, 110) << "JPEG blurs edges, no more";
    EXPECT_GT(picture.pixels.front(), 0xF0F0F0U);
    const std::size_t middle =
        static_cast<std::size_t>((area.cy - 2) / 2 * (area.cx - 2) + (area.cx - 2) / 2);
    EXPECT_LT(picture.pixels[middle] & 0xFFFF00U, 0x200000U);
    EXPECT_GT(picture.pixels[middle] & 0xFFU, 0xE0U);
}

TEST_F(Exporting, WritesOverOldPictures) {
    const MessageBoxes none;
    Add({L"Bett"});
    WriteBytes(folder / L"Bett.JPG", "alt");
    user.Press(kExport);
    Finish();
    user.Press(IDCANCEL);
    EXPECT_EQ(ChooseWithFolder(), L"");
    EXPECT_TRUE(ReadJpeg(folder / L"Bett.JPG").isJpeg);
}

TEST_F(Exporting, AnEmptyListHasNothingToWrite) {
    const MessageBoxes none;
    user.Do([](const SelectionDialog& dialog) {
        EXPECT_FALSE(dialog.IsEnabled(kExport));
        EXPECT_FALSE(dialog.IsShown(kSaved));
    });
    user.Press(IDCANCEL);
    EXPECT_EQ(ChooseWithFolder(), L"");
    EXPECT_THAT(folder.Files(), IsEmpty());
}

TEST_F(Exporting, LeavesTheSelectionAndShowsItAgain) {
    const MessageBoxes none;
    AddMany(5);
    AddForeign(L"Letztes", 77700, 100);
    user.Press(kExport);
    Finish();
    user.Do([](const SelectionDialog& dialog) {
        EXPECT_EQ(dialog.SelectedEntry(), L"Symbol 3");
        EXPECT_EQ(dialog.Text(kWidth).substr(0, 2), L"20");
        EXPECT_TRUE(dialog.IsEnabled(IDOK));
        EXPECT_EQ(dialog.Text(kExport), L"Alle als &JPEG speichern");
    });
    user.Press(IDOK);
    EXPECT_EQ(ChooseWithFolder(L"Symbol 3"), L"Symbol 3");
    EXPECT_EQ(folder.Files().size(), 6U);
}

/// Stands before a dialog and counts how often its width is painted while it is empty.
class PaintingsOfNothing {
public:
    static void WatchOver(HWND dialog) {
        count = 0;
        procedure = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrW(dialog, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(OnMessage)));
    }
    static inline int count = 0;

private:
    static LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        const auto control = reinterpret_cast<HWND>(lParam);
        if (message == WM_CTLCOLORSTATIC && GetDlgCtrlID(control) == kWidth &&
            GetWindowTextLengthW(control) == 0)
            ++count;
        return CallWindowProcW(procedure, window, message, wParam, lParam);
    }
    static inline WNDPROC procedure = nullptr;
};

TEST_F(Exporting, DoesNotBlinkAndTellsAtItsEndWhatItDid) {
    const MessageBoxes none;
    AddMany(20);
    user.Do([](const SelectionDialog& dialog) {
        EXPECT_TRUE(dialog.IsEnabled(kExport));
        PaintingsOfNothing::WatchOver(dialog.Window());
    });
    user.Press(kExport);
    Finish();
    user.Do([&](const SelectionDialog& dialog) {
        EXPECT_TRUE(dialog.IsShown(kSaved));
        EXPECT_FALSE(dialog.IsShown(kProgressText));
        EXPECT_EQ(dialog.Text(kSaved), L"20 Bilder in " + folder.Path() + L" gespeichert");
        EXPECT_GT(dialog.Place(kSaved).left, dialog.Place(kExport).right);
        EXPECT_LT(dialog.Place(kSaved).right, dialog.Place(IDOK).left);
    });
    user.Press(IDCANCEL);
    EXPECT_EQ(ChooseWithFolder(), L"");
    EXPECT_EQ(PaintingsOfNothing::count, 0);
}

TEST_F(Exporting, TellsHowFarItIs) {
    const MessageBoxes none;
    AddMany(60);
    user.Press(kExport);
    user.WaitUntil(Runs);
    user.Do([](const SelectionDialog& dialog) {
        const std::wstring text = dialog.Text(kProgressText);
        EXPECT_EQ(text.substr(text.find(L' ')), L" von 60");
        const int current = std::stoi(text);
        EXPECT_GE(current, 1);
        EXPECT_EQ(SendMessageW(dialog.Control(kProgress), PBM_GETPOS, 0, 0), current);
        EXPECT_EQ(SendMessageW(dialog.Control(kProgress), PBM_GETRANGE, FALSE, 0), 60);
        EXPECT_EQ(dialog.Text(kExport), L"&Anhalten");
        EXPECT_TRUE(IsWindowEnabled(dialog.Window()));
    });
    Finish();
    user.Press(IDCANCEL);
    EXPECT_EQ(ChooseWithFolder(), L"");
    EXPECT_EQ(folder.Files().size(), 60U);
}

/// A test of what ends an export of 300 pictures in the middle.
class EndingAnExport : public Exporting {
protected:
    static constexpr int kMany = 300;

    EndingAnExport() {
        AddMany(kMany);
        user.Press(kExport);
        user.WaitUntil(
            [this](const SelectionDialog& dialog) { return Runs(dialog) && !folder.Files().empty(); });
    }
    ~EndingAnExport() override {
        EXPECT_GT(folder.Files().size(), 0U);
        EXPECT_LT(folder.Files().size(), std::size_t{kMany});
        for (const std::wstring& name : folder.Files())
            if (!ReadJpeg(folder / name).isJpeg)
                ADD_FAILURE() << Narrow(name) << " is half a picture";
    }

    MessageBoxes none;
};

TEST_F(EndingAnExport, TheStopButtonLeavesTheDialogOpen) {
    user.Press(kExport);
    Finish();
    std::size_t stopped = 0;
    user.Do([&](const SelectionDialog& dialog) {
        stopped = folder.Files().size();
        EXPECT_EQ(dialog.Text(kExport), L"Alle als &JPEG speichern");
        EXPECT_EQ(dialog.SelectedEntry(), L"Symbol 2");
    });
    user.Press(IDOK);
    EXPECT_EQ(ChooseWithFolder(L"Symbol 2"), L"Symbol 2");
    EXPECT_EQ(folder.Files().size(), stopped);
}

TEST_F(EndingAnExport, CancelGivesNothing) {
    user.Press(IDCANCEL);
    EXPECT_EQ(ChooseWithFolder(), L"");
}

TEST_F(EndingAnExport, EscapeGivesNothing) {
    user.Key(VK_ESCAPE);
    EXPECT_EQ(ChooseWithFolder(), L"");
}

TEST_F(EndingAnExport, ClosingGivesNothing) {
    user.Do([](const SelectionDialog& dialog) { dialog.Close(); });
    EXPECT_EQ(ChooseWithFolder(), L"");
}

TEST_F(EndingAnExport, OkAcceptsTheSelectedEntry) {
    user.Do([](const SelectionDialog& dialog) { dialog.ClickEntry(6); });
    user.Press(IDOK);
    EXPECT_EQ(ChooseWithFolder(), L"Symbol 7");
}

TEST_F(EndingAnExport, TheEndOfTheProgramEndsItToo) {
    user.Do([](const SelectionDialog&) { PostQuitMessage(3); });
    EXPECT_EQ(ChooseWithFolder(), L"");
    MSG message{};
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 3U);
}

TEST_F(Exporting, SelectingMeanwhileDoesNotDisturbThePictures) {
    const MessageBoxes none;
    Add(L"Leer", 100, 100, {{.type = symUndefined}});
    AddMany(40);
    user.Press(kExport);
    int clicks = 0;
    user.WaitUntil(Runs);
    user.WaitUntil([&](const SelectionDialog& dialog) {
        if (!Runs(dialog))
            return true;
        dialog.ClickEntry(0); // shows an empty picture
        ++clicks;
        return false;
    });
    user.Press(IDOK);
    EXPECT_EQ(ChooseWithFolder(), L"Leer");
    EXPECT_GT(clicks, 0);
    EXPECT_EQ(folder.Files().size(), 41U);
    for (int i = 1; i <= 40; ++i)
        EXPECT_LT(ReadJpeg(folder / (L"Symbol " + std::to_wstring(i) + L".JPG")).DarkestGrey(), 100) << i;
}

TEST_F(Exporting, ASymbolThatIsGoneGetsAnEmptyPicture) {
    const MessageBoxes none;
    Add({L"Bett", L"Tisch"});
    user.Do([&](const SelectionDialog& dialog) {
        EXPECT_OK(catalogue->Clear());
        dialog.Press(kExport);
    });
    Finish();
    user.Do([](const SelectionDialog& dialog) { EXPECT_FALSE(dialog.IsEnabled(IDOK)); });
    user.Press(IDCANCEL);
    EXPECT_EQ(ChooseWithFolder(), L"");
    EXPECT_THAT(folder.Files(), UnorderedElementsAre(L"Bett.JPG", L"Tisch.JPG"));
    EXPECT_GT(ReadJpeg(folder / L"Tisch.JPG").DarkestGrey(), 250);
}

std::wstring SaveError(int status) {
    return L"CSymbolColl.SelectSymDlg\r\nSpeicherung des Bildes fehlgeschlagen. GDI+ Error:" +
           std::to_wstring(status);
}

TEST_F(Exporting, AFolderThatIsMissingStopsAtTheFirstEntry) {
    Add({L"Bett", L"Tisch"});
    const std::wstring missing = folder / L"gibt es nicht";
    const int status = StatusOfSavingTo(missing + L"\\Bett.JPG");
    ASSERT_NE(status, 0);
    MessageBoxes boxes{IDOK};
    boxes.whileOpen = [] {
        const SelectionDialog dialog(OwnerOfMessageBox());
        EXPECT_EQ(dialog.Text(kProgressText), L"1 von 2") << "the box comes up at the entry";
    };
    user.Press(kExport);
    Finish();
    user.Do([](const SelectionDialog& dialog) {
        EXPECT_TRUE(dialog.IsEnabled(IDOK));
        EXPECT_EQ(dialog.Text(kExport), L"Alle als &JPEG speichern");
        EXPECT_EQ(dialog.Text(kSaved), L"Kein Bild gespeichert");
    });
    user.Press(IDOK);
    EXPECT_EQ(Choose(L"Tisch+" + missing), L"Tisch");
    EXPECT_THAT(boxes.Seen(), ElementsAre(ErrorBox(SaveError(status))));
}

TEST_F(Exporting, AFileThatCannotBeWrittenStopsThere) {
    Add({L"Bett", L"Tisch", L"Tür"});
    CreateDirectoryW((folder / L"Tisch.JPG").c_str(), nullptr);
    const int status = StatusOfSavingTo(folder / L"Tisch.JPG");
    ASSERT_NE(status, 0);
    const MessageBoxes boxes{IDOK, IDOK};
    user.Press(kExport);
    Finish();
    user.Press(kExport); // again, with the same end
    Finish();
    user.Press(IDCANCEL);
    EXPECT_EQ(ChooseWithFolder(), L"");
    EXPECT_THAT(boxes.Seen(), ElementsAre(ErrorBox(SaveError(status)), ErrorBox(SaveError(status))));
    EXPECT_TRUE(FileExists(folder / L"Bett.JPG"));
    EXPECT_FALSE(FileExists(folder / L"Tür.JPG"));
    RemoveDirectoryW((folder / L"Tisch.JPG").c_str());
}

TEST_F(Exporting, ASymbolThatCannotBeShownEndsIt) {
    Add({L"Bett"});
    const Ref<ForeignSymbol> broken = AddForeign(L"Kaputt");
    broken->Fail("Draw2PBox", {Numbered(481), L"Gastgeber", L"Ungültiges Bild"});
    Add({L"Tür"});
    const MessageBoxes boxes{IDOK};
    user.Press(kExport);
    Finish();
    user.Press(IDCANCEL);
    EXPECT_EQ(ChooseWithFolder(), L"");
    EXPECT_THAT(boxes.Seen(), ElementsAre(ErrorBox(L"frmSymSelect.lbSymbole_Click\r\nUngültiges Bild")));
    EXPECT_THAT(folder.Files(), ElementsAre(L"Bett.JPG"));
}

/// The host's own symbol goes to another entry whenever it is to draw.
TEST_F(Exporting, ASymbolThatLetsNothingBeShownEndsIt) {
    Add({L"Bett"});
    const Ref<ForeignSymbol> restless = AddForeign(L"Unruhig");
    const MessageBoxes boxes{IDOK};
    user.Do([&](const SelectionDialog& dialog) {
        const HWND window = dialog.Window();
        restless->OnFit([window](IDispatch*) {
            const HWND list = GetDlgItem(window, kList);
            SendMessageW(window, WM_COMMAND, MAKEWPARAM(kList, LBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(list));
        });
        dialog.Press(kExport);
    });
    Finish();
    user.Press(IDOK);
    EXPECT_EQ(ChooseWithFolder(), L"Bett");
    EXPECT_THAT(boxes.Seen(), ElementsAre(ErrorBox(L"frmSymSelect.lbSymbole_Click\r\nUngültiger "
                                                   L"Prozeduraufruf oder ungültiges Argument")));
    EXPECT_THAT(folder.Files(), ElementsAre(L"Bett.JPG"));
    restless->OnFit({});
}

} // namespace

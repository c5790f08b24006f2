#include "support/automation_test.h"
#include "support/message_boxes.h"
#include "support/shapes.h"
#include "support/temp_folder.h"

namespace {

using support::Box;
using support::LibraryError;
using support::MessageBoxes;
using support::NewSymbolAt;
using support::Outcome;
using support::Ref;

const wchar_t kReads[] = L"CSymbol.ReadFromFile";
const wchar_t kWrites[] = L"CSymbol.Write2File";

class FileChoice : public support::AutomationTest {
protected:
    support::TempFolder folder;

    Ref<_CSymbol> SymbolAt(const std::wstring& path) const {
        Ref<_CSymbol> symbol =
            support::NewSymbol(1, 2, 3, 4, {{.type = symCircle, .points = {{1, 2}}, .radius = 3}});
        EXPECT_OK(symbol->put_FilePath(support::Bstr(path)));
        return symbol;
    }
};

TEST_F(FileChoice, GoesByTheExtensionInAnyCase) {
    EXPECT_OK(SymbolAt(folder / L"eins.SYB")->Write2File());
    EXPECT_EQ(support::ReadBytes(folder / L"eins.SYB").substr(2, 3), "SYM");
    EXPECT_OK(NewSymbolAt(folder / L"eins.Syb")->ReadFromFile());
    EXPECT_OK(SymbolAt(folder / L"zwei.Syt")->Write2File());
    EXPECT_EQ(support::ReadBytes(folder / L"zwei.Syt").substr(0, 4), "SYM;");
    EXPECT_OK(NewSymbolAt(folder / L"zwei.SYT")->ReadFromFile());
}

TEST_F(FileChoice, TheExtensionDecidesAndNotTheContent) {
    EXPECT_OK(SymbolAt(folder / L"a.syb")->Write2File());
    ASSERT_NE(MoveFileW((folder / L"a.syb").c_str(), (folder / L"a.syt").c_str()), FALSE);
    EXPECT_EQ(Outcome(NewSymbolAt(folder / L"a.syt")->ReadFromFile()),
              LibraryError(3501, L"CSymbol.ReadFromTxtFile"))
        << "the reader's own source, not that of ReadFromFile";
}

TEST_F(FileChoice, OtherExtensionsAreRefused) {
    for (const std::wstring name : {L"ohne", L"x.txt", L"x.syt.bak", L"x.", L"x.sybx", L"x.sy", L"syt"}) {
        const Ref<_CSymbol> symbol = SymbolAt(folder / name);
        EXPECT_EQ(Outcome(symbol->ReadFromFile()), LibraryError(3501, kReads));
        EXPECT_EQ(Outcome(symbol->Write2File()), LibraryError(3503, kWrites));
        EXPECT_EQ(support::ElementsOf(symbol.Get()).size(), 1U) << "the symbol is not touched";
    }
    EXPECT_TRUE(folder.Files().empty());
    EXPECT_EQ(Outcome(SymbolAt(L"")->ReadFromFile()), LibraryError(3501, kReads));
    EXPECT_EQ(Outcome(SymbolAt(L"")->Write2File()), LibraryError(3503, kWrites));
}

TEST_F(FileChoice, TheImportFormatIsNotWritten) {
    EXPECT_EQ(Outcome(SymbolAt(folder / L"x.wsc")->Write2File()), LibraryError(3503, kWrites));
    EXPECT_FALSE(support::FileExists(folder / L"x.wsc"));
}

TEST_F(FileChoice, AFolderWithADotIsNoExtension) {
    EXPECT_EQ(Outcome(SymbolAt(L"C:\\plan.syt\\ohne")->ReadFromFile()), LibraryError(3501, kReads));
}

class Overwriting : public FileChoice, public testing::WithParamInterface<const wchar_t*> {
protected:
    std::wstring path = folder / GetParam();
    Box question{L"Symboleditor",
                 L"Datei " + path + L" existiert schon. Soll sie überschrieben werden ?",
                 {IDYES, IDNO},
                 support::BoxIcon::None};
};

INSTANTIATE_TEST_SUITE_P(Formats, Overwriting, testing::Values(L"Tür.syt", L"Tür.syb"),
                         [](const auto& tested) { return tested.index == 0 ? "Text" : "Binary"; });

TEST_P(Overwriting, ANewFileAsksNothing) {
    MessageBoxes boxes;
    EXPECT_OK(SymbolAt(path)->Write2File());
    EXPECT_TRUE(boxes.Seen().empty());
}

TEST_P(Overwriting, NoLeavesTheFileAsItWas) {
    support::WriteBytes(path, "alt");
    MessageBoxes boxes{IDNO};
    EXPECT_OK(SymbolAt(path)->Write2File());
    EXPECT_EQ(boxes.Seen(), std::vector<Box>{question});
    EXPECT_EQ(support::ReadBytes(path), "alt");
}

TEST_P(Overwriting, YesWritesWithoutABackup) {
    support::WriteBytes(path, "alt");
    MessageBoxes boxes{IDYES};
    EXPECT_OK(SymbolAt(path)->Write2File());
    EXPECT_EQ(boxes.Seen(), std::vector<Box>{question});
    EXPECT_EQ(folder.Files().size(), 1U);
    const Ref<_CSymbol> symbol = NewSymbolAt(path);
    EXPECT_OK(symbol->ReadFromFile());
    EXPECT_EQ(support::ElementsOf(symbol.Get()).at(0).radius, 3);
}

TEST_P(Overwriting, ATextFileIsReplacedABinaryOneIsOverlaid) {
    support::WriteBytes(path, std::string(5000, 'x'));
    MessageBoxes boxes{IDYES};
    EXPECT_OK(SymbolAt(path)->Write2File());
    const bool isText = path.ends_with(L"syt");
    EXPECT_EQ(support::ReadBytes(path).size() < 5000, isText);
}

TEST_P(Overwriting, AFileInUseIsRefusedAfterTheQuestion) {
    support::WriteBytes(path, "alt");
    const HANDLE user =
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    MessageBoxes boxes{IDYES};
    EXPECT_EQ(Outcome(SymbolAt(path)->Write2File()), support::RunTimeError(70));
    CloseHandle(user);
    EXPECT_EQ(support::ReadBytes(path), "alt");
}

TEST_P(Overwriting, TheSymbolMayChangeWhileTheQuestionIsOpen) {
    support::WriteBytes(path, "alt");
    const Ref<_CSymbol> symbol = SymbolAt(path);
    MessageBoxes boxes{IDYES};
    boxes.whileOpen = [&] { EXPECT_OK(symbol->CreateNew(0, 0, 1, 1, nullptr)); };
    EXPECT_OK(symbol->Write2File());
    const Ref<_CSymbol> written = NewSymbolAt(path);
    EXPECT_OK(written->ReadFromFile());
    EXPECT_EQ(support::ElementsOf(written.Get()).size(), 1U)
        << "the symbol as it was when it was to be written";
    EXPECT_TRUE(support::ElementsOf(symbol.Get()).empty());
}

} // namespace

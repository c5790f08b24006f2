#include "support/automation_test.h"
#include "support/message_boxes.h"
#include "support/shapes.h"
#include "support/temp_folder.h"

namespace {

using support::MessageBoxes;
using support::NewSymbolAt;
using support::Outcome;
using support::Ref;
using support::RunTimeError;

/// Files that somebody else has open, and symbols that change while a question about their file is.
class FileInUse : public support::AutomationTest, public testing::WithParamInterface<const wchar_t*> {
protected:
    FileInUse() { support::WriteBytes(path, "alt"); }

    HANDLE Open(DWORD access, DWORD share) const {
        return CreateFileW(path.c_str(), access, share, nullptr, OPEN_EXISTING, 0, nullptr);
    }

    support::TempFolder folder;
    std::wstring path = folder / GetParam();
    Ref<_CSymbol> symbol =
        support::NewSymbol(1, 2, 3, 4, {{.type = symCircle, .points = {{1, 2}}, .radius = 3}});
};

INSTANTIATE_TEST_SUITE_P(Formats, FileInUse, testing::Values(L"Tür.syt", L"Tür.syb"),
                         [](const auto& tested) { return tested.index == 0 ? "Text" : "Binary"; });

TEST_P(FileInUse, OneThatIsLockedIsNotRead) {
    const HANDLE lock = Open(GENERIC_READ | GENERIC_WRITE, 0);
    EXPECT_EQ(Outcome(NewSymbolAt(path)->ReadFromFile()), RunTimeError(70));
    CloseHandle(lock);
    EXPECT_NE(Outcome(NewSymbolAt(path)->ReadFromFile()), RunTimeError(70)) << "free again, but no symbol";
}

TEST_P(FileInUse, IsRefusedAfterTheQuestion) {
    const HANDLE user = Open(GENERIC_READ, FILE_SHARE_READ);
    MessageBoxes boxes{IDYES};
    EXPECT_OK(symbol->put_FilePath(support::Bstr(path)));
    EXPECT_EQ(Outcome(symbol->Write2File()), RunTimeError(70));
    CloseHandle(user);
    EXPECT_EQ(support::ReadBytes(path), "alt");
}

TEST_P(FileInUse, TheSymbolMayChangeWhileTheQuestionIsOpen) {
    EXPECT_OK(symbol->put_FilePath(support::Bstr(path)));
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

#include "support/automation_test.h"
#include "support/import_patch.h"
#include "support/message_boxes.h"
#include "support/no_boxes.h"
#include "support/number_settings.h"
#include "support/shapes.h"
#include "support/temp_folder.h"
#include "support/text.h"

namespace {

using support::Bstr;
using support::NumberSettings;
using support::Outcome;
using support::Ref;
using support::RunTimeError;

/// What the system's files, devices, code page and user do to reading and writing.
class DiskFiles : public support::AutomationTest {
protected:
    support::TempFolder folder;

    Ref<_CSymbol> SymbolAt(const std::wstring& path, const std::wstring& text = L"x") const {
        Ref<_CSymbol> symbol =
            support::NewSymbol(1, 2, 3, 4, {{.type = symText, .points = {{1, 2}}, .text = text}});
        EXPECT_OK(symbol->put_FilePath(Bstr(path)));
        return symbol;
    }
    void ExpectNoFile(const std::wstring& path) const {
        const Ref<_CSymbol> symbol = SymbolAt(path);
        EXPECT_EQ(Outcome(symbol->Write2File()), RunTimeError(75)) << support::Narrow(path);
        EXPECT_EQ(Outcome(symbol->ReadFromFile()), RunTimeError(75)) << support::Narrow(path);
    }
    /// What became of the text in the file.
    std::wstring Back(const std::wstring& name, const std::wstring& text) const {
        const Ref<_CSymbol> symbol = SymbolAt(folder / name, text);
        EXPECT_OK(symbol->Write2File());
        EXPECT_OK(symbol->ReadFromFile());
        DeleteFileW((folder / name).c_str());
        return support::ElementsOf(symbol.Get()).at(0).text;
    }
};

TEST_F(DiskFiles, DevicesAreNone) {
    const support::MessageBoxes boxes;
    for (const std::wstring name :
         {L"NUL.syt", L"nul.syb", L"AUX.syt", L"COM1.syb", L"con.syt", L"LPT1.syb"}) {
        wchar_t full[MAX_PATH] = {};
        GetFullPathNameW((folder / name).c_str(), MAX_PATH, full, nullptr);
        if (std::wstring(full).starts_with(L"\\\\.\\")) // newer systems know them without a folder only
            ExpectNoFile(folder / name);
    }
    EXPECT_TRUE(folder.Files().empty());
    EXPECT_TRUE(boxes.Seen().empty());
}

TEST_F(DiskFiles, PipesAreNone) {
    const support::MessageBoxes boxes;
    for (const wchar_t* const path : {L"\\\\.\\pipe\\QSymbolTest.syt", L"\\\\.\\PIPE\\QSymbolTest.syb"}) {
        const HANDLE pipe = CreateNamedPipeW(path, PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE, 1, 64, 64, 0, nullptr);
        ASSERT_NE(pipe, INVALID_HANDLE_VALUE);
        ExpectNoFile(path);
        CloseHandle(pipe);
    }
    EXPECT_TRUE(boxes.Seen().empty());
}

TEST_F(DiskFiles, ReadingSharesWithWritersAndDeleters) {
    for (const wchar_t* const name : {L"a.syt", L"a.syb"}) {
        EXPECT_OK(SymbolAt(folder / name)->Write2File());
        const HANDLE client = CreateFileW((folder / name).c_str(), GENERIC_READ | GENERIC_WRITE | DELETE,
                                          FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                          OPEN_EXISTING, 0, nullptr);
        ASSERT_NE(client, INVALID_HANDLE_VALUE);
        EXPECT_OK(support::NewSymbolAt(folder / name)->ReadFromFile());
        CloseHandle(client);
    }
}

BOOL WINAPI FullDisk(HANDLE, LPCVOID, DWORD, LPDWORD written, LPOVERLAPPED) {
    *written = 0;
    SetLastError(ERROR_DISK_FULL);
    return FALSE;
}

TEST_F(DiskFiles, AFullDiskLeavesTheOldContent) {
    for (const wchar_t* const name : {L"a.syt", L"a.syb"}) {
        EXPECT_OK(SymbolAt(folder / name)->Write2File());
        const std::string old = support::ReadBytes(folder / name);
        {
            const support::ImportPatch full(L"QSymbol.dll", "WriteFile", reinterpret_cast<void*>(FullDisk));
            const support::MessageBoxes boxes{IDYES};
            EXPECT_EQ(Outcome(SymbolAt(folder / name, L"ein längerer Text")->Write2File()), RunTimeError(61));
            EXPECT_EQ(Outcome(SymbolAt(folder / (std::wstring(L"neu_") + name))->Write2File()),
                      RunTimeError(61));
        }
        EXPECT_EQ(support::ReadBytes(folder / name), old);
        EXPECT_FALSE(support::FileExists(folder / (std::wstring(L"neu_") + name)));
    }
}

TEST_F(DiskFiles, HiddenFilesAreOverwrittenAndStayHidden) {
    for (const wchar_t* const name : {L"a.syt", L"a.syb"}) {
        support::WriteBytes(folder / name, "old");
        ASSERT_NE(SetFileAttributesW((folder / name).c_str(), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM),
                  FALSE);
        const DWORD before = GetFileAttributesW((folder / name).c_str());
        const support::MessageBoxes boxes{IDYES};
        EXPECT_OK(SymbolAt(folder / name)->Write2File());
        EXPECT_EQ(GetFileAttributesW((folder / name).c_str()), before);
        EXPECT_OK(support::NewSymbolAt(folder / name)->ReadFromFile());
    }
}

TEST_F(DiskFiles, CharactersAreReplacedAndNeverGuessed) {
    for (const wchar_t* const name : {L"a.syt", L"a.syb"}) {
        EXPECT_EQ(Back(name, L"≤ 90 cm"), L"? 90 cm");
        EXPECT_EQ(Back(name, L"√2 ≈ 1,41 ∞ Ａ"), L"?2 ? 1,41 ? ?");
        EXPECT_EQ(Back(name, L"\U0001F6BB"), L"?") << "one character, one sign";
        EXPECT_EQ(Back(name, L"Küche 10 € „x“ – …"), L"Küche 10 € „x“ – …");
    }
}

TEST_F(DiskFiles, ASeparatorThatTheCodePageLacksIsNone) {
    const auto read = [&](const std::string& width) {
        support::WriteLines(folder / L"x.syt", {"SYM;CNT=1;WID=" + width + ";HEI=1;RPX=0;RPY=0"});
        return Outcome(support::NewSymbolAt(folder / L"x.syt")->ReadFromFile());
    };
    {
        const NumberSettings narrowBlank(L",", L"\x202F");
        EXPECT_EQ(read("1?5"), RunTimeError(13));
        EXPECT_OK(read("1,5").status);
    }
    const NumberSettings arabic(L"\x066B", L"\x066C");
    EXPECT_EQ(read("1?5"), RunTimeError(13));
    const Ref<_CSymbol> symbol = SymbolAt(folder / L"y.syt");
    EXPECT_OK(symbol->put_Width(150));
    EXPECT_OK(symbol->Write2File());
    EXPECT_NE(support::ReadBytes(folder / L"y.syt").find(";WID=1.50;"), std::string::npos);
    EXPECT_OK(symbol->ReadFromFile());
    LONG width = 0;
    EXPECT_OK(symbol->get_Width(&width));
    EXPECT_EQ(width, 150);
}

TEST_F(DiskFiles, AQuestionThatCannotBeAskedIsAnError) {
    support::WriteBytes(folder / L"a.syt", "old");
    const support::NoBoxes nobody;
    EXPECT_EQ(Outcome(SymbolAt(folder / L"a.syt")->Write2File()), RunTimeError(70));
    EXPECT_EQ(support::ReadBytes(folder / L"a.syt"), "old");

    support::WriteBytes(folder / L"a.syb", "broken");
    support::WriteBytes(folder / L"b.syb", "broken");
    const Ref<_CSymbolColl> catalogue = support::Create<CSymbolColl, _CSymbolColl>();
    EXPECT_OK(catalogue->ReadKatalog(Bstr(folder.Path()))) << "as after Abort";
    support::WriteLines(folder / L"a.wsc", {"BLT 1 2 3 4 5", "XYZ"});
    EXPECT_OK(support::NewSymbolAt(folder / L"a.wsc")->ReadFromFile()) << "a notice is dropped";
}

} // namespace

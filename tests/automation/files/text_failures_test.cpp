#include "support/automation_test.h"
#include "support/number_settings.h"
#include "support/shapes.h"
#include "support/temp_folder.h"

namespace {

using support::Failure;
using support::LibraryError;
using support::NewSymbolAt;
using support::Outcome;
using support::Ref;
using support::RunTimeError;

const char kHeader[] = "SYM;CNT=1;WID=1;HEI=1;RPX=0;RPY=0";
const wchar_t kReader[] = L"CSymbol.ReadFromTxtFile";

class BrokenTextFile : public support::AutomationTest {
protected:
    support::TempFolder folder;
    support::NumberSettings english{L".", L","};
    Ref<_CSymbol> symbol = NewSymbolAt(folder / L"x.syt");

    Failure Read(const std::vector<std::string>& lines) const {
        support::WriteLines(folder / L"x.syt", lines);
        const Failure early = Outcome(symbol->ReadFromFile());
        EXPECT_EQ(support::Dispatch(symbol).Call(L"ReadFromFile").failure, early) << "late bound";
        return early;
    }
};

TEST_F(BrokenTextFile, WithoutAHeader) {
    EXPECT_EQ(Read({"SYM;CNT=1;WID=1.00;HEI=1.00;RPX=0.00"}), LibraryError(3501, kReader)) << "five fields";
    EXPECT_EQ(Read({"SYM;CNT=1;WID=1;HEI=1;RPX=0;RPY=0;"}), LibraryError(3501, kReader)) << "seven fields";
    EXPECT_EQ(Read({"sym;cnt=1;wid=1;hei=1;rpx=0;rpy=0"}), LibraryError(3501, kReader)) << "lower case";
    EXPECT_EQ(Read({" SYM;CNT=1;WID=1;HEI=1;RPX=0;RPY=0"}), LibraryError(3501, kReader));
    EXPECT_EQ(Read({"POLY;CNT=1;COL=1;WID=1;CLS=TRUE;FIL=-1"}), LibraryError(3501, kReader));
}

TEST_F(BrokenTextFile, WithAFaultyHeader) {
    EXPECT_EQ(Read({"SYM;CNT=1;WID=1;HEI=1;RPX=0;XYZ=0"}), LibraryError(3502, kReader));
    EXPECT_EQ(Read({"SYM;CNT=1;WID=1;HEI=1;RPX=0;rpy=0"}), LibraryError(3502, kReader));
}

TEST_F(BrokenTextFile, WithWhatIsNotANumber) {
    EXPECT_EQ(Read({"SYM;CNT=1;WID=breit;HEI=1;RPX=0;RPY=0"}), RunTimeError(13));
    EXPECT_EQ(Read({"SYM;CNT=;WID=1;HEI=1;RPX=0;RPY=0"}), RunTimeError(13));
    EXPECT_EQ(Read({kHeader, "CIRCLE;COL=rot"}), RunTimeError(13));
    EXPECT_EQ(Read({kHeader, "TEXT;ANG=schräg"}), RunTimeError(13));
}

TEST_F(BrokenTextFile, WithANumberOutOfRange) {
    EXPECT_EQ(Read({"SYM;CNT=1;WID=21474836.48;HEI=1;RPX=0;RPY=0"}), RunTimeError(6));
    EXPECT_EQ(Read({"SYM;CNT=1;WID=1e400;HEI=1;RPX=0;RPY=0"}), RunTimeError(6));
    EXPECT_EQ(Read({kHeader, "CIRCLE;COL=2147483648"}), RunTimeError(6));
    EXPECT_EQ(Read({kHeader, "TEXT;HEI=32768"}), RunTimeError(6));
}

TEST_F(BrokenTextFile, WithWrongCounts) {
    EXPECT_EQ(Read({"SYM;CNT=0;WID=1;HEI=1;RPX=0;RPY=0"}), RunTimeError(9))
        << "an empty table cannot be made";
    EXPECT_EQ(Read({"SYM;CNT=-1;WID=1;HEI=1;RPX=0;RPY=0"}), RunTimeError(9));
    EXPECT_EQ(Read({kHeader, "CIRCLE;RAD=1", "CIRCLE;RAD=1"}), RunTimeError(9))
        << "more elements than announced";
    EXPECT_EQ(Read({kHeader, "POLY;CNT=1", "POINT;1;1", "POINT;2;2"}), RunTimeError(9));
    EXPECT_EQ(Read({kHeader, "POLY;CNT=0"}), RunTimeError(9));
    EXPECT_EQ(Read({kHeader, "POLY;COL=1", "POINT;1;1"}), RunTimeError(9)) << "no list of points yet";
    EXPECT_EQ(Read({kHeader, "POINT;1;1"}), RunTimeError(9)) << "no element yet";
    EXPECT_EQ(Read({kHeader, "STRING;\"x\""}), RunTimeError(9));
}

TEST_F(BrokenTextFile, ThatTakesTooMuchMemory) {
    EXPECT_EQ(Read({"SYM;CNT=2147483647;WID=1;HEI=1;RPX=0;RPY=0"}), RunTimeError(7));
    EXPECT_EQ(Read({kHeader, "POLY;CNT=2000000000"}), RunTimeError(7));
}

TEST_F(BrokenTextFile, LeavesWhatWasReadBeforeAndNothingOlder) {
    EXPECT_OK(
        symbol->CreateNew(5, 6, 7, 8, support::NewElements({{.type = symPoly, .points = {{1, 1}}}}).Get()));
    EXPECT_EQ(Read({"SYM;CNT=2;WID=3;HEI=1;RPX=0;RPY=0", "CIRCLE;RAD=4", "CIRCLE;RAD=x"}), RunTimeError(13));
    const auto elements = support::ElementsOf(symbol.Get());
    ASSERT_EQ(elements.size(), 2U);
    EXPECT_EQ(elements[0].radius, 400);
    EXPECT_EQ(elements[1].radius, 0);
    EXPECT_EQ(support::Dispatch(symbol).Get(L"Width").value.Long(), 300);
    EXPECT_EQ(support::Dispatch(symbol).Get(L"RefX").value.Long(), 0);
}

TEST_F(BrokenTextFile, AnEmptyFileIsAnEmptySymbol) {
    EXPECT_EQ(Read({}), Failure{});
    EXPECT_TRUE(support::ElementsOf(symbol.Get()).empty());
}

class MissingFile : public support::AutomationTest {
protected:
    support::TempFolder folder;

    static Failure Read(const std::wstring& path) { return Outcome(NewSymbolAt(path)->ReadFromFile()); }
    static Failure Write(const std::wstring& path) {
        const Ref<_CSymbol> symbol = support::NewSymbol(0, 0, 1, 1, {{.type = symPoly, .points = {{1, 1}}}});
        EXPECT_OK(symbol->put_FilePath(support::Bstr(path)));
        return Outcome(symbol->Write2File());
    }
};

TEST_F(MissingFile, IsErrorFiftyThreeInEveryFormat) {
    for (const wchar_t* const name : {L"fehlt.syt", L"fehlt.syb"})
        EXPECT_EQ(Read(folder / name), RunTimeError(53));
}

TEST_F(MissingFile, AMissingFolderIsErrorSeventySix) {
    for (const wchar_t* const name : {L"weg\\fehlt.syt", L"weg\\fehlt.syb"}) {
        EXPECT_EQ(Read(folder / name), RunTimeError(76));
        EXPECT_EQ(Write(folder / name), RunTimeError(76));
    }
}

TEST_F(MissingFile, AFolderInItsPlaceIsErrorSeventyFive) {
    ASSERT_NE(CreateDirectoryW((folder / L"ordner.syt").c_str(), nullptr), FALSE);
    EXPECT_EQ(Read(folder / L"ordner.syt"), RunTimeError(75));
    EXPECT_EQ(Write(folder / L"ordner.syt"), RunTimeError(75));
    RemoveDirectoryW((folder / L"ordner.syt").c_str());
}

TEST_F(MissingFile, ALockedFileIsErrorSeventy) {
    const std::wstring path = folder / L"gesperrt.syb";
    support::WriteBytes(path, "x");
    const HANDLE lock =
        CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(Read(path), RunTimeError(70));
    CloseHandle(lock);
    EXPECT_EQ(Read(path).status, support::Numbered(62)) << "free again, and cut short";
}

} // namespace

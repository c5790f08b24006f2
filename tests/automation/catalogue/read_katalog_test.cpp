#include "catalogue/catalogue_fixture.h"

namespace {

using catalogue::Texts;
using support::Bstr;
using support::MessageBoxes;
using support::Outcome;
using support::Ref;

class ReadKatalog : public catalogue::CatalogueTest {};

const wchar_t kNoSymbol[] = L"Keine gültige Symboldatei.";

TEST_F(ReadKatalog, LoadsEveryBinarySymbol) {
    for (const wchar_t* const name : {L"Tür links.syb", L"ABC.SYB", L"öltank.Syb"})
        AddFile(name);
    AddFile(L"abc.syt");
    support::WriteBytes(folder / L"alt.wsc", "x");
    support::WriteBytes(folder / L"liesmich", "x");
    support::WriteBytes(folder / L"x", "x");
    support::WriteBytes(folder / L"syb", "x");
    EXPECT_OK(Load(folder.Path()));
    EXPECT_EQ(Names(), (Texts{L"ABC", L"Tür links", L"öltank"}));

    Ref<_CSymbol> symbol;
    EXPECT_OK(symbols->get_ItemByIndex(Bstr(L"tür LINKS"), symbol.Put()));
    ASSERT_TRUE(symbol);
    EXPECT_EQ(support::Dispatch(symbol).Get(L"FilePath").value.Text(), folder / L"Tür links.syb");
    EXPECT_EQ(support::ElementsOf(symbol.Get()).at(0).radius, 3);
}

TEST_F(ReadKatalog, ATrailingBackslashMakesNoDifference) {
    AddFile(L"Herd.syb");
    EXPECT_OK(Load(folder.Path() + L"\\"));
    EXPECT_EQ(Names(), Texts{L"Herd"});
    Ref<_CSymbol> symbol;
    EXPECT_OK(symbols->get_ItemByPos(1, symbol.Put()));
    EXPECT_EQ(support::Dispatch(symbol).Get(L"FilePath").value.Text(), folder / L"Herd.syb");
}

TEST_F(ReadKatalog, AddsToWhatIsThere) {
    AddFile(L"Herd.syb");
    Ref<_CSymbol> other = support::NewSymbolAt(L"WC.syb");
    EXPECT_OK(symbols->AppendRef(other.InOut()));
    EXPECT_OK(Load(folder.Path()));
    EXPECT_EQ(Names(), (Texts{L"Herd", L"WC"}));
}

TEST_F(ReadKatalog, TheSameNameTwiceIsADuplicateKey) {
    AddFile(L"Herd.syb");
    EXPECT_OK(Load(folder.Path()));
    MessageBoxes boxes;
    EXPECT_EQ(Outcome(Load(folder.Path())), support::RunTimeError(457));
    EXPECT_EQ(support::Dispatch(symbols).Call(L"ReadKatalog", {folder.Path()}).failure,
              support::RunTimeError(457));
    EXPECT_EQ(Names(), Texts{L"Herd"});
}

TEST_F(ReadKatalog, RetryReadsTheSameFileAgain) {
    AddBrokenFile(L"b.syb");
    MessageBoxes boxes{IDRETRY, IDRETRY};
    int shown = 0;
    boxes.whileOpen = [&] {
        if (++shown < 2)
            return;
        DeleteFileW((folder / L"b.syb").c_str()); // the user repairs the file: nothing holds it open
        AddFile(L"b.syb");
    };
    EXPECT_OK(Load(folder.Path()));
    EXPECT_EQ(boxes.Seen(), (std::vector{FailureBox(L"b.syb", kNoSymbol), FailureBox(L"b.syb", kNoSymbol)}));
    EXPECT_EQ(Names(), Texts{L"b"});
}

/// A message box lets the host's events through, and they may use the catalogue.
TEST_F(ReadKatalog, TheCatalogueMayChangeWhileABoxIsOpen) {
    AddFile(L"a.syb");
    AddBrokenFile(L"b.syb");
    AddFile(L"c.syb");
    MessageBoxes boxes{IDIGNORE};
    boxes.whileOpen = [&] { EXPECT_OK(symbols->Clear()); };
    EXPECT_OK(Load(folder.Path()));
    Ref<_CSymbol> last;
    EXPECT_OK(symbols->get_ItemByIndex(Bstr(L"c"), last.Put()));
    EXPECT_TRUE(last || Names() == Texts{L"a"}) << "what is read after the box is kept";
}

TEST_F(ReadKatalog, TheCatalogueMayBeReleasedWhileABoxIsOpen) {
    AddBrokenFile(L"b.syb");
    AddFile(L"c.syb");
    MessageBoxes boxes{IDIGNORE};
    _CSymbolColl* const raw = symbols.Get();
    boxes.whileOpen = [&] { symbols.Reset(); };
    // A client holds the object on which it makes a call.
    const Ref<_CSymbolColl> held(raw);
    EXPECT_OK(held->ReadKatalog(Bstr(folder.Path())));
}

/// The host may go to another folder afterwards.
TEST_F(ReadKatalog, SymbolsGetFullPaths) {
    AddFile(L"Herd.syb");
    wchar_t before[MAX_PATH] = {};
    GetCurrentDirectoryW(MAX_PATH, before);
    const std::wstring name = folder.Path().substr(folder.Path().rfind(L'\\') + 1);
    for (const std::wstring& path : {name, name + L"\\..\\" + name + L"\\", L"./" + name + L"/"}) {
        EXPECT_OK(symbols->Clear());
        ASSERT_NE(SetCurrentDirectoryW((folder.Path() + L"\\..").c_str()), FALSE);
        EXPECT_OK(Load(path));
        ASSERT_NE(SetCurrentDirectoryW(before), FALSE);
        Ref<_CSymbol> symbol;
        EXPECT_OK(symbols->get_ItemByPos(1, symbol.Put()));
        ASSERT_TRUE(symbol);
        EXPECT_EQ(support::Dispatch(symbol).Get(L"FilePath").value.Text(), folder / L"Herd.syb");
        EXPECT_OK(symbol->ReadFromFile());
    }
}

} // namespace

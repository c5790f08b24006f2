#include "catalogue/catalogue_fixture.h"
#include "support/basic_collection.h"
#include "support/missing_member.h"

namespace {

using catalogue::Texts;
using support::BasicCollection;
using support::Bstr;
using support::Dispatch;
using support::Failure;
using support::MessageBoxes;
using support::Outcome;
using support::Ref;
using support::RunTimeError;

class ReadListe : public catalogue::CatalogueTest {
protected:
    void AddFiles(int count) const {
        for (int i = 1; i <= count; ++i)
            AddFile((L"s" + std::to_wstring(i) + L".syb").c_str());
    }
    static Texts Keys(int count) {
        Texts keys;
        for (int i = 1; i <= count; ++i)
            keys.push_back(L"S" + std::to_wstring(i));
        return keys;
    }
    bool Read(const std::wstring& path, IDispatch* list) const {
        VARIANT_BOOL result = 7;
        EXPECT_OK(symbols->ReadListe(Bstr(path), list, &result));
        EXPECT_TRUE(result == VARIANT_TRUE || result == VARIANT_FALSE);
        return result != VARIANT_FALSE;
    }
    bool Read(const Texts& keys) const { return Read(folder.Path(), BasicCollection::Create(keys).Get()); }
};

TEST_F(ReadListe, ALongListLeavesTheWorkToTheCaller) {
    AddFiles(10);
    EXPECT_FALSE(Read(Keys(9)));
    EXPECT_EQ(Names(), Texts{});
    EXPECT_TRUE(Read(Keys(8)));
    EXPECT_EQ(Names(), (Texts{L"s1", L"s2", L"s3", L"s4", L"s5", L"s6", L"s7", L"s8"}));
}

TEST_F(ReadListe, EveryFileOfTheFolderCounts) {
    AddFiles(1);
    for (const wchar_t* const name : {L"a.txt", L"b.txt", L"c.txt", L"d"})
        support::WriteBytes(folder / name, "x");
    EXPECT_TRUE(Read({L"S1", L"S2", L"S3", L"S4"})) << "five files, four names";
    EXPECT_EQ(Names(), Texts{L"s1"}) << "names without a file are passed over";
    EXPECT_FALSE(Read({L"S1", L"S2", L"S3", L"S4", L"S5"}));
}

TEST_F(ReadListe, NamesAreLookedUpInUpperCase) {
    AddFile(L"wc.syb");
    AddFile(L"öltank.syb");
    AddFile(L"Herd.SYB");
    AddFile(L"Bad.syt");
    const Dispatch list = Dispatch::Create(L"Scripting.Dictionary");
    ASSERT_TRUE(list);
    for (const wchar_t* const key : {L"WC", L"ÖLTANK", L"herd"}) // the dictionary distinguishes case
        EXPECT_OK(list.Call(L"Add", {key, 1}).status);
    EXPECT_TRUE(Read(folder.Path(), list.Object()));
    EXPECT_EQ(Names(), (Texts{L"wc", L"öltank"}));
}

TEST_F(ReadListe, ADictionaryIsAskedAndNotChanged) {
    AddFiles(5);
    const Dispatch list = Dispatch::Create(L"Scripting.Dictionary");
    ASSERT_TRUE(list);
    EXPECT_OK(list.Call(L"Add", {L"S2", 1}).status);
    EXPECT_TRUE(Read(folder.Path(), list.Object()));
    EXPECT_EQ(Names(), Texts{L"s2"});
    EXPECT_EQ(list.Get(L"Count").value.Long(), 1);
}

TEST_F(ReadListe, OnlyBinaryFilesAreLoaded) {
    AddFile(L"wc.syt");
    AddFile(L"bad.syb");
    EXPECT_TRUE(Read({L"WC"}));
    EXPECT_EQ(Names(), Texts{});
}

TEST_F(ReadListe, AnEmptyListLoadsNothing) {
    AddFiles(2);
    EXPECT_TRUE(Read(Texts{}));
    EXPECT_EQ(Names(), Texts{});
}

TEST_F(ReadListe, AMissingFolderIsDone) {
    MessageBoxes boxes;
    EXPECT_TRUE(Read(folder / L"weg", BasicCollection::Create(Keys(9)).Get()));
    EXPECT_EQ(Names(), Texts{});
}

TEST_F(ReadListe, AnEmptyFolderIsTooSmallForAnyName) {
    EXPECT_FALSE(Read(Keys(1)));
    EXPECT_TRUE(Read(Texts{}));
}

TEST_F(ReadListe, ATrailingBackslashMakesNoDifference) {
    AddFiles(2);
    EXPECT_TRUE(Read(folder.Path() + L"\\", BasicCollection::Create({L"S2"}).Get()));
    EXPECT_EQ(Names(), Texts{L"s2"});
}

TEST_F(ReadListe, OnlyListedFilesAreTried) {
    AddFiles(3);
    AddBrokenFile(L"kaputt.syb");
    MessageBoxes boxes;
    EXPECT_TRUE(Read({L"S1"}));
    EXPECT_EQ(Names(), Texts{L"s1"});
}

TEST_F(ReadListe, AbortStopsAndIsStillDone) {
    AddBrokenFile(L"a.syb");
    AddBrokenFile(L"b.syb");
    AddFile(L"c.syb");
    AddFile(L"d.syb");
    MessageBoxes boxes{IDABORT};
    EXPECT_TRUE(Read({L"A", L"B", L"C"}));
    ASSERT_EQ(boxes.Seen().size(), 1U);
    EXPECT_EQ(boxes.Seen()[0].buttons, (std::vector<int>{IDABORT, IDRETRY, IDIGNORE}));
}

TEST_F(ReadListe, LateBound) {
    AddFiles(3);
    const support::Answer answer = Dispatch(symbols).Call(
        L"ReadListe", {folder.Path(), support::Value(BasicCollection::Create({L"S3"}).Get())});
    EXPECT_OK(answer.status);
    EXPECT_TRUE(answer.value.Bool());
    EXPECT_EQ(Names(), Texts{L"s3"});
}

TEST_F(ReadListe, NeedsAList) {
    AddFiles(1);
    VARIANT_BOOL result = VARIANT_FALSE;
    EXPECT_EQ(Outcome(symbols->ReadListe(Bstr(folder.Path()), nullptr, &result)), RunTimeError(91));
    const Ref<_CPt> noList = support::NewPt(1, 2);
    EXPECT_EQ(Outcome(symbols->ReadListe(Bstr(folder.Path()), noList.Get(), &result)),
              support::MissingMember(L"CPt.Count"));
}

TEST_F(ReadListe, ErrorsOfTheListReachTheCaller) {
    AddFiles(1);
    const Ref<BasicCollection> list = BasicCollection::Create({});
    const Failure failure{support::Numbered(1000), L"Plan.Liste", L"Die Liste ist weg"};
    list->FailOnCount(failure);
    VARIANT_BOOL result = VARIANT_FALSE;
    EXPECT_EQ(Outcome(symbols->ReadListe(Bstr(folder.Path()), list.Get(), &result)), failure);
}

TEST_F(ReadListe, ADuplicateNameIsPassedOn) {
    AddFiles(2);
    EXPECT_TRUE(Read({L"S1"}));
    VARIANT_BOOL result = VARIANT_FALSE;
    EXPECT_EQ(
        Outcome(symbols->ReadListe(Bstr(folder.Path()), BasicCollection::Create({L"S1"}).Get(), &result)),
        RunTimeError(457));
}

} // namespace

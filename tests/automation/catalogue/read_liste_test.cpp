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

TEST_F(ReadListe, ATrailingBackslashMakesNoDifference) {
    AddFiles(2);
    EXPECT_TRUE(Read(folder.Path() + L"\\", BasicCollection::Create({L"S2"}).Get()));
    EXPECT_EQ(Names(), Texts{L"s2"});
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

TEST_F(ReadListe, ErrorsOfALookUpMeanThatTheNameIsNotListed) {
    AddFiles(3);
    const Ref<BasicCollection> list = BasicCollection::Create({L"S1"});
    list->FailOnExists({support::Numbered(1000), L"Plan.Liste", L"Die Liste ist weg"});
    EXPECT_TRUE(Read(folder.Path(), list.Get()));
    EXPECT_EQ(Names(), Texts{});
}

} // namespace

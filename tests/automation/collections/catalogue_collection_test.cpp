#include "support/automation_test.h"
#include "support/enumerate.h"
#include "support/shapes.h"

namespace {

using support::Bstr;
using support::Dispatch;
using support::NewSymbolAt;
using support::Outcome;
using support::Ref;
using support::RunTimeError;
using support::Value;

class CatalogueCollection : public support::AutomationTest {
protected:
    Ref<_CSymbolColl> symbols = support::Create<CSymbolColl, _CSymbolColl>();

    Ref<_CSymbol> Add(const wchar_t* name) const {
        Ref<_CSymbol> symbol = NewSymbolAt(std::wstring(L"C:\\Katalog\\") + name + L".syb");
        const Ref<_CSymbol> kept = symbol;
        EXPECT_OK(symbols->AppendRef(symbol.InOut()));
        EXPECT_FALSE(symbol);
        return kept;
    }
    LONG Count() const {
        LONG count = -1;
        EXPECT_OK(symbols->get_Count(&count));
        return count;
    }
    Ref<_CSymbol> Item(LONG position) const {
        Ref<_CSymbol> symbol;
        EXPECT_OK(symbols->get_ItemByPos(position, symbol.Put()));
        return symbol;
    }
    Ref<_CSymbol> Item(const wchar_t* name) const {
        Ref<_CSymbol> symbol;
        EXPECT_OK(symbols->get_ItemByIndex(Bstr(name), symbol.Put()));
        return symbol;
    }
    bool Has(const wchar_t* name) const {
        VARIANT_BOOL result = 7;
        EXPECT_OK(symbols->ItemDa(Bstr(name), &result));
        EXPECT_TRUE(result == VARIANT_TRUE || result == VARIANT_FALSE);
        return result != VARIANT_FALSE;
    }
    std::vector<std::wstring> Names() const {
        std::vector<std::wstring> names;
        for (const Value& item : support::RestOf(support::EnumeratorOf(symbols.Get()).Get()))
            names.push_back(Dispatch(item.Object()).Get(L"Name").value.Text());
        return names;
    }
};

using Texts = std::vector<std::wstring>;

TEST_F(CatalogueCollection, StartsEmpty) {
    EXPECT_EQ(Count(), 0);
    EXPECT_FALSE(Item(1));
    EXPECT_FALSE(Item(L"WC"));
    EXPECT_FALSE(Has(L""));
    EXPECT_OK(symbols->Clear());
}

TEST_F(CatalogueCollection, FindsByPositionAndByName) {
    const Ref<_CSymbol> wc = Add(L"WC");
    const Ref<_CSymbol> bath = Add(L"Badewanne");
    EXPECT_EQ(Item(1).Get(), wc.Get());
    EXPECT_EQ(Item(L"Badewanne").Get(), bath.Get());
    EXPECT_FALSE(Item(0L));
    EXPECT_FALSE(Item(3));
    EXPECT_FALSE(Item(L"Dusche"));
    EXPECT_TRUE(Has(L"WC"));
    EXPECT_FALSE(Has(L"Dusche"));
}

TEST_F(CatalogueCollection, NamesAreComparedWithoutRegardToCase) {
    const Ref<_CSymbol> symbol = Add(L"ABC");
    EXPECT_EQ(Item(L"abc").Get(), symbol.Get());
    const Ref<_CSymbol> umlaut = Add(L"Öltank");
    EXPECT_EQ(Item(L"öLTANK").Get(), umlaut.Get());
    EXPECT_TRUE(Has(L"aBc"));
    EXPECT_FALSE(Has(L"abc$")) << "the key's mark is no part of the name";
    EXPECT_OK(symbols->RemoveOnIndex(Bstr(L"aBC")));
    EXPECT_FALSE(Has(L"ABC"));
}

TEST_F(CatalogueCollection, ASecondSymbolOfTheNameIsADuplicateKey) {
    const Ref<_CSymbol> first = Add(L"Tür");
    Ref<_CSymbol> second = NewSymbolAt(L"D:\\anders\\TÜR.syt");
    EXPECT_EQ(Outcome(symbols->AppendRef(second.InOut())), RunTimeError(457));
    EXPECT_FALSE(second) << "the caller's variable is emptied all the same";
    EXPECT_EQ(Outcome(symbols->Append(first.Get())), RunTimeError(457));
    EXPECT_EQ(Count(), 1);

    Value late = NewSymbolAt(L"tür.syb");
    EXPECT_EQ(Dispatch(symbols).Call(L"AppendRef", {Value::Variable(late)}).failure, RunTimeError(457));
    ASSERT_EQ(late.Type(), VT_DISPATCH);
    EXPECT_EQ(late.Object(), nullptr);
    Ref<IDispatch> typed = NewSymbolAt(L"tür.syb").As<IDispatch>();
    EXPECT_EQ(Dispatch(symbols).Call(L"AppendRef", {Value::Variable(typed)}).failure, RunTimeError(457));
    EXPECT_FALSE(typed);
}

TEST_F(CatalogueCollection, ASymbolWithoutANameHasTheEmptyKey) {
    Ref<_CSymbol> nameless = support::NewSymbol();
    EXPECT_OK(symbols->AppendRef(nameless.InOut()));
    EXPECT_TRUE(Has(L""));
    Ref<_CSymbol> another = support::NewSymbol();
    EXPECT_EQ(Outcome(symbols->AppendRef(another.InOut())), RunTimeError(457));
}

TEST_F(CatalogueCollection, TheKeyStaysWhatItWasWhenTheSymbolIsRenamed) {
    const Ref<_CSymbol> symbol = Add(L"alt");
    EXPECT_OK(symbol->put_FilePath(Bstr(L"neu.syb")));
    EXPECT_TRUE(Has(L"alt"));
    EXPECT_FALSE(Has(L"neu"));
    EXPECT_OK(symbols->RemoveOnIndex(Bstr(L"alt")));
}

TEST_F(CatalogueCollection, RemovesByPositionAndByName) {
    Add(L"a");
    Add(L"b");
    Add(L"c");
    EXPECT_OK(symbols->RemoveOnPos(1));
    EXPECT_EQ(Names(), (Texts{L"b", L"c"}));
    EXPECT_FALSE(Has(L"a"));
    EXPECT_OK(symbols->RemoveOnIndex(Bstr(L"c")));
    EXPECT_EQ(Names(), (Texts{L"b"}));
    Add(L"a"); // its name is free again
    EXPECT_EQ(Names(), (Texts{L"b", L"a"}));
}

TEST_F(CatalogueCollection, RemovingWhatIsNotThereIsAnInvalidArgument) {
    Add(L"a");
    EXPECT_EQ(Outcome(symbols->RemoveOnPos(0)), RunTimeError(5));
    EXPECT_EQ(Outcome(symbols->RemoveOnPos(2)), RunTimeError(5));
    EXPECT_EQ(Outcome(symbols->RemoveOnIndex(Bstr(L"b"))), RunTimeError(5));
    EXPECT_EQ(Dispatch(symbols).Call(L"RemoveOnIndex", {L"b"}).failure, RunTimeError(5));
    EXPECT_EQ(Count(), 1);
}

TEST_F(CatalogueCollection, ClearRemovesAll) {
    Add(L"a");
    Add(L"b");
    EXPECT_OK(symbols->Clear());
    EXPECT_EQ(Count(), 0);
    EXPECT_FALSE(Has(L"a"));
    Add(L"a");
    EXPECT_EQ(Count(), 1);
}

TEST_F(CatalogueCollection, AppendStoresACopy) {
    const Ref<_CSymbol> symbol =
        support::NewSymbol(3, 4, 500, 600, {{.type = symPoly, .points = {{1, 2}, {3, 4}}, .mainColor = 255}});
    EXPECT_OK(symbol->put_FilePath(Bstr(L"C:\\x\\Herd.syb")));
    EXPECT_OK(symbols->Append(symbol.Get()));
    EXPECT_EQ(Count(), 1);
    const Ref<_CSymbol> copy = Item(L"herd");
    ASSERT_TRUE(copy);
    EXPECT_NE(copy.Get(), symbol.Get());

    EXPECT_OK(symbol->CreateNew(0, 0, 1, 1, nullptr));
    EXPECT_OK(symbol->put_FilePath(Bstr(L"anders.syb")));
    const Dispatch late(copy);
    EXPECT_EQ(late.Get(L"FilePath").value.Text(), L"C:\\x\\Herd.syb");
    EXPECT_EQ(late.Get(L"RefX").value.Long(), 3);
    EXPECT_EQ(late.Get(L"RefY").value.Long(), 4);
    EXPECT_EQ(late.Get(L"Width").value.Long(), 0) << "the size is not copied";
    EXPECT_EQ(late.Get(L"Height").value.Long(), 0);
    const auto elements = support::ElementsOf(copy.Get());
    ASSERT_EQ(elements.size(), 1U);
    EXPECT_EQ(elements[0].points, (std::vector<POINT>{{1, 2}, {3, 4}}));
    EXPECT_EQ(elements[0].mainColor, 255);
}

TEST_F(CatalogueCollection, AppendLeavesTheCallersVariable) {
    Value symbol = NewSymbolAt(L"Herd.syb");
    EXPECT_OK(Dispatch(symbols).Call(L"Append", {Value::Variable(symbol)}).status);
    EXPECT_NE(symbol.Object(), nullptr);
    EXPECT_EQ(Count(), 1);
}

TEST_F(CatalogueCollection, NothingIsNotAdded) {
    Ref<_CSymbol> nothing;
    EXPECT_EQ(Outcome(symbols->AppendRef(nothing.InOut())), RunTimeError(91));
    EXPECT_EQ(Outcome(symbols->Append(nullptr)), RunTimeError(91));
    EXPECT_EQ(Outcome(symbols->AppendRef(nullptr)).status, E_POINTER);
    EXPECT_EQ(Count(), 0);
}

TEST_F(CatalogueCollection, ForEachVisitsInOrderAndSeesRemovals) {
    for (const wchar_t* const name : {L"d", L"a", L"c", L"b"})
        Add(name);
    EXPECT_EQ(Names(), (Texts{L"d", L"a", L"c", L"b"}));
    const auto loop = support::EnumeratorOf(symbols.Get());
    EXPECT_EQ(Dispatch(support::NextOf(loop.Get()).Object()).Get(L"Name").value.Text(), L"d");
    EXPECT_OK(symbols->RemoveOnIndex(Bstr(L"a")));
    EXPECT_OK(symbols->RemoveOnIndex(Bstr(L"d")));
    EXPECT_EQ(Dispatch(support::NextOf(loop.Get()).Object()).Get(L"Name").value.Text(), L"c");
}

TEST_F(CatalogueCollection, ASymbolMayBeInTwoCatalogues) {
    const Ref<_CSymbol> symbol = Add(L"a");
    const auto other = support::Create<CSymbolColl, _CSymbolColl>();
    Ref<_CSymbol> shared = symbol;
    EXPECT_OK(other->AppendRef(shared.InOut()));
    EXPECT_OK(symbols->Clear());
    EXPECT_OK(symbol->put_Width(7));
    Ref<_CSymbol> found;
    EXPECT_OK(other->get_ItemByPos(1, found.Put()));
    EXPECT_EQ(found.Get(), symbol.Get());
}

} // namespace

#include "support/automation_test.h"
#include "support/enumerate.h"
#include "support/shapes.h"

#include <limits>

namespace {

using support::Dispatch;
using support::NewElement;
using support::Outcome;
using support::Ref;
using support::RunTimeError;
using support::Value;

class ElementCollection : public support::AutomationTest {
protected:
    Ref<_CSymElementColl> elements = support::Create<CSymElementColl, _CSymElementColl>();

    /// Adds an element and gives it back, known by its radius.
    Ref<_CSymElement> Add(LONG radius) const {
        Ref<_CSymElement> element = NewElement({.radius = radius});
        const Ref<_CSymElement> kept = element;
        EXPECT_OK(elements->AppendRef(element.InOut()));
        EXPECT_FALSE(element);
        return kept;
    }
    LONG Count() const {
        LONG count = -1;
        EXPECT_OK(elements->get_Count(&count));
        return count;
    }
    Ref<_CSymElement> Item(LONG position) const {
        Ref<_CSymElement> element;
        EXPECT_OK(elements->get_ItemByPos(position, element.Put()));
        return element;
    }
    static LONG Radius(const Value& item) { return Dispatch(item.Object()).Get(L"Radius").value.Long(); }
    std::vector<LONG> Radii() const {
        std::vector<LONG> radii;
        for (const Value& item : support::RestOf(support::EnumeratorOf(elements.Get()).Get()))
            radii.push_back(Radius(item));
        return radii;
    }
};

using Longs = std::vector<LONG>;

TEST_F(ElementCollection, StartsEmpty) {
    EXPECT_EQ(Count(), 0);
    EXPECT_FALSE(Item(1));
    EXPECT_EQ(Radii(), Longs{});
}

TEST_F(ElementCollection, PositionsAreCountedFromOne) {
    const Ref<_CSymElement> first = Add(1);
    const Ref<_CSymElement> second = Add(2);
    EXPECT_EQ(Count(), 2);
    EXPECT_EQ(Item(1).Get(), first.Get());
    EXPECT_EQ(Item(2).Get(), second.Get());
    for (const LONG position :
         {0L, 3L, -1L, std::numeric_limits<LONG>::max(), std::numeric_limits<LONG>::min()})
        EXPECT_FALSE(Item(position)) << position;
}

TEST_F(ElementCollection, RemoveOnPosClosesTheGap) {
    Add(1);
    Add(2);
    Add(3);
    EXPECT_OK(elements->RemoveOnPos(2));
    EXPECT_EQ(Radii(), (Longs{1, 3}));
    EXPECT_EQ(Count(), 2);
}

TEST_F(ElementCollection, RemovingAnAbsentPositionIsAnInvalidArgument) {
    Add(1);
    for (const LONG position : {0L, 2L, -1L})
        EXPECT_EQ(Outcome(elements->RemoveOnPos(position)), RunTimeError(5)) << position;
    EXPECT_EQ(Dispatch(elements).Call(L"RemoveOnPos", {2}).failure, RunTimeError(5));
    EXPECT_EQ(Count(), 1);
}

TEST_F(ElementCollection, ClearRemovesAllAndNeverFails) {
    EXPECT_OK(elements->Clear());
    Add(1);
    Add(2);
    EXPECT_OK(elements->Clear());
    EXPECT_EQ(Count(), 0);
    EXPECT_OK(elements->Clear());
}

TEST_F(ElementCollection, TheSameElementMayBeHeldTwice) {
    const Ref<_CSymElement> element = Add(1);
    Ref<_CSymElement> again = element;
    EXPECT_OK(elements->AppendRef(again.InOut()));
    EXPECT_EQ(Count(), 2);
    EXPECT_EQ(Item(1).Get(), Item(2).Get());
}

TEST_F(ElementCollection, AppendRefTakesTheCallersReference) {
    Ref<_CSymElement> element = NewElement({.radius = 4});
    EXPECT_OK(elements->AppendRef(element.InOut()));
    EXPECT_FALSE(element);
    EXPECT_EQ(Radii(), Longs{4});
    EXPECT_OK(elements->Clear()); // the collection held the only reference: the leak check proves it
}

TEST_F(ElementCollection, AppendRefRefusesNothing) {
    Ref<_CSymElement> nothing;
    EXPECT_EQ(Outcome(elements->AppendRef(nothing.InOut())), RunTimeError(91));
    EXPECT_EQ(Outcome(elements->AppendRef(nullptr)).status, E_POINTER);
    EXPECT_EQ(Count(), 0);
}

TEST_F(ElementCollection, AppendRefEmptiesEveryKindOfVariable) {
    const Dispatch late(elements);
    Value untyped = NewElement({.radius = 1});
    EXPECT_OK(late.Call(L"AppendRef", {Value::Variable(untyped)}).status);
    ASSERT_EQ(untyped.Type(), VT_DISPATCH);
    EXPECT_EQ(untyped.Object(), nullptr);

    Ref<IDispatch> typed = NewElement({.radius = 2}).As<IDispatch>();
    EXPECT_OK(late.Call(L"AppendRef", {Value::Variable(typed)}).status);
    EXPECT_FALSE(typed);

    const Ref<_CSymElement> byValue = NewElement({.radius = 3});
    EXPECT_OK(late.Call(L"AppendRef", {byValue}).status);
    EXPECT_EQ(Radii(), (Longs{1, 2, 3}));
}

TEST_F(ElementCollection, AnObjectOfAnotherClassIsRefused) {
    Value point = support::NewPt(1, 2);
    EXPECT_EQ(Dispatch(elements).Call(L"AppendRef", {Value::Variable(point)}).status, DISP_E_TYPEMISMATCH);
    EXPECT_NE(point.Object(), nullptr) << "the member was not called";
}

TEST_F(ElementCollection, ForEachSeesRemovals) {
    Add(1);
    Add(2);
    Add(3);
    Add(4);
    const auto loop = support::EnumeratorOf(elements.Get());
    EXPECT_EQ(Radius(support::NextOf(loop.Get())), 1);
    EXPECT_OK(elements->RemoveOnPos(1)); // the one just visited
    EXPECT_EQ(Radius(support::NextOf(loop.Get())), 2) << "none is left out";
    EXPECT_OK(elements->RemoveOnPos(2)); // the next one, 3
    EXPECT_EQ(Radius(support::NextOf(loop.Get())), 4);
    Add(5);
    EXPECT_EQ(Radius(support::NextOf(loop.Get())), 5);
    EXPECT_EQ(support::NextOf(loop.Get()).Type(), VT_EMPTY);
}

TEST_F(ElementCollection, ForEachMayRemoveEverything) {
    for (LONG i = 1; i <= 10; ++i)
        Add(i);
    const auto loop = support::EnumeratorOf(elements.Get());
    LONG visited = 0;
    while (support::NextOf(loop.Get()).Type() != VT_EMPTY) {
        ++visited;
        EXPECT_OK(elements->RemoveOnPos(1));
    }
    EXPECT_EQ(visited, 10);
    EXPECT_EQ(Count(), 0);
}

TEST_F(ElementCollection, AnEnumeratorOutlivesTheClientsReference) {
    Add(1);
    const auto loop = support::EnumeratorOf(elements.Get());
    elements.Reset();
    EXPECT_EQ(Radius(support::NextOf(loop.Get())), 1);
    EXPECT_EQ(support::NextOf(loop.Get()).Type(), VT_EMPTY);
}

} // namespace

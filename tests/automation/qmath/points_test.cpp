#include "support/automation_test.h"
#include "support/enumerate.h"
#include "support/shapes.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using support::NewPt;
using support::NewPtList;
using support::Outcome;
using support::PointsOf;
using support::Ref;
using support::RunTimeError;
using support::Value;
using testing::ElementsAre;

class Points : public support::AutomationTest {
protected:
    static POINT At(const Value& item) { return support::At(item.As<_CPt>().Get()); }
};

TEST_F(Points, APointStartsAtTheOriginAndTakesAnyCoordinates) {
    const auto pt = support::Create<CPt, _CPt>();
    EXPECT_EQ(support::At(pt.Get()), (POINT{0, 0}));
    constexpr LONG kHighest = std::numeric_limits<LONG>::max();
    constexpr LONG kLowest = std::numeric_limits<LONG>::min();
    EXPECT_OK(pt->put_X(kHighest));
    EXPECT_OK(pt->put_Y(kLowest));
    EXPECT_EQ(support::At(pt.Get()), (POINT{kHighest, kLowest}));
    EXPECT_EQ(Outcome(pt->get_X(nullptr)).status, E_POINTER);
}

TEST_F(Points, ARectangleKeepsItsFourSides) {
    const auto rect = support::Create<CRect, _CRect>();
    EXPECT_OK(rect->put_Left(1));
    EXPECT_OK(rect->put_Top(-2));
    EXPECT_OK(rect->put_Right(3));
    EXPECT_OK(rect->put_Bottom(4));
    LONG left = 0;
    LONG top = 0;
    LONG right = 0;
    LONG bottom = 0;
    EXPECT_OK(rect->get_Left(&left));
    EXPECT_OK(rect->get_Top(&top));
    EXPECT_OK(rect->get_Right(&right));
    EXPECT_OK(rect->get_Bottom(&bottom));
    EXPECT_THAT((std::vector<LONG>{left, top, right, bottom}), ElementsAre(1, -2, 3, 4));
}

TEST_F(Points, AListHoldsThePointsThemselves) {
    const auto list = support::Create<CPtList, _CPtList>();
    const Ref<_CPt> pt = NewPt(1, 2);
    EXPECT_OK(list->AddPoint(pt.Get()));
    EXPECT_OK(list->AddPoint(NewPt(3, 4).Get()));
    EXPECT_OK(pt->put_X(9));
    EXPECT_THAT(PointsOf(list.Get()), ElementsAre(POINT{9, 2}, POINT{3, 4}));
    Ref<_CPt> first;
    EXPECT_OK(list->get_Item(1, first.Put()));
    EXPECT_EQ(first.Get(), pt.Get());
}

TEST_F(Points, APositionOutsideTheListIsAnError) {
    const Ref<_CPtList> list = NewPtList({{1, 2}});
    for (const LONG position :
         {0L, 2L, -1L, std::numeric_limits<LONG>::max(), std::numeric_limits<LONG>::min()}) {
        Ref<_CPt> pt;
        EXPECT_EQ(Outcome(list->get_Item(position, pt.Put())), RunTimeError(9, L"QMath")) << position;
        EXPECT_FALSE(pt);
    }
}

TEST_F(Points, ListsTakeNoNothing) {
    const Ref<_CPtList> list = NewPtList({{1, 2}});
    EXPECT_EQ(Outcome(list->AddPoint(nullptr)), RunTimeError(91, L"QMath"));
    EXPECT_EQ(Outcome(list->CopyPoints(nullptr)), RunTimeError(91, L"QMath"));
    EXPECT_THAT(PointsOf(list.Get()), ElementsAre(POINT{1, 2}));
}

TEST_F(Points, CopyPointsReplacesByCopies) {
    const Ref<_CPtList> source = NewPtList({{1, 2}, {3, 4}});
    const Ref<_CPtList> target = NewPtList({{5, 6}});
    EXPECT_OK(target->CopyPoints(source.Get()));
    Ref<_CPt> pt;
    EXPECT_OK(source->get_Item(1, pt.Put()));
    EXPECT_OK(pt->put_X(99));
    EXPECT_THAT(PointsOf(target.Get()), ElementsAre(POINT{1, 2}, POINT{3, 4}));
    EXPECT_OK(target->CopyPoints(target.Get()));
    EXPECT_THAT(PointsOf(target.Get()), ElementsAre(POINT{1, 2}, POINT{3, 4})) << "a copy of itself";
    EXPECT_OK(target->CopyPoints(NewPtList({}).Get()));
    EXPECT_THAT(PointsOf(target.Get()), ElementsAre());
}

TEST_F(Points, ClearEmptiesTheListAndKeepsThePoints) {
    const Ref<_CPtList> list = NewPtList({{1, 2}});
    Ref<_CPt> pt;
    EXPECT_OK(list->get_Item(1, pt.Put()));
    EXPECT_OK(list->Clear());
    EXPECT_OK(list->Clear());
    EXPECT_THAT(PointsOf(list.Get()), ElementsAre());
    EXPECT_EQ(support::At(pt.Get()), (POINT{1, 2}));
}

TEST_F(Points, ForEachVisitsThePointsInOrder) {
    const Ref<_CPtList> list = NewPtList({{1, 2}, {3, 4}, {5, 6}});
    const auto points = support::EnumeratorOf(list.Get());
    ASSERT_TRUE(points);
    std::vector<POINT> visited;
    for (const Value& item : support::RestOf(points.Get()))
        visited.push_back(At(item));
    EXPECT_THAT(visited, ElementsAre(POINT{1, 2}, POINT{3, 4}, POINT{5, 6}));
}

TEST_F(Points, AnEnumeratorFetchesSkipsResetsAndClones) {
    const auto points =
        support::EnumeratorOf(NewPtList({{1, 2}, {3, 4}, {5, 6}}).Get()); // outlives the client's hold
    ASSERT_TRUE(points);
    Value first[2];
    VARIANT raw[2];
    ULONG fetched = 0;
    ASSERT_OK(points->Next(2, raw, &fetched));
    EXPECT_EQ(fetched, 2U);
    std::swap(*first[0].Raw(), raw[0]);
    std::swap(*first[1].Raw(), raw[1]);
    EXPECT_EQ(At(first[1]), (POINT{3, 4}));
    Ref<IEnumVARIANT> clone;
    ASSERT_OK(points->Clone(clone.Put()));
    EXPECT_OK(points->Skip(1));
    EXPECT_EQ(points->Skip(1), S_FALSE);
    EXPECT_EQ(At(support::NextOf(clone.Get())), (POINT{5, 6})) << "a clone goes on from its own place";
    EXPECT_OK(points->Reset());
    EXPECT_EQ(At(support::NextOf(points.Get())), (POINT{1, 2}));
    EXPECT_EQ(points->Next(1, nullptr, nullptr), E_POINTER);
}

TEST_F(Points, ForEachSeesWhatIsAddedMeanwhile) {
    const Ref<_CPtList> list = NewPtList({{1, 2}});
    const auto points = support::EnumeratorOf(list.Get());
    ASSERT_TRUE(points);
    EXPECT_EQ(At(support::NextOf(points.Get())), (POINT{1, 2}));
    EXPECT_OK(list->AddPoint(NewPt(3, 4).Get()));
    EXPECT_EQ(At(support::NextOf(points.Get())), (POINT{3, 4}));
    EXPECT_OK(list->Clear());
    EXPECT_EQ(support::NextOf(points.Get()).Type(), VT_EMPTY);
    EXPECT_OK(list->AddPoint(NewPt(5, 6).Get()));
    EXPECT_EQ(At(support::NextOf(points.Get())), (POINT{5, 6})) << "what comes after a clear is new";
    EXPECT_OK(list->CopyPoints(NewPtList({{7, 8}, {9, 10}}).Get()));
    EXPECT_EQ(At(support::NextOf(points.Get())), (POINT{7, 8}));
    EXPECT_EQ(At(support::NextOf(points.Get())), (POINT{9, 10}));
    EXPECT_EQ(support::NextOf(points.Get()).Type(), VT_EMPTY);
    EXPECT_OK(points->Reset());
    EXPECT_EQ(At(support::NextOf(points.Get())), (POINT{7, 8}));
}

} // namespace

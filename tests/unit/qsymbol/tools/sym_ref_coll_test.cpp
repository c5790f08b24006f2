#include "qsymbol/tools/CSymRefColl.h"

#include "support/error_number_of.h"
#include "unit/qsymbol/tools/value_symbol.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace {

using qsymbol::CSymRef;
using qsymbol::CSymRefColl;
using support::ErrorNumberOf;

CSymRefColl::Reference Reference(std::int32_t id, std::int32_t deltaX = 0) {
    const auto reference = std::make_shared<CSymRef>();
    reference->Init(id, {deltaX, 0}, 0, nullptr);
    return reference;
}

CSymRefColl Of(const std::vector<std::int32_t>& ids) {
    CSymRefColl references;
    for (const std::int32_t id : ids) {
        CSymRefColl::Reference reference = Reference(id);
        references.AppendRef(reference);
    }
    return references;
}

std::vector<std::int32_t> IdsIn(const CSymRefColl& references) {
    std::vector<std::int32_t> ids;
    std::uint64_t last = 0;
    while (const auto* const item = references.Items().NextAfter(last)) {
        last = item->serial;
        ids.push_back(item->value->ObjId());
    }
    return ids;
}

TEST(CSymRefColl, KeepsTheOrderAndFindsByPositionAndId) {
    const CSymRefColl references = Of({17, -3, 0, std::numeric_limits<std::int32_t>::min()});
    EXPECT_EQ(references.Count(), 4);
    EXPECT_EQ(IdsIn(references),
              (std::vector<std::int32_t>{17, -3, 0, std::numeric_limits<std::int32_t>::min()}));
    EXPECT_EQ(references.ItemByPos(1)->ObjId(), 17);
    EXPECT_EQ(references.ItemByPos(2)->ObjId(), -3);
    EXPECT_EQ(references.ItemByIndex(-3), references.ItemByPos(2));
    EXPECT_TRUE(references.ItemDa(0));
}

TEST(CSymRefColl, AnswersNothingForWhatIsNotThere) {
    const CSymRefColl references = Of({17});
    EXPECT_EQ(references.ItemByPos(0), nullptr);
    EXPECT_EQ(references.ItemByPos(2), nullptr);
    EXPECT_EQ(references.ItemByIndex(1), nullptr);
    EXPECT_FALSE(references.ItemDa(7));
}

TEST(CSymRefColl, AppendRefTakesTheReferenceItself) {
    CSymRefColl references;
    CSymRefColl::Reference mine = Reference(17, 5);
    const CSymRefColl::Reference same = mine;
    references.AppendRef(mine);
    EXPECT_EQ(mine, nullptr);
    EXPECT_EQ(references.ItemByPos(1), same);
}

TEST(CSymRefColl, AppendRefEmptiesTheVariableAlsoWhenItFails) {
    CSymRefColl references = Of({17});
    CSymRefColl::Reference mine = Reference(17);
    EXPECT_EQ(ErrorNumberOf([&] { references.AppendRef(mine); }), 457);
    EXPECT_EQ(mine, nullptr);
    EXPECT_EQ(ErrorNumberOf([&] { references.AppendRef(mine); }), 91);
    EXPECT_EQ(references.Count(), 1);
}

TEST(CSymRefColl, AppendStoresACopy) {
    CSymRefColl references;
    CSymRef original;
    original.Init(17, {5, 6}, 0.5, std::make_shared<tools::ValueSymbol>(qsymbol::Symbol()));
    references.Append(original);
    original.Init(18, {0, 0}, 0, nullptr);
    const CSymRefColl::Reference stored = references.ItemByIndex(17);
    ASSERT_NE(stored, nullptr);
    EXPECT_EQ(stored->DeltaY(), 6);
    EXPECT_NE(stored->Symbol(), nullptr);
    original.Init(17, {0, 0}, 0, nullptr);
    EXPECT_EQ(ErrorNumberOf([&] { references.Append(original); }), 457);
    EXPECT_EQ(references.Count(), 1);
}

TEST(CSymRefColl, RemovesByPositionAndId) {
    CSymRefColl references = Of({1, 2, 3, 4});
    references.RemoveOnPos(2);
    references.RemoveOnIndex(4);
    EXPECT_EQ(IdsIn(references), (std::vector<std::int32_t>{1, 3}));
    EXPECT_EQ(ErrorNumberOf([&] { references.RemoveOnPos(3); }), 5);
    EXPECT_EQ(ErrorNumberOf([&] { references.RemoveOnIndex(4); }), 5);
    references.Clear();
    EXPECT_EQ(references.Count(), 0);
    references.Clear();
    EXPECT_EQ(references.Count(), 0);
}

} // namespace

#include "qsymbol/model/keyed_list.h"

#include "support/caught.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using base::RunTimeError;
using qsymbol::KeyedList;
using support::CaughtFrom;
using support::Expected;
using testing::ElementsAre;

/// What For Each sees.
std::vector<int> Values(const KeyedList<int>& list) {
    std::vector<int> values;
    for (const auto* item = list.NextAfter(0); item != nullptr; item = list.NextAfter(item->serial))
        values.push_back(item->value);
    return values;
}

KeyedList<int> Numbers(int count) {
    KeyedList<int> list;
    for (int i = 1; i <= count; ++i)
        list.Append(i, u"n" + std::u16string(1, static_cast<char16_t>(u'a' + i)));
    return list;
}

TEST(KeyedList, PositionsStartAtOne) {
    KeyedList<int> list = Numbers(3);
    EXPECT_EQ(list.Count(), 3);
    EXPECT_EQ(*list.ItemByPos(1), 1);
    EXPECT_EQ(*list.ItemByPos(3), 3);
    for (const std::int32_t position : {0, 4, -1, 2147483647, -2147483647 - 1})
        EXPECT_EQ(list.ItemByPos(position), nullptr) << position;
}

TEST(KeyedList, KeysWithoutRegardToCase) {
    KeyedList<int> list;
    list.Append(1, u"Küche$");
    list.Append(2, u"abc$");
    EXPECT_EQ(*list.ItemByKey(u"KÜCHE$"), 1);
    EXPECT_EQ(*list.ItemByKey(u"ABC$"), 2);
    EXPECT_EQ(list.ItemByKey(u"ABC"), nullptr);
    EXPECT_EQ(list.ItemByKey(u""), nullptr);
}

TEST(KeyedList, ASecondEqualKeyChangesNothing) {
    KeyedList<int> list;
    list.Append(1, u"abc");
    EXPECT_EQ(CaughtFrom([&] { list.Append(2, u"ABC"); }), Expected(RunTimeError::DuplicateKey));
    EXPECT_THAT(Values(list), ElementsAre(1));
    EXPECT_EQ(*list.ItemByKey(u"abc"), 1);
}

TEST(KeyedList, EntriesWithoutKeys) {
    KeyedList<int> list;
    list.Append(1);
    list.Append(1);
    list.Append(2, u"");
    EXPECT_EQ(list.Count(), 3);
    EXPECT_EQ(*list.ItemByKey(u""), 2) << "an empty key is a key";
}

TEST(KeyedList, RemovalByPosition) {
    KeyedList<int> list = Numbers(3);
    list.RemoveByPos(2);
    EXPECT_THAT(Values(list), ElementsAre(1, 3));
    EXPECT_EQ(*list.ItemByPos(2), 3);
    EXPECT_EQ(list.ItemByKey(u"nc"), nullptr);
    list.Append(4, u"nc");
    EXPECT_EQ(*list.ItemByKey(u"NC"), 4);
}

TEST(KeyedList, RemovalByKey) {
    KeyedList<int> list = Numbers(3);
    list.RemoveByKey(u"NB");
    EXPECT_THAT(Values(list), ElementsAre(2, 3));
    EXPECT_EQ(*list.ItemByKey(u"nd"), 3);
}

TEST(KeyedList, RemovingWhatIsNotThere) {
    KeyedList<int> list = Numbers(2);
    for (const std::int32_t position : {0, 3, -1})
        EXPECT_EQ(CaughtFrom([&] { list.RemoveByPos(position); }), Expected(RunTimeError::InvalidCall))
            << position;
    EXPECT_EQ(CaughtFrom([&] { list.RemoveByKey(u"x"); }), Expected(RunTimeError::InvalidCall));
    EXPECT_EQ(list.Count(), 2);
}

TEST(KeyedList, Clear) {
    KeyedList<int> list = Numbers(3);
    list.Clear();
    EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(list.ItemByKey(u"nb"), nullptr);
    list.Clear();
    EXPECT_EQ(list.Count(), 0);
    list.Append(7, u"nb");
    EXPECT_EQ(*list.ItemByKey(u"nb"), 7);
}

TEST(KeyedList, AnEnumeratorSurvivesChanges) {
    KeyedList<int> list = Numbers(4);
    const auto* second = list.NextAfter(list.NextAfter(0)->serial);
    ASSERT_EQ(second->value, 2);
    const std::uint64_t serial = second->serial;
    list.RemoveByPos(2); // the one just given
    list.RemoveByPos(1); // one before it
    EXPECT_EQ(list.NextAfter(serial)->value, 3);
    list.RemoveByPos(1); // the next one
    EXPECT_EQ(list.NextAfter(serial)->value, 4);
    list.Append(5);
    EXPECT_EQ(list.NextAfter(list.NextAfter(serial)->serial)->value, 5);
    list.Clear();
    EXPECT_EQ(list.NextAfter(serial), nullptr);
    list.Append(6);
    EXPECT_EQ(list.NextAfter(serial)->value, 6) << "serial numbers are not used twice";
}

TEST(KeyedList, PointersStayValidWhileTheListGrows) {
    KeyedList<int> list;
    list.Append(1, u"first");
    const int* first = list.ItemByPos(1);
    for (int i = 0; i < 1000; ++i)
        list.Append(i);
    EXPECT_EQ(first, list.ItemByKey(u"first"));
    EXPECT_EQ(*first, 1);
}

TEST(KeyedList, ManyKeysAddedAndRemoved) {
    KeyedList<int> list;
    for (int i = 0; i < 2000; ++i)
        list.Append(i, u"key" + std::u16string(static_cast<std::size_t>(i % 40), u'x') +
                           std::u16string(1, static_cast<char16_t>(0x4E00 + i)));
    for (int i = 0; i < 1000; ++i)
        list.RemoveByPos(i + 1); // every second one
    ASSERT_EQ(list.Count(), 1000);
    for (std::int32_t i = 1; i <= list.Count(); ++i)
        ASSERT_EQ(*list.ItemByPos(i), 2 * i - 1);
    EXPECT_NE(list.ItemByKey(u"keyx" + std::u16string(1, 0x4E01)), nullptr);
    EXPECT_EQ(list.ItemByKey(u"key" + std::u16string(1, 0x4E00)), nullptr);
}

TEST(KeyedList, RandomChangesAgainstAnOrderedReference) {
    KeyedList<int> list;
    std::vector<std::pair<std::u16string, int>> reference;
    std::uint32_t state = 1;
    for (int round = 0; round < 20000; ++round) {
        state = state * 1664525U + 1013904223U;
        const std::u16string key =
            u"K" + std::u16string(1, static_cast<char16_t>(0x4E00 + (state >> 8) % 300));
        const auto at = std::find_if(reference.begin(), reference.end(),
                                     [&](const auto& entry) { return entry.first == key; });
        const int* found = list.ItemByKey(key);
        ASSERT_EQ(found != nullptr, at != reference.end());
        if (found == nullptr) {
            list.Append(round, key);
            reference.emplace_back(key, round);
        } else {
            ASSERT_EQ(*found, at->second);
            list.RemoveByKey(key);
            reference.erase(at);
        }
    }
    std::vector<int> expected;
    for (const auto& [key, value] : reference)
        expected.push_back(value);
    EXPECT_EQ(Values(list), expected);
}

/// Calls back into the list when it goes, as a host's object may.
struct Caller {
    explicit Caller(std::function<void()> call) : onEnd(std::move(call)) {}
    Caller(Caller&& other) noexcept : onEnd(std::exchange(other.onEnd, {})) {}
    ~Caller() {
        if (onEnd)
            onEnd();
    }
    std::function<void()> onEnd;
};

TEST(KeyedList, AnEntryMayCallBackWhenItGoes) {
    KeyedList<Caller> list;
    std::vector<std::int32_t> seen;
    const auto look = [&] { seen.push_back(list.Count() * 10 + (list.ItemByKey(u"a") != nullptr ? 1 : 0)); };
    list.Append(Caller(look), u"a");
    list.Append(Caller(look), u"b");
    list.Append(Caller(look), u"c");
    list.RemoveByKey(u"a");
    EXPECT_THAT(seen, ElementsAre(20));
    list.Clear();
    EXPECT_THAT(seen, ElementsAre(20, 0, 0));
}

/// Cannot be moved into the list's entry a second time.
struct Stubborn {
    explicit Stubborn(bool fail) : fails(fail) {}
    Stubborn(Stubborn&& other) : fails(other.fails) {
        if (fails && ++moves > 1)
            throw std::runtime_error("no");
    }
    bool fails;
    static inline int moves = 0;
};

TEST(KeyedList, AFailedAdditionLeavesNoKeyBehind) {
    KeyedList<Stubborn> list;
    EXPECT_THROW(
        {
            for (int i = 0; i < 3; ++i)
                list.Append(Stubborn(true), u"key" + std::u16string(static_cast<std::size_t>(i), u'x'));
        },
        std::runtime_error);
    const std::int32_t held = list.Count();
    EXPECT_LT(held, 3);
    EXPECT_EQ(list.ItemByKey(u"key" + std::u16string(static_cast<std::size_t>(held), u'x')), nullptr);
}

} // namespace

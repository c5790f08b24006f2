#include "qsymbol/dialog/type_ahead.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

struct Typing {
    const char* what;
    std::u16string letters;
    std::uint64_t pause; ///< milliseconds before each letter
    int selected;
    std::vector<int> entries; ///< after each letter
};

TEST(TypeAhead, GoesByWhatWasTyped) {
    const std::vector<std::u16string> names = {u"Sessel",    u"Sofa",   u"Sofa zweisitzig",
                                               u"Tür links", u"öltank", u"SSD"};
    const Typing cases[] = {
        {"letters narrow", u"sofa z", 900, -1, {0, 1, 1, 1, 2, 2}},
        {"after a pause a new word", u"st", 1001, -1, {0, 3}},
        {"one letter goes on and round", u"s", 0, 5, {0}},
        {"the same letter goes through", u"sss", 0, 1, {2, 5, 0}},
        {"unless it begins a name", u"ss", 0, 0, {1, 5}},
        {"a beginning may stay where it is", u"so", 0, 0, {1, 1}},
        {"upper and lower case are the same", u"ÖL", 0, -1, {4, 4}},
        {"what is not there", u"sx", 0, -1, {0, -1}},
        {"nor later", u"sxo", 0, -1, {0, -1, -1}},
    };
    for (const Typing& each : cases) {
        qsymbol::TypeAhead typed;
        int selected = each.selected;
        std::vector<int> entries;
        std::uint64_t now = 5000;
        for (const char16_t letter : each.letters) {
            entries.push_back(typed.Add(letter, now += each.pause, names, selected));
            selected = entries.back() < 0 ? selected : entries.back();
        }
        EXPECT_EQ(entries, each.entries) << each.what;
    }
    EXPECT_EQ(qsymbol::TypeAhead().Add(u's', 0, {}, -1), -1);
}

} // namespace

#include "qsymbol/files/binary_reader.h"
#include "qsymbol/files/binary_writer.h"
#include "support/allocation_counter.h"
#include "support/sample_symbols.h"
#include "support/test_environment.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace {

using qsymbol::ElementList;
using qsymbol::ElementRecord;
using qsymbol::ElementStore;
using qsymbol::PackedElements;
using qsymbol::Symbol;

/// One circle for each byte, its radius.
std::vector<ElementRecord> Circles(std::string_view bytes, std::size_t count, const base::CodePage&) {
    std::vector<ElementRecord> circles(count);
    for (std::size_t i = 0; i < count; ++i)
        circles[i].radius = bytes[i];
    return circles;
}

class PackedElementsOfAFile : public testing::Test {
protected:
    support::TestEnvironment world_;

    PackedElements Packed() const { return {"\1\2\3", 3, world_.codePage, Circles}; }
    Symbol Read(std::string bytes) {
        Symbol symbol;
        ParseBinary(symbol, bytes, world_.InMemory());
        bytes.assign(bytes.size(), '?'); // nothing may still point there
        return symbol;
    }
};

TEST_F(PackedElementsOfAFile, BecomeRecordsWhenSomebodyLooks) {
    const ElementStore store(Packed());
    const ElementStore copy = store;
    EXPECT_EQ(store.Count(), 3U);
    EXPECT_TRUE(store.IsPacked() && copy.IsPacked());
    EXPECT_EQ(store.Look().at(2).radius, 3);
    EXPECT_EQ(store.Count(), 3U);
    EXPECT_FALSE(store.IsPacked());
    EXPECT_TRUE(copy.IsPacked()) << "a copy is a value of its own";
    EXPECT_EQ(copy.Look(), store.Look());
}

TEST_F(PackedElementsOfAFile, ChangesAndMovesStayTheirOwn) {
    ElementList list = Packed();
    ElementList changed = list;
    changed[1].radius = 77;
    changed.push_back({});
    EXPECT_EQ(changed.size(), 4U);
    EXPECT_EQ(list.size(), 3U);
    const ElementList moved = std::move(list);
    EXPECT_TRUE(list.empty()); // NOLINT(bugprone-use-after-move): that is what is tested
    EXPECT_EQ(moved[1].radius, 2);
    changed = moved;
    EXPECT_EQ(changed, moved);
    changed = ElementList();
    EXPECT_TRUE(changed.empty());
}

TEST_F(PackedElementsOfAFile, WantOfMemoryLeavesThemWhole) {
    const ElementStore store(Packed());
    const support::AllocationFailure failure(0);
    EXPECT_THROW(store.Look(), std::bad_alloc);
    EXPECT_TRUE(store.IsPacked());
    EXPECT_EQ(store.Look().at(0).radius, 1);
}

TEST_F(PackedElementsOfAFile, ThreadsMayLookTogether) {
    for (int round = 0; round < 20; ++round) {
        const ElementList list = Packed();
        std::vector<std::jthread> threads;
        for (int i = 0; i < 4; ++i)
            threads.emplace_back([&list] { EXPECT_EQ(ElementList(list).at(2), list.at(2)); });
    }
}

TEST_F(PackedElementsOfAFile, AreAllThatTheFileSays) {
    // What was read once has a font in every element.
    const Symbol symbol = Read(ComposeBinary(support::EveryField(), world_.InMemory()));
    const std::string bytes = ComposeBinary(symbol, world_.InMemory());
    const Symbol read = Read(bytes + "tail");
    EXPECT_EQ(ComposeBinary(read, world_.InMemory()), bytes);
    EXPECT_EQ(read, symbol);
    EXPECT_EQ(read.elements.size(), support::EveryField().elements.size());
}

/// A catalogue of ten thousand symbols should not need a hundred thousand blocks.
TEST_F(PackedElementsOfAFile, TakeOneBlockOfTheirFilesSize) {
    Symbol symbol = support::EveryField();
    for (int i = 0; i < 100; ++i)
        symbol.elements.push_back(std::as_const(symbol).elements.front());
    const std::string bytes = ComposeBinary(symbol, world_.InMemory());
    const qsymbol::FileEnvironment environment = world_.InMemory();
    Symbol read;
    const support::AllocationCounter counter;
    ParseBinary(read, bytes, environment);
    EXPECT_EQ(counter.Blocks(), 1U);
    EXPECT_LE(counter.Total(), bytes.size() + 32);
}

TEST_F(PackedElementsOfAFile, GiveTheirBlockBackForTheRecords) {
    const auto unpackNothing = [](std::string_view, std::size_t, const base::CodePage&) {
        return std::vector<ElementRecord>();
    };
    const support::AllocationCounter counter;
    const ElementStore store(PackedElements(std::string(1000, 'x'), 1, world_.codePage, unpackNothing));
    EXPECT_FALSE(counter.AllGivenBack());
    EXPECT_TRUE(store.Look().empty());
    EXPECT_TRUE(counter.AllGivenBack());
}

} // namespace

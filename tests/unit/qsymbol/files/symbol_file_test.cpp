#include "qsymbol/files/symbol_file.h"

#include "qsymbol/files/binary_writer.h"
#include "qsymbol/files/text_writer.h"
#include "support/allocation_counter.h"
#include "support/caught.h"
#include "support/sample_symbols.h"
#include "support/temp_folder.h"
#include "support/test_environment.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <tuple>

namespace {

using base::RunTimeError;
using qsymbol::Symbol;
using support::Caught;
using support::CaughtFrom;
using support::Expected;
using testing::IsEmpty;

class SymbolFile : public testing::Test {
protected:
    support::TestEnvironment world_;
    support::MemoryFileSystem& memory_ = world_.memory;

    Caught Read(Symbol& symbol) {
        return CaughtFrom([&] { ReadFromFile(symbol, world_.InMemory()); });
    }
    Caught Write(const Symbol& symbol) {
        return CaughtFrom([&] { Write2File(symbol, world_.InMemory()); });
    }
    static Symbol At(const std::u16string& path, Symbol symbol = support::WashRoom()) {
        symbol.filePath = path;
        return symbol;
    }
};

TEST_F(SymbolFile, TheResourceHasTheTextsOfErrors) {
    world_.strings.texts = {{11102, u"a"}, {11103, u"b"}, {11104, u"c"}};
    memory_.files[u"plan/a.syt"] = "X";
    memory_.files[u"plan/b.syt"] = "SYM;CNT=1;WID=1;HEI=1;RPX=0;XYZ=0\n";
    memory_.files[u"plan/a.syb"] = "X;;;;;";
    memory_.files[u"plan/a.wsc"] = "X\n";
    for (const auto& [path, text] : {std::pair{u"plan/a.syt", u"a"},
                                     {u"plan/b.syt", u"b"},
                                     {u"plan/a.syb", u"a"},
                                     {u"plan/a.wsc", u"a"},
                                     {u"plan/a", u"a"}}) {
        Symbol symbol = At(path);
        EXPECT_EQ(Read(symbol).description, text);
    }
    EXPECT_EQ(Write(At(u"plan/a")).description, u"c");
}

TEST_F(SymbolFile, WhatCannotBeComposedLeavesTheFileUntouched) {
    Symbol circle = At(u"plan/wc.syt", {});
    circle.elements.resize(1);
    circle.elements[0].type = qsymbol::ElementType::Circle;
    Symbol text = At(u"plan/wc.syb", {});
    text.elements.resize(1);
    text.elements[0].text = std::u16string(70000, u'x');
    for (const auto& [symbol, error] :
         {std::pair{circle, RunTimeError::SubscriptOutOfRange}, {text, RunTimeError::Overflow}}) {
        memory_.files[symbol.filePath] = "old";
        world_.prompt.yesNo = {true};
        EXPECT_EQ(Write(symbol), Expected(error));
        EXPECT_EQ(memory_.files[symbol.filePath], "old");
        memory_.files.clear();
        EXPECT_EQ(Write(symbol), Expected(error));
        EXPECT_THAT(memory_.files, IsEmpty()) << "nor is one made";
    }
    EXPECT_EQ(memory_.opened, 0);
}

TEST_F(SymbolFile, OnDisk) {
    const support::TempFolder folder;
    const qsymbol::FileEnvironment disk = world_.OnDisk();
    for (const char* name : {"Küche.syt", "Küche.syb"}) {
        Symbol symbol = At(folder.File(name), support::WashRoom());
        Write2File(symbol, disk);
        Symbol back = At(folder.File(name), {});
        ReadFromFile(back, disk);
        EXPECT_EQ(back.elements[2], symbol.elements[2]);
        world_.prompt.yesNo = {true};
        symbol.elements.resize(1);
        const std::string before = support::BytesOf(folder.Path() / name);
        Write2File(symbol, disk);
        ReadFromFile(back, disk);
        EXPECT_EQ(back.elements.size(), 1U);
        const std::string after = support::BytesOf(folder.Path() / name);
        const bool binary = std::string_view(name).ends_with("syb");
        EXPECT_EQ(after.size() == before.size(), binary) << "only the binary file keeps its tail";
    }
    EXPECT_EQ(
        support::BytesOf(folder.Path() / "Küche.syt"),
        support::WashRoomText().replace(4, 5, "CNT=1").substr(0, support::WashRoomText().find("CIRCLE")));
}

TEST_F(SymbolFile, OnDiskWhatCannotBeRead) {
    const support::TempFolder folder;
    std::filesystem::create_directory(folder.Path() / "inner.syb");
    std::filesystem::create_directory(folder.Path() / "inner.syt");
    for (const char* extension : {".syt", ".syb"}) {
        const auto read = [&](const std::string& name) {
            Symbol symbol = At(folder.File(name + extension));
            const Caught caught = CaughtFrom([&] { ReadFromFile(symbol, world_.OnDisk()); });
            EXPECT_EQ(symbol, At(symbol.filePath, {})) << "never the old content";
            return caught;
        };
        EXPECT_EQ(read("missing"), Expected(RunTimeError::FileNotFound));
        EXPECT_EQ(read("none/missing"), Expected(RunTimeError::PathNotFound));
        EXPECT_EQ(read("inner"), Expected(RunTimeError::PathFileAccess));
        const auto write = [&](const std::string& name) {
            return CaughtFrom([&] { Write2File(At(folder.File(name + extension)), world_.OnDisk()); });
        };
        EXPECT_EQ(write("none/missing"), Expected(RunTimeError::PathNotFound));
        EXPECT_EQ(write("inner"), Expected(RunTimeError::PathFileAccess));
    }
}

TEST_F(SymbolFile, FailuresOfTheFileSystem) {
    for (const char16_t* path : {u"plan/a.syt", u"plan/a.syb"}) {
        for (const RunTimeError error : {RunTimeError::PermissionDenied, RunTimeError::DiskFull,
                                         RunTimeError::DeviceIo, RunTimeError::BadFileName}) {
            memory_.files.clear();
            memory_.openError = error;
            EXPECT_EQ(Write(At(path)), Expected(error));
            EXPECT_THAT(memory_.files, IsEmpty());
            Symbol symbol = At(path);
            EXPECT_EQ(Read(symbol), Expected(error));
            EXPECT_EQ(symbol, At(path, {}));
            memory_.openError.reset();
        }
    }
}

TEST_F(SymbolFile, AFailingReadClosesTheFile) {
    for (const char16_t* path : {u"plan/a.syt", u"plan/a.syb"}) {
        memory_.files[path] = support::WashRoomText();
        memory_.readError = RunTimeError::DeviceIo;
        Symbol symbol = At(path);
        EXPECT_EQ(Read(symbol), Expected(RunTimeError::DeviceIo));
        EXPECT_EQ(symbol, At(path, {}));
        memory_.readError.reset();
        memory_.closeError = RunTimeError::DeviceIo;
        EXPECT_EQ(Read(symbol), Expected(RunTimeError::DeviceIo));
        memory_.closeError.reset();
    }
    EXPECT_EQ(memory_.opened, 4);
    EXPECT_EQ(memory_.openNow, 0);
}

TEST_F(SymbolFile, AFailingWriteClosesTheFileAndLeavesTheSymbol) {
    for (const char16_t* path : {u"plan/a.syt", u"plan/a.syb"}) {
        const Symbol symbol = At(path);
        memory_.writeError = RunTimeError::DiskFull;
        memory_.writeBeforeError = 3;
        EXPECT_EQ(Write(symbol), Expected(RunTimeError::DiskFull));
        EXPECT_FALSE(memory_.files.contains(path)) << "no file where none was";
        memory_.writeError.reset();
        memory_.closeError = RunTimeError::DeviceIo;
        EXPECT_EQ(Write(symbol), Expected(RunTimeError::DeviceIo));
        memory_.closeError.reset();
        EXPECT_EQ(symbol, At(path));
    }
    EXPECT_EQ(memory_.opened, 4);
    EXPECT_EQ(memory_.openNow, 0);
}

TEST_F(SymbolFile, ReadsInPieces) {
    memory_.files[u"plan/wc.syt"] = support::WashRoomText();
    memory_.readAtMost = 7;
    Symbol symbol = At(u"plan/wc.syt", {});
    EXPECT_EQ(Read(symbol), Caught());
    EXPECT_EQ(symbol, At(u"plan/wc.syt"));
}

TEST_F(SymbolFile, LargeFilesAndSizesThatChangeMeanwhile) {
    for (const std::size_t blanks : {0U, 1U, 3000U, 4095U, 4096U, 4097U, 100000U}) {
        const std::string text = std::string(blanks, '\n') + support::WashRoomText();
        memory_.files[u"plan/wc.syt"] = text;
        Symbol symbol = At(u"plan/wc.syt", {});
        EXPECT_EQ(Read(symbol), Caught());
        EXPECT_EQ(symbol, At(u"plan/wc.syt")) << blanks;
        memory_.announcedSize = text.size() + 5000; // it shrank meanwhile
        EXPECT_EQ(Read(symbol), Caught());
        EXPECT_EQ(symbol, At(u"plan/wc.syt")) << blanks;
        memory_.announcedSize.reset();
    }
}

/// Files whose end is far away: what a reader does not need is not read.
TEST_F(SymbolFile, ALongTailCostsNothing) {
    constexpr std::uint64_t kFar = std::uint64_t{5} << 30;
    const support::TempFolder folder;
    const std::string symbol = ComposeBinary(support::WashRoom(), world_.InMemory());
    for (const auto& [name, start, error] : {std::tuple{"a.syb", symbol, 0},
                                             {"b.syb", std::string("\3\0sym", 5), 3501},
                                             {"a.syt", std::string("no symbol\n"), 3501},
                                             {"b.syt", std::string("no symbol"), 3501},
                                             {"c.syt", std::string("\nSYM;CNT=1\n"), 3501},
                                             {"a.wsc", std::string("BLT 1 2 3 4 5\nXYZ\n"), 0}}) {
        support::PutBytes(folder.Path() / name, start);
        std::filesystem::resize_file(folder.Path() / name, kFar);
        Symbol read = At(folder.File(name));
        const support::AllocationCounter memory;
        EXPECT_EQ(CaughtFrom([&] { ReadFromFile(read, world_.OnDisk()); }).number, error) << name;
        EXPECT_LE(memory.Peak(), 3U << 20) << name;
        EXPECT_EQ(read.elements.size(), start == symbol ? 3U : 0U);
    }
    EXPECT_EQ(world_.prompt.said.size(), 1U) << "the foreign line";
}

TEST_F(SymbolFile, LongFilesAreReadToTheirEnd) {
    Symbol symbol = At(u"plan/lang.syb");
    for (qsymbol::ElementRecord& element : symbol.elements) {
        element.type = qsymbol::ElementType::Poly;
        element.points.assign(100000, {1, -2});
    }
    for (const char16_t* path : {u"plan/lang.syb", u"plan/lang.syt"}) {
        symbol.filePath = path;
        EXPECT_EQ(Write(symbol), Caught());
        EXPECT_GT(memory_.files[path].size(), 2U << 20);
        memory_.files[path].append(symbol.filePath.ends_with(u"syb") ? 5000 : 0, '#');
        memory_.readAtMost = 300000;
        Symbol back = At(path, {});
        EXPECT_EQ(Read(back), Caught());
        EXPECT_EQ(back.elements.size(), 3U);
        EXPECT_EQ(back.elements[2].points, symbol.elements[2].points);
        memory_.readAtMost = SIZE_MAX;
    }
    memory_.files[u"plan/lang.wsc"] = "BLT 1 2 3 4 5\n";
    for (int i = 0; i < 100000; ++i)
        memory_.files[u"plan/lang.wsc"] += "STR F=1 0 0 0 0 1 2 3 4\n";
    Symbol import = At(u"plan/lang.wsc", {});
    EXPECT_EQ(Read(import), Caught());
    EXPECT_EQ(import.elements.size(), 100000U);
}

TEST_F(SymbolFile, ReadingAsksOnlyToOpen) {
    memory_.files[u"plan/wc.syt"] = support::WashRoomText();
    Symbol symbol = At(u"plan/wc.syt", {});
    EXPECT_EQ(Read(symbol), Caught());
    EXPECT_EQ(memory_.existsAsked, 0);
    EXPECT_EQ(memory_.opened, 1);
}

} // namespace

#include "base/whole_file.h"
#include "qsymbol/files/binary_writer.h"
#include "qsymbol/files/symbol_file.h"
#include "support/allocation_counter.h"
#include "support/caught.h"
#include "support/sample_symbols.h"
#include "support/test_environment.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <new>

namespace {

using base::RunTimeError;
using qsymbol::Symbol;
using support::AllocationCounter;
using support::AllocationFailure;
using support::Caught;
using support::CaughtFrom;
using support::Expected;

constexpr std::array kReadable = {u"plan/a.syt", u"plan/a.syb", u"plan/a.wsc"};
constexpr std::array kWritable = {u"plan/a.syt", u"plan/a.syb"};
/// Open, size, seek, write, flush: then there is room for all, and a new file has only to be closed.
constexpr int kReservingSteps = 5;
constexpr int kWritingSteps = kReservingSteps + 1;
constexpr std::array kErrors = {
    RunTimeError::OutOfMemory,      RunTimeError::BadFileName,    RunTimeError::FileNotFound,
    RunTimeError::DeviceIo,         RunTimeError::DiskFull,       RunTimeError::InputPastEnd,
    RunTimeError::PermissionDenied, RunTimeError::PathFileAccess, RunTimeError::PathNotFound};

/// Every operation of the file layer fails once, with every error, on every way through it.
class FileFaults : public testing::Test {
protected:
    support::TestEnvironment world_;
    support::MemoryFileSystem& memory_ = world_.memory;
    qsymbol::FileEnvironment environment_ = world_.InMemory();

    static Symbol At(const char16_t* path, Symbol symbol = support::EveryField()) {
        symbol.filePath = path;
        symbol.etagenbreite = 77;
        return symbol;
    }

    /// Puts files of more than one piece there.
    void PutFiles() {
        memory_.failingStep.reset();
        memory_.files.clear();
        for (const char16_t* path : kWritable)
            Write2File(At(path), environment_);
        std::string import = "BLT 1000 2000 0 0 0\r\nFLA F=3\r\n";
        for (int i = 0; i < 400; ++i)
            import += "FLF 1 2 3 4 5 6\r\n";
        memory_.files[u"plan/a.wsc"] = import + "END\r\n";
    }

    /// Reads with the operation number `step` failing. False when there is no such operation any more.
    bool ReadFailingAt(int step, const char16_t* path) {
        Symbol symbol = At(path);
        memory_.steps = 0;
        memory_.failingStep = step;
        const Caught caught = CaughtFrom([&] { ReadFromFile(symbol, environment_); });
        EXPECT_EQ(memory_.openNow, 0) << step;
        if (memory_.steps <= step) {
            EXPECT_EQ(caught, Caught());
            EXPECT_FALSE(symbol.elements.empty());
            return false;
        }
        EXPECT_EQ(caught, Expected(memory_.stepError)) << step;
        EXPECT_EQ(symbol, At(path, {})) << "never the old content, path and mirror value as they were";
        return true;
    }

    bool WriteFailingAt(int step, const char16_t* path) {
        const Symbol symbol = At(path);
        memory_.steps = 0;
        memory_.failingStep = step;
        const Caught caught = CaughtFrom([&] { Write2File(symbol, environment_); });
        EXPECT_EQ(memory_.openNow, 0) << step;
        EXPECT_EQ(symbol, At(path)) << "writing leaves the symbol as it is";
        if (memory_.steps <= step) {
            EXPECT_EQ(caught, Caught());
            return false;
        }
        EXPECT_EQ(caught, Expected(memory_.stepError)) << step;
        return true;
    }
};

TEST_F(FileFaults, EveryStepOfReading) {
    PutFiles();
    memory_.readAtMost = 1000;
    for (const RunTimeError error : kErrors) {
        memory_.stepError = error;
        for (const char16_t* path : kReadable) {
            int step = 0;
            while (ReadFailingAt(step, path))
                ++step;
            EXPECT_GE(step, 3) << "open, at least one read, close";
        }
    }
}

TEST_F(FileFaults, EveryStepOfWriting) {
    for (const RunTimeError error : kErrors) {
        memory_.stepError = error;
        for (const char16_t* path : kWritable) {
            int step = 0;
            do
                memory_.files.clear();
            while (WriteFailingAt(step++, path));
            EXPECT_EQ(step, kWritingSteps + 1) << "each of them fails once, then all is well";
        }
    }
}

TEST_F(FileFaults, EveryStepOfOverwriting) {
    for (const char16_t* path : kWritable) {
        for (const std::size_t size : {0U, 100U, 10000U}) {
            const std::string old(size, '#');
            bool failed = true;
            for (int step = 0; failed; ++step) {
                memory_.files[path] = old;
                world_.prompt.yesNo = {true};
                failed = WriteFailingAt(step, path);
                const bool reserving = step < (size < 10000 ? kReservingSteps : 2);
                if (failed && reserving) {
                    EXPECT_EQ(memory_.files[path], old) << step;
                }
            }
        }
    }
}

/// A disk that takes only so many bytes, for every number of them.
TEST_F(FileFaults, AFullDiskLeavesTheOldContent) {
    for (const char16_t* path : kWritable) {
        const std::string bytes = EncodeSymbol(At(path), path, environment_);
        for (const std::size_t size : {SIZE_MAX, std::size_t{0}, std::size_t{100}, bytes.size() + 50}) {
            const bool existed = size != SIZE_MAX;
            const std::string old(existed ? size : 0, '#');
            for (std::size_t room = old.size(); room <= bytes.size() + 50; ++room) {
                memory_.files.clear();
                if (existed)
                    memory_.files[path] = old;
                memory_.room = room;
                world_.prompt.yesNo.assign(existed ? 1 : 0, true);
                const Caught caught = CaughtFrom([&] { Write2File(At(path), environment_); });
                if (room < bytes.size()) {
                    EXPECT_EQ(caught, Expected(RunTimeError::DiskFull));
                    EXPECT_EQ(memory_.files.contains(path), existed);
                    EXPECT_EQ(memory_.files[path], old);
                } else {
                    EXPECT_EQ(caught, Caught());
                    EXPECT_EQ(memory_.files[path].substr(0, bytes.size()), bytes);
                    EXPECT_EQ(memory_.files[path].size(), std::u16string_view(path).ends_with(u"syb")
                                                              ? std::max(old.size(), bytes.size())
                                                              : bytes.size());
                }
            }
        }
    }
}

TEST_F(FileFaults, EveryStepOfWritingBeside) {
    int step = 0;
    for (Caught caught{1, {}, {}}; caught != Caught(); ++step) {
        memory_.files = {{u"plan/a.svg", "old"}};
        memory_.steps = 0;
        memory_.failingStep = step;
        caught = CaughtFrom([&] { base::WriteBeside(memory_, u"plan/a.svg", "new"); });
        EXPECT_EQ(memory_.files[u"plan/a.svg"], caught == Caught() ? "new" : "old");
        EXPECT_EQ(memory_.files.size(), 1U) << "nothing stays behind";
        EXPECT_EQ(memory_.openNow, 0);
    }
    EXPECT_EQ(step, 6) << "open, write, flush, close and rename fail once";
}

TEST_F(FileFaults, NothingIsLeaked) {
    PutFiles();
    for (const char16_t* path : kReadable) {
        for (int step = 0; step < 4; ++step) {
            const AllocationCounter memory;
            ReadFailingAt(step, path);
            EXPECT_TRUE(memory.AllGivenBack()) << step;
        }
    }
}

TEST_F(FileFaults, NoMemoryAtEveryBlockOfReading) {
    PutFiles();
    for (const char16_t* path : kReadable) {
        std::size_t failures = 0;
        for (bool done = false; !done; ++failures) {
            const AllocationCounter memory;
            {
                Symbol symbol = At(path);
                const AllocationFailure failure(failures);
                try {
                    ReadFromFile(symbol, environment_);
                    // Records of a binary file are made when somebody looks.
                    EXPECT_FALSE(std::as_const(symbol).elements.begin() ==
                                 std::as_const(symbol).elements.end());
                    done = !failure.Happened();
                } catch (const std::bad_alloc&) {
                    EXPECT_TRUE(failure.Happened());
                }
            }
            EXPECT_EQ(memory_.openNow, 0);
            EXPECT_TRUE(memory.AllGivenBack());
        }
        EXPECT_GT(failures, 3U) << "several blocks were asked for";
    }
}

TEST_F(FileFaults, NoMemoryAtEveryBlockOfWriting) {
    for (const char16_t* path : kWritable) {
        std::size_t failures = 0;
        for (bool done = false; !done; ++failures) {
            memory_.files.clear();
            const Symbol symbol = At(path);
            {
                const AllocationFailure failure(failures);
                try {
                    Write2File(symbol, environment_);
                    done = !failure.Happened();
                } catch (const std::bad_alloc&) {
                    EXPECT_TRUE(failure.Happened());
                }
            }
            EXPECT_EQ(memory_.openNow, 0);
            EXPECT_EQ(symbol, At(path));
        }
        EXPECT_GT(failures, 3U);
    }
}

TEST_F(FileFaults, ABinaryFileCutShort) {
    memory_.files[u"plan/a.syb"] = ComposeBinary(support::EveryField(), environment_);
    memory_.files[u"plan/a.syb"].resize(60);
    Symbol symbol = At(u"plan/a.syb");
    EXPECT_EQ(CaughtFrom([&] { ReadFromFile(symbol, environment_); }), Expected(RunTimeError::InputPastEnd));
    EXPECT_EQ(symbol.width, support::EveryField().width) << "what was read stays";
    EXPECT_EQ(symbol.elements.size(), support::EveryField().elements.size());
    EXPECT_EQ(memory_.openNow, 0);
}

TEST_F(FileFaults, AnImportFileCutShort) {
    memory_.files[u"plan/a.wsc"] = "BLT 10 20 0 0 0\r\nSTR F=1 0 0 0 0 1 2 3 4\r\nST";
    Symbol symbol = At(u"plan/a.wsc");
    EXPECT_EQ(CaughtFrom([&] { ReadFromFile(symbol, environment_); }), Caught());
    EXPECT_EQ(symbol, At(u"plan/a.wsc", {})) << "half a keyword is a foreign line";
    EXPECT_EQ(world_.prompt.said.size(), 1U);
}

} // namespace

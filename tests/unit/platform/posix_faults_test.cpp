#include "base/whole_file.h"
#include "platform/posix/posix_file_system.h"
#include "qsymbol/files/symbol_file.h"
#include "support/allocation_counter.h"
#include "support/caught.h"
#include "support/sample_symbols.h"
#include "support/temp_folder.h"
#include "support/test_environment.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <new>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

using base::RunTimeError;
using qsymbol::Symbol;
using support::Caught;
using support::CaughtFrom;
using support::Expected;

constexpr const char* kImport = "BLT 10 20 0 0 0\r\nSTR F=1\r\n";

/// Lets the superuser, who may do everything, act as somebody who may not, as long as this object lives.
class OrdinaryUser {
public:
    OrdinaryUser() : superuser_(geteuid() == 0) {
        if (superuser_ && seteuid(kNobody) != 0)
            ADD_FAILURE() << "cannot act as another user";
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    ~OrdinaryUser() {
        if (superuser_ && seteuid(0) != 0)
            ADD_FAILURE() << "cannot act as the superuser again";
    }

private:
    static constexpr uid_t kNobody = 65534;
    bool superuser_;
};

/// Lets files grow to so many bytes only, as a full disk would, as long as this object lives.
class LimitedDisk {
public:
    explicit LimitedDisk(rlim_t bytes) : previousHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &previous_);
        rlimit limited = previous_;
        limited.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    LimitedDisk(const LimitedDisk&) = delete;
    LimitedDisk& operator=(const LimitedDisk&) = delete;
    ~LimitedDisk() {
        setrlimit(RLIMIT_FSIZE, &previous_);
        std::signal(SIGXFSZ, previousHandler_);
    }

private:
    rlimit previous_{};
    void (*previousHandler_)(int);
};

std::size_t OpenHandles() {
    std::size_t count = 0;
    for ([[maybe_unused]] const auto& entry : fs::directory_iterator("/proc/self/fd"))
        ++count;
    return count;
}

/// What the real file system does, through the whole road from the symbol to the file.
class PosixFaults : public testing::Test {
protected:
    support::TestEnvironment world_;
    support::TempFolder folder_;
    std::size_t handles_ = OpenHandles();

    void TearDown() override { EXPECT_EQ(OpenHandles(), handles_) << "every file was closed"; }

    Caught Read(const std::u16string& path) {
        Symbol symbol = support::EveryField();
        symbol.filePath = path;
        const Caught caught = CaughtFrom([&] { ReadFromFile(symbol, world_.OnDisk()); });
        if (caught != Caught()) {
            Symbol empty;
            empty.filePath = path;
            EXPECT_EQ(symbol, empty) << "never the old content";
        }
        return caught;
    }
    Caught Write(const std::u16string& path) {
        Symbol symbol = support::EveryField();
        symbol.filePath = path;
        const Symbol before = symbol;
        world_.prompt.yesNo.assign(1, true);
        const Caught caught = CaughtFrom([&] { Write2File(symbol, world_.OnDisk()); });
        EXPECT_EQ(symbol, before);
        return caught;
    }
};

TEST_F(PosixFaults, ADiskThatFillsUp) {
    const std::string old(60, '#');
    for (const char* name : {"a.syt", "a.syb"}) {
        const LimitedDisk disk(100);
        EXPECT_EQ(Write(folder_.File(name)), Expected(RunTimeError::DiskFull));
        EXPECT_FALSE(fs::exists(folder_.Path() / name)) << "no remainder that would read as a symbol";
        support::PutBytes(folder_.Path() / name, old);
        EXPECT_EQ(Write(folder_.File(name)), Expected(RunTimeError::DiskFull));
        EXPECT_EQ(support::BytesOf(folder_.Path() / name), old);
    }
}

/// A disk of four blocks, in a view of the file system that only one thread has.
TEST_F(PosixFaults, AFullDisk) {
    std::string skipped;
    std::thread([&] {
        if (unshare(CLONE_NEWNS) != 0 || mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            mount("tmpfs", folder_.Path().c_str(), "tmpfs", 0, "size=16384") != 0) {
            skipped = std::strerror(errno);
            return;
        }
        for (const std::string name : {"a.syt", "a.syb"}) {
            support::PutBytes(folder_.Path() / name, "old");
            support::PutBytes(folder_.Path() / "rest", std::string(12288, '#'));
            Symbol symbol = support::EveryField();
            symbol.filePath = folder_.File(name);
            symbol.elements[0].points.assign(700, {1, 2});
            const auto write = [&] {
                world_.prompt.yesNo.assign(1, true);
                return CaughtFrom([&] { Write2File(symbol, world_.OnDisk()); });
            };
            EXPECT_EQ(write(), Expected(RunTimeError::DiskFull)) << name;
            EXPECT_EQ(support::BytesOf(folder_.Path() / name), "old");
            EXPECT_EQ(
                CaughtFrom([&] { base::WriteBeside(world_.disk, symbol.filePath, std::string(5000, 'x')); }),
                Expected(RunTimeError::DiskFull));
            EXPECT_EQ(support::BytesOf(folder_.Path() / name), "old");
            fs::remove(folder_.Path() / "rest");
            EXPECT_EQ(write(), Caught());
            EXPECT_EQ(std::distance(fs::directory_iterator(folder_.Path()), {}), 1) << "nothing stays behind";
            fs::remove(folder_.Path() / name);
        }
        umount(folder_.Path().c_str());
    }).join();
    if (!skipped.empty())
        GTEST_SKIP() << "no disk of its own can be mounted: " << skipped;
}

TEST_F(PosixFaults, DeniedAccess) {
    fs::permissions(folder_.Path(), fs::perms::all);
    for (const char* name : {"a.syt", "a.syb", "a.wsc"}) {
        support::PutBytes(folder_.Path() / name, kImport);
        fs::permissions(folder_.Path() / name, fs::perms::none);
    }
    const OrdinaryUser user;
    for (const char* name : {"a.syt", "a.syb", "a.wsc"})
        EXPECT_EQ(Read(folder_.File(name)), Expected(RunTimeError::PermissionDenied)) << name;
    for (const char* name : {"a.syt", "a.syb"})
        EXPECT_EQ(Write(folder_.File(name)), Expected(RunTimeError::PermissionDenied)) << name;
}

TEST_F(PosixFaults, AFolderThatTakesNoFiles) {
    fs::create_directory(folder_.Path() / "inner");
    fs::permissions(folder_.Path() / "inner", fs::perms::owner_read | fs::perms::owner_exec |
                                                  fs::perms::others_read | fs::perms::others_exec);
    fs::permissions(folder_.Path(), fs::perms::all);
    const OrdinaryUser user;
    EXPECT_EQ(Write(folder_.File("inner/a.syt")), Expected(RunTimeError::PermissionDenied));
    EXPECT_EQ(Write(folder_.File("inner/a.syb")), Expected(RunTimeError::PermissionDenied));
}

TEST_F(PosixFaults, AProgramThatIsRunning) {
    fs::create_symlink("/proc/self/exe", folder_.Path() / "a.syt");
    EXPECT_EQ(Write(folder_.File("a.syt")), Expected(RunTimeError::PermissionDenied)) << "in use";
}

TEST_F(PosixFaults, NamesThatAreTooLong) {
    const std::string name(300, 'n');
    const std::string path = [] {
        std::string deep;
        for (int i = 0; i < 60; ++i)
            deep += std::string(100, 'd') + "/";
        return deep;
    }();
    for (const char* extension : {".syt", ".syb", ".wsc"}) {
        EXPECT_EQ(Read(folder_.File(name + extension)), Expected(RunTimeError::BadFileName));
        EXPECT_EQ(Read(folder_.File(path + "a" + extension)), Expected(RunTimeError::BadFileName));
    }
    for (const char* extension : {".syt", ".syb"})
        EXPECT_EQ(Write(folder_.File(name + extension)), Expected(RunTimeError::BadFileName));
}

TEST_F(PosixFaults, NamesOutsideTheCodePage) {
    for (const std::u16string name : {u"Grundriß Ω 図面", u"\U0001F6BB", u"a\u0301"}) {
        const std::u16string stem = folder_.Path().u16string() + u"/" + name;
        for (const char16_t* extension : {u".syt", u".syb"}) {
            EXPECT_EQ(Write(stem + extension), Caught());
            EXPECT_EQ(Read(stem + extension), Caught());
        }
        support::PutBytes(fs::path(stem + u".wsc"), kImport);
        EXPECT_EQ(Read(stem + u".wsc"), Caught());
    }
    const std::u16string half = folder_.Path().u16string() + u"/\xD83D.syt";
    EXPECT_EQ(Read(half), Expected(RunTimeError::FileNotFound)) << "half a character";
}

TEST_F(PosixFaults, FoldersAndMissingFiles) {
    for (const char* extension : {".syt", ".syb", ".wsc"}) {
        const std::string folder = std::string("folder") + extension;
        fs::create_directory(folder_.Path() / folder);
        EXPECT_EQ(Read(folder_.File(folder)), Expected(RunTimeError::PathFileAccess));
        EXPECT_EQ(Read(folder_.File(folder + "/a" + extension)), Expected(RunTimeError::FileNotFound));
        EXPECT_EQ(Read(folder_.File(std::string("none/a") + extension)),
                  Expected(RunTimeError::PathNotFound));
        fs::create_symlink(folder_.Path() / "gone", folder_.Path() / ("link" + std::string(extension)));
        EXPECT_EQ(Read(folder_.File("link" + std::string(extension))), Expected(RunTimeError::FileNotFound));
    }
    EXPECT_EQ(Write(folder_.File("folder.syt")), Expected(RunTimeError::PathFileAccess));
    EXPECT_EQ(Write(folder_.File("folder.syb")), Expected(RunTimeError::PathFileAccess));
    EXPECT_EQ(Write(folder_.File("none/a.syt")), Expected(RunTimeError::PathNotFound));
    EXPECT_EQ(Write(folder_.File("none/a.syb")), Expected(RunTimeError::PathNotFound));
}

TEST_F(PosixFaults, PipesAndDevicesAreNoFiles) {
    for (const std::string extension : {".syt", ".syb", ".wsc"}) {
        ASSERT_EQ(mkfifo((folder_.Path() / ("silent" + extension)).c_str(), 0600), 0);
        ASSERT_EQ(mkfifo((folder_.Path() / ("open" + extension)).c_str(), 0600), 0);
        fs::create_symlink("/dev/zero", folder_.Path() / ("zero" + extension));
        const int pipe = open((folder_.Path() / ("open" + extension)).c_str(), O_RDWR | O_NONBLOCK);
        for (const std::string name : {"silent", "open", "zero"}) {
            EXPECT_EQ(Read(folder_.File(name + extension)), Expected(RunTimeError::PathFileAccess)) << name;
            if (extension != ".wsc") {
                EXPECT_EQ(Write(folder_.File(name + extension)), Expected(RunTimeError::PathFileAccess));
            }
        }
        close(pipe);
    }
    EXPECT_TRUE(world_.prompt.said.empty()) << "what is no file is not overwritten";
}

TEST_F(PosixFaults, ALackOfMemoryWhereverItComesLeavesNoHandleOpen) {
    support::PutBytes(folder_.Path() / "a", "bytes");
    for (std::size_t blocks = 0;; ++blocks) {
        bool happened = false;
        {
            platform::PosixFileSystem files;
            const std::u16string path = folder_.File("a");
            const std::u16string folder = folder_.Path().u16string();
            const support::AllocationFailure failure(blocks);
            try {
                files.Open(path, base::OpenMode::Read);
                files.ListFiles(folder);
                files.Open(path, base::OpenMode::Read); // from the folder that was listed
            } catch (const std::bad_alloc&) {           // as it was meant
            }
            happened = failure.Happened();
        }
        ASSERT_EQ(OpenHandles(), handles_) << blocks;
        if (!happened)
            break;
    }
}

} // namespace

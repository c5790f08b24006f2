#include "qsymbol/files/symbol_file.h"
#include "support/caught.h"
#include "support/sample_symbols.h"
#include "support/temp_folder.h"
#include "support/test_environment.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <sys/resource.h>
#include <sys/stat.h>
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

TEST_F(PosixFaults, ADiskThatIsFullFromTheStart) {
    for (const char* name : {"full.syt", "full.syb"}) {
        fs::create_symlink("/dev/full", folder_.Path() / name);
        EXPECT_EQ(Write(folder_.File(name)), Expected(RunTimeError::DiskFull));
    }
}

TEST_F(PosixFaults, ADiskThatFillsUp) {
    for (const char* name : {"a.syt", "a.syb"}) {
        const LimitedDisk disk(100);
        EXPECT_EQ(Write(folder_.File(name)), Expected(RunTimeError::DiskFull));
        EXPECT_EQ(fs::file_size(folder_.Path() / name), 100U) << "what was written so far stays";
    }
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

TEST_F(PosixFaults, APipeDoesNotHoldTheProgram) {
    for (const char* name : {"a.syt", "a.syb", "a.wsc"})
        ASSERT_EQ(mkfifo((folder_.Path() / name).c_str(), 0600), 0);
    EXPECT_EQ(Read(folder_.File("a.syt")), Caught()) << "empty";
    EXPECT_EQ(Read(folder_.File("a.syb")), Expected(RunTimeError::InputPastEnd));
    EXPECT_EQ(Read(folder_.File("a.wsc")), Expected(RunTimeError::InputPastEnd));
    EXPECT_EQ(Write(folder_.File("a.syt")), Expected(RunTimeError::DeviceIo)) << "nobody reads";
}

} // namespace

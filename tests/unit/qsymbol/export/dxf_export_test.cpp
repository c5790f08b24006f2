#include "qsymbol/export/dxf_export.h"

#include "platform/posix/posix_file_system.h"
#include "support/caught.h"
#include "support/memory_file_system.h"
#include "support/sample_symbols.h"
#include "support/temp_folder.h"
#include "unit/qsymbol/export/export_support.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <limits>

#include <unistd.h>

namespace {

using base::RunTimeError;
using export_test::Element;
using export_test::Export;
using export_test::Only;
using qsymbol::ElementType;
using qsymbol::Symbol;
using qsymbol::SymbolPosition;
using support::CaughtFrom;
using support::Expected;

class DxfExport : public testing::Test {
protected:
    void SetUp() override { memory_.folders.insert(u"plan"); }

    std::unique_ptr<base::File> Append(const Symbol& symbol) { return Append(symbol, memory_, kPath); }
    std::unique_ptr<base::File> Append(const Symbol& symbol, base::FileSystem& files,
                                       const std::u16string& path) {
        return qsymbol::AppendToDxfFile(symbol, kPosition, factor_, path, files, codePage_);
    }
    support::Caught Error(const Symbol& symbol) {
        return CaughtFrom([&] { Append(symbol); });
    }
    support::Caught DiskError(const std::u16string& path) {
        return CaughtFrom([&] { Append(support::WashRoom(), disk_, path); });
    }

    double factor_ = 0;
    const std::u16string kPath = u"plan\\a.dxf";
    const SymbolPosition kPosition{.at = {12345, 6789}, .angle = 0.5};
    const std::string kHead = "  0\r\nSECTION\r\n";
    support::MemoryFileSystem memory_;
    platform::PosixFileSystem disk_;
    platform::Windows1252 codePage_;
};

TEST_F(DxfExport, ASymbolWithoutElementsLeavesTheFileOpen) {
    memory_.files[kPath] = kHead;
    std::unique_ptr<base::File> left = Append(Symbol());
    ASSERT_NE(left, nullptr);
    EXPECT_EQ(memory_.openNow, 1);
    EXPECT_EQ(memory_.files[kPath], kHead);
    EXPECT_EQ(Append(support::WashRoom()), nullptr);
    EXPECT_EQ(memory_.files[kPath], kHead + Export(support::WashRoom(), kPosition));
    left.reset();
    EXPECT_EQ(memory_.openNow, 0);
}

TEST_F(DxfExport, OpenFailures) {
    for (const RunTimeError number : {RunTimeError::PathNotFound, RunTimeError::PermissionDenied,
                                      RunTimeError::PathFileAccess, RunTimeError::DiskFull}) {
        memory_.openError = number;
        EXPECT_EQ(Error(support::WashRoom()), Expected(number));
        EXPECT_EQ(Error(Symbol()), Expected(number));
    }
}

TEST_F(DxfExport, WhatAFullDiskTookStays) {
    memory_.files[kPath] = kHead;
    memory_.writeError = RunTimeError::DiskFull;
    memory_.writeBeforeError = 100;
    EXPECT_EQ(Error(support::WashRoom()), Expected(RunTimeError::DiskFull));
    EXPECT_EQ(memory_.files[kPath], kHead + Export(support::WashRoom(), kPosition).substr(0, 100));
    EXPECT_EQ(memory_.openNow, 0);
}

TEST_F(DxfExport, AFailureOnClosingIsReported) {
    memory_.closeError = RunTimeError::DeviceIo;
    EXPECT_EQ(Error(support::WashRoom()), Expected(RunTimeError::DeviceIo));
    EXPECT_EQ(memory_.openNow, 0);
}

TEST_F(DxfExport, OnARealDisk) {
    const support::TempFolder folder;
    const std::u16string path = folder.File("a.dxf");
    support::PutBytes(folder.Path() / "a.dxf", kHead);
    const std::unique_ptr<base::File> left = Append(Symbol(), disk_, path);
    EXPECT_NE(left, nullptr);
    Append(support::WashRoom(), disk_, path);
    Append(support::WashRoom(), disk_, path);
    const std::string once = Export(support::WashRoom(), kPosition);
    EXPECT_EQ(support::BytesOf(folder.Path() / "a.dxf"), kHead + once + once);
}

TEST_F(DxfExport, FailuresOfARealDisk) {
    const support::TempFolder folder;
    EXPECT_EQ(DiskError(folder.File("missing/a.dxf")), Expected(RunTimeError::PathNotFound));
    EXPECT_EQ(DiskError(folder.Path().u16string()), Expected(RunTimeError::PathFileAccess));
    EXPECT_EQ(DiskError(u""), Expected(RunTimeError::BadFileName));
}

TEST_F(DxfExport, AFullDisk) {
    memory_.files[kPath] = kHead;
    memory_.room = kHead.size() + 10;
    EXPECT_EQ(Error(support::WashRoom()), Expected(RunTimeError::DiskFull));
    EXPECT_EQ(memory_.openNow, 0);
    EXPECT_EQ(DiskError(u"/dev/full"), Expected(RunTimeError::PathFileAccess)) << "a device is no file";
}

TEST_F(DxfExport, AReadOnlyFile) {
    if (geteuid() == 0)
        GTEST_SKIP() << "the superuser may write everything";
    const support::TempFolder folder;
    support::PutBytes(folder.Path() / "a.dxf", kHead);
    std::filesystem::permissions(folder.Path() / "a.dxf", std::filesystem::perms::owner_read);
    EXPECT_EQ(DiskError(folder.File("a.dxf")), Expected(RunTimeError::PermissionDenied));
    EXPECT_EQ(support::BytesOf(folder.Path() / "a.dxf"), kHead);
}

} // namespace

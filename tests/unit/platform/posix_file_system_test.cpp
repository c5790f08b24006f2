#include "platform/posix/posix_file_system.h"

#include "base/file_content.h"
#include "base/whole_file.h"
#include "support/caught.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace {

using base::OpenMode;
using base::RunTimeError;
using support::CaughtFrom;
using support::Expected;

class PosixFiles : public testing::Test {
protected:
    support::TempFolder folder_;
    platform::PosixFileSystem files_;

    void Write(const char* name, OpenMode mode, std::string_view bytes) {
        const auto file = files_.Open(folder_.File(name), mode);
        file->Write(bytes.data(), bytes.size());
        file->Close();
    }
};

TEST_F(PosixFiles, WaysOfWriting) {
    Write("a", OpenMode::Replace, "12345");
    Write("a", OpenMode::Overlay, "ab");
    EXPECT_EQ(support::BytesOf(folder_.Path() / "a"), "ab345");
    Write("a", OpenMode::Append, "x");
    EXPECT_EQ(support::BytesOf(folder_.Path() / "a"), "ab345x");
    Write("a", OpenMode::Replace, "y");
    EXPECT_EQ(support::BytesOf(folder_.Path() / "a"), "y");
}

TEST_F(PosixFiles, PlacesInAFile) {
    support::PutBytes(folder_.Path() / "a", "12345");
    const auto file = files_.Open(folder_.File("a"), OpenMode::Overlay);
    EXPECT_EQ(file->Size(), 5U);
    file->Seek(4);
    file->Write("xy", 2);
    file->Seek(1);
    file->Write("z", 1);
    file->Flush();
    EXPECT_EQ(support::BytesOf(folder_.Path() / "a"), "1z34xy");
    file->Cut(3);
    EXPECT_EQ(support::BytesOf(folder_.Path() / "a"), "1z3");
}

TEST_F(PosixFiles, FullPaths) {
    std::filesystem::create_directory(folder_.Path() / "inner");
    const std::u16string inner = folder_.File("inner");
    EXPECT_EQ(files_.FullPath(folder_.File("inner/../inner/.")), inner);
    EXPECT_EQ(files_.FullPath(inner + u"/"), inner);
    EXPECT_EQ(files_.FullPath(u".") + u"/none", std::filesystem::current_path().u16string() + u"/none");
    EXPECT_EQ(files_.FullPath(u"no/such/folder"), u"no/such/folder");
}

TEST_F(PosixFiles, WritingBeside) {
    const std::filesystem::path path = folder_.Path() / "a";
    base::WriteBeside(files_, path.u16string(), "new");
    EXPECT_EQ(support::BytesOf(path), "new");
    std::filesystem::permissions(path,
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    base::WriteBeside(files_, path.u16string(), "newer");
    EXPECT_EQ(support::BytesOf(path), "newer");
    EXPECT_EQ(std::filesystem::status(path).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    const std::string longest(255, 'n');
    base::WriteBeside(files_, folder_.File(longest), "x");
    EXPECT_EQ(support::BytesOf(folder_.Path() / longest), "x");
    files_.Remove(folder_.File(longest));

    std::filesystem::create_directory(folder_.Path() / "inner");
    std::filesystem::create_symlink("/dev/null", folder_.Path() / "null");
    for (const auto& [name, error] : {std::pair{"inner", RunTimeError::PathFileAccess},
                                      {"null", RunTimeError::PathFileAccess},
                                      {"none/a", RunTimeError::PathNotFound}})
        EXPECT_EQ(CaughtFrom([&] { base::WriteBeside(files_, folder_.File(name), "x"); }), Expected(error));
    EXPECT_EQ(files_.ListFiles(folder_.Path().u16string()).size(), 2U) << "a and the link";
    EXPECT_EQ(CaughtFrom([&] { files_.Remove(folder_.File("none")); }), Expected(RunTimeError::FileNotFound));
}

TEST_F(PosixFiles, WhatCannotBeOpened) {
    std::filesystem::create_directory(folder_.Path() / "inner");
    support::PutBytes(folder_.Path() / "a", "");
    const auto open = [&](const std::u16string& path, OpenMode mode) {
        return CaughtFrom([&] { files_.Open(path, mode); });
    };
    EXPECT_EQ(open(folder_.File("missing"), OpenMode::Read), Expected(RunTimeError::FileNotFound));
    EXPECT_EQ(open(folder_.File("none/missing"), OpenMode::Read), Expected(RunTimeError::PathNotFound));
    EXPECT_EQ(open(folder_.File("none/missing"), OpenMode::Replace), Expected(RunTimeError::PathNotFound));
    EXPECT_EQ(open(folder_.File("a/b"), OpenMode::Read), Expected(RunTimeError::PathNotFound));
    EXPECT_EQ(CaughtFrom([&] { base::FileContent(files_, folder_.File("inner")); }),
              Expected(RunTimeError::PathFileAccess));
    EXPECT_EQ(open(folder_.File("inner"), OpenMode::Overlay), Expected(RunTimeError::PathFileAccess));
    EXPECT_EQ(open(u"", OpenMode::Read), Expected(RunTimeError::BadFileName));
    EXPECT_EQ(open(std::u16string(u"a\0b", 3), OpenMode::Read), Expected(RunTimeError::BadFileName));
}

TEST_F(PosixFiles, ListingGivesFilesOnly) {
    std::filesystem::create_directory(folder_.Path() / "inner");
    support::PutBytes(folder_.Path() / "Küche.syb", "");
    std::vector<std::u16string> names;
    for (const base::FolderEntry& entry : files_.ListFiles(folder_.Path().u16string())) {
        names.emplace_back(entry.Name());
        EXPECT_EQ(entry.path, folder_.File("Küche.syb"));
    }
    EXPECT_THAT(names, testing::ElementsAre(u"Küche.syb"));
    EXPECT_EQ(CaughtFrom([&] { files_.ListFiles(folder_.File("none")); }),
              Expected(RunTimeError::PathNotFound));
}

/// After a listing files open through the folder's handle; that must not show.
TEST_F(PosixFiles, ReadingAfterAListing) {
    const std::filesystem::path inner = folder_.Path() / "inner";
    std::filesystem::create_directory(inner);
    support::PutBytes(inner / "Küche.syb", "old");
    const auto read = [&](const char* name) {
        return base::FileContent(files_, folder_.File(name)).Release();
    };
    EXPECT_EQ(files_.ListFiles(inner.u16string()).size(), 1U);
    EXPECT_EQ(read("inner/Küche.syb"), "old");
    EXPECT_EQ(CaughtFrom([&] { read("inner/missing"); }), Expected(RunTimeError::FileNotFound));
    EXPECT_EQ(CaughtFrom([&] { read("inner/none/missing"); }), Expected(RunTimeError::PathNotFound));
    EXPECT_EQ(CaughtFrom([&] { read("inner/"); }), Expected(RunTimeError::PathFileAccess));
    EXPECT_EQ(CaughtFrom([&] { read("inner"); }), Expected(RunTimeError::PathFileAccess));

    std::filesystem::remove_all(inner);
    EXPECT_EQ(CaughtFrom([&] { read("inner/Küche.syb"); }), Expected(RunTimeError::PathNotFound));
    std::filesystem::create_directory(inner);
    support::PutBytes(inner / "Küche.syb", "new");
    EXPECT_EQ(read("inner/Küche.syb"), "new") << "the folder that was listed is gone";
}

TEST_F(PosixFiles, FilesAndFolders) {
    support::PutBytes(folder_.Path() / "a", "");
    EXPECT_TRUE(files_.FileExists(folder_.File("a")));
    EXPECT_FALSE(files_.FolderExists(folder_.File("a")));
    EXPECT_FALSE(files_.FileExists(folder_.Path().u16string()));
    EXPECT_TRUE(files_.FolderExists(folder_.Path().u16string()));
    EXPECT_FALSE(files_.FileExists(folder_.File("b")));
}

} // namespace

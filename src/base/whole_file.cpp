#include "base/whole_file.h"

#include "base/error.h"

#include <algorithm>
#include <random>

namespace base {

namespace {

void Write(File& file, std::string_view bytes) {
    if (!bytes.empty())
        file.Write(bytes.data(), bytes.size());
}

/// Runs what tidies up after an error, which counts more than another one now.
template <class Step>
void Try(Step&& step) noexcept {
    try {
        step();
    } catch (const Error&) { // NOLINT(bugprone-empty-catch): see above
    }
}

/// A name in the same folder that no file has, short enough wherever the path's own name is.
std::u16string FreeNameBeside(FileSystem& files, std::u16string_view path) {
    constexpr std::u16string_view kDigits = u"0123456789abcdef";
    constexpr std::u16string_view kSeparators = u"/\\:";
    constexpr int kLength = 8;
    const std::u16string_view folder = path.substr(0, path.find_last_of(kSeparators) + 1);
    std::random_device random; // others may be writing into this folder
    std::u16string name;
    do {
        name = folder;
        name += u".~";
        std::random_device::result_type bits = random();
        for (int i = 0; i < kLength; ++i, bits >>= 4)
            name += kDigits[bits & 15U];
        name += u".tmp";
    } while (files.FileExists(name));
    return name;
}

} // namespace

void WriteInPlace(FileSystem& files, const std::u16string& path, std::string_view bytes, Tail tail) {
    const bool existed = files.FileExists(path);
    std::unique_ptr<File> file = files.Open(path, OpenMode::Overlay);
    const std::uint64_t oldSize = file->Size();
    const std::string_view within =
        bytes.substr(0, static_cast<std::size_t>(std::min<std::uint64_t>(oldSize, bytes.size())));
    try {
        if (within.size() < bytes.size()) {
            file->Seek(oldSize);
            Write(*file, bytes.substr(within.size()));
            file->Flush();
        }
    } catch (...) {
        Try([&] { file->Cut(oldSize); });
        file.reset();
        if (!existed)
            Try([&] { files.Remove(path); });
        throw;
    }
    if (oldSize > 0) {
        file->Seek(0);
        Write(*file, within);
        if (tail == Tail::Cut && oldSize > bytes.size())
            file->Cut(bytes.size());
        file->Flush();
    }
    file->Close();
}

void WriteBeside(FileSystem& files, const std::u16string& path, std::string_view bytes) {
    WriteBeside(files, path, [&](const ByteSink& sink) { sink(bytes); });
}

void WriteBeside(FileSystem& files, const std::u16string& path, const Composer& compose, Flush flush) {
    const std::u16string beside = FreeNameBeside(files, path);
    std::unique_ptr<File> file = files.Open(beside, OpenMode::Replace);
    try {
        compose([&](std::string_view bytes) { Write(*file, bytes); });
        if (flush == Flush::Yes)
            file->Flush();
        file->Close();
        files.Rename(beside, path);
    } catch (...) {
        file.reset();
        Try([&] { files.Remove(beside); });
        throw;
    }
}

} // namespace base

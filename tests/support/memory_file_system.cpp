#include "support/memory_file_system.h"

#include <algorithm>

namespace support {

namespace {

class MemoryFile final : public base::File {
public:
    MemoryFile(MemoryFileSystem& system, std::string& bytes, std::size_t position)
        : system_(system), bytes_(bytes), position_(position) {
        ++system_.opened;
        ++system_.openNow;
    }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile() override { Shut(); }

    std::uint64_t Size() override {
        system_.Step();
        return system_.announcedSize.value_or(bytes_.size());
    }

    std::size_t Read(char* buffer, std::size_t count) override {
        system_.Step();
        if (system_.readError)
            base::Raise(*system_.readError);
        const std::size_t got = std::min({count, bytes_.size() - position_, system_.readAtMost});
        std::copy_n(bytes_.data() + position_, got, buffer);
        position_ += got;
        return got;
    }

    void Write(const char* bytes, std::size_t count) override {
        system_.Step();
        std::size_t put = system_.writeError ? std::min(count, system_.writeBeforeError) : count;
        put = std::min(put, std::max(system_.room, position_) - position_);
        bytes_.resize(std::max(bytes_.size(), position_ + put));
        std::copy_n(bytes, put, bytes_.data() + position_);
        position_ += put;
        if (system_.writeError)
            base::Raise(*system_.writeError);
        if (put < count)
            base::Raise(base::RunTimeError::DiskFull);
    }

    void Seek(std::uint64_t position) override {
        system_.Step();
        position_ = static_cast<std::size_t>(position);
    }

    void Cut(std::uint64_t size) override {
        system_.Step();
        bytes_.resize(static_cast<std::size_t>(size));
    }

    void Flush() override { system_.Step(); }

    void Close() override {
        Shut();
        system_.Step();
        if (system_.closeError)
            base::Raise(*system_.closeError);
    }

private:
    void Shut() {
        system_.openNow -= open_ ? 1 : 0;
        open_ = false;
    }

    MemoryFileSystem& system_;
    std::string& bytes_;
    std::size_t position_;
    bool open_ = true;
};

std::u16string FolderOf(const std::u16string& path) {
    const std::size_t at = path.find_last_of(u"\\/");
    return at == std::u16string::npos ? std::u16string() : path.substr(0, at);
}

} // namespace

void MemoryFileSystem::Step() {
    if (steps++ == failingStep)
        base::Raise(stepError);
}

std::unique_ptr<base::File> MemoryFileSystem::Open(const std::u16string& path, base::OpenMode mode) {
    if (onOpen)
        onOpen();
    Step();
    if (openError)
        base::Raise(*openError);
    if (!folders.contains(FolderOf(path)))
        base::Raise(base::RunTimeError::PathNotFound);
    if (folders.contains(path))
        base::Raise(base::RunTimeError::PathFileAccess);
    if (mode == base::OpenMode::Read && !files.contains(path))
        base::Raise(base::RunTimeError::FileNotFound);
    std::string& bytes = files[path];
    if (mode == base::OpenMode::Replace)
        bytes.clear();
    return std::make_unique<MemoryFile>(*this, bytes, mode == base::OpenMode::Append ? bytes.size() : 0);
}

bool MemoryFileSystem::FileExists(const std::u16string& path) {
    ++existsAsked;
    return files.contains(path);
}

std::vector<base::FolderEntry> MemoryFileSystem::ListFiles(const std::u16string& folder) {
    if (!folders.contains(folder))
        base::Raise(base::RunTimeError::PathNotFound);
    std::vector<std::u16string> paths = listing;
    if (paths.empty())
        for (const auto& [path, bytes] : files)
            paths.push_back(path);
    std::vector<base::FolderEntry> entries;
    for (const std::u16string& path : paths)
        if (FolderOf(path) == folder)
            entries.push_back({path, folder.size() + 1});
    return entries;
}

void MemoryFileSystem::Rename(const std::u16string& from, const std::u16string& to) {
    Step();
    if (folders.contains(to))
        base::Raise(base::RunTimeError::PathFileAccess);
    files[to] = std::move(files.at(from));
    files.erase(from);
}

void MemoryFileSystem::Remove(const std::u16string& path) {
    Step();
    files.erase(path);
}

} // namespace support

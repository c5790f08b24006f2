#include "cli/symbol_files.h"

#include "base/letter_case.h"
#include "base/utf8.h"
#include "cli/paths.h"

#include <algorithm>
#include <filesystem>
#include <unordered_set>
#include <utility>

namespace cli {

namespace fs = std::filesystem;

namespace {

/// A listed name and what it is sorted by: without regard to case, so that the order is the same everywhere.
class Named {
public:
    explicit Named(base::FolderEntry&& listed) : entry(std::move(listed)) {
        // High bytes first: bytes compare as the units would, and faster.
        for (const char16_t unit : base::UpperCase(entry.Name()))
            key_.append({static_cast<char>(unit >> 8), static_cast<char>(unit & 0xFF)});
    }

    bool operator<(const Named& other) const {
        const int order = key_.compare(other.key_);
        return order != 0 ? order < 0 : entry.path < other.entry.path;
    }

    base::FolderEntry entry;

private:
    std::string key_;
};

/// The file's name, or nothing where it is not made of characters: some systems take any bytes.
std::optional<std::u16string> NameOf(const fs::path& path) {
    try {
        return path.filename().u16string();
    } catch (const fs::filesystem_error&) {
        return std::nullopt;
    }
}

std::u16string Shown(const fs::path& name) {
    const std::u8string bytes = name.u8string();
    return base::FromUtf8({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

class Finder {
public:
    explicit Finder(const Run& run) : files_(run.OnSystem().files), recursive_(run.options.recursive) {}

    void Look(const std::u16string& path) {
        try {
            switch (KindOf(path)) {
            case Kind::Missing: throw RunTime(base::RunTimeError::FileNotFound);
            case Kind::Other: throw RunTime(base::RunTimeError::PathFileAccess);
            case Kind::Folder: LookInto(path, u""); break;
            case Kind::File:
                if (!IsReadable(path))
                    throw UnusableExtension();
                LookAt(path);
                break;
            }
        } catch (const base::Error& error) {
            found.push_back({path, u"", error});
        }
    }

    std::vector<SourceFile> found;

private:
    void LookAt(const std::u16string& path) {
        const std::u16string_view folder = FolderOf(path);
        if (place_.empty() || folder != placed_) {
            placed_ = folder;
            place_ = PlaceOf(folder);
        }
        if (!folders_.contains(place_) && single_.insert(InPlace(place_, path.substr(folder.size()))).second)
            found.push_back({path, u"", std::nullopt});
    }

    void LookInto(const std::u16string& folder, const std::u16string& below) {
        const std::u16string place = PlaceOf(folder);
        if (!folders_.insert(place).second)
            return;
        try {
            LookAtFiles(folder, below, place);
            if (recursive_)
                LookIntoSubfolders(folder, below);
        } catch (const base::Error& error) {
            found.push_back({folder, below, error});
            folders_.erase(place); // a file of it may be found by its own path all the same
        }
    }

    void LookAtFiles(const std::u16string& folder, const std::u16string& below, const std::u16string& place) {
        std::vector<Named> files;
        for (base::FolderEntry& entry : files_.ListFiles(folder))
            if (IsReadable(entry.Name()))
                files.emplace_back(std::move(entry));
        std::sort(files.begin(), files.end());
        found.reserve(found.size() + files.size());
        for (Named& file : files) {
            base::FolderEntry& entry = file.entry;
            if (!single_.empty() && single_.contains(InPlace(place, entry.Name())))
                continue;
            if (IsNameless(entry))
                found.push_back({std::move(entry.path), below, RunTime(base::RunTimeError::BadFileName)});
            else
                found.push_back({std::move(entry.path), below, std::nullopt});
        }
    }

    /// Nothing is there under a name in which other characters had to stand for bytes that are none.
    bool IsNameless(const base::FolderEntry& entry) {
        return entry.Name().find(u'\uFFFD') != std::u16string_view::npos && !files_.FileExists(entry.path);
    }

    void LookIntoSubfolders(const std::u16string& folder, const std::u16string& below) {
        std::vector<Named> folders;
        try {
            for (const fs::directory_entry& entry : fs::directory_iterator(fs::path(folder))) {
                std::error_code ignored;
                // Linked folders are left alone, for they may lead back to where they are.
                if (!entry.is_directory(ignored) || entry.is_symlink(ignored))
                    continue;
                if (std::optional<std::u16string> name = NameOf(entry.path()))
                    folders.emplace_back(base::FolderEntry{*std::move(name)});
                else
                    found.push_back({Join(folder, Shown(entry.path().filename())), below,
                                     RunTime(base::RunTimeError::BadFileName)});
            }
        } catch (const fs::filesystem_error& failure) {
            throw ErrorOf(failure.code());
        }
        std::sort(folders.begin(), folders.end());
        for (const Named& sub : folders)
            LookInto(Join(folder, sub.entry.path), Join(below, sub.entry.path));
    }

    base::FileSystem& files_;
    bool recursive_;
    std::unordered_set<std::u16string> folders_; ///< whose files have been found
    std::unordered_set<std::u16string> single_;  ///< files that were found by their own path
    std::u16string placed_;                      ///< the folder of the last of them
    std::u16string place_;                       ///< and where that is
};

} // namespace

std::vector<SourceFile> SymbolFiles(const std::vector<std::string>& paths, const Run& run) {
    Finder finder(run);
    for (const std::string& path : paths)
        finder.Look(base::FromUtf8(path));
    return std::move(finder.found);
}

} // namespace cli

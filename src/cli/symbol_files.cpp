#include "cli/symbol_files.h"

#include "base/letter_case.h"
#include "base/utf8.h"
#include "cli/paths.h"

#include <algorithm>
#include <filesystem>
#include <unordered_set>

namespace cli {

namespace fs = std::filesystem;

namespace {

/// A name and what it is sorted by: without regard to case, so that the order is the same everywhere.
struct Named {
    std::u16string folded;
    std::u16string name;

    explicit Named(std::u16string&& fileName)
        : folded(base::UpperCase(fileName)), name(std::move(fileName)) {}
    auto operator<=>(const Named&) const = default;
};

struct Listing {
    std::vector<Named> files;
    std::vector<Named> folders;
    std::vector<std::u16string> nameless; ///< as far as their names can be shown
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

Listing List(const std::u16string& folder) {
    Listing listing;
    for (const fs::directory_entry& entry : fs::directory_iterator(fs::path(folder))) {
        std::error_code ignored;
        std::optional<std::u16string> name = NameOf(entry.path());
        const bool isFolder = entry.is_directory(ignored);
        if (!name) {
            if (std::u16string shown = Shown(entry.path().filename()); isFolder || IsReadable(shown))
                listing.nameless.push_back(std::move(shown));
        } else if (isFolder) {
            // Linked folders are left alone, for they may lead back to where they are.
            if (!entry.is_symlink(ignored))
                listing.folders.emplace_back(std::move(*name));
        } else if (IsReadable(*name)) {
            listing.files.emplace_back(std::move(*name));
        }
    }
    std::sort(listing.files.begin(), listing.files.end());
    std::sort(listing.folders.begin(), listing.folders.end());
    return listing;
}

class Finder {
public:
    explicit Finder(bool recursive) : recursive_(recursive) {}

    void Look(const std::u16string& path) {
        try {
            switch (KindOf(path)) {
            case Kind::Missing: throw RunTime(base::RunTimeError::FileNotFound);
            case Kind::Other: throw RunTime(base::RunTimeError::PathFileAccess);
            case Kind::Folder: LookInto(path, u""); break;
            case Kind::File:
                if (!IsReadable(path))
                    throw UnusableExtension();
                Add(path, u"");
                break;
            }
        } catch (const base::Error& error) {
            found.push_back({path, u"", error});
        }
    }

    std::vector<SourceFile> found;

private:
    void LookInto(const std::u16string& folder, const std::u16string& below) {
        Listing listing;
        try {
            listing = List(folder);
        } catch (const fs::filesystem_error& failure) {
            found.push_back({folder, below, ErrorOf(failure.code())});
            return;
        }
        for (const Named& file : listing.files)
            Add(Join(folder, file.name), below);
        for (const std::u16string& name : listing.nameless)
            found.push_back({Join(folder, name), below, RunTime(base::RunTimeError::BadFileName)});
        if (recursive_)
            for (const Named& sub : listing.folders)
                LookInto(Join(folder, sub.name), below.empty() ? sub.name : Join(below, sub.name));
    }

    void Add(std::u16string&& path, const std::u16string& below) {
        if (known_.insert(fs::path(path).lexically_normal().u16string()).second)
            found.push_back({std::move(path), below, std::nullopt});
    }
    void Add(const std::u16string& path, const std::u16string& below) { Add(std::u16string(path), below); }

    bool recursive_;
    std::unordered_set<std::u16string> known_;
};

} // namespace

std::vector<SourceFile> SymbolFiles(const std::vector<std::string>& paths, bool recursive) {
    Finder finder(recursive);
    for (const std::string& path : paths)
        finder.Look(base::FromUtf8(path));
    return std::move(finder.found);
}

} // namespace cli

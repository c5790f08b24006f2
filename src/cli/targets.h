#pragma once

#include "base/byte_sink.h"
#include "cli/run.h"
#include "cli/source_file.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace cli {

/// A file that may be written.
struct Target {
    std::u16string path;
    bool exists = false; ///< there was one when it was claimed
};

/// The files that a run writes. Folders are made, a file arrives whole or not at all, and no two sources
/// share one.
class Targets {
public:
    explicit Targets(const Run& run) : run_(run) {}

    /// Takes a target for a source, before the source is read. Error 58 when another source has it, or when
    /// it exists and is not to be overwritten; 75 for what is no file; 70 for a file that is protected.
    Target Claim(std::u16string path);

    /// Writes a target beside its place and renames it. The old file stays whole on any failure: 61
    /// disk full, 70, 75, 57.
    void Write(const Target& target, std::string_view bytes);
    /// The same for bytes that come piece by piece; errors of `compose` too.
    void Write(const Target& target, const base::Composer& compose);

private:
    /// Targets come folder by folder: what costs calls of the system is asked once for each.
    struct Folder {
        std::u16string place; ///< its one spelling
        bool isMade = false;
    };

    Folder& FolderFor(std::u16string_view path);
    void WriteBesideAndRename(const Target& target, const base::Composer& compose);

    const Run& run_;
    std::unordered_map<std::u16string, Folder> folders_;
    std::unordered_set<std::u16string> claimed_;
};

/// The target of a source in a folder: its name with another extension, in the subfolder that it was
/// found in.
std::u16string TargetIn(const std::u16string& folder, const SourceFile& source,
                        std::u16string_view extension);

} // namespace cli

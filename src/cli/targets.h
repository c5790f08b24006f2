#pragma once

#include "base/byte_sink.h"
#include "cli/run.h"
#include "cli/source_file.h"

#include <string>
#include <string_view>
#include <unordered_set>

namespace cli {

/// The files that a run writes. Folders are made, a file arrives whole or not at all, and no two sources
/// share one.
class Targets {
public:
    explicit Targets(const Run& run) : run_(run) {}

    /// Takes a target for a source, before the source is read. Error 58 when another source has it, or when
    /// it exists and is not to be overwritten; 75 for what is no file; 70 for a file that is protected.
    void Claim(const std::u16string& path);

    /// Writes a claimed target beside its place and renames it. The old file stays whole on any failure: 61
    /// disk full, 70, 75, 57.
    void Write(const std::u16string& path, std::string_view bytes) const;
    /// The same for bytes that come piece by piece; errors of `compose` too.
    void Write(const std::u16string& path, const base::Composer& compose) const;

private:
    const Run& run_;
    std::unordered_set<std::u16string> claimed_;
};

/// The target of a source in a folder: its name with another extension, in the subfolder that it was
/// found in.
std::u16string TargetIn(const std::u16string& folder, const SourceFile& source,
                        std::u16string_view extension);

} // namespace cli

#pragma once

#include "base/code_page.h"
#include "base/error.h"
#include "base/file_system.h"
#include "base/regional_settings.h"
#include "cli/options.h"

#include <cstddef>
#include <cstdio>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace cli {

/// What the program runs on. The referenced objects outlive the run.
struct System {
    base::FileSystem& files;
    const base::CodePage& codePage;
    base::RegionalSettings userSettings;
    std::FILE* output;
    std::FILE* errors;
    bool showsProgress; ///< the error stream is a terminal
    const char* version;
};

/// Number conventions whatever the user's are.
base::RegionalSettings CommaSettings();
base::RegionalSettings PointSettings();

/// A failure that belongs to another file than the one that is worked on: to the target instead of
/// the source.
class FailureOf : public base::Error {
public:
    FailureOf(std::u16string path, const base::Error& error) : base::Error(error), path_(std::move(path)) {}
    const std::u16string& Path() const { return path_; }

private:
    std::u16string path_;
};

/// One run of the program: its options, its output, and what it has to say with its exit status.
class Run {
public:
    explicit Run(const System& system) : system_(system) {}
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;

    Options options; ///< filled while the arguments are read

    const System& OnSystem() const { return system_; }
    /// The number conventions of text files.
    base::RegionalSettings Settings() const;

    /// Writes a result that was asked for to the output, as UTF-8.
    void Print(std::string_view text);
    /// Writes to the output unless that shall be quiet.
    void Remark(std::string_view text);

    /// Does one file's work. A failure of it is told on the error stream, "qsymbol: PATH: error N: TEXT", and given
    /// back instead of going further.
    std::optional<base::Error> Try(const std::u16string& path, const std::function<void()>& work);
    void Fail(const std::u16string& path, const base::Error& error);
    bool Failed() const { return failed_; }
    /// There is a finding or a difference: the exit status becomes 1.
    void Found() { status_ = 1; }

    /// Shows how far a loop over files is, on a terminal.
    void ShowProgress(std::size_t done, std::size_t all);

    /// The exit status: 0, or 1 after a failure or a finding. Flushes the output first.
    int Finish();

private:
    void ClearProgress();

    const System& system_;
    int status_ = 0;
    bool failed_ = false;
    std::size_t progressWidth_ = 0; ///< characters of the line that stands on the terminal
};

} // namespace cli

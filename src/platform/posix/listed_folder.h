#pragma once

#include <dirent.h>
#include <memory>
#include <string>

namespace platform {

/// The folder that was listed last, kept open so that its files open without the way through all folders
/// above it, and without asking again whether they are disk files.
///
/// What is opened is the file in the very folder that was listed, even if that folder was renamed meanwhile.
class ListedFolder {
public:
    /// The folder from its start, for as long as no other one is opened; prefix is its path with a separator behind it.
    /// nullptr, and the last one stays, when it does not open.
    DIR* Open(const std::string& name, std::u16string prefix);

    /// The folder holds pipes, links or the like: what is in it has to be opened and asked one by one.
    void NoteOtherThanFiles() { holdsFilesOnly_ = false; }

    /// A handle for reading a file right in that folder; negative for any other path, in a folder that holds more than
    /// files, and on any failure.
    int OpenToRead(const std::u16string& path) const;

private:
    struct Closer {
        void operator()(DIR* folder) const { closedir(folder); }
    };

    std::unique_ptr<DIR, Closer> folder_;
    std::u16string prefix_;
    bool holdsFilesOnly_ = false;
};

} // namespace platform

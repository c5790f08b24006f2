#include "cli/targets.h"

#include "base/whole_file.h"
#include "cli/paths.h"
#include "qmath/str_util.h"

#include <filesystem>
#include <utility>

namespace cli {

namespace fs = std::filesystem;

namespace {

/// On Windows the names of devices (NUL, COM1, with any extension) lead there from every folder.
bool LeadsToADevice(const std::u16string& path, base::FileSystem& files) {
    return kIsWindows && files.FullPath(path).starts_with(u"\\\\.\\");
}

/// The file that a link leads to, else the path itself: what is renamed would take the link's place.
std::u16string BehindLinks(const std::u16string& path) {
    std::error_code ignored;
    return fs::is_symlink(fs::path(path), ignored) ? fs::canonical(fs::path(path)).u16string() : path;
}

/// Whether there is a file. Error 58 for what exists and is not to be overwritten, 75 for what is no file, 70 for a
/// protected file.
bool MayBeWritten(const std::u16string& path, bool overwrite, base::FileSystem& files) {
    if (LeadsToADevice(path, files))
        throw RunTime(base::RunTimeError::PathFileAccess);
    const Kind kind = KindOf(path);
    if (kind == Kind::Missing)
        return false;
    if (!overwrite)
        throw RunTime(base::RunTimeError::FileExists);
    if (kind != Kind::File)
        throw RunTime(base::RunTimeError::PathFileAccess);
    if ((fs::status(fs::path(path)).permissions() & fs::perms::owner_write) == fs::perms::none)
        throw RunTime(base::RunTimeError::PermissionDenied);
    return true;
}

/// Does work on a target; what fails is told of the target and not of the source.
template <class Work>
decltype(auto) OnTarget(const std::u16string& path, Work work) {
    try {
        return work();
    } catch (const base::Error& error) {
        throw FailureOf(path, error);
    } catch (const fs::filesystem_error& failure) {
        throw FailureOf(path, ErrorOf(failure.code()));
    }
}

} // namespace

Targets::Folder& Targets::FolderFor(std::u16string_view path) {
    const std::u16string folder(FolderOf(path));
    const auto known = folders_.find(folder);
    return known != folders_.end() ? known->second
                                   : folders_.emplace(folder, Folder{PlaceOf(folder)}).first->second;
}

Target Targets::Claim(std::u16string path) {
    const std::u16string& place = OnTarget(path, [&]() -> Folder& { return FolderFor(path); }).place;
    const std::u16string_view name = std::u16string_view(path).substr(FolderOf(path).size());
    if (!claimed_.insert(InPlace(place, name)).second)
        throw RunTime(base::RunTimeError::FileExists);
    const bool exists =
        OnTarget(path, [&] { return MayBeWritten(path, run_.options.overwrite, run_.OnSystem().files); });
    return {std::move(path), exists};
}

void Targets::Write(const Target& target, std::string_view bytes) {
    Write(target, [&](const base::ByteSink& sink) { sink(bytes); });
}

void Targets::Write(const Target& target, const base::Composer& compose) {
    OnTarget(target.path, [&] { WriteBesideAndRename(target, compose); });
}

void Targets::WriteBesideAndRename(const Target& target, const base::Composer& compose) {
    const std::u16string path = target.exists ? BehindLinks(target.path) : target.path;
    const std::u16string folder(FolderOf(path));
    if (Folder& known = FolderFor(path); !known.isMade) {
        if (!folder.empty())
            fs::create_directories(fs::path(folder));
        known.isMade = true;
    }
    base::WriteBeside(run_.OnSystem().files, path, compose, base::Flush::No);
}

std::u16string TargetIn(const std::u16string& folder, const SourceFile& source,
                        std::u16string_view extension) {
    std::u16string name(qmath::NameWithoutExtension(qmath::FileNamePart(source.path)));
    name += u'.';
    name += extension;
    return Join(source.folder.empty() ? folder : Join(folder, source.folder), name);
}

} // namespace cli

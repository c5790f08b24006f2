#include "cli/targets.h"

#include "base/letter_case.h"
#include "base/whole_file.h"
#include "cli/paths.h"
#include "qmath/str_util.h"

#include <filesystem>

namespace cli {

namespace fs = std::filesystem;

namespace {

/// One spelling for all ways to write a path; without regard to case where the system's files have none.
std::u16string OneSpelling(const std::u16string& path) {
    std::u16string plain = fs::absolute(fs::path(path)).lexically_normal().u16string();
    constexpr bool kCaseMatters = fs::path::preferred_separator == '/';
    return kCaseMatters ? plain : base::LowerCase(plain);
}

/// The file that a link leads to, else the path itself: what is renamed would take the link's place.
fs::path BehindLinks(const fs::path& path) {
    std::error_code ignored;
    return fs::is_symlink(path, ignored) ? fs::canonical(path) : path;
}

/// Error 58 for what exists and is not to be overwritten, 75 for what is no file, 70 for a protected file.
void MakeSureItMayBeWritten(const std::u16string& path, bool overwrite, const std::u16string& fullPath) {
    // On Windows the names of devices (NUL, COM1, with any extension) lead there from every folder.
    if (fullPath.starts_with(u"\\\\.\\"))
        throw RunTime(base::RunTimeError::PathFileAccess);
    const Kind kind = KindOf(path);
    if (kind == Kind::Missing)
        return;
    if (!overwrite)
        throw RunTime(base::RunTimeError::FileExists);
    if (kind != Kind::File)
        throw RunTime(base::RunTimeError::PathFileAccess);
    if ((fs::status(fs::path(path)).permissions() & fs::perms::owner_write) == fs::perms::none)
        throw RunTime(base::RunTimeError::PermissionDenied);
}

void WriteBehindLinks(const std::u16string& path, const base::Composer& compose, base::FileSystem& files) {
    const fs::path target = BehindLinks(fs::path(path));
    if (target.has_parent_path())
        fs::create_directories(target.parent_path());
    base::WriteBeside(files, target.u16string(), compose, base::Flush::No);
}

/// Does work on a target; what fails is told of the target and not of the source.
template <class Work>
void OnTarget(const std::u16string& path, Work work) {
    try {
        work();
    } catch (const base::Error& error) {
        throw FailureOf(path, error);
    } catch (const fs::filesystem_error& failure) {
        throw FailureOf(path, ErrorOf(failure.code()));
    }
}

} // namespace

void Targets::Claim(const std::u16string& path) {
    if (!claimed_.insert(OneSpelling(path)).second)
        throw RunTime(base::RunTimeError::FileExists);
    OnTarget(path, [&] {
        MakeSureItMayBeWritten(path, run_.options.overwrite, run_.OnSystem().files.FullPath(path));
    });
}

void Targets::Write(const std::u16string& path, std::string_view bytes) const {
    Write(path, [&](const base::ByteSink& sink) { sink(bytes); });
}

void Targets::Write(const std::u16string& path, const base::Composer& compose) const {
    OnTarget(path, [&] { WriteBehindLinks(path, compose, run_.OnSystem().files); });
}

std::u16string TargetIn(const std::u16string& folder, const SourceFile& source,
                        std::u16string_view extension) {
    std::u16string name(qmath::NameWithoutExtension(qmath::FileNamePart(source.path)));
    name += u'.';
    name += extension;
    return Join(source.folder.empty() ? folder : Join(folder, source.folder), name);
}

} // namespace cli

#include "cli/paths.h"

#include "base/letter_case.h"
#include "cli/no_strings.h"
#include "qmath/str_util.h"
#include "qsymbol/files/library_error.h"

namespace cli {

namespace fs = std::filesystem;

namespace {

constexpr char16_t kSeparator = kIsWindows ? u'\\' : u'/';
constexpr std::u16string_view kSeparators = kIsWindows ? u"\\/:" : u"/";

bool EndsWithSeparator(std::u16string_view path) {
    return !path.empty() && kSeparators.find(path.back()) != std::u16string_view::npos;
}

std::u16string InOneCase(std::u16string&& path) {
    return kIsWindows ? base::LowerCase(path) : std::move(path);
}

} // namespace

std::u16string Extension(std::u16string_view path) {
    return base::LowerCase(qmath::GetExtension(path));
}

bool IsReadable(std::u16string_view path) {
    const std::u16string extension = Extension(path);
    return extension == u"syt" || extension == u"syb" || extension == u"wsc";
}

bool IsWritable(std::u16string_view path) {
    const std::u16string extension = Extension(path);
    return extension == u"syt" || extension == u"syb";
}

std::u16string Join(std::u16string_view folder, std::u16string_view name) {
    std::u16string path(folder);
    if (!folder.empty() && !EndsWithSeparator(folder))
        path += kSeparator;
    return path += name;
}

std::u16string_view FolderOf(std::u16string_view path) {
    return path.substr(0, path.find_last_of(kSeparators) + 1);
}

std::u16string PlaceOf(std::u16string_view folder) {
    const fs::path path(folder.empty() ? std::u16string_view(u".") : folder);
    std::error_code failed;
    fs::path place = fs::weakly_canonical(path, failed);
    if (failed)
        place = fs::absolute(path).lexically_normal();
    std::u16string text = place.u16string();
    while (EndsWithSeparator(text))
        text.pop_back();
    return InOneCase(std::move(text));
}

std::u16string InPlace(const std::u16string& place, std::u16string_view name) {
    return InOneCase(place + kSeparator + std::u16string(name));
}

Kind KindOf(const std::u16string& path) {
    std::error_code code;
    const fs::file_status status = fs::status(fs::path(path), code);
    switch (status.type()) {
    case fs::file_type::regular: return Kind::File;
    case fs::file_type::directory: return Kind::Folder;
    case fs::file_type::not_found: return Kind::Missing;
    case fs::file_type::none: throw ErrorOf(code);
    default: return Kind::Other;
    }
}

base::Error RunTime(base::RunTimeError number) {
    return {static_cast<std::int32_t>(number), u"", std::u16string(base::Description(number))};
}

bool Exists(const std::u16string& path) {
    std::error_code ignored;
    return fs::exists(fs::path(path), ignored);
}

bool IsFolder(const std::u16string& path) {
    std::error_code ignored;
    return fs::is_directory(fs::path(path), ignored);
}

base::Error UnusableExtension() {
    constexpr auto kNumber = static_cast<std::int32_t>(qsymbol::LibraryError::InvalidExtension);
    return {kNumber, u"", qsymbol::GetErrorMessage(kNumber, NoStrings())};
}

base::Error ErrorOf(std::error_code code) {
    using base::RunTimeError;
    const std::error_condition condition = code.default_error_condition();
    const auto is = [&](std::errc expected) { return condition == expected; };
    if (is(std::errc::no_such_file_or_directory))
        return RunTime(RunTimeError::FileNotFound);
    if (is(std::errc::permission_denied) || is(std::errc::operation_not_permitted) ||
        is(std::errc::read_only_file_system) || is(std::errc::text_file_busy))
        return RunTime(RunTimeError::PermissionDenied);
    if (is(std::errc::no_space_on_device))
        return RunTime(RunTimeError::DiskFull);
    if (is(std::errc::filename_too_long) || is(std::errc::invalid_argument))
        return RunTime(RunTimeError::BadFileName);
    if (is(std::errc::not_a_directory) || is(std::errc::is_a_directory) || is(std::errc::file_exists) ||
        is(std::errc::too_many_symbolic_link_levels))
        return RunTime(RunTimeError::PathFileAccess);
    if (is(std::errc::not_enough_memory))
        return RunTime(RunTimeError::OutOfMemory);
    return RunTime(RunTimeError::DeviceIo);
}

} // namespace cli

#include "cli/run.h"

#include "base/utf8.h"
#include "cli/paths.h"
#include "cli/shown.h"

#include <filesystem>
#include <new>

namespace cli {

namespace {

void Put(std::FILE* stream, std::string_view text) {
    std::fwrite(text.data(), 1, text.size(), stream);
}

} // namespace

base::RegionalSettings CommaSettings() {
    return {.decimal = ",", .thousands = ".", .systemParse = nullptr};
}

base::RegionalSettings PointSettings() {
    return {.decimal = ".", .thousands = ",", .systemParse = nullptr};
}

base::RegionalSettings Run::Settings() const {
    switch (options.decimal) {
    case Decimal::Comma: return CommaSettings();
    case Decimal::Point: return PointSettings();
    case Decimal::User: break;
    }
    return system_.userSettings;
}

void Run::Print(std::string_view text) {
    ClearProgress();
    Put(system_.output, text);
}

void Run::Remark(std::string_view text) {
    if (!options.quiet)
        Print(text);
}

std::optional<base::Error> Run::Try(const std::u16string& path, const std::function<void()>& work) {
    const auto told = [&](const std::u16string& of, const base::Error& error) {
        Fail(of, error);
        return error;
    };
    try {
        work();
        return std::nullopt;
    } catch (const FailureOf& failure) {
        return told(failure.Path(), failure);
    } catch (const base::Error& error) {
        return told(path, error);
    } catch (const std::filesystem::filesystem_error& failure) {
        return told(path, ErrorOf(failure.code()));
    } catch (const std::bad_alloc&) {
        return told(path, RunTime(base::RunTimeError::OutOfMemory));
    }
}

void Run::Fail(const std::u16string& path, const base::Error& error) {
    ClearProgress();
    status_ = 1;
    failed_ = true;
    std::string line = "qsymbol: ";
    line += Shown(path);
    line += ": error ";
    line += std::to_string(error.Number());
    line += ": ";
    line += Shown(error.Description());
    line += '\n';
    Put(system_.errors, line);
}

void Run::ShowProgress(std::size_t done, std::size_t all) {
    if (!system_.showsProgress || options.quiet)
        return;
    const std::string line = std::to_string(done) + " / " + std::to_string(all);
    Put(system_.errors, "\r");
    Put(system_.errors, line);
    std::fflush(system_.errors);
    progressWidth_ = line.size();
}

void Run::ClearProgress() {
    if (progressWidth_ == 0)
        return;
    Put(system_.errors, "\r");
    Put(system_.errors, std::string(progressWidth_, ' '));
    Put(system_.errors, "\r");
    std::fflush(system_.errors);
    progressWidth_ = 0;
}

int Run::Finish() {
    ClearProgress();
    // A result that did not arrive must not look like one that did.
    if (std::fflush(system_.output) != 0 || std::ferror(system_.output) != 0) {
        Put(system_.errors, "qsymbol: error 57: ");
        Put(system_.errors, base::ToUtf8(base::Description(base::RunTimeError::DeviceIo)));
        Put(system_.errors, "\n");
        status_ = 1;
    }
    return status_;
}

} // namespace cli

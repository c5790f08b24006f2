#pragma once

#include "platform/posix/fixed_regional_settings.h"
#include "platform/posix/posix_file_system.h"
#include "platform/posix/windows_1252.h"
#include "qsymbol/files/file_environment.h"
#include "qsymbol/model/symbol.h"

namespace bench {

/// A made-up symbol of so many elements: outlines of 3 to 20 points, circles, arcs and short texts.
qsymbol::Symbol PlanSymbol(std::size_t elements, std::uint32_t seed);

/// No resource library, and nobody to ask: every question is answered so that the program goes on.
class Silence final : public messages::ResourceStrings, public messages::UserPrompt {
public:
    std::u16string LoadResString(std::int32_t) const override { return {}; }
    void ReportError(std::u16string_view) override {}
    void Notice(std::u16string_view) override {}
    void Inform(std::u16string_view) override {}
    bool AskYesNo(std::u16string_view, std::u16string_view) override { return true; }
    messages::FailureChoice AskAbortRetryIgnore(std::u16string_view) override;
};

/// What reading and writing files needs, on the real file system under German settings.
struct World {
    platform::PosixFileSystem files;
    platform::Windows1252 codePage;
    Silence silence;
    qsymbol::FileEnvironment environment{files, codePage, platform::GermanSettings(), silence, silence};
};

} // namespace bench

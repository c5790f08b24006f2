#include "qsymbol/check/file_check.h"

#include "base/letter_case.h"
#include "qmath/str_util.h"

namespace qsymbol {

Finding Unreadable(const base::Error& error) {
    return {"unreadable", Severity::Error, std::nullopt, error.Number(), error.Description()};
}

Finding ImportStopped(std::u16string_view notice) {
    return {"import-stopped", Severity::Error, std::nullopt, std::nullopt, std::u16string(notice)};
}

std::optional<Finding> FileNames::Add(const std::u16string& path) {
    const auto [first, isNew] = paths_.try_emplace(base::UpperCase(qmath::FileNamePart(path)), path);
    if (isNew)
        return std::nullopt;
    return Finding{"duplicate-name", Severity::Error, std::nullopt, std::nullopt,
                   u"a catalogue holds a name once, and it is taken by " + first->second};
}

} // namespace qsymbol

#pragma once

#include "messages/user_prompt.h"

#include <optional>
#include <string>

namespace cli {

/// Nobody is there to be asked: a notice is kept, and every question is answered with the end of the matter.
class KeptNotice final : public messages::UserPrompt {
public:
    std::optional<std::u16string> notice;

    void ReportError(std::u16string_view text) override { notice = text; }
    void Notice(std::u16string_view text) override { notice = text; }
    void Inform(std::u16string_view text) override { notice = text; }
    bool AskYesNo(std::u16string_view, std::u16string_view) override { return false; }
    messages::FailureChoice AskAbortRetryIgnore(std::u16string_view) override {
        return messages::FailureChoice::Abort;
    }
};

} // namespace cli

#pragma once

#include "messages/user_prompt.h"

namespace platform {

/// Message boxes, owned by the calling thread's active window.
class MessageBoxPrompt final : public messages::UserPrompt {
public:
    void ReportError(std::u16string_view text) override;
    void Notice(std::u16string_view text) override;
    void Inform(std::u16string_view text) override;
    bool AskYesNo(std::u16string_view text, std::u16string_view title) override;
    messages::FailureChoice AskAbortRetryIgnore(std::u16string_view text) override;
};

} // namespace platform

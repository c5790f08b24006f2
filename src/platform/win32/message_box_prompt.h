#pragma once

#include "qsymbol/frame/user_prompt.h"

namespace platform {

/// Message boxes, owned by the calling thread's active window.
class MessageBoxPrompt final : public qsymbol::UserPrompt {
public:
    void ReportError(std::u16string_view text) override;
    void Notice(std::u16string_view text) override;
    void Inform(std::u16string_view text) override;
    bool AskYesNo(std::u16string_view text, std::u16string_view title) override;
    qsymbol::FailureChoice AskAbortRetryIgnore(std::u16string_view text) override;
};

} // namespace platform

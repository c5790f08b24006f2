#pragma once

#include "messages/user_prompt.h"

namespace support {

/// Nobody to ask: counts notices and answers so that the program goes on.
class SilentPrompt final : public messages::UserPrompt {
public:
    int notices = 0;

    void ReportError(std::u16string_view) override {}
    void Notice(std::u16string_view) override { ++notices; }
    void Inform(std::u16string_view) override {}
    bool AskYesNo(std::u16string_view, std::u16string_view) override { return true; }
    messages::FailureChoice AskAbortRetryIgnore(std::u16string_view) override {
        return messages::FailureChoice::Ignore;
    }
};

} // namespace support

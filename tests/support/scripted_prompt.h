#pragma once

#include "messages/user_prompt.h"

#include <deque>
#include <string>
#include <vector>

namespace support {

/// Answers questions from a script and keeps all that was said. A question without an answer left fails the
/// test.
class ScriptedPrompt final : public messages::UserPrompt {
public:
    std::deque<bool> yesNo;
    std::deque<messages::FailureChoice> failures;
    std::vector<std::u16string> said;   ///< texts of all boxes in their order
    std::vector<std::u16string> titles; ///< titles of the Yes/No boxes

    void ReportError(std::u16string_view text) override { said.emplace_back(text); }
    void Notice(std::u16string_view text) override { said.emplace_back(text); }
    void Inform(std::u16string_view text) override { said.emplace_back(text); }
    bool AskYesNo(std::u16string_view text, std::u16string_view title) override;
    messages::FailureChoice AskAbortRetryIgnore(std::u16string_view text) override;
};

} // namespace support

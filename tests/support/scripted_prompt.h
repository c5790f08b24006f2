#pragma once

#include "messages/user_prompt.h"

#include <deque>
#include <string>
#include <utility>
#include <vector>

namespace support {

/// Answers questions from a script and keeps all that was said. A question without an answer left fails
/// the test.
class ScriptedPrompt final : public messages::UserPrompt {
public:
    std::deque<bool> yesNo;
    std::deque<messages::FailureChoice> failures;
    std::vector<std::u16string> said;   ///< texts of all boxes in their order
    std::vector<std::u16string> titles; ///< titles of the Yes/No boxes

    /// What was said since the last time as golden cases tell it: "notice …", "ask TITLE: …", "failure …"; UTF-8.
    std::vector<std::string> TakeTold() { return std::exchange(told_, {}); }

    void ReportError(std::u16string_view text) override { Say("error", text); }
    void Notice(std::u16string_view text) override { Say("notice", text); }
    void Inform(std::u16string_view text) override { Say("information", text); }
    bool AskYesNo(std::u16string_view text, std::u16string_view title) override;
    messages::FailureChoice AskAbortRetryIgnore(std::u16string_view text) override;

private:
    void Say(const std::string& kind, std::u16string_view text);

    std::vector<std::string> told_;
};

} // namespace support

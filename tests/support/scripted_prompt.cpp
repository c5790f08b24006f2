#include "support/scripted_prompt.h"

#include "base/utf8.h"

#include <gtest/gtest.h>

namespace support {

namespace {

template <class Answer>
Answer Next(std::deque<Answer>& answers, Answer otherwise) {
    if (answers.empty()) {
        ADD_FAILURE() << "a question without an answer in the script";
        return otherwise;
    }
    const Answer answer = answers.front();
    answers.pop_front();
    return answer;
}

} // namespace

void ScriptedPrompt::Say(const std::string& kind, std::u16string_view text) {
    said.emplace_back(text);
    told_.push_back(kind + " " + base::ToUtf8(text));
}

bool ScriptedPrompt::AskYesNo(std::u16string_view text, std::u16string_view title) {
    Say("ask " + base::ToUtf8(title) + ":", text);
    titles.emplace_back(title);
    return Next(yesNo, false);
}

messages::FailureChoice ScriptedPrompt::AskAbortRetryIgnore(std::u16string_view text) {
    Say("failure", text);
    return Next(failures, messages::FailureChoice::Abort);
}

} // namespace support

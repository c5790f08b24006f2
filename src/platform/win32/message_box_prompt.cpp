#include "platform/win32/message_box_prompt.h"

#include "base/error.h"
#include "platform/wide/wide_text.h"
#include "platform/win32/application_title.h"

#include <windows.h>

#include <string>

namespace platform {

namespace {

int Show(std::u16string_view text, std::u16string_view title, UINT type) {
    const std::u16string ownText(text);
    const std::u16string ownTitle(title);
    return MessageBoxW(GetActiveWindow(), Wide(ownText), Wide(ownTitle), type);
}

} // namespace

void MessageBoxPrompt::ReportError(std::u16string_view text) {
    Show(text, ApplicationTitle(), MB_OK | MB_ICONERROR);
}

void MessageBoxPrompt::Notice(std::u16string_view text) {
    Show(text, ApplicationTitle(), MB_OK);
}

void MessageBoxPrompt::Inform(std::u16string_view text) {
    Show(text, ApplicationTitle(), MB_OK | MB_ICONINFORMATION);
}

bool MessageBoxPrompt::AskYesNo(std::u16string_view text, std::u16string_view title) {
    const int answer = Show(text, title, MB_YESNO);
    if (answer != IDYES && answer != IDNO)
        base::Raise(base::RunTimeError::PermissionDenied);
    return answer == IDYES;
}

messages::FailureChoice MessageBoxPrompt::AskAbortRetryIgnore(std::u16string_view text) {
    switch (Show(text, ApplicationTitle(), MB_ABORTRETRYIGNORE | MB_ICONERROR)) {
    case IDRETRY: return messages::FailureChoice::Retry;
    case IDIGNORE: return messages::FailureChoice::Ignore;
    default: return messages::FailureChoice::Abort; // also when no box could be shown: never loop
    }
}

} // namespace platform

#pragma once

#include <string_view>

namespace messages {

enum class FailureChoice { Abort, Retry, Ignore };

/// Seam: what the library says to the user and asks of him. What cannot be said is dropped. A DLL answers
/// with message boxes, a test from a script.
class UserPrompt {
public:
    virtual ~UserPrompt() = default;

    /// A notice with the critical-stop icon and an OK button; the title is the host application's.
    virtual void ReportError(std::u16string_view text) = 0;
    /// A notice with an OK button and no icon; the title is the host application's.
    virtual void Notice(std::u16string_view text) = 0;
    /// A notice with the information icon and an OK button; the title is the host application's.
    virtual void Inform(std::u16string_view text) = 0;
    /// Yes or No, no icon, with the given title. True for Yes. Error 70 when the user cannot be asked.
    virtual bool AskYesNo(std::u16string_view text, std::u16string_view title) = 0;
    /// Abort, Retry or Ignore with the critical-stop icon; the title is the host application's. Abort when the
    /// user cannot be asked.
    virtual FailureChoice AskAbortRetryIgnore(std::u16string_view text) = 0;
};

} // namespace messages

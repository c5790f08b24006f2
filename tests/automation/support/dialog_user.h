#pragma once

#include "support/selection_dialog.h"

#include <deque>
#include <functional>
#include <vector>

namespace support {

/// Stands in for the user of a selection dialog of this thread: does one thing after the other, each when the
/// dialog, and the program around it, have handled all that was before.
class DialogUser {
public:
    using Action = std::function<void(const SelectionDialog&)>;
    using Condition = std::function<bool(const SelectionDialog&)>;

    DialogUser();
    DialogUser(const DialogUser&) = delete;
    DialogUser& operator=(const DialogUser&) = delete;
    /// Reports what could not be done, because there was no dialog any more.
    ~DialogUser();

    DialogUser& Do(Action action);
    /// Goes on when something is so; after a minute it is a failure, and the dialog is cancelled.
    DialogUser& WaitUntil(Condition condition);

    DialogUser& Press(int id) {
        return Do([id](const SelectionDialog& dialog) { dialog.Press(id); });
    }
    DialogUser& Key(WORD key) {
        return Do([key](const SelectionDialog& dialog) { dialog.Key(key); });
    }

    /// How many selection dialogs have come up.
    std::size_t Dialogs() const { return dialogs_.size(); }

private:
    static LRESULT CALLBACK Hook(int code, WPARAM window, LPARAM details);
    static void CALLBACK Tick(HWND window, UINT message, UINT_PTR timer, DWORD time);
    void Activated(HWND window);
    void Act();

    HHOOK hook_;
    UINT_PTR timer_ = 0;
    std::vector<HWND> dialogs_; ///< the innermost last
    std::deque<Condition> steps_;
    ULONGLONG stepStarted_ = 0;
    bool gaveUp_ = false;
};

} // namespace support

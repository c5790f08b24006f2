#pragma once

#include <windows.h>

#include <deque>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace support {

enum class BoxIcon { None, Stop, Question, Warning, Information };

/// A message box as the user saw it.
struct Box {
    std::wstring title;
    std::wstring text;
    std::vector<int> buttons; ///< IDYES …, in the order of their ids
    BoxIcon icon = BoxIcon::None;

    bool operator==(const Box&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Box& box);

/// Stands in for the user: writes every message box of this thread, or of the apartment in which it has its objects, down and
/// presses the buttons it was told.
class MessageBoxes {
public:
    /// `answers` are pressed one after the other.
    explicit MessageBoxes(std::initializer_list<int> answers = {});
    explicit MessageBoxes(const std::vector<int>& answers);
    MessageBoxes(const MessageBoxes&) = delete;
    MessageBoxes& operator=(const MessageBoxes&) = delete;
    /// Reports answers that were not needed.
    ~MessageBoxes();

    const std::vector<Box>& Seen() const { return seen_; }
    /// Called when a box is up, before it is answered.
    std::function<void()> whileOpen;

private:
    static LRESULT CALLBACK Hook(int code, WPARAM window, LPARAM details);
    void Answer(HWND box);

    std::vector<HHOOK> hooks_;
    std::deque<int> answers_;
    std::vector<Box> seen_;
    std::vector<HWND> answered_;
};

/// What the library shows when an operation of the user fails.
Box ErrorBox(const std::wstring& text);

/// What message boxes of the running program are called: its file name without folder and extension.
std::wstring ProgramTitle();

} // namespace support
